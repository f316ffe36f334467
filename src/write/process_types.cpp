// Types of the written JDF node and the process table behind it.
#include "write/process_types.h"

#include <cstring>

#include "write/jdf_attr.h"
#include "write/jdf_root.h"
#include "write/object_values.h"
#include "zundo_trace.h"

namespace {

enum PresenceRule {
    kAlwaysPresent,
    kNeverPresent,
    // The job, a document or a page range has the finishing attribute.
    kUsedByJobDocumentOrPageRange,
    kColorSpaceConversionUsed,
    kBindingProcessUsed,
};

struct ProcessRow {
    const char *name;
    PresenceRule rule;
    const char *jobAttribute;
    const char *documentAttribute;
    const char *pageRangeAttribute;
    // Makes the process present when the three above do not.
    const char *fallbackJobAttribute;
};

// Types order; CombinedProcessIndex values follow it.
const ProcessRow kProcessOrder[] = {
    {"LayoutPreparation", kAlwaysPresent, nullptr, nullptr, nullptr, nullptr},
    {"Imposition", kAlwaysPresent, nullptr, nullptr, nullptr, nullptr},
    {"Interpreting", kAlwaysPresent, nullptr, nullptr, nullptr, nullptr},
    {"Trapping", kUsedByJobDocumentOrPageRange, "job-trapping", "document-trapping",
     "page-range-trapping", nullptr},
    {"Rendering", kAlwaysPresent, nullptr, nullptr, nullptr, nullptr},
    {"ColorSpaceConversion", kColorSpaceConversionUsed, nullptr, nullptr, nullptr, nullptr},
    {"Screening", kUsedByJobDocumentOrPageRange, "job-screenings", nullptr, nullptr, nullptr},
    {"DigitalPrinting", kAlwaysPresent, nullptr, nullptr, nullptr, nullptr},
    {"Stitching", kUsedByJobDocumentOrPageRange, "job-stitching", "document-stitching",
     "page-range-stitching", nullptr},
    {"Folding", kUsedByJobDocumentOrPageRange, "job-folding", "document-folding",
     "page-range-folding", nullptr},
    {"BundleFolding", kNeverPresent, nullptr, nullptr, nullptr, nullptr},
    {"HoleMaking", kUsedByJobDocumentOrPageRange, "job-hole-making", "document-hole-making",
     "page-range-hole-making", nullptr},
    {"Trimming", kUsedByJobDocumentOrPageRange, "job-trimming", "document-trimming",
     "page-range-trimming", "job-trimming-units"},
    {"CoverApplication", kBindingProcessUsed, nullptr, nullptr, nullptr, nullptr},
    {"SpineTaping", kBindingProcessUsed, nullptr, nullptr, nullptr, nullptr},
    {"RingBinding", kBindingProcessUsed, nullptr, nullptr, nullptr, nullptr},
    {"WireCombBinding", kBindingProcessUsed, nullptr, nullptr, nullptr, nullptr},
};
const int kProcessCount = sizeof kProcessOrder / sizeof kProcessOrder[0];
static_assert(kProcessCount <= kProcessSlots, "the process table holds every process");

// The names of all processes joined by blanks take 216.
const size_t kTypesTextSize = 256;

// Job attributes that ask for colour space conversion: every catalogue name
// with one of the prefixes, and the whole names.
const char *const kColorConversionPrefixes[] = {
    "job-black-point-compensation", "job-black-substitution-", "job-color-profile-input-",
    "job-color-profile-output-",    "job-color-rendering-intent", "job-convert-rgb-gray-to-black",
    "job-preserve-cmy-colors",      "job-preserve-k-black",       nullptr,
};
const char *const kColorConversionNames[] = {
    "job-color-profile-reference-output",
    "job-use-pdfx-output-intent-profile",
    "job-use-pdfx-output-intent-profile-as-input",
    nullptr,
};
const char *const kMediaColorPrefixes[] = {
    "media-color-profile-input-",
    "media-color-profile-output-",
    "media-color-rendering-intent",
    nullptr,
};

// The binding types that put a binding process into Types; the type None
// (1) puts in all of them.
struct BindingProcessRow {
    int bindingType;
    const char *process;
};
const int kBindingTypeNone = 1;
const BindingProcessRow kBindingProcesses[] = {
    {2, "CoverApplication"}, {3, "SpineTaping"}, {4, "RingBinding"},     {5, "RingBinding"},
    {6, "RingBinding"},      {7, "RingBinding"}, {8, "WireCombBinding"},
};

bool anyPageRangeHas(zundo_int_object_s *owner, const char *pageRangesName,
                     const char *pageRangeAttribute) {
    if (pageRangeAttribute == nullptr) return false;
    FetchedAttribute pageRanges(owner, pageRangesName);
    zundo_int_attribute_s *list = pageRanges.attribute();
    while (hasNextValue(list)) {
        auto *pageRange = static_cast<zundo_int_object_s *>(nextValue(list));
        if (objectHasValue(pageRange, pageRangeAttribute)) return true;
    }
    return false;
}

bool startsWithAny(const char *name, const char *const *prefixes) {
    for (const char *const *prefix = prefixes; *prefix != nullptr; ++prefix)
        if (std::strncmp(name, *prefix, std::strlen(*prefix)) == 0) return true;
    return false;
}

// Whether the object has a value for any of its attributes whose name
// begins with one of the prefixes or is one of the names.
bool hasAnyValueNamed(zundo_int_object_s *object, const char *const *prefixes,
                      const char *const *names) {
    if (object == nullptr) return false;
    char **attributeNames = getAttributeNames(object);
    if (attributeNames == nullptr) {
        traceOutOfMemory("getColorSpaceConversionProcessIndex");
        return false;
    }
    bool found = false;
    for (char **name = attributeNames; *name != nullptr && !found; ++name) {
        bool named = startsWithAny(*name, prefixes);
        for (const char *const *whole = names; !named && whole != nullptr && *whole != nullptr;
             ++whole)
            named = std::strcmp(*name, *whole) == 0;
        found = named && objectHasValue(object, *name);
    }
    freeAttributeNames(attributeNames);
    return found;
}

bool mediaHasColorValue(zundo_int_object_s *media) {
    return hasAnyValueNamed(media, kMediaColorPrefixes, nullptr);
}

// The first object of an object attribute, borrowed from the ticket.
zundo_int_object_s *firstObjectOf(zundo_int_object_s *object, const char *name) {
    return FetchedAttribute(object, name).firstObject();
}

bool anyColorPlaneHasObjectTypes(zundo_int_object_s *job) {
    FetchedAttribute planes(job, "job-color-planes");
    zundo_int_attribute_s *list = planes.attribute();
    while (hasNextValue(list)) {
        auto *plane = static_cast<zundo_int_object_s *>(nextValue(list));
        if (objectHasValue(plane, "color-plane-object-types")) return true;
    }
    return false;
}

// Each rule gives nextIndex when the process is present and -1 when not.

int getProcessIndexIfUsed(zundo_int_object_s *job, const char *jobAttribute,
                          const char *documentAttribute, const char *pageRangeAttribute,
                          int nextIndex) {
    if (objectHasValue(job, jobAttribute)) return nextIndex;
    if (FetchedAttribute(job, "job-level-pages").firstInt(-1) != 0)
        return anyPageRangeHas(job, "job-page-ranges", pageRangeAttribute) ? nextIndex : -1;
    if (documentAttribute == nullptr) return -1;
    zundo_int_object_s **documents = getDocuments(job);
    for (zundo_int_object_s **document = documents; document != nullptr && *document != nullptr;
         ++document) {
        if (objectHasValue(*document, documentAttribute) ||
            anyPageRangeHas(*document, "document-page-ranges", pageRangeAttribute))
            return nextIndex;
    }
    return -1;
}

int getColorSpaceConversionProcessIndex(zundo_int_object_s *job, int nextIndex) {
    if (hasAnyValueNamed(job, kColorConversionPrefixes, kColorConversionNames)) return nextIndex;
    zundo_int_object_s *binding = firstObjectOf(job, "job-binding");
    zundo_int_object_s *insertSheet = firstObjectOf(job, "job-insert-sheets");
    if (mediaHasColorValue(firstObjectOf(job, "job-media")) ||
        mediaHasColorValue(firstObjectOf(binding, "binding-media")) ||
        mediaHasColorValue(firstObjectOf(insertSheet, "insert-sheet-media")))
        return nextIndex;
    return anyColorPlaneHasObjectTypes(job) ? nextIndex : -1;
}

int getBindingProcessIndex(zundo_int_object_s *job, const char *processName, int nextIndex) {
    zundo_int_object_s *binding = firstObjectOf(job, "job-binding");
    if (binding == nullptr) return -1;
    int type = FetchedAttribute(binding, "binding-type").firstInt(0);
    if (type == kBindingTypeNone) return nextIndex;
    for (const BindingProcessRow &row : kBindingProcesses)
        if (row.bindingType == type && std::strcmp(row.process, processName) == 0)
            return nextIndex;
    return -1;
}

int presentIndex(zundo_int_object_s *job, const ProcessRow &row, int nextIndex) {
    switch (row.rule) {
    case kAlwaysPresent:
        return nextIndex;
    case kNeverPresent:
        return -1;
    case kUsedByJobDocumentOrPageRange:
        if (getProcessIndexIfUsed(job, row.jobAttribute, row.documentAttribute,
                                  row.pageRangeAttribute, nextIndex) >= 0)
            return nextIndex;
        return row.fallbackJobAttribute != nullptr && objectHasValue(job, row.fallbackJobAttribute)
                   ? nextIndex
                   : -1;
    case kColorSpaceConversionUsed:
        return getColorSpaceConversionProcessIndex(job, nextIndex);
    case kBindingProcessUsed:
        return getBindingProcessIndex(job, row.name, nextIndex);
    }
    return -1;
}

}  // namespace

void writeTypes(JDFWriteContext *ctx, zundo_int_object_s *job) {
    char types[kTypesTextSize] = "";
    int nextIndex = 0;
    for (int slot = 0; slot < kProcessCount; ++slot) {
        const ProcessRow &row = kProcessOrder[slot];
        int index = presentIndex(job, row, nextIndex);
        ctx->processes[slot].name = row.name;
        ctx->processes[slot].combinedProcessIndex = index;
        if (index < 0) continue;
        if (nextIndex > 0) std::strcat(types, " ");
        std::strcat(types, row.name);
        ++nextIndex;
    }
    ctx->processCount = nextIndex;
    setAttributeTraced(getJDFRoot(ctx), "Types", types);
}

int getCombinedProcessIndex(const JDFWriteContext *ctx, const char *processName) {
    if (ctx == nullptr || processName == nullptr) return -1;
    for (const ProcessEntry &entry : ctx->processes)
        if (entry.name != nullptr && std::strcmp(entry.name, processName) == 0)
            return entry.combinedProcessIndex;
    return -1;
}
