// A ticket written with writeJobTicketString and read back with
// newJobTicketInfoFromString keeps the job-level and "jt-" attributes that
// the JDF node itself carries.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/ticket_builders.h"
#include "zundo.h"

namespace {

std::string write(zundo_int_object_s *ticket) {
    char *text = nullptr;
    EXPECT_EQ(ZUNDO_OK, writeJobTicketString(ticket, &text));
    std::string written = text != nullptr ? text : "";
    releaseJobTicketString(text);
    return written;
}

TicketPtr read(const std::string &text) {
    zundo_int_object_s *ticket = nullptr;
    zundo_result_t result = newJobTicketInfoFromString(&ticket, text.c_str());
    EXPECT_EQ(ZUNDO_OK, result.status) << "line " << result.line << ", column " << result.column;
    return TicketPtr(ticket);
}

// Every named attribute compares equal between the two objects.
void expectSameAttributes(zundo_int_object_s *original, zundo_int_object_s *copy,
                          const std::vector<const char *> &names) {
    for (const char *name : names) {
        zundo_int_attribute_s *a = get(original, name);
        zundo_int_attribute_s *b = get(copy, name);
        EXPECT_EQ(1, attributesEqual(a, b)) << name;
        destroyAttribute(a);
        destroyAttribute(b);
    }
}

TEST(TicketRoundTrip, NodeAttributesSurviveWriteAndRead) {
    TicketPtr original = newTicket();
    zundo_int_object_s *job = getJob(original.get());
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(original.get(), "jt-jdf-node-id", "node-7"));
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(original.get(), "jt-version", "2.1"));
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(job, "job-id", "order 4711"));
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(job, "job-jdf-node-name", "Annual report <final> & co"));
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(job, "job-internal-id", "part-3"));
    ASSERT_EQ(ZUNDO_OK, setIntegerAttribute(job, "job-jdf-node-status", 3));

    std::string text = write(original.get());
    TicketPtr copy = read(text);
    ASSERT_NE(nullptr, copy) << text;
    expectSameAttributes(original.get(), copy.get(),
                         {"jt-jdf-node-id", "jt-version", "jt-syntax-version", "jt-charset"});
    expectSameAttributes(job, getJob(copy.get()),
                         {"job-id", "job-jdf-node-name", "job-internal-id", "job-jdf-node-status"});
}

TEST(TicketRoundTrip, EveryNodeStatusComesBack) {
    // Without a status the root says "Ready", so only set statuses come back.
    for (int status = 1; status <= 7; status++) {
        TicketPtr original = newTicket();
        zundo_int_object_s *job = getJob(original.get());
        ASSERT_EQ(ZUNDO_OK, setIntegerAttribute(job, "job-jdf-node-status", status));
        TicketPtr copy = read(write(original.get()));
        ASSERT_NE(nullptr, copy);
        expectSameAttributes(job, getJob(copy.get()), {"job-jdf-node-status"});
    }
}

TEST(TicketRoundTrip, ControlCharactersTravelEncoded) {
    setControlCharacterEncoding(1);
    setControlCharacterDecoding(1);
    TicketPtr original = newTicket();
    zundo_int_object_s *job = getJob(original.get());
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(job, "job-jdf-node-name", "bell\x07 and escape\x1b"));
    std::string text = write(original.get());
    EXPECT_NE(std::string::npos, text.find("bell&amp;#x07; and escape&amp;#x1B;")) << text;
    TicketPtr copy = read(text);
    setControlCharacterEncoding(0);
    setControlCharacterDecoding(0);
    ASSERT_NE(nullptr, copy);
    expectSameAttributes(job, getJob(copy.get()), {"job-jdf-node-name"});
}

}  // namespace
