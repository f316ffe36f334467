// Table-driven access to data records: each object type describes its record
// with a sorted table of attribute rows, and these operations read, write,
// free, copy, compare and list a record through its table.
#include <cstdlib>
#include <cstring>
#include <unordered_set>

#include "zundo_object.h"
#include "zundo_trace.h"

namespace {

// Past this many values, identity checks use a hash set so that replacing a
// long list stays linear.
const int kLinearScanLimit = 16;

char *fieldAddress(void *data, const zundo_attribute_info_s *row) {
    return static_cast<char *>(data) + row->fieldOffset;
}

void ***pointerField(void *data, const zundo_attribute_info_s *row) {
    return reinterpret_cast<void ***>(fieldAddress(data, row));
}

bool arrayIsEmpty(void **array) { return array == nullptr || array[0] == nullptr; }

int arrayLength(void **array) {
    int length = 0;
    while (array != nullptr && array[length] != nullptr) length++;
    return length;
}

// Frees a field's old value list. Values that the incoming attribute holds
// too (same pointer, as after a get followed by a set) stay alive.
void freeValueList(const char *kind, void **oldValues, const zundo_int_attribute_s *incoming) {
    if (oldValues == nullptr) return;
    int incomingCount = countSetValues(incoming);
    std::unordered_set<const void *> kept;
    bool hashed = incomingCount > kLinearScanLimit;
    if (hashed)
        for (int i = 0; i < incomingCount; i++) kept.insert(valueAt(incoming, i));
    for (void **value = oldValues; *value != nullptr; value++) {
        bool stillHeld = false;
        if (hashed) {
            stillHeld = kept.count(*value) != 0;
        } else {
            for (int i = 0; i < incomingCount && !stillHeld; i++)
                stillHeld = valueAt(incoming, i) == *value;
        }
        if (!stillHeld) destroyValueByKind(kind, *value);
    }
    std::free(oldValues);
}

void freeArrayValues(const char *kind, void **array) {
    for (void **value = array; value != nullptr && *value != nullptr; value++)
        destroyValueByKind(kind, *value);
    std::free(array);
}

void freeNames(char **names) {
    for (char **name = names; name != nullptr && *name != nullptr; name++) std::free(*name);
    std::free(names);
}

// Builds the array a pointer-kind field holds from the attribute's visible
// values: strings and integers are copied, everything else is taken over.
zundo_status_t buildValueArray(const zundo_attribute_info_s *row, zundo_int_attribute_s *attribute,
                               void ***out) {
    int count = countSetValues(attribute);
    void **array = static_cast<void **>(std::calloc(count + 1, sizeof(void *)));
    if (array == nullptr) {
        traceOutOfMemory("genericSet");
        return ZUNDO_OUT_OF_MEMORY;
    }
    bool strings = kindIs(row->kind, ZUNDO_KIND_STRING);
    bool integers = kindIs(row->kind, ZUNDO_KIND_INTEGER_LIST);
    int filled = 0;
    for (int i = 0; i < count; i++) {
        const void *value = valueAt(attribute, i);
        // A null value holds nothing; storing it would end the list early and
        // hide the values after it.
        if (value == nullptr) continue;
        void *stored = const_cast<void *>(value);
        if (strings) {
            stored = strdup(static_cast<const char *>(value));
        } else if (integers) {
            stored = std::malloc(sizeof(int));
            if (stored != nullptr) *static_cast<int *>(stored) = *static_cast<const int *>(value);
        }
        if (stored == nullptr) {
            if (strings || integers) freeArrayValues(row->kind, array);
            else std::free(array);
            traceOutOfMemory("genericSet");
            return ZUNDO_OUT_OF_MEMORY;
        }
        array[filled++] = stored;
    }
    *out = array;
    return ZUNDO_OK;
}

// Copies a multi-valued field through the public path so that the copy's
// validator sees the values; values the copy refuses are freed.
void cloneThroughAttributes(const zundo_attribute_info_s *row, const zundo_int_object_s *source,
                            zundo_int_object_s *copy) {
    zundo_int_attribute_s *original = get(const_cast<zundo_int_object_s *>(source), row->name);
    if (original == nullptr) return;
    if (hasNextValue(original)) {
        zundo_int_attribute_s *duplicate = nullptr;
        zundo_status_t status = cloneAttribute(&duplicate, original);
        if (status == ZUNDO_OK) status = set(copy, duplicate);
        bool owned = status == ZUNDO_OK;
        if (!owned && duplicate != nullptr && isPointerKind(duplicate->kind) &&
            !kindIs(duplicate->kind, ZUNDO_KIND_STRING) &&
            !kindIs(duplicate->kind, ZUNDO_KIND_INTEGER_LIST)) {
            for (int i = 0; i < duplicate->count; i++)
                destroyValueByKind(duplicate->kind, const_cast<void *>(valueAt(duplicate, i)));
        }
        destroyAttribute(duplicate);
    }
    destroyAttribute(original);
}

bool singleValuesEqual(const char *kind, const void *a, const void *b, bool *decided) {
    *decided = true;
    if (kindIs(kind, ZUNDO_KIND_STRING))
        return std::strcmp(static_cast<const char *>(a), static_cast<const char *>(b)) == 0;
    if (kindIs(kind, ZUNDO_KIND_DATE_TIME) || kindIs(kind, ZUNDO_KIND_TIME_PERIOD) ||
        kindIs(kind, ZUNDO_KIND_BINARY))
        return compareValueByKind(kind, a, b) == 0;
    *decided = false;
    return false;
}

bool fieldsEqual(const zundo_attribute_info_s *row, const zundo_int_object_s *a,
                 const zundo_int_object_s *b) {
    if (kindIs(row->kind, ZUNDO_KIND_INTEGER))
        return *reinterpret_cast<int *>(fieldAddress(a->data, row)) ==
               *reinterpret_cast<int *>(fieldAddress(b->data, row));
    if (kindIs(row->kind, ZUNDO_KIND_DOUBLE))
        return *reinterpret_cast<double *>(fieldAddress(a->data, row)) ==
               *reinterpret_cast<double *>(fieldAddress(b->data, row));
    void **valuesA = *pointerField(a->data, row);
    void **valuesB = *pointerField(b->data, row);
    if (arrayIsEmpty(valuesA) || arrayIsEmpty(valuesB))
        return arrayIsEmpty(valuesA) && arrayIsEmpty(valuesB);
    if (arrayLength(valuesA) == 1 && arrayLength(valuesB) == 1) {
        bool decided;
        bool equal = singleValuesEqual(row->kind, valuesA[0], valuesB[0], &decided);
        if (decided) return equal;
    }
    zundo_int_attribute_s *attributeA = get(const_cast<zundo_int_object_s *>(a), row->name);
    zundo_int_attribute_s *attributeB = get(const_cast<zundo_int_object_s *>(b), row->name);
    bool equal = attributesEqual(attributeA, attributeB) == 1;
    destroyAttribute(attributeA);
    destroyAttribute(attributeB);
    return equal;
}

zundo_status_t copyNames(const zundo_attribute_info_s *table, int rows, const char *prefix,
                         char **names) {
    size_t prefixLength = prefix != nullptr ? std::strlen(prefix) : 0;
    for (int i = 0; i < rows - 1; i++) {
        size_t nameLength = std::strlen(table[i].name);
        char *name = static_cast<char *>(std::malloc(prefixLength + nameLength + 1));
        if (name == nullptr) return ZUNDO_OUT_OF_MEMORY;
        if (prefixLength > 0) std::memcpy(name, prefix, prefixLength);
        std::memcpy(name + prefixLength, table[i].name, nameLength + 1);
        names[i] = name;
    }
    return ZUNDO_OK;
}

zundo_status_t listNames(const zundo_attribute_info_s *table, int rows,
                         const zundo_attribute_info_s *sharedTable, int sharedRows,
                         const char *prefix, char ***out) {
    int own = rows > 0 ? rows - 1 : 0;
    int shared = sharedTable != nullptr && sharedRows > 0 ? sharedRows - 1 : 0;
    char **names = static_cast<char **>(std::calloc(own + shared + 1, sizeof(char *)));
    zundo_status_t status = names == nullptr ? ZUNDO_OUT_OF_MEMORY : ZUNDO_OK;
    if (status == ZUNDO_OK) status = copyNames(table, rows, nullptr, names);
    if (status == ZUNDO_OK && shared > 0)
        status = copyNames(sharedTable, sharedRows, prefix, names + own);
    if (status != ZUNDO_OK) {
        freeNames(names);
        traceOutOfMemory("genericGetAttributes");
        return status;
    }
    *out = names;
    return ZUNDO_OK;
}

}  // namespace

const zundo_attribute_info_s *findAttributeInfo(const zundo_attribute_info_s *table, int rows,
                                                const char *name) {
    if (table == nullptr || name == nullptr) return nullptr;
    int lo = 0;
    int hi = rows - 2;
    while (lo <= hi) {
        int mid = (lo + hi) / 2;
        int order = std::strcmp(table[mid].name, name);
        if (order == 0) return &table[mid];
        if (order > 0) hi = mid - 1;
        else lo = mid + 1;
    }
    return nullptr;
}

zundo_int_attribute_s *genericGet(const zundo_attribute_info_s *table, int rows, void *data,
                                  const char *name) {
    const zundo_attribute_info_s *row = findAttributeInfo(table, rows, name);
    if (row == nullptr || data == nullptr) return nullptr;
    zundo_int_attribute_s *attribute = nullptr;
    if (!isPointerKind(row->kind)) {
        if (newAttribute(&attribute, name, row->kind, fieldAddress(data, row)) != ZUNDO_OK)
            return nullptr;
    } else {
        void **values = *pointerField(data, row);
        const void *first = arrayIsEmpty(values) ? nullptr : values[0];
        if (newAttribute(&attribute, name, row->kind, first) != ZUNDO_OK) return nullptr;
        for (int i = 1; first != nullptr && values[i] != nullptr; i++) {
            if (addValue(attribute, values[i]) != ZUNDO_OK) {
                destroyAttribute(attribute);
                return nullptr;
            }
        }
    }
    attribute->hasNotSetValue = row->hasNotSetValue;
    if (row->hasNotSetValue) attribute->notSetValue = row->notSetValue;
    return attribute;
}

zundo_status_t initializeAttribute(const zundo_attribute_info_s *table, int rows,
                                   const char *name, zundo_int_attribute_s *attribute) {
    const zundo_attribute_info_s *row = findAttributeInfo(table, rows, name);
    if (row == nullptr) {
        zundo_trace("Failed to initialize the attribute %s. NULL attribute info!\n", name);
        return ZUNDO_NOT_FOUND;
    }
    if (attribute == nullptr) return ZUNDO_INVALID_ARGUMENT;
    if (std::strcmp(attribute->kind, row->kind) != 0) {
        zundotrace(0, "Incorrect attribute type for %s. It is %s and it should be %s", name,
                   attribute->kind, row->kind);
        zundo_trace("Incorrect attribute type for %s. It is %s and it should be %s", name,
                    attribute->kind, row->kind);
        return ZUNDO_INVALID_ARGUMENT;
    }
    attribute->hasNotSetValue = row->hasNotSetValue;
    attribute->notSetValue = row->notSetValue;
    return ZUNDO_OK;
}

zundo_status_t genericSet(const zundo_attribute_info_s *table, int rows, void *data,
                          const char *name, zundo_int_attribute_s *attribute) {
    const zundo_attribute_info_s *row = findAttributeInfo(table, rows, name);
    if (row == nullptr || data == nullptr) return ZUNDO_NOT_FOUND;
    if (attribute == nullptr) return ZUNDO_INVALID_ARGUMENT;
    resetIterator(attribute);
    if (!isPointerKind(row->kind)) {
        // A numeric field always holds a number; an attribute without one
        // cannot say which.
        if (attribute->count == 0) return ZUNDO_INVALID_ARGUMENT;
        if (kindIs(row->kind, ZUNDO_KIND_INTEGER))
            *reinterpret_cast<int *>(fieldAddress(data, row)) =
                *static_cast<const int *>(valueAt(attribute, 0));
        else
            *reinterpret_cast<double *>(fieldAddress(data, row)) =
                *static_cast<const double *>(valueAt(attribute, 0));
        return ZUNDO_OK;
    }
    // The new array is made first: when that fails the field keeps its old
    // values, which the incoming attribute may share.
    void **values = nullptr;
    zundo_status_t status = buildValueArray(row, attribute, &values);
    if (status != ZUNDO_OK) return status;
    void ***field = pointerField(data, row);
    freeValueList(row->kind, *field, attribute);
    *field = values;
    return ZUNDO_OK;
}

void initializeNotSetValues(const zundo_attribute_info_s *table, void *data) {
    if (table == nullptr || data == nullptr) return;
    for (const zundo_attribute_info_s *row = table; row->name != nullptr; row++) {
        if (!row->hasNotSetValue) continue;
        if (kindIs(row->kind, ZUNDO_KIND_INTEGER))
            *reinterpret_cast<int *>(fieldAddress(data, row)) = static_cast<int>(row->notSetValue);
        else if (kindIs(row->kind, ZUNDO_KIND_DOUBLE))
            *reinterpret_cast<double *>(fieldAddress(data, row)) = row->notSetValue;
    }
}

void genericDestroy(const zundo_attribute_info_s *table, void *data) {
    if (table == nullptr || data == nullptr) return;
    for (const zundo_attribute_info_s *row = table; row->name != nullptr; row++) {
        if (!isPointerKind(row->kind)) continue;
        void ***field = pointerField(data, row);
        freeArrayValues(row->kind, *field);
        *field = nullptr;
    }
}

zundo_status_t genericClone(const zundo_attribute_info_s *table, const zundo_int_object_s *source,
                            zundo_int_object_s *copy) {
    if (source == nullptr || copy == nullptr) return ZUNDO_INVALID_ARGUMENT;
    for (const zundo_attribute_info_s *row = table; row != nullptr && row->name != nullptr;
         row++) {
        if (kindIs(row->kind, ZUNDO_KIND_INTEGER)) {
            *reinterpret_cast<int *>(fieldAddress(copy->data, row)) =
                *reinterpret_cast<int *>(fieldAddress(source->data, row));
            continue;
        }
        if (kindIs(row->kind, ZUNDO_KIND_DOUBLE)) {
            *reinterpret_cast<double *>(fieldAddress(copy->data, row)) =
                *reinterpret_cast<double *>(fieldAddress(source->data, row));
            continue;
        }
        void **values = *pointerField(source->data, row);
        if (arrayIsEmpty(values)) continue;
        if (arrayLength(values) == 1 && kindIs(row->kind, ZUNDO_KIND_STRING)) {
            void **single = static_cast<void **>(std::calloc(2, sizeof(void *)));
            char *text = single != nullptr ? strdup(static_cast<const char *>(values[0])) : nullptr;
            if (text == nullptr) {
                std::free(single);
                traceOutOfMemory("genericClone");
                return ZUNDO_OUT_OF_MEMORY;
            }
            single[0] = text;
            void ***field = pointerField(copy->data, row);
            freeArrayValues(row->kind, *field);
            *field = single;
            continue;
        }
        cloneThroughAttributes(row, source, copy);
    }
    return ZUNDO_OK;
}

int genericCompare(const zundo_attribute_info_s *table, const zundo_int_object_s *a,
                   const zundo_int_object_s *b) {
    if (a == b) return 0;
    if (a == nullptr || b == nullptr) return 1;
    if (table == nullptr) return 0;
    for (const zundo_attribute_info_s *row = table; row->name != nullptr; row++)
        if (!fieldsEqual(row, a, b)) return 1;
    return 0;
}

zundo_status_t genericGetAttributes(const zundo_attribute_info_s *table, int rows, char ***out) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    return listNames(table, rows, nullptr, 0, nullptr, out);
}

zundo_status_t getPrefixedAttributes(const zundo_attribute_info_s *table, int rows, char ***out,
                                     const zundo_attribute_info_s *sharedTable, int sharedRows,
                                     const char *prefix) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    return listNames(table, rows, sharedTable, sharedRows, prefix, out);
}
