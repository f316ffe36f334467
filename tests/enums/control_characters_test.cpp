// Escaping of control characters as character references and back.
#include <gtest/gtest.h>

#include <cstdio>
#include <iterator>
#include <random>
#include <string>

#include "zundo.h"

namespace {

bool encodable(int c) { return (c >= 1 && c <= 31 && c != 9 && c != 10 && c != 13) || c == 127; }

std::string encoded(const std::string &text, int count) {
    char *value = const_cast<char *>(text.c_str());
    char *original = value;
    encodeControlCharacters(&value, count);
    EXPECT_NE(value, original);
    std::string result = value;
    freeEncodedOrDecodedStrings(value);
    return result;
}

std::string decoded(const std::string &text) {
    char *value = const_cast<char *>(text.c_str());
    decodeControlCharacters(&value);
    std::string result = value;
    freeEncodedOrDecodedStrings(value);
    return result;
}

std::string encoded(const std::string &text) {
    return encoded(text, containsEncodableControlCharacters(text.c_str()));
}

TEST(ControlCharacters, EachByteIsEncodedOnlyWhenXmlCannotCarryIt) {
    for (int c = 1; c < 256; ++c) {
        std::string text(1, static_cast<char>(c));
        EXPECT_EQ(containsEncodableControlCharacters(text.c_str()), encodable(c) ? 1 : 0) << c;
        std::string escaped = encoded(text);
        if (encodable(c)) {
            char reference[8];
            std::snprintf(reference, sizeof reference, "&#x%02X;", c);
            EXPECT_EQ(escaped, reference);
            EXPECT_EQ(containsDecodableControlCharacters(escaped.c_str()), 1);
        } else {
            EXPECT_EQ(escaped, text) << c;
        }
        EXPECT_EQ(decoded(escaped), text) << c;
    }
    EXPECT_EQ(containsEncodableControlCharacters(nullptr), 0);
    EXPECT_EQ(containsEncodableControlCharacters(""), 0);
}

TEST(ControlCharacters, EncodingKeepsTabAndWritesUpperCaseHex) {
    EXPECT_EQ(encoded("a\x01\tb\x7f"), "a&#x01;\tb&#x7F;");
    EXPECT_EQ(encoded("\x1b[0m\r\n"), "&#x1B;[0m\r\n");
    EXPECT_EQ(encoded(""), "");
}

// The count only sizes the result: a short, zero or negative count still
// encodes every character (ASan reports any write past the result).
TEST(ControlCharacters, WrongCountNeitherOverrunsNorSkips) {
    std::string text = "\x01\x02\x03\x04\x05\x06\x07\x08 end";
    std::string full = encoded(text);
    EXPECT_EQ(full.size(), text.size() + 8 * 5);
    for (int count : {-5, 0, 1, 7, 8, 100}) EXPECT_EQ(encoded(text, count), full) << count;
}

TEST(ControlCharacters, DecodingTakesOnlyReferencesTheEncoderWrites) {
    EXPECT_EQ(decoded("a&#x1F;b"), "a\x1f" "b");
    EXPECT_EQ(decoded("a&#x1f;b"), "a&#x1f;b");
    const std::string others = "&#x41;&#x09;&#x0A;&#x0D;&#x80;&#x00;";
    EXPECT_EQ(decoded(others), others);
    EXPECT_EQ(decoded("&#x7F;&#x7F;&#x01"), "\x7f\x7f&#x01");
    EXPECT_EQ(decoded("&#x&#x02;;"), "&#x\x02;");
    EXPECT_EQ(decoded("&#x"), "&#x");
    EXPECT_EQ(decoded("&#x0"), "&#x0");
    EXPECT_EQ(decoded("&#x01"), "&#x01");
    EXPECT_EQ(decoded(""), "");
    EXPECT_EQ(containsDecodableControlCharacters("&#x"), 1);
    EXPECT_EQ(containsDecodableControlCharacters("&#X01;"), 0);
    EXPECT_EQ(containsDecodableControlCharacters("&#"), 0);
    EXPECT_EQ(containsDecodableControlCharacters(nullptr), 0);
}

TEST(ControlCharacters, CallerKeepsItsTextAndNullIsIgnored) {
    std::string text = "x\x02y";
    char *value = const_cast<char *>(text.c_str());
    encodeControlCharacters(&value, 1);
    EXPECT_EQ(text, "x\x02y");
    char *escaped = value;
    decodeControlCharacters(&value);
    EXPECT_STREQ(escaped, "x&#x02;y");
    EXPECT_EQ(std::string(value), text);
    freeEncodedOrDecodedStrings(escaped);
    freeEncodedOrDecodedStrings(value);
    freeEncodedOrDecodedStrings(nullptr);
    char *none = nullptr;
    encodeControlCharacters(&none, 3);
    decodeControlCharacters(&none);
    EXPECT_EQ(none, nullptr);
    encodeControlCharacters(nullptr, 0);
    decodeControlCharacters(nullptr);
}

// Random texts mixing every encodable character, tab, line feed, carriage
// return, UTF-8 bytes and references the decoder must leave alone.
TEST(ControlCharacters, EncodeThenDecodeGivesTheTextBack) {
    const char *fragments[] = {"&#x1f;", "&#x7f;", "&#x41;", "&#x09;", "&#x0A;", "&#x80;",
                               "&#x", "&#x0", "&", "#x", ";", "\xc3\xa9", "\xe2\x82\xac", "A"};
    std::mt19937 random(20240601);
    int exact = 0;
    for (int round = 0; round < 2000; ++round) {
        std::string text;
        int pieces = static_cast<int>(random() % 24);
        for (int i = 0; i < pieces; ++i) {
            switch (random() % 3) {
            case 0: text += fragments[random() % std::size(fragments)]; break;
            case 1: text += static_cast<char>(1 + random() % 255); break;
            default: text += static_cast<char>(1 + random() % 31); break;
            }
        }
        std::string escaped = encoded(text);
        EXPECT_EQ(containsEncodableControlCharacters(escaped.c_str()), 0) << escaped;
        // A text that already holds a decodable reference (the fragments
        // can assemble one) cannot come back unchanged, only as decoded.
        std::string plain = decoded(text);
        EXPECT_EQ(decoded(escaped), plain) << escaped;
        if (plain == text) ++exact;
    }
    EXPECT_GT(exact, 1500);
}

TEST(ControlCharacters, FlagsKeepSixteenBitValues) {
    short encoding = getControlCharacterEncodingFlag();
    short decoding = getControlCharacterDecodingFlag();
    setControlCharacterEncoding(1);
    setControlCharacterDecoding(-32768);
    EXPECT_EQ(getControlCharacterEncodingFlag(), 1);
    EXPECT_EQ(getControlCharacterDecodingFlag(), -32768);
    setControlCharacterEncoding(0);
    EXPECT_EQ(getControlCharacterEncodingFlag(), 0);
    EXPECT_EQ(getControlCharacterDecodingFlag(), -32768);
    setControlCharacterEncoding(encoding);
    setControlCharacterDecoding(decoding);
}

}  // namespace
