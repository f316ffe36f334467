#include "features/feature_object.h"

#include "job/abstract_jdp.h"

namespace {

zundo_initial_value_s pointerValue(const char *name, const char *kind, const void *value,
                                   bool owned) {
    zundo_initial_value_s initial{};
    initial.name = name;
    initial.kind = kind;
    initial.single = value;
    initial.owned = owned;
    return initial;
}

zundo_status_t setInitialValue(zundo_int_object_s *object, const zundo_initial_value_s &value) {
    if (kindIs(value.kind, ZUNDO_KIND_INTEGER))
        return setIntegerAttribute(object, value.name, value.integer);
    if (kindIs(value.kind, ZUNDO_KIND_DOUBLE))
        return setDoubleAttribute(object, value.name, value.real);
    if (value.list != nullptr) return setValueList(object, value.name, value.kind, value.list);
    return setSingleValue(object, value.name, value.kind, value.single);
}

void releaseOwnedValue(const zundo_initial_value_s &value) {
    if (!value.owned) return;
    if (value.single != nullptr) destroyValueByKind(value.kind, const_cast<void *>(value.single));
    for (const void *const *item = value.list; item != nullptr && *item != nullptr; item++)
        destroyValueByKind(value.kind, const_cast<void *>(*item));
}

zundo_status_t attachBlock(zundo_int_object_s *object, const char *prefix) {
    zundo_int_object_s *block = nullptr;
    zundo_status_t status = newAbstractJDP(&block, prefix);
    if (status == ZUNDO_OK) object->next = block;
    return status;
}

}  // namespace

zundo_initial_value_s integerValue(const char *name, int value) {
    zundo_initial_value_s initial = pointerValue(name, ZUNDO_KIND_INTEGER, nullptr, false);
    initial.integer = value;
    return initial;
}

zundo_initial_value_s realValue(const char *name, double value) {
    zundo_initial_value_s initial = pointerValue(name, ZUNDO_KIND_DOUBLE, nullptr, false);
    initial.real = value;
    return initial;
}

zundo_initial_value_s textValue(const char *name, const char *text) {
    return pointerValue(name, ZUNDO_KIND_STRING, text, false);
}

zundo_initial_value_s textsValue(const char *name, const char *const *texts) {
    zundo_initial_value_s initial = pointerValue(name, ZUNDO_KIND_STRING, nullptr, false);
    initial.list = reinterpret_cast<const void *const *>(texts);
    return initial;
}

zundo_initial_value_s ownedValue(const char *name, const char *kind, const void *value) {
    return pointerValue(name, kind, value, true);
}

zundo_status_t completeFeature(zundo_status_t status, zundo_int_object_s *object,
                               const char *blockPrefix,
                               std::initializer_list<zundo_initial_value_s> values,
                               zundo_int_object_s **out) {
    if (status == ZUNDO_OK && blockPrefix != nullptr) status = attachBlock(object, blockPrefix);
    // Stops at the first value that could not be stored.
    const zundo_initial_value_s *value = values.begin();
    while (status == ZUNDO_OK && value != values.end()) {
        status = setInitialValue(object, *value);
        if (status == ZUNDO_OK) value++;
    }
    if (status == ZUNDO_OK) {
        *out = object;
        return ZUNDO_OK;
    }
    for (; value != values.end(); value++) releaseOwnedValue(*value);
    if (object != nullptr) destroy(object);
    if (out != nullptr) *out = nullptr;
    return status;
}

zundo_status_t refuseConstruction(zundo_int_object_s **out, const char *message) {
    zundo_trace("%s", message);
    if (out != nullptr) *out = nullptr;
    return ZUNDO_INVALID_ARGUMENT;
}
