// The text conversions every JDF resource reader shares, and the ways they
// put a converted value on an object. Whole-text integer and real
// conversions are convertStringToInt and convertStringToDouble
// (xml/jdf_lists.h); enumerations go through getZUNDOEnumValue, which
// already gives 0 for an unknown JDF name.
//
// The setters below set nothing when the text does not convert and then
// return ZUNDO_INVALID_ARGUMENT; otherwise they return the status of the
// set. Value objects they make pass to the object, or are destroyed when
// the object refuses them.
#ifndef ZUNDO_READ_READER_CONVERSIONS_H
#define ZUNDO_READ_READER_CONVERSIONS_H

#include <cstddef>
#include <string>
#include <vector>

#include "enums/conversion_table.h"
#include "xml/jdf_lists.h"

// Separators of word lists: blanks, or commas and blanks.
extern const char kBlankSeparators[];
extern const char kCommaAndBlankSeparators[];

// "true" 1, "false" 0, anything else (null included) -1.
int convertBoolean(const char *text);
// The code of `text` in a table of the reader's own ending with
// {-1, nullptr}; 0 when the table does not hold it.
int codeForJDFName(const zundo_enum_pair_s *table, const char *text);

// The first two blank-separated tokens, X then Y; both must convert.
bool convertRealPair(const char *text, double *x, double *y);
bool convertIntegerPair(const char *text, int *x, int *y);
// Four blank-separated reals in a text of at least 7 characters; all must
// convert.
bool convertRealQuadruple(const char *text, double values[4]);
// A "%lf" scan of the leading real: 0.0 when nothing scans.
double scanLeadingReal(const char *text);
// The leading decimal digits with an optional sign, saturated to int; 0
// when there are none.
int convertLeadingDecimal(const char *text);
// The words of `text` split at any of `separators`; runs of separators
// count as one. Empty for a null text; out of memory ends the list early.
std::vector<std::string> splitWords(const char *text, const char *separators);

zundo_status_t setIntegerFromText(zundo_int_object_s *object, const char *name, const char *text);
zundo_status_t setRealFromText(zundo_int_object_s *object, const char *name, const char *text);
zundo_status_t setRealPairFromText(zundo_int_object_s *object, const char *xName, const char *yName,
                                   const char *text);
zundo_status_t setIntegerPairFromText(zundo_int_object_s *object, const char *xName,
                                      const char *yName, const char *text);
zundo_status_t setRealQuadrupleFromText(zundo_int_object_s *object, const char *const names[4],
                                        const char *text);
zundo_status_t setDateTimeFromText(zundo_int_object_s *object, const char *name, const char *text);
zundo_status_t setTimePeriodFromText(zundo_int_object_s *object, const char *name,
                                     const char *text);
// Base64 text decoded into a BinaryObject.
zundo_status_t setBinaryFromBase64(zundo_int_object_s *object, const char *name, const char *text);
// A text-list attribute (kind "S") with one value per word.
zundo_status_t setWordListFromText(zundo_int_object_s *object, const char *name, const char *text,
                                   const char *separators);

// An attribute of an element looked up by name, freed on scope exit.
class ElementAttribute {
public:
    ElementAttribute(const xercesc::DOMElement *element, const char *name) {
        getAttrByName(element, name, &entry_);
    }
    ~ElementAttribute() { freeAttrEntry(entry_); }
    ElementAttribute(const ElementAttribute &) = delete;
    ElementAttribute &operator=(const ElementAttribute &) = delete;
    // The UTF-8 value, or null when the element has no such attribute.
    const char *value() const { return entry_ != nullptr ? entry_->value : nullptr; }

private:
    AttributeEntry *entry_ = nullptr;
};

// The child elements of an element, freed on scope exit.
class ChildElements {
public:
    explicit ChildElements(const xercesc::DOMElement *parent);
    ~ChildElements() { freeElementList(list_); }
    ChildElements(const ChildElements &) = delete;
    ChildElements &operator=(const ChildElements &) = delete;
    ElementEntry *const *begin() const { return list_; }
    ElementEntry *const *end() const { return list_ + count_; }
    // The null-terminated list itself (null when it could not be made).
    ElementEntry *const *entries() const { return list_; }
    // The first child of that name, or null.
    xercesc::DOMElement *first(const char *name) const;

private:
    ElementEntry **list_ = nullptr;
    size_t count_ = 0;
};

// False for a null text.
bool textIs(const char *text, const char *expected);

// A MediaRef naming a media list entry that has a media object replaces
// *media with a copy of it; anything else leaves *media as it is.
void replaceWithReferencedMedia(const xercesc::DOMElement *mediaRef, IdElement **mediaList,
                                zundo_int_object_s **media);

// The first value of an object attribute, still owned by `object`; null
// when it has none.
zundo_int_object_s *firstObjectValue(zundo_int_object_s *object, const char *name);

// Each Comment child whose Attribute is `jdfAttribute` (every Comment
// child when it is null) sets its text as `name`; the last one stays.
void readCommentUnits(const xercesc::DOMElement *element, zundo_int_object_s *object,
                      const char *jdfAttribute, const char *name);

// Adds one value to a multi-valued attribute of the object: the current
// values are fetched, the value added and the whole set back. An object or
// value object passes to the object; when it cannot be added it is
// destroyed. ZUNDO_NOT_FOUND, with the value left to the caller, when the
// object has no such attribute.
zundo_status_t appendAttributeValue(zundo_int_object_s *object, const char *name,
                                    const void *value);
// Values appended to one list attribute of an object and set back once
// (at commit, or when the appender goes): appending value by value through
// get and set costs time quadratic in the length of the list. An object or
// value object passes to the appender; one the list cannot take, or that
// the object refuses at commit, is destroyed.
class ListAppender {
public:
    ListAppender(zundo_int_object_s *object, const char *name);
    ~ListAppender();
    ListAppender(const ListAppender &) = delete;
    ListAppender &operator=(const ListAppender &) = delete;
    // ZUNDO_NOT_FOUND, with the value left to the caller, when the object
    // has no such attribute.
    zundo_status_t add(const void *value);
    zundo_status_t commit();

private:
    void forgetAdded(const char *kind);

    zundo_int_object_s *object_;
    const char *name_;  // borrowed: a constant name
    zundo_int_attribute_s *list_;
    std::vector<const void *> added_;
};

// Sets a list attribute the reader built and destroys it. When the object
// refuses it, the objects and value objects it holds are destroyed too.
zundo_status_t setAndReleaseAttribute(zundo_int_object_s *object, zundo_int_attribute_s *attribute);

#endif
