// The dispatch tables and the pass that walks a ResourcePool with one of
// them.
#include "read/resource_dispatch.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "xml/xml_test_support.h"

namespace {

template <typename Row>
void expectFindable(const Row *table, size_t rows, const char *tableName,
                    const Row *(*find)(const Row *, size_t, const char *)) {
    for (size_t i = 0; i < rows; ++i) {
        if (i > 0) {
            EXPECT_LT(std::strcmp(table[i - 1].name, table[i].name), 0) << tableName << i;
        }
        EXPECT_EQ(&table[i], find(table, rows, table[i].name)) << tableName << table[i].name;
    }
    EXPECT_EQ(nullptr, find(table, rows, "")) << tableName;
    EXPECT_EQ(nullptr, find(table, rows, "~")) << tableName;
    EXPECT_EQ(nullptr, find(table, rows, nullptr)) << tableName;
}

// Binary search relies on the byte order of the names.
TEST(ResourceDispatch, EveryRowIsFoundByName) {
    expectFindable(kFileSpecPassReaders, kFileSpecPassReaderCount, "files", findResourceReaderRow);
    expectFindable(kLayoutPassReaders, kLayoutPassReaderCount, "layout", findResourceReaderRow);
    expectFindable(kColourPassReaders, kColourPassReaderCount, "colour", findResourceReaderRow);
    expectFindable(kParameterPassReaders, kParameterPassReaderCount, "parameters",
                   findResourceReaderRow);
    expectFindable(kNodePoolReaders, kNodePoolReaderCount, "pools", findResourceReaderRow);
    expectFindable(kLinkReaders, kLinkReaderCount, "links", findLinkReaderRow);
    // Names are compared as written, prefix and case included.
    EXPECT_EQ(nullptr, findResourceReaderRow(kParameterPassReaders, kParameterPassReaderCount,
                                             "morvellan:Device"));
    EXPECT_EQ(nullptr,
              findResourceReaderRow(kParameterPassReaders, kParameterPassReaderCount, "device"));
}

std::vector<std::string> &calls() {
    static std::vector<std::string> seen;
    return seen;
}

zundo_status_t record(xercesc::DOMElement *resource, const char *name, ResourceReadContext *) {
    calls().push_back(std::string(name) + "#" + utf8(resource->getAttribute(u"ID")));
    return ZUNDO_ERROR;
}

const ResourceReaderRow kRecordingRows[] = {
    {"Device", record, true},
    {"Ink", nullptr, false},
    {"Media", record, false},
};

TEST(ResourceDispatch, PassReadsKnownRowsInOrderAndTheFirstDeviceOnly) {
    ParsedTicket pool(
        "<?xml version=\"1.0\"?><ResourcePool><Media ID=\"m1\"/><Device ID=\"d1\"/>"
        "<Ink ID=\"i1\"/><Stranger ID=\"s\"/><Media ID=\"m2\"/><Device ID=\"d2\"/>"
        "<media ID=\"lower\"/></ResourcePool>");
    ASSERT_EQ(ZUNDO_OK, pool.result.status);
    ElementEntry **resources = nullptr;
    ASSERT_EQ(ZUNDO_OK, getElements(pool.root(), &resources).status);
    ResourceReadContext context{nullptr, nullptr, nullptr, nullptr, nullptr};
    calls().clear();
    runResourcePass(resources, kRecordingRows, 3, &context);
    EXPECT_EQ((std::vector<std::string>{"Media#m1", "Device#d1", "Media#m2"}), calls());
    // Each pass starts afresh.
    calls().clear();
    runResourcePass(resources, kRecordingRows, 3, &context);
    EXPECT_EQ(3u, calls().size());
    runResourcePass(nullptr, kRecordingRows, 3, &context);
    EXPECT_EQ(3u, calls().size());
    freeElementList(resources);
}

}  // namespace
