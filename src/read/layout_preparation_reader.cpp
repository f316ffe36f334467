// LayoutPreparationParams: sides, page order, n-up, fit policy, image
// shift, rotation, creep, gutter and surface contents box of the job, its
// documents and page ranges, and the page cells.
#include "read/layout_preparation_reader.h"

#include <cstring>
#include <string>
#include <vector>

#include "catalogue/type_names.h"
#include "enums/value_tables.h"
#include "read/insert_sheet_reader.h"
#include "read/marks_reader.h"
#include "read/partition_walk.h"
#include "read/reader_conversions.h"
#include "xml/index_lists.h"
#include "zundo_trace.h"

namespace {

// Targets of FitPolicy and ImageShift elements.
struct FitAndShiftNames {
    const char *fitPolicy;
    const char *rotatePolicy;
    const char *rotateToMatchBindingEdge;
    const char *positionX;
    const char *positionY;
    const char *shiftBack[2];
    const char *shiftFront[2];
};

// What the job, a document or a page range calls each setting; null where
// the object does not take it.
struct LayoutRoles {
    const char *pageOrder;
    const char *sides;
    const char *pageRotation;
    const char *numberUpX;
    const char *numberUpY;
    const char *surfaceContentsBox[4];
    const char *presentationDirection;
    const char *pageDistribution;
    const char *numberUpCopies;
    const char *doubleImpositionCell;
    const char *finishingOrder;
    FitAndShiftNames fit;
};

const LayoutRoles kJobRoles = {
    "job-page-order",
    "job-sides",
    "job-page-rotation",
    "job-number-up-x",
    "job-number-up-y",
    {"job-number-up-scb-lower-left-x", "job-number-up-scb-lower-left-y",
     "job-number-up-scb-upper-right-x", "job-number-up-scb-upper-right-y"},
    "job-number-up-presentation-direction",
    "job-number-up-distribution",
    "job-number-up-copies",
    "job-number-up-double-imposition-cell-to-rotate",
    "job-number-up-finishing-order",
    {"job-fit-policy",
     "job-rotate-policy",
     "job-rotate-to-match-binding-edge",
     "job-fit-policy-position-x",
     "job-fit-policy-position-y",
     {"job-image-shift-back-x", "job-image-shift-back-y"},
     {"job-image-shift-front-x", "job-image-shift-front-y"}},
};

const LayoutRoles kDocumentRoles = {
    "document-page-order",
    "document-sides",
    "document-page-rotation",
    nullptr,
    nullptr,
    {nullptr, nullptr, nullptr, nullptr},
    nullptr,
    nullptr,
    nullptr,
    nullptr,
    nullptr,
    {"document-fit-policy",
     nullptr,
     "job-rotate-to-match-binding-edge",
     "document-fit-policy-position-x",
     "document-fit-policy-position-y",
     {"document-image-shift-back-x", "document-image-shift-back-y"},
     {"document-image-shift-front-x", "document-image-shift-front-y"}},
};

const LayoutRoles kPageRangeRoles = {
    nullptr,
    "page-range-sides",
    "page-range-page-rotation",
    "page-range-number-up-x",
    "page-range-number-up-y",
    {"page-range-number-up-scb-lower-left-x", "page-range-number-up-scb-lower-left-y",
     "page-range-number-up-scb-upper-right-x", "page-range-number-up-scb-upper-right-y"},
    "page-range-number-up-presentation-direction",
    "page-range-number-up-distribution",
    nullptr,
    nullptr,
    nullptr,
    {"page-range-fit-policy",
     nullptr,
     "job-rotate-to-match-binding-edge",
     "page-range-fit-policy-position-x",
     "page-range-fit-policy-position-y",
     {"page-range-image-shift-back-x", "page-range-image-shift-back-y"},
     {"page-range-image-shift-front-x", "page-range-image-shift-front-y"}},
};

const FitAndShiftNames kPageCellNames = {
    "page-cell-fit-policy",
    "page-cell-rotate-policy",
    "page-cell-rotate-to-match-binding-edge",
    "page-cell-fit-policy-position-x",
    "page-cell-fit-policy-position-y",
    {"page-cell-image-shift-back-x", "page-cell-image-shift-back-y"},
    {"page-cell-image-shift-front-x", "page-cell-image-shift-front-y"},
};

const char *const kPageCellClipBox[4] = {
    "page-cell-clip-box-lower-left-x", "page-cell-clip-box-lower-left-y",
    "page-cell-clip-box-upper-right-x", "page-cell-clip-box-upper-right-y"};

const LayoutRoles &rolesOf(const zundo_int_object_s *object) {
    const char *type = getObjectType(object);
    if (type != nullptr && std::strcmp(type, ZUNDO_TYPE_JOB) == 0) return kJobRoles;
    if (type != nullptr && std::strcmp(type, ZUNDO_TYPE_DOCUMENT) == 0) return kDocumentRoles;
    return kPageRangeRoles;
}

// Which partitions an attribute is taken from.
enum Scope { kAnyPartition, kNoFilter, kRunIndexOnly };

bool inScope(Scope scope, const char *docFilter, const char *runFilter) {
    switch (scope) {
    case kNoFilter: return docFilter == nullptr && runFilter == nullptr;
    case kRunIndexOnly: return docFilter == nullptr && runFilter != nullptr;
    case kAnyPartition: break;
    }
    return true;
}

// Enumerated attributes: set as the role of the object, or under a fixed
// name whatever the object.
struct CodedAttribute {
    const char *jdf;
    const zundo_enum_pair_s *values;
    const char *LayoutRoles::*role;
    const char *fixedName;
    Scope scope;
};

const CodedAttribute kCodedAttributes[] = {
    {"BindingEdge", jobBindingEdgeValues, nullptr, "job-binding-edge", kNoFilter},
    {"FinishingOrder", jobNumberUpFinishingOrderValues, &LayoutRoles::finishingOrder, nullptr,
     kAnyPartition},
    {"PageOrder", pageOrderValues, &LayoutRoles::pageOrder, nullptr, kAnyPartition},
    {"PresentationDirection", presentationDirectionValues, &LayoutRoles::presentationDirection,
     nullptr, kAnyPartition},
    {"Rotate", pageRotationValues, &LayoutRoles::pageRotation, nullptr, kAnyPartition},
    {"Sides", sidesValues, &LayoutRoles::sides, nullptr, kAnyPartition},
    {"morvellan:Cover", pageRangeCoverTypeValues, nullptr, "page-range-cover-type", kRunIndexOnly},
    {"morvellan:DoubleImpositionCellToRotate", jobNumberUpDoubleImpositionCellToRotateValues,
     &LayoutRoles::doubleImpositionCell, nullptr, kAnyPartition},
    {"morvellan:FitBox", jobNumberUpFitBoxValues, nullptr, "job-number-up-fit-box", kAnyPartition},
    {"morvellan:PageRangeImposition", jobPageRangeImpositionValues, nullptr,
     "job-page-range-imposition", kNoFilter},
};

void setCodeFromAttribute(zundo_int_object_s *object, const char *name,
                          xercesc::DOMElement *element, const char *jdf,
                          const zundo_enum_pair_s *values) {
    if (name == nullptr) return;
    ElementAttribute value(element, jdf);
    if (value.value() != nullptr)
        setIntegerAttribute(object, name, codeForJDFName(values, value.value()));
}

void readFitPolicy(xercesc::DOMElement *fitPolicy, zundo_int_object_s *object,
                   const FitAndShiftNames &names) {
    setCodeFromAttribute(object, names.fitPolicy, fitPolicy, "SizePolicy", fitPolicyValues);
    setCodeFromAttribute(object, names.rotatePolicy, fitPolicy, "RotatePolicy", rotatePolicyValues);
    ElementAttribute rotate(fitPolicy, "morvellan:RotateToMatchBindingEdge");
    if (names.rotateToMatchBindingEdge != nullptr && rotate.value() != nullptr)
        setIntegerAttribute(object, names.rotateToMatchBindingEdge, convertBoolean(rotate.value()));
}

void readImageShift(xercesc::DOMElement *imageShift, zundo_int_object_s *object,
                    const FitAndShiftNames &names) {
    setCodeFromAttribute(object, names.positionX, imageShift, "PositionX", fitPolicyPositionValues);
    setCodeFromAttribute(object, names.positionY, imageShift, "PositionY", fitPolicyPositionValues);
    setRealPairFromText(object, names.shiftBack[0], names.shiftBack[1],
                        ElementAttribute(imageShift, "ShiftBack").value());
    setRealPairFromText(object, names.shiftFront[0], names.shiftFront[1],
                        ElementAttribute(imageShift, "ShiftFront").value());
}

void setRoleInteger(zundo_int_object_s *object, const char *name, int value) {
    if (name != nullptr) setIntegerAttribute(object, name, value);
}

// A word that is not an integer repeats the number before it.
void setPresentationOrder(zundo_int_object_s *object, const char *text) {
    zundo_int_attribute_s *order = nullptr;
    if (newAttribute(&order, "job-number-up-presentation-order", ZUNDO_KIND_INTEGER_LIST,
                     nullptr) != ZUNDO_OK)
        return;
    int number = 0;
    for (const std::string &word : splitWords(text, kBlankSeparators)) {
        convertStringToInt(word.c_str(), &number);
        addValue(order, &number);
    }
    setAndReleaseAttribute(object, order);
}

// Missing words and words that are not integers count 0.
void setNumberUp(zundo_int_object_s *object, const LayoutRoles &roles, const char *text) {
    std::vector<std::string> words = splitWords(text, kBlankSeparators);
    int x = 0, y = 0;
    if (!words.empty()) convertStringToInt(words[0].c_str(), &x);
    if (words.size() > 1) convertStringToInt(words[1].c_str(), &y);
    setRoleInteger(object, roles.numberUpX, x);
    setRoleInteger(object, roles.numberUpY, y);
}

// A StepRepeat that repeats the NumberUp grid once over means one copy
// per cell. A StepRepeat of other than three words forgets the NumberUp.
void applyStepRepeat(zundo_int_object_s *object, const LayoutRoles &roles, const char **numberUp,
                     const char *stepRepeat) {
    std::vector<std::string> repeat = splitWords(stepRepeat, kBlankSeparators);
    if (repeat.size() != 3) {
        *numberUp = nullptr;
        return;
    }
    std::vector<std::string> grid = splitWords(*numberUp, kBlankSeparators);
    if (grid.size() >= 2 && grid[0] == repeat[0] && grid[1] == repeat[1])
        setRoleInteger(object, roles.numberUpCopies, 1);
}

void markRetainNotPrintedFirst(zundo_int_object_s *object) {
    if (zundo_int_object_s *retain = firstObjectValue(object, "job-retain"))
        setIntegerAttribute(retain, "retain-print-first", 0);
}

bool applyCodedAttribute(zundo_int_object_s *object, const LayoutRoles &roles,
                         const AttributeEntry &entry, const char *docFilter,
                         const char *runFilter) {
    for (const CodedAttribute &coded : kCodedAttributes) {
        if (std::strcmp(coded.jdf, entry.name) != 0) continue;
        if (inScope(coded.scope, docFilter, runFilter))
            setRoleInteger(object, coded.role != nullptr ? roles.*coded.role : coded.fixedName,
                           codeForJDFName(coded.values, entry.value));
        return true;
    }
    return false;
}

void applyAttributes(zundo_int_object_s *object, const LayoutRoles &roles,
                     AttributeEntry *const *attrs, const char *docFilter, const char *runFilter) {
    const char *numberUp = nullptr;
    for (AttributeEntry *const *at = attrs; at != nullptr && *at != nullptr; ++at) {
        const AttributeEntry &entry = **at;
        if (!partitionMatches(docFilter, runFilter, entry.firstKey, entry.secondKey)) continue;
        if (applyCodedAttribute(object, roles, entry, docFilter, runFilter)) continue;
        const char *name = entry.name;
        if (std::strcmp(name, "NumberUp") == 0) {
            numberUp = entry.value;
            if (docFilter == nullptr) setNumberUp(object, roles, entry.value);
        } else if (std::strcmp(name, "StepRepeat") == 0) {
            if (numberUp != nullptr) applyStepRepeat(object, roles, &numberUp, entry.value);
        } else if (std::strcmp(name, "morvellan:PresentationOrder") == 0) {
            if (docFilter == nullptr && runFilter == nullptr)
                setPresentationOrder(object, entry.value);
        } else if (std::strcmp(name, "Status") == 0) {
            if (textIs(entry.value, "Unavailable")) markRetainNotPrintedFirst(object);
        } else if (std::strcmp(name, "CreepValue") == 0) {
            setRealPairFromText(object, "job-number-up-creep-x", "job-number-up-creep-y",
                                entry.value);
        } else if (std::strcmp(name, "ImplicitGutter") == 0) {
            setRealPairFromText(object, "job-number-up-gutter-x", "job-number-up-gutter-y",
                                entry.value);
        } else if (std::strcmp(name, "SurfaceContentsBox") == 0) {
            if (roles.surfaceContentsBox[0] != nullptr)
                setRealQuadrupleFromText(object, roles.surfaceContentsBox, entry.value);
        } else if (std::strcmp(name, "PageDistributionScheme") == 0) {
            if (roles.pageDistribution != nullptr)
                setStringAttribute(object, roles.pageDistribution, entry.value);
        }
    }
}

void applyElements(zundo_int_object_s *object, const LayoutRoles &roles,
                   ElementEntry *const *elements, const char *docFilter, const char *runFilter,
                   IdElement **mediaList) {
    FitAndShiftNames names = roles.fit;
    if (docFilter != nullptr || runFilter != nullptr) names.rotateToMatchBindingEdge = nullptr;
    for (ElementEntry *const *at = elements; at != nullptr && *at != nullptr; ++at) {
        const ElementEntry &entry = **at;
        if (!partitionMatches(docFilter, runFilter, entry.firstKey, entry.secondKey)) continue;
        if (std::strcmp(entry.name, "FitPolicy") == 0) {
            readFitPolicy(entry.element, object, names);
        } else if (std::strcmp(entry.name, "ImageShift") == 0) {
            readCommentUnits(entry.element, object, nullptr, "job-image-shift-units");
            readImageShift(entry.element, object, names);
        } else if (std::strcmp(entry.name, "InsertSheet") == 0) {
            readInsertSheetFromParams(object, &entry, mediaList);
        }
    }
}

// A page-cell info over the cells a CellIndex names (all when null), filled
// from the PageCell, on the sheet side given (none when null).
zundo_int_object_s *makePageCell(const char *cellIndex, xercesc::DOMElement *pageCell,
                                 const char *side) {
    zundo_range_s *cells = nullptr;
    zundo_status_t status =
        cellIndex != nullptr ? newRangeFromString(&cells, cellIndex) : newRange(&cells, 0, -1);
    zundo_int_object_s *info = nullptr;
    if (status != ZUNDO_OK || newPageCellInfo(&info, cells) != ZUNDO_OK) return nullptr;
    readPageCell(pageCell, info);
    if (side != nullptr)
        setIntegerAttribute(info, "page-cell-sheet-side",
                            codeForJDFName(pageCellSheetSideValues, side));
    return info;
}

void addPageCell(zundo_int_attribute_s *cells, zundo_int_object_s *info) {
    if (info != nullptr && addValue(cells, info) != ZUNDO_OK) destroy(info);
}

// A CellIndex or Side partition of the resource. The writer puts a sided
// cell's PageCell into a Side child of its CellIndex partition, so those
// children are read whether or not the CellIndex partition has a PageCell
// of its own.
void readCellPartition(xercesc::DOMElement *partition, zundo_int_object_s *job,
                       zundo_int_attribute_s *cells, IdElement **mediaList) {
    ElementAttribute cellIndex(partition, "CellIndex");
    ElementAttribute side(partition, "Side");
    ChildElements children(partition);
    xercesc::DOMElement *pageCell = nullptr;
    if (cellIndex.value() != nullptr) {
        pageCell = children.first("PageCell");
        if (pageCell != nullptr)
            addPageCell(cells, makePageCell(cellIndex.value(), pageCell, nullptr));
        for (ElementEntry *child : children) {
            if (std::strcmp(child->name, "LayoutPreparationParams") != 0) continue;
            ElementAttribute childSide(child->element, "Side");
            xercesc::DOMElement *sidePageCell = ChildElements(child->element).first("PageCell");
            if (childSide.value() == nullptr || sidePageCell == nullptr) continue;
            addPageCell(cells, makePageCell(cellIndex.value(), sidePageCell, childSide.value()));
            readPageRangeLayouts(child->element, job, mediaList);
        }
    }
    if (side.value() != nullptr) {
        pageCell = children.first("PageCell");
        if (pageCell != nullptr) addPageCell(cells, makePageCell(nullptr, pageCell, side.value()));
    }
    if (pageCell != nullptr) readPageRangeLayouts(partition, job, mediaList);
}

// The partition's entries are stamped with its RunIndex so that the level
// setter takes them for that page range.
void readPageRangePartition(xercesc::DOMElement *partition, zundo_int_object_s *pageRange,
                            const char *runIndex, IdElement **mediaList) {
    readMarks(partition, pageRange, "page-range-marks");
    ChildElements children(partition);
    for (ElementEntry *child : children) {
        if (std::strcmp(child->name, "PageCell") != 0) continue;
        zundo_int_object_s *info = makePageCell(nullptr, child->element, nullptr);
        if (info != nullptr &&
            setObjectAttribute(pageRange, "page-range-page-cells", info) != ZUNDO_OK)
            destroy(info);
    }
    AttributeEntry **attrs = nullptr;
    getAttrs(partition, &attrs);
    for (AttributeEntry **at = attrs; at != nullptr && *at != nullptr; ++at)
        (*at)->secondKey = runIndex;
    for (ElementEntry *child : children) child->secondKey = runIndex;
    setLPAttrsToObject(&pageRange, attrs, children.entries(), nullptr, runIndex, mediaList);
    for (AttributeEntry **at = attrs; at != nullptr && *at != nullptr; ++at)
        (*at)->secondKey = nullptr;
    for (ElementEntry *child : children) child->secondKey = nullptr;
    freeAttrList(attrs);
}

}  // namespace

zundo_status_t readLayoutPreparationParamsResource(xercesc::DOMElement *resource,
                                                   zundo_int_object_s *ticket,
                                                   IdElement **mediaList) {
    zundo_trace(">> Entering readLayoutPreparationParamsResource \n");
    zundo_status_t status = readResource(resource, ticket, mediaList, setLPAttrsToObject);
    zundo_int_object_s *job = getJob(ticket);
    readPageRangeLayouts(resource, job, mediaList);
    readMarks(resource, job, "job-marks");
    readCommentUnits(resource, job, "CreepValue", "job-number-up-creep-units");
    readCommentUnits(resource, job, "SurfaceContentsBox", "job-number-up-scb-units");
    readCommentUnits(resource, job, "ImplicitGutter", "job-number-up-gutter-units");
    readJobPageCells(resource, job, mediaList);
    zundo_trace("<< Leaving readLayoutPreparationParamsResource \n");
    return status;
}

zundo_status_t setLPAttrsToObject(zundo_int_object_s **object, AttributeEntry *const *attrs,
                                  ElementEntry *const *elements, const char *docFilter,
                                  const char *runFilter, IdElement **mediaList) {
    zundo_trace(">> Entering setLPAttrsToObject \n");
    const LayoutRoles &roles = rolesOf(*object);
    applyAttributes(*object, roles, attrs, docFilter, runFilter);
    applyElements(*object, roles, elements, docFilter, runFilter, mediaList);
    zundo_trace("<< Leaving setLPAttrsToObject \n");
    return ZUNDO_OK;
}

void readPageCell(xercesc::DOMElement *pageCell, zundo_int_object_s *pageCellInfo) {
    zundo_trace(">> Entering readPageCell \n");
    readMarks(pageCell, pageCellInfo, "page-cell-marks");
    readCommentUnits(pageCell, pageCellInfo, "ClipBox", "page-cell-clip-box-units");
    readCommentUnits(pageCell, pageCellInfo, "TrimSize", "page-cell-trim-size-units");
    setCodeFromAttribute(pageCellInfo, "page-cell-rotation", pageCell, "Rotate",
                         pageRotationValues);
    setRealPairFromText(pageCellInfo, "page-cell-trim-size-x", "page-cell-trim-size-y",
                        ElementAttribute(pageCell, "TrimSize").value());
    setRealQuadrupleFromText(pageCellInfo, kPageCellClipBox,
                             ElementAttribute(pageCell, "ClipBox").value());
    for (ElementEntry *child : ChildElements(pageCell)) {
        if (std::strcmp(child->name, "ImageShift") == 0)
            readImageShift(child->element, pageCellInfo, kPageCellNames);
        else if (std::strcmp(child->name, "FitPolicy") == 0)
            readFitPolicy(child->element, pageCellInfo, kPageCellNames);
    }
    zundo_trace("<< Leaving readPageCell \n");
}

void readJobPageCells(xercesc::DOMElement *resource, zundo_int_object_s *job,
                      IdElement **mediaList) {
    zundo_trace(">> Entering readJobPageCells \n");
    zundo_int_attribute_s *cells = nullptr;
    if (newAttribute(&cells, "job-page-cells", ZUNDO_KIND_OBJECT, nullptr) == ZUNDO_OK) {
        for (ElementEntry *child : ChildElements(resource)) {
            if (std::strcmp(child->name, "PageCell") == 0)
                addPageCell(cells, makePageCell(nullptr, child->element, nullptr));
            else if (std::strcmp(child->name, "LayoutPreparationParams") == 0)
                readCellPartition(child->element, job, cells, mediaList);
        }
        setAndReleaseAttribute(job, cells);
    }
    zundo_trace("<< Leaving readJobPageCells \n");
}

void readPageRangeLayouts(xercesc::DOMElement *element, zundo_int_object_s *job,
                          IdElement **mediaList) {
    zundo_trace(">> Entering readPageRangeLayouts \n");
    for (ElementEntry *child : ChildElements(element)) {
        if (std::strcmp(child->name, "LayoutPreparationParams") != 0) continue;
        ElementAttribute runIndex(child->element, "RunIndex");
        zundo_int_object_s *pageRange = nullptr;
        if (runIndex.value() == nullptr ||
            findPageRangeObject(&pageRange, job, runIndex.value()) != ZUNDO_OK ||
            pageRange == nullptr)
            continue;
        readPageRangePartition(child->element, pageRange, runIndex.value(), mediaList);
    }
    zundo_trace("<< Leaving readPageRangeLayouts \n");
}
