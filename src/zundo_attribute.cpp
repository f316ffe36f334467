// Attribute records: a name, a value kind and a growable list of values with
// an iterator that honours the attribute's not-set value.
#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "zundo_object.h"
#include "zundo_trace.h"

namespace {

const int kGrowthSlots = 5;

bool isIntegerKind(const char *kind) { return std::strcmp(kind, ZUNDO_KIND_INTEGER) == 0; }
bool isDoubleKind(const char *kind) { return std::strcmp(kind, ZUNDO_KIND_DOUBLE) == 0; }
bool isIntegerListKind(const char *kind) {
    return std::strcmp(kind, ZUNDO_KIND_INTEGER_LIST) == 0;
}
bool isStringKind(const char *kind) { return std::strcmp(kind, ZUNDO_KIND_STRING) == 0; }

size_t slotSize(const char *kind) {
    if (isIntegerKind(kind)) return sizeof(int);
    if (isDoubleKind(kind)) return sizeof(double);
    return sizeof(void *);
}

// The first value allocates five slots; after that the array doubles, so a
// list built value by value costs linear time however long it gets.
zundo_status_t reallocValueArray(zundo_int_attribute_s *attribute) {
    int capacity = attribute->capacity + std::max(kGrowthSlots, attribute->capacity);
    void *grown = std::realloc(attribute->values, slotSize(attribute->kind) * capacity);
    if (grown == nullptr) {
        traceOutOfMemory("reallocValueArray");
        return ZUNDO_OUT_OF_MEMORY;
    }
    attribute->values = grown;
    attribute->capacity = capacity;
    return ZUNDO_OK;
}

// A private copy of a string value, with control-character references
// decoded when the process asks for that.
char *copyStringValue(const char *value) {
    if (getControlCharacterDecodingFlag() && containsDecodableControlCharacters(value)) {
        char *decoded = const_cast<char *>(value);
        decodeControlCharacters(&decoded);
        if (decoded != value) return decoded;
    }
    return strdup(value);
}

void **pointerSlots(const zundo_int_attribute_s *attribute) {
    return static_cast<void **>(attribute->values);
}

// Number of values a reader of the attribute sees: iteration stops at the
// first numeric value equal to the not-set value.
int visibleCount(const zundo_int_attribute_s *attribute) {
    int visible = 0;
    while (visible < attribute->count && !valueIsNotSet(attribute, visible)) visible++;
    return visible;
}

int intValueAt(const zundo_int_attribute_s *attribute, int index) {
    if (isIntegerListKind(attribute->kind))
        return *static_cast<const int *>(pointerSlots(attribute)[index]);
    return static_cast<const int *>(attribute->values)[index];
}

// Order-independent match of the visible values of two attributes of the
// same kind: every value of a pairs with a distinct equal value of b.
int multisetMatch(const zundo_int_attribute_s *a, const zundo_int_attribute_s *b) {
    int countA = visibleCount(a);
    int countB = visibleCount(b);
    bool *matched = static_cast<bool *>(std::calloc(countB > 0 ? countB : 1, sizeof(bool)));
    if (matched == nullptr) {
        traceOutOfMemory(isIntegerListKind(a->kind) ? "compareIntegerListValues" : "attributesEqual");
        return 0;
    }
    bool integers = isIntegerListKind(a->kind);
    int equal = 1;
    for (int i = 0; i < countA && equal; i++) {
        bool found = false;
        for (int j = 0; j < countB && !found; j++) {
            if (matched[j]) continue;
            bool same = integers ? intValueAt(a, i) == intValueAt(b, j)
                                 : compareValueByKind(a->kind, pointerSlots(a)[i],
                                                      pointerSlots(b)[j]) == 0;
            if (same) matched[j] = found = true;
        }
        if (!found) equal = 0;
    }
    std::free(matched);
    return equal;
}

bool isKnownKind(const char *kind) {
    static const char *const kinds[] = {
        ZUNDO_KIND_INTEGER,  ZUNDO_KIND_DOUBLE,    ZUNDO_KIND_STRING,      ZUNDO_KIND_INTEGER_LIST,
        ZUNDO_KIND_OBJECT,   ZUNDO_KIND_RANGE,     ZUNDO_KIND_MODIFIED,    ZUNDO_KIND_DATE_TIME,
        ZUNDO_KIND_BINARY,   ZUNDO_KIND_TIME_PERIOD, ZUNDO_KIND_RGB,       ZUNDO_KIND_START_PAGE};
    for (const char *known : kinds)
        if (std::strcmp(kind, known) == 0) return true;
    return false;
}

}  // namespace

int isPointerKind(const char *kind) { return !isIntegerKind(kind) && !isDoubleKind(kind); }

int kindIs(const char *kind, const char *code) {
    return kind != nullptr && std::strcmp(kind, code) == 0;
}

int valueIsNotSet(const zundo_int_attribute_s *attribute, int index) {
    if (!attribute->hasNotSetValue) return 0;
    const char *kind = attribute->kind;
    if (isIntegerKind(kind) || isIntegerListKind(kind))
        return static_cast<double>(intValueAt(attribute, index)) == attribute->notSetValue;
    if (isDoubleKind(kind))
        return static_cast<const double *>(attribute->values)[index] == attribute->notSetValue;
    return 0;
}

int countSetValues(const zundo_int_attribute_s *attribute) {
    return attribute == nullptr ? 0 : visibleCount(attribute);
}

const void *valueAt(const zundo_int_attribute_s *attribute, int index) {
    if (isIntegerKind(attribute->kind)) return static_cast<const int *>(attribute->values) + index;
    if (isDoubleKind(attribute->kind)) return static_cast<const double *>(attribute->values) + index;
    return pointerSlots(attribute)[index];
}

extern "C" {

zundo_status_t newAttribute(zundo_int_attribute_s **out, const char *name, const char *kind,
                            const void *firstValue) {
    if (out == nullptr || name == nullptr || kind == nullptr) return ZUNDO_INVALID_ARGUMENT;
    auto *attribute =
        static_cast<zundo_int_attribute_s *>(std::calloc(1, sizeof(zundo_int_attribute_s)));
    char *nameCopy = attribute != nullptr ? strdup(name) : nullptr;
    if (nameCopy == nullptr) {
        std::free(attribute);
        traceOutOfMemory("newAttribute");
        return ZUNDO_OUT_OF_MEMORY;
    }
    attribute->name = nameCopy;
    attribute->kind = kind;
    if (firstValue != nullptr) {
        zundo_status_t status = addValue(attribute, firstValue);
        if (status != ZUNDO_OK) {
            destroyAttribute(attribute);
            return status;
        }
    }
    *out = attribute;
    return ZUNDO_OK;
}

zundo_status_t addValue(zundo_int_attribute_s *attribute, const void *value) {
    if (attribute == nullptr) return ZUNDO_INVALID_ARGUMENT;
    const char *kind = attribute->kind;
    bool numeric = !isPointerKind(kind) || isIntegerListKind(kind);
    // Numbers are read through the pointer, so there must be one.
    if (numeric && value == nullptr) return ZUNDO_INVALID_ARGUMENT;
    if (!isPointerKind(kind) && attribute->count > 0) return ZUNDO_NOT_FOUND;
    if (attribute->count == attribute->capacity) {
        zundo_status_t status = reallocValueArray(attribute);
        if (status != ZUNDO_OK) return status;
    }
    int slot = attribute->count;
    if (isIntegerKind(kind)) {
        static_cast<int *>(attribute->values)[slot] = *static_cast<const int *>(value);
    } else if (isDoubleKind(kind)) {
        static_cast<double *>(attribute->values)[slot] = *static_cast<const double *>(value);
    } else if (isIntegerListKind(kind)) {
        int *heapInt = static_cast<int *>(std::calloc(1, sizeof(int)));
        if (heapInt == nullptr) {
            traceOutOfMemory("addValue");
            return ZUNDO_OUT_OF_MEMORY;
        }
        *heapInt = *static_cast<const int *>(value);
        pointerSlots(attribute)[slot] = heapInt;
    } else if (value == nullptr) {
        pointerSlots(attribute)[slot] = nullptr;
    } else if (isStringKind(kind)) {
        char *copy = copyStringValue(static_cast<const char *>(value));
        if (copy == nullptr) {
            traceOutOfMemory("addValue");
            return ZUNDO_OUT_OF_MEMORY;
        }
        pointerSlots(attribute)[slot] = copy;
    } else {
        pointerSlots(attribute)[slot] = const_cast<void *>(value);
    }
    attribute->count++;
    return ZUNDO_OK;
}

void destroyAttribute(zundo_int_attribute_s *attribute) {
    if (attribute == nullptr) return;
    zundo_trace(">> entering destroyAttribute %s\n", attribute->name);
    if (isStringKind(attribute->kind) || isIntegerListKind(attribute->kind)) {
        for (int i = 0; i < attribute->count; i++) std::free(pointerSlots(attribute)[i]);
    }
    std::free(attribute->values);
    std::free(attribute->name);
    std::free(attribute);
    zundo_trace("<< leaving destroyAttribute\n");
}

const char *getName(const zundo_int_attribute_s *attribute) {
    return attribute == nullptr ? nullptr : attribute->name;
}

const char *getValueType(const zundo_int_attribute_s *attribute) {
    return attribute == nullptr ? nullptr : attribute->kind;
}

int getNumValues(const zundo_int_attribute_s *attribute) {
    return attribute == nullptr ? 0 : attribute->count;
}

int hasNextValue(const zundo_int_attribute_s *attribute) {
    if (attribute == nullptr || attribute->position >= attribute->count) return 0;
    return valueIsNotSet(attribute, attribute->position) ? 0 : 1;
}

void *nextValue(zundo_int_attribute_s *attribute) {
    if (attribute == nullptr || attribute->position >= attribute->count) return nullptr;
    return const_cast<void *>(valueAt(attribute, attribute->position++));
}

void resetIterator(zundo_int_attribute_s *attribute) {
    if (attribute != nullptr) attribute->position = 0;
}

zundo_status_t cloneAttribute(zundo_int_attribute_s **out, const zundo_int_attribute_s *source) {
    if (out == nullptr || source == nullptr) return ZUNDO_INVALID_ARGUMENT;
    zundo_int_attribute_s *copy = nullptr;
    zundo_status_t status = newAttribute(&copy, source->name, source->kind, nullptr);
    if (status != ZUNDO_OK) return status;
    copy->hasNotSetValue = source->hasNotSetValue;
    copy->notSetValue = source->notSetValue;
    const char *kind = source->kind;
    for (int i = 0; i < source->count && status == ZUNDO_OK; i++) {
        const void *value = valueAt(source, i);
        if (!isPointerKind(kind) || isIntegerListKind(kind) || isStringKind(kind) ||
            value == nullptr) {
            status = addValue(copy, value);
            continue;
        }
        void *valueCopy = nullptr;
        status = cloneValueByKind(kind, value, &valueCopy);
        if (status == ZUNDO_OK) {
            status = addValue(copy, valueCopy);
            if (status != ZUNDO_OK) destroyValueByKind(kind, valueCopy);
        }
    }
    *out = copy;
    return status;
}

int attributesEqual(const zundo_int_attribute_s *a, const zundo_int_attribute_s *b) {
    if (a == b) return 1;
    if (a == nullptr || b == nullptr) return 0;
    if (std::strcmp(a->name, b->name) != 0 || std::strcmp(a->kind, b->kind) != 0 ||
        a->count != b->count)
        return 0;
    if (isIntegerKind(a->kind)) {
        if (a->count == 0) return 1;
        return static_cast<const int *>(a->values)[0] == static_cast<const int *>(b->values)[0];
    }
    if (isDoubleKind(a->kind)) {
        if (a->count == 0) return 1;
        return static_cast<const double *>(a->values)[0] ==
               static_cast<const double *>(b->values)[0];
    }
    if (!isKnownKind(a->kind)) {
        zundo_trace("attributesEqual does not currently support \t\t\t\ttypes of %s.\n", a->kind);
        return 0;
    }
    return multisetMatch(a, b);
}

}  // extern "C"
