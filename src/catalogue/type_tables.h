// The attribute definition table of every object type, found by type string.
#ifndef ZUNDO_TYPE_TABLES_H
#define ZUNDO_TYPE_TABLES_H

#include "zundo_object.h"

struct zundo_type_table_s {
    const char *type;                      // "ZUNDO_BINDING", ...
    const zundo_attribute_info_s *table;   // sorted rows, null-name row last
    int rows;                              // rows including the terminating row
    const char *blockPrefix;               // owners of the print-parameter block
                                           // ("job-", "document-", "page-cell-",
                                           // "page-range-"), else null
};

// The table of `type`, or null for a type the model does not have. Knows the
// 38 object types and "ZUNDO_ABSTRACT_JDP".
const zundo_type_table_s *findTypeTable(const char *type);

#endif
