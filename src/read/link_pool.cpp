// The ResourceLinkPool: which process each link feeds, then the links that
// carry job settings of their own.
#include "read/process_table.h"
#include "read/read_driver.h"
#include "zundo_trace.h"

zundo_status_t readResourceLinkPoolElement(xercesc::DOMElement *pool, zundo_int_object_s *ticket) {
    zundo_trace(">> Entering readResourceLinkPoolElement \n");
    ElementEntry **links = nullptr;
    getElements(pool, &links);
    zundo_read_env_s *env = getReadEnv(ticket);
    if (env == nullptr) {
        freeElementList(links);
        return ZUNDO_ERROR;
    }
    clearProcessTable(env);
    for (ElementEntry **link = links; link != nullptr && *link != nullptr; ++link)
        fillProcessTable(env, (*link)->element);
    // Only a ComponentLink with an Amount gives the job its copies.
    zundo_int_object_s *job = getJob(ticket);
    zundo_status_t status = setIntegerAttribute(job, "job-copies", 0);
    for (ElementEntry **link = links; link != nullptr && *link != nullptr; ++link) {
        const LinkReaderRow *row = findLinkReaderRow(kLinkReaders, kLinkReaderCount, (*link)->name);
        if (row != nullptr && row->reader != nullptr)
            status = row->reader((*link)->element, ticket);
    }
    freeElementList(links);
    zundo_trace("<< Leaving readResourceLinkPoolElement \n");
    return status;
}
