#include "xerces_floor.h"

#include <xercesc/dom/DOMConfiguration.hpp>
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMImplementation.hpp>
#include <xercesc/dom/DOMLSOutput.hpp>
#include <xercesc/dom/DOMLSSerializer.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "xml/parser_error_handler.h"
#include "xml/ticket_parser.h"

XERCES_CPP_NAMESPACE_USE

std::unique_ptr<XercesDOMParser> floorParse(const std::string &text) {
    MemBufInputSource input(reinterpret_cast<const XMLByte *>(text.data()), text.size(),
                            "floor", false);
    std::unique_ptr<XercesDOMParser> parser(newTicketParser());
    if (!parser) return nullptr;
    ParserErrorHandler handler;
    parser->setErrorHandler(&handler);
    try {
        parser->parse(input);
    } catch (...) {
        return nullptr;
    }
    parser->setErrorHandler(nullptr);
    if (handler.getSawErrors() || parser->getDocument() == nullptr) return nullptr;
    return parser;
}

std::size_t floorSerialise(DOMDocument *document) {
    DOMImplementation *implementation = document->getImplementation();
    DOMLSSerializer *serializer = implementation->createLSSerializer();
    DOMLSOutput *output = implementation->createLSOutput();
    serializer->getDomConfig()->setParameter(XMLUni::fgDOMWRTFormatPrettyPrint, true);
    output->setEncoding(u"UTF-8");
    MemBufFormatTarget target(1023);
    output->setByteStream(&target);
    std::size_t length = 0;
    try {
        if (serializer->write(document, output)) length = target.getLen();
    } catch (...) {
        length = 0;
    }
    output->release();
    serializer->release();
    return length;
}
