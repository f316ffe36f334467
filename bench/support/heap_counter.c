#include "heap_counter.h"

#include <errno.h>

/* glibc's allocator under its internal names; declared here instead of
 * including <stdlib.h>, whose declarations mark malloc as a leaf function
 * that never touches this file's counters. */
extern void *__libc_malloc(size_t size);
extern void *__libc_calloc(size_t count, size_t size);
extern void *__libc_realloc(void *block, size_t size);
extern void *__libc_memalign(size_t alignment, size_t size);
extern void __libc_free(void *block);
extern size_t malloc_usable_size(void *block);

static int counting;
static long long current;
static long long peak;

static void grown(void *block) {
    if (!counting || block == 0) return;
    current += (long long)malloc_usable_size(block);
    if (current > peak) peak = current;
}

static void shrinking(void *block) {
    if (counting && block != 0) current -= (long long)malloc_usable_size(block);
}

void heapCountStart(void) {
    current = 0;
    peak = 0;
    counting = 1;
}

size_t heapCountStop(void) {
    counting = 0;
    return (size_t)peak;
}

void *malloc(size_t size) {
    void *block = __libc_malloc(size);
    grown(block);
    return block;
}

void *calloc(size_t count, size_t size) {
    void *block = __libc_calloc(count, size);
    grown(block);
    return block;
}

void *realloc(void *old, size_t size) {
    size_t before = (counting && old != 0) ? malloc_usable_size(old) : 0;
    void *block = __libc_realloc(old, size);
    /* A failed growth leaves the old block in place. */
    if (block == 0 && size != 0) return 0;
    current -= (long long)before;
    grown(block);
    return block;
}

void free(void *block) {
    shrinking(block);
    __libc_free(block);
}

void *memalign(size_t alignment, size_t size) {
    void *block = __libc_memalign(alignment, size);
    grown(block);
    return block;
}

void *aligned_alloc(size_t alignment, size_t size) { return memalign(alignment, size); }

int posix_memalign(void **out, size_t alignment, size_t size) {
    if (alignment == 0 || alignment % sizeof(void *) != 0 || (alignment & (alignment - 1)) != 0)
        return EINVAL;
    void *block = memalign(alignment, size);
    if (block == 0) return ENOMEM;
    *out = block;
    return 0;
}
