// The job's one-value layout writers: orientation hint, binding edge and
// the number-up settings of LayoutPreparationParams with their units.
#include "write/layout_writers.h"

#include <new>
#include <string>

#include "enums/value_tables.h"
#include "write/attribute_cascade.h"
#include "write/comments.h"
#include "write/element_values.h"
#include "write/jdf_attr.h"
#include "write/number_format.h"
#include "write/object_values.h"
#include "write/resource_getters.h"
#include "zundo_trace.h"

namespace {

const ObjectValueRow kBindingEdgeRows[] = {
    {"job-binding-edge", "BindingEdge", jobBindingEdgeValues, getLayoutPreparationParams},
    {nullptr, nullptr, nullptr, nullptr},
};
const ObjectValueRow kFitBoxRows[] = {
    {"job-number-up-fit-box", "morvellan:FitBox", jobNumberUpFitBoxValues,
     getLayoutPreparationParams},
    {nullptr, nullptr, nullptr, nullptr},
};
const ObjectValueRow kFinishingOrderRows[] = {
    {"job-number-up-finishing-order", "FinishingOrder", jobNumberUpFinishingOrderValues,
     getLayoutPreparationParams},
    {nullptr, nullptr, nullptr, nullptr},
};
const ObjectValueRow kDoubleImpositionRows[] = {
    {"job-number-up-double-imposition-cell-to-rotate", "morvellan:DoubleImpositionCellToRotate",
     jobNumberUpDoubleImpositionCellToRotateValues, getLayoutPreparationParams},
    {nullptr, nullptr, nullptr, nullptr},
};

// "x y" of two real job values on LayoutPreparationParams, when either is
// given (the other 0).
void writeRealPair(JDFWriteContext *ctx, zundo_int_object_s *job, const char *xName,
                   const char *yName, const char *jdfName) {
    FetchedAttribute x(job, xName);
    FetchedAttribute y(job, yName);
    char pair[kPairTextSize];
    if ((x.hasValue() || y.hasValue()) &&
        formatRealPair(pair, sizeof pair, x.firstDouble(0.0), y.firstDouble(0.0)) != nullptr)
        writeJDFAttr(ctx, jdfName, pair, 0, nullptr, nullptr, getLayoutPreparationParams);
}

// The job-level ImageShift, made for the units when the cascade wrote none.
xercesc::DOMElement *jobImageShift(JDFWriteContext *ctx) {
    if (ctx->imageShift == nullptr) {
        xercesc::DOMElement *params = getLayoutPreparationParams(ctx);
        if (params != nullptr) ctx->imageShift = appendChildTraced(params, "ImageShift");
    }
    return ctx->imageShift;
}

}  // namespace

void writeOrientationHint(JDFWriteContext *ctx, zundo_int_object_s *job) {
    FetchedAttribute hint(job, "job-orientation-hint");
    if (!hint.hasValue()) return;
    zundo_trace("\t orientation hint = %s \n", hint.firstString());
    addComment(ctx->root, hint.firstString(), nullptr, "Orientation");
}

void writeBindingEdge(JDFWriteContext *ctx, zundo_int_object_s *job) {
    writeObjectValues(ctx, job, kBindingEdgeRows);
}

void writeNumberUpPresentationOrder(JDFWriteContext *ctx, zundo_int_object_s *job) {
    FetchedAttribute order(job, "job-number-up-presentation-order");
    zundo_int_attribute_s *numbers = order.attribute();
    resetIterator(numbers);
    try {
        std::string text;
        while (hasNextValue(numbers)) {
            const auto *number = static_cast<const int *>(nextValue(numbers));
            if (number == nullptr) continue;
            if (!text.empty()) text += ' ';
            text += std::to_string(*number);
        }
        if (!text.empty())
            writeJDFAttr(ctx, "morvellan:PresentationOrder", text.c_str(), 0, nullptr, nullptr,
                         getLayoutPreparationParams);
    } catch (const std::bad_alloc &) {
        traceOutOfMemory("writeNumberUpPresentationOrder");
    }
}

void writeNumberUpGutters(JDFWriteContext *ctx, zundo_int_object_s *job) {
    writeRealPair(ctx, job, "job-number-up-gutter-x", "job-number-up-gutter-y", "ImplicitGutter");
}

void writeNumberUpFitBox(JDFWriteContext *ctx, zundo_int_object_s *job) {
    writeObjectValues(ctx, job, kFitBoxRows);
}

void writeLayoutUnits(JDFWriteContext *ctx, zundo_int_object_s *job) {
    static const struct {
        const char *units;
        const char *jdfName;
    } kNumberUpUnits[] = {
        {"job-number-up-creep-units", "CreepValue"},
        {"job-number-up-scb-units", "SurfaceContentsBox"},
        {"job-number-up-gutter-units", "ImplicitGutter"},
    };
    for (const auto &units : kNumberUpUnits)
        if (objectHasValue(job, units.units))
            writeUnitsComment(getLayoutPreparationParams(ctx), job, units.units, units.jdfName);
    if (objectHasValue(job, "job-image-shift-units"))
        writeUnitsComment(jobImageShift(ctx), job, "job-image-shift-units", "ShiftFront");
    if (objectHasValue(job, "job-trimming-units"))
        writeUnitsComment(getTrimmingParams(ctx), job, "job-trimming-units", "TrimmingOffset");
}

void writeFinishingOrderAndCreep(JDFWriteContext *ctx, zundo_int_object_s *job) {
    writeObjectValues(ctx, job, kFinishingOrderRows);
    writeRealPair(ctx, job, "job-number-up-creep-x", "job-number-up-creep-y", "CreepValue");
}

void writeDoubleImpositionCellToRotate(JDFWriteContext *ctx, zundo_int_object_s *job) {
    writeObjectValues(ctx, job, kDoubleImpositionRows);
}
