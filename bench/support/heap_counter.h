// Peak heap use of a stretch of code. The bench executable replaces the C
// allocator's entry points (malloc, calloc, realloc, free and the aligned
// forms) with wrappers around glibc's own allocator, so every allocation of
// the process is seen: the library's, Xerces-C's and the C++ runtime's.
// Blocks count with their usable size.
#ifndef ZUNDO_BENCH_HEAP_COUNTER_H
#define ZUNDO_BENCH_HEAP_COUNTER_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

// Starts counting from zero.
void heapCountStart(void);
// Stops counting; the highest heap growth in bytes seen since the start.
size_t heapCountStop(void);

#ifdef __cplusplus
}
#endif

#endif
