// Validation rules of the object types, written as constant tables: each
// row names the attributes it guards, the check, its bounds and the message
// of a refusal. A type's validator is its table plus whatever is truly its
// own.
#ifndef ZUNDO_VALIDATION_RULES_H
#define ZUNDO_VALIDATION_RULES_H

#include "zundo_object.h"

enum zundo_rule_check_t {
    ZUNDO_RULE_REQUIRED,   // refuses an attribute without a value
    ZUNDO_RULE_NO_NULLS,   // refuses an attribute without values or with a null one
    ZUNDO_RULE_NOT_EMPTY,  // refuses the empty text
    ZUNDO_RULE_NON_BLANK,  // refuses an empty text or one of whitespace only
    ZUNDO_RULE_NO_BLANKS,  // refuses a text that contains a blank
    ZUNDO_RULE_LENGTH,     // accepts a text of low to high characters
    ZUNDO_RULE_FIRST_OF,   // accepts a text that starts with one of the characters
    ZUNDO_RULE_ONLY_OF,    // accepts a text made only of the characters
    ZUNDO_RULE_NONE_OF,    // refuses a text holding any of the characters
    ZUNDO_RULE_BOOLEAN,    // accepts 1, 0 and -1
    ZUNDO_RULE_AT_LEAST,   // accepts low <= value
    ZUNDO_RULE_ABOVE,      // accepts low < value
    ZUNDO_RULE_BETWEEN,    // accepts low <= value <= high
};

// Most rows guard one attribute; the widest guards nine.
const int kRuleNames = 9;

struct zundo_rule_s {
    const char *names[kRuleNames];  // unused slots are null
    zundo_rule_check_t check;
    // A printf format: the attribute name, then (where the format has a
    // second directive) the refused value. Null for the usual texts of
    // "required" and "non-blank".
    const char *message = nullptr;
    double low = 0;
    double high = 0;
    // Numbers are checked only when they differ from the not-set value,
    // unless the row says always.
    bool always = false;
    // The character set of FIRST_OF, ONLY_OF and NONE_OF.
    const char *characters = nullptr;
};

// Messages that several types share.
extern const char kTrueFalseText[];
extern const char kTabbedTrueFalseText[];
extern const char kBooleanAttributeText[];
extern const char kSpacesText[];
extern const char kAboveZeroOrUnsetText[];
extern const char kAboveZeroIntegerText[];
extern const char kAtLeastZeroIntegerText[];
extern const char kAboveZeroRealText[];
extern const char kAtLeastZeroRealText[];
extern const char kPercentText[];

// True for an empty text or one made only of whitespace.
bool isBlankText(const char *text);
bool containsBlank(const char *text);

// True when the attribute holds a value other than its not-set value (a
// null pointer value counts as none).
bool hasValue(const zundo_int_attribute_s *attribute);

// Runs every row of `rules` (ended by a row without names) that guards
// `name`, in table order. Messages show `shownName` when given, else `name`.
// 0, or 2 after tracing the first refusal. The attribute's iterator is left
// reset.
zundo_status_t applyRules(const zundo_rule_s *rules, const char *name,
                          zundo_int_attribute_s *attribute, const char *shownName = nullptr);

// A validator made of a rule table alone.
template <const zundo_rule_s *Rules>
zundo_status_t checkRules(void *, const char *name, zundo_int_attribute_s *attribute) {
    return applyRules(Rules, name, attribute);
}

#endif
