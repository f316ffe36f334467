// The rules job, document, print-parameter block and ticket apply before
// storing a value: refusals give 2, trace their message and change nothing.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "zundo.h"

namespace {

std::vector<std::string> *captured = nullptr;

enum Target { kJob, kDocument, kTicket };

struct Offer {
    Target target;
    const char *name;
    const char *kind;
    double number;       // for "I" and "D"
    const char *text;    // for "S"
    const char *message; // null: the value must be accepted
};

class JobValidation : public ::testing::Test {
protected:
    void SetUp() override {
        const char *previous = std::getenv("DEBUG_ZUNDO");
        if (previous != nullptr) previousDebug = previous;
        hadDebug = previous != nullptr;
        setenv("DEBUG_ZUNDO", "1", 1);
        captured = &messages;
        enableTraceCallback(1, [](const char *message) { captured->push_back(message); });
        zundo_int_object_s *document = nullptr;
        ASSERT_EQ(newDocument(&document, "a.pdf"), ZUNDO_OK);
        zundo_int_object_s *job = nullptr;
        ASSERT_EQ(newJob(&job, document), ZUNDO_OK);
        ASSERT_EQ(newJobTicketInfoFromJob(&ticket, job), ZUNDO_OK);
        objects[kJob] = job;
        objects[kDocument] = document;
        objects[kTicket] = ticket;
    }
    void TearDown() override {
        destroy(ticket);
        disableTraceCallback();
        captured = nullptr;
        if (hadDebug) setenv("DEBUG_ZUNDO", previousDebug.c_str(), 1);
        else unsetenv("DEBUG_ZUNDO");
    }

    // A refused offer must leave the attribute exactly as it was.
    void check(const Offer &offer) {
        zundo_int_object_s *object = objects[offer.target];
        int integer = static_cast<int>(offer.number);
        const void *value = kindIs(offer.kind, "I") ? static_cast<const void *>(&integer)
                            : kindIs(offer.kind, "D") ? static_cast<const void *>(&offer.number)
                                                      : offer.text;
        zundo_int_attribute_s *before = get(object, offer.name);
        zundo_int_attribute_s *attribute = nullptr;
        ASSERT_EQ(newAttribute(&attribute, offer.name, offer.kind, value), ZUNDO_OK);
        messages.clear();
        zundo_status_t status = set(object, attribute);
        destroyAttribute(attribute);
        zundo_int_attribute_s *after = get(object, offer.name);
        if (offer.message == nullptr) {
            EXPECT_EQ(status, ZUNDO_OK) << offer.name << " " << ::testing::PrintToString(messages);
        } else {
            EXPECT_EQ(status, ZUNDO_INVALID_ARGUMENT) << offer.name;
            EXPECT_NE(std::find(messages.begin(), messages.end(), offer.message), messages.end())
                << offer.name << ": " << ::testing::PrintToString(messages);
            EXPECT_EQ(attributesEqual(before, after), 1) << offer.name;
        }
        destroyAttribute(before);
        destroyAttribute(after);
    }
    static bool kindIs(const char *kind, const char *code) { return std::string(kind) == code; }

    std::vector<std::string> messages;
    bool hadDebug = false;
    std::string previousDebug;
    zundo_int_object_s *ticket = nullptr;
    zundo_int_object_s *objects[3] = {};
};

}  // namespace

TEST_F(JobValidation, OffersAreCheckedByTheirOwnersRules) {
    const Offer offers[] = {
        {kJob, "job-priority", "I", 100, nullptr, nullptr},
        {kJob, "job-priority", "I", 101, nullptr,
         "Attempted to set job-priority to 101, must be an integer 0-100, inclusive.\n"},
        {kJob, "job-toner-limit", "I", 12, nullptr,
         "Attempted to set job-toner-limit to 12, must be set to a positive value between 0 and "
         "11.\n"},
        {kJob, "job-black-substitution-cyan", "I", 51, nullptr,
         "Attempted to set job-black-substitution-cyan to 51, must be set to a value between 1 "
         "and 50.\n"},
        {kJob, "job-copies", "I", -2, nullptr,
         "Attempted to set job-copies to -2, must be greater than 0 or 0 to unset the "
         "attribute.\n"},
        {kJob, "job-black-overprint-text-threshold", "I", -3, nullptr,
         "Attempted to set job-black-overprint-text-threshold to -3, must be greater than or equal "
         "to 0, or -1 to unset the attribute.\n"},
        {kJob, "job-hold", "I", 2, nullptr,
         "Attempted to set boolean attribute job-hold to 2, must be true, false, or not_set.\n"},
        {kJob, "job-convert-cmy-gray-to-black-threshold", "D", 1.5, nullptr,
         "Attempted to set job-convert-cmy-gray-to-black-threshold to 1.500000e+00, must be a "
         "double between 0 and 1, inclusive, or -1 to unset the attribute.\n"},
        {kJob, "job-copies-actual", "D", -0.5, nullptr,
         "Attempted to set job-copies-actual to -5.000000e-01, must be greater than or equal to 0, "
         "or -1 to unset the attribute.\n"},
        {kJob, "job-destination-controller-installed-memory", "D", -7, nullptr,
         "Attempted to set job-destination-controller-installed-memory to -7, must be greater "
         "than 0 or 0 for not set.\n"},
        {kJob, "job-anti-aliasing", "S", 0, " \t ",
         "Attempted to set job-anti-aliasing to empty string or a string that contains only "
         "spaces.\n"},
        {kJob, "job-anti-aliasing", "S", 0, "a b",
         "Attempted to set job-anti-aliasing to a b, Spaces are not allowed.\n"},
        {kJob, "job-form-definition", "S", 0, "123456789",
         "Attempted to set job-form-definition to 123456789, value must be 8 or fewer "
         "characters.\n"},
        {kJob, "job-authentication-password", "S", 0, "",
         "Attempted to set job-authentication-password to an empty string."},
        // The block's rules name the attribute as the caller did.
        {kJob, "job-number-up-x", "I", -1, nullptr,
         "Attempted to set job-number-up-x to -1. Must be a value greater than 0.\n"},
        {kDocument, "document-number-up-scb-lower-left-y", "D", -0.5, nullptr,
         "Attempted to set document-number-up-scb-lower-left-y to -0.500000. Must be a value "
         "greater than or equal to 0.\n"},
        {kDocument, "document-output-bin-name", "S", 0, "  ",
         "Attempted to set document-output-bin-name to empty string or a string that contains "
         "only spaces.\n"},
        {kJob, "job-number-up-distribution", "S", 0, "",
         "Attempted to set job-number-up-distribution to , Spaces are not allowed.\n"},
        {kDocument, "document-checksum", "S", 0, "0123456789abcdef0123456789ABCDEF", nullptr},
        {kDocument, "document-checksum", "S", 0, "0123",
         "Attempted to set document-checksum to 0123, must be \t\t\t\t\t\t\texactly 32 "
         "characters.\n"},
        {kDocument, "document-checksum", "S", 0, "0123456789abcdef0123456789ABCDEG",
         "Attempted to set document-checksum to 0123456789abcdef0123456789ABCDEG, must contain "
         "\t\t\t\t\t\t\tonly hex characters.\n"},
        {kDocument, "document-format", "S", 0, " ",
         "Attempted to set document-format to empty string or a string that contains only "
         "spaces.\n"},
        {kTicket, "jt-type", "S", 0, " ",
         "Attempted to set jt-type to empty string or a string that contains only spaces.\n"},
        {kTicket, "jt-jdf-node-id", "S", 0, nullptr, "jt-jdf-node-id cannot be NULL\n"},
    };
    for (const Offer &offer : offers) check(offer);
}

TEST_F(JobValidation, NotSetValuesAreAlwaysAccepted) {
    const Offer offers[] = {
        {kJob, "job-black-substitution-cyan", "I", 7, nullptr, nullptr},
        {kJob, "job-black-substitution-cyan", "I", 0, nullptr, nullptr},  // outside 1-50
        {kJob, "job-priority", "I", 0, nullptr, nullptr},
        {kJob, "job-copies-actual", "D", -1, nullptr, nullptr},
        {kJob, "job-number-up-scb-upper-right-y", "D", -1, nullptr, nullptr},
        {kDocument, "document-number-up-copies", "I", -1, nullptr, nullptr},
    };
    for (const Offer &offer : offers) check(offer);
}

TEST_F(JobValidation, EveryValueOfATextListIsChecked) {
    zundo_int_attribute_s *functions = nullptr;
    ASSERT_EQ(newAttribute(&functions, "job-destination-controller-available-functions",
                           ZUNDO_KIND_STRING, "Print"),
              ZUNDO_OK);
    ASSERT_EQ(addValue(functions, "Hole Punch"), ZUNDO_OK);
    EXPECT_EQ(set(objects[kJob], functions), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(messages.back(), "Attempted to set job-destination-controller-available-functions "
                               "to Hole Punch, Spaces are not allowed.\n");
    destroyAttribute(functions);
}

TEST_F(JobValidation, TicketNodeIdAndFixedVersions) {
    const char *shape =
        "jt-jdf-node-id must be a string that contains no space or colon (':') characters and "
        "\t\t\t\t\t\t\tstarts with a letter, or underscore ('_').\n";
    for (const char *good : {"_a1", "Abc"})
        check({kTicket, "jt-jdf-node-id", "S", 0, good, nullptr});
    for (const char *bad : {"1abc", "a b", "a:b", ""})
        check({kTicket, "jt-jdf-node-id", "S", 0, bad, shape});
    EXPECT_EQ(setStringAttribute(ticket, "jt-syntax-version", "2.0"), ZUNDO_NOT_FOUND);
    EXPECT_EQ(setStringAttribute(ticket, "jt-api-version", "2.0"), ZUNDO_NOT_FOUND);
}

TEST_F(JobValidation, NodeIdListWithANullValueIsRefused) {
    zundo_int_attribute_s *ids = nullptr;
    ASSERT_EQ(newAttribute(&ids, "jt-jdf-node-id", ZUNDO_KIND_STRING, "n1"), ZUNDO_OK);
    ASSERT_EQ(addValue(ids, nullptr), ZUNDO_OK);
    EXPECT_EQ(set(ticket, ids), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(messages.back(), "jt-jdf-node-id cannot be NULL\n");
    destroyAttribute(ids);
}
