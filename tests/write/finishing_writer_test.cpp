// Finishing written to JDF: the NoOp convention between job and page
// ranges, bindings and their cover sheet, and the Components of the
// folding chain.
#include <gtest/gtest.h>

#include <string>

#include "write/write_test_support.h"
#include "zundo.h"

namespace {

zundo_int_object_s *addPageRange(zundo_int_object_s *job, int lower, int upper) {
    zundo_range_s *pages = nullptr;
    EXPECT_EQ(newRange(&pages, lower, upper), ZUNDO_OK);
    zundo_int_object_s *pageRange = nullptr;
    EXPECT_EQ(newPageRange(&pageRange, pages, nullptr), ZUNDO_OK);
    zundo_int_object_s *list[] = {pageRange, nullptr};
    EXPECT_EQ(setObjectsAttribute(job, "job-page-ranges", list), ZUNDO_OK);
    return pageRange;
}

xercesc::DOMElement *runPartition(const xercesc::DOMElement *resource, const std::string &run) {
    return childWith(resource, tagName(resource), "RunIndex", run);
}

// The ComponentLinks with Usage "Input" of the process at index.
xercesc::DOMElement *inputLink(const WrittenTicket &written, const std::string &index) {
    for (xercesc::DOMElement *link :
         childElements(written.pool("ResourceLinkPool"), "ComponentLink"))
        if (attribute(link, "Usage") == "Input" && attribute(link, "CombinedProcessIndex") == index)
            return link;
    return nullptr;
}

TEST(FinishingWrite, NoOpConventionBetweenJobAndPageRange) {
    TestTicket ticket;
    zundo_int_object_s *holeMaking = nullptr;
    ASSERT_EQ(newHoleMaking(&holeMaking, 0, 0), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(ticket.job, "job-hole-making", holeMaking), ZUNDO_OK);
    zundo_int_object_s *fold = nullptr;
    ASSERT_EQ(newFolding(&fold, "F4-1"), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(fold, "folding-component-type", 2), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(fold, "folding-reference-edge", 4), ZUNDO_OK);
    zundo_int_object_s *pageRange = addPageRange(ticket.job, 3, 7);
    ASSERT_EQ(setObjectAttribute(pageRange, "page-range-folding", fold), ZUNDO_OK);

    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);
    xercesc::DOMElement *holes = written.resource("HM0");
    ASSERT_NE(holes, nullptr);
    EXPECT_EQ(attribute(holes, "NoOp"), "true");
    EXPECT_EQ(attribute(holes, "HoleType"), "");

    // The job does not fold, the page range does.
    xercesc::DOMElement *folding = written.resource("FL0");
    ASSERT_NE(folding, nullptr);
    EXPECT_EQ(attribute(folding, "NoOp"), "true");
    xercesc::DOMElement *partition = runPartition(folding, "3 ~ 7");
    ASSERT_NE(partition, nullptr);
    EXPECT_EQ(attribute(partition, "FoldCatalog"), "F4-1");
    EXPECT_EQ(attribute(partition, "NoOp"), "false");

    // Folding follows the five processes every ticket has.
    xercesc::DOMElement *foldingInput = inputLink(written, "5");
    ASSERT_NE(foldingInput, nullptr) << written.text;
    std::vector<xercesc::DOMElement *> parts =
        childElements(childWith(childElements(foldingInput, "AmountPool").front(), "PartAmount",
                                "Orientation", "Rotate90"),
                      "Part");
    ASSERT_EQ(parts.size(), 1u);
    EXPECT_EQ(attribute(parts.front(), "RunIndex"), "3 ~ 7");
    xercesc::DOMElement *component = written.resource(attribute(foldingInput, "rRef"));
    xercesc::DOMElement *componentPartition =
        childWith(component, "Component", "RunIndex", "3 ~ 7");
    ASSERT_NE(componentPartition, nullptr);
    EXPECT_EQ(attribute(componentPartition, "ComponentType"), "Sheet PartialProduct");
    EXPECT_EQ(attribute(componentPartition, "NoOp"), "false");
}

TEST(FinishingWrite, RingBindingWithHolesOnly) {
    TestTicket ticket;
    zundo_int_object_s *binding = nullptr;
    ASSERT_EQ(newBinding(&binding, 6, 3), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(binding, "binding-output-bin-name", "Tray 2"), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(ticket.job, "job-binding", binding), ZUNDO_OK);

    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);
    EXPECT_EQ(written.types(),
              "LayoutPreparation Imposition Interpreting Rendering DigitalPrinting RingBinding");
    xercesc::DOMElement *rings = written.resource("RB0");
    ASSERT_NE(rings, nullptr);
    EXPECT_EQ(attribute(rings, "NoOp"), "true");
    std::vector<xercesc::DOMElement *> holes = childElements(rings, "HoleMakingParams");
    ASSERT_EQ(holes.size(), 1u);
    EXPECT_EQ(attribute(holes.front(), "HoleType"), "S-generic");
    EXPECT_EQ(attribute(holes.front(), "morvellan:IgnoreNoOp"), "true");
    xercesc::DOMElement *input = inputLink(written, "5");
    ASSERT_NE(input, nullptr);
    EXPECT_EQ(attribute(input, "Orientation"), "Rotate180");
}

TEST(FinishingWrite, CoverOnBothSidesOfTheFirstSheets) {
    TestTicket ticket;
    zundo_int_object_s *binding = nullptr;
    ASSERT_EQ(newBinding(&binding, 2, 0), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(binding, "binding-cover-side", 2), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(binding, "binding-cover-source", 1), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(ticket.job, "job-binding", binding), ZUNDO_OK);

    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);
    xercesc::DOMElement *coverLink = nullptr;
    for (xercesc::DOMElement *link :
         childElements(written.pool("ResourceLinkPool"), "ComponentLink"))
        if (attribute(link, "ProcessUsage") == "Cover") coverLink = link;
    ASSERT_NE(coverLink, nullptr);
    std::vector<xercesc::DOMElement *> amounts = childElements(coverLink, "AmountPool");
    ASSERT_EQ(amounts.size(), 1u);
    xercesc::DOMElement *part =
        childElements(childElements(amounts.front(), "PartAmount").front(), "Part").front();
    EXPECT_EQ(attribute(part, "RunIndex"), "0 ~ 1");
    EXPECT_EQ(attribute(part, "Side"), "");
}

TEST(FinishingWrite, NoBindingSaysNoOpToEveryBindingProcess) {
    TestTicket ticket;
    zundo_int_object_s *binding = nullptr;
    ASSERT_EQ(newBinding(&binding, 1, 0), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(ticket.job, "job-binding", binding), ZUNDO_OK);
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);
    for (const char *id : {"CA0", "ST0", "RB0", "WCB0"}) {
        ASSERT_NE(written.resource(id), nullptr) << id;
        EXPECT_EQ(attribute(written.resource(id), "NoOp"), "true") << id;
    }
}

}  // namespace
