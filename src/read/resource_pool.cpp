// The ResourcePool in four passes, so that every resource a reader refers
// to is known before it runs: FileSpecs first; then layout elements, run
// lists and media, which make the documents; then colour; then everything
// else.
#include "read/read_driver.h"
#include "zundo_trace.h"

zundo_status_t readResourcePoolElement(xercesc::DOMElement *pool, ResourceReadContext *context) {
    zundo_trace(">> Entering readResourcePoolElement \n");
    ElementEntry **resources = nullptr;
    zundo_status_t status = getElements(pool, &resources).status;
    context->fileList = nullptr;
    context->layoutElements = nullptr;
    ListAppender usageCounters(getJob(context->ticket), "job-usage-counters");
    context->usageCounters = &usageCounters;
    runResourcePass(resources, kFileSpecPassReaders, kFileSpecPassReaderCount, context);
    runResourcePass(resources, kLayoutPassReaders, kLayoutPassReaderCount, context);
    runResourcePass(resources, kColourPassReaders, kColourPassReaderCount, context);
    runResourcePass(resources, kParameterPassReaders, kParameterPassReaderCount, context);
    freeElementList(resources);
    freeLayoutElementList(context->layoutElements);
    freeIdElementList(context->fileList);
    context->layoutElements = nullptr;
    context->fileList = nullptr;
    context->usageCounters = nullptr;
    zundo_trace("<< Leaving readResourcePoolElement \n");
    return status;
}
