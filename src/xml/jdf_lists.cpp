// Resource lists by ID, list joining and the shared text conversions.
#include "xml/jdf_lists.h"

#include <xercesc/dom/DOMElement.hpp>

#include <cctype>
#include <climits>
#include <cstdlib>
#include <cstring>

#include "zundo_trace.h"

XERCES_CPP_NAMESPACE_USE

zundo_status_t addIdElementToList(DOMElement *element, IdElement ***list,
                                  MediaObjectMaker makeMedia) {
    zundo_trace(">> Entering addIdElementToList \n");
    if (element == nullptr || list == nullptr) return ZUNDO_NULL_ARGUMENT;
    if (element->hasAttribute(u"ID")) {
        size_t count = 0;
        while (*list != nullptr && (*list)[count] != nullptr) ++count;
        auto *item = static_cast<IdElement *>(std::calloc(1, sizeof(IdElement)));
        if (item != nullptr)
            item->id = UTF8Transcoder::transcodeValue(element->getAttribute(u"ID"));
        if (item == nullptr || item->id == nullptr || !growListForAppend(list, count)) {
            traceOutOfMemory("addIdElementToList");
            if (item != nullptr) delete[] item->id;
            std::free(item);
            return ZUNDO_OUT_OF_MEMORY;
        }
        item->element = element;
        if (makeMedia != nullptr) makeMedia(&item->media, element);
        (*list)[count] = item;
        (*list)[count + 1] = nullptr;
    }
    zundo_trace("<< Leaving addIdElementToList \n");
    return ZUNDO_OK;
}

void freeIdElementList(IdElement **list) {
    if (list == nullptr) return;
    for (IdElement **item = list; *item != nullptr; ++item) {
        if ((*item)->media != nullptr) destroy((*item)->media);
        delete[](*item)->id;
        std::free(*item);
    }
    std::free(list);
}

const char **combineLists(const char *const *a, const char *const *b) {
    size_t countA = 0, countB = 0;
    while (a != nullptr && a[countA] != nullptr) ++countA;
    while (b != nullptr && b[countB] != nullptr) ++countB;
    auto **combined =
        static_cast<const char **>(std::malloc((countA + countB + 1) * sizeof(char *)));
    if (combined == nullptr) {
        traceOutOfMemory("combineLists");
        return nullptr;
    }
    for (size_t i = 0; i < countA; ++i) combined[i] = a[i];
    for (size_t i = 0; i < countB; ++i) combined[countA + i] = b[i];
    combined[countA + countB] = nullptr;
    return combined;
}

namespace {

// strtol and strtod would skip leading white space; the text must be a
// number from its first character.
bool startsConvertible(const char *text) {
    return text != nullptr && *text != '\0' && !std::isspace(static_cast<unsigned char>(*text));
}

}  // namespace

// Values beyond int saturate the way a 32-bit strtol saturates.
bool convertStringToInt(const char *text, int *out) {
    if (!startsConvertible(text) || out == nullptr) return false;
    char *end = nullptr;
    long value = std::strtol(text, &end, 0);
    if (*end != '\0') return false;
    if (value > INT_MAX) value = INT_MAX;
    if (value < INT_MIN) value = INT_MIN;
    *out = static_cast<int>(value);
    return true;
}

bool convertStringToDouble(const char *text, double *out) {
    if (!startsConvertible(text) || out == nullptr) return false;
    char *end = nullptr;
    double value = std::strtod(text, &end);
    if (*end != '\0') return false;
    *out = value;
    return true;
}

char **parseXPath(char *path, const char *prefix, const char *delimiters) {
    if (path == nullptr || delimiters == nullptr) return nullptr;
    size_t count = 0;
    for (const char *at = path + std::strspn(path, delimiters); *at != '\0';
         at += std::strspn(at, delimiters)) {
        ++count;
        at += std::strcspn(at, delimiters);
    }
    auto **tokens = static_cast<char **>(std::malloc((count + 1) * sizeof(char *)));
    if (tokens == nullptr) {
        traceOutOfMemory("parseXPath");
        return nullptr;
    }
    size_t index = 0;
    char *rest = nullptr;
    for (char *token = strtok_r(path, delimiters, &rest); token != nullptr;
         token = strtok_r(nullptr, delimiters, &rest)) {
        if (prefix != nullptr && std::strstr(token, prefix) != nullptr)
            token += std::strlen(prefix);
        tokens[index++] = token;
    }
    tokens[index] = nullptr;
    return tokens;
}

const IdElement *findIdElement(IdElement *const *list, const char *id) {
    if (id == nullptr) return nullptr;
    for (IdElement *const *item = list; item != nullptr && *item != nullptr; ++item)
        if (std::strcmp((*item)->id, id) == 0) return *item;
    return nullptr;
}
