// Small builders the round-trip and writer tests share.
#ifndef ZUNDO_TESTS_TICKET_BUILDERS_H
#define ZUNDO_TESTS_TICKET_BUILDERS_H

#include <gtest/gtest.h>

#include <memory>

#include "zundo.h"

struct TicketDeleter {
    void operator()(zundo_int_object_s *o) const { destroy(o); }
};
using TicketPtr = std::unique_ptr<zundo_int_object_s, TicketDeleter>;

// A ticket whose job holds one document, "body.pdf".
inline TicketPtr newTicket() {
    zundo_int_object_s *document = nullptr, *job = nullptr, *ticket = nullptr;
    EXPECT_EQ(ZUNDO_OK, newDocument(&document, "body.pdf"));
    EXPECT_EQ(ZUNDO_OK, newJob(&job, document));
    EXPECT_EQ(ZUNDO_OK, newJobTicketInfoFromJob(&ticket, job));
    return TicketPtr(ticket);
}

inline zundo_date_time_s *at(const char *text) {
    zundo_date_time_s *time = nullptr;
    EXPECT_EQ(ZUNDO_OK, newDateTimeFromString(&time, text));
    return time;
}

// Appends value to the object-list attribute `name` of object.
inline void addObject(zundo_int_object_s *object, const char *name, zundo_int_object_s *value) {
    zundo_int_attribute_s *list = get(object, name);
    ASSERT_EQ(ZUNDO_OK, addValue(list, value));
    ASSERT_EQ(ZUNDO_OK, set(object, list));
    destroyAttribute(list);
}

#endif
