// Attribute values of ticket objects written onto elements that are never
// partitioned: sub-elements such as marks, strip marks, page cells and
// sheets.
#ifndef ZUNDO_WRITE_ELEMENT_VALUES_H
#define ZUNDO_WRITE_ELEMENT_VALUES_H

#include "enums/conversion_table.h"
#include "write/object_values.h"
#include "write/writer_context.h"

enum ValueSpelling {
    kTextValue,     // the text unchanged
    kCodeValue,     // the code's JDF name in the row's table
    kRealValue,     // "%0.6f" trimmed
    kIntegerValue,  // "%i"
};

struct ElementValueRow {
    const char *attribute;
    const char *jdfName;
    ValueSpelling spelling;
    const zundo_enum_pair_s *values;  // for kCodeValue
};

// Sets each row, up to a row with a null attribute, that the object has a
// value for (a code without a JDF name is left out).
void writeElementValues(xercesc::DOMElement *element, zundo_int_object_s *object,
                        const ElementValueRow *rows);

// "x y" of two real attributes, written when either has a value; the other
// is written as `missing`.
void writeRealPairValue(xercesc::DOMElement *element, zundo_int_object_s *object, const char *xName,
                        const char *yName, const char *jdfName, double missing);

// The text of a units attribute as a Description comment naming jdfName.
void writeUnitsComment(xercesc::DOMElement *element, zundo_int_object_s *object,
                       const char *unitsName, const char *jdfName);

// Calls write(object) for every value of an object-list attribute.
template <typename Write>
void forEachObject(zundo_int_object_s *owner, const char *name, Write write) {
    FetchedAttribute list(owner, name);
    zundo_int_attribute_s *values = list.attribute();
    resetIterator(values);
    while (hasNextValue(values)) {
        auto *object = static_cast<zundo_int_object_s *>(nextValue(values));
        if (object != nullptr) write(object);
    }
}

#endif
