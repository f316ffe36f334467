// The JDF path of each attribute that modification audits can name.
#ifndef ZUNDO_JDF_PATHS_H
#define ZUNDO_JDF_PATHS_H

#include <cstddef>

struct zundo_jdf_path_s {
    const char *attribute;
    const char *path;
};

// Rows sorted by attribute name in byte order.
extern const zundo_jdf_path_s jdfPathTable[];
extern const size_t jdfPathTableRows;

#endif
