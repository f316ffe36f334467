// The DOM parser used for job tickets. Tickets come from untrusted clients,
// so the parser never loads an external DTD or external entity, and it
// bounds what entity expansion can produce; everything else stays at the
// Xerces-C defaults.
#ifndef ZUNDO_TICKET_PARSER_H
#define ZUNDO_TICKET_PARSER_H

#include <xercesc/util/XercesDefs.hpp>

XERCES_CPP_NAMESPACE_BEGIN
class XercesDOMParser;
XERCES_CPP_NAMESPACE_END

// Null when the parser cannot be allocated.
xercesc::XercesDOMParser *newTicketParser();

#endif
