// Library strings and their JDF strings. A format text such as "PDF/1.4" is
// written as a MIME type ("job-destination-connector-file-format") plus a
// version ("doc-format-version"); a bare MIME type has no version.
#include "enums/value_tables.h"

// The string attributes whose values are written as they stand.
const zundo_string_pair_s noStrings[] = {{nullptr, nullptr}};

const zundo_string_pair_s fileFormatMimeTypes[] = {
    {"application/vnd.ibm.modcap", "application/vnd.ibm.modcap"},
    {"image/gif", "image/gif"},
    {"image/jpeg", "image/jpeg"},
    {"application/vnd.hp-PCL", "application/vnd.hp-PCL"},
    {"PCL/5", "application/vnd.hp-PCL"},
    {"PCL/6", "application/vnd.hp-PCL"},
    {"application/pdf", "application/pdf"},
    {"PDF/1.0", "application/pdf"},
    {"PDF/1.1", "application/pdf"},
    {"PDF/1.2", "application/pdf"},
    {"PDF/1.3", "application/pdf"},
    {"PDF/1.4", "application/pdf"},
    {"PDF/1.5", "application/pdf"},
    {"application/vnd.podi-ppml+xml", "application/vnd.podi-ppml+xml"},
    {"application/postscript", "application/postscript"},
    {"text/plain", "text/plain"},
    {"image/tiff", "image/tiff"},
    {nullptr, nullptr}};

const zundo_string_pair_s fileFormatVersions[] = {
    {"application/vnd.ibm.modcap", nullptr},
    {"image/gif", nullptr},
    {"image/jpeg", nullptr},
    {"application/vnd.hp-PCL", nullptr},
    {"PCL/5", "PCL/5"},
    {"PCL/6", "PCL/6"},
    {"application/pdf", nullptr},
    {"PDF/1.0", "PDF/1.0"},
    {"PDF/1.1", "PDF/1.1"},
    {"PDF/1.2", "PDF/1.2"},
    {"PDF/1.3", "PDF/1.3"},
    {"PDF/1.4", "PDF/1.4"},
    {"PDF/1.5", "PDF/1.5"},
    {"application/vnd.podi-ppml+xml", nullptr},
    {"application/postscript", nullptr},
    {"text/plain", nullptr},
    {"image/tiff", nullptr},
    {nullptr, nullptr}};
