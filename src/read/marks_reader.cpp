// Marks of a job ticket: MarkObjects with their placement, device mark, job
// field and image; strip marks; the colour control strip.
#include "read/marks_reader.h"

#include <cmath>
#include <new>
#include <string>
#include <vector>
#include <xercesc/dom/DOMElement.hpp>

#include "enums/value_tables.h"
#include "read/reader_conversions.h"
#include "xml/jdf_pools.h"
#include "xml/partition_index.h"
#include "zundo_trace.h"

namespace {

const double kPi = 3.14159265;

// The RunList (marks) that holds the mark images, looked up once per mark
// list: the ResourcePool walk is the expensive part of an image.
struct MarkImageSource {
    bool searched = false;
    xercesc::DOMElement *runList = nullptr;
};

// Calls read(name, value) for each attribute of the element, in document
// order, while it returns true.
template <typename Read>
void forEachAttribute(const xercesc::DOMElement *element, Read read) {
    AttributeEntry **attrs = nullptr;
    if (element != nullptr) getAttrs(element, &attrs);
    for (AttributeEntry **at = attrs; at != nullptr && *at != nullptr; ++at)
        if (!read((*at)->name, (*at)->value)) break;
    freeAttrList(attrs);
}

bool isElementNamed(const xercesc::DOMNode *node, const char *name) {
    return node != nullptr && node->getNodeType() == xercesc::DOMNode::ELEMENT_NODE &&
           hasTagName(static_cast<const xercesc::DOMElement *>(node), name);
}

// The first RunList of the enclosing ResourcePool whose Input link is
// used for marks.
xercesc::DOMElement *findMarksRunList(const xercesc::DOMElement *markObject) {
    const xercesc::DOMNode *pool = getParentElement(markObject);
    while (pool != nullptr && !isElementNamed(pool, "ResourcePool")) pool = getParentElement(pool);
    if (pool == nullptr) return nullptr;
    for (ElementEntry *child : ChildElements(static_cast<const xercesc::DOMElement *>(pool))) {
        if (!textIs(child->name, "RunList")) continue;
        xercesc::DOMElement *link = getElementLinkFromElement(child->element, "Input");
        if (textIs(ElementAttribute(link, "ProcessUsage").value(), "Marks")) return child->element;
    }
    return nullptr;
}

// The RunList child partition with that Run. The partition index answers
// without walking every image; a hit further down the tree is not a child
// partition, so the children are searched then.
xercesc::DOMElement *findRunPartition(const xercesc::DOMElement *runList, const char *run) {
    char16_t *wideRun = UTF8Transcoder::transcodeValue(run);
    bool failed = wideRun == nullptr;
    xercesc::DOMElement *found =
        failed ? nullptr : findIndexedPartition(runList, u"Run", wideRun, &failed);
    UTF8Transcoder::release(&wideRun);
    if (!failed && (found == nullptr || found->getParentNode() == runList)) return found;
    for (ElementEntry *child : ChildElements(runList))
        if (textIs(child->name, "RunList") &&
            textIs(ElementAttribute(child->element, "Run").value(), run))
            return child->element;
    return nullptr;
}

void setIntegerIfConverts(zundo_int_object_s *mark, const char *name, const char *text) {
    if (text == nullptr) return;
    int value = 0;
    convertStringToInt(text, &value);
    setIntegerAttribute(mark, name, value);
}

void readMarkImage(const xercesc::DOMElement *markObject, const char *run, MarkImageSource *source,
                   zundo_int_object_s *mark) {
    if (!source->searched) {
        source->runList = findMarksRunList(markObject);
        source->searched = true;
    }
    if (source->runList == nullptr) return;
    xercesc::DOMElement *partition = findRunPartition(source->runList, run);
    xercesc::DOMElement *byteMap = ChildElements(partition).first("ByteMap");
    if (byteMap == nullptr) return;
    setIntegerIfConverts(mark, "mark-image-height",
                         ElementAttribute(byteMap, "FrameHeight").value());
    setIntegerIfConverts(mark, "mark-image-width", ElementAttribute(byteMap, "FrameWidth").value());
    xercesc::DOMElement *fileSpec = ChildElements(byteMap).first("FileSpec");
    if (fileSpec == nullptr) return;
    ElementAttribute url(fileSpec, "URL");
    if (url.value() != nullptr) setStringAttribute(mark, "mark-image-filename", url.value());
    // The versioned type ("PDF/1.4") says more than the bare MIME type.
    ElementAttribute version(fileSpec, "MimeTypeVersion");
    ElementAttribute mimeType(fileSpec, "MimeType");
    const char *format = version.value() != nullptr ? version.value() : mimeType.value();
    if (format != nullptr) setStringAttribute(mark, "mark-image-format", format);
}

// A CTM token that is not a real sets nothing, and a first token that is
// not the cosine of an angle gives no rotation.
void readTransformation(const char *ctm, zundo_int_object_s *mark) {
    std::vector<std::string> tokens = splitWords(ctm, kCommaAndBlankSeparators);
    bool haveAngle = false;
    int angle = 0;
    for (size_t i = 0; i < tokens.size() && i < 6; ++i) {
        double value = 0.0;
        if (!convertStringToDouble(tokens[i].c_str(), &value)) continue;
        if (i == 0 && value >= -1.0 && value <= 1.0) {
            angle = static_cast<int>(std::floor(std::acos(value) * 180.0 / kPi + 0.5));
            haveAngle = true;
        } else if (i == 1 && haveAngle) {
            if (value < 0) angle = 360 - angle;
            setIntegerAttribute(mark, "mark-rotation", angle);
        } else if (i == 4) {
            setDoubleAttribute(mark, "mark-placement-x", value);
        } else if (i == 5) {
            setDoubleAttribute(mark, "mark-placement-y", value);
        }
    }
}

void readMarkPlacement(const xercesc::DOMElement *markObject, MarkImageSource *images,
                       zundo_int_object_s *mark) {
    zundo_trace(">> Entering readMarkPlacement \n");
    forEachAttribute(markObject, [&](const char *name, const char *value) {
        if (textIs(name, "CTM")) {
            readTransformation(value, mark);
        } else if (textIs(name, "morvellan:MediaTabRefAnchor")) {
            if (setIntegerAttribute(mark, "mark-tab", 1) != ZUNDO_OK) return false;
            setIntegerAttribute(mark, "mark-anchor", codeForJDFName(markAnchorValues, value));
        } else if (textIs(name, "morvellan:MarkRunListRun")) {
            readMarkImage(markObject, value, images, mark);
        }
        return true;
    });
    zundo_trace("<< Leaving readMarkPlacement \n");
}

void setCode(zundo_int_object_s *mark, const char *name, const zundo_enum_pair_s *values,
             const char *text) {
    setIntegerAttribute(mark, name, codeForJDFName(values, text));
}

void readDeviceMark(const xercesc::DOMElement *deviceMark, zundo_int_object_s *mark) {
    forEachAttribute(deviceMark, [&](const char *name, const char *value) {
        if (textIs(name, "Font")) {
            setStringAttribute(mark, "mark-text-font", value);
        } else if (textIs(name, "Anchor")) {
            setCode(mark, "mark-anchor", markAnchorValues, value);
        } else if (textIs(name, "FontSize")) {
            setRealFromText(mark, "mark-text-font-size", value);
        } else if (textIs(name, "morvellan:FontColorRGB")) {
            zundo_rgb_s *rgb = nullptr;
            if (newRGBFromString(&rgb, value) == ZUNDO_OK &&
                setRGBAttribute(mark, "mark-text-font-color-rgb", rgb) != ZUNDO_OK)
                destroyRGB(rgb);
        } else if (textIs(name, "morvellan:FontColor")) {
            setCode(mark, "mark-text-font-color", markTextFontColorValues, value);
        } else if (textIs(name, "morvellan:FontStyle")) {
            setStringAttribute(mark, "mark-text-font-style", value);
        } else if (textIs(name, "morvellan:CharOrientation")) {
            setCode(mark, "mark-text-char-orientation", markTextCharOrientationValues, value);
        } else if (textIs(name, "morvellan:FontTransparency")) {
            setIntegerAttribute(mark, "mark-text-font-transparency", convertLeadingDecimal(value));
        }
        return true;
    });
}

void readJobTemplate(const char *text, zundo_int_object_s *mark) {
    zundo_int_attribute_s *words = nullptr;
    if (newAttribute(&words, "mark-text-template", ZUNDO_KIND_INTEGER_LIST, nullptr) != ZUNDO_OK)
        return;
    for (const std::string &word : splitWords(text, kCommaAndBlankSeparators)) {
        int code = codeForJDFName(markTextTemplateValues, word.c_str());
        addValue(words, &code);
    }
    setAndReleaseAttribute(mark, words);
}

void readJobField(const xercesc::DOMElement *jobField, zundo_int_object_s *mark) {
    forEachAttribute(jobField, [&](const char *name, const char *value) {
        if (textIs(name, "JobFormat"))
            setStringAttribute(mark, "mark-text-format", value);
        else if (textIs(name, "morvellan:DateFormat"))
            setCode(mark, "mark-text-date-format", markTextDateFormatValues, value);
        else if (textIs(name, "morvellan:TimeFormat"))
            setCode(mark, "mark-text-time-format", markTextTimeFormatValues, value);
        else if (textIs(name, "JobTemplate"))
            readJobTemplate(value, mark);
        return true;
    });
}

void setText(const xercesc::DOMElement *element, zundo_int_object_s *object, const char *name) {
    char *text = nullptr;
    if (getElementText(element, &text).status == ZUNDO_OK) setStringAttribute(object, name, text);
    delete[] text;
}

void readMarkContent(const xercesc::DOMElement *markObject, zundo_int_object_s *mark) {
    zundo_trace(">> Entering readMarkContent \n");
    for (ElementEntry *child : ChildElements(markObject)) {
        if (textIs(child->name, "DeviceMark"))
            readDeviceMark(child->element, mark);
        else if (textIs(child->name, "JobField"))
            readJobField(child->element, mark);
        else if (textIs(child->name, "Comment"))
            setText(child->element, mark, "mark-placement-units");
    }
    zundo_trace("<< Leaving readMarkContent \n");
}

zundo_int_object_s *makeMark(const xercesc::DOMElement *markObject, MarkImageSource *images) {
    zundo_int_object_s *mark = nullptr;
    if (newMark(&mark, "", 0, 0.0, 0.0) != ZUNDO_OK) return nullptr;
    readMarkPlacement(markObject, images, mark);
    readMarkContent(markObject, mark);
    return mark;
}

void addMark(zundo_int_attribute_s *marks, zundo_int_object_s *mark) {
    if (mark != nullptr && addValue(marks, mark) != ZUNDO_OK) destroy(mark);
}

bool isMarkObject(const char *name) {
    return textIs(name, "MarkObject") || textIs(name, "morvellan:MarkObject");
}

void setBoolean(zundo_int_object_s *object, const char *name, const char *text) {
    setIntegerAttribute(object, name, convertBoolean(text));
}

zundo_int_object_s *makeTrimBleedMark(const xercesc::DOMElement *stripMark, int name) {
    zundo_int_object_s *mark = nullptr;
    if (newTrimBleedMark(&mark, name) != ZUNDO_OK) return nullptr;
    readCommentUnits(stripMark, mark, "AbsoluteHeight", "trim-bleed-mark-height-units");
    forEachAttribute(stripMark, [&](const char *jdf, const char *value) {
        if (textIs(jdf, "AbsoluteHeight"))
            setRealFromText(mark, "trim-bleed-mark-height", value);
        else if (textIs(jdf, "AbsoluteWidth"))
            setRealFromText(mark, "trim-bleed-mark-width", value);
        else if (textIs(jdf, "morvellan:Thickness"))
            setRealFromText(mark, "trim-bleed-mark-thickness", value);
        else if (textIs(jdf, "morvellan:NoOp"))
            setBoolean(mark, "trim-bleed-mark-off", value);
        else if (textIs(jdf, "morvellan:PrintMarkToMarginEdge"))
            setBoolean(mark, "trim-bleed-mark-print-to-margin-edge", value);
        else if (textIs(jdf, "MarkSide"))
            setCode(mark, "trim-bleed-mark-side", markSideValues, value);
        return true;
    });
    return mark;
}

zundo_int_object_s *makeRegisterMark(const xercesc::DOMElement *stripMark, int name) {
    zundo_int_object_s *mark = nullptr;
    if (newRegisterMark(&mark, name) != ZUNDO_OK) return nullptr;
    readCommentUnits(stripMark, mark, "Offset", "register-mark-offset-units");
    forEachAttribute(stripMark, [&](const char *jdf, const char *value) {
        if (textIs(jdf, "Offset"))
            setRealPairFromText(mark, "register-mark-offset-x", "register-mark-offset-y", value);
        else if (textIs(jdf, "morvellan:NoOp"))
            setBoolean(mark, "register-mark-off", value);
        else if (textIs(jdf, "MarkSide"))
            setCode(mark, "register-mark-side", markSideValues, value);
        return true;
    });
    return mark;
}

// Appends marks to a list attribute of the job. The list is fetched once
// and set back once, so that many marks cost no more than one append
// each. The fetched list borrows the job's own marks: when the job refuses
// the list, only the marks added here are destroyed.
class MarkAppender {
public:
    MarkAppender(zundo_int_object_s *job, const char *name) : job_(job), list_(get(job, name)) {}
    ~MarkAppender() {
        for (zundo_int_object_s *mark : added_) destroy(mark);
        destroyAttribute(list_);
    }
    MarkAppender(const MarkAppender &) = delete;
    MarkAppender &operator=(const MarkAppender &) = delete;

    void add(zundo_int_object_s *mark) {
        if (mark == nullptr) return;
        try {
            added_.push_back(mark);
        } catch (const std::bad_alloc &) {
            traceOutOfMemory("readStrippingParamsResource");
            destroy(mark);
            return;
        }
        if (list_ == nullptr || addValue(list_, mark) != ZUNDO_OK) {
            added_.pop_back();
            destroy(mark);
        }
    }
    void finish() {
        if (!added_.empty() && set(job_, list_) == ZUNDO_OK) added_.clear();
    }

private:
    zundo_int_object_s *job_;
    zundo_int_attribute_s *list_;
    std::vector<zundo_int_object_s *> added_;
};

}  // namespace

zundo_status_t readMarks(const xercesc::DOMElement *element, zundo_int_object_s *target,
                         const char *listName) {
    zundo_trace(">> Entering readMarks \n");
    zundo_int_attribute_s *marks = nullptr;
    zundo_status_t status = newAttribute(&marks, listName, ZUNDO_KIND_OBJECT, nullptr);
    if (status != ZUNDO_OK) {
        zundo_trace("<< Leaving readMarks \n");
        return status;
    }
    MarkImageSource images;
    ChildElements children(element);
    // A content object next to a mark says which of the two is printed
    // first.
    for (ElementEntry *const *cursor = children.begin(); cursor != children.end();) {
        const char *name = (*cursor)->name;
        if (textIs(name, "morvellan:ContentObject")) {
            ++cursor;
            if (cursor != children.end() && textIs((*cursor)->name, "morvellan:MarkObject")) {
                zundo_int_object_s *mark = makeMark((*cursor)->element, &images);
                if (mark != nullptr) setIntegerAttribute(mark, "mark-order", 2);
                addMark(marks, mark);
                ++cursor;
            }
        } else if (isMarkObject(name)) {
            zundo_int_object_s *mark = makeMark((*cursor)->element, &images);
            ++cursor;
            if (cursor != children.end() && textIs((*cursor)->name, "morvellan:ContentObject")) {
                if (mark != nullptr) setIntegerAttribute(mark, "mark-order", 1);
                ++cursor;
            }
            addMark(marks, mark);
        } else {
            ++cursor;
        }
    }
    setAndReleaseAttribute(target, marks);
    zundo_trace("<< Leaving readMarks \n");
    return ZUNDO_OK;
}

zundo_int_object_s *makeMarksInsertSheet(const xercesc::DOMElement *markParent) {
    zundo_range_s *all = nullptr;
    if (newRange(&all, 0, -1) != ZUNDO_OK) return nullptr;
    zundo_range_s *pages[] = {all, nullptr};
    zundo_int_object_s *sheet = nullptr;
    if (newInsertSheet(&sheet, 1, pages, nullptr) != ZUNDO_OK) return nullptr;
    readMarks(markParent, sheet, "insert-sheet-marks");
    return sheet;
}

void copyInsertSheetMarks(zundo_int_object_s *from, zundo_int_object_s *to) {
    if (from == nullptr || to == nullptr) return;
    zundo_int_attribute_s *marks = get(from, "insert-sheet-marks");
    zundo_int_attribute_s *copies = nullptr;
    if (marks != nullptr &&
        newAttribute(&copies, "insert-sheet-marks", ZUNDO_KIND_OBJECT, nullptr) == ZUNDO_OK) {
        while (hasNextValue(marks)) {
            zundo_int_object_s *copy = nullptr;
            if (cloneMark(&copy, static_cast<zundo_int_object_s *>(nextValue(marks))) == ZUNDO_OK)
                addMark(copies, copy);
        }
        setAndReleaseAttribute(to, copies);
    }
    destroyAttribute(marks);
}

zundo_status_t readStrippingParamsResource(xercesc::DOMElement *resource,
                                           zundo_int_object_s *ticket) {
    zundo_trace(">> Entering readStrippingParamsResource \n");
    zundo_int_object_s *job = getJob(ticket);
    MarkAppender trimBleedMarks(job, "job-trim-bleed-marks");
    MarkAppender registerMarks(job, "job-register-marks");
    for (ElementEntry *child : ChildElements(resource)) {
        if (!textIs(child->name, "StripMark")) continue;
        ElementAttribute name(child->element, "MarkName");
        const zundo_enum_pair_s *trimBleed = pairForJdfName(trimBleedMarkNameValues, name.value());
        const zundo_enum_pair_s *registerName =
            pairForJdfName(registerMarkNameValues, name.value());
        if (trimBleed != nullptr)
            trimBleedMarks.add(makeTrimBleedMark(child->element, trimBleed->code));
        else if (registerName != nullptr)
            registerMarks.add(makeRegisterMark(child->element, registerName->code));
    }
    trimBleedMarks.finish();
    registerMarks.finish();
    zundo_trace("<< Leaving readStrippingParamsResource \n");
    return ZUNDO_OK;
}

zundo_status_t readLayoutResource(xercesc::DOMElement *resource, zundo_int_object_s *ticket) {
    zundo_trace(">> Entering readLayoutResource \n");
    xercesc::DOMElement *markObject = ChildElements(resource).first("MarkObject");
    xercesc::DOMElement *strip = ChildElements(markObject).first("ColorControlStrip");
    forEachAttribute(strip, [ticket](const char *name, const char *value) {
        const char *barType = nullptr;
        if (textIs(name, "StripType"))
            barType = value;
        else if (textIs(name, "NoOp") && textIs(value, "true"))
            barType = "None";
        if (barType != nullptr)
            setStringAttribute(getJob(ticket), "job-color-control-bar-type", barType);
        return barType == nullptr;
    });
    zundo_trace("<< Leaving readLayoutResource \n");
    return ZUNDO_OK;
}
