// Names of the library's status codes, for messages people read.
#ifndef ZUNDO_TOOL_STATUS_NAMES_H
#define ZUNDO_TOOL_STATUS_NAMES_H

#include "zundo.h"

const char *statusName(zundo_status_t status);

#endif
