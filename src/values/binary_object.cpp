// BinaryObject: a private copy of a block of bytes and its length.
#include <cstdlib>
#include <cstring>

#include "values/value_objects.h"
#include "zundo_trace.h"

namespace {

// Makes a record holding a copy of the bytes; `operation` names the caller
// in the out-of-memory trace.
zundo_status_t makeBinaryObject(zundo_binary_object_s **out, const void *data, size_t length,
                                const char *operation) {
    zundo_binary_object_s *binary = allocateValueRecord<zundo_binary_object_s>();
    // One byte at least, so that an empty block still has its own storage.
    unsigned char *bytes = static_cast<unsigned char *>(std::malloc(length > 0 ? length : 1));
    if (binary == nullptr || bytes == nullptr) {
        std::free(binary);
        std::free(bytes);
        traceOutOfMemory(operation);
        return ZUNDO_OUT_OF_MEMORY;
    }
    if (length > 0) std::memcpy(bytes, data, length);
    binary->data = bytes;
    binary->length = length;
    *out = binary;
    return ZUNDO_OK;
}

}  // namespace

extern "C" {

zundo_status_t newBinaryObject(zundo_binary_object_s **out, const void *data, size_t length) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    if (data == nullptr) return ZUNDO_INVALID_ARGUMENT;
    return makeBinaryObject(out, data, length, "newBinaryObject");
}

const unsigned char *getBinaryData(const zundo_binary_object_s *binary) {
    return binary ? binary->data : nullptr;
}

size_t getBinaryDataLength(const zundo_binary_object_s *binary) {
    return binary ? binary->length : 0;
}

void destroyBinaryObject(zundo_binary_object_s *binary) {
    if (binary == nullptr) return;
    std::free(binary->data);
    std::free(binary);
}

zundo_status_t cloneBinaryObject(zundo_binary_object_s **out,
                                 const zundo_binary_object_s *binary) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    if (binary == nullptr) return ZUNDO_INVALID_ARGUMENT;
    return makeBinaryObject(out, binary->data, binary->length, "cloneBinaryObject");
}

int compareBinaryObject(const zundo_binary_object_s *a, const zundo_binary_object_s *b) {
    if (a == nullptr || b == nullptr) return a != b;
    if (a->length != b->length) return 1;
    return a->length > 0 && std::memcmp(a->data, b->data, a->length) != 0;
}

}  // extern "C"
