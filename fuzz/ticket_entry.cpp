#include <cstdlib>
#include <string>

#include "fuzz_entries.h"
#include "zundo.h"

namespace {

void discardTrace(const char *) {}

// Every input runs with full tracing into a sink that drops it, so that each
// trace format meets the values the input brings. Odd-sized inputs also run
// with control-character coding on. The previous settings come back after
// the input, as the replay test shares the process with other tests.
class InputSettings {
public:
    explicit InputSettings(bool coding)
        : hadSwitch(std::getenv("DEBUG_ZUNDO") != nullptr),
          encoding(getControlCharacterEncodingFlag()),
          decoding(getControlCharacterDecodingFlag()) {
        if (hadSwitch) previousSwitch = std::getenv("DEBUG_ZUNDO");
        setenv("DEBUG_ZUNDO", "1", 1);
        enableTraceCallback(1, discardTrace);
        setControlCharacterEncoding(coding ? 1 : 0);
        setControlCharacterDecoding(coding ? 1 : 0);
    }
    ~InputSettings() {
        setControlCharacterEncoding(encoding);
        setControlCharacterDecoding(decoding);
        disableTraceCallback();
        if (hadSwitch)
            setenv("DEBUG_ZUNDO", previousSwitch.c_str(), 1);
        else
            unsetenv("DEBUG_ZUNDO");
    }
    InputSettings(const InputSettings &) = delete;
    InputSettings &operator=(const InputSettings &) = delete;

private:
    bool hadSwitch;
    std::string previousSwitch;
    short encoding;
    short decoding;
};

const char *checkClone(zundo_int_object_s *ticket) {
    zundo_int_object_s *copy = cloneObj(ticket);
    if (copy == nullptr) return "a read ticket does not clone";
    const char *fault = nullptr;
    if (compareObjects(ticket, copy) != 0 || compareJobs(getJob(ticket), getJob(copy)) != 0)
        fault = "the clone of a read ticket compares unequal";
    destroy(copy);
    return fault;
}

const char *checkMediaList(zundo_int_object_s *ticket) {
    zundo_int_object_s **media = nullptr;
    if (getMedia(ticket, &media) != ZUNDO_OK) return "the media of a read ticket cannot be listed";
    freeMediaList(media);
    return nullptr;
}

// What the library writes it must read again.
const char *checkWrittenReadsBack(zundo_int_object_s *ticket) {
    char *text = nullptr;
    if (writeJobTicketString(ticket, &text) != ZUNDO_OK) return "a read ticket does not write";
    zundo_int_object_s *again = nullptr;
    zundo_result_t result = newJobTicketInfoFromString(&again, text);
    releaseJobTicketString(text);
    if (result.status != ZUNDO_OK) return "the text written from a read ticket does not read";
    destroy(again);
    return nullptr;
}

}  // namespace

const char *fuzzTicketText(const std::uint8_t *data, std::size_t size) {
    InputSettings settings(size % 2 == 1);
    // The reader takes NUL-terminated text; a NUL inside the input ends it.
    std::string text(reinterpret_cast<const char *>(data), size);
    zundo_int_object_s *ticket = nullptr;
    zundo_result_t result = newJobTicketInfoFromString(&ticket, text.c_str());
    if (result.status != ZUNDO_OK)
        return ticket == nullptr ? nullptr : "a failed read handed out a ticket";
    if (ticket == nullptr) return "a successful read handed out no ticket";

    const char *fault = checkClone(ticket);
    if (fault == nullptr) fault = checkMediaList(ticket);
    if (fault == nullptr) fault = checkWrittenReadsBack(ticket);
    destroy(ticket);
    return fault;
}
