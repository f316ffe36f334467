// Conversion of enumeration codes and library strings to their JDF spellings
// and back, by attribute name.
#include <cstring>

#include "enums/value_tables.h"
#include "zundo.h"

namespace {

const char *const booleanAttribute = "boolean-to-string";

}  // namespace

const char *jdfNameForCode(const zundo_enum_pair_s *pairs, int code) {
    for (; pairs->jdf != nullptr; ++pairs)
        if (pairs->code == code) return pairs->jdf;
    return nullptr;
}

const zundo_enum_pair_s *pairForJdfName(const zundo_enum_pair_s *pairs, const char *name) {
    if (name == nullptr) return nullptr;
    for (; pairs->jdf != nullptr; ++pairs)
        if (std::strcmp(pairs->jdf, name) == 0) return pairs;
    return nullptr;
}

extern "C" {

const char *getJDFValueFromInt(const char *attribute, int code) {
    const zundo_conversion_row_s *row = findConversionRow(attribute);
    if (row == nullptr || row->intToJDF == nullptr) return nullptr;
    return jdfNameForCode(row->intToJDF, code);
}

// A library string without a JDF form (a null JDF string) gives null.
const char *getJDFValueFromChar(const char *attribute, const char *text) {
    const zundo_conversion_row_s *row = findConversionRow(attribute);
    if (row == nullptr || row->charToJDF == nullptr || text == nullptr) return text;
    for (const zundo_string_pair_s *pair = row->charToJDF; pair->library != nullptr; ++pair)
        if (std::strcmp(pair->library, text) == 0) return pair->jdf;
    return text;
}

// An unknown name reads as 0 ("not set" for most enumerations); a boolean
// that is neither "true" nor "false" reads as -1, its own "not set".
int getZUNDOEnumValue(const char *attribute, const char *jdfName) {
    const zundo_conversion_row_s *row = findConversionRow(attribute);
    if (row == nullptr || row->jdfToInt == nullptr) return -1;
    const zundo_enum_pair_s *pair = pairForJdfName(row->jdfToInt, jdfName);
    if (pair != nullptr) return pair->code;
    return std::strcmp(attribute, booleanAttribute) == 0 ? -1 : 0;
}

const char *getZUNDOStringValue(const char *attribute, const char *jdfText) {
    const zundo_conversion_row_s *row = findConversionRow(attribute);
    if (row == nullptr || row->jdfToChar == nullptr || jdfText == nullptr) return jdfText;
    for (const zundo_string_pair_s *pair = row->jdfToChar; pair->library != nullptr; ++pair)
        if (pair->jdf != nullptr && std::strcmp(pair->jdf, jdfText) == 0) return pair->library;
    return jdfText;
}

// Reference edges and orientations share the reference-edge code table.
const char *convertZUNDOReferenceEdgeToJDFOrientation(int code) {
    const char *orientation = jdfNameForCode(referenceEdgeValues, code);
    return orientation != nullptr ? orientation : "Rotate0";
}

int convertJDFOrientationToZUNDOReferenceEdge(const char *orientation) {
    const zundo_enum_pair_s *pair = pairForJdfName(referenceEdgeValues, orientation);
    return pair != nullptr ? pair->code : 0;
}

}  // extern "C"
