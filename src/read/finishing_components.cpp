// Finishing values kept on the Components of the process chain: the
// component type of a folding, and the amount pool of a finishing
// ComponentLink with page-range orientations and the cover sheet.
#include "read/finishing_components.h"

#include <xercesc/dom/DOMElement.hpp>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <string>
#include <unordered_map>

#include "enums/value_tables.h"
#include "read/component_reader.h"
#include "read/finishing_reader.h"
#include "read/partition_walk.h"
#include "read/reader_conversions.h"
#include "xml/index_lists.h"
#include "xml/jdf_node.h"
#include "xml/jdf_pools.h"
#include "zundo_trace.h"

namespace {

// Longer Component RunIndex texts are not searched for page ranges.
const size_t kLongestComponentRunIndex = 19;

// Both sides of the cover sheet.
const int kCoverBothSides = 2;
enum { kCoverSourceFirst = 1, kCoverSourceLast = 2 };

// The rotation of a cover Transformation, by its first four numbers.
const zundo_enum_pair_s kCoverMatrixEdges[] = {
    {2, "1 0 0 1"}, {4, "0 1 -1 0"}, {3, "-1 0 0 -1"}, {1, "0 -1 1 0"}, {-1, nullptr}};

// Back 1, Both 2, Front 3, Neither 4: the same codes as the imageable
// sides of a media.
const zundo_enum_pair_s *const kCoverSides = mediaImagableSideValues;

// The first value of a finishing attribute of the job's page range that
// the token names; page ranges are never made here.
zundo_int_object_s *pageRangeFinishing(const PageRangeIndex &pageRanges, const char *token,
                                       const char *attribute) {
    zundo_int_object_s *pageRange = pageRanges.lookup(token);
    return pageRange != nullptr ? firstObjectValue(pageRange, attribute) : nullptr;
}

struct PageTokens {
    explicit PageTokens(const char *text) { parsePages(text, &tokens); }
    ~PageTokens() { freePageTokens(tokens); }
    PageTokens(const PageTokens &) = delete;
    PageTokens &operator=(const PageTokens &) = delete;
    char **tokens = nullptr;
};

const xercesc::DOMElement *asElement(const xercesc::DOMNode *node) {
    return node != nullptr && node->getNodeType() == xercesc::DOMNode::ELEMENT_NODE
               ? static_cast<const xercesc::DOMElement *>(node)
               : nullptr;
}

// The Component named by the first Input ComponentLink of the Folding
// process in the JDF node that holds the resource.
const xercesc::DOMElement *foldingInputComponent(const xercesc::DOMElement *foldingParams) {
    const xercesc::DOMElement *node = asElement(getParentElement(getParentElement(foldingParams)));
    int position = getProcessPosition(node, "Folding");
    if (position < 0) return nullptr;
    for (ElementEntry *link : ChildElements(ChildElements(node).first("ResourceLinkPool"))) {
        int index = 0;
        if (textIs(link->name, "ComponentLink") &&
            convertStringToInt(ElementAttribute(link->element, "CombinedProcessIndex").value(),
                               &index) &&
            index == position && textIs(ElementAttribute(link->element, "Usage").value(), "Input"))
            return findReferencedComponent(link->element);
    }
    return nullptr;
}

const int kNoComponentType = -1;

int componentTypeCode(const char *componentType) {
    return getZUNDOEnumValue("folding-component-type", componentType);
}

std::string withoutBlanks(const char *text) {
    std::string compact;
    for (const char *at = text; *at != '\0'; ++at)
        if (*at != ' ') compact += *at;
    return compact;
}

// The page tokens the RunIndex partitions of the resource name, each with
// the component type found for it (kNoComponentType until one is).
typedef std::unordered_map<std::string, int> TokenTypes;

void collectPageTokens(const xercesc::DOMElement *foldingParams, TokenTypes *tokens) {
    AttributeEntry **attrs = nullptr;
    getRunIndexLvlAttrs(foldingParams, &attrs);
    std::unique_ptr<AttributeEntry *[], void (*)(AttributeEntry **)> attrList(attrs, freeAttrList);
    const char **values = nullptr;
    createRunIndexListFromAttrs(attrs, &values);
    std::unique_ptr<const char *[], void (*)(void *)> runIndexList(values, std::free);
    for (const char **value = values; value != nullptr && *value != nullptr; ++value) {
        PageTokens split(*value);
        for (char **token = split.tokens; token != nullptr && *token != nullptr; ++token)
            tokens->emplace(*token, kNoComponentType);
    }
}

// A partition applies to every token found in its RunIndex with the blanks
// taken out, so "1" finds the partitions "1", "0 ~ 1" and "10". Each
// substring is looked up instead of searching every partition for every
// token; a later partition overrides an earlier one.
void matchComponentPartitions(const xercesc::DOMElement *component, TokenTypes *tokens) {
    size_t longestToken = 0;
    for (const auto &token : *tokens) longestToken = std::max(longestToken, token.first.size());
    for (ElementEntry *partition : ChildElements(component)) {
        if (!textIs(partition->name, "Component")) continue;
        ElementAttribute runIndex(partition->element, "RunIndex");
        ElementAttribute componentType(partition->element, "ComponentType");
        if (runIndex.value() == nullptr || componentType.value() == nullptr ||
            std::strlen(runIndex.value()) > kLongestComponentRunIndex)
            continue;
        int code = componentTypeCode(componentType.value());
        std::string compact = withoutBlanks(runIndex.value());
        for (size_t start = 0; start < compact.size(); ++start) {
            for (size_t length = 1; length <= longestToken && start + length <= compact.size();
                 ++length) {
                auto found = tokens->find(compact.substr(start, length));
                if (found != tokens->end()) found->second = code;
            }
        }
    }
}

// The Transformation of the cover: the rotation matrix gives the binding
// edge, the translation the image shift (negated).
void readCoverTransformation(zundo_int_object_s *binding, const char *transformation) {
    int a = 0, b = -1, c = 1, d = 0;
    double tx = 999999.0, ty = 999999.0;
    std::sscanf(transformation, "%d %d %d %d %lf %lf", &a, &b, &c, &d, &tx, &ty);
    setDoubleAttribute(binding, "binding-cover-image-shift-x", tx == 0.0 ? 0.0 : -tx);
    setDoubleAttribute(binding, "binding-cover-image-shift-y", ty == 0.0 ? 0.0 : -ty);
    char matrix[64];
    std::snprintf(matrix, sizeof matrix, "%d %d %d %d", a, b, c, d);
    setIntegerAttribute(binding, "binding-reference-edge",
                        codeForJDFName(kCoverMatrixEdges, matrix));
}

// A Part of the cover sheet: RunIndex "0" is the first cover, "-1" the
// last, each of the side the Part names; a range holding "-2" is the last
// cover on both sides, one holding "1" the first.
void readCoverPart(zundo_int_object_s *binding, const xercesc::DOMElement *part,
                   const char *runIndex) {
    if (textIs(runIndex, "-1") || textIs(runIndex, "0")) {
        ElementAttribute side(part, "Side");
        if (side.value() != nullptr)
            setIntegerAttribute(binding, "binding-cover-side",
                                codeForJDFName(kCoverSides, side.value()));
        setIntegerAttribute(binding, "binding-cover-source",
                            textIs(runIndex, "0") ? kCoverSourceFirst : kCoverSourceLast);
        return;
    }
    int source = std::strstr(runIndex, "-2") != nullptr  ? kCoverSourceLast
                 : std::strstr(runIndex, "1") != nullptr ? kCoverSourceFirst
                                                         : 0;
    if (source == 0) return;
    setIntegerAttribute(binding, "binding-cover-side", kCoverBothSides);
    setIntegerAttribute(binding, "binding-cover-source", source);
}

// The finishing whose page ranges take their reference edge from the
// amount pool of the process's link.
struct PageRangeEdge {
    const char *process;
    const char *pageRangeAttribute;
    const char *edgeAttribute;
};

const PageRangeEdge kPageRangeEdges[] = {
    {"Stitching", "page-range-stitching", "stitching-reference-edge"},
    {"HoleMaking", "page-range-hole-making", "hole-making-reference-edge"},
    {"Folding", "page-range-folding", "folding-reference-edge"},
};

const PageRangeEdge *pageRangeEdgeOf(const char *process) {
    for (const PageRangeEdge &row : kPageRangeEdges)
        if (textIs(process, row.process)) return &row;
    return nullptr;
}

void readPartAmount(const xercesc::DOMElement *partAmount, zundo_int_object_s *coverBinding,
                    const PageRangeEdge *pageRangeEdge, const PageRangeIndex *pageRanges,
                    int *edge) {
    ElementAttribute orientation(partAmount, "Orientation");
    if (orientation.value() != nullptr)
        *edge = convertJDFOrientationToZUNDOReferenceEdge(orientation.value());
    ElementAttribute transformation(partAmount, "Transformation");
    if (coverBinding != nullptr && transformation.value() != nullptr)
        readCoverTransformation(coverBinding, transformation.value());
    for (ElementEntry *part : ChildElements(partAmount)) {
        if (!textIs(part->name, "Part")) continue;
        ElementAttribute runIndexAttribute(part->element, "RunIndex");
        const char *runIndex =
            runIndexAttribute.value() != nullptr ? runIndexAttribute.value() : "";
        if (coverBinding != nullptr) readCoverPart(coverBinding, part->element, runIndex);
        if (pageRangeEdge == nullptr) continue;
        PageTokens split(runIndex);
        for (char **token = split.tokens; token != nullptr && *token != nullptr; ++token) {
            zundo_int_object_s *finishing =
                pageRangeFinishing(*pageRanges, *token, pageRangeEdge->pageRangeAttribute);
            if (finishing != nullptr)
                setIntegerAttribute(finishing, pageRangeEdge->edgeAttribute, *edge);
        }
    }
}

}  // namespace

void addJobFoldingComponentType(zundo_int_object_s *folding,
                                const xercesc::DOMElement *foldingParams) {
    const xercesc::DOMElement *component = foldingInputComponent(foldingParams);
    ElementAttribute componentType(component, "ComponentType");
    if (componentType.value() != nullptr)
        setIntegerAttribute(folding, "folding-component-type",
                            componentTypeCode(componentType.value()));
}

void addPageRangeFoldingComponentTypes(const xercesc::DOMElement *foldingParams,
                                       zundo_int_object_s *job) {
    const xercesc::DOMElement *component = foldingInputComponent(foldingParams);
    if (component == nullptr) return;
    try {
        TokenTypes tokens;
        collectPageTokens(foldingParams, &tokens);
        matchComponentPartitions(component, &tokens);
        const PageRangeIndex pageRanges(job);
        for (const auto &token : tokens) {
            zundo_int_object_s *folding =
                token.second != kNoComponentType
                    ? pageRangeFinishing(pageRanges, token.first.c_str(), "page-range-folding")
                    : nullptr;
            if (folding != nullptr)
                setIntegerAttribute(folding, "folding-component-type", token.second);
        }
    } catch (const std::bad_alloc &) {
        traceOutOfMemory("addPageRangeFoldingComponentTypes");
    }
}

zundo_status_t readFinishingAmounts(const xercesc::DOMElement *link, zundo_int_object_s *job,
                                    const char *processName) {
    zundo_trace(">> Entering readFinishingAmounts \n");
    zundo_int_object_s *coverBinding =
        textIs(processName, "CoverApplication") ? firstObjectValue(job, "job-binding") : nullptr;
    const PageRangeEdge *pageRangeEdge = pageRangeEdgeOf(processName);
    // The edge of a PartAmount without Orientation is the one before it.
    int edge = 0;
    try {
        const PageRangeIndex pageRanges(job);
        for (ElementEntry *amountPool : ChildElements(link)) {
            if (!textIs(amountPool->name, "AmountPool")) continue;
            for (ElementEntry *partAmount : ChildElements(amountPool->element))
                if (textIs(partAmount->name, "PartAmount"))
                    readPartAmount(partAmount->element, coverBinding, pageRangeEdge, &pageRanges,
                                   &edge);
        }
    } catch (const std::bad_alloc &) {
        traceOutOfMemory("readFinishingAmounts");
    }
    zundo_trace("<< Leaving readFinishingAmounts \n");
    return ZUNDO_OK;
}
