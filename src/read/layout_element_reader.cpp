// Documents from LayoutElement resources, with their files and containers.
#include "read/layout_element_reader.h"

#include <cstdlib>
#include <cstring>

#include "read/reader_conversions.h"
#include "zundo_trace.h"

namespace {

struct FileSpecText {
    const char *jdf;
    const char *attribute;
};

const FileSpecText kFileSpecTexts[] = {
    {"URL", "document-file-name"},
    {"morvellan:InternalPrintJobName", "document-internal-print-job-name"},
    {"Checksum", "document-checksum"},
};

// Page counts are set whenever given; a count that does not convert sets
// the attribute's not-set value.
struct FileSpecCount {
    const char *jdf;
    const char *attribute;
    int fallback;
};

const FileSpecCount kFileSpecCounts[] = {
    {"morvellan:NPage", "document-number-pages", -1},
    {"morvellan:NPageBW", "document-number-pages-bw", 999999},
    {"morvellan:NPageColor", "document-number-pages-color", 999999},
};

void readFileSpec(xercesc::DOMElement *fileSpec, zundo_int_object_s *document,
                  IdElement **fileList) {
    for (const FileSpecText &field : kFileSpecTexts) {
        ElementAttribute value(fileSpec, field.jdf);
        if (value.value() != nullptr) setStringAttribute(document, field.attribute, value.value());
    }
    for (const FileSpecCount &field : kFileSpecCounts) {
        ElementAttribute value(fileSpec, field.jdf);
        if (value.value() == nullptr) continue;
        int count = field.fallback;
        convertStringToInt(value.value(), &count);
        setIntegerAttribute(document, field.attribute, count);
    }
    // The versioned type ("PDF/1.4") says more than the bare MIME type.
    ElementAttribute version(fileSpec, "MimeTypeVersion");
    ElementAttribute mimeType(fileSpec, "MimeType");
    const char *format = version.value() != nullptr ? version.value() : mimeType.value();
    if (format != nullptr) setStringAttribute(document, "document-format", format);
    readContainerElement(fileSpec, document, fileList);
}

void readColorProfileReference(xercesc::DOMElement *layoutElement, zundo_int_object_s *job) {
    xercesc::DOMElement *colorParams = ChildElements(layoutElement).first("ElementColorParams");
    xercesc::DOMElement *fileSpec = ChildElements(colorParams).first("FileSpec");
    ElementAttribute name(fileSpec, "UserFileName");
    if (name.value() != nullptr)
        setStringAttribute(job, "job-color-profile-reference-output", name.value());
}

// The job's first document for the first layout element of a read, a new
// document of the job for every later one.
zundo_status_t documentToFill(zundo_int_object_s *job, bool first, zundo_int_object_s **out) {
    if (first) {
        zundo_int_object_s **documents = getDocuments(job);
        *out = documents != nullptr ? documents[0] : nullptr;
        return *out != nullptr ? ZUNDO_OK : ZUNDO_ERROR;
    }
    zundo_int_object_s *document = nullptr;
    zundo_status_t status = newDocument(&document, nullptr);
    if (status != ZUNDO_OK) return status;
    status = addDocument(job, document);
    if (status != ZUNDO_OK) {
        destroy(document);
        return status;
    }
    *out = document;
    return ZUNDO_OK;
}

void traceListOutOfMemory() { zundo_trace("readLayoutElementResource() generated out of memory"); }

}  // namespace

zundo_status_t readLayoutElementResource(xercesc::DOMElement *layoutElement,
                                         zundo_int_object_s *ticket,
                                         LayoutElementPair ***layoutElements,
                                         IdElement **fileList) {
    zundo_trace(">> Entering readLayoutElementResource \n");
    zundo_int_object_s *job = getJob(ticket);
    readColorProfileReference(layoutElement, job);
    size_t count = 0;
    while (*layoutElements != nullptr && (*layoutElements)[count] != nullptr) ++count;
    if (!growListForAppend(layoutElements, count)) {
        traceListOutOfMemory();
        return ZUNDO_OUT_OF_MEMORY;
    }
    (*layoutElements)[count] = nullptr;
    zundo_int_object_s *document = nullptr;
    zundo_status_t status = documentToFill(job, count == 0, &document);
    if (status != ZUNDO_OK) return status;
    saveLayoutElementToDocument(layoutElement, document, fileList);
    ElementAttribute id(layoutElement, "ID");
    auto *pair = static_cast<LayoutElementPair *>(std::malloc(sizeof(LayoutElementPair)));
    char *idCopy = copyText(id.value() != nullptr ? id.value() : "doc0");
    if (pair == nullptr || idCopy == nullptr) {
        std::free(pair);
        delete[] idCopy;
        traceListOutOfMemory();
        return ZUNDO_OUT_OF_MEMORY;
    }
    pair->id = idCopy;
    pair->document = document;
    (*layoutElements)[count] = pair;
    (*layoutElements)[count + 1] = nullptr;
    zundo_trace("<< Leaving readLayoutElementResource \n");
    return ZUNDO_OK;
}

zundo_status_t readRunListLayoutElements(xercesc::DOMElement *runList, zundo_int_object_s *ticket,
                                         LayoutElementPair ***layoutElements,
                                         IdElement **fileList) {
    zundo_trace(">> Entering readRunListLayoutElements \n");
    zundo_status_t result = ZUNDO_OK;
    auto read = [&](ElementEntry *entry) {
        if (std::strcmp(entry->name, "LayoutElement") != 0) return;
        zundo_status_t status =
            readLayoutElementResource(entry->element, ticket, layoutElements, fileList);
        if (status != ZUNDO_OK) result = status;
    };
    for (ElementEntry *child : ChildElements(runList)) {
        read(child);
        if (std::strcmp(child->name, "RunList") == 0)
            for (ElementEntry *inner : ChildElements(child->element)) read(inner);
    }
    zundo_trace("<< Leaving readRunListLayoutElements \n");
    return result;
}

zundo_status_t saveLayoutElementToDocument(xercesc::DOMElement *layoutElement,
                                           zundo_int_object_s *document, IdElement **fileList) {
    zundo_trace(">> Entering saveLayoutElementToDocument \n");
    zundo_int_attribute_s *separations = nullptr;
    newAttribute(&separations, "document-separations-to-discard", ZUNDO_KIND_STRING, nullptr);
    for (ElementEntry *child : ChildElements(layoutElement)) {
        if (std::strcmp(child->name, "morvellan:DiscardPDLSeparation") == 0) {
            ElementAttribute name(child->element, "Name");
            if (name.value() != nullptr) addValue(separations, name.value());
        } else if (std::strcmp(child->name, "FileSpec") == 0) {
            readFileSpec(child->element, document, fileList);
        }
    }
    // Set even when empty: the layout element says which separations go.
    if (separations != nullptr) setAndReleaseAttribute(document, separations);
    zundo_trace("<< Leaving saveLayoutElementToDocument \n");
    return ZUNDO_OK;
}

zundo_status_t readContainerElement(xercesc::DOMElement *fileSpec, zundo_int_object_s *document,
                                    IdElement **fileList) {
    zundo_trace(">> Entering readContainerElement \n");
    zundo_status_t status = ZUNDO_OK;
    for (ElementEntry *container : ChildElements(fileSpec)) {
        if (std::strcmp(container->name, "Container") != 0) continue;
        for (ElementEntry *ref : ChildElements(container->element)) {
            if (std::strcmp(ref->name, "FileSpecRef") != 0) continue;
            ElementAttribute id(ref->element, "rRef");
            const IdElement *file = findIdElement(fileList, id.value());
            if (file == nullptr) continue;
            zundo_int_object_s *object = nullptr;
            status = createContainerObject(&object, file->element);
            if (status != ZUNDO_OK) continue;
            status = setObjectAttribute(document, "document-container", object);
            if (status != ZUNDO_OK) destroy(object);
        }
    }
    zundo_trace("<< Leaving readContainerElement \n");
    return status;
}

zundo_status_t createContainerObject(zundo_int_object_s **out, xercesc::DOMElement *fileSpec) {
    zundo_trace(">> Entering createContainerObject \n");
    if (newContainer(out, "application/zip", nullptr) != ZUNDO_OK) {
        zundo_trace("call to newContainer failed in createContainerObject: internal error \n");
        return ZUNDO_ERROR;
    }
    ElementAttribute mimeType(fileSpec, "MimeType");
    ElementAttribute url(fileSpec, "URL");
    if (mimeType.value() != nullptr) setStringAttribute(*out, "container-format", mimeType.value());
    if (url.value() != nullptr) setStringAttribute(*out, "container-filename", url.value());
    zundo_trace("<< Leaving createContainerObject \n");
    return ZUNDO_OK;
}
