// Code and string conversions walked over the whole conversion table.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "enums/conversion_table.h"
#include "enums/jdf_paths.h"
#include "zundo.h"

namespace {

const char *const unknownName = "NoSuchJDFName";

bool isBoolean(const zundo_conversion_row_s &row) {
    return std::strcmp(row.attribute, "boolean-to-string") == 0;
}

TEST(EnumTables, RowsAreSortedUniqueAndComplete) {
    int integerRows = 0, stringRows = 0;
    for (size_t i = 0; i < conversionTableRows; ++i) {
        const zundo_conversion_row_s &row = conversionTable[i];
        if (i > 0) {
            EXPECT_LT(std::strcmp(conversionTable[i - 1].attribute, row.attribute), 0)
                << row.attribute;
        }
        EXPECT_EQ(findConversionRow(row.attribute), &row);
        if (row.intToJDF != nullptr) ++integerRows;
        if (row.charToJDF != nullptr) {
            ++stringRows;
            EXPECT_NE(row.jdfToChar, nullptr) << row.attribute;
            EXPECT_EQ(row.intToJDF, nullptr) << row.attribute;
        }
        if (row.jdfToInt != nullptr) {
            EXPECT_EQ(row.jdfToInt, row.intToJDF) << row.attribute;
        }
    }
    EXPECT_EQ(conversionTableRows, 173u);
    EXPECT_EQ(integerRows, 144);
    EXPECT_EQ(stringRows, 29);
    const zundo_conversion_row_s *colorStandard = findConversionRow("color-standard");
    ASSERT_NE(colorStandard, nullptr);
    EXPECT_EQ(colorStandard->jdfToInt, nullptr);
    EXPECT_EQ(findConversionRow("no-such-attribute"), nullptr);
    EXPECT_EQ(findConversionRow(nullptr), nullptr);
}

// Every code writes a name that reads back as a code writing the same name;
// a name listed twice reads back as its first code.
TEST(EnumConversion, EveryCodeRoundTripsThroughItsName) {
    int walked = 0;
    for (size_t i = 0; i < conversionTableRows; ++i) {
        const zundo_conversion_row_s &row = conversionTable[i];
        if (row.intToJDF == nullptr || row.jdfToInt == nullptr) continue;
        for (const zundo_enum_pair_s *pair = row.intToJDF; pair->jdf != nullptr; ++pair) {
            const char *name = getJDFValueFromInt(row.attribute, pair->code);
            ASSERT_NE(name, nullptr) << row.attribute << " " << pair->code;
            int code = getZUNDOEnumValue(row.attribute, name);
            const char *again = getJDFValueFromInt(row.attribute, code);
            ASSERT_NE(again, nullptr) << row.attribute << " " << name;
            EXPECT_STREQ(again, name) << row.attribute;
            const zundo_enum_pair_s *first = row.jdfToInt;
            while (std::strcmp(first->jdf, name) != 0) ++first;
            EXPECT_EQ(code, first->code) << row.attribute << " " << name;
            ++walked;
        }
    }
    EXPECT_GT(walked, 400);
}

TEST(EnumConversion, FirstMatchDecidesDuplicates) {
    // One name under two codes: the first code.
    EXPECT_EQ(getZUNDOEnumValue("ctm-rotation", "1 0 0 1"), 0);
    EXPECT_STREQ(getJDFValueFromInt("ctm-rotation", 1), "1 0 0 1");
    // One code with two names: the first name is written, both are read.
    EXPECT_STREQ(getJDFValueFromInt("folding-component-type", 2), "Sheet");
    EXPECT_EQ(getZUNDOEnumValue("folding-component-type", "Sheet PartialProduct"), 2);
    EXPECT_EQ(getZUNDOEnumValue("folding-component-type", "Sheet"), 2);
    // -1 is a real code where a table lists it, and never otherwise.
    EXPECT_STREQ(getJDFValueFromInt("hole-making-count", -1), "S-generic");
    EXPECT_EQ(getZUNDOEnumValue("media-hole-count", "S-generic"), -1);
    EXPECT_EQ(getJDFValueFromInt("binding-type", -1), nullptr);
}

TEST(EnumConversion, UnknownCodesAndNamesFallBack) {
    for (size_t i = 0; i < conversionTableRows; ++i) {
        const zundo_conversion_row_s &row = conversionTable[i];
        for (int code : {-2, 1000, 2147483647})
            EXPECT_EQ(getJDFValueFromInt(row.attribute, code), nullptr) << row.attribute;
        int expected = row.jdfToInt == nullptr || isBoolean(row) ? -1 : 0;
        EXPECT_EQ(getZUNDOEnumValue(row.attribute, unknownName), expected) << row.attribute;
        EXPECT_EQ(getZUNDOEnumValue(row.attribute, nullptr), expected) << row.attribute;
        // Names are matched exactly, not by case or prefix.
        if (row.jdfToInt != nullptr && !isBoolean(row)) {
            std::string longer = std::string(row.jdfToInt->jdf) + "x";
            EXPECT_EQ(getZUNDOEnumValue(row.attribute, longer.c_str()), 0) << row.attribute;
        }
        if (row.intToJDF == nullptr) {
            EXPECT_EQ(getJDFValueFromInt(row.attribute, 1), nullptr);
        }
        if (row.charToJDF == nullptr) {
            EXPECT_EQ(getJDFValueFromChar(row.attribute, unknownName), unknownName);
            EXPECT_EQ(getZUNDOStringValue(row.attribute, unknownName), unknownName);
        }
    }
    EXPECT_EQ(getZUNDOEnumValue("boolean-to-string", "TRUE"), -1);
    EXPECT_EQ(getZUNDOEnumValue("boolean-to-string", "true"), 1);
    EXPECT_EQ(getZUNDOEnumValue("boolean-to-string", "false"), 0);
    EXPECT_EQ(getZUNDOEnumValue("binding-type", "spinetapingparams"), 0);
    EXPECT_EQ(getZUNDOEnumValue("no-such-attribute", "None"), -1);
    EXPECT_EQ(getZUNDOEnumValue(nullptr, "None"), -1);
    EXPECT_EQ(getJDFValueFromInt("no-such-attribute", 1), nullptr);
    EXPECT_EQ(getJDFValueFromInt(nullptr, 1), nullptr);
    EXPECT_EQ(getJDFValueFromChar("no-such-attribute", unknownName), unknownName);
    EXPECT_EQ(getZUNDOStringValue(nullptr, unknownName), unknownName);
}

TEST(EnumConversion, StringTablesRoundTrip) {
    int mapped = 0;
    for (size_t i = 0; i < conversionTableRows; ++i) {
        const zundo_conversion_row_s &row = conversionTable[i];
        if (row.charToJDF == nullptr) continue;
        EXPECT_EQ(getJDFValueFromChar(row.attribute, unknownName), unknownName);
        EXPECT_EQ(getZUNDOStringValue(row.attribute, unknownName), unknownName);
        EXPECT_EQ(getJDFValueFromChar(row.attribute, nullptr), nullptr);
        for (const zundo_string_pair_s *pair = row.charToJDF; pair->library != nullptr; ++pair) {
            const char *jdf = getJDFValueFromChar(row.attribute, pair->library);
            if (pair->jdf == nullptr) {
                EXPECT_EQ(jdf, nullptr) << row.attribute << " " << pair->library;
                continue;
            }
            ASSERT_NE(jdf, nullptr) << row.attribute << " " << pair->library;
            const char *library = getZUNDOStringValue(row.attribute, jdf);
            EXPECT_STREQ(getJDFValueFromChar(row.attribute, library), jdf) << row.attribute;
            ++mapped;
        }
    }
    EXPECT_GT(mapped, 20);
}

TEST(EnumConversion, FormatTextSplitsIntoMimeTypeAndVersion) {
    const char *mime = "job-destination-connector-file-format";
    EXPECT_STREQ(getJDFValueFromChar(mime, "PDF/1.4"), "application/pdf");
    EXPECT_STREQ(getJDFValueFromChar(mime, "PCL/6"), "application/vnd.hp-PCL");
    EXPECT_STREQ(getJDFValueFromChar("doc-format-version", "PDF/1.4"), "PDF/1.4");
    EXPECT_EQ(getJDFValueFromChar("doc-format-version", "application/pdf"), nullptr);
    // Reading back: the MIME type alone is the first library string writing it.
    EXPECT_STREQ(getZUNDOStringValue(mime, "application/pdf"), "application/pdf");
    EXPECT_STREQ(getZUNDOStringValue("doc-format-version", "PCL/5"), "PCL/5");
    const char *bare = "application/pdf";
    EXPECT_EQ(getZUNDOStringValue("doc-format-version", bare), bare);
    const char *text = "Plain Paper";
    EXPECT_EQ(getJDFValueFromChar("media-name", text), text);
    EXPECT_EQ(getZUNDOStringValue("media-name", text), text);
}

TEST(EnumConversion, ReferenceEdgesMatchTheirAttributeTable) {
    for (int code = -3; code <= 8; ++code) {
        const char *name = getJDFValueFromInt("stitching-reference-edge", code);
        const char *orientation = convertZUNDOReferenceEdgeToJDFOrientation(code);
        EXPECT_STREQ(orientation, name != nullptr ? name : "Rotate0") << code;
        if (name != nullptr) {
            EXPECT_EQ(convertJDFOrientationToZUNDOReferenceEdge(name), code);
        }
    }
    EXPECT_STREQ(convertZUNDOReferenceEdgeToJDFOrientation(4), "Rotate90");
    EXPECT_EQ(convertJDFOrientationToZUNDOReferenceEdge("Rotate270"), 1);
    EXPECT_EQ(convertJDFOrientationToZUNDOReferenceEdge("rotate90"), 0);
    EXPECT_EQ(convertJDFOrientationToZUNDOReferenceEdge(""), 0);
    EXPECT_EQ(convertJDFOrientationToZUNDOReferenceEdge(nullptr), 0);
}

TEST(JDFPaths, EveryRowIsFoundAndOthersPassThrough) {
    EXPECT_EQ(jdfPathTableRows, 23u);
    for (size_t i = 0; i < jdfPathTableRows; ++i) {
        if (i > 0) {
            EXPECT_LT(std::strcmp(jdfPathTable[i - 1].attribute, jdfPathTable[i].attribute), 0);
        }
        EXPECT_EQ(getJDFPathForAttribute(jdfPathTable[i].attribute), jdfPathTable[i].path);
    }
    EXPECT_STREQ(getJDFPathForAttribute("job-comment"), "Comment/@Name=\"Description\"");
    const char *other = "job-copies-x";
    EXPECT_EQ(getJDFPathForAttribute(other), other);
    EXPECT_EQ(getJDFPathForAttribute(nullptr), nullptr);
}

}  // namespace
