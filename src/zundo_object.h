// The object and attribute store shared by every object type: the object
// shell with its hooks, the attribute record, the attribute definition rows
// and the table-driven operations that the per-type hooks are built from.
#ifndef ZUNDO_OBJECT_H
#define ZUNDO_OBJECT_H

#include "zundo.h"

typedef void (*zundo_destroy_hook_t)(zundo_int_object_s *object);
typedef zundo_int_attribute_s *(*zundo_get_hook_t)(void *data, const char *name);
typedef zundo_status_t (*zundo_set_hook_t)(void *data, zundo_int_attribute_s *attribute);
typedef zundo_status_t (*zundo_clone_hook_t)(zundo_int_object_s **out,
                                             const zundo_int_object_s *object);
typedef int (*zundo_compare_hook_t)(const zundo_int_object_s *a, const zundo_int_object_s *b);

struct zundo_int_object_s {
    const char *type;  // constant type string, not owned
    void *data;        // the type's data record, owned
    zundo_int_object_s *next;
    int isExtension;
    zundo_destroy_hook_t destroyHook;
    zundo_get_hook_t getHook;
    zundo_set_hook_t setHook;
    zundo_clone_hook_t cloneHook;
    zundo_compare_hook_t compareHook;
};

struct zundo_int_attribute_s {
    char *name;        // private copy
    const char *kind;  // constant kind code, never copied
    void *values;      // int slots ("I"), double slots ("D") or pointer slots
    int count;
    int capacity;
    int position;      // iterator: index of the next value
    int hasNotSetValue;
    double notSetValue;
};

// One row of an attribute definition table. Tables are sorted by name in
// byte order and end with a row whose name is null.
struct zundo_attribute_info_s {
    const char *name;
    int fieldOffset;  // byte offset of the field in the type's data record
    const char *kind;
    int hasNotSetValue;
    double notSetValue;
};

// Value kinds by what the store does with them.
int isPointerKind(const char *kind);
int kindIs(const char *kind, const char *code);

// Object shell.
zundo_status_t newObject(zundo_int_object_s **out, const char *type, void *data);
void *getData(const zundo_int_object_s *object);
const char *getType(const zundo_int_object_s *object);

// Attribute definition tables. `rows` counts the terminating row.
const zundo_attribute_info_s *findAttributeInfo(const zundo_attribute_info_s *table, int rows,
                                                const char *name);
zundo_int_attribute_s *genericGet(const zundo_attribute_info_s *table, int rows, void *data,
                                  const char *name);
zundo_status_t initializeAttribute(const zundo_attribute_info_s *table, int rows,
                                   const char *name, zundo_int_attribute_s *attribute);
zundo_status_t genericSet(const zundo_attribute_info_s *table, int rows, void *data,
                          const char *name, zundo_int_attribute_s *attribute);
// Sets every numeric field of a fresh record to its not-set value.
void initializeNotSetValues(const zundo_attribute_info_s *table, void *data);
void genericDestroy(const zundo_attribute_info_s *table, void *data);
zundo_status_t genericClone(const zundo_attribute_info_s *table, const zundo_int_object_s *source,
                            zundo_int_object_s *copy);
int genericCompare(const zundo_attribute_info_s *table, const zundo_int_object_s *a,
                   const zundo_int_object_s *b);
zundo_status_t genericGetAttributes(const zundo_attribute_info_s *table, int rows, char ***out);
zundo_status_t getPrefixedAttributes(const zundo_attribute_info_s *table, int rows, char ***out,
                                     const zundo_attribute_info_s *sharedTable, int sharedRows,
                                     const char *prefix);

// Sets one value of `kind` (none when null), or a null-terminated list of
// them (none when null), through the object's set hooks, without the API
// trace of the typed setters. Objects and value objects pass to the object
// only when this succeeds.
zundo_status_t setSingleValue(zundo_int_object_s *object, const char *name, const char *kind,
                              const void *value);
zundo_status_t setValueList(zundo_int_object_s *object, const char *name, const char *kind,
                            const void *const *values);

// Values held by pointer-kind fields and attributes, handled by kind.
void destroyValueByKind(const char *kind, void *value);
zundo_status_t cloneValueByKind(const char *kind, const void *value, void **out);
int compareValueByKind(const char *kind, const void *a, const void *b);

// Attribute internals shared by the store's units.
int valueIsNotSet(const zundo_int_attribute_s *attribute, int index);
int countSetValues(const zundo_int_attribute_s *attribute);
const void *valueAt(const zundo_int_attribute_s *attribute, int index);

#endif
