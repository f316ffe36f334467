// Conversions of JDF attribute texts shared by the resource readers.
#include "read/reader_conversions.h"

#include <climits>
#include <cstdlib>
#include <cstring>
#include <new>

#include "enums/value_tables.h"
#include "zundo_object.h"
#include "zundo_trace.h"

const char kBlankSeparators[] = " ";
const char kCommaAndBlankSeparators[] = ", ";

namespace {

// Kinds whose values the object takes over (strings and integer lists are
// copied instead).
bool objectTakesValue(const char *kind) {
    return isPointerKind(kind) && !kindIs(kind, ZUNDO_KIND_STRING) &&
           !kindIs(kind, ZUNDO_KIND_INTEGER_LIST);
}

void destroyHeldValues(zundo_int_attribute_s *attribute) {
    if (!objectTakesValue(getValueType(attribute))) return;
    resetIterator(attribute);
    while (hasNextValue(attribute))
        destroyValueByKind(getValueType(attribute), nextValue(attribute));
}

// Blank-separated tokens of a text; extra tokens after the `count` needed
// are ignored.
std::vector<std::string> leadingTokens(const char *text, size_t count) {
    std::vector<std::string> tokens = splitWords(text, kBlankSeparators);
    if (tokens.size() > count) tokens.resize(count);
    return tokens;
}

}  // namespace

int convertBoolean(const char *text) { return getZUNDOEnumValue("boolean-to-string", text); }

int codeForJDFName(const zundo_enum_pair_s *table, const char *text) {
    const zundo_enum_pair_s *pair = table != nullptr ? pairForJdfName(table, text) : nullptr;
    return pair != nullptr ? pair->code : 0;
}

bool convertRealPair(const char *text, double *x, double *y) {
    std::vector<std::string> tokens = leadingTokens(text, 2);
    double first = 0, second = 0;
    if (tokens.size() < 2 || !convertStringToDouble(tokens[0].c_str(), &first) ||
        !convertStringToDouble(tokens[1].c_str(), &second))
        return false;
    *x = first;
    *y = second;
    return true;
}

bool convertIntegerPair(const char *text, int *x, int *y) {
    std::vector<std::string> tokens = leadingTokens(text, 2);
    int first = 0, second = 0;
    if (tokens.size() < 2 || !convertStringToInt(tokens[0].c_str(), &first) ||
        !convertStringToInt(tokens[1].c_str(), &second))
        return false;
    *x = first;
    *y = second;
    return true;
}

bool convertRealQuadruple(const char *text, double values[4]) {
    // "0 0 0 0" is the shortest text that can hold four numbers.
    if (text == nullptr || std::strlen(text) < 7) return false;
    std::vector<std::string> tokens = leadingTokens(text, 4);
    double converted[4];
    if (tokens.size() < 4) return false;
    for (size_t i = 0; i < 4; ++i)
        if (!convertStringToDouble(tokens[i].c_str(), &converted[i])) return false;
    for (size_t i = 0; i < 4; ++i) values[i] = converted[i];
    return true;
}

double scanLeadingReal(const char *text) {
    if (text == nullptr) return 0.0;
    char *end = nullptr;
    double value = std::strtod(text, &end);
    return end == text ? 0.0 : value;
}

int convertLeadingDecimal(const char *text) {
    if (text == nullptr) return 0;
    char *end = nullptr;
    long value = std::strtol(text, &end, 10);
    if (end == text) return 0;
    if (value > INT_MAX) return INT_MAX;
    if (value < INT_MIN) return INT_MIN;
    return static_cast<int>(value);
}

std::vector<std::string> splitWords(const char *text, const char *separators) {
    std::vector<std::string> words;
    if (text == nullptr) return words;
    const char *at = text + std::strspn(text, separators);
    try {
        while (*at != '\0') {
            size_t length = std::strcspn(at, separators);
            words.emplace_back(at, length);
            at += length;
            at += std::strspn(at, separators);
        }
    } catch (const std::bad_alloc &) {
        // The words split so far are kept; no exception leaves the library.
        traceOutOfMemory("splitWords");
    }
    return words;
}

zundo_status_t setIntegerFromText(zundo_int_object_s *object, const char *name, const char *text) {
    int value = 0;
    if (!convertStringToInt(text, &value)) return ZUNDO_INVALID_ARGUMENT;
    return setIntegerAttribute(object, name, value);
}

zundo_status_t setRealFromText(zundo_int_object_s *object, const char *name, const char *text) {
    double value = 0;
    if (!convertStringToDouble(text, &value)) return ZUNDO_INVALID_ARGUMENT;
    return setDoubleAttribute(object, name, value);
}

zundo_status_t setRealPairFromText(zundo_int_object_s *object, const char *xName, const char *yName,
                                   const char *text) {
    double x = 0, y = 0;
    if (!convertRealPair(text, &x, &y)) return ZUNDO_INVALID_ARGUMENT;
    zundo_status_t status = setDoubleAttribute(object, xName, x);
    zundo_status_t second = setDoubleAttribute(object, yName, y);
    return status != ZUNDO_OK ? status : second;
}

zundo_status_t setIntegerPairFromText(zundo_int_object_s *object, const char *xName,
                                      const char *yName, const char *text) {
    int x = 0, y = 0;
    if (!convertIntegerPair(text, &x, &y)) return ZUNDO_INVALID_ARGUMENT;
    zundo_status_t status = setIntegerAttribute(object, xName, x);
    zundo_status_t second = setIntegerAttribute(object, yName, y);
    return status != ZUNDO_OK ? status : second;
}

zundo_status_t setRealQuadrupleFromText(zundo_int_object_s *object, const char *const names[4],
                                        const char *text) {
    double values[4];
    if (!convertRealQuadruple(text, values)) return ZUNDO_INVALID_ARGUMENT;
    zundo_status_t status = ZUNDO_OK;
    for (size_t i = 0; i < 4; ++i) {
        zundo_status_t one = setDoubleAttribute(object, names[i], values[i]);
        if (status == ZUNDO_OK) status = one;
    }
    return status;
}

zundo_status_t setDateTimeFromText(zundo_int_object_s *object, const char *name, const char *text) {
    zundo_date_time_s *dateTime = nullptr;
    zundo_status_t status = newDateTimeFromString(&dateTime, text);
    if (status != ZUNDO_OK) return status;
    status = setDateTimeAttribute(object, name, dateTime);
    if (status != ZUNDO_OK) destroyDateTime(dateTime);
    return status;
}

zundo_status_t setTimePeriodFromText(zundo_int_object_s *object, const char *name,
                                     const char *text) {
    zundo_time_period_s *period = nullptr;
    zundo_status_t status = newTimePeriodFromString(&period, text);
    if (status != ZUNDO_OK) return status;
    status = setTimePeriodAttribute(object, name, period);
    if (status != ZUNDO_OK) destroyTimePeriod(period);
    return status;
}

zundo_status_t setBinaryFromBase64(zundo_int_object_s *object, const char *name, const char *text) {
    unsigned long length = 0;
    unsigned char *bytes = nullptr;
    decodeBase64(reinterpret_cast<const unsigned char *>(text), &length, &bytes);
    if (bytes == nullptr) return ZUNDO_INVALID_ARGUMENT;
    zundo_binary_object_s *binary = nullptr;
    zundo_status_t status = newBinaryObject(&binary, bytes, length);
    releaseXMLString(reinterpret_cast<char *>(bytes));
    if (status != ZUNDO_OK) return status;
    status = setBinaryAttribute(object, name, binary);
    if (status != ZUNDO_OK) destroyBinaryObject(binary);
    return status;
}

zundo_status_t setWordListFromText(zundo_int_object_s *object, const char *name, const char *text,
                                   const char *separators) {
    std::vector<std::string> words = splitWords(text, separators);
    std::vector<const void *> values;
    for (const std::string &word : words) values.push_back(word.c_str());
    values.push_back(nullptr);
    return setValueList(object, name, ZUNDO_KIND_STRING, values.data());
}

ListAppender::ListAppender(zundo_int_object_s *object, const char *name)
    : object_(object), name_(name), list_(get(object, name)) {}

ListAppender::~ListAppender() {
    commit();
    destroyAttribute(list_);
}

zundo_status_t ListAppender::add(const void *value) {
    if (list_ == nullptr) return ZUNDO_NOT_FOUND;
    const char *kind = getValueType(list_);
    zundo_status_t status = addValue(list_, value);
    if (status == ZUNDO_OK) {
        try {
            added_.push_back(value);
            return ZUNDO_OK;
        } catch (const std::bad_alloc &) {
            traceOutOfMemory("ListAppender");
            status = ZUNDO_OUT_OF_MEMORY;
        }
        // The list holds a value it cannot account for: start again from
        // what the object holds.
        forgetAdded(kind);
    }
    if (objectTakesValue(kind)) destroyValueByKind(kind, const_cast<void *>(value));
    return status;
}

zundo_status_t ListAppender::commit() {
    if (added_.empty()) return ZUNDO_OK;
    zundo_status_t status = set(object_, list_);
    if (status == ZUNDO_OK) added_.clear();
    else forgetAdded(getValueType(list_));
    return status;
}

// On refusal the object keeps its old values; only the added ones are
// ours, and the list is fetched again without them.
void ListAppender::forgetAdded(const char *kind) {
    if (objectTakesValue(kind))
        for (const void *value : added_) destroyValueByKind(kind, const_cast<void *>(value));
    added_.clear();
    destroyAttribute(list_);
    list_ = get(object_, name_);
}

zundo_status_t appendAttributeValue(zundo_int_object_s *object, const char *name,
                                    const void *value) {
    ListAppender list(object, name);
    zundo_status_t status = list.add(value);
    return status == ZUNDO_OK ? list.commit() : status;
}

zundo_status_t setAndReleaseAttribute(zundo_int_object_s *object,
                                      zundo_int_attribute_s *attribute) {
    zundo_status_t status = set(object, attribute);
    if (status != ZUNDO_OK) destroyHeldValues(attribute);
    destroyAttribute(attribute);
    return status;
}

ChildElements::ChildElements(const xercesc::DOMElement *parent) {
    if (parent == nullptr || getElements(parent, &list_).status != ZUNDO_OK) return;
    while (list_ != nullptr && list_[count_] != nullptr) ++count_;
}

xercesc::DOMElement *ChildElements::first(const char *name) const {
    for (ElementEntry *child : *this)
        if (std::strcmp(child->name, name) == 0) return child->element;
    return nullptr;
}

bool textIs(const char *text, const char *expected) {
    return text != nullptr && std::strcmp(text, expected) == 0;
}

void replaceWithReferencedMedia(const xercesc::DOMElement *mediaRef, IdElement **mediaList,
                                zundo_int_object_s **media) {
    const IdElement *entry = findIdElement(mediaList, ElementAttribute(mediaRef, "rRef").value());
    zundo_int_object_s *copy = nullptr;
    if (entry == nullptr || entry->media == nullptr || cloneMedia(&copy, entry->media) != ZUNDO_OK)
        return;
    if (*media != nullptr) destroy(*media);
    *media = copy;
}

zundo_int_object_s *firstObjectValue(zundo_int_object_s *object, const char *name) {
    zundo_int_attribute_s *attribute = get(object, name);
    auto *first =
        hasNextValue(attribute) ? static_cast<zundo_int_object_s *>(nextValue(attribute)) : nullptr;
    destroyAttribute(attribute);
    return first;
}

void readCommentUnits(const xercesc::DOMElement *element, zundo_int_object_s *object,
                      const char *jdfAttribute, const char *name) {
    for (ElementEntry *child : ChildElements(element)) {
        if (std::strcmp(child->name, "Comment") != 0) continue;
        if (jdfAttribute != nullptr &&
            !textIs(ElementAttribute(child->element, "Attribute").value(), jdfAttribute))
            continue;
        char *text = nullptr;
        if (getElementText(child->element, &text).status == ZUNDO_OK)
            setStringAttribute(object, name, text);
        delete[] text;
    }
}
