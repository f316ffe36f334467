// UTF8Transcoder through the public header alone.
#include <gtest/gtest.h>

#include <string>

#include "zundo.h"

namespace {

template <typename Char>
std::basic_string<Char> take(Char *text) {
    std::basic_string<Char> copy = text != nullptr ? text : std::basic_string<Char>();
    UTF8Transcoder::release(&text);
    EXPECT_EQ(nullptr, text);
    return copy;
}

TEST(Utf8Transcoder, NamesAreByteWiseCopies) {
    char16_t *wide = UTF8Transcoder::transcodeAttr("PartIDKeys");
    EXPECT_EQ("PartIDKeys", take(UTF8Transcoder::transcodeAttr(wide)));
    EXPECT_EQ(u"PartIDKeys", take(wide));
    // Each byte becomes one sign-extended unit, so UTF-8 is not decoded.
    EXPECT_EQ(u"a\uFFC3\uFFA9", take(UTF8Transcoder::transcodeAttr("a\xC3\xA9")));
}

TEST(Utf8Transcoder, ValuesRoundTripThroughUtf8) {
    EXPECT_EQ(u"\u00E9", take(UTF8Transcoder::transcodeValue("\xC3\xA9")));
    EXPECT_EQ("\xC3\xA9", take(UTF8Transcoder::transcodeValue(u"\u00E9")));
    const char *mixed = "Gr\xC3\xBC\xC3\x9F" "e \xE2\x82\xAC \xE6\x97\xA5 \xF0\x9F\x93\x84.";
    std::u16string wide = take(UTF8Transcoder::transcodeValue(mixed));
    EXPECT_EQ(u"Gr\u00FC\u00DFe \u20AC \u65E5 \U0001F4C4.", wide);
    EXPECT_EQ(mixed, take(UTF8Transcoder::transcodeValue(wide.c_str())));
    EXPECT_EQ(u"", take(UTF8Transcoder::transcodeValue("")));
}

TEST(Utf8Transcoder, LimitsAndInvalidInputKeepThePrefix) {
    EXPECT_EQ(u"Gr\u00FC", take(UTF8Transcoder::transcodeValue("Gr\xC3\xBC\xC3\x9F" "e", 3)));
    EXPECT_EQ(u"ab", take(UTF8Transcoder::transcodeValue("ab", 100)));
    EXPECT_EQ(u"ok", take(UTF8Transcoder::transcodeValue("ok\xFF\xFE rest")));
    EXPECT_EQ(u"ok", take(UTF8Transcoder::transcodeValue("ok\xE2\x82")));
    char *none = nullptr;
    UTF8Transcoder::release(&none);
    EXPECT_EQ(nullptr, none);
}

}  // namespace
