// RenderingParams, Ink and PrintCondition: job-level settings that no
// document or page range overrides.
#include "read/rendering_reader.h"

#include <cstdio>

#include "enums/value_tables.h"
#include "read/audit_pool_reader.h"
#include "read/colour_conversion_reader.h"
#include "read/reader_conversions.h"
#include "zundo_trace.h"

namespace {

enum OverprintConversion { kBoolean, kCode, kIntegerOrZero, kRealOrMinusOne };

struct OverprintRow {
    const char *jdf;
    OverprintConversion conversion;
    const char *name;
    const zundo_enum_pair_s *values;  // kCode only
};

// Levels and the size threshold are set whenever given, with a fallback
// for a text that does not convert.
const OverprintRow kOverprintRows[] = {
    {"OverPrintBlackText", kBoolean, "job-black-overprint-text", nullptr},
    {"TextSizeThreshold", kIntegerOrZero, "job-black-overprint-text-threshold", nullptr},
    {"TextBlackLevel", kRealOrMinusOne, "job-black-overprint-text-level", nullptr},
    {"LineArtBlackLevel", kRealOrMinusOne, "job-black-overprint-line-art-level", nullptr},
    {"morvellan:CMYKOverprintMode", kCode, "job-cmyk-overprint-mode", jobCmykOverprintModeValues},
    {"KnockOutCMYKWhite", kBoolean, "job-knockout-cmyk-white", nullptr},
    {"OverPrintBlackLineArt", kBoolean, "job-black-overprint-line-art", nullptr},
};

void readOverprint(const xercesc::DOMElement *params, zundo_int_object_s *job) {
    for (const OverprintRow &row : kOverprintRows) {
        ElementAttribute text(params, row.jdf);
        if (text.value() == nullptr) continue;
        int integer = 0;
        double real = -1.0;
        switch (row.conversion) {
        case kBoolean: setIntegerAttribute(job, row.name, convertBoolean(text.value())); break;
        case kCode:
            setIntegerAttribute(job, row.name, codeForJDFName(row.values, text.value()));
            break;
        case kIntegerOrZero:
            setIntegerAttribute(job, row.name,
                                convertStringToInt(text.value(), &integer) ? integer : 0);
            break;
        case kRealOrMinusOne:
            setDoubleAttribute(job, row.name,
                               convertStringToDouble(text.value(), &real) ? real : -1.0);
            break;
        }
    }
}

// Separations of PrintCondition partitions and the density each stands for.
const char *const kMaximumDensities[][2] = {
    {"Cyan", "job-maximum-c-density"},
    {"Magenta", "job-maximum-m-density"},
    {"Black", "job-maximum-k-density"},
    {"Yellow", "job-maximum-y-density"},
};

}  // namespace

zundo_status_t readRenderingParamsResource(xercesc::DOMElement *resource,
                                           zundo_int_object_s *ticket) {
    zundo_trace(">> Entering readRenderingParamsResource \n");
    zundo_int_object_s *job = getJob(ticket);
    setBooleanIfPresent(job, "job-edge-enhancement", resource, "morvellan:EdgeEnhancement");
    setBooleanIfPresent(job, "job-thin-line-enhancement", resource,
                        "morvellan:ThinLineEnhancement");
    for (ElementEntry *child : ChildElements(resource)) {
        if (textIs(child->name, "AutomatedOverPrintParams")) {
            readOverprint(child->element, job);
        } else if (textIs(child->name, "ObjectResolution")) {
            ElementAttribute antiAliasing(child->element, "AntiAliasing");
            if (antiAliasing.value() != nullptr)
                setStringAttribute(job, "job-anti-aliasing", antiAliasing.value());
            setIntegerPairFromText(job, "job-output-resolution-x", "job-output-resolution-y",
                                   ElementAttribute(child->element, "Resolution").value());
        }
    }
    zundo_trace("<< Leaving readRenderingParamsResource \n");
    return ZUNDO_OK;
}

zundo_status_t readInkResource(xercesc::DOMElement *resource, zundo_int_object_s *ticket) {
    zundo_trace(">> Entering readInkResource \n");
    zundo_int_object_s *job = getJob(ticket);
    for (ElementEntry *child : ChildElements(resource)) {
        if (!textIs(child->name, "morvellan:TonerDetails")) continue;
        ElementAttribute mode(child->element, "SpecialTonerPrintMode");
        if (mode.value() != nullptr)
            setIntegerAttribute(job, "job-toner-limit-print-mode",
                                codeForJDFName(jobTonerLimitPrintModeValues, mode.value()));
        // Each TonerDetails gives its own limit; one that does not convert sets nothing.
        int limit = -1;
        const char *kind =
            objectKindSuffix(ElementAttribute(child->element, "SourceObjects").value());
        char name[64];
        if (kind != nullptr &&
            convertStringToInt(ElementAttribute(child->element, "TonerLimit").value(), &limit)) {
            std::snprintf(name, sizeof name, "job-toner-limit%s", kind);
            setIntegerAttribute(job, name, limit);
        }
    }
    readInkUsages(resource, job);
    zundo_trace("<< Leaving readInkResource \n");
    return ZUNDO_OK;
}

zundo_status_t readPrintConditionResource(xercesc::DOMElement *resource,
                                          zundo_int_object_s *ticket) {
    zundo_trace(">> Entering readPrintConditionResource \n");
    zundo_int_object_s *job = getJob(ticket);
    for (ElementEntry *child : ChildElements(resource)) {
        if (!textIs(child->name, "PrintCondition")) continue;
        ElementAttribute separation(child->element, "Separation");
        ElementAttribute density(child->element, "morvellan:MaxColorPlaneDensity");
        if (density.value() == nullptr) continue;
        for (const auto &row : kMaximumDensities)
            if (textIs(separation.value(), row[0]))
                setIntegerAttribute(job, row[1], convertBoolean(density.value()));
    }
    zundo_trace("<< Leaving readPrintConditionResource \n");
    return ZUNDO_OK;
}
