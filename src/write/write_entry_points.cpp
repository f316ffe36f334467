// The public write operations: to a string, an open stream or a file.
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "write/write_driver.h"
#include "xml/xml_document.h"
#include "zundo_trace.h"

namespace {

const char kFileScheme[] = "file://";
const char kFileMode[] = "w+";

// The whole text in one write.
zundo_status_t writeText(FILE *stream, const char *text) {
    size_t length = std::strlen(text);
    errno = 0;
    if (std::fwrite(text, 1, length, stream) == length) return ZUNDO_OK;
    return errno == ENOSPC ? ZUNDO_NO_SPACE : ZUNDO_FILE_ERROR;
}

}  // namespace

extern "C" {

// A null ticket has no charset, so no document is started: ZUNDO_ERROR.
zundo_status_t writeJobTicketString(zundo_int_object_s *jobTicket, char **out) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    JDFWriteContext ctx = {};
    return writeJDFString(&ctx, jobTicket, out);
}

zundo_status_t writeJobTicketStream(zundo_int_object_s *jobTicket, FILE *stream) {
    if (stream == nullptr) return ZUNDO_INVALID_ARGUMENT;
    JDFWriteContext ctx = {};
    char *text = nullptr;
    zundo_status_t status = writeJDFString(&ctx, jobTicket, &text);
    if (status == ZUNDO_OK) status = text != nullptr ? writeText(stream, text) : ZUNDO_ERROR;
    releaseXMLString(text);
    return status;
}

zundo_status_t writeJobTicketURL(zundo_int_object_s *jobTicket, const char *url) {
    if (url == nullptr) return ZUNDO_INVALID_ARGUMENT;
    const size_t schemeLength = sizeof kFileScheme - 1;
    const char *path = std::strncmp(url, kFileScheme, schemeLength) == 0 ? url + schemeLength : url;
    FILE *file = std::fopen(path, kFileMode);
    if (file == nullptr) {
        zundo_trace("fopen failed opening file '%s' with mode %s\n", path, kFileMode);
        return ZUNDO_FILE_ERROR;
    }
    zundo_status_t status = writeJobTicketStream(jobTicket, file);
    int closed = std::fclose(file);
    if (closed != 0) {
        zundo_trace("fclose returned error %i\n", closed);
        return ZUNDO_FILE_ERROR;
    }
    return status;
}

void releaseJobTicketString(char *text) { releaseXMLString(text); }

}  // extern "C"
