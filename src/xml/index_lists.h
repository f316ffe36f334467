// Index lists (which documents and runs a partitioned resource addresses),
// the rule that decides whether an entry applies to a document and run, and
// the splitting of RunIndex texts into page tokens.
#ifndef ZUNDO_XML_INDEX_LISTS_H
#define ZUNDO_XML_INDEX_LISTS_H

#include "xml/partitions.h"

// Index lists are null-terminated arrays (std::free) of texts borrowed from
// the entries they were collected from: they must not outlive them.

// The firstKey values (DocIndex forms) or secondKey values (RunIndex
// forms) of a list, in order, with consecutive repeats collapsed. Null
// entry lists count as empty; a null out pointer gives
// ZUNDO_INVALID_ARGUMENT.
zundo_status_t createDocIndexListFromAttrs(AttributeEntry *const *attrs, const char ***out);
zundo_status_t createDocIndexListFromElements(ElementEntry *const *elements, const char ***out);
zundo_status_t createRunIndexListFromAttrs(AttributeEntry *const *attrs, const char ***out);
zundo_status_t createRunIndexListFromElements(ElementEntry *const *elements, const char ***out);

// The DocIndex values of the resource with the DocIndex-level entries they
// borrow from; the caller frees all three. ZUNDO_ERROR when a lookup fails.
zundo_status_t getDocIndexList(const xercesc::DOMElement *resource, const char ***out,
                               AttributeEntry ***attrs, ElementEntry ***elements);
// The RunIndex values with their second-level entries: Run/RunIndex
// partitions for a job, DocIndex/DocRunIndex partitions for a document.
zundo_status_t getRunIndexList(const xercesc::DOMElement *resource, const zundo_int_object_s *owner,
                               const char ***out, AttributeEntry ***attrs,
                               ElementEntry ***elements);
// Replaces *list with the secondKey values of the element entries, then the
// attribute entries, that belong to the document docFilter (repeats kept).
zundo_status_t getDocSpecificRunIndexList(ElementEntry *const *elements,
                                          AttributeEntry *const *attrs, const char *docFilter,
                                          const char ***list);

// 1 when an entry with these key values applies to the document and run
// filters (a null filter accepts everything), else 0.
int partitionMatches(const char *docFilter, const char *runFilter, const char *entryDoc,
                     const char *entryRun);
// 1 when token is the RunIndex text or one of its blank-separated tokens
// (ranges compared as text), else 0.
int runIndexContains(const char *runIndex, const char *token);

// Splits a RunIndex or Pages text into page tokens ("4", "1~3"); the
// tokens and the array are freed with freePageTokens.
zundo_status_t parsePages(const char *text, char ***out);
void freePageTokens(char **tokens);

#endif
