// The object shell and the operations that walk an object's chain: get, set,
// destroy, clone, compare and attribute listing.
#include <cstdlib>
#include <cstring>
#include <vector>

#include "catalogue/type_names.h"
#include "catalogue/type_tables.h"
#include "zundo_object.h"
#include "zundo_trace.h"

namespace {

// The table of a type whose attributes are listed: every object type but the
// print-parameter block, which is listed only through its owner.
const zundo_type_table_s *listedTypeTable(const zundo_int_object_s *object) {
    const zundo_type_table_s *type = object != nullptr ? findTypeTable(object->type) : nullptr;
    if (type == nullptr || std::strcmp(type->type, ZUNDO_TYPE_ABSTRACT_JDP) == 0) return nullptr;
    return type;
}

}  // namespace

zundo_status_t newObject(zundo_int_object_s **out, const char *type, void *data) {
    if (out == nullptr) return ZUNDO_ERROR;
    auto *object = static_cast<zundo_int_object_s *>(std::calloc(1, sizeof(zundo_int_object_s)));
    if (object == nullptr) {
        traceOutOfMemory("newObject");
        return ZUNDO_OUT_OF_MEMORY;
    }
    object->type = type;
    object->data = data;
    *out = object;
    return ZUNDO_OK;
}

void *getData(const zundo_int_object_s *object) {
    if (object == nullptr) {
        zundo_trace("getData() received NULL @parameter.\n");
        return nullptr;
    }
    return object->data;
}

const char *getType(const zundo_int_object_s *object) {
    if (object == nullptr) {
        zundo_trace("getType() received NULL @parameter.\n");
        return nullptr;
    }
    return object->type;
}

extern "C" {

zundo_int_attribute_s *get(zundo_int_object_s *object, const char *name) {
    if (object == nullptr || name == nullptr) {
        zundo_trace("object and attribute name must be specified");
        return nullptr;
    }
    for (zundo_int_object_s *link = object; link != nullptr; link = link->next) {
        if (link->getHook == nullptr) continue;
        zundo_int_attribute_s *attribute = link->getHook(link->data, name);
        if (attribute != nullptr) return attribute;
    }
    return nullptr;
}

zundo_status_t set(zundo_int_object_s *object, zundo_int_attribute_s *attribute) {
    if (attribute == nullptr) return ZUNDO_INVALID_ARGUMENT;
    zundo_status_t status = ZUNDO_NOT_FOUND;
    for (zundo_int_object_s *link = object; link != nullptr; link = link->next) {
        status = link->setHook != nullptr ? link->setHook(link->data, attribute)
                                          : ZUNDO_INVALID_ARGUMENT;
        if (status == ZUNDO_OK || status == ZUNDO_INVALID_ARGUMENT) break;
    }
    return status;
}

void destroy(zundo_int_object_s *object) {
    if (object == nullptr) {
        zundo_trace("object must be specified");
        return;
    }
    while (object != nullptr) {
        zundo_int_object_s *next = object->next;
        if (object->destroyHook != nullptr) object->destroyHook(object);
        else zundo_trace("No destroy function for the provided object.\n");
        std::memset(object, 0, sizeof(*object));
        std::free(object);
        object = next;
    }
}

const char *getObjectType(const zundo_int_object_s *object) {
    return object == nullptr ? nullptr : object->type;
}

zundo_int_object_s *cloneObj(const zundo_int_object_s *object) {
    if (object == nullptr || object->cloneHook == nullptr) return nullptr;
    zundo_int_object_s *copy = nullptr;
    if (object->cloneHook(&copy, object) != ZUNDO_OK) return nullptr;
    return copy;
}

int compareObjects(const zundo_int_object_s *a, const zundo_int_object_s *b) {
    if (a == nullptr && b == nullptr) return 0;
    if (a == nullptr || b == nullptr || a->compareHook == nullptr) return 1;
    return a->compareHook(a, b);
}

char **getAttributeNames(const zundo_int_object_s *object) {
    const zundo_type_table_s *type = listedTypeTable(object);
    if (type == nullptr) return nullptr;
    char **names = nullptr;
    zundo_status_t status;
    if (type->blockPrefix != nullptr) {
        const zundo_type_table_s *block = findTypeTable(ZUNDO_TYPE_ABSTRACT_JDP);
        status = getPrefixedAttributes(type->table, type->rows, &names, block->table, block->rows,
                                       type->blockPrefix);
    } else {
        status = genericGetAttributes(type->table, type->rows, &names);
    }
    return status == ZUNDO_OK ? names : nullptr;
}

void freeAttributeNames(char **names) {
    if (names == nullptr) return;
    for (char **name = names; *name != nullptr; name++) std::free(*name);
    std::free(names);
}

zundo_status_t getSetAttributes(zundo_int_object_s *object, zundo_int_attribute_s ***out) {
    if (object == nullptr || out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    if (listedTypeTable(object) == nullptr) return ZUNDO_NOT_FOUND;
    char **names = getAttributeNames(object);
    if (names == nullptr) return ZUNDO_OUT_OF_MEMORY;
    std::vector<zundo_int_attribute_s *> setOnes;
    for (char **name = names; *name != nullptr; name++) {
        zundo_int_attribute_s *attribute = get(object, *name);
        if (attribute != nullptr && hasNextValue(attribute)) setOnes.push_back(attribute);
        else destroyAttribute(attribute);
    }
    freeAttributeNames(names);
    auto **list = static_cast<zundo_int_attribute_s **>(
        std::calloc(setOnes.size() + 1, sizeof(zundo_int_attribute_s *)));
    if (list == nullptr) {
        for (zundo_int_attribute_s *attribute : setOnes) destroyAttribute(attribute);
        traceOutOfMemory("getSetAttributes");
        return ZUNDO_OUT_OF_MEMORY;
    }
    for (size_t i = 0; i < setOnes.size(); i++) list[i] = setOnes[i];
    *out = list;
    return ZUNDO_OK;
}

void freeSetAttributesList(zundo_int_attribute_s **list) {
    if (list == nullptr) return;
    for (zundo_int_attribute_s **attribute = list; *attribute != nullptr; attribute++)
        destroyAttribute(*attribute);
    std::free(list);
}

}  // extern "C"
