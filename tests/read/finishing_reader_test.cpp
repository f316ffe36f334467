// Finishing read from JDF: round trips of job and page-range finishing
// through the writer, and the reader rules that decide which object a
// resource gives.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "read/read_test_support.h"
#include "write/write_test_support.h"
#include "zundo.h"

namespace {

zundo_int_object_s *firstObjectIn(zundo_int_object_s *object, const char *name) {
    zundo_int_attribute_s *attribute = get(object, name);
    auto *first =
        hasNextValue(attribute) ? static_cast<zundo_int_object_s *>(nextValue(attribute)) : nullptr;
    destroyAttribute(attribute);
    return first;
}

zundo_int_object_s *pageRangeWithPages(zundo_int_object_s *job, int lower, int upper) {
    zundo_int_attribute_s *list = get(job, "job-page-ranges");
    zundo_int_object_s *found = nullptr;
    while (found == nullptr && hasNextValue(list)) {
        auto *pageRange = static_cast<zundo_int_object_s *>(nextValue(list));
        zundo_int_attribute_s *pages = get(pageRange, "page-range-pages");
        const auto *range = static_cast<const zundo_range_s *>(nextValue(pages));
        if (getLower(range) == lower && getUpper(range) == upper) found = pageRange;
        destroyAttribute(pages);
    }
    destroyAttribute(list);
    return found;
}

void setIntegers(zundo_int_object_s *object, const char *name, std::vector<int> values) {
    zundo_int_attribute_s *list = nullptr;
    ASSERT_EQ(newAttribute(&list, name, ZUNDO_KIND_INTEGER_LIST, nullptr), ZUNDO_OK);
    for (int value : values) ASSERT_EQ(addValue(list, &value), ZUNDO_OK);
    ASSERT_EQ(set(object, list), ZUNDO_OK);
    destroyAttribute(list);
}

zundo_int_object_s *holeMakingWithLine() {
    zundo_int_object_s *hole = nullptr;
    zundo_int_object_s *line = nullptr;
    zundo_int_object_s *holeMaking = nullptr;
    EXPECT_EQ(newHole(&hole, 5.0, 20.0, 3.5, 3.5, 2), ZUNDO_OK);
    EXPECT_EQ(newHoleLine(&line, 80.0, hole), ZUNDO_OK);
    EXPECT_EQ(newHoleMaking(&holeMaking, -2, 0), ZUNDO_OK);
    zundo_int_object_s *lines[] = {line, nullptr};
    EXPECT_EQ(setObjectsAttribute(holeMaking, "hole-making-hole-lines", lines), ZUNDO_OK);
    return holeMaking;
}

zundo_int_object_s *screening(const char *family, double frequency) {
    zundo_int_object_s *made = nullptr;
    EXPECT_EQ(newScreening(&made, family, frequency), ZUNDO_OK);
    EXPECT_EQ(setIntegerAttribute(made, "screening-type", 2), ZUNDO_OK);
    EXPECT_EQ(setIntegerAttribute(made, "screening-spot-function", 1), ZUNDO_OK);
    EXPECT_EQ(setIntegerAttribute(made, "screening-read-only", 1), ZUNDO_OK);
    EXPECT_EQ(setStringAttribute(made, "screening-product-id", "P-7"), ZUNDO_OK);
    setIntegers(made, "screening-object-types", {3, 5});
    setIntegers(made, "screening-base-screens", {1, 12});
    return made;
}

// A job with every finishing, and two page ranges whose stitching shares
// an edge while their other finishing differs from the job's.
void buildFinishedJob(zundo_int_object_s *job) {
    zundo_int_object_s *stitching = nullptr;
    ASSERT_EQ(newStitching(&stitching, 2, 4, 3), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(stitching, "stitching-angle", 45), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(stitching, "stitching-with-inserts-after", 3), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(job, "job-stitching", stitching), ZUNDO_OK);
    zundo_int_object_s *folding = nullptr;
    ASSERT_EQ(newFolding(&folding, "F6-1"), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(folding, "folding-component-type", 2), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(folding, "folding-reference-edge", 2), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(folding, "folding-with-inserts-before", 1), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(job, "job-folding", folding), ZUNDO_OK);
    zundo_int_object_s *holeMaking = nullptr;
    ASSERT_EQ(newHoleMaking(&holeMaking, 3, 2), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(holeMaking, "hole-making-spacing", 1), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(job, "job-hole-making", holeMaking), ZUNDO_OK);
    zundo_int_object_s *trimming = nullptr;
    ASSERT_EQ(newTrimming(&trimming, 4), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(trimming, "trimming-height", 100.0), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(trimming, "trimming-width", 210.5), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(trimming, "trimming-offset-height", 1.5), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(job, "job-trimming", trimming), ZUNDO_OK);
    zundo_int_object_s *trapping = nullptr;
    ASSERT_EQ(newTrapping(&trapping, 1), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(job, "job-trapping", trapping), ZUNDO_OK);
    zundo_int_object_s *binding = nullptr;
    ASSERT_EQ(newBinding(&binding, 2, 4), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(binding, "binding-cover-side", 3), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(binding, "binding-cover-source", 1), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(binding, "binding-cover-image-shift-x", 10.0), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(binding, "binding-cover-image-shift-y", -20.5), ZUNDO_OK);
    zundo_int_object_s *media = nullptr;
    ASSERT_EQ(newMedia(&media, "Cover stock"), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(binding, "binding-media", media), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(job, "job-binding", binding), ZUNDO_OK);
    zundo_int_object_s *screenings[] = {screening("Round", 150.0), screening("Ellipse", 175.5),
                                        nullptr};
    ASSERT_EQ(setObjectsAttribute(job, "job-screenings", screenings), ZUNDO_OK);

    zundo_int_object_s *pageRanges[3] = {};
    for (int i = 0; i < 2; ++i) {
        zundo_range_s *pages = nullptr;
        ASSERT_EQ(newRange(&pages, 2 * i, 2 * i + 1), ZUNDO_OK);
        ASSERT_EQ(newPageRange(&pageRanges[i], pages, nullptr), ZUNDO_OK);
        zundo_int_object_s *pageStitching = nullptr;
        ASSERT_EQ(newStitching(&pageStitching, -1, 2, i == 0 ? 1 : 3), ZUNDO_OK);
        ASSERT_EQ(setObjectAttribute(pageRanges[i], "page-range-stitching", pageStitching),
                  ZUNDO_OK);
    }
    zundo_int_object_s *noFold = nullptr;
    ASSERT_EQ(newFolding(&noFold, "None"), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(noFold, "folding-component-type", 1), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(noFold, "folding-reference-edge", 3), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(pageRanges[0], "page-range-folding", noFold), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(pageRanges[1], "page-range-hole-making", holeMakingWithLine()),
              ZUNDO_OK);
    zundo_int_object_s *noTrim = nullptr;
    ASSERT_EQ(newTrimming(&noTrim, 1), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(pageRanges[1], "page-range-trimming", noTrim), ZUNDO_OK);
    ASSERT_EQ(setObjectsAttribute(job, "job-page-ranges", pageRanges), ZUNDO_OK);
}

void expectSame(zundo_int_object_s *written, zundo_int_object_s *read, const char *name) {
    zundo_int_object_s *expected = firstObjectIn(written, name);
    zundo_int_object_s *actual = firstObjectIn(read, name);
    ASSERT_NE(actual, nullptr) << name;
    EXPECT_EQ(compareObjects(expected, actual), 0) << name;
}

TEST(FinishingRoundTrip, JobAndPageRangeFinishingReadBackEqual) {
    TestTicket ticket;
    buildFinishedJob(ticket.job);
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);
    ReadTicket read(written.text);
    ASSERT_EQ(read.result.status, ZUNDO_OK);
    zundo_int_object_s *job = read.job();

    // The cover media travels as a Media resource of its own; its identity
    // is the media reader's business, the binding's reference is ours.
    zundo_int_object_s *binding = firstObjectIn(job, "job-binding");
    ASSERT_NE(binding, nullptr);
    EXPECT_EQ(textOf(firstObjectIn(binding, "binding-media"), "media-name"), "Cover stock");
    zundo_int_object_s *noMedia[] = {nullptr};
    setObjectsAttribute(binding, "binding-media", noMedia);
    setObjectsAttribute(firstObjectIn(ticket.job, "job-binding"), "binding-media", noMedia);

    for (const char *name : {"job-stitching", "job-folding", "job-hole-making", "job-trimming",
                             "job-trapping", "job-binding"})
        expectSame(ticket.job, job, name);
    zundo_int_attribute_s *screenings = get(job, "job-screenings");
    zundo_int_attribute_s *original = get(ticket.job, "job-screenings");
    EXPECT_EQ(attributesEqual(original, screenings), 1);
    destroyAttribute(original);
    destroyAttribute(screenings);

    for (int i = 0; i < 2; ++i) {
        zundo_int_object_s *before = pageRangeWithPages(ticket.job, 2 * i, 2 * i + 1);
        zundo_int_object_s *after = pageRangeWithPages(job, 2 * i, 2 * i + 1);
        ASSERT_NE(after, nullptr);
        expectSame(before, after, "page-range-stitching");
        for (const char *name :
             {"page-range-folding", "page-range-hole-making", "page-range-trimming"}) {
            if (firstObjectIn(before, name) != nullptr)
                expectSame(before, after, name);
            else
                EXPECT_EQ(firstObjectIn(after, name), nullptr) << name << " of range " << i;
        }
    }
    if (HasFailure()) ADD_FAILURE() << written.text;
}

std::string bindingTicket(const std::string &resources, const std::string &links = "") {
    return jdfTicket(
        pools("<Media ID=\"M1\" Class=\"Consumable\" DescriptiveName=\"Cover\"/>" + resources,
              links),
        "");
}

int bindingTypeOf(const std::string &text) {
    ReadTicket read(text);
    EXPECT_EQ(read.result.status, ZUNDO_OK);
    return intOf(firstObjectIn(read.job(), "job-binding"), "binding-type");
}

TEST(FinishingRead, BindingTypeAndCoverMedia) {
    const std::string ring = "<RingBindingParams ID=\"RB\" Class=\"Parameter\">";
    EXPECT_EQ(bindingTypeOf(bindingTicket(ring + "</RingBindingParams>")), 4);
    EXPECT_EQ(bindingTypeOf(bindingTicket(
                  ring + "<HoleMakingParams HoleType=\"S-generic\"/></RingBindingParams>")),
              5);
    // Holes without rings: the binding's NoOp does not stop the holes.
    EXPECT_EQ(
        bindingTypeOf(bindingTicket("<RingBindingParams ID=\"RB\" NoOp=\"true\"><HoleMakingParams "
                                    "morvellan:IgnoreNoOp=\"true\"/></RingBindingParams>")),
        6);
    // A None binding never replaces a real one.
    EXPECT_EQ(bindingTypeOf(bindingTicket(ring + "</RingBindingParams><CoverApplicationParams "
                                                 "ID=\"CA\" NoOp=\"true\"/>")),
              4);

    // The cover media reaches the binding whichever of the two comes first.
    const std::string component =
        "<Component ID=\"C1\" Class=\"Quantity\"><MediaRef rRef=\"M1\"/></Component>";
    const std::string cover = "<CoverApplicationParams ID=\"CA\" Class=\"Parameter\"/>";
    for (const std::string &resources : {component + cover, cover + component}) {
        ReadTicket read(bindingTicket(resources));
        zundo_int_object_s *binding = firstObjectIn(read.job(), "job-binding");
        EXPECT_EQ(intOf(binding, "binding-type"), 2);
        EXPECT_EQ(textOf(firstObjectIn(binding, "binding-media"), "media-name"), "Cover")
            << resources;
    }
}

TEST(FinishingRead, PartitionsAndNoOp) {
    ReadTicket read(jdfTicket(
        pools("<StitchingParams ID=\"S\" Class=\"Parameter\" PartIDKeys=\"RunIndex\">"
              "<StitchingParams RunIndex=\"0\" DescriptiveName=\"nothing to do\"/>"
              "<StitchingParams RunIndex=\"1\" NoOp=\"true\"/></StitchingParams>"
              "<FoldingParams ID=\"F\" FoldCatalog=\"F4-1\" PartIDKeys=\"RunIndex\">"
              "<FoldingParams RunIndex=\"2\" FoldCatalog=\"F8-7\" NoOp=\"true\"/></FoldingParams>"
              "<HoleMakingParams ID=\"H\" HoleType=\"R6-generic\" PartIDKeys=\"RunIndex\">"
              "<HoleMakingParams RunIndex=\"3\" HoleType=\"R6-generic\" NoOp=\"true\"/>"
              "</HoleMakingParams>")));
    ASSERT_EQ(read.result.status, ZUNDO_OK);
    zundo_int_object_s *job = read.job();
    EXPECT_EQ(firstObjectIn(job, "job-stitching"), nullptr);
    EXPECT_EQ(firstObjectIn(pageRangeWithPages(job, 0, 0), "page-range-stitching"), nullptr);
    EXPECT_EQ(intOf(firstObjectIn(pageRangeWithPages(job, 1, 1), "page-range-stitching"),
                    "stitching-type"),
              1);
    EXPECT_EQ(textOf(firstObjectIn(job, "job-folding"), "folding-type"), "F4-1");
    EXPECT_EQ(
        textOf(firstObjectIn(pageRangeWithPages(job, 2, 2), "page-range-folding"), "folding-type"),
        "None");
    EXPECT_EQ(intOf(firstObjectIn(job, "job-hole-making"), "hole-making-count"), 6);
    EXPECT_EQ(intOf(firstObjectIn(pageRangeWithPages(job, 3, 3), "page-range-hole-making"),
                    "hole-making-count"),
              0);
}

// The cover sheet's amount pool: a Transformation without a translation
// shifts by the not-set distance, and a range of the last pages is the
// back end of the job on both sides.
TEST(FinishingRead, CoverTransformation) {
    struct Case {
        const char *partAmount;
        double shiftX;
        double shiftY;
        int edge;
        int side;
        int source;
    };
    const Case cases[] = {
        {"Transformation=\"0 1 -1 0 10 20\"><Part RunIndex=\"0\" Side=\"Back\"/>", -10.0, -20.0, 4,
         1, 1},
        {"Transformation=\"1 0 0 1\"><Part RunIndex=\"-2 ~ -1\"/>", -999999.0, -999999.0, 2, 2, 2},
    };
    for (const Case &c : cases) {
        ReadTicket read(jdfTicket(
            pools("<CoverApplicationParams ID=\"CA\" Class=\"Parameter\"/>"
                  "<Component ID=\"C1\" Class=\"Quantity\"/>",
                  "<CoverApplicationParamsLink rRef=\"CA\" Usage=\"Input\" "
                  "CombinedProcessIndex=\"1\"/><ComponentLink rRef=\"C1\" Usage=\"Input\" "
                  "CombinedProcessIndex=\"1\"><AmountPool><PartAmount " +
                      std::string(c.partAmount) + "</PartAmount></AmountPool></ComponentLink>"),
            ""));
        zundo_int_object_s *binding = firstObjectIn(read.job(), "job-binding");
        EXPECT_EQ(doubleOf(binding, "binding-cover-image-shift-x"), c.shiftX) << c.partAmount;
        EXPECT_EQ(doubleOf(binding, "binding-cover-image-shift-y"), c.shiftY) << c.partAmount;
        EXPECT_EQ(intOf(binding, "binding-reference-edge"), c.edge) << c.partAmount;
        EXPECT_EQ(intOf(binding, "binding-cover-side"), c.side) << c.partAmount;
        EXPECT_EQ(intOf(binding, "binding-cover-source"), c.source) << c.partAmount;
    }
}

// An InsertSheet's own FoldingParams folds that sheet; one whose fold the
// folding refuses (a blank FoldCatalog) folds nothing and leaks nothing.
TEST(FinishingRead, InsertSheetFolding) {
    for (const char *catalog : {"F4-2", " "}) {
        ReadTicket read(jdfTicket(pools(
            "<LayoutElement ID=\"LE0\"/><RunList ID=\"RL\" PartIDKeys=\"Run\">"
            "<RunList Run=\"0\" Pages=\"0~4\"><LayoutElementRef rRef=\"LE0\"/>"
            "<InsertSheet SheetType=\"InsertSheet\" SheetUsage=\"Header\">"
            "<FoldingParams FoldCatalog=\"" + std::string(catalog) +
            "\"/></InsertSheet></RunList></RunList>")));
        ASSERT_EQ(read.result.status, ZUNDO_OK);
        zundo_int_object_s *sheet = firstObjectIn(read.job(), "job-insert-sheets");
        ASSERT_NE(sheet, nullptr) << catalog;
        zundo_int_object_s *folding = firstObjectIn(sheet, "insert-sheet-folding");
        if (catalog[0] == ' ') EXPECT_EQ(folding, nullptr);
        else EXPECT_EQ(textOf(folding, "folding-type"), "F4-2");
    }
}

}  // namespace
