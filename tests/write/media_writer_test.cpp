// Media written as shared Media resources with MediaRefs in the partitions
// of DigitalPrintingParams, their attributes and sub-elements, and media
// that are read back from the written ticket.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "read/media_reader.h"
#include "write/write_test_support.h"
#include "zundo.h"

namespace {

zundo_int_object_s *namedMedia(const char *name) {
    zundo_int_object_s *media = nullptr;
    EXPECT_EQ(newMedia(&media, name), ZUNDO_OK);
    return media;
}

zundo_int_object_s *copyOf(const zundo_int_object_s *media) {
    zundo_int_object_s *copy = nullptr;
    EXPECT_EQ(cloneMedia(&copy, media), ZUNDO_OK);
    return copy;
}

zundo_int_object_s *pageRangeWith(int lower, int upper, zundo_int_object_s *media) {
    zundo_range_s *pages = nullptr;
    EXPECT_EQ(newRange(&pages, lower, upper), ZUNDO_OK);
    zundo_int_object_s *range = nullptr;
    EXPECT_EQ(newPageRange(&range, pages, media), ZUNDO_OK);
    return range;
}

void setDateTime(zundo_int_object_s *object, const char *name, const char *text) {
    zundo_date_time_s *time = nullptr;
    ASSERT_EQ(newDateTimeFromString(&time, text), ZUNDO_OK);
    ASSERT_EQ(setDateTimeAttribute(object, name, time), ZUNDO_OK);
}

void setBinary(zundo_int_object_s *object, const char *name, const std::string &bytes) {
    zundo_binary_object_s *binary = nullptr;
    ASSERT_EQ(newBinaryObject(&binary, bytes.data(), bytes.size()), ZUNDO_OK);
    ASSERT_EQ(setBinaryAttribute(object, name, binary), ZUNDO_OK);
}

// The rRef of every MediaRef child of the element.
std::vector<std::string> mediaRefs(const xercesc::DOMElement *element) {
    std::vector<std::string> references;
    for (xercesc::DOMElement *reference : childElements(element, "MediaRef"))
        references.push_back(attribute(reference, "rRef"));
    return references;
}

xercesc::DOMElement *partition(const xercesc::DOMElement *parent, const char *key,
                               const std::string &value) {
    return childWith(parent, tagName(parent), key, value);
}

// The media made again from the written Media resource.
struct ReadBackMedia {
    ReadBackMedia(const WrittenTicket &written, const std::string &id) {
        xercesc::DOMElement *element = written.resource(id);
        if (element != nullptr) status = createMediaObject(&media, element);
    }
    ~ReadBackMedia() { destroy(media); }
    ReadBackMedia(const ReadBackMedia &) = delete;

    zundo_int_object_s *media = nullptr;
    zundo_status_t status = ZUNDO_ERROR;
};

TEST(MediaWriter, JobLevelPageRangesShareMediaAndPartitions) {
    TestTicket ticket;
    zundo_int_object_s *plain = namedMedia("Plain");
    zundo_int_object_s *glossy = namedMedia("Glossy");
    ASSERT_EQ(setIntegerAttribute(glossy, "media-front-coatings", 3), ZUNDO_OK);
    zundo_int_object_s *ranges[] = {pageRangeWith(0, 3, copyOf(glossy)),
                                    pageRangeWith(4, 7, copyOf(plain)),
                                    pageRangeWith(8, 9, glossy), nullptr};
    ASSERT_EQ(setObjectAttribute(ticket.job, "job-media", plain), ZUNDO_OK);
    ASSERT_EQ(setObjectsAttribute(ticket.job, "job-page-ranges", ranges), ZUNDO_OK);
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);

    // Equal media share one resource, numbered in order of first use.
    EXPECT_EQ(attribute(written.resource("Media0"), "DescriptiveName"), "Plain");
    EXPECT_EQ(attribute(written.resource("Media1"), "FrontCoatings"), "Glossy");
    EXPECT_EQ(attribute(written.resource("Media1"), "Class"), "Consumable");
    EXPECT_EQ(written.resource("Media2"), nullptr);
    xercesc::DOMElement *link = written.link("Media1");
    EXPECT_EQ(tagName(link), "MediaLink");
    EXPECT_EQ(attribute(link, "Usage"), "Input");
    EXPECT_EQ(attribute(link, "CombinedProcessIndex"), "4");

    xercesc::DOMElement *dpp = written.resource("DPP0");
    EXPECT_EQ(mediaRefs(dpp), std::vector<std::string>{"Media0"});
    EXPECT_EQ(attribute(dpp, "PartIDKeys"), "RunIndex");
    EXPECT_EQ(mediaRefs(partition(dpp, "RunIndex", "0 ~ 3 8 ~ 9")),
              std::vector<std::string>{"Media1"});
    EXPECT_EQ(mediaRefs(partition(dpp, "RunIndex", "4 ~ 7")), std::vector<std::string>{"Media0"});
    EXPECT_EQ(partition(dpp, "RunIndex", "8 ~ 9"), nullptr);
}

TEST(MediaWriter, DocumentsAndTheirPageRangesUseDocIndexPartitions) {
    TestTicket ticket;
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-level-pages", 0), ZUNDO_OK);
    zundo_int_object_s *second = nullptr;
    ASSERT_EQ(newDocument(&second, "b.pdf"), ZUNDO_OK);
    ASSERT_EQ(addDocument(ticket.job, second), ZUNDO_OK);
    zundo_int_object_s *plain = namedMedia("Plain");
    zundo_int_object_s *first = getDocuments(ticket.job)[0];
    ASSERT_EQ(setObjectAttribute(first, "document-media", copyOf(plain)), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(second, "document-media", copyOf(plain)), ZUNDO_OK);
    zundo_int_object_s *ranges[] = {pageRangeWith(2, 5, namedMedia("Blue")), nullptr};
    ASSERT_EQ(setObjectsAttribute(second, "document-page-ranges", ranges), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(ticket.job, "job-media", plain), ZUNDO_OK);
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);

    // One Media for the job and both documents, three MediaRefs to it.
    EXPECT_EQ(attribute(written.resource("Media1"), "DescriptiveName"), "Blue");
    xercesc::DOMElement *dpp = written.resource("DPP0");
    EXPECT_EQ(attribute(dpp, "PartIDKeys"), "DocIndex DocRunIndex");
    EXPECT_EQ(mediaRefs(dpp), std::vector<std::string>{"Media0"});
    EXPECT_EQ(mediaRefs(partition(dpp, "DocIndex", "0")), std::vector<std::string>{"Media0"});
    xercesc::DOMElement *secondDocument = partition(dpp, "DocIndex", "1");
    EXPECT_EQ(mediaRefs(secondDocument), std::vector<std::string>{"Media0"});
    EXPECT_EQ(mediaRefs(partition(secondDocument, "DocRunIndex", "2 ~ 5")),
              std::vector<std::string>{"Media1"});
}

TEST(MediaWriter, AttributesAndSubElementsReadBackEqual) {
    TestTicket ticket;
    zundo_int_object_s *media = namedMedia("Letter");
    const std::vector<std::pair<const char *, int>> integers = {
        {"media-color", 49},         {"media-hole-count", 6},
        {"media-imagable-side", 2},  {"media-favorite", 0},
        {"media-read-only", 1},      {"media-feed-edge", 2},
        {"media-opacity", 3},        {"media-color-rendering-intent-line-art", 4},
        {"media-preprinted", 1},     {"media-set-count", 3},
        {"media-front-coatings", 9}, {"media-front-coating-detail", 2},
        {"media-unit-format", 3},    {"media-sensitive-edge", 0},
        {"media-override-snapshot", 1}, {"media-pmp-status", 3},
        {"media-engine-state", 7},
    };
    for (const auto &value : integers)
        ASSERT_EQ(setIntegerAttribute(media, value.first, value.second), ZUNDO_OK) << value.first;
    const std::vector<std::pair<const char *, double>> reals = {
        {"media-x-dimension", 612.0},          {"media-y-dimension", 792.0},
        {"media-x-dimension-in-units", 8.5},   {"media-weight", 80.25},
        {"media-thickness", 0.1},              {"media-recycled-percentage", 30.0},
        {"media-print-registration-tumble-back-x", -1.5},
        {"media-print-registration-tumble-back-y", 2.0},
        {"media-amount-used", 12.5},
    };
    for (const auto &value : reals)
        ASSERT_EQ(setDoubleAttribute(media, value.first, value.second), ZUNDO_OK) << value.first;
    const std::vector<std::pair<const char *, const char *>> texts = {
        {"media-input-tray-name", "Tray 2"}, {"media-comment", "office stock"},
        {"media-units", "mm"},               {"media-lab-color", "93 0 -2"},
        {"media-stock", "Bond"},             {"media-type-details", "morvellan:PlasticFolder"},
        {"media-id", "P-42"},                {"media-product-id", "X1"},
        {"media-calibration-type-name", "Daily"}, {"media-engine-moses-version", "2"},
    };
    for (const auto &value : texts)
        ASSERT_EQ(setStringAttribute(media, value.first, value.second), ZUNDO_OK) << value.first;
    setDateTime(media, "media-amount-used-time-stamp", "2021-04-05T06:07:08+02:00");
    setDateTime(media, "media-calibration-time-stamp", "2020-01-02T03:04:05+00:00");
    setBinary(media, "media-engine-moses", std::string("\x01\x02\x00\xff", 4));
    setBinary(media, "media-engine-adj-param-info", "adjust");
    ASSERT_EQ(setObjectAttribute(ticket.job, "job-media", media), ZUNDO_OK);
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);

    xercesc::DOMElement *element = written.resource("Media0");
    ASSERT_NE(element, nullptr);
    EXPECT_EQ(attribute(element, "HoleType"), "R6-generic");
    EXPECT_EQ(attribute(element, "MediaColorName"), "Red");
    EXPECT_EQ(attribute(element, "Dimension"), "612 792");
    EXPECT_EQ(attribute(element, "morvellan:DimensionInUnits"), "8.5 0");
    EXPECT_EQ(attribute(element, "MediaType"), "Transparency");
    EXPECT_EQ(attribute(element, "MediaTypeDetails"), "morvellan:PlasticFolder");
    EXPECT_EQ(attribute(element, "Locked"), "true");
    EXPECT_EQ(childElements(element, "HoleList").size(), 0u);
    EXPECT_EQ(childElements(element, "TabDimensions").size(), 0u);
    EXPECT_EQ(childElements(element, "Comment").size(), 5u);
    xercesc::DOMElement *audit = childWith(written.pool("AuditPool"), "ResourceAudit", "TimeStamp",
                                           "2021-04-05T06:07:08+02:00");
    ASSERT_NE(audit, nullptr);
    EXPECT_EQ(attribute(audit, "Reason"), "ProcessResult");
    EXPECT_EQ(attribute(childWith(audit, "MediaLink", "rRef", "Media0"), "ActualAmount"), "12.5");
    EXPECT_EQ(attribute(written.link("Media0"), "morvellan:AuditOnly"), "");

    ReadBackMedia readBack(written, "Media0");
    ASSERT_EQ(readBack.status, ZUNDO_OK);
    EXPECT_EQ(mediaEquals(media, readBack.media), 1);
}

TEST(MediaWriter, AuditMediaAreWrittenOnceWithTheirHoles) {
    TestTicket ticket;
    zundo_int_object_s *used = namedMedia("Used");
    ASSERT_EQ(setDoubleAttribute(used, "media-amount-used", 5.0), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(used, "media-x-dimension", 595.0), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(used, "media-hole-count", -2), ZUNDO_OK);
    zundo_int_object_s *punched = namedMedia("Punched");
    ASSERT_EQ(setDoubleAttribute(punched, "media-amount-used", 3.0), ZUNDO_OK);
    setDateTime(punched, "media-amount-used-time-stamp", "2022-02-03T04:05:06+00:00");
    zundo_int_object_s *hole = nullptr;
    ASSERT_EQ(newHole(&hole, 10.0, 20.0, 5.0, 5.0, 2), ZUNDO_OK);
    zundo_int_object_s *lineHole = nullptr;
    ASSERT_EQ(newHole(&lineHole, 1.0, 2.0, 3.0, 4.0, 3), ZUNDO_OK);
    zundo_int_object_s *line = nullptr;
    ASSERT_EQ(newHoleLine(&line, 2.5, lineHole), ZUNDO_OK);
    zundo_int_object_s *holes = nullptr;
    ASSERT_EQ(newHoleList(&holes), ZUNDO_OK);
    zundo_int_object_s *holeValues[] = {hole, nullptr};
    zundo_int_object_s *lineValues[] = {line, nullptr};
    ASSERT_EQ(setObjectsAttribute(holes, "hole-list-holes", holeValues), ZUNDO_OK);
    ASSERT_EQ(setObjectsAttribute(holes, "hole-list-hole-lines", lineValues), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(punched, "media-hole-list", holes), ZUNDO_OK);
    zundo_int_object_s *audited[] = {copyOf(used), punched, namedMedia("No amount"), nullptr};
    ASSERT_EQ(setObjectAttribute(ticket.job, "job-media", used), ZUNDO_OK);
    ASSERT_EQ(setObjectsAttribute(ticket.job, "job-audit-medias", audited), ZUNDO_OK);
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);

    xercesc::DOMElement *first = written.resource("Media0");
    EXPECT_EQ(attribute(first, "HoleType"), "");
    EXPECT_EQ(attribute(first, "Dimension"), "");
    EXPECT_EQ(attribute(written.link("Media0"), "morvellan:AuditOnly"), "");
    EXPECT_EQ(attribute(written.link("Media1"), "morvellan:AuditOnly"), "true");
    EXPECT_EQ(written.resource("Media2"), nullptr);
    EXPECT_EQ(childElements(written.pool("AuditPool"), "ResourceAudit").size(), 2u);

    std::vector<xercesc::DOMElement *> lists = childElements(written.resource("Media1"), "HoleList");
    ASSERT_EQ(lists.size(), 1u);
    xercesc::DOMElement *writtenHole = childElements(lists[0], "Hole").at(0);
    EXPECT_EQ(attribute(writtenHole, "Center"), "10 20");
    EXPECT_EQ(attribute(writtenHole, "Shape"), "Round");
    EXPECT_EQ(attribute(childElements(lists[0], "HoleLine").at(0), "Pitch"), "2.5");

    ReadBackMedia readBack(written, "Media1");
    ASSERT_EQ(readBack.status, ZUNDO_OK);
    EXPECT_EQ(mediaEquals(punched, readBack.media), 1);
    // The zero time of an audit without a time stamp is no time.
    ReadBackMedia usedBack(written, "Media0");
    zundo_int_attribute_s *stamp = get(usedBack.media, "media-amount-used-time-stamp");
    EXPECT_EQ(hasNextValue(stamp), 0);
    destroyAttribute(stamp);
}

// Through the public entry points: the job's media and a page range's
// come back from the written text.
TEST(MediaWriter, TicketRoundTripKeepsJobAndPageRangeMedia) {
    TestTicket ticket;
    zundo_int_object_s *plain = namedMedia("Plain");
    ASSERT_EQ(setIntegerAttribute(plain, "media-imagable-side", 3), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(plain, "media-input-tray-name", "Tray 1"), ZUNDO_OK);
    zundo_int_object_s *heavy = namedMedia("Heavy");
    ASSERT_EQ(setDoubleAttribute(heavy, "media-weight", 300.0), ZUNDO_OK);
    zundo_int_object_s *ranges[] = {pageRangeWith(1, 2, heavy), nullptr};
    ASSERT_EQ(setObjectAttribute(ticket.job, "job-media", plain), ZUNDO_OK);
    ASSERT_EQ(setObjectsAttribute(ticket.job, "job-page-ranges", ranges), ZUNDO_OK);
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);

    zundo_int_object_s *read = nullptr;
    ASSERT_EQ(newJobTicketInfoFromString(&read, written.text.c_str()).status, ZUNDO_OK);
    zundo_int_object_s *job = getJob(read);
    zundo_int_attribute_s *media = get(job, "job-media");
    ASSERT_TRUE(hasNextValue(media));
    EXPECT_EQ(mediaEquals(plain, static_cast<zundo_int_object_s *>(nextValue(media))), 1);
    destroyAttribute(media);
    zundo_int_attribute_s *readRanges = get(job, "job-page-ranges");
    ASSERT_TRUE(hasNextValue(readRanges));
    auto *range = static_cast<zundo_int_object_s *>(nextValue(readRanges));
    zundo_int_attribute_s *rangeMedia = get(range, "page-range-media");
    ASSERT_TRUE(hasNextValue(rangeMedia));
    EXPECT_EQ(mediaEquals(heavy, static_cast<zundo_int_object_s *>(nextValue(rangeMedia))), 1);
    destroyAttribute(rangeMedia);
    destroyAttribute(readRanges);
    destroy(read);
}

}  // namespace
