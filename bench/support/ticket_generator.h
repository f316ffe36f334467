// Builds job tickets of any size through the public API, for benchmarks,
// fuzz seeds and tests: realistic JDF texts without checked-in megabytes.
#ifndef ZUNDO_BENCH_TICKET_GENERATOR_H
#define ZUNDO_BENCH_TICKET_GENERATOR_H

#include <string>

#include "zundo.h"

// pageRanges in all, spread evenly over the documents; the first
// documents take one more when the division leaves a remainder.
struct TicketShape {
    int documents;
    int pageRanges;
};

// About the square root of the count as documents, so that both the
// documents and the page ranges of each grow with the size and a cost that
// is quadratic in either shows.
TicketShape shapeForPageRanges(int pageRanges);

// A ticket whose job, documents and page ranges all carry media, finishing
// and layout values. Page ranges are kept per document ("job-level-pages"
// false). The caller destroys *out.
zundo_status_t newGeneratedTicket(zundo_int_object_s **out, const TicketShape &shape);

// The generated ticket written with writeJobTicketString.
zundo_status_t writeGeneratedTicket(std::string *text, const TicketShape &shape);

#endif
