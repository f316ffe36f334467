// What a DOM-based ticket library cannot go below: Xerces-C alone parsing
// a text into a DOM with the library's own parser settings, and
// serialising a DOM the way the library writes tickets.
#ifndef ZUNDO_BENCH_XERCES_FLOOR_H
#define ZUNDO_BENCH_XERCES_FLOOR_H

#include <xercesc/util/XercesDefs.hpp>

#include <cstddef>
#include <memory>
#include <string>

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
class XercesDOMParser;
XERCES_CPP_NAMESPACE_END

// A parser together with the document it built; null when the text does
// not parse cleanly.
std::unique_ptr<xercesc::XercesDOMParser> floorParse(const std::string &text);

// Pretty-printed UTF-8 into a memory buffer; the length written, 0 on
// failure.
std::size_t floorSerialise(xercesc::DOMDocument *document);

#endif
