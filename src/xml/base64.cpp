// Base64 for binary attribute values, on the Xerces-C codec.
#include <xercesc/util/Base64.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include "xml/xml_document.h"

XERCES_CPP_NAMESPACE_USE

zundo_status_t encodeBase64(const unsigned char *data, unsigned long length,
                            unsigned char **out) {
    if (out == nullptr) return ZUNDO_NULL_ARGUMENT;
    *out = nullptr;
    if (data == nullptr) return ZUNDO_NULL_ARGUMENT;
    XMLSize_t encodedLength = 0;
    try {
        *out = Base64::encode(data, length, &encodedLength, XMLPlatformUtils::fgMemoryManager);
    } catch (...) {
        *out = nullptr;
    }
    return ZUNDO_OK;
}

zundo_status_t decodeBase64(const unsigned char *text, unsigned long *decodedLength,
                            unsigned char **out) {
    if (out == nullptr || decodedLength == nullptr) return ZUNDO_NULL_ARGUMENT;
    *out = nullptr;
    *decodedLength = 0;
    if (text == nullptr) return ZUNDO_NULL_ARGUMENT;
    XMLSize_t length = 0;
    try {
        *out = Base64::decode(text, &length, XMLPlatformUtils::fgMemoryManager,
                              Base64::Conf_RFC2045);
    } catch (...) {
        *out = nullptr;
    }
    if (*out != nullptr) *decodedLength = length;
    return ZUNDO_OK;
}
