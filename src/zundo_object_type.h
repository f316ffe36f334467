// The hooks every object type shares, written once. A type is described by a
// constant zundo_object_type_s; the hook templates below are instantiated on
// that description, so a type supplies only its table (found by its type
// string), its validation rules and what is truly special about it.
#ifndef ZUNDO_OBJECT_TYPE_H
#define ZUNDO_OBJECT_TYPE_H

#include <cstdlib>
#include <cstring>

#include "catalogue/type_tables.h"
#include "zundo_object.h"
#include "zundo_trace.h"

struct zundo_object_type_s {
    const char *type;          // the type string, e.g. "ZUNDO_STITCHING"
    const char *wrongObjectMessage;  // traced when destroy gets another type
    size_t recordSize;         // sizeof the type's data record
    // Rules beyond the value kind, run only after initializeAttribute has
    // accepted the attribute; null when the type has none. The iterator is
    // reset before and after.
    zundo_status_t (*validate)(void *data, const char *name, zundo_int_attribute_s *attribute);
    // A fresh object with arguments that pass validation, used by clone;
    // a type without one cannot be cloned.
    zundo_status_t (*newNeutral)(zundo_int_object_s **out);
    // Frees members of the record that are not table fields; may be null.
    void (*releaseExtra)(void *data);
    // Compares members that are not table fields (0 equal); may be null.
    int (*compareExtra)(const zundo_int_object_s *a, const zundo_int_object_s *b);
    // Copies what the table does not hold (the print-parameter block behind
    // an owner, a job's documents) after the fields; may be null.
    zundo_status_t (*cloneExtra)(zundo_int_object_s *copy, const zundo_int_object_s *source);
};

template <const zundo_object_type_s &T>
const zundo_type_table_s *typeTable() {
    static const zundo_type_table_s *table = findTypeTable(T.type);
    return table;
}

template <const zundo_object_type_s &T>
zundo_int_attribute_s *typeGet(void *data, const char *name) {
    const zundo_type_table_s *t = typeTable<T>();
    return genericGet(t->table, t->rows, data, name);
}

template <const zundo_object_type_s &T>
zundo_status_t typeSet(void *data, zundo_int_attribute_s *attribute) {
    const zundo_type_table_s *t = typeTable<T>();
    const char *name = getName(attribute);
    zundo_status_t status = initializeAttribute(t->table, t->rows, name, attribute);
    if (status != ZUNDO_OK) return status;
    if (T.validate != nullptr) {
        resetIterator(attribute);
        status = T.validate(data, name, attribute);
        resetIterator(attribute);
        if (status != ZUNDO_OK) return status;
    }
    return genericSet(t->table, t->rows, data, name, attribute);
}

template <const zundo_object_type_s &T>
void typeDestroy(zundo_int_object_s *object) {
    if (object == nullptr || object->type == nullptr || std::strcmp(object->type, T.type) != 0) {
        zundo_trace("%s", T.wrongObjectMessage);
        return;
    }
    if (T.releaseExtra != nullptr) T.releaseExtra(object->data);
    genericDestroy(typeTable<T>()->table, object->data);
    std::free(object->data);
    object->data = nullptr;
}

template <const zundo_object_type_s &T>
zundo_status_t typeClone(zundo_int_object_s **out, const zundo_int_object_s *source) {
    if (out == nullptr || source == nullptr) return ZUNDO_INVALID_ARGUMENT;
    // Another type's record does not fit this type's table.
    if (std::strcmp(source->type, T.type) != 0) return ZUNDO_INVALID_ARGUMENT;
    zundo_int_object_s *copy = nullptr;
    zundo_status_t status = T.newNeutral(&copy);
    if (status != ZUNDO_OK) return status;
    status = genericClone(typeTable<T>()->table, source, copy);
    if (status == ZUNDO_OK && T.cloneExtra != nullptr) status = T.cloneExtra(copy, source);
    if (status != ZUNDO_OK) {
        destroy(copy);
        return status;
    }
    *out = copy;
    return ZUNDO_OK;
}

template <const zundo_object_type_s &T>
int typeCompare(const zundo_int_object_s *a, const zundo_int_object_s *b) {
    if (a == b) return 0;
    if (a == nullptr || b == nullptr) return 1;
    // Another type's record does not fit this type's table.
    if (std::strcmp(a->type, T.type) != 0 || std::strcmp(b->type, T.type) != 0) return 1;
    if (genericCompare(typeTable<T>()->table, a, b) != 0) return 1;
    return T.compareExtra != nullptr ? T.compareExtra(a, b) : 0;
}

// Allocates the record with every numeric field at its not-set value and
// wraps it in a shell with the type's hooks. `operation` names the
// constructor in the out-of-memory trace.
template <const zundo_object_type_s &T>
zundo_status_t newTypedObject(zundo_int_object_s **out, const char *operation) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    void *data = std::calloc(1, T.recordSize);
    if (data == nullptr) {
        traceOutOfMemory(operation);
        return ZUNDO_OUT_OF_MEMORY;
    }
    initializeNotSetValues(typeTable<T>()->table, data);
    zundo_int_object_s *object = nullptr;
    if (newObject(&object, T.type, data) != ZUNDO_OK) {
        std::free(data);
        return ZUNDO_ERROR;
    }
    object->destroyHook = typeDestroy<T>;
    object->getHook = typeGet<T>;
    object->setHook = typeSet<T>;
    object->cloneHook = T.newNeutral != nullptr ? typeClone<T> : nullptr;
    object->compareHook = typeCompare<T>;
    *out = object;
    return ZUNDO_OK;
}

#endif
