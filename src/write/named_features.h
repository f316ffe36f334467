// The job's named features: free name and value pairs that a device
// understands, written as the NamedFeatures list of the JDF node.
#ifndef ZUNDO_WRITE_NAMED_FEATURES_H
#define ZUNDO_WRITE_NAMED_FEATURES_H

#include "write/writer_context.h"

// Writer step: "name value" of each feature's first value, joined by
// single blanks.
void writeNamedFeatures(JDFWriteContext *ctx, zundo_int_object_s *job);

#endif
