#include "xml/parser_error_handler.h"

#include <xercesc/sax/SAXParseException.hpp>

#include "zundo.h"
#include "zundo_trace.h"

ParserErrorHandler::~ParserErrorHandler() = default;

void ParserErrorHandler::warning(const xercesc::SAXParseException &exception) {
    reportParseError(exception);
}

void ParserErrorHandler::error(const xercesc::SAXParseException &exception) {
    reportParseError(exception);
}

void ParserErrorHandler::fatalError(const xercesc::SAXParseException &exception) {
    reportParseError(exception);
}

void ParserErrorHandler::reportParseError(const xercesc::SAXParseException &exception) {
    sawErrors = 1;
    // Positions are 64-bit in the parser; tickets never come near 2^31 lines.
    line = static_cast<int>(exception.getLineNumber());
    column = static_cast<int>(exception.getColumnNumber());
    if (!traceDetailWanted()) return;
    char *message = UTF8Transcoder::transcodeValue(exception.getMessage());
    zundo_trace("Parsing error at line %i, col %i \n \t\t\t\tParser message: %s\n", line, column,
                message != nullptr ? message : "");
    UTF8Transcoder::release(&message);
}
