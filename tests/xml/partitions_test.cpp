// Reading partitioned resources level by level, and finding or creating
// partitions when writing.
#include "xml/partitions.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "jdf_test_support.h"

XERCES_CPP_NAMESPACE_USE

namespace {

using Texts = std::vector<std::string>;

Texts attrsOf(zundo_result_t (*lookup)(const DOMElement *, AttributeEntry ***),
              const DOMElement *resource) {
    AttributeEntry **list = nullptr;
    zundo_result_t result = lookup(resource, &list);
    EXPECT_EQ(ZUNDO_OK, result.status);
    Texts texts = flatten(list);
    freeAttrList(list);
    return texts;
}

Texts elementsOf(zundo_result_t (*lookup)(const DOMElement *, ElementEntry ***),
                 const DOMElement *resource) {
    ElementEntry **list = nullptr;
    zundo_result_t result = lookup(resource, &list);
    EXPECT_EQ(ZUNDO_OK, result.status);
    Texts texts = flatten(list);
    freeElementList(list);
    return texts;
}

TEST(Partitions, DocumentLevelsWithAndWithoutPartIdKeys) {
    ParsedTicket media(
        "<Media ID=\"M0\" PartIDKeys=\"DocIndex\" MediaType=\"Paper\">"
        "<Media DocIndex=\"0\" MediaType=\"Transparency\"><MediaRef rRef=\"x\"/></Media>"
        "<Other DocIndex=\"1\" MediaType=\"Paper\"/>"
        "<Media MediaType=\"Unkeyed\"/></Media>");
    EXPECT_EQ((Texts{"MediaType=Transparency [0|-]", "MediaType=Paper [1|-]"}),
              attrsOf(getDocIndexLvlAttrs, media.root()));
    EXPECT_EQ((Texts{"MediaRef [0|-]"}), elementsOf(getDocIndexLvlElements, media.root()));

    ParsedTicket unkeyed("<Media ID=\"M0\"><Media DocIndex=\"0\" MediaType=\"Paper\"/></Media>");
    EXPECT_TRUE(attrsOf(getDocIndexLvlAttrs, unkeyed.root()).empty());
    EXPECT_TRUE(elementsOf(getDocIndexLvlElements, unkeyed.root()).empty());
    // The second level does not look at PartIDKeys.
    ParsedTicket nested(
        "<DigitalPrintingParams>"
        "<DigitalPrintingParams DocIndex=\"0\" Sides=\"OneSided\">"
        "<DigitalPrintingParams DocRunIndex=\"0~3\" "
        "Sides=\"TwoSided\"><MediaRef/></DigitalPrintingParams>"
        "<Other DocRunIndex=\"4\" Sides=\"Skipped\"/></DigitalPrintingParams>"
        "<DigitalPrintingParams DocRunIndex=\"5\" Collate=\"true\"/></DigitalPrintingParams>");
    EXPECT_EQ((Texts{"Sides=TwoSided [0|0~3]", "Collate=true [-|5]"}),
              attrsOf(getDocRunIndexLvlAttrs, nested.root()));
    EXPECT_EQ((Texts{"MediaRef [0|0~3]"}), elementsOf(getDocRunIndexLvlElements, nested.root()));
}

TEST(Partitions, RunLevelsOfARunList) {
    ParsedTicket runList(
        "<RunList ID=\"RL0\" PartIDKeys=\"Run RunIndex\" NPage=\"8\">"
        "<RunList Run=\"r1\" EndOfDocument=\"true\" Pages=\"0 ~ 3\">"
        "<LayoutElementRef rRef=\"LE0\"/>"
        "<RunList RunIndex=\"0 2 5~7\" Pages=\"0~3\"><InsertSheet/></RunList>"
        "<RunList RunIndex=\"8\" NPage=\"1\" Pages=\"8\"/></RunList>"
        "<RunList RunIndex=\"9\" Pages=\"9\"/>"
        "<RunList Run=\"r2\" Pages=\"4~7\"/></RunList>");
    EXPECT_EQ((Texts{"EndOfDocument=true [r1|-]", "Pages=0 ~ 3 [r1|-]", "Pages=4~7 [r2|-]"}),
              attrsOf(getRunLvlAttrs, runList.root()));
    EXPECT_EQ((Texts{"LayoutElementRef [r1|-]", "RunList [r1|-]", "RunList [r1|-]"}),
              elementsOf(getRunLvlElements, runList.root()));
    EXPECT_EQ(
        (Texts{"Pages=0~3 [r1|0 2 5~7]", "NPage=1 [r1|8]", "Pages=8 [r1|8]", "Pages=9 [-|9]"}),
        attrsOf(getRunIndexLvlAttrs, runList.root()));
    EXPECT_EQ((Texts{"InsertSheet [r1|0 2 5~7]"}),
              elementsOf(getRunIndexLvlElements, runList.root()));
}

TEST(Partitions, LookupsReportBadArguments) {
    AttributeEntry **attrs = reinterpret_cast<AttributeEntry **>(&attrs);
    EXPECT_EQ(ZUNDO_NULL_ARGUMENT, get1stLvlAttrs(nullptr, &attrs, "Run").status);
    EXPECT_EQ(nullptr, attrs);
    ElementEntry **elements = reinterpret_cast<ElementEntry **>(&elements);
    EXPECT_EQ(ZUNDO_NULL_ARGUMENT, get2ndLvlElements(nullptr, &elements, "Run", "RunIndex").status);
    EXPECT_EQ(nullptr, elements);
    ParsedTicket empty("<RunList/>");
    EXPECT_EQ(ZUNDO_NULL_ARGUMENT, get2ndLvlAttrs(empty.root(), nullptr, "Run", "RunIndex").status);
    EXPECT_TRUE(attrsOf(getRunIndexLvlAttrs, empty.root()).empty());
}

TEST(Partitions, LongPartitionListsKeepDocumentOrder) {
    std::string text = "<RunList PartIDKeys=\"Run RunIndex\"><RunList Run=\"0\">";
    const int ranges = 10000;
    for (int i = 0; i < ranges; ++i)
        text +=
            "<RunList RunIndex=\"" + std::to_string(i) + "\" Pages=\"" + std::to_string(i) + "\"/>";
    text += "</RunList></RunList>";
    ParsedTicket ticket(text);
    AttributeEntry **list = nullptr;
    ASSERT_EQ(ZUNDO_OK, getRunIndexLvlAttrs(ticket.root(), &list).status);
    int count = 0;
    for (AttributeEntry **at = list; *at != nullptr; ++at, ++count)
        ASSERT_EQ(std::to_string(count), (*at)->secondKey);
    EXPECT_EQ(ranges, count);
    freeAttrList(list);
}

// A resource inside a document being written.
struct WrittenResource {
    explicit WrittenResource(const char16_t *name) {
        resource = doc.document()->createElement(name);
        doc.document()->appendChild(resource);
    }
    NewDocument doc;
    DOMElement *resource;
};

TEST(Partitions, FindOrCreateReusesPartitions) {
    WrittenResource w(u"Media");
    DOMElement *first = findOrCreatePartition(w.resource, "0", "DocIndex");
    ASSERT_NE(nullptr, first);
    EXPECT_EQ(w.resource, first->getParentNode());
    EXPECT_EQ("DocIndex", attribute(w.resource, "PartIDKeys"));
    EXPECT_EQ(first, findOrCreatePartition(w.resource, "0", "DocIndex"));
    EXPECT_NE(first, findOrCreatePartition(w.resource, "1", "DocIndex"));

    DOMElement *sub = findOrCreateSubPartition(w.resource, "DocIndex", "0", "DocRunIndex", "2 ~ 3",
                                               "DocIndex DocRunIndex");
    ASSERT_NE(nullptr, sub);
    EXPECT_EQ(first, sub->getParentNode());
    EXPECT_EQ("DocIndex DocRunIndex", attribute(w.resource, "PartIDKeys"));
    EXPECT_EQ(sub, findOrCreateSubPartition(w.resource, "DocIndex", "0", "DocRunIndex", "2 ~ 3",
                                            "DocIndex DocRunIndex"));
    // Searching from the resource itself finds second-level partitions at
    // any depth.
    EXPECT_EQ(sub, findOrCreateSubPartition(w.resource, "DocIndex", nullptr, "DocRunIndex", "2 ~ 3",
                                            "DocIndex DocRunIndex"));
    EXPECT_EQ("DocIndex DocRunIndex", attribute(w.resource, "PartIDKeys"));
    EXPECT_EQ(nullptr, findOrCreatePartition(nullptr, "0", "DocIndex"));
    EXPECT_EQ(nullptr, findOrCreatePartition(w.resource, nullptr, "DocIndex"));
}

// Lookups are indexed; the index must keep giving what a walk in document
// order gives, also when a partition made later precedes the one found
// before, or when one found before has been taken out.
TEST(Partitions, FindOrCreateGivesTheFirstInDocumentOrder) {
    WrittenResource w(u"Media");
    DOMElement *doc0 = findOrCreatePartition(w.resource, "0", "DocIndex");
    ASSERT_NE(nullptr, doc0);
    DOMElement *late = findOrCreateSubPartition(w.resource, "DocIndex", "1", "RunIndex", "7",
                                                "DocIndex RunIndex");
    ASSERT_NE(nullptr, late);
    EXPECT_EQ(late, findOrCreatePartition(w.resource, "7", "RunIndex"));
    DOMElement *early = findOrCreateSubPartition(w.resource, "DocIndex", "0", "RunIndex", "7",
                                                 "DocIndex RunIndex");
    ASSERT_NE(late, early);
    EXPECT_EQ(doc0, early->getParentNode());
    EXPECT_EQ(early, findOrCreatePartition(w.resource, "7", "RunIndex"));
    doc0->removeChild(early)->release();
    EXPECT_EQ(late, findOrCreatePartition(w.resource, "7", "RunIndex"));
}

TEST(Partitions, WritingAttributesAndElementsIntoPartitions) {
    WrittenResource dpp(u"DigitalPrintingParams");
    AttributeEntry sides = {"Sides", "TwoSided", nullptr, "0 ~ 3"};
    ASSERT_EQ(ZUNDO_OK, setRunIndexPartitionAttr(dpp.resource, &sides).status);
    EXPECT_EQ("RunIndex", attribute(dpp.resource, "PartIDKeys"));
    AttributeEntry docSides = {"Sides", "OneSided", "1", "4"};
    ASSERT_EQ(ZUNDO_OK, setDocRunIndexPartitionAttr(dpp.resource, &docSides).status);
    EXPECT_EQ("DocIndex DocRunIndex", attribute(dpp.resource, "PartIDKeys"));
    AttributeEntry docOnly = {"Collate", "true", "1", nullptr};
    ASSERT_EQ(ZUNDO_OK, setDocIndexPartitionAttr(dpp.resource, &docOnly).status);
    AttributeEntry noDoc = {"Sides", "OneSided", nullptr, "4"};
    EXPECT_EQ(ZUNDO_MISSING_FIELD, setDocRunIndexPartitionAttr(dpp.resource, &noDoc).status);
    EXPECT_EQ(ZUNDO_MISSING_FIELD, setDocIndexPartitionAttr(dpp.resource, &noDoc).status);
    EXPECT_EQ(ZUNDO_NULL_ARGUMENT, setRunPartitionAttr(nullptr, &docOnly).status);

    ElementEntry mediaRef = {nullptr, "MediaRef", "1", "4"};
    ASSERT_EQ(ZUNDO_OK, createDocRunIndexPartitionElement(dpp.resource, &mediaRef).status);
    ElementEntry orphan = {nullptr, "MediaRef", nullptr, "4"};
    EXPECT_EQ(ZUNDO_NULL_ARGUMENT, createDocRunIndexPartitionElement(dpp.resource, &orphan).status);
    EXPECT_EQ(ZUNDO_MISSING_FIELD, createRunPartitionElement(dpp.resource, &orphan).status);

    // What was written reads back through the lookups.
    dpp.resource->setAttribute(u"PartIDKeys", u"DocIndex DocRunIndex");
    EXPECT_EQ((Texts{"Sides=OneSided [1|4]"}), attrsOf(getDocRunIndexLvlAttrs, dpp.resource));
    EXPECT_EQ((Texts{"Sides=TwoSided [-|0 ~ 3]"}), attrsOf(getRunIndexLvlAttrs, dpp.resource));
    EXPECT_EQ((Texts{"Collate=true [1|-]"}), attrsOf(getDocIndexLvlAttrs, dpp.resource));
    EXPECT_EQ((Texts{"MediaRef [1|4]"}), elementsOf(getDocRunIndexLvlElements, dpp.resource));
    EXPECT_EQ(dpp.resource, mediaRef.element->getParentNode()->getParentNode()->getParentNode());
}

TEST(Partitions, ConditionPartitionsForOutputBins) {
    WrittenResource component(u"Component");
    ElementEntry unused = {nullptr, "Location", "morvellan:UnusedTabs", nullptr};
    ASSERT_EQ(ZUNDO_OK, createConditionPartitionElement(component.resource, &unused).status);
    EXPECT_EQ("Condition", attribute(component.resource, "PartIDKeys"));
    ElementEntry good = {nullptr, "Location", "Good", "0 ~ 1"};
    ASSERT_EQ(ZUNDO_OK, createConditionPartitionElement(component.resource, &good).status);
    EXPECT_EQ("Condition RunIndex", attribute(component.resource, "PartIDKeys"));
    DOMElement *runPartition = static_cast<DOMElement *>(good.element->getParentNode());
    EXPECT_EQ("0 ~ 1", attribute(runPartition, "RunIndex"));
    EXPECT_EQ("Good",
              attribute(static_cast<DOMElement *>(runPartition->getParentNode()), "Condition"));
    ElementEntry noCondition = {nullptr, "Location", nullptr, "0"};
    EXPECT_EQ(ZUNDO_NULL_ARGUMENT,
              createConditionPartitionElement(component.resource, &noCondition).status);

    char *text = serializeDOMDocument(component.doc.document());
    ASSERT_NE(nullptr, text);
    ParsedTicket back(text);
    releaseXMLString(text);
    ElementEntry **elements = nullptr;
    ASSERT_EQ(ZUNDO_OK, get1stLvlElements(back.root(), &elements, "Condition").status);
    EXPECT_EQ((Texts{"Location [morvellan:UnusedTabs|-]", "Component [Good|-]"}),
              flatten(elements));
    freeElementList(elements);
}

}  // namespace
