// What the constructors of the feature objects share: a fresh object of the
// type, the print-parameter block behind the owners that carry one, and the
// constructor's arguments set through the public path so that the type's
// validator sees them.
#ifndef ZUNDO_FEATURE_OBJECT_H
#define ZUNDO_FEATURE_OBJECT_H

#include <initializer_list>

#include "catalogue/type_names.h"
#include "validation_rules.h"
#include "zundo_object_type.h"

// One argument a constructor sets, in the constructor's order.
struct zundo_initial_value_s {
    const char *name;
    const char *kind;
    int integer;              // "I"
    double real;              // "D"
    const void *single;       // one value of a pointer kind; null sets none
    const void *const *list;  // or a null-terminated array of them
    // Value objects and sub-objects pass to the new object in every case:
    // when construction fails before they are stored they are destroyed.
    bool owned;
};

zundo_initial_value_s integerValue(const char *name, int value);
zundo_initial_value_s realValue(const char *name, double value);
zundo_initial_value_s textValue(const char *name, const char *text);
zundo_initial_value_s textsValue(const char *name, const char *const *texts);
// A value object or sub-object of `kind`, owned by the constructor.
zundo_initial_value_s ownedValue(const char *name, const char *kind, const void *value);

template <typename V>
zundo_initial_value_s ownedValues(const char *name, const char *kind, V *const *values) {
    zundo_initial_value_s value = ownedValue(name, kind, nullptr);
    value.list = reinterpret_cast<const void *const *>(values);
    return value;
}

// Links the block with `blockPrefix` (none when null) behind `object`, sets
// `values` in order and hands the object out. On failure the object (when
// there is one) and the owned values not yet stored are destroyed, *out is
// cleared and the first failing status returned. `status` is that of
// making the object.
zundo_status_t completeFeature(zundo_status_t status, zundo_int_object_s *object,
                               const char *blockPrefix,
                               std::initializer_list<zundo_initial_value_s> values,
                               zundo_int_object_s **out);

// Refuses a constructor's arguments before anything is made: traces
// `message`, clears *out and returns 2.
zundo_status_t refuseConstruction(zundo_int_object_s **out, const char *message);

// A constructor's body: the fresh object of type T with `values` set.
// `operation` names the constructor in the out-of-memory trace.
template <const zundo_object_type_s &T>
zundo_status_t buildFeature(zundo_int_object_s **out, const char *operation,
                            std::initializer_list<zundo_initial_value_s> values) {
    zundo_int_object_s *object = nullptr;
    zundo_status_t status =
        out == nullptr ? ZUNDO_INVALID_ARGUMENT : newTypedObject<T>(&object, operation);
    return completeFeature(status, object, typeTable<T>()->blockPrefix, values, out);
}

// A fresh object of type T with nothing set: what clone fills from its
// source. Every attribute a constructor would set is copied from the source
// afterwards, so no placeholder arguments are needed.
template <const zundo_object_type_s &T>
zundo_status_t newBlankFeature(zundo_int_object_s **out) {
    return buildFeature<T>(out, "cloneObj", {});
}

// A feature type in one place: the description <Name>Type (type string
// ZUNDO_TYPE_<TYPE>, record zundo_<stem>_data_s, destroy operation named
// "destroy<Name>" in its message, cloned from a blank object of the type) and the exported
// clone<Name> and `compareName`. `cloneExtra` and `compareExtra` copy and
// compare what follows the record (may be null).
#define ZUNDO_FEATURE_TYPE(Name, stem, TYPE, validator, cloneExtra, compareExtra, compareName)   \
    const zundo_object_type_s Name##Type = {                                                  \
        ZUNDO_TYPE_##TYPE, "passed invalid object to destroy" #Name "\n",                      \
        sizeof(zundo_##stem##_data_s), validator, newBlankFeature<Name##Type>, nullptr,         \
        compareExtra, cloneExtra};                                                             \
    extern "C" zundo_status_t clone##Name(zundo_int_object_s **out,                            \
                                          const zundo_int_object_s *source) {                  \
        return typeClone<Name##Type>(out, source);                                             \
    }                                                                                          \
    extern "C" int compareName(const zundo_int_object_s *a, const zundo_int_object_s *b) {      \
        return typeCompare<Name##Type>(a, b);                                                  \
    }

// The usual feature type: compared by its record alone, with compare<Name>.
#define ZUNDO_FEATURE(Name, stem, TYPE, validator)                                             \
    ZUNDO_FEATURE_TYPE(Name, stem, TYPE, validator, nullptr, nullptr, compare##Name)

// Usual feature types whose validator is the rule table `rules` and whose
// constructor new<Name> sets nothing, one integer code or one text.
#define ZUNDO_PLAIN_FEATURE(Name, stem, TYPE, rules)                                           \
    ZUNDO_FEATURE(Name, stem, TYPE, checkRules<rules>)                                         \
    extern "C" zundo_status_t new##Name(zundo_int_object_s **out) {                            \
        return buildFeature<Name##Type>(out, "new" #Name, {});                                 \
    }
#define ZUNDO_CODE_FEATURE(Name, stem, TYPE, rules, attribute)                                 \
    ZUNDO_FEATURE(Name, stem, TYPE, checkRules<rules>)                                         \
    extern "C" zundo_status_t new##Name(zundo_int_object_s **out, int code) {                  \
        return buildFeature<Name##Type>(out, "new" #Name, {integerValue(attribute, code)});    \
    }
#define ZUNDO_TEXT_FEATURE(Name, stem, TYPE, rules, attribute)                                 \
    ZUNDO_FEATURE(Name, stem, TYPE, checkRules<rules>)                                         \
    extern "C" zundo_status_t new##Name(zundo_int_object_s **out, const char *text) {          \
        return buildFeature<Name##Type>(out, "new" #Name, {textValue(attribute, text)});       \
    }

#endif
