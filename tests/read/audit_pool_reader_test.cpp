// Audits, customer information and usage counters written by other
// software, read into the job.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "read_test_support.h"

namespace {

zundo_modified_s *modificationAt(zundo_int_object_s *job, int index) {
    zundo_int_attribute_s *list = get(job, "job-modifications");
    zundo_modified_s *found = nullptr;
    for (int i = 0; hasNextValue(list); ++i) {
        auto *modified = static_cast<zundo_modified_s *>(nextValue(list));
        if (i == index) found = modified;
    }
    destroyAttribute(list);
    return found;
}

zundo_int_object_s *objectAt(zundo_int_object_s *object, const char *name, int index) {
    zundo_int_attribute_s *list = get(object, name);
    zundo_int_object_s *found = nullptr;
    for (int i = 0; hasNextValue(list); ++i) {
        auto *value = static_cast<zundo_int_object_s *>(nextValue(list));
        if (i == index) found = value;
    }
    destroyAttribute(list);
    return found;
}

TEST(AuditPoolReader, FirstCreatedWinsAndEmployeeOverridesAuthor) {
    ReadTicket read(jdfTicket(
        "<AuditPool>"
        "<Created Author=\"anna\" AgentName=\"editor\" TimeStamp=\"2009-03-01T08:00:00Z\">"
        "<Employee PersonalID=\"ben\"/></Created>"
        "<Created Author=\"carl\" AgentVersion=\"9\"/>"
        "</AuditPool>"));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    EXPECT_EQ("ben", textOf(read.job(), "job-created-by"));
    EXPECT_EQ("2009-03-01T08:00:00Z", dateTimeOf(read.job(), "job-create-date-time"));
    EXPECT_EQ("editor", textOf(read.ticket, "jt-project-id"));
    EXPECT_EQ("-", textOf(read.ticket, "jt-project-version"));
}

TEST(AuditPoolReader, ModificationXPathsNameAttributesAndValues) {
    ReadTicket read(jdfTicket(
        "<AuditPool>"
        "<Modified Author=\"anna\" "
        "XPath=\"ResourcePool/LayoutPreparationParams/@Sides=&quot;TwoSidedFlipY&quot;\"/>"
        "<Deleted XPath='Comment/@Name=\"Description\"=\"old text\"'>"
        "<Employee PersonalID=\"ben\"/></Deleted>"
        "<Modified XPath=\"ResourcePool/Media/@Dimension\"/>"
        "<Modified XPath=\"ResourcePool/Nothing/@Here=&quot;1&quot;\"/>"
        "</AuditPool>"));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    zundo_modified_s *sides = modificationAt(read.job(), 0);
    ASSERT_NE(nullptr, sides);
    EXPECT_EQ(3, getModifiedType(sides));
    EXPECT_STREQ("anna", getModifiedBy(sides));
    EXPECT_STREQ("job-sides", getName(getModifiedAttribute(sides)));
    EXPECT_EQ(5, *static_cast<int *>(nextValue(getModifiedAttribute(sides))));

    zundo_modified_s *comment = modificationAt(read.job(), 1);
    ASSERT_NE(nullptr, comment);
    EXPECT_EQ(2, getModifiedType(comment));
    EXPECT_STREQ("ben", getModifiedBy(comment));
    EXPECT_STREQ("job-comment", getName(getModifiedAttribute(comment)));
    EXPECT_STREQ("old text", static_cast<char *>(nextValue(getModifiedAttribute(comment))));

    // Two attributes share the Dimension path; the x dimension is named.
    zundo_modified_s *dimension = modificationAt(read.job(), 2);
    ASSERT_NE(nullptr, dimension);
    EXPECT_STREQ("media-x-dimension", getName(getModifiedAttribute(dimension)));
    EXPECT_EQ(nullptr, getModifiedAttribute(modificationAt(read.job(), 3)));
}

TEST(AuditPoolReader, CustomerMessagesKeepOnlyAddresseesOfTheDeliveryChannel) {
    ReadTicket read(jdfTicket(pools(
        "<CustomerInfo ID=\"CI0\" CustomerJobName=\"report\" BillingCode=\"B7\">"
        "<Contact ContactTypes=\"Customer Unknown\"><Company OrganizationName=\"ACME\"/></Contact>"
        "<CustomerMessage MessageEvents=\"JobDone  JobHeld\">"
        "<ComChannel ChannelType=\"Email\" Locator=\"mailto:anna@example.org\"/>"
        "<ComChannel Locator=\"ben@example.org\"/>"
        "<ComChannel ChannelType=\"Phone\" Locator=\"555\"/>"
        "<Comment Name=\"UserText\" Language=\"en\">hello</Comment>"
        "</CustomerMessage></CustomerInfo>")));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    EXPECT_EQ("report", textOf(read.job(), "job-name"));
    EXPECT_EQ("B7", textOf(read.job(), "job-billing-code"));
    zundo_int_object_s *notification = objectAt(read.job(), "job-notifications", 0);
    ASSERT_NE(nullptr, notification);
    EXPECT_EQ(1, intOf(notification, "notification-delivery-type"));
    // The channel type carries over to the ComChannel without one.
    EXPECT_EQ((std::vector<std::string>{"anna@example.org", "ben@example.org"}),
              textsOf(notification, "notification-send-to"));
    EXPECT_EQ((std::vector<std::string>{"JobDone", "JobHeld"}),
              textsOf(notification, "notification-events"));
    EXPECT_EQ("hello", textOf(notification, "notification-comment"));
    EXPECT_EQ("en", textOf(notification, "notification-language"));
    zundo_int_object_s *contact = objectAt(read.job(), "job-contact-info", 0);
    ASSERT_NE(nullptr, contact);
    EXPECT_EQ("ACME", textOf(contact, "contact-info-company"));
    EXPECT_EQ(1, intOf(contact, "contact-info-types"));
}

TEST(AuditPoolReader, IncompleteAuditsAreSkipped) {
    std::string resources =
        pools("<UsageCounter ID=\"UC0\" CounterID=\"c\" "
              "CounterTypes=\"Impressions,Color TwoSided\"/>",
              "<UsageCounterLink rRef=\"UC0\" Usage=\"Input\" ActualAmount=\"12\"/>");
    ReadTicket read(jdfTicket(
        resources +
        "<AuditPool>"
        "<PhaseTime Start=\"2009-03-07T10:00:00Z\" TimeStamp=\"2009-03-07T11:00:00Z\">"
        "<ModulePhase ModuleType=\"RIP\"/></PhaseTime>"
        "<PhaseTime Start=\"2009-03-07T10:00:00Z\" TimeStamp=\"2009-03-07T11:00:00Z\">"
        "<ModulePhase DeviceID=\"rip\" ModuleType=\"RIP\"/></PhaseTime>"
        "<Notification Class=\"Gossip\" TimeStamp=\"2009-03-07T11:00:00Z\"/>"
        "<Notification Class=\"Event\"/>"
        "<ResourceAudit Reason=\"ProcessResult\" TimeStamp=\"2009-03-07T12:00:00Z\">"
        "<UsageCounterLink rRef=\"UC0\"/></ResourceAudit>"
        "</AuditPool>"));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    zundo_int_object_s *phase = objectAt(read.job(), "job-phase-times", 0);
    ASSERT_NE(nullptr, phase);
    EXPECT_EQ("rip", textOf(phase, "phase-time-device-id"));
    EXPECT_EQ(2, intOf(phase, "phase-time-type"));
    EXPECT_EQ(nullptr, objectAt(read.job(), "job-phase-times", 1));
    EXPECT_EQ(nullptr, objectAt(read.job(), "job-notification-audits", 0));

    zundo_int_object_s *counter = objectAt(read.job(), "job-usage-counters", 0);
    ASSERT_NE(nullptr, counter);
    EXPECT_EQ(2, intOf(counter, "usage-counter-unit"));
    EXPECT_EQ(3, intOf(counter, "usage-counter-colorants"));
    EXPECT_EQ(4, intOf(counter, "usage-counter-media-sides"));
    EXPECT_EQ(12.0, doubleOf(counter, "usage-counter-actual-amount"));
    EXPECT_EQ(1, intOf(counter, "usage-counter-reason"));
    EXPECT_EQ("2009-03-07T12:00:00Z", dateTimeOf(counter, "usage-counter-time-stamp"));
}

}  // namespace
