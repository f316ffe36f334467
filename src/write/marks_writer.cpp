// Marks of the written ticket: MarkObjects with their transformation,
// device mark, job field and image; the colour control strip of the
// Layout; register and trim/bleed strip marks.
#include <cmath>
#include <cstring>
#include <new>
#include <string>
#include <xercesc/dom/DOMElement.hpp>

#include "enums/value_tables.h"
#include "job/abstract_jdp.h"
#include "values/value_objects.h"
#include "write/element_values.h"
#include "write/jdf_attr.h"
#include "write/layout_writers.h"
#include "write/number_format.h"
#include "write/object_values.h"
#include "write/resource_getters.h"
#include "xml/partitions.h"
#include "zundo_trace.h"

namespace {

const double kPi = 3.14159265;
const int kMarkAfterContent = 2;  // "mark-order"
const char kIdentityCTM[] = "1 0 0 1 0 0";
const unsigned kMaxUrlChars = 4095;

const ElementValueRow kDeviceMarkRows[] = {
    {"mark-text-font", "Font", kTextValue, nullptr},
    {"mark-text-font-size", "FontSize", kRealValue, nullptr},
    {"mark-text-font-color", "morvellan:FontColor", kCodeValue, markTextFontColorValues},
    {"mark-text-font-style", "morvellan:FontStyle", kTextValue, nullptr},
    {"mark-text-font-transparency", "morvellan:FontTransparency", kIntegerValue, nullptr},
    {"mark-text-char-orientation", "morvellan:CharOrientation", kCodeValue,
     markTextCharOrientationValues},
    {nullptr, nullptr, kTextValue, nullptr},
};
const ElementValueRow kJobFieldFormatRows[] = {
    {"mark-text-date-format", "morvellan:DateFormat", kCodeValue, markTextDateFormatValues},
    {"mark-text-time-format", "morvellan:TimeFormat", kCodeValue, markTextTimeFormatValues},
    {nullptr, nullptr, kTextValue, nullptr},
};
const ElementValueRow kRegisterMarkRows[] = {
    {"register-mark-name", "MarkName", kCodeValue, registerMarkNameValues},
    {"register-mark-off", "morvellan:NoOp", kCodeValue, booleanValues},
    {"register-mark-side", "MarkSide", kCodeValue, markSideValues},
    {nullptr, nullptr, kTextValue, nullptr},
};
const ElementValueRow kTrimBleedMarkRows[] = {
    {"trim-bleed-mark-height", "AbsoluteHeight", kRealValue, nullptr},
    {"trim-bleed-mark-width", "AbsoluteWidth", kRealValue, nullptr},
    {"trim-bleed-mark-thickness", "morvellan:Thickness", kRealValue, nullptr},
    {"trim-bleed-mark-name", "MarkName", kCodeValue, trimBleedMarkNameValues},
    {"trim-bleed-mark-off", "morvellan:NoOp", kCodeValue, booleanValues},
    {"trim-bleed-mark-print-to-margin-edge", "morvellan:PrintMarkToMarginEdge", kCodeValue,
     booleanValues},
    {"trim-bleed-mark-side", "MarkSide", kCodeValue, markSideValues},
    {nullptr, nullptr, kTextValue, nullptr},
};

// Matrix entries with four decimals; a zero is never written as "-0".
char *formatMatrixEntry(char *buffer, size_t size, double value) {
    return convertDoubleToStringJT(buffer, size, "%0.4f", value + 0.0);
}

// A mark without rotation or placement is written unrotated at the origin.
void setTransformation(zundo_int_object_s *mark, xercesc::DOMElement *markObject) {
    int rotation = FetchedAttribute(mark, "mark-rotation").firstInt(0);
    double radians = rotation * kPi / 180.0;
    double cosine = std::cos(radians);
    double sine = std::sin(radians);
    if (rotation == 90 || rotation == 270) cosine = 0.0;
    if (rotation == 180) sine = 0.0;
    char entries[4][kNumberTextSize];
    char x[kNumberTextSize];
    char y[kNumberTextSize];
    formatMatrixEntry(entries[0], sizeof entries[0], cosine);
    formatMatrixEntry(entries[1], sizeof entries[1], sine);
    formatMatrixEntry(entries[2], sizeof entries[2], -sine);
    formatMatrixEntry(entries[3], sizeof entries[3], cosine);
    formatReal(x, sizeof x, FetchedAttribute(mark, "mark-placement-x").firstDouble(0.0));
    formatReal(y, sizeof y, FetchedAttribute(mark, "mark-placement-y").firstDouble(0.0));
    char ctm[6 * kNumberTextSize];
    if (formatValueText(ctm, sizeof ctm, "%s %s %s %s %s %s", entries[0], entries[1], entries[2],
                        entries[3], x, y) != nullptr)
        setAttributeTraced(markObject, "CTM", ctm);
}

void appendContentObject(xercesc::DOMElement *holder) {
    xercesc::DOMElement *content = appendChildTraced(holder, "morvellan:ContentObject");
    if (content != nullptr) setAttributeTraced(content, "CTM", kIdentityCTM);
}

// The MarkObject of a new mark with its content object: a mark printed
// after the content follows it, as the vendor's own MarkObject.
xercesc::DOMElement *appendMarkObject(zundo_int_object_s *mark, xercesc::DOMElement *holder) {
    int order = FetchedAttribute(mark, "mark-order").firstInt(0);
    if (order == kMarkAfterContent) {
        appendContentObject(holder);
        return appendChildTraced(holder, "morvellan:MarkObject");
    }
    xercesc::DOMElement *markObject = appendChildTraced(holder, "MarkObject");
    if (order != 0) appendContentObject(holder);
    return markObject;
}

void writeDeviceMark(zundo_int_object_s *mark, xercesc::DOMElement *markObject) {
    xercesc::DOMElement *deviceMark = appendChildTraced(markObject, "DeviceMark");
    const char *anchor =
        jdfNameForCode(markAnchorValues, FetchedAttribute(mark, "mark-anchor").firstInt(0));
    if (anchor != nullptr) {
        if (FetchedAttribute(mark, "mark-tab").firstInt(0) == 1) {
            setAttributeTraced(markObject, "morvellan:MediaTabRefAnchor", anchor);
        } else {
            xercesc::DOMElement *refAnchor = appendChildTraced(markObject, "RefAnchor");
            if (refAnchor != nullptr) setAttributeTraced(refAnchor, "Anchor", anchor);
        }
        if (deviceMark != nullptr) setAttributeTraced(deviceMark, "Anchor", anchor);
    }
    writeElementValues(deviceMark, mark, kDeviceMarkRows);
    FetchedAttribute rgb(mark, "mark-text-font-color-rgb");
    zundo_int_attribute_s *colours = rgb.attribute();
    resetIterator(colours);
    const auto *colour =
        static_cast<const zundo_rgb_s *>(hasNextValue(colours) ? nextValue(colours) : nullptr);
    char text[ZUNDO_RGB_TEXT_SIZE];
    if (deviceMark != nullptr && colour != nullptr)
        setAttributeTraced(deviceMark, "morvellan:FontColorRGB", toStringRGB(text, colour));
}

void writeJobField(zundo_int_object_s *mark, xercesc::DOMElement *markObject) {
    xercesc::DOMElement *jobField = appendChildTraced(markObject, "JobField");
    if (jobField == nullptr) return;
    FetchedAttribute format(mark, "mark-text-format");
    if (format.firstString() != nullptr)
        setAttributeTraced(jobField, "JobFormat", format.firstString());
    FetchedAttribute templates(mark, "mark-text-template");
    zundo_int_attribute_s *codes = templates.attribute();
    resetIterator(codes);
    try {
        std::string words;
        while (hasNextValue(codes)) {
            const auto *code = static_cast<const int *>(nextValue(codes));
            const char *word =
                code != nullptr ? jdfNameForCode(markTextTemplateValues, *code) : nullptr;
            if (word == nullptr) continue;
            if (!words.empty()) words += ' ';
            words += word;
        }
        if (!words.empty()) setAttributeTraced(jobField, "JobTemplate", words.c_str());
    } catch (const std::bad_alloc &) {
        traceOutOfMemory("writeJobField");
    }
    writeElementValues(jobField, mark, kJobFieldFormatRows);
}

// MimeType and, for a versioned format, MimeTypeVersion.
void writeImageFormat(xercesc::DOMElement *fileSpec, const char *format) {
    const char *mimeType = getJDFValueFromChar("job-destination-connector-file-format", format);
    if (mimeType != nullptr) setAttributeTraced(fileSpec, "MimeType", mimeType);
    // The mapping hands back its input for a format it does not know.
    const char *version = getJDFValueFromChar("doc-format-version", format);
    if (version != nullptr && version != format)
        setAttributeTraced(fileSpec, "MimeTypeVersion", version);
}

// The image as a Run of the RunList (marks) that the MarkObject names.
void writeMarkImage(JDFWriteContext *ctx, zundo_int_object_s *mark,
                    xercesc::DOMElement *markObject) {
    FetchedAttribute fileName(mark, "mark-image-filename");
    FetchedAttribute format(mark, "mark-image-format");
    FetchedAttribute width(mark, "mark-image-width");
    FetchedAttribute height(mark, "mark-image-height");
    if (!fileName.hasValue() && !format.hasValue() && !width.hasValue() && !height.hasValue())
        return;
    xercesc::DOMElement *runList = getRunListMarks(ctx);
    if (runList == nullptr) return;
    char run[kNumberTextSize];
    formatInteger(run, sizeof run, ctx->markImageCounter++);
    xercesc::DOMElement *partition = appendPartition(runList, "Run", run);
    if (partition == nullptr) {
        zundo_trace("parser_error %i, \n", ZUNDO_INTERNAL_ERROR);
        return;
    }
    setAttributeTraced(markObject, "morvellan:MarkRunListRun", run);
    xercesc::DOMElement *byteMap = appendChildTraced(partition, "ByteMap");
    if (byteMap == nullptr) return;
    if (fileName.hasValue() || format.hasValue()) {
        xercesc::DOMElement *fileSpec = appendChildTraced(byteMap, "FileSpec");
        if (fileSpec != nullptr && format.hasValue())
            writeImageFormat(fileSpec, format.firstString());
        const AttributeEntry url = {"URL", fileName.firstString(), nullptr, nullptr};
        if (fileSpec != nullptr && url.value != nullptr)
            succeededTraced(setElementAttribute(fileSpec, &url, kMaxUrlChars).status);
    }
    char number[kNumberTextSize];
    if (height.hasValue())
        setAttributeTraced(byteMap, "FrameHeight",
                           formatInteger(number, sizeof number, height.firstInt(0)));
    if (width.hasValue())
        setAttributeTraced(byteMap, "FrameWidth",
                           formatInteger(number, sizeof number, width.firstInt(0)));
}

// A StripMark of morvellan:StrippingParams, made with the first mark.
xercesc::DOMElement *appendStripMark(JDFWriteContext *ctx) {
    xercesc::DOMElement *params = getStrippingParams(ctx);
    return params != nullptr ? appendChildTraced(params, "StripMark") : nullptr;
}

}  // namespace

void writeMark(JDFWriteContext *ctx, zundo_int_object_s *mark, xercesc::DOMElement *parent,
               const char *runRange, xercesc::DOMElement *existing) {
    zundo_trace(">> entering writeMark\n");
    xercesc::DOMElement *markObject = existing;
    if (markObject == nullptr && parent != nullptr) {
        xercesc::DOMElement *holder =
            runRange != nullptr
                ? findOrCreateSubPartition(parent, "Run", nullptr, "RunIndex", runRange, "RunIndex")
                : parent;
        if (holder == nullptr)
            zundo_trace("parser_error %i, \n", ZUNDO_INTERNAL_ERROR);
        else
            markObject = appendMarkObject(mark, holder);
    }
    if (markObject != nullptr) {
        setTransformation(mark, markObject);
        writeDeviceMark(mark, markObject);
        writeJobField(mark, markObject);
        writeUnitsComment(markObject, mark, "mark-placement-units", "CTM");
        writeMarkImage(ctx, mark, markObject);
    }
    zundo_trace("<< leaving writeMark\n");
}

void writeObjectMarks(JDFWriteContext *ctx, zundo_int_object_s *object, const char *runRange) {
    forEachObject(followingAbstractJDP(object), "marks", [&](zundo_int_object_s *mark) {
        writeMark(ctx, mark, getLayoutPreparationParams(ctx), runRange, nullptr);
    });
}

void writeColorControlBar(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeColorControlBar\n");
    FetchedAttribute barType(job, "job-color-control-bar-type");
    xercesc::DOMElement *layout = barType.hasValue() ? getLayout(ctx) : nullptr;
    xercesc::DOMElement *markObject =
        layout != nullptr ? appendChildTraced(layout, "MarkObject") : nullptr;
    if (markObject != nullptr) {
        setAttributeTraced(markObject, "CTM", "1 0 0 1 0 11.34");
        xercesc::DOMElement *strip = appendChildTraced(markObject, "ColorControlStrip");
        if (strip != nullptr && std::strcmp(barType.firstString(), "None") == 0) {
            setAttributeTraced(strip, "NoOp", "true");
        } else if (strip != nullptr) {
            setAttributeTraced(strip, "NoOp", "false");
            setAttributeTraced(strip, "StripType", barType.firstString());
        }
    }
    zundo_trace("<< leaving writeColorControlBar\n");
}

void writeRegisterMarks(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeRegisterMarks\n");
    forEachObject(job, "job-register-marks", [ctx](zundo_int_object_s *mark) {
        xercesc::DOMElement *stripMark = appendStripMark(ctx);
        if (stripMark == nullptr) return;
        setAttributeTraced(stripMark, "Anchor", "Center");
        setAttributeTraced(stripMark, "MarkContext", "Cell");
        writeElementValues(stripMark, mark, kRegisterMarkRows);
        writeRealPairValue(stripMark, mark, "register-mark-offset-x", "register-mark-offset-y",
                           "Offset", 0.0);
        writeUnitsComment(stripMark, mark, "register-mark-offset-units", "Offset");
    });
    zundo_trace("<< leaving writeRegisterMarks\n");
}

void writeTrimBleedMarks(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeTrimBleedMarks\n");
    forEachObject(job, "job-trim-bleed-marks", [ctx](zundo_int_object_s *mark) {
        xercesc::DOMElement *stripMark = appendStripMark(ctx);
        if (stripMark == nullptr) return;
        setAttributeTraced(stripMark, "MarkContext", "Cell");
        writeElementValues(stripMark, mark, kTrimBleedMarkRows);
        writeUnitsComment(stripMark, mark, "trim-bleed-mark-height-units", "AbsoluteHeight");
    });
    zundo_trace("<< leaving writeTrimBleedMarks\n");
}
