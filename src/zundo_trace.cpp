// Status reporting and the two trace sinks (file and callback).
#include "zundo_trace.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

namespace {

// Process-wide and unguarded: callers configure tracing before using
// threads.
struct TraceState {
    int fileLevel = -1;
    bool fileOn = false;
    FILE *file = nullptr;
    int callbackLevel = -1;
    bool callbackOn = false;
    zundo_trace_callback_t callback = nullptr;
};

TraceState traceState;

bool masterSwitchOn() { return std::getenv("DEBUG_ZUNDO") != nullptr; }

bool isTraceLevel(int level) { return level == 0 || level == 1; }

// " 2026 Nov 22 21:19:11": the year, then month, day and time of asctime.
void formatStamp(char stamp[32]) {
    std::time_t now = std::time(nullptr);
    std::tm local{};
    char text[32] = {0};
    if (localtime_r(&now, &local) == nullptr || asctime_r(&local, text) == nullptr ||
        std::strlen(text) < 24) {
        std::strcpy(stamp, " 0000 ??? ?? ??:??:??");
        return;
    }
    std::memcpy(stamp, text + 19, 5);
    stamp[5] = ' ';
    std::memcpy(stamp + 6, text + 4, 15);
    stamp[21] = '\0';
}

char *formatMessage(const char *format, va_list args, zundo_status_t *status) {
    va_list measure;
    va_copy(measure, args);
    int length = std::vsnprintf(nullptr, 0, format, measure);
    va_end(measure);
    if (length < 0) {
        *status = ZUNDO_ERROR;
        return nullptr;
    }
    char *message = static_cast<char *>(std::malloc(static_cast<size_t>(length) + 1));
    if (message == nullptr) {
        *status = ZUNDO_OUT_OF_MEMORY;
        return nullptr;
    }
    if (std::vsnprintf(message, static_cast<size_t>(length) + 1, format, args) < 0) {
        std::free(message);
        *status = ZUNDO_ERROR;
        return nullptr;
    }
    *status = ZUNDO_OK;
    return message;
}

zundo_status_t deliver(int level, const char *message) {
    TraceState &s = traceState;
    if (s.fileOn) {
        if (s.file == nullptr) return ZUNDO_ERROR;
        char stamp[32];
        formatStamp(stamp);
        if (s.fileLevel == 0 && level == 0) {
            std::fprintf(s.file, "[%s ] %s \n", stamp, message);
            std::fflush(s.file);
        } else if (s.fileLevel == 1) {
            std::fprintf(s.file, "[%s ] %s\n", stamp, message);
            std::fflush(s.file);
        }
    }
    if (s.callbackOn && s.callback != nullptr &&
        ((s.callbackLevel == 0 && level == 0) || s.callbackLevel == 1)) {
        s.callback(message);
    }
    return ZUNDO_OK;
}

}  // namespace

extern "C" {

zundo_status_t zundotrace(int level, const char *format, ...) {
    if (!masterSwitchOn() || format == nullptr ||
        (level != traceState.fileLevel && level != traceState.callbackLevel))
        return ZUNDO_ERROR;
    zundo_status_t status;
    va_list args;
    va_start(args, format);
    char *message = formatMessage(format, args, &status);
    va_end(args);
    if (message == nullptr) return status;
    status = deliver(level, message);
    std::free(message);
    return status;
}

void zundo_trace(const char *format, ...) {
    if (format == nullptr || !traceDetailWanted()) return;
    zundo_status_t status;
    va_list args;
    va_start(args, format);
    char *message = formatMessage(format, args, &status);
    va_end(args);
    if (message == nullptr) return;
    zundotrace(1, "%s", message);
    std::free(message);
}

void enableTraceFile(int level, const char *path) {
    if (!isTraceLevel(level)) {
        std::printf("ERROR! - The trace level was not specified for File tracing");
        return;
    }
    traceState.fileLevel = level;
    if (path == nullptr) {
        std::printf("ERROR! - The trace file path was found NULL");
        return;
    }
    if (traceState.file != nullptr) {
        std::fclose(traceState.file);
        traceState.file = nullptr;
        traceState.fileOn = false;
    }
    traceState.file = std::fopen(path, "a");
    if (traceState.file == nullptr) {
        std::printf("ERROR! - Unable to open the file!");
        return;
    }
    traceState.fileOn = true;
}

void disableTraceFile(void) {
    if (traceState.file != nullptr) std::fclose(traceState.file);
    traceState.file = nullptr;
    traceState.fileOn = false;
    traceState.fileLevel = -1;
}

int getTraceFileLevel(void) { return traceState.fileLevel; }

void enableTraceCallback(int level, zundo_trace_callback_t callback) {
    if (!isTraceLevel(level)) {
        std::printf("ERROR! - The trace level was not specified for Callback tracing");
        return;
    }
    traceState.callbackLevel = level;
    if (callback == nullptr) {
        std::printf("ERROR! - Pointer to function not initialized");
        return;
    }
    traceState.callback = callback;
    traceState.callbackOn = true;
}

void disableTraceCallback(void) {
    traceState.callbackOn = false;
    traceState.callback = nullptr;
    traceState.callbackLevel = -1;
}

int getTraceCallbackLevel(void) { return traceState.callbackLevel; }

const char *getZUNDOCurrentVersion(void) { return "1.4.13 Drop 382"; }

}  // extern "C"

// A level-1 message reaches a sink only when some sink is at level 1
// (zundotrace admits a message only at a sink's own level).
bool traceDetailWanted() {
    return (traceState.fileLevel == 1 || traceState.callbackLevel == 1) && masterSwitchOn();
}

void traceOutOfMemory(const char *operation) {
    zundo_trace("%s() generated out of memory \n", operation);
}
