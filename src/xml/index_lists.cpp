// Index lists, the partition match rule and page tokens.
#include "xml/index_lists.h"

#include <cstdlib>
#include <cstring>

#include "catalogue/type_names.h"
#include "xml/jdf_lists.h"
#include "zundo_trace.h"

XERCES_CPP_NAMESPACE_USE

namespace {

// Entries without the key are passed over; they neither appear in the list
// nor break a run of repeats.
template <typename Entry>
zundo_status_t collapsedKeys(Entry *const *entries, bool secondLevel, const char ***out,
                             const char *operation, void (*traceFailure)(const char *)) {
    zundo_trace(">> Entering %s \n", operation);
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    size_t kept = 0;
    const char *previous = "";
    for (Entry *const *at = entries; at != nullptr && *at != nullptr; ++at) {
        const char *key = secondLevel ? (*at)->secondKey : (*at)->firstKey;
        if (key == nullptr || std::strcmp(key, previous) == 0) continue;
        previous = key;
        ++kept;
    }
    auto **list = static_cast<const char **>(std::malloc((kept + 1) * sizeof(char *)));
    if (list == nullptr) {
        traceFailure(operation);
        return ZUNDO_OUT_OF_MEMORY;
    }
    size_t index = 0;
    previous = "";
    for (Entry *const *at = entries; at != nullptr && *at != nullptr; ++at) {
        const char *key = secondLevel ? (*at)->secondKey : (*at)->firstKey;
        if (key == nullptr || std::strcmp(key, previous) == 0) continue;
        previous = key;
        list[index++] = key;
    }
    list[index] = nullptr;
    *out = list;
    zundo_trace("<< Leaving %s \n", operation);
    return ZUNDO_OK;
}

void traceRunIndexListFailure(const char *operation) {
    zundo_trace("memory allocation for runIndexList failed for %s: out of memory \n", operation);
}

void traceRunIndexListFromElementsFailure(const char *) { traceOutOfMemory("createRunIndexList"); }

}  // namespace

zundo_status_t createDocIndexListFromAttrs(AttributeEntry *const *attrs, const char ***out) {
    return collapsedKeys(attrs, false, out, "createDocIndexListFromAttrs", traceOutOfMemory);
}

zundo_status_t createDocIndexListFromElements(ElementEntry *const *elements, const char ***out) {
    return collapsedKeys(elements, false, out, "createDocIndexListFromElements", traceOutOfMemory);
}

zundo_status_t createRunIndexListFromAttrs(AttributeEntry *const *attrs, const char ***out) {
    return collapsedKeys(attrs, true, out, "createRunIndexListFromAttrs", traceRunIndexListFailure);
}

zundo_status_t createRunIndexListFromElements(ElementEntry *const *elements, const char ***out) {
    return collapsedKeys(elements, true, out, "createRunIndexListFromElements",
                         traceRunIndexListFromElementsFailure);
}

namespace {

// Joins the index lists of both entry lists into *out; the entry lists are
// the caller's.
zundo_status_t combineIndexLists(const char **fromAttrs, const char **fromElements,
                                 const char ***out) {
    *out = combineLists(fromAttrs, fromElements);
    std::free(fromAttrs);
    std::free(fromElements);
    return *out != nullptr ? ZUNDO_OK : ZUNDO_OUT_OF_MEMORY;
}

void clearOutputs(const char ***out, AttributeEntry ***attrs, ElementEntry ***elements) {
    *out = nullptr;
    *attrs = nullptr;
    *elements = nullptr;
}

}  // namespace

zundo_status_t getDocIndexList(const DOMElement *resource, const char ***out,
                               AttributeEntry ***attrs, ElementEntry ***elements) {
    zundo_trace(">> Entering getDocIndexList \n");
    if (out == nullptr || attrs == nullptr || elements == nullptr) return ZUNDO_INVALID_ARGUMENT;
    clearOutputs(out, attrs, elements);
    AttributeEntry **attrList = nullptr;
    ElementEntry **elementList = nullptr;
    if (getDocIndexLvlAttrs(resource, &attrList).status != ZUNDO_OK) {
        zundo_trace("call to getDocIndexLvlAttrs failed for resource \n");
        return ZUNDO_ERROR;
    }
    if (getDocIndexLvlElements(resource, &elementList).status != ZUNDO_OK) {
        zundo_trace("call to getDocIndexLvlElements failed for resource \n");
        freeAttrList(attrList);
        return ZUNDO_ERROR;
    }
    const char **fromAttrs = nullptr;
    const char **fromElements = nullptr;
    zundo_status_t status = createDocIndexListFromAttrs(attrList, &fromAttrs);
    if (status == ZUNDO_OK) status = createDocIndexListFromElements(elementList, &fromElements);
    if (status == ZUNDO_OK) {
        status = combineIndexLists(fromAttrs, fromElements, out);
    } else {
        std::free(fromAttrs);
    }
    if (status != ZUNDO_OK) {
        freeAttrList(attrList);
        freeElementList(elementList);
        return status;
    }
    *attrs = attrList;
    *elements = elementList;
    zundo_trace("<< Leaving getDocIndexList \n");
    return ZUNDO_OK;
}

// A failed lookup leaves its entry list null and is not reported: the
// walk then sees no partitions of that kind.
zundo_status_t getRunIndexList(const DOMElement *resource, const zundo_int_object_s *owner,
                               const char ***out, AttributeEntry ***attrs,
                               ElementEntry ***elements) {
    zundo_trace(">> Entering getRunIndexList \n");
    if (out == nullptr || attrs == nullptr || elements == nullptr || owner == nullptr)
        return ZUNDO_INVALID_ARGUMENT;
    clearOutputs(out, attrs, elements);
    const char *type = getObjectType(owner);
    if (type != nullptr && std::strcmp(type, ZUNDO_TYPE_JOB) == 0) {
        getRunIndexLvlAttrs(resource, attrs);
        getRunIndexLvlElements(resource, elements);
    } else {
        getDocRunIndexLvlAttrs(resource, attrs);
        getDocRunIndexLvlElements(resource, elements);
    }
    const char **fromAttrs = nullptr;
    const char **fromElements = nullptr;
    zundo_status_t status = createRunIndexListFromAttrs(*attrs, &fromAttrs);
    if (status == ZUNDO_OK) status = createRunIndexListFromElements(*elements, &fromElements);
    if (status == ZUNDO_OK) {
        status = combineIndexLists(fromAttrs, fromElements, out);
    } else {
        std::free(fromAttrs);
    }
    if (status != ZUNDO_OK) {
        freeAttrList(*attrs);
        freeElementList(*elements);
        clearOutputs(out, attrs, elements);
        return status;
    }
    zundo_trace("<< Leaving getRunIndexList \n");
    return ZUNDO_OK;
}

namespace {

template <typename Entry>
size_t countDocEntries(Entry *const *entries, const char *docFilter) {
    size_t count = 0;
    for (Entry *const *at = entries; at != nullptr && *at != nullptr; ++at)
        if (partitionMatches(docFilter, nullptr, (*at)->firstKey, (*at)->secondKey)) ++count;
    return count;
}

template <typename Entry>
size_t appendDocEntries(Entry *const *entries, const char *docFilter, const char **list,
                        size_t index) {
    for (Entry *const *at = entries; at != nullptr && *at != nullptr; ++at)
        if (partitionMatches(docFilter, nullptr, (*at)->firstKey, (*at)->secondKey))
            list[index++] = (*at)->secondKey;
    list[index] = nullptr;
    return index;
}

bool growIndexList(const char ***list, size_t entries) {
    auto **grown = static_cast<const char **>(std::realloc(*list, (entries + 1) * sizeof(char *)));
    if (grown == nullptr) return false;
    *list = grown;
    return true;
}

}  // namespace

zundo_status_t getDocSpecificRunIndexList(ElementEntry *const *elements,
                                          AttributeEntry *const *attrs, const char *docFilter,
                                          const char ***list) {
    if (list == nullptr) return ZUNDO_INVALID_ARGUMENT;
    size_t fromElements = countDocEntries(elements, docFilter);
    if (!growIndexList(list, fromElements)) {
        traceOutOfMemory("getDocSpecificRunIndexList");
        return ZUNDO_OUT_OF_MEMORY;
    }
    size_t index = appendDocEntries(elements, docFilter, *list, 0);
    if (!growIndexList(list, index + countDocEntries(attrs, docFilter))) {
        zundo_trace("getDocSpecificRunIndexList() generated out of memory");
        return ZUNDO_OUT_OF_MEMORY;
    }
    appendDocEntries(attrs, docFilter, *list, index);
    return ZUNDO_OK;
}

int partitionMatches(const char *docFilter, const char *runFilter, const char *entryDoc,
                     const char *entryRun) {
    if (docFilter != nullptr && (entryDoc == nullptr || std::strcmp(entryDoc, docFilter) != 0))
        return 0;
    if (runFilter != nullptr && !runIndexContains(entryRun, runFilter)) return 0;
    return 1;
}

namespace {

bool isBlank(char c) { return c == ' '; }

// Writes a range spelt with blanks round its "~" ("1 ~ 5") without them,
// in place. Only a "~" with blanks on both sides is joined: "5~ 8" stays
// two tokens, of which "5~" is no page.
void joinRanges(char *text) {
    char *out = text;
    for (const char *at = text; *at != '\0';) {
        if (isBlank(*at)) {
            const char *tilde = at;
            while (isBlank(*tilde)) ++tilde;
            if (*tilde == '~' && isBlank(tilde[1]) && out != text) {
                *out++ = '~';
                at = tilde + 1;
                while (isBlank(*at)) ++at;
                continue;
            }
        }
        *out++ = *at++;
    }
    *out = '\0';
}

char *copyForJoining(const char *text) {
    size_t length = std::strlen(text);
    char *copy = static_cast<char *>(std::malloc(length + 1));
    if (copy != nullptr) std::memcpy(copy, text, length + 1);
    return copy;
}

}  // namespace

int runIndexContains(const char *runIndex, const char *token) {
    if (runIndex == nullptr || token == nullptr) return 0;
    if (std::strcmp(runIndex, token) == 0) return 1;
    size_t tokenLength = std::strlen(token);
    if (std::strlen(runIndex) <= tokenLength || runIndex[0] == '~' || tokenLength == 0) return 0;
    char *joined = copyForJoining(runIndex);
    if (joined == nullptr) {
        traceOutOfMemory("runIndexContains");
        return 0;
    }
    joinRanges(joined);
    int contains = 0;
    for (const char *found = std::strstr(joined, token); found != nullptr && !contains;
         found = std::strstr(found + 1, token)) {
        bool startBounded = found == joined || isBlank(found[-1]);
        bool endBounded = found[tokenLength] == '\0' || isBlank(found[tokenLength]);
        contains = startBounded && endBounded ? 1 : 0;
    }
    std::free(joined);
    return contains;
}

namespace {

// "5~", "~5" and "~" name no page.
bool isPageToken(const char *token, size_t length) {
    const void *tilde = std::memchr(token, '~', length);
    return tilde == nullptr || (tilde != token && token[length - 1] != '~');
}

// Calls visit(token, length) for every blank-separated page token.
template <typename Visit>
bool forEachPageToken(const char *text, Visit visit) {
    for (const char *at = text;;) {
        while (isBlank(*at)) ++at;
        if (*at == '\0') return true;
        size_t length = std::strcspn(at, " ");
        if (isPageToken(at, length) && !visit(at, length)) return false;
        at += length;
    }
}

}  // namespace

zundo_status_t parsePages(const char *text, char ***out) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    if (text == nullptr) return ZUNDO_INVALID_ARGUMENT;
    char *joined = copyForJoining(text);
    if (joined == nullptr) {
        traceOutOfMemory("parsePages");
        return ZUNDO_OUT_OF_MEMORY;
    }
    joinRanges(joined);
    size_t count = 0;
    forEachPageToken(joined, [&count](const char *, size_t) { return ++count != 0; });
    auto **tokens = static_cast<char **>(std::calloc(count + 1, sizeof(char *)));
    size_t index = 0;
    bool copied = tokens != nullptr &&
                  forEachPageToken(joined, [tokens, &index](const char *token, size_t length) {
                      char *copy = static_cast<char *>(std::malloc(length + 1));
                      if (copy == nullptr) return false;
                      std::memcpy(copy, token, length);
                      copy[length] = '\0';
                      tokens[index++] = copy;
                      return true;
                  });
    std::free(joined);
    if (!copied) {
        traceOutOfMemory("parsePages");
        freePageTokens(tokens);
        return ZUNDO_OUT_OF_MEMORY;
    }
    *out = tokens;
    return ZUNDO_OK;
}

void freePageTokens(char **tokens) {
    if (tokens == nullptr) return;
    for (char **token = tokens; *token != nullptr; ++token) std::free(*token);
    std::free(tokens);
}
