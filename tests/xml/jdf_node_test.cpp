// Finding and creating the JDF node, and the entry lookups on its elements.
#include "xml/jdf_node.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "jdf_test_support.h"

XERCES_CPP_NAMESPACE_USE

namespace {

using Texts = std::vector<std::string>;

TEST(JdfNode, ChoosesFirstCombinedDigitalPrintingNodeElseRoot) {
    ParsedTicket nested(
        "<JDF ID=\"outer\" Type=\"Product\" xmlns=\"http://www.CIP4.org/JDFSchema_1_1\">"
        "<JDF ID=\"plain\" Type=\"Combined\" Types=\"Imposition\"/>"
        "<Wrapper><JDF ID=\"dp\" Type=\"Combined\" Status=\"Waiting\" "
        "Types=\"LayoutPreparation Imposition DigitalPrinting\" Version=\"1.3\" JobID=\"J7\" "
        "xmlns:osdp=\"urn:o\"/></Wrapper>"
        "<JDF ID=\"later\" Type=\"Combined\" Types=\"DigitalPrinting\"/></JDF>");
    ASSERT_EQ(ZUNDO_OK, nested.result.status);
    JDFNodeInfo info;
    ASSERT_EQ(ZUNDO_OK, getJDFNode(nested.info.document, &info).status);
    EXPECT_STREQ("dp", info.id);
    EXPECT_STREQ("LayoutPreparation Imposition DigitalPrinting", info.types);
    EXPECT_STREQ("Waiting", info.status);
    EXPECT_STREQ("", info.activation);
    EXPECT_STREQ("", info.xmlns);
    EXPECT_STREQ("urn:o", info.xmlnsOsdp);
    EXPECT_STREQ("1.3", info.version);
    EXPECT_STREQ("J7", info.jobId);
    EXPECT_EQ(2, getProcessPosition(info.element, "DigitalPrinting"));
    EXPECT_EQ(-1, getProcessPosition(info.element, "Folding"));
    EXPECT_EQ(-1, getProcessPosition(nested.root(), "Product"));
    freeJDFNodeInfo(&info);
    EXPECT_EQ(nullptr, info.element);
    EXPECT_EQ(nullptr, info.id);

    ParsedTicket root(
        "<JDF ID=\"r\" Type=\"Product\" xmlns=\"http://www.CIP4.org/JDFSchema_1_1\"/>");
    ASSERT_EQ(ZUNDO_OK, getJDFNode(root.info.document, &info).status);
    EXPECT_EQ(root.root(), info.element);
    EXPECT_STREQ("http://www.CIP4.org/JDFSchema_1_1", info.xmlns);
    freeJDFNodeInfo(&info);
}

TEST(JdfNode, RejectsRootsThatAreNotJdf) {
    TraceCapture trace;
    // A prefixed JDF is a different name, and so is a JDF nested in
    // something else that does not qualify.
    for (const char *text : {"<jdf:JDF xmlns:jdf=\"urn:j\" Type=\"Combined\"/>",
                             "<Envelope><JDF Type=\"Product\"/></Envelope>"}) {
        ParsedTicket ticket(text);
        JDFNodeInfo info;
        EXPECT_EQ(ZUNDO_WRONG_ELEMENT, getJDFNode(ticket.info.document, &info).status) << text;
        EXPECT_EQ(nullptr, info.element);
        freeJDFNodeInfo(&info);
    }
    EXPECT_TRUE(trace.saw("DOM document's element is not the JDF node element.\n"));
    ParsedTicket wrapped("<Envelope><JDF Type=\"Combined\" Types=\"DigitalPrinting\"/></Envelope>");
    JDFNodeInfo info;
    EXPECT_EQ(ZUNDO_OK, getJDFNode(wrapped.info.document, &info).status);
    EXPECT_EQ("JDF", tagName(info.element));
    freeJDFNodeInfo(&info);
    EXPECT_EQ(ZUNDO_NULL_ARGUMENT, getJDFNode(wrapped.info.document, nullptr).status);
}

TEST(JdfNode, FindsNodeBelowDeepNesting) {
    std::string open, close;
    for (int i = 0; i < 5000; ++i) open += "<L>", close += "</L>";
    ParsedTicket ticket("<Root>" + open +
                        "<JDF ID=\"deep\" Type=\"Combined\" "
                        "Types=\"DigitalPrinting\"/>" +
                        close + "</Root>");
    ASSERT_EQ(ZUNDO_OK, ticket.result.status);
    JDFNodeInfo info;
    ASSERT_EQ(ZUNDO_OK, getJDFNode(ticket.info.document, &info).status);
    EXPECT_STREQ("deep", info.id);
    freeJDFNodeInfo(&info);
}

TEST(JdfNode, ChildrenAndEmptyNode) {
    ParsedTicket ticket(
        "<JDF><!-- note --><ResourcePool/>text<AuditPool/><ResourceLinkPool/></JDF>");
    ElementEntry **children = nullptr;
    ASSERT_EQ(ZUNDO_OK, getJDFNodeChildren(ticket.root(), &children).status);
    EXPECT_EQ((Texts{"ResourcePool [-|-]", "AuditPool [-|-]", "ResourceLinkPool [-|-]"}),
              flatten(children));
    EXPECT_EQ(ticket.root(), getParentElement(children[0]->element));
    freeElementList(children);

    TraceCapture trace;
    ParsedTicket empty("<JDF Type=\"Combined\">only text</JDF>");
    EXPECT_EQ(ZUNDO_NO_CHILDREN, getJDFNodeChildren(empty.root(), &children).status);
    EXPECT_EQ(nullptr, children);
    EXPECT_EQ((Texts{">> entering getJDFNodeChildren\n", "The JDF node has no children nodes. \n",
                     "<< leaving getJDFNodeChildren\n"}),
              TraceCapture::lines());
}

TEST(JdfEntries, AttributeLookups) {
    ParsedTicket ticket(
        "<JDF ID=\"n1\" morvellan:Note=\"caf\xC3\xA9\" Type=\"Combined\"><Bare/></JDF>");
    AttributeEntry **attrs = nullptr;
    ASSERT_EQ(ZUNDO_OK, getAttrs(ticket.root(), &attrs).status);
    Texts flat = flatten(attrs);
    std::sort(flat.begin(), flat.end());
    EXPECT_EQ((Texts{"ID=n1 [-|-]", "Type=Combined [-|-]", "morvellan:Note=caf\xC3\xA9 [-|-]"}),
              flat);
    freeAttrList(attrs);

    ASSERT_EQ(ZUNDO_OK, getAttrs(ticket.root()->getFirstElementChild(), &attrs).status);
    ASSERT_NE(nullptr, attrs);
    EXPECT_EQ(nullptr, attrs[0]);
    freeAttrList(attrs);

    AttributeEntry *entry = nullptr;
    ASSERT_EQ(ZUNDO_OK, getAttrByName(ticket.root(), "morvellan:Note", &entry).status);
    ASSERT_NE(nullptr, entry);
    EXPECT_STREQ("caf\xC3\xA9", entry->value);
    EXPECT_EQ(nullptr, entry->firstKey);
    freeAttrEntry(entry);
    EXPECT_EQ(ZUNDO_OK, getAttrByName(ticket.root(), "Note", &entry).status);
    EXPECT_EQ(nullptr, entry);
    entry = reinterpret_cast<AttributeEntry *>(&attrs);
    EXPECT_EQ(ZUNDO_NULL_ARGUMENT, getAttrByName(nullptr, "ID", &entry).status);
    EXPECT_EQ(nullptr, entry);
    EXPECT_EQ(ZUNDO_NULL_ARGUMENT, getAttrs(nullptr, &attrs).status);
    EXPECT_EQ(nullptr, attrs);
    freeAttrList(nullptr);
    freeElementList(nullptr);
}

TEST(JdfEntries, ElementTextIsLastNonEmptyTextChild) {
    ParsedTicket ticket(
        "<JDF><Comment>first<b>inner</b>last<![CDATA[cdata]]></Comment><Empty/></JDF>");
    char *text = nullptr;
    ASSERT_EQ(ZUNDO_OK, getElementText(ticket.root()->getFirstElementChild(), &text).status);
    EXPECT_STREQ("last", text);
    delete[] text;
    ASSERT_EQ(ZUNDO_OK, getElementText(ticket.root()->getLastElementChild(), &text).status);
    EXPECT_STREQ("", text);
    delete[] text;
    char *name = getElementName(ticket.root()->getFirstElementChild());
    EXPECT_STREQ("Comment", name);
    delete[] name;
}

TEST(JdfNode, CreatesNodeWithFixedVersionAndChildren) {
    NewDocument doc;
    ASSERT_EQ(ZUNDO_OK, doc.result.status);
    JDFNodeInfo info = writtenNodeInfo();
    info.xmlnsOsdp = "ignored";
    info.version = "1.3";
    JDFNodeInfo missing = info;
    missing.activation = nullptr;
    EXPECT_EQ(ZUNDO_MISSING_FIELD, createJDFNode(doc.document(), &missing).status);
    EXPECT_EQ(ZUNDO_NULL_ARGUMENT, createJDFNode(doc.document(), nullptr).status);
    ASSERT_EQ(ZUNDO_OK, createJDFNode(doc.document(), &info).status);
    EXPECT_EQ(doc.document()->getDocumentElement(), info.element);
    EXPECT_EQ("1.4", attribute(info.element, "Version"));
    EXPECT_FALSE(info.element->hasAttribute(u"JobID"));
    EXPECT_FALSE(info.element->hasAttribute(u"xmlns:osdp"));

    ElementEntry pool = {nullptr, "ResourcePool", nullptr, nullptr};
    ASSERT_EQ(ZUNDO_OK, addJDFNodeChild(info.element, &pool).status);
    EXPECT_EQ(info.element, pool.element->getParentNode());
    TraceCapture trace;
    ElementEntry nested = {nullptr, "Media", nullptr, nullptr};
    EXPECT_EQ(ZUNDO_WRONG_ELEMENT, addJDFNodeChild(pool.element, &nested).status);
    EXPECT_EQ(nullptr, nested.element);
    EXPECT_TRUE(trace.saw("jdfNodeElement that was passed in is not the JDF node element. \n"));
    ElementEntry unnamed = {nullptr, nullptr, nullptr, nullptr};
    EXPECT_EQ(ZUNDO_MISSING_FIELD, addJDFNodeChild(info.element, &unnamed).status);
    ElementEntry badName = {nullptr, "1bad name", nullptr, nullptr};
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, addJDFNodeChild(info.element, &badName).status);
}

}  // namespace
