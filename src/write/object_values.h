// Reading attribute values of ticket objects for writing. Every writer asks
// the same questions: does the object have a value, what is the first one.
#ifndef ZUNDO_WRITE_OBJECT_VALUES_H
#define ZUNDO_WRITE_OBJECT_VALUES_H

#include "zundo.h"

// The attribute as get() hands it out, destroyed with the holder. Texts
// returned by firstString live as long as the holder; objects are the
// ticket's own.
class FetchedAttribute {
public:
    FetchedAttribute(zundo_int_object_s *object, const char *name)
        : attribute_(object != nullptr ? get(object, name) : nullptr) {}
    ~FetchedAttribute() { destroyAttribute(attribute_); }
    FetchedAttribute(const FetchedAttribute &) = delete;
    FetchedAttribute &operator=(const FetchedAttribute &) = delete;

    // A first value that is not the attribute's not-set value.
    bool hasValue() const;
    int firstInt(int fallback) const;
    double firstDouble(double fallback) const;
    const char *firstString() const;           // null without a value
    zundo_int_object_s *firstObject() const;   // null without a value
    // For walking all values with hasNextValue / nextValue.
    zundo_int_attribute_s *attribute() const { return attribute_; }

private:
    const void *first() const;
    zundo_int_attribute_s *attribute_;
};

bool objectHasValue(zundo_int_object_s *object, const char *name);

#endif
