// First values of fetched attributes.
#include "write/object_values.h"

#include "zundo_object.h"

const void *FetchedAttribute::first() const {
    if (attribute_ == nullptr || attribute_->count == 0 || valueIsNotSet(attribute_, 0))
        return nullptr;
    return valueAt(attribute_, 0);
}

bool FetchedAttribute::hasValue() const { return first() != nullptr; }

int FetchedAttribute::firstInt(int fallback) const {
    const void *value = first();
    return value != nullptr && kindIs(attribute_->kind, ZUNDO_KIND_INTEGER)
               ? *static_cast<const int *>(value)
               : fallback;
}

double FetchedAttribute::firstDouble(double fallback) const {
    const void *value = first();
    return value != nullptr && kindIs(attribute_->kind, ZUNDO_KIND_DOUBLE)
               ? *static_cast<const double *>(value)
               : fallback;
}

const char *FetchedAttribute::firstString() const {
    const void *value = first();
    return value != nullptr && kindIs(attribute_->kind, ZUNDO_KIND_STRING)
               ? static_cast<const char *>(value)
               : nullptr;
}

zundo_int_object_s *FetchedAttribute::firstObject() const {
    const void *value = first();
    return value != nullptr && kindIs(attribute_->kind, ZUNDO_KIND_OBJECT)
               ? static_cast<zundo_int_object_s *>(const_cast<void *>(value))
               : nullptr;
}

bool objectHasValue(zundo_int_object_s *object, const char *name) {
    return FetchedAttribute(object, name).hasValue();
}
