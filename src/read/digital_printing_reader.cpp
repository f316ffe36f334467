// DigitalPrintingParams: the printing settings of the job, its documents
// and page ranges.
#include "read/digital_printing_reader.h"

#include <cstring>

#include "catalogue/type_names.h"
#include "enums/value_tables.h"
#include "read/component_reader.h"
#include "read/insert_sheet_reader.h"
#include "read/partition_walk.h"
#include "read/reader_conversions.h"
#include "xml/index_lists.h"
#include "zundo_trace.h"

namespace {

// What the job, a document or a page range calls each setting; null where
// the object does not take it.
struct PrintingRoles {
    const char *collate;
    const char *jogOffset;
    const char *media;
    const char *outputBin;
    const char *pageDelivery;
    const char *carriageControl;
    const char *ejectToFrontFace;
    const char *tableReferenceChars;
    const char *ripSpool;
    const char *formDefinition;
    const char *pageDefinition;
};

const PrintingRoles kJobRoles = {
    "job-collate",
    "job-jog-offset",
    "job-media",
    "job-output-bin-name",
    "job-page-delivery",
    "job-carriage-control-type",
    "job-eject-to-front-face",
    "job-table-reference-chars",
    "job-use-rip-spool",
    "job-form-definition",
    "job-page-definition",
};
const PrintingRoles kDocumentRoles = {
    nullptr, nullptr, "document-media", nullptr, nullptr, nullptr,
    nullptr, nullptr, nullptr,          nullptr, nullptr,
};
const PrintingRoles kPageRangeRoles = {
    nullptr, nullptr, "page-range-media", "page-range-output-bin-name", nullptr, nullptr,
    nullptr, nullptr, nullptr,            nullptr,                      nullptr,
};

const PrintingRoles &rolesOf(const char *type) {
    if (std::strcmp(type, ZUNDO_TYPE_JOB) == 0) return kJobRoles;
    if (std::strcmp(type, ZUNDO_TYPE_DOCUMENT) == 0) return kDocumentRoles;
    return kPageRangeRoles;
}

enum Conversion { kText, kBoolean, kEnumeration };

// An attribute set as the role of the object, or under a fixed name
// whatever the object (the object decides whether it takes it).
struct PrintingAttribute {
    const char *jdf;
    Conversion conversion;
    const zundo_enum_pair_s *values;
    const char *PrintingRoles::*role;
    const char *fixedName;
};

const PrintingAttribute kAttributes[] = {
    {"Collate", kEnumeration, jobCollateValues, &PrintingRoles::collate, nullptr},
    {"OutputBin", kText, nullptr, &PrintingRoles::outputBin, nullptr},
    {"PageDelivery", kEnumeration, jobPageDeliveryValues, &PrintingRoles::pageDelivery, nullptr},
    {"PrintingType", kEnumeration, jobPrintingTypeValues, nullptr, "job-printing-type"},
    {"morvellan:CarriageControlType", kEnumeration, jobCarriageControlTypeValues,
     &PrintingRoles::carriageControl, nullptr},
    {"morvellan:DeliveryMethod", kEnumeration, deliveryMethodValues, nullptr,
     "job-delivery-method"},
    {"morvellan:EjectToFrontFace", kBoolean, nullptr, &PrintingRoles::ejectToFrontFace, nullptr},
    {"morvellan:TableReferenceChars", kBoolean, nullptr, &PrintingRoles::tableReferenceChars,
     nullptr},
    {"morvellan:UsePSDSCOptimization", kBoolean, nullptr, nullptr, "job-use-ps-dsc-optimization"},
    {"morvellan:UseRIPSpool", kBoolean, nullptr, &PrintingRoles::ripSpool, nullptr},
};

void setRoleInteger(zundo_int_object_s *object, const char *name, int value) {
    if (name != nullptr) setIntegerAttribute(object, name, value);
}

void setRoleText(zundo_int_object_s *object, const char *name, const char *value) {
    if (name != nullptr && value != nullptr) setStringAttribute(object, name, value);
}

bool applyTableAttribute(zundo_int_object_s *object, const PrintingRoles &roles,
                         const AttributeEntry &entry) {
    for (const PrintingAttribute &row : kAttributes) {
        if (std::strcmp(row.jdf, entry.name) != 0) continue;
        const char *name = row.role != nullptr ? roles.*row.role : row.fixedName;
        switch (row.conversion) {
        case kText: setRoleText(object, name, entry.value); break;
        case kBoolean: setRoleInteger(object, name, convertBoolean(entry.value)); break;
        case kEnumeration:
            setRoleInteger(object, name, codeForJDFName(row.values, entry.value));
            break;
        }
        return true;
    }
    return false;
}

// The job takes the interface box function of the resource itself, a page
// range that of its RunIndex partition; documents take none.
void applyInterfaceBoxFunction(zundo_int_object_s *object, const AttributeEntry &entry,
                               const char *docFilter, const char *runFilter) {
    int code = codeForJDFName(interfaceBoxFunctionValues, entry.value);
    if (docFilter != nullptr) return;
    if (runFilter == nullptr)
        setIntegerAttribute(object, "job-interface-box-function", code);
    else if (partitionMatches(nullptr, runFilter, entry.firstKey, entry.secondKey))
        setIntegerAttribute(object, "page-range-interface-box-function", code);
}

void applyAttributes(zundo_int_object_s *object, const PrintingRoles &roles,
                     AttributeEntry *const *attrs, const char *docFilter, const char *runFilter) {
    for (AttributeEntry *const *at = attrs; at != nullptr && *at != nullptr; ++at) {
        const AttributeEntry &entry = **at;
        if (applyTableAttribute(object, roles, entry)) continue;
        if (std::strcmp(entry.name, "morvellan:InterfaceBoxFunction") == 0) {
            applyInterfaceBoxFunction(object, entry, docFilter, runFilter);
        } else if (std::strcmp(entry.name, "morvellan:FuserSetting") == 0) {
            if (docFilter == nullptr && runFilter == nullptr)
                setIntegerAttribute(object, "job-fuser-setting",
                                    codeForJDFName(jobFuserSettingValues, entry.value));
        } else if (std::strcmp(entry.name, "Status") == 0 && textIs(entry.value, "Unavailable")) {
            // The retained job is not to be printed first.
            zundo_int_object_s *retain = firstObjectValue(object, "job-retain");
            if (retain != nullptr) setIntegerAttribute(retain, "retain-print-first", 0);
        }
    }
}

// unitsSeen: the OffsetUnits code read so far in this call, 0 when none; a
// direction other than Alternate or None only counts without units.
void readDisjointing(zundo_int_object_s *object, const PrintingRoles &roles,
                     xercesc::DOMElement *disjointing, int *unitsSeen) {
    AttributeEntry **attrs = nullptr;
    getAttrs(disjointing, &attrs);
    for (AttributeEntry **at = attrs; at != nullptr && *at != nullptr; ++at) {
        const AttributeEntry &entry = **at;
        if (std::strcmp(entry.name, "OffsetUnits") == 0) {
            *unitsSeen = codeForJDFName(jobJogOffsetValues, entry.value);
            setRoleInteger(object, roles.jogOffset, *unitsSeen);
        } else if (std::strcmp(entry.name, "OffsetDirection") == 0) {
            if (textIs(entry.value, "None"))
                setRoleInteger(object, roles.jogOffset, 1);
            else if (textIs(entry.value, "Alternate") || *unitsSeen == 0)
                setRoleInteger(object, roles.jogOffset, 2);
        } else if (std::strcmp(entry.name, "OffsetAmount") == 0) {
            setIntegerFromText(object, "job-jog-offset-amount", entry.value);
        }
    }
    freeAttrList(attrs);
}

void readDisjointingSheets(zundo_int_object_s *object, xercesc::DOMElement *disjointing,
                           IdElement **mediaList) {
    for (ElementEntry *child : ChildElements(disjointing))
        if (std::strcmp(child->name, "InsertSheet") == 0)
            readInsertSheetFromParams(object, child, mediaList);
}

// A copy of the media the MediaRef names becomes the object's media. The
// result is the status of that set, ZUNDO_OK when nothing was set.
zundo_status_t readMediaRef(zundo_int_object_s *object, const PrintingRoles &roles,
                            xercesc::DOMElement *mediaRef, IdElement **mediaList) {
    zundo_int_object_s *media = nullptr;
    replaceWithReferencedMedia(mediaRef, mediaList, &media);
    if (media == nullptr) return ZUNDO_OK;
    zundo_status_t status = setObjectAttribute(object, roles.media, media);
    if (status != ZUNDO_OK) destroy(media);
    return status;
}

zundo_status_t applyElements(zundo_int_object_s *object, const PrintingRoles &roles,
                             ElementEntry *const *elements, const char *docFilter,
                             const char *runFilter, IdElement **mediaList) {
    zundo_status_t status = ZUNDO_OK;
    int unitsSeen = 0;
    for (ElementEntry *const *at = elements; at != nullptr && *at != nullptr; ++at) {
        const ElementEntry &entry = **at;
        if (!partitionMatches(docFilter, runFilter, entry.firstKey, entry.secondKey)) continue;
        if (std::strcmp(entry.name, "Disjointing") == 0) {
            readDisjointing(object, roles, entry.element, &unitsSeen);
            readDisjointingSheets(object, entry.element, mediaList);
        } else if (std::strcmp(entry.name, "MediaRef") == 0) {
            status = readMediaRef(object, roles, entry.element, mediaList);
        } else if (std::strcmp(entry.name, "morvellan:AFPResources") == 0) {
            setRoleText(object, roles.formDefinition,
                        ElementAttribute(entry.element, "FormDef").value());
            setRoleText(object, roles.pageDefinition,
                        ElementAttribute(entry.element, "PageDef").value());
        }
    }
    return status;
}

}  // namespace

zundo_status_t readDigitalPrintingParamsResource(xercesc::DOMElement *resource,
                                                 zundo_int_object_s *ticket,
                                                 IdElement **mediaList) {
    ElementAttribute amount(resource, "DirectProofAmount");
    zundo_int_object_s *proof = nullptr;
    if (amount.value() != nullptr &&
        newProofPrint(&proof, convertLeadingDecimal(amount.value())) == ZUNDO_OK &&
        setObjectAttribute(getJob(ticket), "job-proof-print", proof) != ZUNDO_OK)
        destroy(proof);
    zundo_trace(">> Entering readDigitalPrintingParamsResource \n");
    zundo_status_t status = readResource(resource, ticket, mediaList, setDPAttrsToObject);
    zundo_trace("<< Leaving readDigitalPrintingParamsResource \n");
    return status;
}

zundo_status_t setDPAttrsToObject(zundo_int_object_s **object, AttributeEntry *const *attrs,
                                  ElementEntry *const *elements, const char *docFilter,
                                  const char *runFilter, IdElement **mediaList) {
    zundo_trace(">> Entering setDPAttrsToObject \n");
    const char *type = object != nullptr ? getObjectType(*object) : nullptr;
    if (type == nullptr) return ZUNDO_ERROR;
    const PrintingRoles &roles = rolesOf(type);
    applyAttributes(*object, roles, attrs, docFilter, runFilter);
    zundo_status_t status =
        applyElements(*object, roles, elements, docFilter, runFilter, mediaList);
    zundo_trace("<< Leaving setDPAttrsToObject \n");
    return status;
}
