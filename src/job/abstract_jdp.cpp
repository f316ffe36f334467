// The shared print-parameter block. Its table names the fields without the
// owner's prefix, so get and set strip the prefix before the lookup and
// keep the full name towards the caller.
#include "job/abstract_jdp.h"

#include <cstdlib>
#include <cstring>

#include "catalogue/job_records.h"
#include "catalogue/type_names.h"
#include "validation_rules.h"
#include "zundo_object_type.h"
#include "zundo_trace.h"

namespace {

// Validated by blockSet, which needs the full name; no clone hook, since
// owners copy their block explicitly.
const zundo_object_type_s kBlockType = {
    ZUNDO_TYPE_ABSTRACT_JDP, "passed invalid object to destroyAbstractJDP\n",
    sizeof(zundo_abstract_jdp_data_s), nullptr, nullptr, nullptr, nullptr, nullptr,
};

// The name the block's table knows: the owner's prefix is skipped when the
// name carries it, so "job-media" and "media" both reach the same field.
const char *strippedName(const zundo_abstract_jdp_data_s *block, const char *name) {
    if (block->prefix != nullptr && std::strstr(name, block->prefix) != nullptr)
        return name + std::strlen(block->prefix);
    return name;
}

// Rules of the block's own attributes, on the stripped name; messages carry
// the full name the caller used.
const zundo_rule_s kBlockRules[] = {
    {{"number-up-distribution"}, ZUNDO_RULE_NON_BLANK, kSpacesText},
    {{"number-up-distribution"}, ZUNDO_RULE_NO_BLANKS, kSpacesText},
    {{"output-bin-name"}, ZUNDO_RULE_NON_BLANK},
    {{"number-up-x", "number-up-y"}, ZUNDO_RULE_AT_LEAST,
     "Attempted to set %s to %i. Must be a value greater than 0.\n", 0},
    {{"number-up-scb-lower-left-x", "number-up-scb-lower-left-y", "number-up-scb-upper-right-x",
      "number-up-scb-upper-right-y"},
     ZUNDO_RULE_AT_LEAST, "Attempted to set %s to %f. Must be a value greater than or equal to 0.\n",
     0},
    {},
};

zundo_int_attribute_s *blockGet(void *data, const char *name) {
    auto *block = static_cast<zundo_abstract_jdp_data_s *>(data);
    if (block == nullptr || name == nullptr) return nullptr;
    const char *field = strippedName(block, name);
    zundo_int_attribute_s *attribute =
        genericGet(abstractJdpAttributes, abstractJdpAttributeRows, data, field);
    if (attribute == nullptr || field == name) return attribute;
    char *fullName = strdup(name);
    if (fullName == nullptr) {
        destroyAttribute(attribute);
        traceOutOfMemory("get");
        return nullptr;
    }
    std::free(attribute->name);
    attribute->name = fullName;
    return attribute;
}

zundo_status_t blockSet(void *data, zundo_int_attribute_s *attribute) {
    auto *block = static_cast<zundo_abstract_jdp_data_s *>(data);
    const char *name = getName(attribute);
    if (block == nullptr || name == nullptr) return ZUNDO_INVALID_ARGUMENT;
    const char *field = strippedName(block, name);
    zundo_status_t status =
        initializeAttribute(abstractJdpAttributes, abstractJdpAttributeRows, field, attribute);
    if (status != ZUNDO_OK) return status;
    status = applyRules(kBlockRules, field, attribute, name);
    if (status != ZUNDO_OK) return status;
    return genericSet(abstractJdpAttributes, abstractJdpAttributeRows, data, field, attribute);
}

}  // namespace

zundo_status_t newAbstractJDP(zundo_int_object_s **out, const char *prefix) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    zundo_int_object_s *block = nullptr;
    zundo_status_t status = newTypedObject<kBlockType>(&block, "newAbstractJDP");
    if (status != ZUNDO_OK) return status;
    static_cast<zundo_abstract_jdp_data_s *>(block->data)->prefix = prefix;
    block->getHook = blockGet;
    block->setHook = blockSet;
    *out = block;
    return ZUNDO_OK;
}

zundo_int_object_s *followingAbstractJDP(const zundo_int_object_s *owner) {
    if (owner == nullptr || owner->next == nullptr) return nullptr;
    return kindIs(owner->next->type, ZUNDO_TYPE_ABSTRACT_JDP) ? owner->next : nullptr;
}

int compareFollowingAbstractJDPs(const zundo_int_object_s *a, const zundo_int_object_s *b) {
    const zundo_int_object_s *blockA = followingAbstractJDP(a);
    const zundo_int_object_s *blockB = followingAbstractJDP(b);
    if (blockA == nullptr || blockB == nullptr) return 1;
    return compareObjects(blockA, blockB);
}

zundo_status_t copyFollowingAbstractJDP(zundo_int_object_s *copy,
                                        const zundo_int_object_s *source) {
    zundo_int_object_s *target = followingAbstractJDP(copy);
    const zundo_int_object_s *origin = followingAbstractJDP(source);
    if (target == nullptr || origin == nullptr) return ZUNDO_ERROR;
    return genericClone(abstractJdpAttributes, origin, target);
}
