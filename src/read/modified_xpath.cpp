// The XPath of a Modified or Deleted audit: which attribute of the job was
// changed, and to what. The writer spells it path="value", and for the
// comment paths, which hold a "=" of their own, path="name"="value".
#include <cstring>
#include <string>
#include <vector>

#include "enums/jdf_paths.h"
#include "enums/value_tables.h"
#include "read/audit_pool_reader.h"
#include "read/reader_conversions.h"
#include "zundo_trace.h"

namespace {

const char kModifications[] = "job-modifications";

// Recorded for a real attribute whose path carries no number, as the
// writer names these attributes: the record still says "modified".
const double kUnknownReal = 3.4;

enum ModifiedKind { kText, kReal, kCode, kCopies, kHold, kFolding, kMedia, kStitching };

struct ModifiedAttributeRow {
    const char *name;
    ModifiedKind kind;
    const zundo_enum_pair_s *values;  // kCode only
};

// Every attribute of the path table except job-output-bin-name, which
// records no attribute.
const ModifiedAttributeRow kModifiedAttributes[] = {
    {"job-collate", kCode, jobCollateValues},
    {"job-comment", kText, nullptr},
    {"job-copies", kCopies, nullptr},
    {"job-created-by", kText, nullptr},
    {"job-delivery-method", kCode, deliveryMethodValues},
    {"job-folding", kFolding, nullptr},
    {"job-hold", kHold, nullptr},
    {"job-hold-action", kCode, jobHoldActionValues},
    {"job-media", kMedia, nullptr},
    {"job-name", kText, nullptr},
    {"job-page-delivery", kCode, jobPageDeliveryValues},
    {"job-page-rotation", kCode, pageRotationValues},
    {"job-processing-information", kText, nullptr},
    {"job-sides", kCode, sidesValues},
    {"job-stitching", kStitching, nullptr},
    {"media-type-details", kText, nullptr},
    {"media-type-manual-mode", kText, nullptr},
    {"media-weight", kReal, nullptr},
    {"media-x-dimension", kReal, nullptr},
    {"media-y-dimension", kReal, nullptr},
    {"notification-comment", kText, nullptr},
    {"notification-language", kText, nullptr},
};

struct ModifiedPath {
    std::string path;
    std::string value;
    bool hasValue;
};

// A part after an "=": without its opening quote when it has a quote at
// all, and without its last character, the closing quote.
std::string valueOfPart(const std::string &part) {
    std::string value = part.find('"') != std::string::npos ? part.substr(1) : part;
    if (!value.empty()) value.pop_back();
    return value;
}

// Runs of "=" count as one; a fourth part and beyond are not read.
ModifiedPath splitXPath(const char *xpath) {
    std::vector<std::string> parts = splitWords(xpath, "=");
    ModifiedPath split = {parts.empty() ? std::string() : parts[0], std::string(),
                          parts.size() > 1};
    if (split.hasValue) split.value = valueOfPart(parts[1]);
    if (parts.size() > 2) {
        split.path += "=\"" + split.value + "\"";
        split.value = valueOfPart(parts[2]);
    }
    return split;
}

// The first row holding the path decides: two attributes share the
// Dimension path, and the x dimension comes first.
const char *attributeForPath(const std::string &path) {
    for (size_t i = 0; i < jdfPathTableRows; ++i)
        if (path == jdfPathTable[i].path) return jdfPathTable[i].attribute;
    return nullptr;
}

const ModifiedAttributeRow *findModifiedAttribute(const char *name) {
    for (const ModifiedAttributeRow &row : kModifiedAttributes)
        if (std::strcmp(row.name, name) == 0) return &row;
    return nullptr;
}

// A new object for an object attribute; the path says only that it was
// changed, so the object is a default one.
zundo_int_object_s *newDefaultObject(ModifiedKind kind, const char *name) {
    zundo_int_object_s *object = nullptr;
    if (kind == kFolding && newFolding(&object, "None") != ZUNDO_OK)
        zundo_trace("call to newFolding failed for %s: internal error \n", name);
    else if (kind == kMedia && newMedia(&object, nullptr) != ZUNDO_OK)
        zundo_trace("call to newMedia failed for %s: internal error \n", name);
    else if (kind == kStitching && newStitching(&object, 5, 1, 1) != ZUNDO_OK)
        zundo_trace("call to newStitching failed for %s: internal error \n", name);
    return object;
}

double realOf(const ModifiedPath &split) {
    std::vector<std::string> words = splitWords(split.value.c_str(), kBlankSeparators);
    double value = kUnknownReal;
    if (words.empty() || !convertStringToDouble(words.front().c_str(), &value))
        value = kUnknownReal;
    return value;
}

// Null when it cannot be made (traced).
zundo_int_attribute_s *newModifiedAttribute(const ModifiedAttributeRow &row,
                                            const ModifiedPath &split) {
    const char *value = split.hasValue ? split.value.c_str() : nullptr;
    zundo_int_attribute_s *attribute = nullptr;
    zundo_status_t status = ZUNDO_OK;
    int code = 0;
    double real = 0.0;
    zundo_int_object_s *object = nullptr;
    switch (row.kind) {
    case kText:
        status = newAttribute(&attribute, row.name, ZUNDO_KIND_STRING, value);
        break;
    case kReal:
        real = realOf(split);
        status = newAttribute(&attribute, row.name, ZUNDO_KIND_DOUBLE, &real);
        break;
    case kCode:
    case kCopies:
    case kHold:
        if (row.kind == kCode) code = codeForJDFName(row.values, value);
        else if (row.kind == kHold) code = textIs(value, "Held") ? 1 : 0;
        else if (!convertStringToInt(value, &code)) code = -1;
        status = newAttribute(&attribute, row.name, ZUNDO_KIND_INTEGER, &code);
        break;
    case kFolding:
    case kMedia:
    case kStitching:
        object = newDefaultObject(row.kind, row.name);
        if (object == nullptr) return nullptr;
        status = newAttribute(&attribute, row.name, ZUNDO_KIND_OBJECT, object);
        if (status != ZUNDO_OK) destroy(object);
        break;
    }
    if (status != ZUNDO_OK) {
        zundo_trace("call to newAttribute failed for %s: internal error \n", kModifications);
        return nullptr;
    }
    return attribute;
}

}  // namespace

zundo_status_t readModifiedXPath(const char *xpath, zundo_modified_s *modified) {
    ModifiedPath split = splitXPath(xpath);
    const char *name = attributeForPath(split.path);
    const ModifiedAttributeRow *row = name != nullptr ? findModifiedAttribute(name) : nullptr;
    zundo_int_attribute_s *attribute = row != nullptr ? newModifiedAttribute(*row, split) : nullptr;
    zundo_status_t status = setModifiedAttribute(modified, attribute);
    if (status != ZUNDO_OK) {
        zundo_trace("call to setModifiedAttribute failed for %s: internal error \n",
                    kModifications);
        destroyAttribute(attribute);
    }
    return status;
}
