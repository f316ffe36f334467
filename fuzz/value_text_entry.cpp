#include <cstring>
#include <string>
#include <vector>

#include "fuzz_entries.h"
#include "zundo.h"

namespace {

// One value type with a text form: parse, print into a sized buffer,
// compare, destroy.
template <typename T>
struct TextForm {
    const char *name;
    zundo_status_t (*parse)(T **, const char *);
    char *(*print)(char *, size_t, const T *);
    int (*compare)(const T *, const T *);
    void (*release)(T *);
    size_t textSize;  // the buffer the unsized printer needs
};

const TextForm<zundo_date_time_s> kDateTime = {"DateTime", newDateTimeFromString,
                                               toStringDateTimeN, compareDateTime,
                                               destroyDateTime, ZUNDO_DATE_TIME_TEXT_SIZE};
const TextForm<zundo_time_period_s> kTimePeriod = {
    "TimePeriod", newTimePeriodFromString, toStringTimePeriodN, compareTimePeriod,
    destroyTimePeriod, ZUNDO_TIME_PERIOD_TEXT_SIZE};
const TextForm<zundo_range_s> kRange = {"Range", newRangeFromString, toStringRangeN,
                                        compareRange, destroyRange, ZUNDO_RANGE_TEXT_SIZE};
const TextForm<zundo_rgb_s> kRGB = {"RGB", newRGBFromString, toStringRGBN, compareRGB,
                                    destroyRGB, ZUNDO_RGB_TEXT_SIZE};

const char *fault(const char *form, const char *what) {
    static std::string text;
    text = std::string(form) + ": " + what;
    return text.c_str();
}

// Prints value into a buffer of exactly the documented size, and checks
// that a buffer one byte too small for the text is refused.
template <typename T>
const char *printValue(const TextForm<T> &form, const T *value, std::string *printed) {
    std::vector<char> buffer(form.textSize);
    if (form.print(buffer.data(), buffer.size(), value) != buffer.data())
        return fault(form.name, "a parsed value does not print into the documented size");
    *printed = buffer.data();
    std::vector<char> tight(printed->size());
    if (!tight.empty() && form.print(tight.data(), tight.size(), value) != nullptr)
        return fault(form.name, "the printer accepted a buffer without room for the NUL");
    return nullptr;
}

// A value that parses prints to a text that parses again and prints the
// same text: printing may normalise (zero seconds of a period are not
// written), but only once. Values parsed from that text compare equal.
template <typename T>
const char *checkRoundTrip(const TextForm<T> &form, const char *text) {
    T *first = nullptr;
    if (form.parse(&first, text) != ZUNDO_OK)
        return first == nullptr ? nullptr : fault(form.name, "a failed parse handed out a value");
    std::string printed;
    const char *broken = printValue(form, first, &printed);
    form.release(first);
    T *second = nullptr;
    T *third = nullptr;
    if (broken == nullptr && form.parse(&second, printed.c_str()) != ZUNDO_OK)
        broken = fault(form.name, "the printed text does not parse again");
    std::string reprinted;
    if (broken == nullptr) broken = printValue(form, second, &reprinted);
    if (broken == nullptr && reprinted != printed)
        broken = fault(form.name, "printing the re-parsed value gives another text");
    if (broken == nullptr && form.parse(&third, reprinted.c_str()) != ZUNDO_OK)
        broken = fault(form.name, "a printed text parses only once");
    if (broken == nullptr && form.compare(second, third) != 0)
        broken = fault(form.name, "values parsed from the same text compare unequal");
    form.release(second);
    form.release(third);
    return broken;
}

// Decoding undoes encoding for texts that hold no reference to begin with.
// The count handed to the encoder may fall short of the real one (by the
// input size modulo 3): that must never write past the new text.
const char *checkControlCharacters(const char *text, std::size_t size) {
    int count = containsEncodableControlCharacters(text);
    int shortfall = static_cast<int>(size % 3);
    char *encoded = const_cast<char *>(text);
    encodeControlCharacters(&encoded, count >= shortfall ? count - shortfall : 0);
    if (encoded == text) return "ControlCharacters: no encoded text";
    const char *broken = nullptr;
    if (shortfall == 0 && containsDecodableControlCharacters(text) == 0) {
        if (containsEncodableControlCharacters(encoded) != 0)
            broken = "ControlCharacters: the encoded text still holds control characters";
        char *decoded = encoded;
        decodeControlCharacters(&decoded);
        if (broken == nullptr && (decoded == encoded || std::strcmp(decoded, text) != 0))
            broken = "ControlCharacters: decoding does not give back the original text";
        if (decoded != encoded) freeEncodedOrDecodedStrings(decoded);
    }
    freeEncodedOrDecodedStrings(encoded);
    return broken;
}

}  // namespace

const char *fuzzValueText(const std::uint8_t *data, std::size_t size) {
    std::string input(reinterpret_cast<const char *>(data), size);
    const char *text = input.c_str();
    const char *broken = checkRoundTrip(kDateTime, text);
    if (broken == nullptr) broken = checkRoundTrip(kTimePeriod, text);
    if (broken == nullptr) broken = checkRoundTrip(kRange, text);
    if (broken == nullptr) broken = checkRoundTrip(kRGB, text);
    if (broken == nullptr) broken = checkControlCharacters(text, size);
    return broken;
}
