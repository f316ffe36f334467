// The public read operations: a new ticket from a text, a stream or a file,
// and a text read into an existing ticket.
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "read/read_driver.h"
#include "zundo_trace.h"

namespace {

// The line numbers a failed construction reports from the string form.
enum : int { kNoOutputLine = 723, kDocumentLine = 731, kJobLine = 737, kTicketLine = 743 };

const char kFilePrefix[] = "file://";

// An empty job with one empty document, held by a new ticket: the first
// LayoutElement read fills that document.
zundo_result_t newEmptyTicket(zundo_int_object_s **out) {
    zundo_int_object_s *document = nullptr;
    zundo_status_t status = newDocument(&document, nullptr);
    if (status != ZUNDO_OK) return zundoResult(status, kDocumentLine);
    zundo_int_object_s *job = nullptr;
    status = newJob(&job, document);
    if (status != ZUNDO_OK) {
        destroy(document);  // a job that was not made did not take it
        return zundoResult(status, kJobLine);
    }
    status = newJobTicketInfoFromJob(out, job);
    if (status != ZUNDO_OK) {
        destroy(job);
        return zundoResult(status, kTicketLine);
    }
    return zundoResult(ZUNDO_OK);
}

// The constructor forms hand out nothing when the read fails.
zundo_result_t readIntoNewTicket(zundo_int_object_s **out, const char *text) {
    zundo_result_t result = readJDFString(text, *out);
    if (result.status != ZUNDO_OK) {
        destroy(*out);
        *out = nullptr;
    }
    return result;
}

}  // namespace

extern "C" {

zundo_result_t newJobTicketInfoFromString(zundo_int_object_s **out, const char *text) {
    if (out == nullptr) return zundoResult(ZUNDO_INVALID_ARGUMENT, kNoOutputLine);
    *out = nullptr;
    zundo_result_t made = newEmptyTicket(out);
    if (made.status != ZUNDO_OK) return made;
    return readIntoNewTicket(out, text);
}

// A null out or stream is refused before anything is read.
zundo_result_t newJobTicketInfoFromStream(zundo_int_object_s **out, FILE *stream) {
    if (out == nullptr || stream == nullptr) return zundoResult(ZUNDO_INVALID_ARGUMENT);
    *out = nullptr;
    long length = std::fseek(stream, 0, SEEK_END) == 0 ? std::ftell(stream) : -1;
    if (length < 1) {
        zundo_trace("No data in stream. Job Ticket is invalid. \n");
        return zundoResult(ZUNDO_INVALID_JOB_TICKET);
    }
    std::rewind(stream);
    char *text = static_cast<char *>(std::malloc(static_cast<size_t>(length) + 1));
    if (text == nullptr) {
        traceOutOfMemory("newJobTicketInfoFromStream");
        return zundoResult(ZUNDO_OUT_OF_MEMORY);
    }
    zundo_result_t result = newEmptyTicket(out);
    if (result.status != ZUNDO_OK) {
        std::free(text);
        return zundoResult(result.status);
    }
    size_t read = std::fread(text, 1, static_cast<size_t>(length), stream);
    text[read] = '\0';
    result = readIntoNewTicket(out, text);
    std::free(text);
    return result;
}

zundo_result_t newJobTicketInfoFromURL(zundo_int_object_s **out, const char *url) {
    const char *name = url;
    if (name != nullptr && std::strncmp(name, kFilePrefix, sizeof(kFilePrefix) - 1) == 0)
        name += sizeof(kFilePrefix) - 1;
    if (name == nullptr || name[0] == '\0') {
        zundo_trace("A valid url must be provided.\n");
        return zundoResult(ZUNDO_INVALID_ARGUMENT);
    }
    FILE *file = std::fopen(name, "rb");
    if (file == nullptr) {
        zundo_trace("fopen failed opening file '%s' with mode %s\n", name, "rb");
        return zundoResult(ZUNDO_FILE_ERROR);
    }
    zundo_result_t result = newJobTicketInfoFromStream(out, file);
    int closed = std::fclose(file);
    if (closed != 0) {
        zundo_trace("fclose returned error %i\n", closed);
        // A failed status hands out no ticket, whatever was read.
        result.status = ZUNDO_FILE_ERROR;
        if (out != nullptr) {
            destroy(*out);
            *out = nullptr;
        }
    }
    return result;
}

// A failed read is not undone: the ticket keeps what was set before the
// failure.
zundo_status_t readJobTicketString(const char *text, zundo_int_object_s *ticket) {
    if (ticket == nullptr) return ZUNDO_INVALID_ARGUMENT;
    return readJDFString(text, ticket).status;
}

}  // extern "C"
