// One-attribute writer steps.
#include "write/one_attribute_writers.h"

#include "enums/value_tables.h"
#include "values/value_objects.h"
#include "write/attribute_cascade.h"
#include "write/jdf_attr.h"
#include "write/number_format.h"
#include "write/object_values.h"
#include "write/resource_getters.h"
#include "zundo_trace.h"

namespace {

const ObjectValueRow kDefaultFontRows[] = {
    {"job-use-default-font", "UseDefaultFont", booleanValues, getFontPolicy},
    {nullptr, nullptr, nullptr, nullptr},
};
const ObjectValueRow kMirrorSurfaceRows[] = {
    {"job-mirror-surface", "MirrorAround", jobMirrorSurfaceValues, getInterpretingParams},
    {nullptr, nullptr, nullptr, nullptr},
};
const ObjectValueRow kPSDSCOptimizationRows[] = {
    {"job-use-ps-dsc-optimization", "morvellan:UsePSDSCOptimization", booleanValues,
     getDigitalPrintingParams},
    {nullptr, nullptr, nullptr, nullptr},
};
const ObjectValueRow kPrintingTypeRows[] = {
    {"job-printing-type", "PrintingType", jobPrintingTypeValues, getDigitalPrintingParams},
    {nullptr, nullptr, nullptr, nullptr},
};

void writeRowsTraced(JDFWriteContext *ctx, zundo_int_object_s *job, const ObjectValueRow *rows,
                     const char *writer) {
    zundo_trace(">> entering %s\n", writer);
    writeObjectValues(ctx, job, rows);
    zundo_trace("<< leaving %s\n", writer);
}

// A new child of InterpretingParams; null (traced) when it cannot be made.
xercesc::DOMElement *appendInterpretingChild(JDFWriteContext *ctx, const char *name) {
    xercesc::DOMElement *params = getInterpretingParams(ctx);
    return params != nullptr ? appendChildTraced(params, name) : nullptr;
}

}  // namespace

void writeUseDefaultFont(JDFWriteContext *ctx, zundo_int_object_s *job) {
    writeRowsTraced(ctx, job, kDefaultFontRows, "writeUseDefaultFont");
}

void writeMirrorSurface(JDFWriteContext *ctx, zundo_int_object_s *job) {
    writeRowsTraced(ctx, job, kMirrorSurfaceRows, "writeMirrorSurface");
}

void writeUsePSDSCOptimization(JDFWriteContext *ctx, zundo_int_object_s *job) {
    writeRowsTraced(ctx, job, kPSDSCOptimizationRows, "writeUsePSDSCOptimization");
}

void writePrintingType(JDFWriteContext *ctx, zundo_int_object_s *job) {
    writeRowsTraced(ctx, job, kPrintingTypeRows, "writePrintingType");
}

void writeProofPrint(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeProofPrint\n");
    FetchedAttribute copies(FetchedAttribute(job, "job-proof-print").firstObject(),
                            "proof-print-copies");
    if (copies.hasValue()) {
        char text[kNumberTextSize];
        writeJDFAttr(ctx, "DirectProofAmount", formatInteger(text, sizeof text, copies.firstInt(0)),
                     0, nullptr, nullptr, getDigitalPrintingParams);
    }
    zundo_trace("<< leaving writeProofPrint\n");
}

void writePDFCacheXObjects(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writePDFCacheXObjects\n");
    const char *caching = jdfNameForCode(
        jobPdfCacheXobjectsValues, FetchedAttribute(job, "job-pdf-cache-xobjects").firstInt(0));
    xercesc::DOMElement *pdf =
        caching != nullptr ? appendInterpretingChild(ctx, "PDFInterpretingParams") : nullptr;
    if (pdf != nullptr) setAttributeTraced(pdf, "morvellan:CacheXObjects", caching);
    zundo_trace("<< leaving writePDFCacheXObjects\n");
}

void writeImageResolution(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeImageResolution\n");
    FetchedAttribute x(job, "job-resolution-image-x");
    FetchedAttribute y(job, "job-resolution-image-y");
    xercesc::DOMElement *resolution =
        x.hasValue() && y.hasValue() ? appendInterpretingChild(ctx, "ObjectResolution") : nullptr;
    if (resolution != nullptr) {
        char text[kPairTextSize];
        setAttributeTraced(
            resolution, "Resolution",
            formatValueText(text, sizeof text, "%i %i", x.firstInt(0), y.firstInt(0)));
        setAttributeTraced(resolution, "SourceObjects", "ImagePhotographic");
    }
    zundo_trace("<< leaving writeImageResolution\n");
}
