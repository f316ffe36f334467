// The colour conversion operations of ColorSpaceConversionParams: settings
// for one pair of object kinds and colour space gather on one operation,
// while every ICC profile gets an operation of its own.
#include "write/colour_writers.h"

#include <cstdio>
#include <cstring>
#include <initializer_list>

#include "enums/value_tables.h"
#include "write/attribute_cascade.h"
#include "write/jdf_attr.h"
#include "write/media_writer.h"
#include "write/resource_getters.h"
#include "xml/partitions.h"
#include "zundo_trace.h"

const ObjectKindName kObjectKindNames[5] = {
    {"All", ""},
    {"ImagePhotographic", "-image"},
    {"LineArt", "-line-art"},
    {"SmoothShades", "-smooth-shades"},
    {"Text", "-text"},
};

namespace {

// "All" first, then the ICC spaces in the order they are written.
const ObjectKindName kColourSpaces[] = {
    {"All", ""},
    {"ICCCMYK", "-cmyk"},
    {"ICCGray", "-gray"},
    {"ICCRGB", "-rgb"},
};
const ObjectKindName kCompensationKinds[] = {
    {"All", ""},
    {"ImagePhotographic", "-image"},
    {"LineArt SmoothShades Text", "-line-art-smooth-shades-text"},
};
// Output profiles are written in this order of kinds.
const ObjectKindName kOutputProfileKinds[] = {
    {"All", ""},
    {"Text", "-text"},
    {"LineArt", "-line-art"},
    {"SmoothShades", "-smooth-shades"},
    {"ImagePhotographic", "-image"},
};

const size_t kNameSize = 96;

const char *composeName(char (&name)[kNameSize], const char *a, const char *b, const char *c = "",
                        const char *d = "") {
    // A name that does not fit is no attribute name: null, which every
    // setter and getter refuses.
    int length = std::snprintf(name, sizeof name, "%s%s%s%s", a, b, c, d);
    return length >= 0 && static_cast<size_t>(length) < sizeof name ? name : nullptr;
}

// The attributes by which an operation holds settings rather than a
// profile or a separation's object kinds.
const char *const kColourSettings[] = {
    "PreserveBlack",
    "morvellan:PreserveBlackMode",
    "morvellan:PreserveCMY",
    "morvellan:PreserveCMYMode",
    "morvellan:PreserveCMYSecondaries",
    "morvellan:BlackSubstitutionMethod",
    "morvellan:BlackSubstitutionCyan",
    "RGBGray2Black",
    "RGBGray2BlackThreshold",
    "morvellan:BlackPointCompensation",
    "morvellan:RenderingIntentSource",
    "RenderingIntent",
};

bool isColourSetting(const char *name) {
    for (const char *setting : kColourSettings)
        if (std::strcmp(setting, name) == 0) return true;
    return false;
}

bool gathersSettings(const xercesc::DOMElement *op, const char *sourceObjects,
                     const char *sourceCS) {
    AttributeEntry **attrs = nullptr;
    getAttrs(op, &attrs);
    bool objectsMatch = false, spaceMatches = false, holdsSettings = false;
    for (AttributeEntry **entry = attrs; entry != nullptr && *entry != nullptr; ++entry) {
        if (std::strcmp((*entry)->name, "SourceObjects") == 0)
            objectsMatch = std::strcmp((*entry)->value, sourceObjects) == 0;
        else if (std::strcmp((*entry)->name, "SourceCS") == 0)
            spaceMatches = std::strcmp((*entry)->value, sourceCS) == 0;
        else
            holdsSettings = holdsSettings || isColourSetting((*entry)->name);
    }
    freeAttrList(attrs);
    return objectsMatch && spaceMatches && holdsSettings;
}

// The operation of ColorSpaceConversionParams that already holds settings
// for these object kinds and colour space, appended when there is none.
xercesc::DOMElement *findColorConversionOp(JDFWriteContext *ctx, const char *sourceObjects,
                                           const char *sourceCS) {
    xercesc::DOMElement *params = getColorSpaceConversionParams(ctx);
    if (params == nullptr) return nullptr;
    ElementEntry **children = nullptr;
    xercesc::DOMElement *found = nullptr;
    if (succeededTraced(findChildElements(params, &children).status)) {
        for (ElementEntry **child = children; *child != nullptr && found == nullptr; ++child)
            if (hasTagName((*child)->element, "ColorSpaceConversionOp") &&
                gathersSettings((*child)->element, sourceObjects, sourceCS))
                found = (*child)->element;
    }
    freeElementList(children);
    return found != nullptr ? found : appendColorConversionOp(params, sourceObjects, sourceCS);
}

void writeRenderingIntent(JDFWriteContext *ctx, zundo_int_object_s *job,
                          const ObjectKindName &space, const ObjectKindName &kind) {
    char name[kNameSize];
    composeName(name, "job-color-rendering-intent", space.suffix, kind.suffix);
    if (!objectHasValue(job, name)) return;
    xercesc::DOMElement *op = findColorConversionOp(ctx, kind.jdf, space.jdf);
    if (op == nullptr) return;
    writeElementValue(op, job, name, "RenderingIntent", kCodeValue, renderingIntentValues);
    // Only a single kind in an ICC space records where its intent came from.
    char source[kNameSize];
    if (*space.suffix != '\0' && *kind.suffix != '\0')
        writeElementValue(op, job, composeName(source, name, "-source"),
                          "morvellan:RenderingIntentSource", kCodeValue,
                          renderingIntentSourceValues);
}

// Settings that apply to all colour spaces, written with SourceCS "All".
struct OpValue {
    const char *suffix;  // follows the kind's part of the name
    const char *jdfName;
    ValueSpelling spelling;
    const zundo_enum_pair_s *values;
};

struct OpSetting {
    const char *writer;
    const char *prefix;
    // Null: one operation per object kind; otherwise the SourceObjects
    // of the one operation.
    const char *objects;
    OpValue values[3];  // up to the first without a jdf name
};

const OpSetting kRGBGray2Black = {"writeRGBGray2Black",
                                  "job-convert-rgb-gray-to-black",
                                  nullptr,
                                  {{"", "RGBGray2Black", kCodeValue, booleanValues},
                                   {"-threshold", "RGBGray2BlackThreshold", kRealValue, nullptr}}};
const OpSetting kCMYGray2Black = {
    "writeCMYGray2Black",
    "job-convert-cmy-gray-to-black",
    "LineArt Text",
    {{"", "morvellan:CMYGray2Black", kCodeValue, booleanValues},
     {"-threshold", "morvellan:CMYGray2BlackThreshold", kRealValue, nullptr}}};
const OpSetting kPreserveCMYColors = {
    "writePreserveCMYColors",
    "job-preserve-cmy-colors",
    nullptr,
    {{"", "morvellan:PreserveCMY", kCodeValue, booleanValues},
     {"-mode", "morvellan:PreserveCMYMode", kCodeValue, preserveCmyColorsModeValues},
     {"-secondaries", "morvellan:PreserveCMYSecondaries", kCodeValue, booleanValues}}};
const OpSetting kPreserveKBlack = {
    "writePreserveKBlack",
    "job-preserve-k-black",
    nullptr,
    {{"", "PreserveBlack", kCodeValue, booleanValues},
     {"-mode", "morvellan:PreserveBlackMode", kCodeValue, preserveKBlackModeValues}}};
const OpSetting kBlackSubstitution = {
    "writeBlackSubstitution",
    "job-black-substitution",
    "All",
    {{"-method", "morvellan:BlackSubstitutionMethod", kCodeValue, jobBlackSubstitutionMethodValues},
     {"-cyan", "morvellan:BlackSubstitutionCyan", kIntegerValue, nullptr}}};

void writeOpSettingFor(JDFWriteContext *ctx, zundo_int_object_s *job, const OpSetting &setting,
                       const char *sourceObjects, const char *kind) {
    char names[3][kNameSize] = {};
    bool present = false;
    for (int i = 0; i < 3 && setting.values[i].jdfName != nullptr; ++i) {
        composeName(names[i], setting.prefix, kind, setting.values[i].suffix);
        present = present || objectHasValue(job, names[i]);
    }
    xercesc::DOMElement *op = present ? findColorConversionOp(ctx, sourceObjects, "All") : nullptr;
    for (int i = 0; op != nullptr && i < 3 && setting.values[i].jdfName != nullptr; ++i)
        writeElementValue(op, job, names[i], setting.values[i].jdfName, setting.values[i].spelling,
                          setting.values[i].values);
}

void writeOpSetting(JDFWriteContext *ctx, zundo_int_object_s *job, const OpSetting &setting) {
    zundo_trace(">> entering %s\n", setting.writer);
    if (setting.objects != nullptr) {
        writeOpSettingFor(ctx, job, setting, setting.objects, "");
    } else {
        for (const ObjectKindName &kind : kObjectKindNames)
            writeOpSettingFor(ctx, job, setting, kind.jdf, kind.suffix);
    }
    zundo_trace("<< leaving %s\n", setting.writer);
}

// The Front or Back partition, each made once; whichever comes first
// partitions the resource by Side. Profiles written there are to be used
// instead of those the print file embeds.
xercesc::DOMElement *getColorSpaceConversionSide(JDFWriteContext *ctx, bool back) {
    xercesc::DOMElement **side =
        back ? &ctx->colorSpaceConversionBack : &ctx->colorSpaceConversionFront;
    if (*side != nullptr) return *side;
    xercesc::DOMElement *params = getColorSpaceConversionParams(ctx);
    if (params == nullptr) return nullptr;
    setAttributeTraced(params, "ICCProfileUsage", "UseSupplied");
    setAttributeTraced(params, "PartIDKeys", "Side");
    *side = appendPartition(params, "Side", back ? "Back" : "Front");
    return *side;
}

// An operation of its own for one profile; media is the media whose
// profile it is, null for the job's.
void appendProfileOp(JDFWriteContext *ctx, xercesc::DOMElement *parent, const char *sourceObjects,
                     const char *sourceCS, const char *fileName, zundo_int_object_s *media) {
    xercesc::DOMElement *op =
        parent != nullptr ? appendColorConversionOp(parent, sourceObjects, sourceCS) : nullptr;
    if (op == nullptr) return;
    bool input = sourceCS != nullptr;
    xercesc::DOMElement *fileSpec =
        appendChildTraced(op, input ? "FileSpec" : "morvellan:FileSpec");
    if (fileSpec != nullptr) {
        setAttributeTraced(fileSpec, "ResourceUsage",
                           input ? "SourceProfile" : "FinalTargetDevice");
        setAttributeTraced(fileSpec, "UserFileName", fileName);
    }
    xercesc::DOMElement *source[] = {
        media != nullptr ? appendChildTraced(op, "SourceResource") : nullptr, nullptr};
    if (source[0] != nullptr) writeMedia(ctx, media, source, nullptr, nullptr);
}

// Back output profiles, then front, then input profiles; owner is the
// prefix of the object's attribute names.
void writeProfiles(JDFWriteContext *ctx, zundo_int_object_s *object, const char *owner,
                   zundo_int_object_s *media) {
    char name[kNameSize];
    for (bool back : {true, false}) {
        for (const ObjectKindName &kind : kOutputProfileKinds) {
            FetchedAttribute profile(object, composeName(name, owner, "-color-profile-output",
                                                         kind.suffix, back ? "-back" : "-front"));
            if (profile.hasValue())
                appendProfileOp(ctx, getColorSpaceConversionSide(ctx, back), kind.jdf, nullptr,
                                profile.firstString(), media);
        }
    }
    for (size_t space = 1; space < sizeof kColourSpaces / sizeof kColourSpaces[0]; ++space) {
        for (const ObjectKindName &kind : kObjectKindNames) {
            FetchedAttribute profile(object, composeName(name, owner, "-color-profile-input",
                                                         kColourSpaces[space].suffix, kind.suffix));
            if (profile.hasValue())
                appendProfileOp(ctx, getColorSpaceConversionParams(ctx), kind.jdf,
                                kColourSpaces[space].jdf, profile.firstString(), media);
        }
    }
}

// The first LayoutElement of the ResourcePool, or null.
xercesc::DOMElement *firstLayoutElement(JDFWriteContext *ctx) {
    ElementEntry **resources = nullptr;
    xercesc::DOMElement *found = nullptr;
    if (ctx->resourcePool != nullptr &&
        succeededTraced(findChildElements(ctx->resourcePool, &resources).status)) {
        for (ElementEntry **resource = resources; *resource != nullptr && found == nullptr;
             ++resource)
            if (hasTagName((*resource)->element, "LayoutElement")) found = (*resource)->element;
    }
    freeElementList(resources);
    return found;
}

void writeReferenceOutputProfile(JDFWriteContext *ctx, zundo_int_object_s *job) {
    FetchedAttribute profile(job, "job-color-profile-reference-output");
    xercesc::DOMElement *layoutElement = profile.hasValue() ? firstLayoutElement(ctx) : nullptr;
    xercesc::DOMElement *colorParams =
        layoutElement != nullptr ? appendChildTraced(layoutElement, "ElementColorParams") : nullptr;
    xercesc::DOMElement *fileSpec =
        colorParams != nullptr ? appendChildTraced(colorParams, "FileSpec") : nullptr;
    if (fileSpec == nullptr) return;
    setAttributeTraced(fileSpec, "ResourceUsage", "ReferenceOutputProfile");
    setAttributeTraced(fileSpec, "UserFileName", profile.firstString());
}

const ElementValueRow kEmbeddedProfileRows[] = {
    {"job-ignore-embedded-cmyk-profile", "morvellan:IgnoreEmbeddedCMYKProfile", kCodeValue,
     booleanValues},
    {"job-ignore-embedded-gray-profile", "morvellan:IgnoreEmbeddedGrayProfile", kCodeValue,
     booleanValues},
    {"job-ignore-embedded-rgb-profile", "morvellan:IgnoreEmbeddedRGBProfile", kCodeValue,
     booleanValues},
    {nullptr, nullptr, kTextValue, nullptr},
};

const ObjectValueRow kOutputIntentRows[] = {
    {"job-use-pdfx-output-intent-profile", "morvellan:UseOutputIntentProfile", booleanValues,
     getColorSpaceConversionParams},
    {"job-use-pdfx-output-intent-profile-as-input", "morvellan:UseOutputIntentProfileAsInput",
     booleanValues, getColorSpaceConversionParams},
    {nullptr, nullptr, nullptr, nullptr},
};

}  // namespace

void writeElementValue(xercesc::DOMElement *element, zundo_int_object_s *object,
                       const char *attribute, const char *jdfName, ValueSpelling spelling,
                       const zundo_enum_pair_s *values) {
    const ElementValueRow rows[] = {{attribute, jdfName, spelling, values},
                                    {nullptr, nullptr, kTextValue, nullptr}};
    writeElementValues(element, object, rows);
}

bool hasAnyElementValue(zundo_int_object_s *object, const ElementValueRow *rows) {
    for (const ElementValueRow *row = rows; row->attribute != nullptr; ++row)
        if (objectHasValue(object, row->attribute)) return true;
    return false;
}

xercesc::DOMElement *appendColorConversionOp(xercesc::DOMElement *parent, const char *sourceObjects,
                                             const char *sourceCS) {
    xercesc::DOMElement *op = appendChildTraced(parent, "ColorSpaceConversionOp");
    if (op == nullptr) return nullptr;
    setAttributeTraced(op, "Operation", "Convert");
    setAttributeTraced(op, "SourceObjects", sourceObjects);
    if (sourceCS != nullptr) setAttributeTraced(op, "SourceCS", sourceCS);
    return op;
}

void writeOutputIntentProfileUse(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeOutputIntentProfileUse\n");
    writeObjectValues(ctx, job, kOutputIntentRows);
    zundo_trace("<< leaving writeOutputIntentProfileUse\n");
}

void writeICCProfile(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeICCProfile\n");
    if (hasAnyElementValue(job, kEmbeddedProfileRows)) {
        xercesc::DOMElement *params = getColorSpaceConversionParams(ctx);
        writeElementValues(params, job, kEmbeddedProfileRows);
        if (params != nullptr) setAttributeTraced(params, "ICCProfileUsage", "UseSupplied");
    }
    writeProfiles(ctx, job, "job", nullptr);
    writeReferenceOutputProfile(ctx, job);
    zundo_trace("<< leaving writeICCProfile\n");
}

void writeMediaColorProfiles(JDFWriteContext *ctx, zundo_int_object_s *media) {
    writeProfiles(ctx, media, "media", media);
}

void writeColorRenderingIntent(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeColorRenderingIntent\n");
    const ObjectKindName &all = kObjectKindNames[0];
    writeRenderingIntent(ctx, job, kColourSpaces[0], all);
    for (size_t space = 1; space < sizeof kColourSpaces / sizeof kColourSpaces[0]; ++space)
        for (const ObjectKindName &kind : kObjectKindNames)
            writeRenderingIntent(ctx, job, kColourSpaces[space], kind);
    for (const ObjectKindName &kind : kObjectKindNames)
        if (&kind != &all) writeRenderingIntent(ctx, job, kColourSpaces[0], kind);
    zundo_trace("<< leaving writeColorRenderingIntent\n");
}

void writeBlackPointCompensation(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeBlackPointCompensation\n");
    char name[kNameSize];
    for (const ObjectKindName &space : kColourSpaces) {
        for (const ObjectKindName &kind : kCompensationKinds) {
            composeName(name, "job-black-point-compensation", space.suffix, kind.suffix);
            xercesc::DOMElement *op = objectHasValue(job, name)
                                          ? findColorConversionOp(ctx, kind.jdf, space.jdf)
                                          : nullptr;
            writeElementValue(op, job, name, "morvellan:BlackPointCompensation", kCodeValue,
                              booleanValues);
        }
    }
    zundo_trace("<< leaving writeBlackPointCompensation\n");
}

void writeRGBGray2Black(JDFWriteContext *ctx, zundo_int_object_s *job) {
    writeOpSetting(ctx, job, kRGBGray2Black);
}

void writeCMYGray2Black(JDFWriteContext *ctx, zundo_int_object_s *job) {
    writeOpSetting(ctx, job, kCMYGray2Black);
}

void writePreserveCMYColors(JDFWriteContext *ctx, zundo_int_object_s *job) {
    writeOpSetting(ctx, job, kPreserveCMYColors);
}

void writePreserveKBlack(JDFWriteContext *ctx, zundo_int_object_s *job) {
    writeOpSetting(ctx, job, kPreserveKBlack);
}

void writeBlackSubstitution(JDFWriteContext *ctx, zundo_int_object_s *job) {
    writeOpSetting(ctx, job, kBlackSubstitution);
}
