// Comment children of the JDF node: each Name stands for one attribute.
#include <cstring>

#include "read/job_node_readers.h"
#include "read/reader_conversions.h"
#include "zundo_trace.h"

namespace {

struct CommentTarget {
    const char *name;
    const char *attribute;
    bool onTicket;     // else on the job
    bool givesResult;  // the set's status is the reader's result
};

// JobDescription is read apart.
const CommentTarget kCommentTargets[] = {
    {"Orientation", "job-orientation-hint", false, false},
    {"TemplateDescription", "jt-comment", true, false},
    {"UserText", "job-processing-information", false, false},
    {"morvellan:ApiVersion", "jt-api-version-from-jt", true, true},
    {"morvellan:BannerPageText", "job-banner-page-text", false, false},
};

bool hasValue(zundo_int_object_s *object, const char *name) {
    zundo_int_attribute_s *attribute = get(object, name);
    bool present = hasNextValue(attribute) != 0;
    destroyAttribute(attribute);
    return present;
}

// The first description without an ID is the job's comment; every other
// one joins the list of comments.
void readJobDescription(xercesc::DOMElement *comment, const char *text, zundo_int_object_s *job,
                        zundo_int_attribute_s **jobComments) {
    ElementAttribute id(comment, "ID");
    if (id.value() == nullptr && !hasValue(job, "job-comment")) {
        setStringAttribute(job, "job-comment", text);
        return;
    }
    if (*jobComments == nullptr) *jobComments = get(job, "job-comments");
    addValue(*jobComments, text);
}

zundo_status_t storeComment(xercesc::DOMElement *comment, const char *name, const char *text,
                            zundo_int_object_s *ticket, zundo_int_attribute_s **jobComments) {
    if (std::strcmp(name, "JobDescription") == 0) {
        readJobDescription(comment, text, getJob(ticket), jobComments);
        return ZUNDO_OK;
    }
    for (const CommentTarget &target : kCommentTargets) {
        if (std::strcmp(target.name, name) != 0) continue;
        zundo_int_object_s *owner = target.onTicket ? ticket : getJob(ticket);
        zundo_status_t status = setStringAttribute(owner, target.attribute, text);
        return target.givesResult ? status : ZUNDO_OK;
    }
    return ZUNDO_OK;
}

}  // namespace

zundo_status_t readCommentElement(xercesc::DOMElement *comment, zundo_int_object_s *ticket,
                                  zundo_int_attribute_s **jobComments) {
    zundo_trace(">> Entering readCommentElement \n");
    zundo_status_t status = ZUNDO_OK;
    ElementAttribute name(comment, "Name");
    if (name.value() != nullptr) {
        char *text = nullptr;
        if (getElementText(comment, &text).status == ZUNDO_OK)
            status = storeComment(comment, name.value(), text, ticket, jobComments);
        delete[] text;
    }
    zundo_trace("<< Leaving readCommentElement \n");
    return status;
}
