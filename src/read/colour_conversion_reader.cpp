// ColorSpaceConversionParams: each ColorSpaceConversionOp holds the settings
// of one pair of SourceObjects and SourceCS; the attribute it sets is named
// after the object kind and the colour space.
#include "read/colour_conversion_reader.h"

#include <cstdio>
#include <cstring>

#include "enums/value_tables.h"
#include "read/reader_conversions.h"
#include "zundo_trace.h"

namespace {

// A SourceObjects or SourceCS text and the part it adds to a name.
struct NamePart {
    const char *jdf;
    const char *suffix;
};

const NamePart kObjectKinds[] = {
    {"All", ""},
    {"ImagePhotographic", "-image"},
    {"LineArt", "-line-art"},
    {"SmoothShades", "-smooth-shades"},
    {"Text", "-text"},
};
const NamePart kColourSpaces[] = {
    {"All", ""},
    {"ICCCMYK", "-cmyk"},
    {"ICCGray", "-gray"},
    {"ICCRGB", "-rgb"},
};
// Black point compensation groups the kinds other than photographs.
const NamePart kCompensationKinds[] = {
    {"All", ""},
    {"ImagePhotographic", "-image"},
    {"LineArt SmoothShades Text", "-line-art-smooth-shades-text"},
};

template <size_t N>
const char *suffixFor(const NamePart (&parts)[N], const char *text) {
    for (const NamePart &part : parts)
        if (textIs(text, part.jdf)) return part.suffix;
    return nullptr;
}

// Room for the longest attribute name.
const size_t kNameSize = 96;

const char *composeName(char (&name)[kNameSize], const char *a, const char *b, const char *c = "",
                        const char *d = "") {
    // A name that does not fit is no attribute name: null, which every
    // setter and getter refuses.
    int length = std::snprintf(name, sizeof name, "%s%s%s%s", a, b, c, d);
    return length >= 0 && static_cast<size_t>(length) < sizeof name ? name : nullptr;
}

// The attributes of one ColorSpaceConversionOp, fetched once.
class OpAttributes {
public:
    explicit OpAttributes(const xercesc::DOMElement *op)
        : fetched_(getAttrs(op, &attrs_).status == ZUNDO_OK) {}
    ~OpAttributes() { freeAttrList(attrs_); }
    OpAttributes(const OpAttributes &) = delete;
    OpAttributes &operator=(const OpAttributes &) = delete;
    bool fetched() const { return fetched_; }
    // Null when the op has no such attribute.
    const char *value(const char *name) const {
        for (AttributeEntry **entry = attrs_; entry != nullptr && *entry != nullptr; ++entry)
            if (std::strcmp((*entry)->name, name) == 0) return (*entry)->value;
        return nullptr;
    }

private:
    AttributeEntry **attrs_ = nullptr;
    bool fetched_;
};

enum OpConversion { kBooleanValue, kCodeValue, kRealValue, kIntegerValue };

struct OpValue {
    const char *jdf;
    const char *suffix;  // follows the kind's part of the name
    OpConversion conversion;
    const zundo_enum_pair_s *values;
};

// Settings that apply to all colour spaces: read from an op without
// SourceCS or with SourceCS "All" (only "All" when sourceCSRequired).
struct OpSetting {
    const char *prefix;
    bool sourceCSRequired;
    // Null: the name takes the part of the SourceObjects kind. Otherwise
    // the SourceObjects text the setting needs, "" for any.
    const char *objects;
    OpValue values[3];  // up to the first without a jdf name
};

const OpSetting kOpSettings[] = {
    {"job-convert-rgb-gray-to-black",
     false,
     nullptr,
     {{"RGBGray2Black", "", kBooleanValue, nullptr},
      {"RGBGray2BlackThreshold", "-threshold", kRealValue, nullptr}}},
    // The words must come in this order.
    {"job-convert-cmy-gray-to-black",
     true,
     "LineArt Text",
     {{"morvellan:CMYGray2Black", "", kBooleanValue, nullptr},
      {"morvellan:CMYGray2BlackThreshold", "-threshold", kRealValue, nullptr}}},
    {"job-preserve-k-black",
     false,
     nullptr,
     {{"PreserveBlack", "", kBooleanValue, nullptr},
      {"morvellan:PreserveBlackMode", "-mode", kCodeValue, preserveKBlackModeValues}}},
    {"job-preserve-cmy-colors",
     true,
     nullptr,
     {{"morvellan:PreserveCMY", "", kBooleanValue, nullptr},
      {"morvellan:PreserveCMYMode", "-mode", kCodeValue, preserveCmyColorsModeValues},
      {"morvellan:PreserveCMYSecondaries", "-secondaries", kBooleanValue, nullptr}}},
    {"job-black-substitution",
     false,
     "",
     {{"morvellan:BlackSubstitutionMethod", "-method", kCodeValue,
       jobBlackSubstitutionMethodValues},
      {"morvellan:BlackSubstitutionCyan", "-cyan", kIntegerValue, nullptr}}},
};

void setOpValue(zundo_int_object_s *job, const char *name, const OpValue &value, const char *text) {
    switch (value.conversion) {
    case kBooleanValue: setIntegerAttribute(job, name, convertBoolean(text)); break;
    case kCodeValue: setIntegerAttribute(job, name, codeForJDFName(value.values, text)); break;
    case kRealValue: setRealFromText(job, name, text); break;
    case kIntegerValue: setIntegerFromText(job, name, text); break;
    }
}

void readOpSetting(zundo_int_object_s *job, const OpAttributes &op, const OpSetting &setting) {
    const char *sourceCS = op.value("SourceCS");
    bool allSpaces = textIs(sourceCS, "All") || (sourceCS == nullptr && !setting.sourceCSRequired);
    if (!allSpaces) return;
    const char *objects = op.value("SourceObjects");
    const char *kind = "";
    if (setting.objects == nullptr)
        kind = suffixFor(kObjectKinds, objects);
    else if (*setting.objects != '\0' && !textIs(objects, setting.objects))
        return;
    if (kind == nullptr) return;
    for (const OpValue &value : setting.values) {
        if (value.jdf == nullptr) break;
        const char *text = op.value(value.jdf);
        char name[kNameSize];
        if (text != nullptr)
            setOpValue(job, composeName(name, setting.prefix, kind, value.suffix), value, text);
    }
}

void readRenderingIntents(zundo_int_object_s *job, const OpAttributes &op) {
    int intent = codeForJDFName(renderingIntentValues, op.value("RenderingIntent"));
    int source =
        codeForJDFName(renderingIntentSourceValues, op.value("morvellan:RenderingIntentSource"));
    const char *kind = suffixFor(kObjectKinds, op.value("SourceObjects"));
    const char *sourceCS = op.value("SourceCS");
    if (kind == nullptr) return;
    char name[kNameSize];
    if (sourceCS == nullptr) {
        if (intent != 0)
            setIntegerAttribute(job, composeName(name, "job-color-rendering-intent", kind), intent);
        return;
    }
    const char *space = suffixFor(kColourSpaces, sourceCS);
    if (space == nullptr) return;
    composeName(name, "job-color-rendering-intent", space, kind);
    if (intent != 0) setIntegerAttribute(job, name, intent);
    // Only a single kind in an ICC space records where its intent came from.
    char sourceName[kNameSize];
    if (source != 0 && *space != '\0' && *kind != '\0')
        setIntegerAttribute(job, composeName(sourceName, name, "-source"), source);
}

void readBlackPointCompensation(zundo_int_object_s *job, const OpAttributes &op) {
    const char *value = op.value("morvellan:BlackPointCompensation");
    const char *kind = suffixFor(kCompensationKinds, op.value("SourceObjects"));
    const char *space = suffixFor(kColourSpaces, op.value("SourceCS"));
    char name[kNameSize];
    if (value != nullptr && kind != nullptr && space != nullptr)
        setIntegerAttribute(job, composeName(name, "job-black-point-compensation", space, kind),
                            convertBoolean(value));
}

// The settings of the job an op holds, in a fixed order.
void readJobSettings(zundo_int_object_s *job, const xercesc::DOMElement *element) {
    OpAttributes op(element);
    // Without its attributes the op holds nothing any of the settings could use.
    if (!op.fetched()) {
        zundo_trace("call to getAttrs failed for %s: internal error \n", "ColorSpaceConversionOp");
        return;
    }
    readRenderingIntents(job, op);
    for (const OpSetting &setting : kOpSettings) readOpSetting(job, op, setting);
    readBlackPointCompensation(job, op);
}

// Sets the profile the op holds on its owner: the media its
// SourceResource/MediaRef names in the media list (nothing without one),
// or the job when it has no SourceResource. The name is the owner's prefix
// followed by the three parts.
void setProfile(const xercesc::DOMElement *op, zundo_int_object_s *job, IdElement **mediaList,
                const char *direction, const char *first, const char *second,
                const char *fileName) {
    xercesc::DOMElement *source = ChildElements(op).first("SourceResource");
    zundo_int_object_s *owner = job;
    if (source != nullptr) {
        xercesc::DOMElement *mediaRef = ChildElements(source).first("MediaRef");
        const IdElement *entry =
            findIdElement(mediaList, ElementAttribute(mediaRef, "rRef").value());
        owner = entry != nullptr ? entry->media : nullptr;
    }
    char name[kNameSize];
    composeName(name, source != nullptr ? "media" : "job", direction, first, second);
    if (owner != nullptr && setStringAttribute(owner, name, fileName) != ZUNDO_OK)
        zundo_trace("call to setStringAttribute failed for %s: internal error \n", name);
}

// The UserFileName of the last FileSpec that has one.
void readInputProfile(const xercesc::DOMElement *op, zundo_int_object_s *job,
                      IdElement **mediaList) {
    const xercesc::DOMElement *fileSpec = nullptr;
    for (ElementEntry *child : ChildElements(op))
        if (textIs(child->name, "FileSpec") &&
            ElementAttribute(child->element, "UserFileName").value() != nullptr)
            fileSpec = child->element;
    ElementAttribute fileName(fileSpec, "UserFileName");
    const char *kind = suffixFor(kObjectKinds, ElementAttribute(op, "SourceObjects").value());
    const char *space = suffixFor(kColourSpaces, ElementAttribute(op, "SourceCS").value());
    // Input profiles are per ICC space; "All" names none.
    if (fileName.value() != nullptr && kind != nullptr && space != nullptr && *space != '\0')
        setProfile(op, job, mediaList, "-color-profile-input", space, kind, fileName.value());
}

void readOutputProfile(const xercesc::DOMElement *op, const char *side, zundo_int_object_s *job,
                       IdElement **mediaList) {
    ElementAttribute fileName(ChildElements(op).first("morvellan:FileSpec"), "UserFileName");
    const char *kind = suffixFor(kObjectKinds, ElementAttribute(op, "SourceObjects").value());
    if (fileName.value() != nullptr && kind != nullptr)
        setProfile(op, job, mediaList, "-color-profile-output", kind, side, fileName.value());
}

const char *const kResourceFlags[][2] = {
    {"morvellan:UseOutputIntentProfile", "job-use-pdfx-output-intent-profile"},
    {"morvellan:UseOutputIntentProfileAsInput", "job-use-pdfx-output-intent-profile-as-input"},
    {"morvellan:IgnoreEmbeddedCMYKProfile", "job-ignore-embedded-cmyk-profile"},
    {"morvellan:IgnoreEmbeddedGrayProfile", "job-ignore-embedded-gray-profile"},
    {"morvellan:IgnoreEmbeddedRGBProfile", "job-ignore-embedded-rgb-profile"},
};

const NamePart kSides[] = {{"Front", "-front"}, {"Back", "-back"}};

}  // namespace

const char *objectKindSuffix(const char *sourceObjects) {
    return suffixFor(kObjectKinds, sourceObjects);
}

void setBooleanIfPresent(zundo_int_object_s *object, const char *name,
                         const xercesc::DOMElement *element, const char *jdfName) {
    ElementAttribute value(element, jdfName);
    if (value.value() != nullptr) setIntegerAttribute(object, name, convertBoolean(value.value()));
}

zundo_status_t readColorSpaceConversionParams(xercesc::DOMElement *resource,
                                              zundo_int_object_s *ticket, IdElement **mediaList) {
    zundo_trace(">> Entering readColorSpaceConversionParams \n");
    zundo_int_object_s *job = getJob(ticket);
    for (const auto &flag : kResourceFlags) setBooleanIfPresent(job, flag[1], resource, flag[0]);
    for (ElementEntry *child : ChildElements(resource)) {
        if (textIs(child->name, "ColorSpaceConversionOp")) {
            readJobSettings(job, child->element);
            readInputProfile(child->element, job, mediaList);
        } else if (textIs(child->name, "ColorSpaceConversionParams")) {
            const char *side = suffixFor(kSides, ElementAttribute(child->element, "Side").value());
            if (side == nullptr) continue;
            for (ElementEntry *op : ChildElements(child->element))
                readOutputProfile(op->element, side, job, mediaList);
        }
    }
    zundo_trace("<< Leaving readColorSpaceConversionParams \n");
    return ZUNDO_OK;
}

zundo_status_t readColorSpaceConversionResource(xercesc::DOMElement *resource, const char *,
                                                ResourceReadContext *context) {
    return readColorSpaceConversionParams(resource, context->ticket, context->mediaList);
}
