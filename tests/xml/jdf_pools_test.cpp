// Resources and links in pool order, references between them, element
// editing with a serialised round trip, and the shared conversions.
#include "xml/jdf_pools.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "jdf_test_support.h"
#include "xml/jdf_lists.h"
#include "xml/jdf_node.h"

XERCES_CPP_NAMESPACE_USE

namespace {

using Texts = std::vector<std::string>;

// "Name#ID" for resources, "Name:Usage>rRef" for links.
Texts childNames(const DOMElement *parent) {
    Texts names;
    for (const DOMElement *c = parent->getFirstElementChild(); c != nullptr;
         c = c->getNextElementSibling())
        names.push_back(tagName(c) + (c->hasAttribute(u"ID") ? "#" + attribute(c, "ID") : "") +
                        (c->hasAttribute(u"Usage") ? ":" + attribute(c, "Usage") : "") +
                        (c->hasAttribute(u"rRef") ? ">" + attribute(c, "rRef") : ""));
    return names;
}

ResourceInfo resource(const char *name, const char *id, const char *index = nullptr) {
    return ResourceInfo{nullptr, nullptr, name, id, "Parameter", "Available", "Input", index};
}

// A JDF node with its two pools in a new document.
struct Pools {
    Pools() {
        JDFNodeInfo info = writtenNodeInfo();
        createJDFNode(doc.document(), &info);
        ElementEntry entry = {nullptr, "ResourcePool", nullptr, nullptr};
        addJDFNodeChild(info.element, &entry);
        resources = entry.element;
        entry.name = "ResourceLinkPool";
        addJDFNodeChild(info.element, &entry);
        links = entry.element;
    }
    zundo_status_t add(const char *name, const char *id) {
        ResourceInfo info = resource(name, id);
        return addResourceToPools(resources, links, &info).status;
    }
    NewDocument doc;
    DOMElement *resources = nullptr;
    DOMElement *links = nullptr;
};

TEST(JdfPools, ResourcesAndLinksGoInPoolOrder) {
    Pools pools;
    for (const char *name : {"RunList", "Media", "morvellan:Unknown", "LayoutElement", "Media",
                             "Layout", "LayoutPreparationParams", "FileSpec"})
        ASSERT_EQ(ZUNDO_OK,
                  pools.add(name, std::to_string(pools.resources->getChildElementCount()).c_str()));
    EXPECT_EQ((Texts{"FileSpec#7", "LayoutElement#3", "RunList#0", "LayoutPreparationParams#6",
                     "Media#1", "Media#4", "Layout#5", "morvellan:Unknown#2"}),
              childNames(pools.resources));
    EXPECT_EQ((Texts{"FileSpecLink:Input>7", "LayoutElementLink:Input>3", "RunListLink:Input>0",
                     "LayoutPreparationParamsLink:Input>6", "MediaLink:Input>1",
                     "MediaLink:Input>4", "LayoutLink:Input>5", "morvellan:UnknownLink:Input>2"}),
              childNames(pools.links));
    EXPECT_EQ("Parameter", attribute(pools.resources->getFirstElementChild(), "Class"));
    EXPECT_EQ("Available", attribute(pools.resources->getFirstElementChild(), "Status"));
}

// Link lookups are indexed once a pool has been searched: links added
// afterwards, even in front of the ones found before, must be found too.
TEST(JdfPools, LinksAddedAfterASearchAreFound) {
    Pools pools;
    ResourceInfo media = resource("Media", "M");
    ASSERT_EQ(ZUNDO_OK, addResourceToPools(pools.resources, pools.links, &media).status);
    EXPECT_EQ(media.link, getElementLinkFromElement(media.resource, "Input"));
    ResourceInfo layout = resource("LayoutElement", "M");
    ASSERT_EQ(ZUNDO_OK, addResourceToPools(pools.resources, pools.links, &layout).status);
    ResourceInfo output = resource("Media", "M", "2");
    ASSERT_EQ(ZUNDO_OK,
              addResourceToPoolsWithOutput(pools.resources, pools.links, &output).status);
    EXPECT_EQ(layout.link, getElementLinkFromElement(layout.resource, "Input"));
    EXPECT_EQ(media.link, getElementLinkFromElement(media.resource, "Input"));
    EXPECT_EQ(output.link->getNextElementSibling(),
              getElementLinkFromElement(media.resource, "Output"));
}

TEST(JdfPools, OutputLinkTakesThePreviousProcessIndex) {
    Pools pools;
    for (const char *index : std::vector<const char *>{"3", nullptr, "x"}) {
        ResourceInfo info = resource("Component", "C", index);
        ASSERT_EQ(ZUNDO_OK,
                  addResourceToPoolsWithOutput(pools.resources, pools.links, &info).status);
    }
    EXPECT_EQ((Texts{"ComponentLink:Input>C", "ComponentLink:Output>C", "ComponentLink:Input>C",
                     "ComponentLink:Output>C", "ComponentLink:Input>C", "ComponentLink:Output>C"}),
              childNames(pools.links));
    Texts indexes;
    for (const DOMElement *c = pools.links->getFirstElementChild(); c != nullptr;
         c = c->getNextElementSibling())
        indexes.push_back(attribute(c, "CombinedProcessIndex"));
    EXPECT_EQ((Texts{"3", "2", "", "", "x", "-1"}), indexes);

    // Without a link pool only the resource is made.
    ResourceInfo alone = resource("Device", "D0");
    ASSERT_EQ(ZUNDO_OK, addResourceToPoolsWithOutput(pools.resources, nullptr, &alone).status);
    EXPECT_EQ(nullptr, alone.link);
    EXPECT_EQ(6u, childNames(pools.links).size());
}

TEST(JdfPools, WrongPoolsAndMissingFieldsCreateNothing) {
    Pools pools;
    TraceCapture trace;
    ResourceInfo info = resource("Media", "M0");
    EXPECT_EQ(ZUNDO_WRONG_ELEMENT, addResourceToPools(pools.links, pools.links, &info).status);
    EXPECT_TRUE(
        trace.saw("resourcePoolElement that was passed in \t\t\t\t\tis not the "
                  "resourcePool element\n "));
    EXPECT_EQ(ZUNDO_WRONG_ELEMENT,
              addResourceToPoolsWithOutput(pools.resources, pools.resources, &info).status);
    EXPECT_TRUE(
        trace.saw("resourceLinkPoolElement that was passed in \t\t\t\t\t\tis not the "
                  "resourceLinkPool element\n "));
    info.resourceClass = nullptr;
    EXPECT_EQ(ZUNDO_MISSING_FIELD, createResource(pools.resources, pools.links, &info).status);
    EXPECT_EQ(ZUNDO_NULL_ARGUMENT, createResource(nullptr, pools.links, &info).status);
    EXPECT_TRUE(childNames(pools.resources).empty());
    EXPECT_TRUE(childNames(pools.links).empty());
}

const char *const kLinkedTicket =
    "<JDF Type=\"Combined\" Types=\"DigitalPrinting\"><ResourcePool>"
    "<RunList ID=\"RL0\"/><RunList/>"
    "<Component ID=\"C1\"/><Component ID=\"C0\" Amount=\"1\"/>"
    "<Layout><MediaRef rRef=\"M0\"/><MediaRef rRef=\"M1\"/></Layout>"
    "</ResourcePool><ResourceLinkPool>"
    "<RunListLink rRef=\"RL0\" Usage=\"Output\"/><RunListLink rRef=\"RL0\" Usage=\"Input\" "
    "CombinedProcessIndex=\"0 1\"/><ComponentLink rRef=\"C0\" Usage=\"Output\"/>"
    "<ComponentLink rRef=\"C9\" Usage=\"Input\"/></ResourceLinkPool></JDF>";

TEST(JdfPools, LinksAndReferences) {
    ParsedTicket ticket(kLinkedTicket);
    ASSERT_EQ(ZUNDO_OK, ticket.result.status);
    DOMElement *resourcePool = ticket.root()->getFirstElementChild();
    DOMElement *linkPool = resourcePool->getNextElementSibling();
    DOMElement *runList = resourcePool->getFirstElementChild();
    DOMElement *input = getElementLinkFromElement(runList, "Input");
    ASSERT_NE(nullptr, input);
    EXPECT_EQ("0 1", attribute(input, "CombinedProcessIndex"));
    EXPECT_EQ(nullptr, getElementLinkFromElement(runList, "Pass"));
    EXPECT_EQ(nullptr, getElementLinkFromElement(runList->getNextElementSibling(), "Input"));

    DOMElement *componentLink = input->getNextElementSibling();
    DOMElement *component = findReferencedComponent(componentLink);
    ASSERT_NE(nullptr, component);
    EXPECT_EQ("1", attribute(component, "Amount"));
    EXPECT_EQ(nullptr, findReferencedComponent(componentLink->getNextElementSibling()));
    EXPECT_EQ(nullptr, findReferencedComponent(linkPool->getFirstElementChild()));

    DOMElement *layout = resourcePool->getLastElementChild();
    EXPECT_EQ(1, isFirstChildReferencing(layout, "MediaRef", "M0"));
    EXPECT_EQ(0, isFirstChildReferencing(layout, "MediaRef", "M1"));
    EXPECT_EQ(0, isFirstChildReferencing(layout, "Media", "M0"));
}

TEST(JdfEditing, RoundTripKeepsAttributesTextAndEncodedControlCharacters) {
    NewDocument doc;
    JDFNodeInfo info = writtenNodeInfo();
    info.jobId = "job 1";
    ASSERT_EQ(ZUNDO_OK, createJDFNode(doc.document(), &info).status);
    ElementEntry comment = {nullptr, "Comment", nullptr, nullptr};
    ASSERT_EQ(ZUNDO_OK, addJDFNodeChild(info.element, &comment).status);
    ASSERT_EQ(ZUNDO_OK, appendTextNode(comment.element, "Gr\xC3\xBC\xC3\x9F").status);
    // Unencoded, a control character goes into the DOM as it is (and the
    // document could not be written).
    DOMElement *detached = doc.document()->createElement(u"Detached");
    AttributeEntry plain = {"Name", "a\x02z", nullptr, nullptr};
    ASSERT_EQ(ZUNDO_OK, setElementAttribute(detached, &plain).status);
    EXPECT_EQ("a\x02z", attribute(detached, "Name"));
    setControlCharacterEncoding(1);
    AttributeEntry encoded = {"Encoded", "a\x02z", nullptr, nullptr};
    ASSERT_EQ(ZUNDO_OK, setElementAttribute(comment.element, &encoded).status);
    ASSERT_EQ(ZUNDO_OK, appendTextNode(comment.element, "\x03").status);
    setControlCharacterEncoding(0);
    AttributeEntry cut = {"Short", "abcdef", nullptr, nullptr};
    ASSERT_EQ(ZUNDO_OK, setElementAttribute(comment.element, &cut, 3).status);
    AttributeEntry noValue = {"Short", nullptr, nullptr, nullptr};
    EXPECT_EQ(ZUNDO_MISSING_FIELD, setElementAttribute(comment.element, &noValue).status);
    EXPECT_EQ("a&#x02;z", attribute(comment.element, "Encoded"));
    EXPECT_EQ("abc", attribute(comment.element, "Short"));

    char *text = serializeDOMDocument(doc.document());
    ASSERT_NE(nullptr, text);
    std::string written = text;
    releaseXMLString(text);
    ParsedTicket back(written);
    ASSERT_EQ(ZUNDO_OK, back.result.status) << written;
    JDFNodeInfo read;
    ASSERT_EQ(ZUNDO_OK, getJDFNode(back.info.document, &read).status);
    EXPECT_STREQ("1.4", read.version);
    EXPECT_STREQ("job 1", read.jobId);
    EXPECT_STREQ("http://www.CIP4.org/JDFSchema_1_1", read.xmlns);
    AttributeEntry *encodedBack = nullptr;
    ASSERT_EQ(ZUNDO_OK,
              getAttrByName(read.element->getFirstElementChild(), "Encoded", &encodedBack).status);
    EXPECT_STREQ("a&#x02;z", encodedBack->value);
    freeAttrEntry(encodedBack);
    char *content = nullptr;
    ASSERT_EQ(ZUNDO_OK, getElementText(read.element->getFirstElementChild(), &content).status);
    EXPECT_STREQ("Gr\xC3\xBC\xC3\x9F&#x03;", content);
    delete[] content;
    freeJDFNodeInfo(&read);
}

TEST(JdfEditing, CopiesTreesOfAnyDepthWithoutText) {
    std::string open, close;
    for (int i = 0; i < 3000; ++i)
        open += "<Part Level=\"" + std::to_string(i) + "\">", close += "</Part>";
    ParsedTicket source("<Media ID=\"M0\" Dimension=\"1 2\">" + open + "text" + close +
                        "<Hole/></Media>");
    NewDocument doc;
    DOMElement *target = doc.document()->createElement(u"Media");
    doc.document()->appendChild(target);
    copyElementTree(source.root(), target);
    EXPECT_EQ("1 2", attribute(target, "Dimension"));
    EXPECT_EQ((Texts{"Part", "Hole"}), childNames(target));
    int depth = 0;
    const DOMElement *at = target->getFirstElementChild();
    for (; at->getFirstElementChild() != nullptr; at = at->getFirstElementChild()) ++depth;
    EXPECT_EQ(2999, depth);
    EXPECT_EQ("2999", attribute(at, "Level"));
    EXPECT_EQ(nullptr, at->getFirstChild());
}

zundo_status_t makeNamedMedia(zundo_int_object_s **out, DOMElement *element) {
    char *id = UTF8Transcoder::transcodeValue(element->getAttribute(u"ID"));
    zundo_status_t status = newMedia(out, id);
    UTF8Transcoder::release(&id);
    return status;
}

TEST(JdfLists, IdElementListKeepsMediaAndFreesThem) {
    ParsedTicket ticket(
        "<ResourcePool><Media ID=\"M0\"/><Media/><Media ID=\"M1\"/>"
        "<FileSpec ID=\"F0\"/></ResourcePool>");
    IdElement **media = nullptr;
    IdElement **files = nullptr;
    for (DOMElement *e = ticket.root()->getFirstElementChild(); e != nullptr;
         e = e->getNextElementSibling()) {
        if (tagName(e) == "Media")
            ASSERT_EQ(ZUNDO_OK, addIdElementToList(e, &media, makeNamedMedia));
        else
            ASSERT_EQ(ZUNDO_OK, addIdElementToList(e, &files, nullptr));
    }
    ASSERT_NE(nullptr, media);
    EXPECT_STREQ("M0", media[0]->id);
    EXPECT_STREQ("M1", media[1]->id);
    EXPECT_EQ(nullptr, media[2]);
    EXPECT_NE(nullptr, media[1]->media);
    EXPECT_EQ(ticket.root()->getLastElementChild(), files[0]->element);
    EXPECT_EQ(nullptr, files[0]->media);
    freeIdElementList(media);
    freeIdElementList(files);
    freeIdElementList(nullptr);
}

TEST(JdfLists, WholeTextConversions) {
    int i = -5;
    EXPECT_TRUE(convertStringToInt("0x1A", &i) && i == 26);
    EXPECT_TRUE(convertStringToInt("017", &i) && i == 15);
    EXPECT_TRUE(convertStringToInt("-42", &i) && i == -42);
    for (const char *bad : {"", " 1", "1 ", "12ab", "09"}) {
        i = 7;
        EXPECT_FALSE(convertStringToInt(bad, &i)) << bad;
        EXPECT_EQ(7, i);
    }
    EXPECT_FALSE(convertStringToInt(nullptr, &i));
    double d = 0;
    EXPECT_TRUE(convertStringToDouble("2.5e1", &d));
    EXPECT_DOUBLE_EQ(25.0, d);
    EXPECT_FALSE(convertStringToDouble("2.5mm", &d));
    EXPECT_FALSE(convertStringToDouble("", &d));
    EXPECT_DOUBLE_EQ(25.0, d);
}

TEST(JdfLists, PathsAreSplitInPlace) {
    char path[] = "/JDF/ResourcePool//morvellan:StrippingParams/@morvellan:Cut";
    char **tokens = parseXPath(path, "morvellan:", "/@");
    ASSERT_NE(nullptr, tokens);
    EXPECT_EQ((Texts{"JDF", "ResourcePool", "StrippingParams", "Cut"}), flatten(tokens));
    std::free(tokens);
    char empty[] = "//";
    tokens = parseXPath(empty, nullptr, "/");
    ASSERT_NE(nullptr, tokens);
    EXPECT_EQ(nullptr, tokens[0]);
    std::free(tokens);
}

}  // namespace
