/* Builds against the public header as C and links against the shared
 * library only, so every call here must be exported. */
#include <stdio.h>
#include <string.h>

#include "zundo.h"

static int failures = 0;

#define CHECK(condition)                                                   \
    do {                                                                   \
        if (!(condition)) {                                                \
            fprintf(stderr, "%s:%d: check failed: %s\n", __FILE__, __LINE__, \
                    #condition);                                           \
            failures++;                                                    \
        }                                                                  \
    } while (0)

static int traced = 0;
static void countTrace(const char *message) {
    (void)message;
    traced++;
}

int main(void) {
    zundo_int_attribute_s *names = NULL;
    zundo_int_attribute_s *copy = NULL;
    zundo_range_s *range = NULL;
    char text[ZUNDO_RANGE_TEXT_SIZE];
    int levels[] = {4, 9};

    CHECK(strcmp(getZUNDOCurrentVersion(), "1.4.13 Drop 382") == 0);

    CHECK(newAttribute(&names, "document-file-name", ZUNDO_KIND_STRING, "a.pdf") == ZUNDO_OK);
    CHECK(addValue(names, "b.pdf") == ZUNDO_OK);
    CHECK(getNumValues(names) == 2);
    CHECK(hasNextValue(names) == 1);
    CHECK(strcmp((const char *)nextValue(names), "a.pdf") == 0);
    CHECK(cloneAttribute(&copy, names) == ZUNDO_OK);
    CHECK(attributesEqual(names, copy) == 1);
    destroyAttribute(copy);
    destroyAttribute(names);

    CHECK(newAttribute(&names, "levels", ZUNDO_KIND_INTEGER_LIST, &levels[0]) == ZUNDO_OK);
    CHECK(addValue(names, &levels[1]) == ZUNDO_OK);
    CHECK(*(int *)nextValue(names) == 4);
    CHECK(*(int *)nextValue(names) == 9);
    CHECK(nextValue(names) == NULL);
    destroyAttribute(names);

    CHECK(newRange(&range, 0, -1) == ZUNDO_OK);
    CHECK(strcmp(toStringRange(text, range), "0 ~ -1") == 0);
    destroyRange(range);
    CHECK(newRange(&range, -1, 5) == ZUNDO_INVALID_ARGUMENT);

    CHECK(strcmp(getJDFValueFromInt("binding-type", 3), "SpineTapingParams") == 0);
    CHECK(getZUNDOEnumValue("binding-type", "SpineTapingParams") == 3);

    enableTraceCallback(0, countTrace);
    CHECK(getTraceCallbackLevel() == 0);
    disableTraceCallback();
    CHECK(traced == 0);

    printf("%s: %d failed checks\n", failures ? "FAILED" : "passed", failures);
    return failures == 0 ? 0 : 1;
}
