// Objects built on definition tables: get/set through the chain, validation,
// ownership of sub-objects and value objects, clone, compare and listing.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "catalogue/type_tables.h"
#include "support/sample_type.h"

namespace {

struct ObjectDeleter {
    void operator()(zundo_int_object_s *o) const { destroy(o); }
};
using ObjectPtr = std::unique_ptr<zundo_int_object_s, ObjectDeleter>;
struct AttributeDeleter {
    void operator()(zundo_int_attribute_s *a) const { destroyAttribute(a); }
};
using AttributePtr = std::unique_ptr<zundo_int_attribute_s, AttributeDeleter>;

int getInt(zundo_int_object_s *object, const char *name) {
    AttributePtr a(get(object, name));
    EXPECT_NE(nullptr, a);
    return a ? *static_cast<int *>(nextValue(a.get())) : 0;
}

std::vector<std::string> getStrings(zundo_int_object_s *object, const char *name) {
    AttributePtr a(get(object, name));
    std::vector<std::string> values;
    while (a && hasNextValue(a.get())) values.push_back(static_cast<char *>(nextValue(a.get())));
    return values;
}

// Fills a sample with one or more values of every kind.
void fillEveryKind(zundo_int_object_s *sample) {
    ASSERT_EQ(ZUNDO_OK, setIntegerAttribute(sample, "sample-count", 4));
    ASSERT_EQ(ZUNDO_OK, setDoubleAttribute(sample, "sample-width", 21.5));
    const char *names[] = {"front", "back", nullptr};
    ASSERT_EQ(ZUNDO_OK, setStringsAttribute(sample, "sample-names", names));

    zundo_int_attribute_s *levels = nullptr;
    int three = 3, five = 5;
    ASSERT_EQ(ZUNDO_OK, newAttribute(&levels, "sample-levels", ZUNDO_KIND_INTEGER_LIST, &three));
    addValue(levels, &five);
    ASSERT_EQ(ZUNDO_OK, set(sample, levels));
    destroyAttribute(levels);

    zundo_int_object_s *children[] = {newSample(), newSample(), nullptr};
    setIntegerAttribute(children[0], "sample-count", 1);
    ASSERT_EQ(ZUNDO_OK, setObjectsAttribute(sample, "sample-children", children));

    zundo_range_s *range = nullptr;
    ASSERT_EQ(ZUNDO_OK, newRange(&range, 0, -1));
    zundo_int_attribute_s *ranges = nullptr;
    newAttribute(&ranges, "sample-ranges", ZUNDO_KIND_RANGE, range);
    ASSERT_EQ(ZUNDO_OK, set(sample, ranges));
    destroyAttribute(ranges);

    zundo_date_time_s *when = nullptr;
    ASSERT_EQ(ZUNDO_OK, newDateTimeFromString(&when, "2009-03-07T14:05:00+01:00"));
    ASSERT_EQ(ZUNDO_OK, setDateTimeAttribute(sample, "sample-times", when));

    zundo_time_period_s *period = nullptr;
    ASSERT_EQ(ZUNDO_OK, newTimePeriod(&period, 0, 1, 2, 3, 4));
    ASSERT_EQ(ZUNDO_OK, setTimePeriodAttribute(sample, "sample-periods", period));

    zundo_rgb_s *colour = nullptr;
    ASSERT_EQ(ZUNDO_OK, newRGB(&colour, 255, 0, 10));
    ASSERT_EQ(ZUNDO_OK, setRGBAttribute(sample, "sample-colours", colour));

    zundo_binary_object_s *blob = nullptr;
    ASSERT_EQ(ZUNDO_OK, newBinaryObject(&blob, "\x01\x02\x03", 3));
    ASSERT_EQ(ZUNDO_OK, setBinaryAttribute(sample, "sample-blobs", blob));

    zundo_start_page_s *start = nullptr;
    ASSERT_EQ(ZUNDO_OK, newStartPage(&start, 3, 1));
    zundo_int_attribute_s *starts = nullptr;
    newAttribute(&starts, "sample-start-pages", ZUNDO_KIND_START_PAGE, start);
    ASSERT_EQ(ZUNDO_OK, set(sample, starts));
    destroyAttribute(starts);

    zundo_date_time_s *modifiedAt = nullptr;
    newDateTimeFromString(&modifiedAt, "2010-01-01T00:00:00Z");
    zundo_modified_s *modified = nullptr;
    ASSERT_EQ(ZUNDO_OK, newModified(&modified, modifiedAt, "operator"));
    zundo_modified_s *modifications[] = {modified, nullptr};
    ASSERT_EQ(ZUNDO_OK, setModificationsAttribute(sample, "sample-modifications", modifications));
}

TEST(ObjectStore, GetsAndSetsThroughTheTable) {
    ObjectPtr sample(newSample());
    EXPECT_STREQ(kSampleType, getObjectType(sample.get()));
    EXPECT_EQ(ZUNDO_OK, setIntegerAttribute(sample.get(), "sample-count", 12));
    EXPECT_EQ(12, getInt(sample.get(), "sample-count"));
    EXPECT_EQ(ZUNDO_NOT_FOUND, setIntegerAttribute(sample.get(), "no-such-attribute", 1));
    EXPECT_EQ(nullptr, get(sample.get(), "no-such-attribute"));
    EXPECT_EQ(nullptr, get(nullptr, "sample-count"));
    EXPECT_EQ(nullptr, get(sample.get(), nullptr));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, set(sample.get(), nullptr));
    EXPECT_EQ(ZUNDO_NOT_FOUND, setIntegerAttribute(nullptr, "sample-count", 1));
}

TEST(ObjectStore, NumericFieldsStartNotSet) {
    ObjectPtr sample(newSample());
    AttributePtr flag(get(sample.get(), "sample-flag"));
    ASSERT_NE(nullptr, flag);
    EXPECT_EQ(1, getNumValues(flag.get()));
    EXPECT_EQ(0, hasNextValue(flag.get()));
    EXPECT_EQ(-1, *static_cast<int *>(nextValue(flag.get())));
    // Setting the not-set value unsets the attribute again.
    setIntegerAttribute(sample.get(), "sample-flag", 1);
    setIntegerAttribute(sample.get(), "sample-flag", -1);
    AttributePtr unset(get(sample.get(), "sample-flag"));
    EXPECT_EQ(0, hasNextValue(unset.get()));
}

TEST(ObjectStore, RefusalsLeaveTheObjectUnchanged) {
    ObjectPtr sample(newSample());
    setIntegerAttribute(sample.get(), "sample-count", 8);
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, setIntegerAttribute(sample.get(), "sample-count", -3));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, setStringAttribute(sample.get(), "sample-count", "9"));
    EXPECT_EQ(8, getInt(sample.get(), "sample-count"));
    // A numeric attribute without a value cannot say what to store.
    zundo_int_attribute_s *empty = nullptr;
    newAttribute(&empty, "sample-count", ZUNDO_KIND_INTEGER, nullptr);
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, set(sample.get(), empty));
    destroyAttribute(empty);
    EXPECT_EQ(8, getInt(sample.get(), "sample-count"));
}

TEST(ObjectStore, StringListsAreReplacedAndCleared) {
    ObjectPtr sample(newSample());
    const char *two[] = {"a", "b", nullptr};
    setStringsAttribute(sample.get(), "sample-names", two);
    EXPECT_EQ((std::vector<std::string>{"a", "b"}), getStrings(sample.get(), "sample-names"));
    setStringAttribute(sample.get(), "sample-names", "c");
    EXPECT_EQ(std::vector<std::string>{"c"}, getStrings(sample.get(), "sample-names"));
    EXPECT_EQ(ZUNDO_OK, setStringAttribute(sample.get(), "sample-names", nullptr));
    AttributePtr none(get(sample.get(), "sample-names"));
    EXPECT_EQ(0, getNumValues(none.get()));
}

TEST(ObjectStore, IntegerListStoresValuesBeforeNotSet) {
    ObjectPtr sample(newSample());
    zundo_int_attribute_s *levels = nullptr;
    newAttribute(&levels, "sample-levels", ZUNDO_KIND_INTEGER_LIST, nullptr);
    for (int v : {3, 0, 5}) addValue(levels, &v);
    ASSERT_EQ(ZUNDO_OK, set(sample.get(), levels));
    destroyAttribute(levels);
    AttributePtr stored(get(sample.get(), "sample-levels"));
    EXPECT_EQ(1, getNumValues(stored.get()));
    EXPECT_EQ(3, *static_cast<int *>(nextValue(stored.get())));
}

TEST(ObjectOwnership, GetThenSetKeepsSubObjectsAlive) {
    ObjectPtr parent(newSample());
    zundo_int_object_s *first = newSample();
    zundo_int_object_s *second = newSample();
    zundo_int_object_s *children[] = {first, second, nullptr};
    ASSERT_EQ(ZUNDO_OK, setObjectsAttribute(parent.get(), "sample-children", children));

    int destroyedBefore = sampleObjectsDestroyed;
    zundo_int_attribute_s *list = get(parent.get(), "sample-children");
    zundo_int_object_s *third = newSample();
    addValue(list, third);
    ASSERT_EQ(ZUNDO_OK, set(parent.get(), list));
    destroyAttribute(list);
    EXPECT_EQ(destroyedBefore, sampleObjectsDestroyed);
    // The originals are still usable (the sanitizer build catches a
    // use after free here).
    EXPECT_EQ(ZUNDO_OK, setIntegerAttribute(first, "sample-count", 2));
    EXPECT_EQ(ZUNDO_OK, setIntegerAttribute(second, "sample-count", 3));

    // A new list destroys the old children it does not hold.
    zundo_int_object_s *keep[] = {second, nullptr};
    ASSERT_EQ(ZUNDO_OK, setObjectsAttribute(parent.get(), "sample-children", keep));
    EXPECT_EQ(destroyedBefore + 2, sampleObjectsDestroyed);
    AttributePtr left(get(parent.get(), "sample-children"));
    ASSERT_EQ(1, getNumValues(left.get()));
    EXPECT_EQ(second, nextValue(left.get()));
}

TEST(ObjectOwnership, LongListsAreReplacedWithoutLosingSharedValues) {
    ObjectPtr parent(newSample());
    std::vector<zundo_int_object_s *> children;
    for (int i = 0; i < 40; i++) children.push_back(newSample());
    children.push_back(nullptr);
    setObjectsAttribute(parent.get(), "sample-children", children.data());
    int destroyedBefore = sampleObjectsDestroyed;
    // Keep every other child.
    std::vector<zundo_int_object_s *> kept;
    for (int i = 0; i < 40; i += 2) kept.push_back(children[i]);
    kept.push_back(nullptr);
    setObjectsAttribute(parent.get(), "sample-children", kept.data());
    EXPECT_EQ(destroyedBefore + 20, sampleObjectsDestroyed);
}

TEST(ObjectClone, DeepCopyOfEveryKindComparesEqual) {
    ObjectPtr original(newSample());
    fillEveryKind(original.get());
    ObjectPtr copy(cloneObj(original.get()));
    ASSERT_NE(nullptr, copy);
    EXPECT_EQ(0, compareObjects(original.get(), copy.get()));
    EXPECT_EQ(0, compareObjects(copy.get(), original.get()));

    // The copy holds its own sub-objects.
    AttributePtr mine(get(original.get(), "sample-children"));
    AttributePtr theirs(get(copy.get(), "sample-children"));
    EXPECT_NE(nextValue(mine.get()), nextValue(theirs.get()));

    // Changing any one field of the copy makes them differ.
    EXPECT_EQ(ZUNDO_OK, setDoubleAttribute(copy.get(), "sample-width", 21.25));
    EXPECT_NE(0, compareObjects(original.get(), copy.get()));
    setDoubleAttribute(copy.get(), "sample-width", 21.5);
    EXPECT_EQ(0, compareObjects(original.get(), copy.get()));
    const char *reordered[] = {"back", "front", nullptr};
    setStringsAttribute(copy.get(), "sample-names", reordered);
    EXPECT_EQ(0, compareObjects(original.get(), copy.get()));
    zundo_rgb_s *other = nullptr;
    newRGB(&other, 1, 2, 3);
    setRGBAttribute(copy.get(), "sample-colours", other);
    EXPECT_NE(0, compareObjects(original.get(), copy.get()));
}

TEST(ObjectClone, NestedChildDifferenceIsSeen) {
    ObjectPtr original(newSample());
    fillEveryKind(original.get());
    ObjectPtr copy(cloneObj(original.get()));
    AttributePtr children(get(copy.get(), "sample-children"));
    auto *child = static_cast<zundo_int_object_s *>(nextValue(children.get()));
    setIntegerAttribute(child, "sample-count", 99);
    EXPECT_NE(0, compareObjects(original.get(), copy.get()));
}

TEST(ObjectCompare, NullsAndMissingHooks) {
    ObjectPtr sample(newSample());
    EXPECT_EQ(0, compareObjects(nullptr, nullptr));
    EXPECT_EQ(1, compareObjects(sample.get(), nullptr));
    EXPECT_EQ(1, compareObjects(nullptr, sample.get()));
    EXPECT_EQ(nullptr, cloneObj(nullptr));
    destroy(nullptr);
}

TEST(ObjectChain, GetAndSetWalkToTheObjectThatKnowsTheName) {
    ObjectPtr head(newSample());
    zundo_int_object_s *tail = newCatalogueShell("ZUNDO_ABSTRACT_JDP", 4096);
    ASSERT_NE(nullptr, tail);
    head->next = tail;
    EXPECT_EQ(ZUNDO_OK, setIntegerAttribute(head.get(), "sides", 4));
    EXPECT_EQ(4, getInt(head.get(), "sides"));
    EXPECT_EQ(ZUNDO_OK, setIntegerAttribute(head.get(), "sample-count", 3));
    EXPECT_EQ(ZUNDO_NOT_FOUND, setIntegerAttribute(head.get(), "nowhere", 3));
    // A refusal by the first object that knows the name stops the walk.
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, setIntegerAttribute(head.get(), "sample-count", -1));
}

TEST(AttributeListing, PrefixedOwnersListOwnNamesThenBlockNames) {
    const zundo_type_table_s *job = findTypeTable("ZUNDO_JOB");
    const zundo_type_table_s *block = findTypeTable("ZUNDO_ABSTRACT_JDP");
    ASSERT_NE(nullptr, job);
    ASSERT_NE(nullptr, block);
    zundo_int_object_s shell{};
    shell.type = "ZUNDO_JOB";
    char **names = getAttributeNames(&shell);
    ASSERT_NE(nullptr, names);
    int count = 0;
    while (names[count] != nullptr) count++;
    EXPECT_EQ(285, count);
    EXPECT_STREQ(job->table[0].name, names[0]);
    for (int i = 0; i < block->rows - 1; i++)
        EXPECT_EQ(std::string("job-") + block->table[i].name, names[job->rows - 1 + i]);
    freeAttributeNames(names);

    shell.type = "ZUNDO_ABSTRACT_JDP";
    EXPECT_EQ(nullptr, getAttributeNames(&shell));
    zundo_int_attribute_s **list = nullptr;
    EXPECT_EQ(ZUNDO_NOT_FOUND, getSetAttributes(&shell, &list));
    EXPECT_EQ(nullptr, list);
    shell.type = kSampleType;
    EXPECT_EQ(nullptr, getAttributeNames(&shell));
    freeAttributeNames(nullptr);
}

TEST(AttributeListing, SetAttributesAreThoseWithValues) {
    ObjectPtr binding(newCatalogueShell("ZUNDO_BINDING", 4096));
    ASSERT_NE(nullptr, binding);
    zundo_int_attribute_s **list = nullptr;
    ASSERT_EQ(ZUNDO_OK, getSetAttributes(binding.get(), &list));
    EXPECT_EQ(nullptr, list[0]);
    freeSetAttributesList(list);

    setIntegerAttribute(binding.get(), "binding-type", 3);
    setStringAttribute(binding.get(), "binding-output-bin-name", "top");
    ASSERT_EQ(ZUNDO_OK, getSetAttributes(binding.get(), &list));
    std::vector<std::string> names;
    for (zundo_int_attribute_s **a = list; *a != nullptr; a++) names.push_back(getName(*a));
    EXPECT_EQ((std::vector<std::string>{"binding-output-bin-name", "binding-type"}), names);
    freeSetAttributesList(list);
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, getSetAttributes(nullptr, &list));
}

}  // namespace
