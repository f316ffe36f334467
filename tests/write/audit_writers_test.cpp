// The JDF the history, consumption, customer and node writers produce:
// the shapes readers of other software rely on, and the AuditPool order.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "read/audit_pool_reader.h"
#include "support/ticket_builders.h"
#include "write_test_support.h"

namespace {

TEST(AuditWriters, HoldStateDecidesActivationAndDetails) {
    struct Case {
        int hold;  // -1: not set
        int action;
        const char *activation;
        const char *details;
    } cases[] = {
        {-1, 0, "Informative", ""},        {1, 0, "Held", ""},
        {1, 2, "Held", "HoldForeverBeforePrint"}, {0, 4, "Active", "PrintAndHoldForever"},
        {1, 3, "Informative", "PrintAndHold"},    {0, 1, "Informative", "HoldBeforePrint"},
        {-1, 3, "Informative", ""},
    };
    for (const Case &c : cases) {
        TestTicket ticket;
        if (c.hold != -1) {
            ASSERT_EQ(ZUNDO_OK, setIntegerAttribute(ticket.job, "job-hold", c.hold));
        }
        if (c.action != 0) {
            ASSERT_EQ(ZUNDO_OK, setIntegerAttribute(ticket.job, "job-hold-action", c.action));
        }
        WrittenTicket written(ticket.ticket);
        EXPECT_EQ(c.activation, attribute(written.root(), "Activation"))
            << c.hold << "/" << c.action;
        EXPECT_EQ(c.details, attribute(written.root(), "morvellan:ActivationDetails"))
            << c.hold << "/" << c.action;
    }
}

TEST(AuditWriters, CommentsChannelsAndCounterTypes) {
    TestTicket ticket;
    const char *comments[] = {"one", "two", nullptr};
    ASSERT_EQ(ZUNDO_OK, setStringsAttribute(ticket.job, "job-comments", comments));
    const char *events[] = {"JobDone", nullptr};
    const char *sendTo[] = {"anna@example.org", nullptr};
    for (int delivery : {1, 2}) {
        zundo_int_object_s *notification = nullptr;
        ASSERT_EQ(ZUNDO_OK, newNotification(&notification, sendTo, events, delivery));
        addObject(ticket.job, "job-notifications", notification);
    }
    zundo_int_object_s *counter = nullptr;
    ASSERT_EQ(ZUNDO_OK, newUsageCounter(&counter));
    ASSERT_EQ(ZUNDO_OK, setIntegerAttribute(counter, "usage-counter-unit", 1));
    ASSERT_EQ(ZUNDO_OK, setDoubleAttribute(counter, "usage-counter-actual-amount", 7.25));
    zundo_int_attribute_s *colorants = get(counter, "usage-counter-colorants");
    int black = 1;
    ASSERT_EQ(ZUNDO_OK, addValue(colorants, &black));
    ASSERT_EQ(ZUNDO_OK, set(counter, colorants));
    destroyAttribute(colorants);
    addObject(ticket.job, "job-usage-counters", counter);

    WrittenTicket written(ticket.ticket);
    EXPECT_NE(nullptr, childWith(written.root(), "Comment", "ID", "CM0"));
    EXPECT_EQ("two", utf8(childWith(written.root(), "Comment", "ID", "CM1")->getTextContent()));

    std::vector<xercesc::DOMElement *> messages =
        childElements(written.resource("CI0"), "CustomerMessage");
    ASSERT_EQ(2u, messages.size());
    xercesc::DOMElement *mail = childElements(messages[0], "ComChannel").at(0);
    EXPECT_EQ("Email", attribute(mail, "ChannelType"));
    EXPECT_EQ("mailto:anna@example.org", attribute(mail, "Locator"));
    xercesc::DOMElement *plain = childElements(messages[1], "ComChannel").at(0);
    EXPECT_EQ("anna@example.org", attribute(plain, "Locator"));

    xercesc::DOMElement *usage = written.resource("UC0");
    ASSERT_NE(nullptr, usage);
    EXPECT_EQ("Clicks Black ", attribute(usage, "CounterTypes"));
    EXPECT_EQ("Job", attribute(usage, "Scope"));
    xercesc::DOMElement *audit = childElements(written.pool("AuditPool"), "ResourceAudit").at(0);
    EXPECT_EQ("7.25", attribute(childElements(audit, "UsageCounterLink").at(0), "ActualAmount"));
    EXPECT_EQ("0000-00-00T00:00:00+00:00", attribute(audit, "TimeStamp"));
}

TEST(AuditWriters, AuditPoolIsInTimeOrderWithProcessRunsLast) {
    TestTicket ticket;
    zundo_int_object_s *run = nullptr, *bareRun = nullptr, *notice = nullptr, *phase = nullptr;
    ASSERT_EQ(ZUNDO_OK, newProcessRun(&run, nullptr, 2, nullptr, at("2009-03-07T12:00:00Z")));
    addObject(ticket.job, "job-process-runs", run);
    ASSERT_EQ(ZUNDO_OK, newProcessRun(&bareRun, nullptr, 1, nullptr, nullptr));
    addObject(ticket.job, "job-process-runs", bareRun);
    // The same instant as the process run, in another zone.
    ASSERT_EQ(ZUNDO_OK, newNotificationAudit(&notice, 5, at("2009-03-07T13:00:00+01:00")));
    addObject(ticket.job, "job-notification-audits", notice);
    ASSERT_EQ(ZUNDO_OK, newPhaseTime(&phase, 2, "rip-1", at("2009-03-07T10:00:00Z"),
                                     at("2009-03-07T11:00:00Z")));
    addObject(ticket.job, "job-phase-times", phase);

    WrittenTicket written(ticket.ticket);
    std::vector<std::string> order;
    for (xercesc::DOMElement *audit : childElements(written.pool("AuditPool")))
        order.push_back(tagName(audit) + " " + attribute(audit, "TimeStamp"));
    EXPECT_EQ((std::vector<std::string>{"ProcessRun 0000-00-00T00:00:00+00:00",
                                        "PhaseTime 2009-03-07T11:00:00Z",
                                        "Notification 2009-03-07T13:00:00+01:00",
                                        "ProcessRun 2009-03-07T12:00:00Z"}),
              order);
    xercesc::DOMElement *module =
        childElements(childElements(written.pool("AuditPool"), "PhaseTime").at(0), "ModulePhase")
            .at(0);
    EXPECT_EQ("RIP", attribute(module, "ModuleType"));
    EXPECT_EQ("3", attribute(module, "CombinedProcessIndex"));  // Rendering
}

TEST(AuditWriters, InkUsagesReadBackFromTheInkResource) {
    TestTicket ticket;
    ASSERT_EQ(ZUNDO_OK, setIntegerAttribute(ticket.job, "job-ink-usages-units", 2));
    ASSERT_EQ(ZUNDO_OK, setDateTimeAttribute(ticket.job, "job-ink-usages-time-stamp",
                                             at("2009-03-07T18:00:00Z")));
    for (int name : {1, 6}) {
        zundo_int_object_s *usage = nullptr;
        ASSERT_EQ(ZUNDO_OK, newInkUsage(&usage, name));
        ASSERT_EQ(ZUNDO_OK, setDoubleAttribute(usage, "ink-usage-amount", name * 0.5));
        addObject(ticket.job, "job-ink-usages", usage);
    }
    WrittenTicket written(ticket.ticket);
    ASSERT_NE(nullptr, written.resource("I0"));
    EXPECT_EQ("liter", attribute(written.resource("I0"), "Unit"));

    TestTicket copy;
    readInkUsages(written.resource("I0"), copy.job);
    for (const char *name :
         {"job-ink-usages", "job-ink-usages-units", "job-ink-usages-time-stamp"}) {
        zundo_int_attribute_s *a = get(ticket.job, name);
        zundo_int_attribute_s *b = get(copy.job, name);
        EXPECT_EQ(1, attributesEqual(a, b)) << name << "\n" << written.text;
        destroyAttribute(a);
        destroyAttribute(b);
    }
}

}  // namespace
