// Writes a generated ticket to standard output, for profiling and for fuzz
// seeds: zundo_generate_ticket PAGE_RANGES [DOCUMENTS].
#include <cstdio>
#include <cstdlib>
#include <string>

#include "support/ticket_generator.h"

int main(int argc, char **argv) {
    if (argc < 2 || argc > 3) {
        std::fprintf(stderr, "usage: %s PAGE_RANGES [DOCUMENTS]\n", argv[0]);
        return 2;
    }
    TicketShape shape = shapeForPageRanges(std::atoi(argv[1]));
    if (argc == 3) shape.documents = std::atoi(argv[2]);
    std::string text;
    zundo_status_t status = writeGeneratedTicket(&text, shape);
    if (status != ZUNDO_OK) {
        std::fprintf(stderr, "generating the ticket failed with status %d\n", status);
        return 1;
    }
    std::fwrite(text.data(), 1, text.size(), stdout);
    return 0;
}
