// The print-parameter block ("ZUNDO_ABSTRACT_JDP") that job, document, page
// range and page cell share. The block is linked behind its owner through
// next; its attributes are seen from outside under the owner's prefix
// ("job-media", "page-range-sides").
#ifndef ZUNDO_ABSTRACT_JDP_H
#define ZUNDO_ABSTRACT_JDP_H

#include "zundo_object.h"

// A fresh block with every field at its not-set value. `prefix` is one of
// "job-", "document-", "page-cell-", "page-range-" and must be a constant
// string: the block keeps the pointer. The caller links it behind the owner.
zundo_status_t newAbstractJDP(zundo_int_object_s **out, const char *prefix);

// The block that follows `owner` in its chain, or null.
zundo_int_object_s *followingAbstractJDP(const zundo_int_object_s *owner);

// 0 when the blocks behind two owners are equal; 1 when they differ or
// either owner has no block.
int compareFollowingAbstractJDPs(const zundo_int_object_s *a, const zundo_int_object_s *b);

// Copies every block attribute of `source`'s block into `copy`'s block;
// 1 when either owner has no block.
zundo_status_t copyFollowingAbstractJDP(zundo_int_object_s *copy,
                                        const zundo_int_object_s *source);

#endif
