#include "validation_rules.h"

#include <cctype>
#include <climits>
#include <cstring>

#include "zundo_trace.h"

const char kTrueFalseText[] = "Attempted to set %s to %i, must be true, false, or not_set.\n";
const char kSpacesText[] = "Attempted to set %s to %s, Spaces are not allowed.\n";
const char kAboveZeroIntegerText[] = "Attempted to set %s to %i, must be greater than 0.\n";
const char kAboveZeroRealText[] = "Attempted to set %s to %e, must be greater than 0.\n";
const char kPercentText[] = "Attempted to set %s to %i, must be a value between 0 and 100.\n";
const char kTabbedTrueFalseText[] =
    "Attempted to set %s to %i, must be \t\t\t\t\t\t\ttrue, false, or not_set.\n";
const char kBooleanAttributeText[] =
    "Attempted to set boolean attribute %s to %i, must be true, false, or not_set.\n";
const char kAboveZeroOrUnsetText[] =
    "Attempted to set %s to %i, must be \t\t\t\t\t\t\tgreater than 0, or -1 for not set.\n";
const char kAtLeastZeroIntegerText[] =
    "Attempted to set %s to %i, must be greater than or equal to 0.\n";
const char kAtLeastZeroRealText[] =
    "Attempted to set %s to %e, must be greater than or equal to 0.\n";

namespace {

const char kRequiredText[] = "Attempted to unset required attribute %s.\n";
const char kBlankText[] =
    "Attempted to set %s to empty string or a string that contains only spaces.\n";

bool guards(const zundo_rule_s &rule, const char *name) {
    for (const char *guarded : rule.names) {
        if (guarded == nullptr) return false;
        if (std::strcmp(guarded, name) == 0) return true;
    }
    return false;
}

const char *messageOf(const zundo_rule_s &rule) {
    if (rule.message != nullptr) return rule.message;
    return rule.check == ZUNDO_RULE_REQUIRED ? kRequiredText : kBlankText;
}

bool textRefused(const zundo_rule_s &rule, const char *text) {
    size_t length = std::strlen(text);
    switch (rule.check) {
    case ZUNDO_RULE_NOT_EMPTY: return length == 0;
    case ZUNDO_RULE_NON_BLANK: return isBlankText(text);
    case ZUNDO_RULE_NO_BLANKS: return containsBlank(text);
    case ZUNDO_RULE_LENGTH: return length < rule.low || length > rule.high;
    case ZUNDO_RULE_FIRST_OF:
        return length == 0 || std::strchr(rule.characters, text[0]) == nullptr;
    case ZUNDO_RULE_ONLY_OF: return std::strspn(text, rule.characters) != length;
    case ZUNDO_RULE_NONE_OF: return std::strpbrk(text, rule.characters) != nullptr;
    default: return false;
    }
}

bool numberRefused(const zundo_rule_s &rule, double value) {
    switch (rule.check) {
    case ZUNDO_RULE_BOOLEAN: return value != 1 && value != 0 && value != -1;
    // Written so that a NaN, in no range, is refused.
    case ZUNDO_RULE_AT_LEAST: return !(value >= rule.low);
    case ZUNDO_RULE_ABOVE: return !(value > rule.low);
    case ZUNDO_RULE_BETWEEN: return !(value >= rule.low && value <= rule.high);
    default: return false;
    }
}

double numberAt0(const zundo_int_attribute_s *attribute) {
    const void *slot = valueAt(attribute, 0);
    if (kindIs(attribute->kind, ZUNDO_KIND_DOUBLE)) return *static_cast<const double *>(slot);
    return *static_cast<const int *>(slot);
}

// The conversion letter of the message's second directive (the value's),
// or 0 when the message prints the name alone.
char valueDirective(const char *message) {
    int directives = 0;
    for (const char *c = message; *c != '\0'; c++) {
        if (*c != '%') continue;
        c++;
        if (*c == '%') continue;
        while (*c != '\0' && std::strchr("-+ #0123456789.hl", *c) != nullptr) c++;
        if (*c == '\0') break;
        if (++directives == 2) return *c;
    }
    return '\0';
}

// A NaN shows as INT_MIN, as the processor's own conversion has it.
int clampedInt(double number) {
    if (number >= INT_MAX) return INT_MAX;
    if (number > INT_MIN) return static_cast<int>(number);
    return INT_MIN;
}

// Traces a refusal: the message receives the name and, when it asks for
// one, the value in the type its directive wants, so a message that prints
// a real attribute with "%i" gets the value's integer part.
void traceRefusal(const char *message, const char *name, double number, const char *text) {
    switch (valueDirective(message)) {
    case 'i':
    case 'd': zundo_trace(message, name, clampedInt(number)); break;
    case 'e':
    case 'f':
    case 'g': zundo_trace(message, name, number); break;
    case 's': zundo_trace(message, name, text != nullptr ? text : "(null)"); break;
    default: zundo_trace(message, name); break;
    }
}

// REQUIRED asks for a first value; NO_NULLS for values none of which is null.
bool lacksValue(const zundo_rule_s &rule, const zundo_int_attribute_s *attribute) {
    if (!hasValue(attribute)) return true;
    if (rule.check == ZUNDO_RULE_REQUIRED || !isPointerKind(attribute->kind)) return false;
    for (int i = 1; i < attribute->count; i++)
        if (valueAt(attribute, i) == nullptr) return true;
    return false;
}

zundo_status_t applyRule(const zundo_rule_s &rule, const char *name,
                         const zundo_int_attribute_s *attribute) {
    if (rule.check == ZUNDO_RULE_REQUIRED || rule.check == ZUNDO_RULE_NO_NULLS) {
        if (!lacksValue(rule, attribute)) return ZUNDO_OK;
        traceRefusal(messageOf(rule), name, 0, nullptr);
        return ZUNDO_INVALID_ARGUMENT;
    }
    if (!isPointerKind(attribute->kind)) {
        if (attribute->count == 0 || (!rule.always && !hasValue(attribute))) return ZUNDO_OK;
        double value = numberAt0(attribute);
        if (!numberRefused(rule, value)) return ZUNDO_OK;
        traceRefusal(messageOf(rule), name, value, nullptr);
        return ZUNDO_INVALID_ARGUMENT;
    }
    if (!kindIs(attribute->kind, ZUNDO_KIND_STRING)) return ZUNDO_OK;
    for (int i = 0; i < attribute->count; i++) {
        const char *text = static_cast<const char *>(valueAt(attribute, i));
        if (text == nullptr || !textRefused(rule, text)) continue;
        traceRefusal(messageOf(rule), name, 0, text);
        return ZUNDO_INVALID_ARGUMENT;
    }
    return ZUNDO_OK;
}

}  // namespace

bool isBlankText(const char *text) {
    for (const char *c = text; *c != '\0'; c++)
        if (!std::isspace(static_cast<unsigned char>(*c))) return false;
    return true;
}

bool containsBlank(const char *text) { return std::strchr(text, ' ') != nullptr; }

bool hasValue(const zundo_int_attribute_s *attribute) {
    if (attribute == nullptr || attribute->count == 0) return false;
    if (isPointerKind(attribute->kind) && !kindIs(attribute->kind, ZUNDO_KIND_INTEGER_LIST))
        return valueAt(attribute, 0) != nullptr;
    return !valueIsNotSet(attribute, 0);
}

zundo_status_t applyRules(const zundo_rule_s *rules, const char *name,
                          zundo_int_attribute_s *attribute, const char *shownName) {
    resetIterator(attribute);
    for (const zundo_rule_s *rule = rules; rule->names[0] != nullptr; rule++) {
        if (!guards(*rule, name)) continue;
        zundo_status_t status =
            applyRule(*rule, shownName != nullptr ? shownName : name, attribute);
        if (status != ZUNDO_OK) return status;
    }
    return ZUNDO_OK;
}
