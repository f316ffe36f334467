// Convenience setters: each builds a one-attribute value of its kind, sets it
// on the object and destroys the attribute again.
#include "zundo_object.h"
#include "zundo_trace.h"

namespace {

const char *typeText(const zundo_int_object_s *object) {
    const char *type = getObjectType(object);
    return type != nullptr ? type : "(null)";
}

const char *orNull(const char *text) { return text != nullptr ? text : "(null)"; }

}  // namespace

zundo_status_t setSingleValue(zundo_int_object_s *object, const char *name, const char *kind,
                              const void *value) {
    zundo_int_attribute_s *attribute = nullptr;
    zundo_status_t status = newAttribute(&attribute, name, kind, value);
    if (status != ZUNDO_OK) return status;
    status = set(object, attribute);
    destroyAttribute(attribute);
    return status;
}

zundo_status_t setValueList(zundo_int_object_s *object, const char *name, const char *kind,
                            const void *const *values) {
    zundo_int_attribute_s *attribute = nullptr;
    zundo_status_t status = newAttribute(&attribute, name, kind, nullptr);
    for (const void *const *value = values;
         status == ZUNDO_OK && value != nullptr && *value != nullptr; value++)
        status = addValue(attribute, *value);
    if (status == ZUNDO_OK) status = set(object, attribute);
    destroyAttribute(attribute);
    return status;
}

extern "C" {

zundo_status_t setIntegerAttribute(zundo_int_object_s *object, const char *name, int value) {
    zundotrace(0, "%s with object = [object type = %s], attribute = %s, value = %d",
               "setIntegerAttribute", typeText(object), orNull(name), value);
    return setSingleValue(object, name, ZUNDO_KIND_INTEGER, &value);
}

zundo_status_t setDoubleAttribute(zundo_int_object_s *object, const char *name, double value) {
    zundotrace(0, "%s with object = [object type = %s], attribute = %s, value = %f",
               "setDoubleAttribute", typeText(object), orNull(name), value);
    return setSingleValue(object, name, ZUNDO_KIND_DOUBLE, &value);
}

zundo_status_t setStringAttribute(zundo_int_object_s *object, const char *name, const char *value) {
    zundotrace(0, "%s with object = [object type = %s], attribute = %s, value = %s",
               "setStringAttribute", typeText(object), orNull(name), orNull(value));
    return setSingleValue(object, name, ZUNDO_KIND_STRING, value);
}

zundo_status_t setObjectAttribute(zundo_int_object_s *object, const char *name,
                                  zundo_int_object_s *value) {
    zundotrace(0, "%s with object = [object type = %s], attribute = %s", "setObjectAttribute",
               typeText(object), orNull(name));
    return setSingleValue(object, name, ZUNDO_KIND_OBJECT, value);
}

zundo_status_t setStringsAttribute(zundo_int_object_s *object, const char *name,
                                   const char *const *values) {
    return setValueList(object, name, ZUNDO_KIND_STRING,
                        reinterpret_cast<const void *const *>(values));
}

zundo_status_t setObjectsAttribute(zundo_int_object_s *object, const char *name,
                                   zundo_int_object_s *const *values) {
    return setValueList(object, name, ZUNDO_KIND_OBJECT,
                        reinterpret_cast<const void *const *>(values));
}

zundo_status_t setModificationsAttribute(zundo_int_object_s *object, const char *name,
                                         zundo_modified_s *const *values) {
    return setValueList(object, name, ZUNDO_KIND_MODIFIED,
                        reinterpret_cast<const void *const *>(values));
}

zundo_status_t setBinaryAttribute(zundo_int_object_s *object, const char *name,
                                  zundo_binary_object_s *value) {
    return setSingleValue(object, name, ZUNDO_KIND_BINARY, value);
}

zundo_status_t setDateTimeAttribute(zundo_int_object_s *object, const char *name,
                                    zundo_date_time_s *value) {
    return setSingleValue(object, name, ZUNDO_KIND_DATE_TIME, value);
}

zundo_status_t setTimePeriodAttribute(zundo_int_object_s *object, const char *name,
                                      zundo_time_period_s *value) {
    return setSingleValue(object, name, ZUNDO_KIND_TIME_PERIOD, value);
}

zundo_status_t setRGBAttribute(zundo_int_object_s *object, const char *name, zundo_rgb_s *value) {
    return setSingleValue(object, name, ZUNDO_KIND_RGB, value);
}

}  // extern "C"
