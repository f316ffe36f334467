// A test-only object type whose definition table holds one attribute of every
// value kind, built from the store's generic operations like a real type.
#ifndef ZUNDO_TESTS_SAMPLE_TYPE_H
#define ZUNDO_TESTS_SAMPLE_TYPE_H

#include "zundo_object.h"

extern const char kSampleType[];

// Counts destroyed sample objects, so tests can see which sub-objects died.
extern int sampleObjectsDestroyed;

// A fresh sample object; "sample-count" refuses negative numbers.
zundo_int_object_s *newSample();

// A shell of a catalogue type (e.g. "ZUNDO_BINDING") with generic hooks over
// that type's real table and a zeroed record of `recordSize` bytes.
zundo_int_object_s *newCatalogueShell(const char *type, size_t recordSize);

#endif
