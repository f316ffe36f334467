// Prints a job-ticket object as an indented tree of its set attributes.
#ifndef ZUNDO_TOOL_TICKET_DUMP_H
#define ZUNDO_TOOL_TICKET_DUMP_H

#include <cstdio>

#include "zundo.h"

// Writes the ticket, its job, the job's documents and every sub-object with
// the attributes that hold a value, values in their text forms.
void dumpTicket(FILE *out, zundo_int_object_s *ticket);

#endif
