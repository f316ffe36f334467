// Collects the diagnostics of one parse: each message is traced as it
// arrives, and the position of the last one is kept for the result.
#ifndef ZUNDO_PARSER_ERROR_HANDLER_H
#define ZUNDO_PARSER_ERROR_HANDLER_H

#include <xercesc/sax/HandlerBase.hpp>

class ParserErrorHandler : public xercesc::HandlerBase {
public:
    ParserErrorHandler() = default;
    ~ParserErrorHandler() override;

    // Warnings count as errors: a ticket that draws any diagnostic fails.
    void warning(const xercesc::SAXParseException &exception) override;
    void error(const xercesc::SAXParseException &exception) override;
    void fatalError(const xercesc::SAXParseException &exception) override;

    int getSawErrors() const { return sawErrors; }
    int getErrorLine() const { return line; }
    int getErrorColumn() const { return column; }

private:
    void reportParseError(const xercesc::SAXParseException &exception);

    int sawErrors = 0;
    int line = 0;
    int column = 0;
};

#endif
