#include "ticket_generator.h"

#include <cmath>
#include <cstdio>
#include <vector>

namespace {

using Object = zundo_int_object_s *;

// Three sheet kinds that page ranges cycle through: real tickets use a few
// distinct media many times over.
struct SheetKind {
    const char *name;
    double weight;
};
const SheetKind kSheets[] = {{"Plain", 80.0}, {"Cover", 250.0}, {"Tab", 160.0}};
const int kSheetKinds = sizeof kSheets / sizeof kSheets[0];

const int kPagesPerRange = 4;

// Collects the first failure so that building reads as a straight list of
// steps; later steps are skipped once one failed.
struct Build {
    zundo_status_t status = ZUNDO_OK;

    bool ok() const { return status == ZUNDO_OK; }

    void step(zundo_status_t result) {
        if (ok()) status = result;
    }

    void integer(Object object, const char *name, int value) {
        if (ok()) status = setIntegerAttribute(object, name, value);
    }

    void real(Object object, const char *name, double value) {
        if (ok()) status = setDoubleAttribute(object, name, value);
    }

    void text(Object object, const char *name, const char *value) {
        if (ok()) status = setStringAttribute(object, name, value);
    }

    // The target takes the value when the set succeeds; a refused or
    // skipped value is destroyed here.
    void object(Object target, const char *name, Object value) {
        if (ok()) status = setObjectAttribute(target, name, value);
        if (!ok()) destroy(value);
    }
};

Object sheetMedia(Build &build, int kind) {
    const SheetKind &sheet = kSheets[kind % kSheetKinds];
    Object media = nullptr;
    build.step(newMedia(&media, sheet.name));
    if (media == nullptr) return nullptr;
    build.real(media, "media-x-dimension", 595.276);
    build.real(media, "media-y-dimension", 841.89);
    build.real(media, "media-weight", sheet.weight);
    build.text(media, "media-input-tray-name", "Tray1");
    if (!build.ok()) {
        destroy(media);
        return nullptr;
    }
    return media;
}

Object binding(Build &build) {
    Object made = nullptr;
    build.step(newBinding(&made, 2, 1));
    return made;
}

Object stitching(Build &build, int count) {
    Object made = nullptr;
    build.step(newStitching(&made, count, 1, 3));
    return made;
}

// The print-parameter block that job, document and page range share, under
// the owner's prefix ("job-", "document-", "page-range-").
void fillBlock(Build &build, Object owner, const char *prefix, int variant) {
    char name[64];
    auto named = [&](const char *attribute) {
        std::snprintf(name, sizeof name, "%s%s", prefix, attribute);
        return name;
    };
    build.integer(owner, named("sides"), 1 + variant % 5);
    build.integer(owner, named("page-rotation"), 1 + variant % 4);
    build.integer(owner, named("number-up-x"), 1 + variant % 2);
    build.integer(owner, named("number-up-y"), 2);
    build.text(owner, named("output-bin-name"), "Stacker");
    build.object(owner, named("media"), sheetMedia(build, variant));
    build.object(owner, named("stitching"), stitching(build, 1 + variant % 3));
}

Object pageRange(Build &build, int index) {
    zundo_range_s *pages = nullptr;
    int first = index * kPagesPerRange;
    build.step(newRange(&pages, first, first + kPagesPerRange - 1));
    Object range = nullptr;
    // newPageRange takes the range whatever it returns; the block below
    // brings the media.
    if (build.ok()) build.step(newPageRange(&range, pages, nullptr));
    if (range == nullptr) return nullptr;
    fillBlock(build, range, "page-range-", index);
    build.object(range, "page-range-binding", binding(build));
    return range;
}

Object document(Build &build, int index, int ranges) {
    char fileName[64];
    std::snprintf(fileName, sizeof fileName, "file:///jobs/part%04d.pdf", index);
    Object made = nullptr;
    build.step(newDocument(&made, fileName));
    if (made == nullptr) return nullptr;
    build.text(made, "document-format", "application/pdf");
    build.integer(made, "document-number-pages", ranges * kPagesPerRange);
    fillBlock(build, made, "document-", index);

    std::vector<Object> list;
    for (int r = 0; r < ranges && build.ok(); r++) {
        Object range = pageRange(build, r);
        if (range != nullptr) list.push_back(range);
    }
    size_t count = list.size();
    list.push_back(nullptr);
    if (build.ok()) build.status = setObjectsAttribute(made, "document-page-ranges", list.data());
    if (!build.ok()) {
        for (size_t r = 0; r < count; r++) destroy(list[r]);
        destroy(made);
        return nullptr;
    }
    return made;
}

Object job(Build &build, const TicketShape &shape) {
    Object made = nullptr;
    build.step(newJobNoDocument(&made));
    if (made == nullptr) return nullptr;
    build.text(made, "job-name", "generated ticket");
    build.integer(made, "job-copies", 2);
    build.integer(made, "job-level-pages", 0);
    fillBlock(build, made, "job-", 0);
    build.object(made, "job-binding", binding(build));
    for (int d = 0; d < shape.documents && build.ok(); d++) {
        int ranges = shape.pageRanges / shape.documents + (d < shape.pageRanges % shape.documents);
        Object part = document(build, d, ranges);
        if (part != nullptr) build.step(addDocument(made, part));
        if (part != nullptr && !build.ok()) destroy(part);
    }
    if (!build.ok()) {
        destroy(made);
        return nullptr;
    }
    return made;
}

}  // namespace

TicketShape shapeForPageRanges(int pageRanges) {
    if (pageRanges < 1) pageRanges = 1;
    int documents = static_cast<int>(std::lround(std::sqrt(static_cast<double>(pageRanges))));
    if (documents < 1) documents = 1;
    return {documents, pageRanges};
}

zundo_status_t newGeneratedTicket(zundo_int_object_s **out, const TicketShape &shape) {
    if (out == nullptr || shape.documents < 1 || shape.pageRanges < 0)
        return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    Build build;
    Object made = job(build, shape);
    if (!build.ok()) return build.status;
    build.step(newJobTicketInfoFromJob(out, made));
    if (!build.ok()) destroy(made);  // a refused job stays the caller's
    build.text(*out, "jt-comment", "generated for measurements");
    if (!build.ok() && *out != nullptr) {
        destroy(*out);
        *out = nullptr;
    }
    return build.status;
}

zundo_status_t writeGeneratedTicket(std::string *text, const TicketShape &shape) {
    if (text == nullptr) return ZUNDO_INVALID_ARGUMENT;
    Object ticket = nullptr;
    zundo_status_t status = newGeneratedTicket(&ticket, shape);
    if (status != ZUNDO_OK) return status;
    char *written = nullptr;
    status = writeJobTicketString(ticket, &written);
    if (status == ZUNDO_OK) text->assign(written);
    releaseJobTicketString(written);
    destroy(ticket);
    return status;
}
