// The job's history, consumption, customer and node information written
// with writeJobTicketString come back equal from newJobTicketInfoFromString.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "support/ticket_builders.h"
#include "zundo.h"

namespace {

// The ticket written and read back; the written text for messages.
TicketPtr writeAndRead(zundo_int_object_s *ticket, std::string *text) {
    char *out = nullptr;
    EXPECT_EQ(ZUNDO_OK, writeJobTicketString(ticket, &out));
    *text = out != nullptr ? out : "";
    releaseJobTicketString(out);
    zundo_int_object_s *copy = nullptr;
    EXPECT_EQ(ZUNDO_OK, newJobTicketInfoFromString(&copy, text->c_str()).status);
    return TicketPtr(copy);
}

void expectSameAttributes(zundo_int_object_s *original, zundo_int_object_s *copy,
                          const std::vector<const char *> &names, const std::string &text) {
    for (const char *name : names) {
        zundo_int_attribute_s *a = get(original, name);
        zundo_int_attribute_s *b = get(copy, name);
        EXPECT_EQ(1, attributesEqual(a, b)) << name << "\n" << text;
        destroyAttribute(a);
        destroyAttribute(b);
    }
}

TEST(AuditRoundTrip, CustomerAndNodeInformationComeBack) {
    TicketPtr original = newTicket();
    zundo_int_object_s *job = getJob(original.get());
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(job, "job-name", "Annual report"));
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(job, "job-billing-code", "ACC-7"));
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(job, "job-banner-page-text", "For Anna"));
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(job, "job-comment", "first"));
    const char *comments[] = {"second", "third", nullptr};
    ASSERT_EQ(ZUNDO_OK, setStringsAttribute(job, "job-comments", comments));
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(job, "job-processing-information", "staple later"));
    ASSERT_EQ(ZUNDO_OK, setIntegerAttribute(job, "job-priority", 42));
    ASSERT_EQ(ZUNDO_OK, setDateTimeAttribute(job, "job-print-after-time",
                                             at("2009-03-07T14:05:00+01:00")));
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(job, "job-authentication-password", "secret"));
    ASSERT_EQ(ZUNDO_OK, setIntegerAttribute(job, "job-hold", 1));
    ASSERT_EQ(ZUNDO_OK, setIntegerAttribute(job, "job-hold-action", 2));

    zundo_int_object_s *contact = nullptr;
    ASSERT_EQ(ZUNDO_OK, newContactInfo(&contact));
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(contact, "contact-info-company", "Morvellan"));
    ASSERT_EQ(ZUNDO_OK, setObjectAttribute(job, "job-contact-info", contact));

    // E-mail with two addressees and a comment; a second one without delivery.
    const char *sendTo[] = {"anna@example.org", "ben@example.org", nullptr};
    const char *events[] = {"JobCompleted", "JobHeld", nullptr};
    zundo_int_object_s *mail = nullptr;
    ASSERT_EQ(ZUNDO_OK, newNotification(&mail, sendTo, events, 1));
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(mail, "notification-comment", "ready <soon>"));
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(mail, "notification-language", "en"));
    addObject(job, "job-notifications", mail);
    zundo_int_object_s *quiet = nullptr;
    ASSERT_EQ(ZUNDO_OK, newNotification(&quiet, nullptr, events + 1, 0));
    addObject(job, "job-notifications", quiet);

    std::string text;
    TicketPtr copy = writeAndRead(original.get(), &text);
    ASSERT_NE(nullptr, copy);
    expectSameAttributes(job, getJob(copy.get()),
                         {"job-name", "job-billing-code", "job-banner-page-text", "job-comment",
                          "job-comments", "job-processing-information", "job-priority",
                          "job-print-after-time", "job-print-before-time",
                          "job-authentication-login-name", "job-authentication-password",
                          "job-hold", "job-hold-action", "job-contact-info", "job-notifications"},
                         text);
}

TEST(AuditRoundTrip, AuditsComeBackWhateverTheirTimes) {
    TicketPtr original = newTicket();
    zundo_int_object_s *job = getJob(original.get());

    // Without times the writer stamps the zero time, which reads as none.
    zundo_int_object_s *bareRun = nullptr, *run = nullptr;
    ASSERT_EQ(ZUNDO_OK, newProcessRun(&bareRun, nullptr, 3, nullptr, nullptr));
    addObject(job, "job-process-runs", bareRun);
    ASSERT_EQ(ZUNDO_OK, newProcessRun(&run, at("2009-03-07T15:00:00Z"), 2,
                                      at("2009-03-07T14:00:00Z"), at("2009-03-07T15:00:01Z")));
    zundo_time_period_s *hour = nullptr;
    ASSERT_EQ(ZUNDO_OK, newTimePeriod(&hour, 0, 0, 0, 1, 0));
    ASSERT_EQ(ZUNDO_OK, setTimePeriodAttribute(run, "process-run-duration", hour));
    addObject(job, "job-process-runs", run);

    for (int type : {1, 2}) {
        zundo_int_object_s *phase = nullptr;
        ASSERT_EQ(ZUNDO_OK, newPhaseTime(&phase, type, "press-1", at("2009-03-07T14:00:00Z"),
                                         at("2009-03-07T14:30:00Z")));
        addObject(job, "job-phase-times", phase);
    }

    zundo_int_object_s *notice = nullptr;
    ASSERT_EQ(ZUNDO_OK, newNotificationAudit(&notice, 2, at("2009-03-07T16:00:00Z")));
    const char *texts[] = {"toner low", "paper low", nullptr};
    const char *languages[] = {"en", "de", nullptr};
    ASSERT_EQ(ZUNDO_OK, setStringsAttribute(notice, "notification-audit-text", texts));
    ASSERT_EQ(ZUNDO_OK, setStringsAttribute(notice, "notification-audit-language", languages));
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(notice, "notification-audit-error-id", "E17"));
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(notice, "notification-audit-job-id", "J1"));
    addObject(job, "job-notification-audits", notice);

    zundo_int_object_s *counter = nullptr;
    ASSERT_EQ(ZUNDO_OK, newUsageCounter(&counter));
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(counter, "usage-counter-id", "clicks"));
    ASSERT_EQ(ZUNDO_OK, setIntegerAttribute(counter, "usage-counter-unit", 1));
    ASSERT_EQ(ZUNDO_OK, setDoubleAttribute(counter, "usage-counter-actual-amount", 120.5));
    ASSERT_EQ(ZUNDO_OK, setIntegerAttribute(counter, "usage-counter-reason", 1));
    zundo_int_attribute_s *colorants = nullptr;
    int black = 1, varnish = 5;
    ASSERT_EQ(ZUNDO_OK, newAttribute(&colorants, "usage-counter-colorants", "IL", &black));
    ASSERT_EQ(ZUNDO_OK, addValue(colorants, &varnish));
    ASSERT_EQ(ZUNDO_OK, set(counter, colorants));
    destroyAttribute(colorants);
    addObject(job, "job-usage-counters", counter);
    zundo_int_object_s *plainCounter = nullptr;
    ASSERT_EQ(ZUNDO_OK, newUsageCounter(&plainCounter));
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(plainCounter, "usage-counter-id", "sheets"));
    addObject(job, "job-usage-counters", plainCounter);

    // A media that only its amount used puts into the ticket.
    zundo_int_object_s *media = nullptr;
    ASSERT_EQ(ZUNDO_OK, newMedia(&media, "Plain"));
    ASSERT_EQ(ZUNDO_OK, setDoubleAttribute(media, "media-amount-used", 12.0));
    addObject(job, "job-audit-medias", media);

    std::string text;
    TicketPtr copy = writeAndRead(original.get(), &text);
    ASSERT_NE(nullptr, copy);
    expectSameAttributes(job, getJob(copy.get()),
                         {"job-process-runs", "job-phase-times", "job-notification-audits",
                          "job-usage-counters", "job-audit-medias"},
                         text);
}

TEST(AuditRoundTrip, ModificationsKeepTheirAttributeAndValue) {
    TicketPtr original = newTicket();
    zundo_int_object_s *job = getJob(original.get());
    ASSERT_EQ(ZUNDO_OK, setStringAttribute(job, "job-created-by", "anna"));
    ASSERT_EQ(ZUNDO_OK,
              setDateTimeAttribute(job, "job-create-date-time", at("2009-03-01T08:00:00Z")));

    struct Change {
        int type;
        const char *attribute;
        const char *kind;
        const void *value;
    };
    int copies = 5, sides = 5, hold = 1;
    const Change changes[] = {
        {3, "job-copies", "I", &copies},
        {3, "job-sides", "I", &sides},
        {2, "job-hold", "I", &hold},
        {3, "job-comment", "S", "see \"notes\""},
        {3, "notification-language", "S", "fr"},
    };
    std::vector<zundo_modified_s *> records;
    for (const Change &change : changes) {
        zundo_modified_s *modified = nullptr;
        ASSERT_EQ(ZUNDO_OK, newModified(&modified, at("2009-03-02T09:00:00Z"), "ben"));
        ASSERT_EQ(ZUNDO_OK, setModifiedType(modified, change.type));
        ASSERT_EQ(ZUNDO_OK, setProjectID(modified, "editor"));
        zundo_int_attribute_s *attribute = nullptr;
        ASSERT_EQ(ZUNDO_OK, newAttribute(&attribute, change.attribute, change.kind, change.value));
        ASSERT_EQ(ZUNDO_OK, setModifiedAttribute(modified, attribute));
        records.push_back(modified);
    }
    records.push_back(nullptr);
    ASSERT_EQ(ZUNDO_OK, setModificationsAttribute(job, "job-modifications", records.data()));

    std::string text;
    TicketPtr copy = writeAndRead(original.get(), &text);
    ASSERT_NE(nullptr, copy);
    expectSameAttributes(job, getJob(copy.get()),
                         {"job-created-by", "job-create-date-time", "job-modifications"}, text);
}

}  // namespace
