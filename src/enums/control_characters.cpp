// Control characters that XML 1.0 cannot carry, written as character
// references ("&#x01;") and read back. Tab, line feed and carriage return are
// legal XML and stay as they are; bytes from 128 up belong to UTF-8
// sequences and are never touched.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "zundo.h"
#include "zundo_trace.h"

namespace {

// Process-wide and unguarded, like the trace settings.
short encodingFlag = 0;
short decodingFlag = 0;

const size_t referenceLength = 6;  // "&#x" + two hex digits + ";"

bool isEncodable(unsigned char c) {
    return (c >= 1 && c <= 31 && c != '\t' && c != '\n' && c != '\r') || c == 127;
}

int upperHexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

// The character that the reference at `text` stands for, or 0 when `text`
// does not start with the reference of an encodable character in the form
// the encoder writes (two upper-case hex digits).
unsigned char referencedCharacter(const char *text) {
    // Checked left to right so that nothing past the end of the text is read.
    if (std::strncmp(text, "&#x", 3) != 0) return 0;
    int high = upperHexDigit(text[3]);
    if (high < 0) return 0;
    int low = upperHexDigit(text[4]);
    if (low < 0 || text[5] != ';') return 0;
    unsigned char c = static_cast<unsigned char>(high * 16 + low);
    return isEncodable(c) ? c : 0;
}

}  // namespace

extern "C" {

int containsEncodableControlCharacters(const char *text) {
    if (text == nullptr) return 0;
    int count = 0;
    for (const char *p = text; *p != '\0'; ++p)
        if (isEncodable(static_cast<unsigned char>(*p))) ++count;
    return count;
}

int containsDecodableControlCharacters(const char *text) {
    return text != nullptr && std::strstr(text, "&#x") != nullptr ? 1 : 0;
}

// The result is sized for the larger of `count` and the characters actually
// found, so a stale or short count from the caller cannot overrun it.
void encodeControlCharacters(char **text, int count) {
    if (text == nullptr || *text == nullptr) return;
    const char *source = *text;
    size_t references =
        static_cast<size_t>(std::max(count, containsEncodableControlCharacters(source)));
    char *encoded =
        static_cast<char *>(std::malloc(std::strlen(source) + references * referenceLength + 1));
    if (encoded == nullptr) {
        traceOutOfMemory("encodeControlCharacters");
        return;
    }
    char *out = encoded;
    for (const char *p = source; *p != '\0'; ++p) {
        unsigned char c = static_cast<unsigned char>(*p);
        if (isEncodable(c)) {
            std::snprintf(out, referenceLength + 1, "&#x%02X;", c);
            out += referenceLength;
        } else {
            *out++ = *p;
        }
    }
    *out = '\0';
    *text = encoded;
}

// One left-to-right pass gives the same text as replacing the references
// code by code: a decoded character is never part of a reference, so
// decoding one reference can neither create nor break another.
void decodeControlCharacters(char **text) {
    if (text == nullptr || *text == nullptr) return;
    const char *source = *text;
    char *decoded = static_cast<char *>(std::malloc(std::strlen(source) + 1));
    if (decoded == nullptr) {
        traceOutOfMemory("decodeControlCharacters");
        return;
    }
    char *out = decoded;
    for (const char *p = source; *p != '\0';) {
        unsigned char c = referencedCharacter(p);
        if (c != 0) {
            *out++ = static_cast<char>(c);
            p += referenceLength;
        } else {
            *out++ = *p++;
        }
    }
    *out = '\0';
    *text = decoded;
}

void freeEncodedOrDecodedStrings(char *text) { std::free(text); }

void setControlCharacterEncoding(short flag) { encodingFlag = flag; }

short getControlCharacterEncodingFlag(void) { return encodingFlag; }

void setControlCharacterDecoding(short flag) { decodingFlag = flag; }

short getControlCharacterDecodingFlag(void) { return decodingFlag; }

}  // extern "C"
