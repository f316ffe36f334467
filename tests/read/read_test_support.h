// Helpers shared by the reader tests: job tickets as text, and the values
// of attributes as comparable texts.
#ifndef ZUNDO_TESTS_READ_READ_TEST_SUPPORT_H
#define ZUNDO_TESTS_READ_READ_TEST_SUPPORT_H

#include <string>
#include <vector>

#include "zundo.h"

// A job ticket around `body` (the JDF node's children), with `attributes`
// on the JDF node.
inline std::string jdfTicket(const std::string &body, const std::string &attributes = "") {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<JDF xmlns=\"http://www.CIP4.org/JDFSchema_1_1\" ID=\"n0\" Type=\"Combined\" "
           "Types=\"LayoutPreparation DigitalPrinting\" Version=\"1.4\" Status=\"Waiting\" " +
           attributes + ">\n" + body + "</JDF>\n";
}

// The pools every ticket of the writer has.
inline std::string pools(const std::string &resources, const std::string &links = "") {
    return "<ResourcePool>" + resources + "</ResourcePool>\n<ResourceLinkPool>" + links +
           "</ResourceLinkPool>\n";
}

// A ticket read into a new job-ticket object, destroyed on scope exit.
struct ReadTicket {
    explicit ReadTicket(const std::string &text) {
        result = newJobTicketInfoFromString(&ticket, text.c_str());
    }
    ~ReadTicket() { destroy(ticket); }
    ReadTicket(const ReadTicket &) = delete;
    zundo_int_object_s *job() const { return getJob(ticket); }

    zundo_int_object_s *ticket = nullptr;
    zundo_result_t result;
};

// "-" when the attribute has no value.
inline std::string textOf(zundo_int_object_s *object, const char *name) {
    zundo_int_attribute_s *attribute = get(object, name);
    std::string value = hasNextValue(attribute) ? static_cast<char *>(nextValue(attribute)) : "-";
    destroyAttribute(attribute);
    return value;
}

inline std::vector<std::string> textsOf(zundo_int_object_s *object, const char *name) {
    std::vector<std::string> values;
    zundo_int_attribute_s *attribute = get(object, name);
    while (hasNextValue(attribute)) values.push_back(static_cast<char *>(nextValue(attribute)));
    destroyAttribute(attribute);
    return values;
}

// `none` when the attribute has no value (its not-set value included).
// The objects of an object-list attribute, still owned by `object`.
inline std::vector<zundo_int_object_s *> objectsOf(zundo_int_object_s *object, const char *name) {
    std::vector<zundo_int_object_s *> objects;
    zundo_int_attribute_s *attribute = get(object, name);
    while (hasNextValue(attribute))
        objects.push_back(static_cast<zundo_int_object_s *>(nextValue(attribute)));
    destroyAttribute(attribute);
    return objects;
}

inline int intOf(zundo_int_object_s *object, const char *name, int none = -12345) {
    zundo_int_attribute_s *attribute = get(object, name);
    int value = hasNextValue(attribute) ? *static_cast<int *>(nextValue(attribute)) : none;
    destroyAttribute(attribute);
    return value;
}

inline double doubleOf(zundo_int_object_s *object, const char *name, double none = -12345.0) {
    zundo_int_attribute_s *attribute = get(object, name);
    double value = hasNextValue(attribute) ? *static_cast<double *>(nextValue(attribute)) : none;
    destroyAttribute(attribute);
    return value;
}

inline std::string dateTimeOf(zundo_int_object_s *object, const char *name) {
    zundo_int_attribute_s *attribute = get(object, name);
    char text[ZUNDO_DATE_TIME_TEXT_SIZE] = "-";
    if (hasNextValue(attribute))
        toStringDateTime(text, static_cast<zundo_date_time_s *>(nextValue(attribute)));
    destroyAttribute(attribute);
    return text;
}

#endif
