// Helpers shared by the writer tests: tickets that free themselves, the
// written text parsed back, and element lookups by name and attribute.
#ifndef ZUNDO_TESTS_WRITE_WRITE_TEST_SUPPORT_H
#define ZUNDO_TESTS_WRITE_WRITE_TEST_SUPPORT_H

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "write/jdf_root.h"
#include "write/write_driver.h"
#include "xml/jdf_test_support.h"
#include "zundo.h"

// A ticket over a job with one document, destroyed on scope exit.
struct TestTicket {
    TestTicket() {
        zundo_int_object_s *document = nullptr;
        EXPECT_EQ(newDocument(&document, "a.pdf"), ZUNDO_OK);
        EXPECT_EQ(newJob(&job, document), ZUNDO_OK);
        EXPECT_EQ(newJobTicketInfoFromJob(&ticket, job), ZUNDO_OK);
    }
    ~TestTicket() { destroy(ticket); }
    TestTicket(const TestTicket &) = delete;

    zundo_int_object_s *job = nullptr;
    zundo_int_object_s *ticket = nullptr;
};

// A context with its document and root made from the ticket, as the driver
// has it when the attribute writers run.
struct WriterHarness {
    explicit WriterHarness(TestTicket &ticket) {
        EXPECT_EQ(createJDFDocument(&ctx, "UTF-8"), ZUNDO_OK);
        EXPECT_EQ(writeJDFNode(&ctx, ticket.ticket, ticket.job), ZUNDO_OK);
    }
    ~WriterHarness() {
        releaseWriterContext(&ctx);
        releaseDOMDocument(ctx.document);
    }
    WriterHarness(const WriterHarness &) = delete;

    JDFWriteContext ctx = {};
};

inline std::vector<xercesc::DOMElement *> childElements(const xercesc::DOMElement *parent,
                                                        const std::string &tag = "") {
    std::vector<xercesc::DOMElement *> children;
    for (xercesc::DOMElement *child = parent != nullptr ? parent->getFirstElementChild() : nullptr;
         child != nullptr; child = child->getNextElementSibling())
        if (tag.empty() || tagName(child) == tag) children.push_back(child);
    return children;
}

inline std::vector<std::string> childNames(const xercesc::DOMElement *parent) {
    std::vector<std::string> names;
    for (xercesc::DOMElement *child : childElements(parent)) names.push_back(tagName(child));
    return names;
}

// The first child of that tag whose attribute has the value, or null.
inline xercesc::DOMElement *childWith(const xercesc::DOMElement *parent, const std::string &tag,
                                      const char *name, const std::string &value) {
    for (xercesc::DOMElement *child : childElements(parent, tag))
        if (attribute(child, name) == value) return child;
    return nullptr;
}

// A ticket written to text and parsed back.
struct WrittenTicket {
    explicit WrittenTicket(zundo_int_object_s *ticket) {
        char *out = nullptr;
        status = writeJobTicketString(ticket, &out);
        text = out != nullptr ? out : "";
        releaseJobTicketString(out);
        if (status == ZUNDO_OK) parsed.reset(new ParsedTicket(text));
    }
    xercesc::DOMElement *root() const { return parsed != nullptr ? parsed->root() : nullptr; }
    xercesc::DOMElement *pool(const std::string &name) const {
        std::vector<xercesc::DOMElement *> pools = childElements(root(), name);
        return pools.empty() ? nullptr : pools.front();
    }
    xercesc::DOMElement *resource(const std::string &id) const {
        for (xercesc::DOMElement *child : childElements(pool("ResourcePool")))
            if (attribute(child, "ID") == id) return child;
        return nullptr;
    }
    xercesc::DOMElement *link(const std::string &id) const {
        for (xercesc::DOMElement *child : childElements(pool("ResourceLinkPool")))
            if (attribute(child, "rRef") == id) return child;
        return nullptr;
    }
    std::string types() const { return attribute(root(), "Types"); }

    zundo_status_t status;
    std::string text;
    std::unique_ptr<ParsedTicket> parsed;
};

#endif
