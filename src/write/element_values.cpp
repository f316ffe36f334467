// Values of ticket objects on sub-elements.
#include "write/element_values.h"

#include "enums/value_tables.h"
#include "write/comments.h"
#include "write/jdf_attr.h"
#include "write/number_format.h"
#include "write/object_values.h"

namespace {

// The JDF text of the first value, or null.
const char *spell(const FetchedAttribute &value, const ElementValueRow &row, char *buffer,
                  size_t size) {
    if (!value.hasValue()) return nullptr;
    switch (row.spelling) {
        case kCodeValue:
            return jdfNameForCode(row.values, value.firstInt(0));
        case kRealValue:
            return formatReal(buffer, size, value.firstDouble(0.0));
        case kIntegerValue:
            return formatInteger(buffer, size, value.firstInt(0));
        case kTextValue:
            break;
    }
    return value.firstString();
}

}  // namespace

void writeElementValues(xercesc::DOMElement *element, zundo_int_object_s *object,
                        const ElementValueRow *rows) {
    if (element == nullptr) return;
    for (const ElementValueRow *row = rows; row->attribute != nullptr; ++row) {
        FetchedAttribute value(object, row->attribute);
        char buffer[kNumberTextSize];
        const char *text = spell(value, *row, buffer, sizeof buffer);
        if (text != nullptr) setAttributeTraced(element, row->jdfName, text);
    }
}

void writeRealPairValue(xercesc::DOMElement *element, zundo_int_object_s *object, const char *xName,
                        const char *yName, const char *jdfName, double missing) {
    FetchedAttribute x(object, xName);
    FetchedAttribute y(object, yName);
    if (element == nullptr || (!x.hasValue() && !y.hasValue())) return;
    char pair[kPairTextSize];
    if (formatRealPair(pair, sizeof pair, x.firstDouble(missing), y.firstDouble(missing)) !=
        nullptr)
        setAttributeTraced(element, jdfName, pair);
}

void writeUnitsComment(xercesc::DOMElement *element, zundo_int_object_s *object,
                       const char *unitsName, const char *jdfName) {
    FetchedAttribute units(object, unitsName);
    if (element != nullptr && units.hasValue())
        addDescriptionComment(element, units.firstString(), jdfName);
}
