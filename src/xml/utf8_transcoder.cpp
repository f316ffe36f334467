// Text conversion between the library's UTF-8 char strings and Xerces-C's
// 16-bit XMLCh strings.
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLString.hpp>

#include <cstring>
#include <new>
#include <type_traits>

#include "zundo.h"
#include "zundo_trace.h"

XERCES_CPP_NAMESPACE_USE

// zundo.h names the transcoder and XMLCh without including Xerces-C.
static_assert(std::is_same<XMLCh, char16_t>::value, "XMLCh must be char16_t");
static_assert(std::is_same<xercesc_3_2::XMLTranscoder, xercesc::XMLTranscoder>::value,
              "zundo.h forward-declares the transcoder in the wrong namespace");

// Shared and unguarded: callers already serialise reads and writes of job
// tickets, so a lock here would buy nothing.
XMLTranscoder *UTF8Transcoder::_transcoder = nullptr;

namespace {

const XMLSize_t kTranscoderBlockSize = 2048;

}  // namespace

bool UTF8Transcoder::init() {
    if (_transcoder != nullptr) return true;
    XMLTransService::Codes code = XMLTransService::Ok;
    if (XMLPlatformUtils::fgTransService != nullptr) {
        try {
            _transcoder = XMLPlatformUtils::fgTransService->makeNewTranscoderFor(
                "UTF-8", code, kTranscoderBlockSize, XMLPlatformUtils::fgMemoryManager);
        } catch (...) {
            _transcoder = nullptr;
        }
    }
    if (_transcoder == nullptr)
        zundo_trace("ERROR: XML::Xerces: INIT: Could not create UTF-8 transcoder");
    // Start-up goes on without a transcoder; conversions then fail on use.
    return true;
}

void UTF8Transcoder::terminate() {
    delete _transcoder;
    _transcoder = nullptr;
}

XMLCh *UTF8Transcoder::transcodeAttr(const char *text) {
    if (text == nullptr) return nullptr;
    size_t length = std::strlen(text);
    XMLCh *result = new (std::nothrow) XMLCh[length + 1];
    if (result == nullptr) return nullptr;
    for (size_t i = 0; i < length; ++i)
        result[i] = static_cast<XMLCh>(static_cast<signed char>(text[i]));
    result[length] = 0;
    return result;
}

char *UTF8Transcoder::transcodeAttr(const XMLCh *text) {
    if (text == nullptr) return nullptr;
    XMLSize_t length = XMLString::stringLen(text);
    char *result = new (std::nothrow) char[length + 1];
    if (result == nullptr) return nullptr;
    for (XMLSize_t i = 0; i < length; ++i) result[i] = static_cast<char>(text[i] & 0xFF);
    result[length] = '\0';
    return result;
}

XMLCh *UTF8Transcoder::transcodeValue(const char *text, unsigned maxChars) {
    if (text == nullptr) return nullptr;
    size_t length = std::strlen(text);
    XMLCh *result = new (std::nothrow) XMLCh[length + 1];
    if (result == nullptr) return nullptr;
    // UTF-8 never yields more units than bytes, so the buffer bounds the
    // limit as well.
    unsigned limit = static_cast<unsigned>(length);
    if (maxChars != 0 && maxChars < limit) limit = maxChars;
    transcode(text, result, limit);
    return result;
}

char *UTF8Transcoder::transcodeValue(const XMLCh *text) {
    if (text == nullptr) return nullptr;
    if (_transcoder == nullptr) init();
    if (_transcoder == nullptr) return nullptr;
    XMLSize_t length = XMLString::stringLen(text);
    XMLSize_t capacity = 4 * length + 4;
    char *result = new (std::nothrow) char[capacity];
    if (result == nullptr) return nullptr;
    // Zeroed first so that a conversion cut short still ends in a 0 byte.
    std::memset(result, 0, capacity);
    XMLSize_t eaten = 0;
    try {
        XMLSize_t produced =
            _transcoder->transcodeTo(text, length, reinterpret_cast<XMLByte *>(result),
                                     capacity - 1, eaten, XMLTranscoder::UnRep_RepChar);
        result[produced] = '\0';
    } catch (...) {
        // What was converted before the failure stays, zero-terminated.
    }
    return result;
}

bool UTF8Transcoder::transcode(const char *source, XMLCh *target, unsigned maxChars) {
    if (_transcoder == nullptr) init();
    // The target holds maxChars + 1 units; zeroed so that a conversion cut
    // short by an exception still ends after what it produced.
    std::memset(target, 0, (static_cast<size_t>(maxChars) + 1) * sizeof(XMLCh));
    if (_transcoder == nullptr) return false;
    size_t length = std::strlen(source);
    unsigned char *sizes = new (std::nothrow) unsigned char[length + 1];
    if (sizes == nullptr) return false;
    bool complete = false;
    try {
        XMLSize_t eaten = 0;
        XMLSize_t produced =
            _transcoder->transcodeFrom(reinterpret_cast<const XMLByte *>(source), length,
                                       target, maxChars, eaten, sizes);
        target[produced] = 0;
        complete = eaten == length;
    } catch (const XMLException &e) {
        char *message = transcodeValue(e.getMessage());
        zundo_trace("parsing invalid characters and failed with message %s",
                    message != nullptr ? message : "");
        release(&message);
    } catch (...) {
        zundo_trace("parsing invalid characters and failed with message %s", "out of memory");
    }
    delete[] sizes;
    return complete;
}

void UTF8Transcoder::release(char **text) {
    if (text == nullptr || *text == nullptr) return;
    delete[] *text;
    *text = nullptr;
}

void UTF8Transcoder::release(XMLCh **text) {
    if (text == nullptr || *text == nullptr) return;
    delete[] *text;
    *text = nullptr;
}
