#include "ticket_dump.h"

#include <cstring>
#include <string>

namespace {

void indent(FILE *out, int depth) {
    for (int i = 0; i < depth; i++) std::fputs("  ", out);
}

bool is(const char *kind, const char *code) { return std::strcmp(kind, code) == 0; }

std::string hexBytes(const zundo_binary_object_s *binary) {
    static const char digits[] = "0123456789abcdef";
    const unsigned char *bytes = getBinaryData(binary);
    size_t length = getBinaryDataLength(binary);
    std::string text = std::to_string(length) + " bytes";
    if (length > 0) text += ": ";
    for (size_t i = 0; i < length && i < 32; i++) {
        text += digits[bytes[i] >> 4];
        text += digits[bytes[i] & 15];
    }
    if (length > 32) text += "...";
    return text;
}

// A string in double quotes, with quotes, backslashes and control
// characters escaped so that one value stays on one line.
std::string quoted(const char *text) {
    std::string result = "\"";
    for (const char *c = text; *c != '\0'; c++) {
        unsigned char byte = static_cast<unsigned char>(*c);
        if (*c == '"' || *c == '\\') {
            result += '\\';
            result += *c;
        } else if (*c == '\n') {
            result += "\\n";
        } else if (*c == '\t') {
            result += "\\t";
        } else if (byte < 0x20 || byte == 0x7f) {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\x%02x", byte);
            result += escape;
        } else {
            result += *c;
        }
    }
    return result + "\"";
}

// The text form of one value of a kind other than "O".
std::string valueText(const char *kind, const void *value) {
    char buffer[128];
    if (value == nullptr) return "(none)";
    if (is(kind, ZUNDO_KIND_INTEGER) || is(kind, ZUNDO_KIND_INTEGER_LIST))
        return std::to_string(*static_cast<const int *>(value));
    if (is(kind, ZUNDO_KIND_DOUBLE)) {
        std::snprintf(buffer, sizeof buffer, "%g", *static_cast<const double *>(value));
        return buffer;
    }
    if (is(kind, ZUNDO_KIND_STRING)) return quoted(static_cast<const char *>(value));
    if (is(kind, ZUNDO_KIND_RANGE))
        return toStringRangeN(buffer, sizeof buffer, static_cast<const zundo_range_s *>(value));
    if (is(kind, ZUNDO_KIND_DATE_TIME))
        return toStringDateTimeN(buffer, sizeof buffer, static_cast<const zundo_date_time_s *>(value));
    if (is(kind, ZUNDO_KIND_TIME_PERIOD))
        return toStringTimePeriodN(buffer, sizeof buffer,
                                   static_cast<const zundo_time_period_s *>(value));
    if (is(kind, ZUNDO_KIND_RGB))
        return toStringRGBN(buffer, sizeof buffer, static_cast<const zundo_rgb_s *>(value));
    if (is(kind, ZUNDO_KIND_BINARY)) return hexBytes(static_cast<const zundo_binary_object_s *>(value));
    if (is(kind, ZUNDO_KIND_START_PAGE)) {
        auto *start = static_cast<const zundo_start_page_s *>(value);
        std::snprintf(buffer, sizeof buffer, "page %d, sheet side %d, description %d",
                      getPage(start), getSheetSide(start), getDescription(start));
        return buffer;
    }
    if (is(kind, ZUNDO_KIND_MODIFIED)) {
        auto *modified = static_cast<const zundo_modified_s *>(value);
        const char *by = getModifiedBy(modified);
        std::string text = valueText(ZUNDO_KIND_DATE_TIME, getDateTime(modified));
        text += " by " + std::string(by != nullptr ? by : "(unknown)");
        const zundo_int_attribute_s *changed = getModifiedAttribute(modified);
        if (changed != nullptr) text += ", attribute " + std::string(getName(changed));
        return text;
    }
    return std::string("(value of kind ") + kind + ")";
}

void dumpObject(FILE *out, zundo_int_object_s *object, int depth);

void dumpAttribute(FILE *out, zundo_int_attribute_s *attribute, int depth) {
    const char *kind = getValueType(attribute);
    indent(out, depth);
    if (is(kind, ZUNDO_KIND_OBJECT)) {
        std::fprintf(out, "%s:\n", getName(attribute));
        while (hasNextValue(attribute))
            dumpObject(out, static_cast<zundo_int_object_s *>(nextValue(attribute)), depth + 1);
        return;
    }
    std::fprintf(out, "%s =", getName(attribute));
    const char *separator = " ";
    while (hasNextValue(attribute)) {
        const void *value = nextValue(attribute);
        std::string text = valueText(kind, value);
        // Enumeration codes also show their JDF spelling.
        const char *spelling = is(kind, ZUNDO_KIND_INTEGER)
                                   ? getJDFValueFromInt(getName(attribute), *static_cast<const int *>(value))
                                   : nullptr;
        if (spelling != nullptr) text += std::string(" (") + spelling + ")";
        std::fprintf(out, "%s%s", separator, text.c_str());
        separator = ", ";
    }
    std::fputc('\n', out);
}

void dumpObject(FILE *out, zundo_int_object_s *object, int depth) {
    indent(out, depth);
    if (object == nullptr) {
        std::fputs("(none)\n", out);
        return;
    }
    std::fprintf(out, "%s\n", getObjectType(object));
    zundo_int_attribute_s **attributes = nullptr;
    if (getSetAttributes(object, &attributes) == ZUNDO_OK) {
        for (zundo_int_attribute_s **a = attributes; *a != nullptr; a++)
            dumpAttribute(out, *a, depth + 1);
        freeSetAttributesList(attributes);
    }
    if (std::strcmp(getObjectType(object), "ZUNDO_JOB") == 0) {
        zundo_int_object_s **documents = getDocuments(object);
        for (int i = 0; documents != nullptr && documents[i] != nullptr; i++)
            dumpObject(out, documents[i], depth + 1);
    }
}

}  // namespace

void dumpTicket(FILE *out, zundo_int_object_s *ticket) {
    dumpObject(out, ticket, 0);
    zundo_int_object_s *job = getJob(ticket);
    if (job != nullptr) dumpObject(out, job, 1);
}
