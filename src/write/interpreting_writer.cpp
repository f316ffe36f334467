// RIP parameters and AFP resources of the job.
#include "write/interpreting_writer.h"

#include "enums/value_tables.h"
#include "write/jdf_attr.h"
#include "write/number_format.h"
#include "write/object_values.h"
#include "write/resource_getters.h"
#include "xml/jdf_entries.h"
#include "zundo_trace.h"

namespace {

enum RipValueForm { kRipSwitch, kRipChoice, kRipNumber };

struct RipParamRow {
    const char *attribute;
    const char *jdfName;
    RipValueForm form;
    const zundo_enum_pair_s *values;  // for kRipChoice
};

const RipParamRow kRipParamRows[] = {
    {"rip-params-black-detection", "BlackDetection", kRipSwitch, nullptr},
    {"rip-params-brightness", "Brightness", kRipChoice, ripParamsBrightnessValues},
    {"rip-params-combined-separations", "CombinedSeparations", kRipSwitch, nullptr},
    {"rip-params-create-master", "CreateMaster", kRipNumber, nullptr},
    {"rip-params-digital-press-mode", "DigitalPressMode", kRipChoice,
     ripParamsDigitalPressModeValues},
    {"rip-params-image-smooth", "ImageSmooth", kRipChoice, ripParamsImageSmoothValues},
    {"rip-params-mirror", "Mirror", kRipSwitch, nullptr},
    {"rip-params-negative", "Negative", kRipSwitch, nullptr},
    {"rip-params-print-mode", "PrintMode", kRipChoice, ripParamsPrintModeValues},
    {"rip-params-remove-white-ppt-background", "RemoveWhitePPTBackground", kRipSwitch, nullptr},
    {"rip-params-text-graphic-enhancement", "TextGraphicEnhancement", kRipSwitch, nullptr},
    {"rip-params-use-master", "UseMaster", kRipNumber, nullptr},
};

struct AFPResourceRow {
    const char *attribute;
    const char *resourceType;
    const char *what;  // for the trace
};

const AFPResourceRow kAFPResourceRows[] = {
    {"job-form-definition", "FormDefinition", "form definition"},
    {"job-page-definition", "PageDefinition", "page definition"},
};

// Null for a choice without a spelling, which is then left out.
const char *ripParamText(const RipParamRow &row, int value, char *buffer, size_t size) {
    switch (row.form) {
    case kRipSwitch:
        return value != 0 ? "true" : "false";
    case kRipChoice:
        return jdfNameForCode(row.values, value);
    case kRipNumber:
        return formatInteger(buffer, size, value);
    }
    return nullptr;
}

zundo_status_t setTraced(xercesc::DOMElement *element, const char *name, const char *value) {
    zundo_status_t status = setNamedAttribute(element, name, value);
    succeededTraced(status);
    return status;
}

}  // namespace

zundo_status_t writeInterpretingParams(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> Entering writeInterpretingParams\n");
    zundo_status_t status = ZUNDO_OK;
    zundo_int_object_s *ripParams = FetchedAttribute(job, "job-rip-params").firstObject();
    if (ripParams != nullptr) {
        xercesc::DOMElement *params = getInterpretingParams(ctx);
        ElementEntry vendor = {nullptr, "morvellan:MorvellanInterpretingParams", nullptr, nullptr};
        status = params != nullptr ? createChildElement(params, &vendor).status : ZUNDO_ERROR;
        if (succeededTraced(status)) {
            for (const RipParamRow &row : kRipParamRows) {
                FetchedAttribute value(ripParams, row.attribute);
                char number[kNumberTextSize];
                const char *text =
                    value.hasValue() ? ripParamText(row, value.firstInt(0), number, sizeof number)
                                     : nullptr;
                if (text != nullptr) status = setTraced(vendor.element, row.jdfName, text);
            }
        }
    }
    zundo_trace("<< Leaving writeInterpretingParams\n");
    return status;
}

zundo_status_t writeAFPResources(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> Entering writeAFPResources\n");
    zundo_status_t status = ZUNDO_OK;
    for (const AFPResourceRow &row : kAFPResourceRows) {
        FetchedAttribute name(job, row.attribute);
        if (!name.hasValue()) continue;
        zundo_trace("\t %s = %s \n", row.what, name.firstString());
        xercesc::DOMElement *alias = getPDLResourceAlias(ctx);
        if (alias == nullptr) {
            status = ZUNDO_ERROR;
            continue;
        }
        status = setTraced(alias, "SourceName", name.firstString());
        if (status == ZUNDO_OK) status = setTraced(alias, "ResourceType", row.resourceType);
    }
    zundo_trace("<< Leaving writeAFPResources\n");
    return status;
}
