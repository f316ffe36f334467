// The AuditPool of the JDF node: what happened to the job and when.
#include "read/audit_pool_reader.h"

#include <cstring>

#include "enums/audit_value_tables.h"
#include "read/media_reader.h"
#include "read/reader_conversions.h"
#include "zundo_object.h"
#include "zundo_trace.h"

namespace {

const char kModifications[] = "job-modifications";

// A list attribute of the job that the walk extends: fetched on first use
// and set once when the walk is over, because setting it per audit costs
// time quadratic in the number of audits.
class JobList {
public:
    JobList(zundo_int_object_s *job, const char *name) : job_(job), name_(name) {}
    // When the job refuses the list, only the values added here are
    // destroyed: the earlier ones are still the job's.
    ~JobList() {
        if (list_ == nullptr) return;
        if (set(job_, list_) != ZUNDO_OK) {
            zundo_trace("call to set failed for %s: internal error \n", name_);
            resetIterator(list_);
            for (int i = 0; hasNextValue(list_); ++i) {
                void *value = nextValue(list_);
                if (i >= held_) destroyValueByKind(getValueType(list_), value);
            }
        }
        destroyAttribute(list_);
    }
    JobList(const JobList &) = delete;
    JobList &operator=(const JobList &) = delete;

    // Takes the value; it is destroyed when it cannot be added.
    zundo_status_t add(void *value, const char *kind) {
        if (list_ == nullptr) {
            list_ = get(job_, name_);
            held_ = getNumValues(list_);
        }
        zundo_status_t status = list_ != nullptr ? addValue(list_, value) : ZUNDO_NOT_FOUND;
        if (status != ZUNDO_OK) destroyValueByKind(kind, value);
        return status;
    }

private:
    zundo_int_object_s *job_;
    const char *name_;
    zundo_int_attribute_s *list_ = nullptr;
    int held_ = 0;  // values the job had before the walk
};

// All attributes of an element, freed on scope exit.
class ElementAttributes {
public:
    explicit ElementAttributes(const xercesc::DOMElement *element) { getAttrs(element, &list_); }
    ~ElementAttributes() { freeAttrList(list_); }
    ElementAttributes(const ElementAttributes &) = delete;
    ElementAttributes &operator=(const ElementAttributes &) = delete;
    bool fetched() const { return list_ != nullptr; }
    AttributeEntry *const *begin() const { return list_; }
    AttributeEntry *const *end() const {
        AttributeEntry *const *at = list_;
        while (at != nullptr && *at != nullptr) ++at;
        return at;
    }

private:
    AttributeEntry **list_ = nullptr;
};

// A text with its control-character references decoded when the process
// asks for that. Texts that go into attributes are decoded by the store;
// those of a modification record are not.
class DecodedText {
public:
    explicit DecodedText(const char *text) : text_(text) {
        if (getControlCharacterDecodingFlag() == 0 || !containsDecodableControlCharacters(text))
            return;
        char *decoded = const_cast<char *>(text);
        decodeControlCharacters(&decoded);
        if (decoded != text) decoded_ = decoded;
    }
    ~DecodedText() {
        if (decoded_ != nullptr) freeEncodedOrDecodedStrings(decoded_);
    }
    DecodedText(const DecodedText &) = delete;
    DecodedText &operator=(const DecodedText &) = delete;
    const char *get() const { return decoded_ != nullptr ? decoded_ : text_; }

private:
    const char *text_;
    char *decoded_ = nullptr;
};

bool named(const char *name, const char *expected) { return std::strcmp(name, expected) == 0; }

bool hasValue(zundo_int_object_s *object, const char *name) {
    zundo_int_attribute_s *attribute = get(object, name);
    bool present = hasNextValue(attribute) != 0;
    destroyAttribute(attribute);
    return present;
}

void setTextIfPresent(zundo_int_object_s *object, const char *name,
                      const xercesc::DOMElement *element, const char *jdfName) {
    ElementAttribute value(element, jdfName);
    if (value.value() != nullptr) setStringAttribute(object, name, value.value());
}

// A text-list attribute is set only when it has values.
void setTextList(zundo_int_object_s *object, zundo_int_attribute_s *list) {
    if (getNumValues(list) > 0) setAndReleaseAttribute(object, list);
    else destroyAttribute(list);
}

zundo_int_object_s *readProcessRun(const xercesc::DOMElement *audit) {
    zundo_date_time_s *end = nullptr, *start = nullptr, *timeStamp = nullptr;
    readAuditTime(audit, "End", &end);
    readAuditTime(audit, "Start", &start);
    readAuditTime(audit, "TimeStamp", &timeStamp);
    int endStatus =
        codeForJDFName(processRunEndStatusValues, ElementAttribute(audit, "EndStatus").value());
    zundo_int_object_s *run = nullptr;
    if (newProcessRun(&run, end, endStatus, start, timeStamp) != ZUNDO_OK) return nullptr;
    setAuditTime(run, "process-run-submission-time", audit, "SubmissionTime");
    ElementAttribute duration(audit, "Duration");
    if (duration.value() != nullptr)
        setTimePeriodFromText(run, "process-run-duration", duration.value());
    return run;
}

// Only a ModulePhase that names its device and module type makes one.
zundo_int_object_s *readPhaseTime(const xercesc::DOMElement *audit) {
    xercesc::DOMElement *module = ChildElements(audit).first("ModulePhase");
    if (module == nullptr) return nullptr;
    ElementAttribute deviceId(module, "DeviceID");
    ElementAttribute moduleType(module, "ModuleType");
    if (deviceId.value() == nullptr || moduleType.value() == nullptr) return nullptr;
    zundo_date_time_s *start = nullptr, *timeStamp = nullptr;
    readAuditTime(audit, "Start", &start);
    readAuditTime(audit, "TimeStamp", &timeStamp);
    zundo_int_object_s *phase = nullptr;
    if (newPhaseTime(&phase, textIs(moduleType.value(), "RIP") ? 2 : 1, deviceId.value(), start,
                     timeStamp) != ZUNDO_OK)
        return nullptr;
    setAuditTime(phase, "phase-time-end-time", audit, "End");
    return phase;
}

// Replaces the job's phase times, even with none.
void readPhaseTimes(const ChildElements &audits, zundo_int_object_s *job) {
    zundo_int_attribute_s *list = nullptr;
    if (newAttribute(&list, "job-phase-times", ZUNDO_KIND_OBJECT, nullptr) != ZUNDO_OK) return;
    for (ElementEntry *audit : audits) {
        if (!named(audit->name, "PhaseTime")) continue;
        zundo_int_object_s *phase = readPhaseTime(audit->element);
        if (phase != nullptr && addValue(list, phase) != ZUNDO_OK) destroy(phase);
    }
    setAndReleaseAttribute(job, list);
}

// Each Comment adds its Language and its text to the audit's lists.
void readNotificationComments(const ChildElements &children, zundo_int_object_s *audit) {
    zundo_int_attribute_s *languages = nullptr, *texts = nullptr;
    if (newAttribute(&languages, "notification-audit-language", ZUNDO_KIND_STRING, nullptr) !=
            ZUNDO_OK ||
        newAttribute(&texts, "notification-audit-text", ZUNDO_KIND_STRING, nullptr) != ZUNDO_OK) {
        destroyAttribute(languages);
        return;
    }
    for (ElementEntry *child : children) {
        if (!named(child->name, "Comment")) continue;
        ElementAttribute language(child->element, "Language");
        if (language.value() != nullptr) addValue(languages, language.value());
        char *text = nullptr;
        if (getElementText(child->element, &text).status == ZUNDO_OK) addValue(texts, text);
        delete[] text;
    }
    setTextList(audit, languages);
    setTextList(audit, texts);
}

// Needs a time stamp and a known class.
zundo_int_object_s *readNotificationAudit(const xercesc::DOMElement *element) {
    zundo_date_time_s *timeStamp = nullptr;
    int auditClass =
        codeForJDFName(notificationAuditClassValues, ElementAttribute(element, "Class").value());
    if (!readAuditTime(element, "TimeStamp", &timeStamp) || auditClass == 0) {
        destroyDateTime(timeStamp);
        return nullptr;
    }
    zundo_int_object_s *audit = nullptr;
    if (newNotificationAudit(&audit, auditClass, timeStamp) != ZUNDO_OK) return nullptr;
    setTextIfPresent(audit, "notification-audit-job-id", element, "JobID");
    setTextIfPresent(audit, "notification-audit-job-part-id", element, "JobPartID");
    setTextIfPresent(audit, "notification-audit-queue-entry-id", element, "QueueEntryID");
    ChildElements children(element);
    readNotificationComments(children, audit);
    for (ElementEntry *child : children)
        if (named(child->name, "Error"))
            setTextIfPresent(audit, "notification-audit-error-id", child->element, "ErrorID");
    return audit;
}

// An audit-only MediaLink brings back a media that only its amount used
// put into the ticket.
void readAuditMedia(const xercesc::DOMElement *audit, IdElement **mediaList, JobList *medias) {
    xercesc::DOMElement *link = ChildElements(audit).first("MediaLink");
    if (link == nullptr || !textIs(ElementAttribute(link, "morvellan:AuditOnly").value(), "true"))
        return;
    const IdElement *entry = findIdElement(mediaList, ElementAttribute(link, "rRef").value());
    zundo_int_object_s *media = nullptr;
    if (entry != nullptr) createMediaObject(&media, entry->element);
    if (media != nullptr) medias->add(media, ZUNDO_KIND_OBJECT);
}

void setCreatedBy(zundo_int_object_s *job, const char *author) {
    zundo_status_t status = setStringAttribute(job, "job-created-by", author);
    if (status != ZUNDO_OK)
        zundo_trace("call to setStringAttribute failed for %s: error code %d \n", "job-created-by",
                    status);
}

void setCreateTime(zundo_int_object_s *job, const char *text) {
    const char name[] = "job-create-date-time";
    zundo_date_time_s *time = nullptr;
    if (newDateTimeFromString(&time, text) != ZUNDO_OK) {
        zundo_trace("call to newDateTimeFromString failed for %s:internal error \n", name);
        return;
    }
    if (setDateTimeAttribute(job, name, time) != ZUNDO_OK) {
        zundo_trace("call to setDateTimeAttribute failed for %s:internal error \n", name);
        destroyDateTime(time);
    }
}

zundo_status_t readCreated(const xercesc::DOMElement *created, zundo_int_object_s *ticket) {
    zundo_int_object_s *job = getJob(ticket);
    ElementAttributes attributes(created);
    if (!attributes.fetched()) {
        zundo_trace("call to getAttrs failed for %s: internal error \n", "Created");
        return ZUNDO_ERROR;
    }
    for (AttributeEntry *attribute : attributes) {
        const char *value = attribute->value;
        if (named(attribute->name, "AgentName"))
            setStringAttribute(ticket, "jt-project-id", value);
        else if (named(attribute->name, "AgentVersion"))
            setStringAttribute(ticket, "jt-project-version", value);
        else if (named(attribute->name, "Author"))
            setCreatedBy(job, value);
        else if (named(attribute->name, "TimeStamp") && !isZeroTime(value))
            setCreateTime(job, value);
    }
    ChildElements children(created);
    if (children.entries() == nullptr) {
        zundo_trace("call to getElements failed for %s\n", "Created");
        return ZUNDO_OK;
    }
    for (ElementEntry *child : children) {
        ElementAttribute id(child->element, "PersonalID");
        if (named(child->name, "Employee") && id.value() != nullptr) setCreatedBy(job, id.value());
    }
    return ZUNDO_OK;
}

void setModificationTime(zundo_modified_s *modified, const xercesc::DOMElement *audit) {
    zundo_date_time_s *time = nullptr;
    if (!readAuditTime(audit, "TimeStamp", &time)) {
        zundo_trace("call to newDateTimeFromString failed for %s: internal error \n",
                    kModifications);
    } else if (time != nullptr && setDateTime(modified, time) != ZUNDO_OK) {
        zundo_trace("call to set failed for %s: internal error \n", kModifications);
        destroyDateTime(time);
    }
}

// The status is that of the XPath's attribute, or ZUNDO_ERROR when the
// audit cannot be read.
zundo_status_t readModification(const xercesc::DOMElement *audit, const char *auditName, int type,
                                JobList *modifications) {
    zundo_modified_s *modified = nullptr;
    if (newModified(&modified, nullptr, nullptr) != ZUNDO_OK ||
        setModifiedType(modified, type) != ZUNDO_OK) {
        zundo_trace("call to newModified for %s:internal error \n", auditName);
        destroyModified(modified);
        return ZUNDO_ERROR;
    }
    ElementAttributes attributes(audit);
    if (!attributes.fetched()) {
        zundo_trace("call to getAttrs failed for %s: internal error \n", auditName);
        destroyModified(modified);
        return ZUNDO_ERROR;
    }
    zundo_status_t status = ZUNDO_OK;
    for (AttributeEntry *attribute : attributes) {
        if (named(attribute->name, "Author"))
            setModifiedBy(modified, DecodedText(attribute->value).get());
        else if (named(attribute->name, "AgentName"))
            setProjectID(modified, DecodedText(attribute->value).get());
        else if (named(attribute->name, "AgentVersion"))
            setProjectVersion(modified, DecodedText(attribute->value).get());
        else if (named(attribute->name, "TimeStamp"))
            setModificationTime(modified, audit);
        else if (named(attribute->name, "XPath"))
            status = readModifiedXPath(attribute->value, modified);
    }
    // The list owns the record from here on; the Employees still name
    // its author.
    if (modifications->add(modified, ZUNDO_KIND_MODIFIED) != ZUNDO_OK) {
        zundo_trace("call to addValue failed for %s: internal error \n", kModifications);
        return status;
    }
    ChildElements children(audit);
    if (children.entries() == nullptr) {
        zundo_trace("call to getElements failed for %s\n", auditName);
        return ZUNDO_ERROR;
    }
    for (ElementEntry *child : children) {
        ElementAttribute id(child->element, "PersonalID");
        if (!named(child->name, "Employee") || id.value() == nullptr) continue;
        zundo_status_t set = setModifiedBy(modified, DecodedText(id.value()).get());
        if (set != ZUNDO_OK)
            zundo_trace("call to setModifiedBy failed for %s: error code %d \n", kModifications,
                        set);
    }
    return status;
}

}  // namespace

bool isZeroTime(const char *text) {
    return textIs(text, "0000-00-00T00:00:00+00:00") || textIs(text, "0000-00-00T00:00:00-00:00");
}

bool readAuditTime(const xercesc::DOMElement *element, const char *name, zundo_date_time_s **out) {
    *out = nullptr;
    ElementAttribute text(element, name);
    if (isZeroTime(text.value())) return true;
    return text.value() != nullptr && newDateTimeFromString(out, text.value()) == ZUNDO_OK;
}

void setAuditTime(zundo_int_object_s *object, const char *name, const xercesc::DOMElement *element,
                  const char *jdfName) {
    zundo_date_time_s *time = nullptr;
    if (readAuditTime(element, jdfName, &time) && time != nullptr &&
        setDateTimeAttribute(object, name, time) != ZUNDO_OK)
        destroyDateTime(time);
}

zundo_status_t getAuditPoolElement(xercesc::DOMElement *auditPool, zundo_int_object_s *ticket,
                                   IdElement **mediaList) {
    zundo_trace(">> Entering getAuditPoolElement \n");
    ChildElements audits(auditPool);
    if (audits.entries() == nullptr) {
        zundo_trace("call to getElements failed for %s\n", "AuditPool");
        return ZUNDO_ERROR;
    }
    zundo_int_object_s *job = getJob(ticket);
    readPhaseTimes(audits, job);
    JobList processRuns(job, "job-process-runs");
    JobList notificationAudits(job, "job-notification-audits");
    JobList medias(job, "job-audit-medias");
    JobList modifications(job, kModifications);
    zundo_status_t status = ZUNDO_OK;
    for (ElementEntry *audit : audits) {
        const char *name = audit->name;
        if (named(name, "ProcessRun")) {
            if (zundo_int_object_s *run = readProcessRun(audit->element))
                status = processRuns.add(run, ZUNDO_KIND_OBJECT);
        } else if (named(name, "ResourceAudit")) {
            readAuditMedia(audit->element, mediaList, &medias);
        } else if (named(name, "Notification")) {
            if (zundo_int_object_s *notification = readNotificationAudit(audit->element))
                status = notificationAudits.add(notification, ZUNDO_KIND_OBJECT);
        } else if (named(name, "Created")) {
            if (!hasValue(job, "job-created-by")) status = readCreated(audit->element, ticket);
        } else if (named(name, "Modified") || named(name, "Deleted")) {
            status = readModification(audit->element, name, named(name, "Modified") ? 3 : 2,
                                      &modifications);
        }
        if (status == ZUNDO_ERROR) break;
    }
    zundo_trace("<< Leaving getAuditPoolElement \n");
    return status;
}
