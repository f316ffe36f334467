// LayoutElements and FileSpecs of the written documents and containers.
#include "write/layout_elements.h"

#include "values/value_objects.h"
#include "write/jdf_attr.h"
#include "write/number_format.h"
#include "write/object_values.h"
#include "write/resource_getters.h"
#include "xml/jdf_pools.h"
#include "zundo_trace.h"

namespace {

// File names longer than this are cut.
const unsigned kMaxUrlLength = 4095;

// "Container" and any int.
const size_t kContainerIdSize = 24;

// "Container" followed by the container's number.
const char *containerId(char *buffer, int number) {
    return formatValueText(buffer, kContainerIdSize, "%s%i", "Container", number);
}

// A FileSpec or LayoutElement resource without a link.
xercesc::DOMElement *addUnlinkedResource(JDFWriteContext *ctx, const char *name, const char *id) {
    ResourceInfo info = {nullptr, nullptr, name, id, "Parameter", "Available", nullptr, nullptr};
    return succeededTraced(addResourceToPools(getResourcePool(ctx), nullptr, &info).status)
               ? info.resource
               : nullptr;
}

void setUrl(xercesc::DOMElement *fileSpec, const char *url) {
    const AttributeEntry entry = {"URL", url != nullptr ? url : "", nullptr, nullptr};
    succeededTraced(setElementAttribute(fileSpec, &entry, kMaxUrlLength).status);
}

void setIntegerIfPresent(xercesc::DOMElement *element, zundo_int_object_s *object,
                         const char *attributeName, const char *jdfName) {
    FetchedAttribute value(object, attributeName);
    if (!value.hasValue()) return;
    char text[kNumberTextSize];
    setAttributeTraced(element, jdfName, formatInteger(text, sizeof text, value.firstInt(0)));
}

void setTextIfPresent(xercesc::DOMElement *element, zundo_int_object_s *object,
                      const char *attributeName, const char *jdfName) {
    FetchedAttribute value(object, attributeName);
    if (value.hasValue()) setAttributeTraced(element, jdfName, value.firstString());
}

void writeContainerFileSpec(JDFWriteContext *ctx, zundo_int_object_s *container, int number) {
    char id[kContainerIdSize];
    xercesc::DOMElement *fileSpec = addUnlinkedResource(ctx, "FileSpec", containerId(id, number));
    if (fileSpec == nullptr) return;
    setUrl(fileSpec, FetchedAttribute(container, "container-filename").firstString());
    setTextIfPresent(fileSpec, container, "container-format", "MimeType");
}

void writeDiscardedSeparations(xercesc::DOMElement *fileSpec, zundo_int_object_s *document) {
    FetchedAttribute separations(document, "document-separations-to-discard");
    zundo_int_attribute_s *names = separations.attribute();
    while (hasNextValue(names)) {
        const char *name = static_cast<const char *>(nextValue(names));
        xercesc::DOMElement *discard =
            appendChildTraced(fileSpec, "morvellan:DiscardPDLSeparation");
        if (discard != nullptr && name != nullptr) setAttributeTraced(discard, "Name", name);
    }
}

void writeFormat(xercesc::DOMElement *fileSpec, zundo_int_object_s *document) {
    FetchedAttribute format(document, "document-format");
    if (!format.hasValue()) return;
    const char *mimeType =
        getJDFValueFromChar("job-destination-connector-file-format", format.firstString());
    if (mimeType != nullptr) setAttributeTraced(fileSpec, "MimeType", mimeType);
    // The mapping hands back its input for a format it does not know; such a
    // format has no version of its own.
    const char *version = getJDFValueFromChar("doc-format-version", format.firstString());
    if (version != nullptr && version != format.firstString())
        setAttributeTraced(fileSpec, "MimeTypeVersion", version);
}

void writeContainerReference(JDFWriteContext *ctx, xercesc::DOMElement *fileSpec,
                             zundo_int_object_s *document, ContainerList *containers) {
    int number = findContainerObject(ctx, document, containers);
    if (number < 0) return;
    setAttributeTraced(fileSpec, "Compression", "Deflate");
    xercesc::DOMElement *holder = appendChildTraced(fileSpec, "Container");
    xercesc::DOMElement *reference =
        holder != nullptr ? appendChildTraced(holder, "FileSpecRef") : nullptr;
    if (reference == nullptr) return;
    char id[kContainerIdSize];
    setAttributeTraced(reference, "rRef", containerId(id, number));
}

}  // namespace

int findContainerObject(JDFWriteContext *ctx, zundo_int_object_s *document,
                        ContainerList *containers) {
    zundo_int_object_s *container = FetchedAttribute(document, "document-container").firstObject();
    if (container == nullptr) return -1;
    for (size_t i = 0; i < containers->count; ++i)
        if (containerEquals(containers->containers[i], container) == 1) return static_cast<int>(i);
    if (!growListForAppend(&containers->containers, containers->count)) {
        traceOutOfMemory("findContainerObject");
        return -2;
    }
    int number = static_cast<int>(containers->count);
    containers->containers[containers->count++] = container;
    containers->containers[containers->count] = nullptr;
    writeContainerFileSpec(ctx, container, number);
    return number;
}

void writeDocumentLayoutElement(JDFWriteContext *ctx, zundo_int_object_s *document,
                                const char *documentId, ContainerList *containers) {
    xercesc::DOMElement *layoutElement = addUnlinkedResource(ctx, "LayoutElement", documentId);
    xercesc::DOMElement *fileSpec =
        layoutElement != nullptr ? appendChildTraced(layoutElement, "FileSpec") : nullptr;
    if (fileSpec == nullptr) return;
    setIntegerIfPresent(fileSpec, document, "document-number-pages", "morvellan:NPage");
    setIntegerIfPresent(fileSpec, document, "document-number-pages-bw", "morvellan:NPageBW");
    setIntegerIfPresent(fileSpec, document, "document-number-pages-color", "morvellan:NPageColor");
    setTextIfPresent(fileSpec, document, "document-internal-print-job-name",
                     "morvellan:InternalPrintJobName");
    setUrl(fileSpec, FetchedAttribute(document, "document-file-name").firstString());
    writeDiscardedSeparations(fileSpec, document);
    writeFormat(fileSpec, document);
    setTextIfPresent(fileSpec, document, "document-checksum", "Checksum");
    writeContainerReference(ctx, fileSpec, document, containers);
}
