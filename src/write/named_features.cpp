// NamedFeatures on the JDF node.
#include "write/named_features.h"

#include <new>
#include <string>

#include "write/jdf_attr.h"
#include "write/jdf_root.h"
#include "write/object_values.h"
#include "zundo_trace.h"

namespace {

// A feature without a name or a first value is passed over, and leaves no
// blank behind: the list stays a clean sequence of pairs.
void appendFeature(zundo_int_object_s *feature, std::string *features) {
    FetchedAttribute name(feature, "named-feature-name");
    zundo_int_object_s *first = FetchedAttribute(feature, "named-feature-values").firstObject();
    FetchedAttribute value(first, "named-feature-value-value");
    if (name.firstString() == nullptr || value.firstString() == nullptr) return;
    if (!features->empty()) *features += ' ';
    (*features += name.firstString()) += ' ';
    *features += value.firstString();
}

}  // namespace

void writeNamedFeatures(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeNamedFeatures\n");
    FetchedAttribute list(job, "job-named-features");
    zundo_int_attribute_s *features = list.attribute();
    std::string text;
    bool complete = true;
    try {
        while (hasNextValue(features))
            appendFeature(static_cast<zundo_int_object_s *>(nextValue(features)), &text);
    } catch (const std::bad_alloc &) {
        traceOutOfMemory("writeNamedFeatures");
        complete = false;
    }
    if (complete && !text.empty())
        writeJDFAttr(ctx, "NamedFeatures", text.c_str(), 0, nullptr, nullptr, getJDFRoot);
    zundo_trace("<< leaving writeNamedFeatures\n");
}
