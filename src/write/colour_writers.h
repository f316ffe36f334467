// The job's colour settings in the written ticket: the colour conversion
// operations and ICC profiles of ColorSpaceConversionParams, ColorantControl
// with the colour planes, the rendering settings of RenderingParams, toner
// limits, maximum densities and the calibration type.
#ifndef ZUNDO_WRITE_COLOUR_WRITERS_H
#define ZUNDO_WRITE_COLOUR_WRITERS_H

#include <cstddef>
#include <new>
#include <string>

#include "enums/conversion_table.h"
#include "write/element_values.h"
#include "write/object_values.h"
#include "write/writer_context.h"

// Writer steps, in the order the driver runs them.
void writeBlackOverprint(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeEdgeEnhancement(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeOutputIntentProfileUse(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeTonerLimit(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeSpotColorMatching(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeICCProfile(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeColorantControl(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeMaximumDensities(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeCalibrationType(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeColorPlanes(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeSubstituteColorTable(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeColorRenderingIntent(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeBlackPointCompensation(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeRGBGray2Black(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeCMYGray2Black(JDFWriteContext *ctx, zundo_int_object_s *job);
void writePreserveCMYColors(JDFWriteContext *ctx, zundo_int_object_s *job);
void writePreserveKBlack(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeBlackSubstitution(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeAntiAliasingAndResolution(JDFWriteContext *ctx, zundo_int_object_s *job);

// The colour profiles of a media whose Media resource is being written, as
// profile operations whose SourceResource refers to that media.
void writeMediaColorProfiles(JDFWriteContext *ctx, zundo_int_object_s *media);

// Shared by the colour writers.

// A single object kind and the part it adds to an attribute name.
struct ObjectKindName {
    const char *jdf;
    const char *suffix;
};
// "All", "ImagePhotographic", "LineArt", "SmoothShades", "Text", the
// order their settings are written in.
extern const ObjectKindName kObjectKindNames[5];

// The one value attribute of the object, spelled as in an element value
// row, set as jdfName on the element (null: nothing).
void writeElementValue(xercesc::DOMElement *element, zundo_int_object_s *object,
                       const char *attribute, const char *jdfName, ValueSpelling spelling,
                       const zundo_enum_pair_s *values);
// Whether the object has a value for any of the rows (up to a row with a
// null attribute).
bool hasAnyElementValue(zundo_int_object_s *object, const ElementValueRow *rows);

// A new "ColorSpaceConversionOp" child with Operation "Convert",
// SourceObjects and, when given, SourceCS; null (traced) when it cannot be
// made.
xercesc::DOMElement *appendColorConversionOp(xercesc::DOMElement *parent, const char *sourceObjects,
                                             const char *sourceCS);

// The values of a list attribute spelled by spell (null skips a value),
// joined by single blanks into *joined. False when memory runs out.
template <typename Spell>
bool joinValues(zundo_int_object_s *object, const char *name, Spell spell, std::string *joined) {
    FetchedAttribute values(object, name);
    zundo_int_attribute_s *list = values.attribute();
    resetIterator(list);
    try {
        while (hasNextValue(list)) {
            const char *text = spell(nextValue(list));
            if (text == nullptr) continue;
            if (!joined->empty()) *joined += ' ';
            *joined += text;
        }
    } catch (const std::bad_alloc &) {
        return false;
    }
    return true;
}

#endif
