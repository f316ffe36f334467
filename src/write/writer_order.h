// The fixed sequence of attribute writers that build a ticket once the
// root exists. Each writer reports nothing back: it traces its own failures
// and the sequence goes on.
#ifndef ZUNDO_WRITE_WRITER_ORDER_H
#define ZUNDO_WRITE_WRITER_ORDER_H

#include "write/writer_context.h"

// Takes the job, or the ticket for the steps that say so.
typedef void (*TicketWriter)(JDFWriteContext *ctx, zundo_int_object_s *object);

enum WriterInput { kJobInput, kTicketInput };

struct WriterStep {
    const char *what;
    WriterInput input;
    TicketWriter write;  // null for a writer this library does not have yet
};

void runWriters(JDFWriteContext *ctx, zundo_int_object_s *jobTicket, zundo_int_object_s *job);

// Writer step: the registered extension writers, each with the ticket.
void writeExtensions(JDFWriteContext *ctx, zundo_int_object_s *jobTicket);

#endif
