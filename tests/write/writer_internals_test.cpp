// The writer's shared operations that the attribute writers build on:
// number spelling, resource and Component getters, writeJDFAttr, comments
// and the audit order.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "write/audits.h"
#include "write/comments.h"
#include "write/jdf_attr.h"
#include "write/jdf_root.h"
#include "write/number_format.h"
#include "write/process_types.h"
#include "write/resource_getters.h"
#include "write/write_driver.h"
#include "write/write_test_support.h"
#include "xml/partitions.h"

namespace {

std::string real(double value) {
    char text[kNumberTextSize];
    return formatReal(text, sizeof text, value) != nullptr ? text : "(null)";
}

TEST(WriterNumbers, RealsLoseTrailingZerosOnly) {
    EXPECT_EQ(real(2.5), "2.5");
    EXPECT_EQ(real(3.0), "3");
    EXPECT_EQ(real(100.0), "100");
    EXPECT_EQ(real(-0.25), "-0.25");
    EXPECT_EQ(real(1234567.1234567), "1234567.123457");
    EXPECT_EQ(real(0.0000004), "0");
    EXPECT_EQ(real(1e308).size(), 309u);
    EXPECT_EQ(real(INFINITY), "inf");
    char text[kNumberTextSize];
    EXPECT_STREQ(convertDoubleToStringJT(text, sizeof text, "%0.4f", std::sqrt(0.5)), "0.7071");
    EXPECT_STREQ(formatInteger(text, sizeof text, -7), "-7");
    char pair[kPairTextSize];
    EXPECT_STREQ(formatRealPair(pair, sizeof pair, 1.5, 2.0), "1.5 2");
    char box[kRectangleTextSize];
    EXPECT_STREQ(formatRealRectangle(box, sizeof box, 0, 0, 595.5, 842), "0 0 595.5 842");
    char small[4];
    EXPECT_EQ(formatReal(small, sizeof small, 12.5), nullptr);
    EXPECT_STREQ(small, "");
    EXPECT_EQ(formatRealPair(small, sizeof small, 1.5, 2), nullptr);
    EXPECT_STREQ(small, "");
    EXPECT_STREQ(kMissingTimeStamp, "0000-00-00T00:00:00+00:00");
}

TEST(WriterResources, FixedIdsClassesAndProcessIndexes) {
    TestTicket ticket;
    zundo_int_object_s *stitching = nullptr;
    ASSERT_EQ(newStitching(&stitching, 2, 2, 3), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(ticket.job, "job-stitching", stitching), ZUNDO_OK);
    WriterHarness harness(ticket);
    JDFWriteContext *ctx = &harness.ctx;
    EXPECT_EQ(getCombinedProcessIndex(ctx, "Stitching"), 5);
    EXPECT_EQ(getCombinedProcessIndex(ctx, "Folding"), -1);
    EXPECT_EQ(getCombinedProcessIndex(ctx, "NoSuchProcess"), -1);

    xercesc::DOMElement *device = getDevice(ctx);
    xercesc::DOMElement *stitchingParams = getStitchingParams(ctx);
    TraceCapture trace;
    xercesc::DOMElement *foldingParams = getFoldingParams(ctx);
    EXPECT_TRUE(trace.saw("error encountered when adding \t\t\t\t\t\tFolding to types."));
    ASSERT_NE(device, nullptr);
    EXPECT_EQ(getDevice(ctx), device);
    EXPECT_EQ(attribute(device, "ID"), "D0");
    EXPECT_EQ(attribute(device, "Class"), "Implementation");
    EXPECT_EQ(attribute(stitchingParams, "ID"), "S0");
    EXPECT_EQ(attribute(getColorantControl(ctx), "ID"), "CC0");
    EXPECT_EQ(attribute(getInk(ctx), "Class"), "Consumable");
    xercesc::DOMElement *fontPolicy = getFontPolicy(ctx);
    EXPECT_EQ(attribute(fontPolicy, "PreferredFont"), "morvellan:SystemSpecified");
    EXPECT_EQ(attribute(fontPolicy, "UseFontEmulation"), "false");
    EXPECT_EQ(attribute(getPDLResourceAlias(ctx), "ID"), "PRA0");
    EXPECT_EQ(attribute(getPDLResourceAlias(ctx), "ID"), "PRA1");
    EXPECT_EQ(attribute(getUsageCounter(ctx), "ID"), "UC0");
    // RunList IDs count in the order the RunLists are first asked for.
    xercesc::DOMElement *marks = getRunListMarks(ctx);
    xercesc::DOMElement *pagesLink = getRunListPagesLink(ctx);
    EXPECT_EQ(attribute(marks, "ID"), "RL0");
    EXPECT_EQ(attribute(marks, "PartIDKeys"), "Run");
    EXPECT_EQ(attribute(getRunListPages(ctx), "ID"), "RL1");
    EXPECT_EQ(attribute(pagesLink, "rRef"), "RL1");
    EXPECT_EQ(attribute(getRunListDigitalPrinting(ctx), "ID"), "RL2");

    struct Link {
        const char *id;
        const char *combinedProcessIndex;
    };
    const Link links[] = {{"S0", "5"}, {"FL0", "-1"}, {"CC0", "2 4"}, {"RL1", "0 1"},
                          {"RL0", "0"}, {"UC0", "4"}, {"PRA1", "2"}, {"FP0", "2"}};
    std::vector<xercesc::DOMElement *> linkElements = childElements(ctx->resourceLinkPool);
    for (const Link &link : links) {
        SCOPED_TRACE(link.id);
        xercesc::DOMElement *element = nullptr;
        for (xercesc::DOMElement *candidate : linkElements)
            if (attribute(candidate, "rRef") == link.id) element = candidate;
        ASSERT_NE(element, nullptr);
        EXPECT_EQ(attribute(element, "CombinedProcessIndex"), link.combinedProcessIndex);
        EXPECT_EQ(attribute(element, "Usage"), "Input");
    }
    EXPECT_EQ(attribute(childWith(ctx->resourceLinkPool, "RunListLink", "rRef", "RL0"),
                        "ProcessUsage"),
              "Marks");
    EXPECT_FALSE(childWith(ctx->resourceLinkPool, "DeviceLink", "rRef", "D0")
                     ->hasAttribute(u"CombinedProcessIndex"));
    // Pool order, not creation order.
    std::vector<std::string> names = childNames(ctx->resourcePool);
    EXPECT_EQ(names.front(), "RunList");
    EXPECT_LT(std::find(names.begin(), names.end(), "FontPolicy"),
              std::find(names.begin(), names.end(), "Device"));
    EXPECT_EQ(names.back(), "FoldingParams");
    ASSERT_NE(foldingParams, nullptr);
}

TEST(WriterComponents, ProcessChainAndFinalProduct) {
    TestTicket ticket;
    WriterHarness harness(ticket);
    JDFWriteContext *ctx = &harness.ctx;
    xercesc::DOMElement *rendering = getProcessOutputComponent(ctx, "Rendering");
    ASSERT_NE(rendering, nullptr);
    EXPECT_EQ(attribute(rendering, "ID"), "C0");
    EXPECT_EQ(attribute(rendering, "Class"), "Quantity");
    EXPECT_EQ(attribute(rendering, "ComponentType"), "PartialProduct");
    EXPECT_EQ(attribute(rendering, "PipeProtocol"), "Internal");
    EXPECT_EQ(getProcessOutputComponent(ctx, "Rendering"), rendering);

    // DigitalPrinting is the last process, so its output is the final product.
    xercesc::DOMElement *finalLink = getFinalProductComponent(ctx);
    ASSERT_NE(finalLink, nullptr);
    EXPECT_EQ(tagName(finalLink), "ComponentLink");
    EXPECT_EQ(attribute(finalLink, "Usage"), "Output");
    EXPECT_EQ(attribute(finalLink, "CombinedProcessIndex"), "4");
    xercesc::DOMElement *printed = getDigitalPrintingOutputComponent(ctx);
    EXPECT_EQ(getProcessOutputComponent(ctx, "DigitalPrinting"), printed);
    EXPECT_EQ(attribute(printed, "ID"), attribute(finalLink, "rRef"));
    EXPECT_EQ(attribute(printed, "ComponentType"), "FinalProduct");
    EXPECT_EQ(getFinalProductComponent(ctx), finalLink);

    xercesc::DOMElement *chained = getChainedInputComponent(ctx, "DigitalPrinting");
    ASSERT_NE(chained, nullptr);
    EXPECT_EQ(getProcessInputComponent(ctx, "DigitalPrinting"), chained);
    const std::string chainedId = attribute(chained, "ID");
    EXPECT_EQ(chainedId, "C2");
    std::vector<std::string> uses;
    for (xercesc::DOMElement *link : childElements(ctx->resourceLinkPool, "ComponentLink"))
        if (attribute(link, "rRef") == chainedId)
            uses.push_back(attribute(link, "Usage") + " " +
                           attribute(link, "CombinedProcessIndex"));
    EXPECT_EQ(uses, (std::vector<std::string>{"Input 4", "Output 3"}));
    EXPECT_EQ(ctx->partAmounts[4].inputLink, childWith(ctx->resourceLinkPool, "ComponentLink",
                                                       "rRef", chainedId));

    EXPECT_EQ(getProcessOutputComponent(ctx, "Stitching"), nullptr);
    EXPECT_EQ(getProcessInputComponent(ctx, "Folding"), nullptr);
    EXPECT_EQ(getCoverSheetComponent(ctx), nullptr);
}

TEST(WriterComponents, CoverSheetFeedsCoverApplication) {
    TestTicket ticket;
    zundo_int_object_s *binding = nullptr;
    ASSERT_EQ(newBinding(&binding, 2, 2), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(ticket.job, "job-binding", binding), ZUNDO_OK);
    WriterHarness harness(ticket);
    JDFWriteContext *ctx = &harness.ctx;
    // The final product comes from the last process, CoverApplication.
    EXPECT_EQ(attribute(getFinalProductComponent(ctx), "CombinedProcessIndex"), "5");
    xercesc::DOMElement *cover = getCoverSheetComponent(ctx);
    ASSERT_NE(cover, nullptr);
    EXPECT_EQ(getCoverSheetComponent(ctx), cover);
    EXPECT_EQ(attribute(cover, "ComponentType"), "Sheet");
    EXPECT_EQ(attribute(cover, "ProductType"), "Cover");
    xercesc::DOMElement *link =
        childWith(ctx->resourceLinkPool, "ComponentLink", "rRef", attribute(cover, "ID"));
    ASSERT_NE(link, nullptr);
    EXPECT_EQ(attribute(link, "ProcessUsage"), "Cover");
    EXPECT_EQ(attribute(link, "Usage"), "Input");
    EXPECT_EQ(attribute(link, "CombinedProcessIndex"), "5");
    EXPECT_NE(getProcessOutputComponent(ctx, "DigitalPrinting"),
              getProcessOutputComponent(ctx, "CoverApplication"));
}

TEST(WriterAttributes, ElementOrPartitionByKeys) {
    TestTicket ticket;
    WriterHarness harness(ticket);
    JDFWriteContext *ctx = &harness.ctx;
    EXPECT_EQ(writeJDFAttr(ctx, "morvellan:SnapshotName", "s1", 0, nullptr, nullptr, getJDFRoot),
              ZUNDO_OK);
    EXPECT_EQ(attribute(ctx->root, "morvellan:SnapshotName"), "s1");

    writeJDFAttr(ctx, "Sides", "TwoSidedFlipY", 0, "0 ~ 3", nullptr, getLayoutPreparationParams);
    xercesc::DOMElement *lpp = getLayoutPreparationParams(ctx);
    EXPECT_EQ(attribute(lpp, "PartIDKeys"), "RunIndex");
    EXPECT_FALSE(lpp->hasAttribute(u"Sides"));
    xercesc::DOMElement *run = childWith(lpp, "LayoutPreparationParams", "RunIndex", "0 ~ 3");
    ASSERT_NE(run, nullptr);
    EXPECT_EQ(attribute(run, "Sides"), "TwoSidedFlipY");

    writeJDFAttr(ctx, "Sides", "OneSidedFront", 0, nullptr, "1", getDigitalPrintingParams);
    xercesc::DOMElement *dpp = getDigitalPrintingParams(ctx);
    EXPECT_EQ(attribute(dpp, "PartIDKeys"), "DocIndex");
    EXPECT_EQ(attribute(childWith(dpp, "DigitalPrintingParams", "DocIndex", "1"), "Sides"),
              "OneSidedFront");

    writeJDFAttr(ctx, "Rotate", "Rotate90", 0, "4", "0", getInterpretingParams);
    xercesc::DOMElement *iip = getInterpretingParams(ctx);
    EXPECT_EQ(attribute(iip, "PartIDKeys"), "DocIndex DocRunIndex");
    xercesc::DOMElement *document = childWith(iip, "InterpretingParams", "DocIndex", "0");
    EXPECT_EQ(attribute(childWith(document, "InterpretingParams", "DocRunIndex", "4"), "Rotate"),
              "Rotate90");

    // The getter runs even when there is nothing to write.
    EXPECT_EQ(writeJDFAttr(ctx, "DeviceID", nullptr, 0, nullptr, nullptr, getDevice), ZUNDO_OK);
    ASSERT_NE(ctx->resources[kDevice], nullptr);
    EXPECT_FALSE(ctx->resources[kDevice]->hasAttribute(u"DeviceID"));
}

TEST(WriterAttributes, CellLevelGoesOnlyToExistingRunPartitionsOfLeaves) {
    TestTicket ticket;
    WriterHarness harness(ticket);
    JDFWriteContext *ctx = &harness.ctx;
    xercesc::DOMElement *lpp = getLayoutPreparationParams(ctx);
    // Cells 0 and 1, each split by side; only the front of cell 0 has a
    // partition for run "2".
    xercesc::DOMElement *cell0 = findOrCreatePartition(lpp, "0", "CellIndex");
    xercesc::DOMElement *cell1 = findOrCreatePartition(lpp, "1", "CellIndex");
    xercesc::DOMElement *front0 = findOrCreatePartition(cell0, "Front", "Side");
    xercesc::DOMElement *front1 = findOrCreatePartition(cell1, "Front", "Side");
    xercesc::DOMElement *run = findOrCreatePartition(front0, "2", "RunIndex");
    ASSERT_NE(run, nullptr);
    ASSERT_NE(front1, nullptr);
    ctx->lppCellPartitions = true;
    ctx->lppFrontSidePartitions = true;

    EXPECT_EQ(writeJDFAttr(ctx, "Rotate", "Rotate180", 1, "2", nullptr, getLayoutPreparationParams),
              ZUNDO_OK);
    EXPECT_EQ(attribute(run, "Rotate"), "Rotate180");
    EXPECT_TRUE(childElements(front1).empty());
    EXPECT_EQ(childElements(lpp, "LayoutPreparationParams").size(), 2u);

    // Other resources use their plain partitions.
    writeJDFAttr(ctx, "Rotate", "Rotate270", 1, "2", nullptr, getDigitalPrintingParams);
    EXPECT_EQ(attribute(childWith(getDigitalPrintingParams(ctx), "DigitalPrintingParams",
                                  "RunIndex", "2"),
                        "Rotate"),
              "Rotate270");
}

TEST(WriterComments, CommentsAndDescriptions) {
    TestTicket ticket;
    WriterHarness harness(ticket);
    xercesc::DOMElement *root = harness.ctx.root;
    EXPECT_EQ(addComment(root, nullptr, "en", "X"), nullptr);
    xercesc::DOMElement *comment = addComment(root, "Hallo", "de", "Greeting");
    ASSERT_NE(comment, nullptr);
    EXPECT_EQ(attribute(comment, "Name"), "Greeting");
    EXPECT_EQ(attribute(comment, "Language"), "de");
    EXPECT_EQ(utf8(comment->getTextContent()), "Hallo");
    xercesc::DOMElement *unit = addDescriptionComment(root, "mm", "TrimSize");
    ASSERT_NE(unit, nullptr);
    EXPECT_EQ(attribute(unit, "Name"), "Description");
    EXPECT_EQ(attribute(unit, "Attribute"), "TrimSize");
    EXPECT_FALSE(unit->hasAttribute(u"Language"));
    EXPECT_EQ(childElements(root, "Comment").size(), 2u);
}

TEST(WriterAudits, SortedByTimeStampWithProcessRunsLast) {
    TestTicket ticket;
    WriterHarness harness(ticket);
    JDFWriteContext *ctx = &harness.ctx;
    struct Audit {
        const char *name;
        const char *timeStamp;  // null: none
    };
    const Audit audits[] = {
        {"Modified", "2020-01-02T00:00:00+00:00"},
        {"ProcessRun", "2020-01-01T10:00:00+00:00"},
        {"Created", nullptr},
        {"Notification", "2020-01-01T10:00:00Z"},
        {"Spawned", "yesterday"},
        {"ResourceAudit", "2020-01-01T11:00:00+02:00"},
        {"PhaseTime", "2020-01-01T10:00:00+00:00"},
    };
    for (const Audit &audit : audits) {
        AuditPoolElementRecord record = {audit.name, nullptr};
        ASSERT_EQ(addAuditPoolElement(ctx, &record), ZUNDO_OK);
        ASSERT_NE(record.element, nullptr);
        if (audit.timeStamp != nullptr)
            setAttributeTraced(record.element, "TimeStamp", audit.timeStamp);
    }
    EXPECT_EQ(childNames(ctx->root).back(), "AuditPool");
    sortAuditPool(ctx);
    EXPECT_EQ(ctx->auditCount, 0u);
    EXPECT_EQ(childNames(ctx->auditPool),
              (std::vector<std::string>{"Created", "Spawned", "ResourceAudit", "Notification",
                                        "PhaseTime", "ProcessRun", "Modified"}));
}

}  // namespace
