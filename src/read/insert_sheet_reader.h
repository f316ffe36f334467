// InsertSheet elements of a Disjointing or a LayoutPreparationParams as
// insert, banner and separator sheets.
#ifndef ZUNDO_READ_INSERT_SHEET_READER_H
#define ZUNDO_READ_INSERT_SHEET_READER_H

#include "xml/jdf_lists.h"

// Appends one sheet to "job-insert-sheets", "job-banner-sheets" or
// "job-separator-sheets" of `object` (those names whatever the object's
// type). ZUNDO_ERROR for a sheet that is neither a banner sheet nor has
// both SheetType and SheetUsage; the constructor's status when the sheet
// cannot be made.
zundo_status_t readInsertSheetFromParams(zundo_int_object_s *object,
                                         const ElementEntry *insertSheet, IdElement **mediaList);

#endif
