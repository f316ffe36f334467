// The reader's lists of resources by ID, and the text conversions every
// JDF reader shares.
#ifndef ZUNDO_XML_JDF_LISTS_H
#define ZUNDO_XML_JDF_LISTS_H

#include "xml/jdf_entries.h"

// One resource of the reader's FileSpec or Media list.
struct IdElement {
    char *id;  // owned (new[])
    xercesc::DOMElement *element;
    zundo_int_object_s *media;  // owned, destroyed with the list
};

// Makes the media object of a resource element; the object is kept even
// when the status is not ZUNDO_OK.
typedef zundo_status_t (*MediaObjectMaker)(zundo_int_object_s **out, xercesc::DOMElement *element);

// Appends the element under its "ID" (an element without one adds
// nothing), with the media object makeMedia makes of it (none when
// makeMedia is null). *list is null or a list built by this function.
zundo_status_t addIdElementToList(xercesc::DOMElement *element, IdElement ***list,
                                  MediaObjectMaker makeMedia);
void freeIdElementList(IdElement **list);
// The entry with that ID, or null.
const IdElement *findIdElement(IdElement *const *list, const char *id);

// A new null-terminated array of the pointers of a, then those of b (null
// counts as empty); the texts are shared. Freed with std::free; null when
// out of memory.
const char **combineLists(const char *const *a, const char *const *b);

// Whole-text conversions: strtol with base 0 or strtod must consume every
// character, and *out is written only on success.
bool convertStringToInt(const char *text, int *out);
bool convertStringToDouble(const char *text, double *out);

// Splits path in place at any of the delimiters. Tokens containing prefix
// start prefix's length further on. The array (std::free) points into
// path; null when out of memory.
char **parseXPath(char *path, const char *prefix, const char *delimiters);

#endif
