// InsertSheet elements of a Disjointing or a LayoutPreparationParams as
// insert, banner and separator sheets, and the small lookups the layout
// readers share.
#ifndef ZUNDO_READ_INSERT_SHEET_READER_H
#define ZUNDO_READ_INSERT_SHEET_READER_H

#include <cstddef>

#include "xml/jdf_lists.h"

// The child elements of an element, freed on scope exit.
class ChildElements {
public:
    explicit ChildElements(const xercesc::DOMElement *parent);
    ~ChildElements() { freeElementList(list_); }
    ChildElements(const ChildElements &) = delete;
    ChildElements &operator=(const ChildElements &) = delete;
    ElementEntry *const *begin() const { return list_; }
    ElementEntry *const *end() const { return list_ + count_; }
    // The null-terminated list itself (null when it could not be made).
    ElementEntry *const *entries() const { return list_; }
    // The first child of that name, or null.
    xercesc::DOMElement *first(const char *name) const;

private:
    ElementEntry **list_ = nullptr;
    size_t count_ = 0;
};

// The entry of a FileSpec or Media list with that ID, or null.
const IdElement *findIdElement(IdElement *const *list, const char *id);

// Appends one sheet to "job-insert-sheets", "job-banner-sheets" or
// "job-separator-sheets" of `object` (those names whatever the object's
// type). ZUNDO_ERROR for a sheet that is neither a banner sheet nor has
// both SheetType and SheetUsage; the constructor's status when the sheet
// cannot be made.
zundo_status_t readInsertSheetFromParams(zundo_int_object_s *object,
                                         const ElementEntry *insertSheet, IdElement **mediaList);

#endif
