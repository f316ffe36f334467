// The print parameters of job, documents and page ranges written into the
// partitions of their resources, the job-level values, the PageList, and
// the LayoutPreparationParams elements placed per cell partition.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "write/jdf_attr.h"
#include "write/jdf_root.h"
#include "write/resource_getters.h"
#include "write/write_driver.h"
#include "write/write_test_support.h"
#include "zundo.h"

namespace {

zundo_int_object_s *pageRange(int lower, int upper) {
    zundo_range_s *pages = nullptr;
    EXPECT_EQ(newRange(&pages, lower, upper), ZUNDO_OK);
    zundo_int_object_s *made = nullptr;
    EXPECT_EQ(newPageRange(&made, pages, nullptr), ZUNDO_OK);
    return made;
}

void setRanges(zundo_int_object_s *object, const char *name,
               const std::vector<std::pair<int, int>> &bounds) {
    zundo_int_attribute_s *attribute = nullptr;
    ASSERT_EQ(newAttribute(&attribute, name, "R", nullptr), ZUNDO_OK);
    for (const auto &bound : bounds) {
        zundo_range_s *range = nullptr;
        ASSERT_EQ(newRange(&range, bound.first, bound.second), ZUNDO_OK);
        ASSERT_EQ(addValue(attribute, range), ZUNDO_OK);
    }
    ASSERT_EQ(set(object, attribute), ZUNDO_OK);
    destroyAttribute(attribute);
}

// The one child partition of the resource's name keyed key = value.
xercesc::DOMElement *partition(const xercesc::DOMElement *parent, const char *key,
                               const std::string &value) {
    return childWith(parent, tagName(parent), key, value);
}

xercesc::DOMElement *outputComponent(const WrittenTicket &written) {
    for (xercesc::DOMElement *resource : childElements(written.pool("ResourcePool"), "Component"))
        if (attribute(written.link(attribute(resource, "ID")), "Usage") == "Output")
            return resource;
    return nullptr;
}

std::string locationName(const xercesc::DOMElement *parent) {
    std::vector<xercesc::DOMElement *> locations = childElements(parent, "Location");
    return locations.size() == 1 ? attribute(locations.front(), "LocationName") : "(none)";
}

TEST(WriteCascade, JobAndJobLevelPageRanges) {
    TestTicket ticket;
    zundo_int_object_s *job = ticket.job;
    ASSERT_EQ(setIntegerAttribute(job, "job-number-up-x", 2), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(job, "job-number-up-copies", 1), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(job, "job-number-up-scb-lower-left-x", 10.5), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(job, "job-sides", 4), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(job, "job-page-rotation", 2), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(job, "job-destination-name", "Press 1"), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(job, "job-delivery-method", 4), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(job, "job-eject-to-front-face", 0), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(job, "job-snapshot-name", "snap"), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(job, "job-collate", 2), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(job, "job-page-order", 1), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(job, "job-output-bin-name-unused-tabs", "Tabs"), ZUNDO_OK);
    setRanges(job, "job-process-pages", {{0, 3}, {7, 7}});
    zundo_int_object_s *first = pageRange(0, 3);
    ASSERT_EQ(setIntegerAttribute(first, "page-range-sides", 3), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(first, "page-range-interface-box-function", 5), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(first, "page-range-cover-type", 2), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(first, "page-range-output-bin-name", "Tray A"), ZUNDO_OK);
    zundo_int_object_s *ranges[] = {first, pageRange(4, 9), nullptr};
    ASSERT_EQ(setObjectsAttribute(job, "job-page-ranges", ranges), ZUNDO_OK);
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);

    xercesc::DOMElement *lpp = written.resource("LPP0");
    ASSERT_NE(lpp, nullptr);
    EXPECT_EQ(attribute(lpp, "NumberUp"), "2 1");
    EXPECT_EQ(attribute(lpp, "StepRepeat"), "2 1 1");
    EXPECT_EQ(attribute(lpp, "SurfaceContentsBox"), "10.5 0 0 0");
    EXPECT_EQ(attribute(lpp, "Sides"), "TwoSidedFlipX");
    EXPECT_EQ(attribute(lpp, "Rotate"), "Rotate90");
    EXPECT_EQ(attribute(lpp, "PageOrder"), "Booklet");
    EXPECT_EQ(attribute(lpp, "PartIDKeys"), "RunIndex");
    xercesc::DOMElement *lppRun = partition(lpp, "RunIndex", "0 ~ 3");
    ASSERT_NE(lppRun, nullptr);
    EXPECT_EQ(attribute(lppRun, "Sides"), "OneSidedFront");
    EXPECT_EQ(attribute(lppRun, "morvellan:Cover"), "Front");
    EXPECT_EQ(partition(lpp, "RunIndex", "4 ~ 9"), nullptr);

    xercesc::DOMElement *dpp = written.resource("DPP0");
    ASSERT_NE(dpp, nullptr);
    EXPECT_EQ(attribute(dpp, "morvellan:DeliveryMethod"), "PrintNow");
    EXPECT_EQ(attribute(dpp, "morvellan:EjectToFrontFace"), "false");
    EXPECT_EQ(attribute(dpp, "Collate"), "Sheet");
    EXPECT_EQ(attribute(dpp, "morvellan:InterfaceBoxFunction"), "None");
    ASSERT_NE(partition(dpp, "RunIndex", "0 ~ 3"), nullptr);
    EXPECT_EQ(attribute(partition(dpp, "RunIndex", "0 ~ 3"), "morvellan:InterfaceBoxFunction"),
              "5");
    EXPECT_EQ(attribute(written.resource("D0"), "DeviceID"), "Press 1");
    EXPECT_EQ(attribute(written.root(), "morvellan:SnapshotName"), "snap");

    // The unused tabs take their own condition, so page-range bins go to
    // the Good one.
    xercesc::DOMElement *component = outputComponent(written);
    ASSERT_NE(component, nullptr);
    EXPECT_EQ(attribute(component, "PartIDKeys"), "Condition RunIndex");
    EXPECT_EQ(locationName(partition(component, "Condition", "morvellan:UnusedTabs")), "Tabs");
    xercesc::DOMElement *good = partition(component, "Condition", "Good");
    ASSERT_NE(good, nullptr);
    EXPECT_EQ(locationName(partition(good, "RunIndex", "0 ~ 3")), "Tray A");

    std::vector<xercesc::DOMElement *> parts =
        childElements(childWith(written.pool("ResourceLinkPool"), "RunListLink", "Usage", "Input"),
                      "Part");
    ASSERT_EQ(parts.size(), 1u);
    EXPECT_EQ(attribute(parts[0], "RunIndex"), "0 ~ 3 7");
}

TEST(WriteCascade, DocumentLevelGoesToDocIndexPartitions) {
    TestTicket ticket;
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-level-pages", 0), ZUNDO_OK);
    setRanges(ticket.job, "job-process-pages", {{0, 3}});
    zundo_int_object_s *second = nullptr;
    ASSERT_EQ(newDocument(&second, "b.pdf"), ZUNDO_OK);
    ASSERT_EQ(addDocument(ticket.job, second), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(second, "document-sides", 1), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(second, "document-output-bin-name", "Top"), ZUNDO_OK);
    zundo_int_object_s *range = pageRange(4, 7);
    ASSERT_EQ(setIntegerAttribute(range, "page-range-page-rotation", 3), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(range, "page-range-interface-box-function", 5), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(range, "page-range-output-bin-name", "Side"), ZUNDO_OK);
    zundo_int_object_s *ranges[] = {range, nullptr};
    ASSERT_EQ(setObjectsAttribute(second, "document-page-ranges", ranges), ZUNDO_OK);
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);

    xercesc::DOMElement *lpp = written.resource("LPP0");
    ASSERT_NE(lpp, nullptr);
    EXPECT_EQ(attribute(lpp, "PartIDKeys"), "DocIndex DocRunIndex");
    EXPECT_EQ(partition(lpp, "DocIndex", "0"), nullptr);
    xercesc::DOMElement *document = partition(lpp, "DocIndex", "1");
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(attribute(document, "Sides"), "OneSidedBackFlipX");
    ASSERT_NE(partition(document, "DocRunIndex", "4 ~ 7"), nullptr);
    EXPECT_EQ(attribute(partition(document, "DocRunIndex", "4 ~ 7"), "Rotate"), "Rotate180");

    // The cover and interface-box values belong to job-level page ranges.
    EXPECT_FALSE(written.resource("DPP0")->hasAttribute(u"morvellan:InterfaceBoxFunction"));
    EXPECT_TRUE(childElements(written.resource("DPP0"), "DigitalPrintingParams").empty());

    // Output bins are keyed by the run range alone.
    xercesc::DOMElement *component = outputComponent(written);
    ASSERT_NE(component, nullptr);
    EXPECT_EQ(attribute(component, "PartIDKeys"), "RunIndex");
    EXPECT_EQ(locationName(component), "Top");
    EXPECT_EQ(locationName(partition(component, "RunIndex", "4 ~ 7")), "Side");

    EXPECT_TRUE(childElements(childWith(written.pool("ResourceLinkPool"), "RunListLink", "Usage",
                                        "Input"),
                              "Part")
                    .empty());
}

TEST(WriteCascade, PageListCarriesPaginationsAndColourStandard) {
    TestTicket ticket;
    zundo_int_object_s *pagination = nullptr;
    ASSERT_EQ(newPagination(&pagination), ZUNDO_OK);
    setRanges(pagination, "pagination-pages-to-paginate", {{0, 9}});
    ASSERT_EQ(setStringAttribute(pagination, "pagination-start", "iv"), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(pagination, "pagination-print", 1), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(pagination, "pagination-prefix", "A-"), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(ticket.job, "job-paginations", pagination), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-color-standard", 2), ZUNDO_OK);
    WrittenTicket written(ticket.ticket);

    std::vector<xercesc::DOMElement *> pageLists =
        childElements(written.resource("RL0"), "PageList");
    ASSERT_EQ(pageLists.size(), 1u);
    std::vector<xercesc::DOMElement *> pageData = childElements(pageLists[0], "PageData");
    ASSERT_EQ(pageData.size(), 1u);
    EXPECT_EQ(attribute(pageData[0], "PageIndex"), "0 ~ 9");
    EXPECT_FALSE(pageData[0]->hasAttribute(u"morvellan:Pages"));
    EXPECT_EQ(attribute(pageData[0], "morvellan:PageStart"), "iv");
    EXPECT_EQ(attribute(pageData[0], "morvellan:PrintPages"), "true");
    EXPECT_EQ(attribute(pageData[0], "PageLabelPrefix"), "A-");
    std::vector<xercesc::DOMElement *> colorPools = childElements(pageLists[0], "ColorPool");
    ASSERT_EQ(colorPools.size(), 1u);
    EXPECT_EQ(attribute(colorPools[0], "ColorantSetName"), "Euroscale");
}

std::vector<xercesc::DOMElement *> listed(ElementEntry **list) {
    std::vector<xercesc::DOMElement *> elements;
    for (ElementEntry **entry = list; entry != nullptr && *entry != nullptr; ++entry)
        elements.push_back((*entry)->element);
    freeElementList(list);
    return elements;
}

TEST(WriteCascadeInternals, LPPElementsGoToEveryCellRunPartition) {
    TestTicket ticket;
    WriterHarness harness(ticket);
    JDFWriteContext *ctx = &harness.ctx;
    xercesc::DOMElement *lpp = getLayoutPreparationParams(ctx);
    xercesc::DOMElement *cells[2] = {appendChildTraced(lpp, "LayoutPreparationParams"),
                                     appendChildTraced(lpp, "LayoutPreparationParams")};
    setAttributeTraced(cells[0], "CellIndex", "0");
    setAttributeTraced(cells[1], "CellIndex", "1");
    xercesc::DOMElement *existing = appendChildTraced(cells[1], "LayoutPreparationParams");
    setAttributeTraced(existing, "RunIndex", "2 ~ 3");
    ctx->lppCellPartitions = true;

    ElementEntry **list = nullptr;
    ASSERT_EQ(addLPPRunIndexElement(ctx, "PageCell", "2 ~ 3", 1, &list), ZUNDO_OK);
    std::vector<xercesc::DOMElement *> made = listed(list);
    ASSERT_EQ(made.size(), 2u);
    xercesc::DOMElement *newRun = partition(cells[0], "RunIndex", "2 ~ 3");
    ASSERT_NE(newRun, nullptr);
    EXPECT_EQ(made[0]->getParentNode(), newRun);
    EXPECT_EQ(made[1]->getParentNode(), existing);
    EXPECT_EQ(childElements(cells[1], "LayoutPreparationParams").size(), 1u);

    // Outside the cell level: the resource's own RunIndex partition, or
    // the resource itself.
    ASSERT_EQ(addLPPRunIndexElement(ctx, "PageCell", "5", 0, &list), ZUNDO_OK);
    made = listed(list);
    ASSERT_EQ(made.size(), 1u);
    EXPECT_EQ(made[0]->getParentNode(), partition(lpp, "RunIndex", "5"));
    ASSERT_EQ(addLPPRunIndexElement(ctx, "PageCell", nullptr, 1, &list), ZUNDO_OK);
    made = listed(list);
    ASSERT_EQ(made.size(), 1u);
    EXPECT_EQ(made[0]->getParentNode(), lpp);
}

}  // namespace
