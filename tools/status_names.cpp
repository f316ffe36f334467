#include "status_names.h"

const char *statusName(zundo_status_t status) {
    switch (status) {
    case ZUNDO_OK: return "ZUNDO_OK";
    case ZUNDO_ERROR: return "ZUNDO_ERROR";
    case ZUNDO_INVALID_ARGUMENT: return "ZUNDO_INVALID_ARGUMENT";
    case ZUNDO_NOT_FOUND: return "ZUNDO_NOT_FOUND";
    case ZUNDO_FILE_ERROR: return "ZUNDO_FILE_ERROR";
    case ZUNDO_NO_SPACE: return "ZUNDO_NO_SPACE";
    case ZUNDO_OUT_OF_MEMORY: return "ZUNDO_OUT_OF_MEMORY";
    case ZUNDO_INVALID_JOB_TICKET: return "ZUNDO_INVALID_JOB_TICKET";
    case ZUNDO_PARSE_FAILED: return "ZUNDO_PARSE_FAILED";
    case ZUNDO_INTERNAL_ERROR: return "ZUNDO_INTERNAL_ERROR";
    case ZUNDO_XML_INIT_FAILED: return "ZUNDO_XML_INIT_FAILED";
    case ZUNDO_WRONG_ELEMENT: return "ZUNDO_WRONG_ELEMENT";
    case ZUNDO_MISSING_FIELD: return "ZUNDO_MISSING_FIELD";
    case ZUNDO_NULL_ARGUMENT: return "ZUNDO_NULL_ARGUMENT";
    case ZUNDO_NO_CHILDREN: return "ZUNDO_NO_CHILDREN";
    case ZUNDO_UNSUPPORTED_XML_VERSION: return "ZUNDO_UNSUPPORTED_XML_VERSION";
    case ZUNDO_UNSUPPORTED_ENCODING: return "ZUNDO_UNSUPPORTED_ENCODING";
    }
    return "unknown status";
}
