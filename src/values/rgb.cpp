// RGB: a colour as three components of 0 to 255, written "255 0 10".
#include <cstdio>
#include <cstdlib>

#include "values/value_objects.h"
#include "zundo_trace.h"

namespace {

zundo_status_t setComponent(zundo_rgb_s *rgb, int zundo_rgb_s::*component, int value) {
    if (rgb == nullptr || value < 0 || value > 255) return ZUNDO_INVALID_ARGUMENT;
    rgb->*component = value;
    return ZUNDO_OK;
}

}  // namespace

extern "C" {

zundo_status_t newRGB(zundo_rgb_s **out, int red, int green, int blue) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    zundo_rgb_s scratch{};
    if (setRed(&scratch, red) != ZUNDO_OK || setGreen(&scratch, green) != ZUNDO_OK ||
        setBlue(&scratch, blue) != ZUNDO_OK)
        return ZUNDO_INVALID_ARGUMENT;
    zundo_rgb_s *rgb = allocateValueRecord<zundo_rgb_s>();
    if (rgb == nullptr) {
        traceOutOfMemory("newRGB");
        return ZUNDO_OUT_OF_MEMORY;
    }
    *rgb = scratch;
    *out = rgb;
    return ZUNDO_OK;
}

// A component that the text does not supply stays -1 and is refused, and
// so is anything but blanks after the third one.
zundo_status_t newRGBFromString(zundo_rgb_s **out, const char *text) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    if (text == nullptr) return ZUNDO_INVALID_ARGUMENT;
    int red = -1, green = -1, blue = -1, end = -1;
    char rest = '\0';
    std::sscanf(text, "%d %d %d%n", &red, &green, &blue, &end);
    if (end < 0 || std::sscanf(text + end, " %c", &rest) == 1) return ZUNDO_INVALID_ARGUMENT;
    return newRGB(out, red, green, blue);
}

zundo_status_t setRed(zundo_rgb_s *rgb, int red) {
    return setComponent(rgb, &zundo_rgb_s::red, red);
}
zundo_status_t setGreen(zundo_rgb_s *rgb, int green) {
    return setComponent(rgb, &zundo_rgb_s::green, green);
}
zundo_status_t setBlue(zundo_rgb_s *rgb, int blue) {
    return setComponent(rgb, &zundo_rgb_s::blue, blue);
}

int getRed(const zundo_rgb_s *rgb) { return rgb ? rgb->red : 0; }
int getGreen(const zundo_rgb_s *rgb) { return rgb ? rgb->green : 0; }
int getBlue(const zundo_rgb_s *rgb) { return rgb ? rgb->blue : 0; }

char *toStringRGBN(char *buffer, size_t size, const zundo_rgb_s *rgb) {
    if (rgb == nullptr) return formatValueText(buffer, size, "%s", "");
    return formatValueText(buffer, size, "%d %d %d", rgb->red, rgb->green, rgb->blue);
}

char *toStringRGB(char *buffer, const zundo_rgb_s *rgb) {
    return toStringRGBN(buffer, ZUNDO_RGB_TEXT_SIZE, rgb);
}

void destroyRGB(zundo_rgb_s *rgb) { std::free(rgb); }

zundo_status_t cloneRGB(zundo_rgb_s **out, const zundo_rgb_s *rgb) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    if (rgb == nullptr) return ZUNDO_INVALID_ARGUMENT;
    zundo_rgb_s *copy = allocateValueRecord<zundo_rgb_s>();
    if (copy == nullptr) {
        traceOutOfMemory("cloneRGB");
        return ZUNDO_OUT_OF_MEMORY;
    }
    *copy = *rgb;
    *out = copy;
    return ZUNDO_OK;
}

int compareRGB(const zundo_rgb_s *a, const zundo_rgb_s *b) {
    if (a == nullptr || b == nullptr) return a != b;
    return !(a->red == b->red && a->green == b->green && a->blue == b->blue);
}

}  // extern "C"
