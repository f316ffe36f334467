// Attribute records: value kinds, growth, the single-value rule, the
// iterator's not-set semantics, cloning and equality.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "zundo_object.h"

namespace {

struct AttributeDeleter {
    void operator()(zundo_int_attribute_s *a) const { destroyAttribute(a); }
};
using AttributePtr = std::unique_ptr<zundo_int_attribute_s, AttributeDeleter>;

AttributePtr makeAttribute(const char *name, const char *kind, const void *first = nullptr) {
    zundo_int_attribute_s *attribute = nullptr;
    EXPECT_EQ(ZUNDO_OK, newAttribute(&attribute, name, kind, first));
    return AttributePtr(attribute);
}

AttributePtr strings(std::initializer_list<const char *> values) {
    AttributePtr a = makeAttribute("names", ZUNDO_KIND_STRING);
    for (const char *v : values) EXPECT_EQ(ZUNDO_OK, addValue(a.get(), v));
    return a;
}

std::vector<int> iterateInts(zundo_int_attribute_s *a) {
    std::vector<int> seen;
    resetIterator(a);
    while (hasNextValue(a)) seen.push_back(*static_cast<int *>(nextValue(a)));
    return seen;
}

TEST(AttributeRecord, RefusesMissingNameOrKind) {
    zundo_int_attribute_s *attribute = nullptr;
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, newAttribute(&attribute, nullptr, ZUNDO_KIND_STRING, nullptr));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, newAttribute(&attribute, "x", nullptr, nullptr));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, newAttribute(nullptr, "x", ZUNDO_KIND_STRING, nullptr));
    EXPECT_EQ(nullptr, attribute);
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, addValue(nullptr, "x"));
    EXPECT_EQ(nullptr, getName(nullptr));
    EXPECT_EQ(nullptr, getValueType(nullptr));
    EXPECT_EQ(0, getNumValues(nullptr));
    EXPECT_EQ(0, hasNextValue(nullptr));
    EXPECT_EQ(nullptr, nextValue(nullptr));
    destroyAttribute(nullptr);
}

TEST(AttributeRecord, KeepsNameCopyAndKindPointer) {
    char name[] = "job-name";
    AttributePtr a = makeAttribute(name, ZUNDO_KIND_STRING, "first");
    name[0] = 'X';
    EXPECT_STREQ("job-name", getName(a.get()));
    EXPECT_STREQ(ZUNDO_KIND_STRING, getValueType(a.get()));
    EXPECT_EQ(1, getNumValues(a.get()));
}

TEST(AttributeRecord, GrowsFromFiveSlotsByDoubling) {
    AttributePtr a = makeAttribute("levels", ZUNDO_KIND_INTEGER_LIST);
    EXPECT_EQ(0, a->capacity);
    std::vector<int> expected;
    for (int i = 1; i <= 1000; i++) {
        ASSERT_EQ(ZUNDO_OK, addValue(a.get(), &i));
        expected.push_back(i);
        if (i <= 5) {
            EXPECT_EQ(5, a->capacity);
        } else if (i <= 10) {
            EXPECT_EQ(10, a->capacity);
        }
        EXPECT_LT(a->capacity, 2 * i + 5);
    }
    EXPECT_EQ(expected, iterateInts(a.get()));
}

TEST(AttributeRecord, SingleValuedKindsKeepTheirFirstValue) {
    int first = 7, second = 9;
    AttributePtr i = makeAttribute("count", ZUNDO_KIND_INTEGER, &first);
    EXPECT_EQ(ZUNDO_NOT_FOUND, addValue(i.get(), &second));
    EXPECT_EQ(1, getNumValues(i.get()));
    EXPECT_EQ(7, *static_cast<int *>(nextValue(i.get())));

    double width = 2.5, other = 3.5;
    AttributePtr d = makeAttribute("width", ZUNDO_KIND_DOUBLE, &width);
    EXPECT_EQ(ZUNDO_NOT_FOUND, addValue(d.get(), &other));
    EXPECT_DOUBLE_EQ(2.5, *static_cast<double *>(nextValue(d.get())));
    // A number is read through its pointer, so a null one is refused.
    AttributePtr empty = makeAttribute("count", ZUNDO_KIND_INTEGER);
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, addValue(empty.get(), nullptr));
}

TEST(AttributeRecord, StringsAndIntegersAreCopiedOthersAreNot) {
    char text[] = "abc";
    int number = 4;
    AttributePtr s = makeAttribute("s", ZUNDO_KIND_STRING, text);
    AttributePtr il = makeAttribute("il", ZUNDO_KIND_INTEGER_LIST, &number);
    text[0] = 'z';
    number = 5;
    EXPECT_STREQ("abc", static_cast<char *>(nextValue(s.get())));
    EXPECT_EQ(4, *static_cast<int *>(nextValue(il.get())));

    int marker = 0;
    AttributePtr o = makeAttribute("o", ZUNDO_KIND_OBJECT, &marker);
    EXPECT_EQ(&marker, nextValue(o.get()));
    // A null pointer value counts as a value.
    EXPECT_EQ(ZUNDO_OK, addValue(o.get(), nullptr));
    EXPECT_EQ(2, getNumValues(o.get()));
}

TEST(AttributeIterator, NotSetValueEndsIteration) {
    int value = -1;
    AttributePtr flag = makeAttribute("flag", ZUNDO_KIND_INTEGER, &value);
    flag->hasNotSetValue = 1;
    flag->notSetValue = -1;
    EXPECT_EQ(1, getNumValues(flag.get()));
    EXPECT_EQ(0, hasNextValue(flag.get()));

    AttributePtr levels = makeAttribute("levels", ZUNDO_KIND_INTEGER_LIST);
    for (int v : {3, 0, 5}) addValue(levels.get(), &v);
    levels->hasNotSetValue = 1;
    levels->notSetValue = 0;
    EXPECT_EQ(std::vector<int>{3}, iterateInts(levels.get()));
    // Without a not-set value every number counts.
    levels->hasNotSetValue = 0;
    EXPECT_EQ((std::vector<int>{3, 0, 5}), iterateInts(levels.get()));
    // nextValue itself does not skip: it walks all values.
    resetIterator(levels.get());
    for (int i = 0; i < 3; i++) EXPECT_NE(nullptr, nextValue(levels.get()));
    EXPECT_EQ(nullptr, nextValue(levels.get()));
}

TEST(AttributeClone, CopiesEveryValueAndNotSetValue) {
    AttributePtr levels = makeAttribute("levels", ZUNDO_KIND_INTEGER_LIST);
    for (int v : {4, 0, 8}) addValue(levels.get(), &v);
    levels->hasNotSetValue = 1;
    levels->notSetValue = 0;
    zundo_int_attribute_s *copy = nullptr;
    ASSERT_EQ(ZUNDO_OK, cloneAttribute(&copy, levels.get()));
    AttributePtr owned(copy);
    EXPECT_EQ(3, getNumValues(copy));
    EXPECT_EQ(1, copy->hasNotSetValue);
    EXPECT_EQ(1, attributesEqual(levels.get(), copy));
    EXPECT_NE(levels->values, copy->values);
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, cloneAttribute(nullptr, levels.get()));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, cloneAttribute(&copy, nullptr));
}

TEST(AttributeEquality, StringsMatchAsMultisets) {
    EXPECT_EQ(1, attributesEqual(strings({"a", "b", "c"}).get(), strings({"c", "a", "b"}).get()));
    EXPECT_EQ(0, attributesEqual(strings({"a", "a"}).get(), strings({"a", "b"}).get()));
    EXPECT_EQ(0, attributesEqual(strings({"a"}).get(), strings({"a", "a"}).get()));
    AttributePtr same = strings({"x"});
    EXPECT_EQ(1, attributesEqual(same.get(), same.get()));
    EXPECT_EQ(0, attributesEqual(same.get(), nullptr));
    AttributePtr renamed = makeAttribute("other", ZUNDO_KIND_STRING, "x");
    EXPECT_EQ(0, attributesEqual(same.get(), renamed.get()));
}

TEST(AttributeEquality, NumbersCompareTheirFirstValue) {
    int one = 1, two = 2;
    EXPECT_EQ(1, attributesEqual(makeAttribute("n", ZUNDO_KIND_INTEGER, &one).get(),
                                 makeAttribute("n", ZUNDO_KIND_INTEGER, &one).get()));
    EXPECT_EQ(0, attributesEqual(makeAttribute("n", ZUNDO_KIND_INTEGER, &one).get(),
                                 makeAttribute("n", ZUNDO_KIND_INTEGER, &two).get()));
    EXPECT_EQ(1, attributesEqual(makeAttribute("n", ZUNDO_KIND_INTEGER).get(),
                                 makeAttribute("n", ZUNDO_KIND_INTEGER).get()));
    double half = 0.5;
    EXPECT_EQ(0, attributesEqual(makeAttribute("n", ZUNDO_KIND_INTEGER, &one).get(),
                                 makeAttribute("n", ZUNDO_KIND_DOUBLE, &half).get()));
}

TEST(AttributeEquality, IntegerListsStopAtNotSetValue) {
    AttributePtr a = makeAttribute("l", ZUNDO_KIND_INTEGER_LIST);
    AttributePtr b = makeAttribute("l", ZUNDO_KIND_INTEGER_LIST);
    for (int v : {1, 0, 2}) addValue(a.get(), &v);
    for (int v : {1, 0, 3}) addValue(b.get(), &v);
    EXPECT_EQ(0, attributesEqual(a.get(), b.get()));
    a->hasNotSetValue = b->hasNotSetValue = 1;
    EXPECT_EQ(1, attributesEqual(a.get(), b.get()));
}

TEST(AttributeEquality, UnknownKindIsNeverEqual) {
    AttributePtr a = makeAttribute("x", "ZZ", "p");
    AttributePtr b = makeAttribute("x", "ZZ", "p");
    EXPECT_EQ(0, attributesEqual(a.get(), b.get()));
}

}  // namespace
