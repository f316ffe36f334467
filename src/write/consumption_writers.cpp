// What the job consumed: UsageCounter resources and the ink amounts on the
// Ink link, each stamped by a ResourceAudit that holds a copy of the link.
#include <new>
#include <string>

#include "enums/audit_value_tables.h"
#include "enums/value_tables.h"
#include "write/audit_writers.h"
#include "write/jdf_attr.h"
#include "write/number_format.h"
#include "write/resource_getters.h"
#include "xml/jdf_pools.h"
#include "zundo_trace.h"

namespace {

void setRealIfPresent(xercesc::DOMElement *element, const char *jdfName,
                      zundo_int_object_s *object, const char *attribute) {
    FetchedAttribute value(object, attribute);
    char number[kNumberTextSize];
    if (value.hasValue())
        setAttributeTraced(element, jdfName,
                           formatReal(number, sizeof number, value.firstDouble(0)));
}

// A ResourceAudit of the consumption; the caller completes the link
// before copying it in with copyLinkIntoAudit.
xercesc::DOMElement *newConsumptionAudit(JDFWriteContext *ctx) {
    xercesc::DOMElement *audit = newAudit(ctx, "ResourceAudit");
    if (audit != nullptr) setAttributeTraced(audit, "NodeStatus", "InProgress");
    return audit;
}

void copyLinkIntoAudit(xercesc::DOMElement *audit, const xercesc::DOMElement *link,
                       const char *linkName) {
    xercesc::DOMElement *copy = appendChildTraced(audit, linkName);
    if (copy != nullptr) copyElementTree(link, copy);
}

// Every JDF spelling of the list's codes, each followed by one blank.
void appendCodeWords(std::string *words, zundo_int_object_s *counter, const char *attribute,
                     const zundo_enum_pair_s *values) {
    forEachValue(counter, attribute, [&](void *code) {
        const char *spelling = jdfNameForCode(values, *static_cast<int *>(code));
        if (spelling != nullptr) *words += std::string(spelling) + " ";
    });
}

void writeCounterAudit(JDFWriteContext *ctx, xercesc::DOMElement *link,
                       zundo_int_object_s *counter) {
    if (!objectHasValue(counter, "usage-counter-actual-amount") &&
        !objectHasValue(counter, "usage-counter-reason") &&
        !objectHasValue(counter, "usage-counter-time-stamp"))
        return;
    xercesc::DOMElement *audit = newConsumptionAudit(ctx);
    if (audit == nullptr) return;
    if (link != nullptr)
        setRealIfPresent(link, "ActualAmount", counter, "usage-counter-actual-amount");
    const char *reason = jdfNameForCode(
        auditReasonValues, FetchedAttribute(counter, "usage-counter-reason").firstInt(0));
    if (reason != nullptr) setAttributeTraced(audit, "Reason", reason);
    writeTimeOrPlaceholder(audit, "TimeStamp", counter, "usage-counter-time-stamp");
    if (link != nullptr) copyLinkIntoAudit(audit, link, "UsageCounterLink");
}

// False when memory runs out.
bool writeUsageCounter(JDFWriteContext *ctx, zundo_int_object_s *counter) {
    xercesc::DOMElement *resource = getUsageCounter(ctx);
    if (resource == nullptr) return true;
    writeCounterAudit(ctx, getElementLinkFromElement(resource, "Input"), counter);
    FetchedAttribute id(counter, "usage-counter-id");
    if (id.hasValue()) setAttributeTraced(resource, "CounterID", id.firstString());
    std::string types;
    try {
        appendCodeWords(&types, counter, "usage-counter-unit", usageCounterUnitValues);
        appendCodeWords(&types, counter, "usage-counter-colorants", usageCounterColorantValues);
        appendCodeWords(&types, counter, "usage-counter-media-sides", usageCounterMediaSideValues);
    } catch (const std::bad_alloc &) {
        return false;
    }
    if (!types.empty()) setAttributeTraced(resource, "CounterTypes", types.c_str());
    setAttributeTraced(resource, "Scope", "Job");
    return true;
}

void writeInkAmounts(xercesc::DOMElement *link, zundo_int_object_s *job) {
    xercesc::DOMElement *pool = appendChildTraced(link, "AmountPool");
    if (pool == nullptr) return;
    forEachValue(job, "job-ink-usages", [pool](void *value) {
        auto *usage = static_cast<zundo_int_object_s *>(value);
        xercesc::DOMElement *amount = appendChildTraced(pool, "PartAmount");
        if (amount == nullptr) return;
        setRealIfPresent(amount, "ActualAmount", usage, "ink-usage-amount");
        const char *separation = jdfNameForCode(
            inkUsageNameValues, FetchedAttribute(usage, "ink-usage-name").firstInt(0));
        xercesc::DOMElement *part = appendChildTraced(amount, "Part");
        if (part != nullptr && separation != nullptr)
            setAttributeTraced(part, "Separation", separation);
    });
}

}  // namespace

void writeUsageCounters(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeUsageCounters\n");
    FetchedAttribute counters(job, "job-usage-counters");
    zundo_int_attribute_s *list = counters.attribute();
    resetIterator(list);
    while (hasNextValue(list)) {
        auto *counter = static_cast<zundo_int_object_s *>(nextValue(list));
        if (counter != nullptr && !writeUsageCounter(ctx, counter)) {
            zundo_trace("writeUsageCounters() generated out of memory");
            break;
        }
    }
    zundo_trace("<< leaving writeUsageCounters\n");
}

void writeInkUsages(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeInkUsages\n");
    const char *unit = jdfNameForCode(inkUsageAmountValues,
                                      FetchedAttribute(job, "job-ink-usages-units").firstInt(0));
    if (unit != nullptr && getInk(ctx) != nullptr) setAttributeTraced(getInk(ctx), "Unit", unit);
    if (objectHasValue(job, "job-ink-usages") && getInk(ctx) != nullptr) {
        xercesc::DOMElement *link = ctx->resourceLinks[kInk];
        xercesc::DOMElement *audit = newConsumptionAudit(ctx);
        if (audit != nullptr) {
            writeTimeOrPlaceholder(audit, "TimeStamp", job, "job-ink-usages-time-stamp");
            setAttributeTraced(audit, "Reason", "ProcessResult");
        }
        if (link != nullptr) writeInkAmounts(link, job);
        if (audit != nullptr && link != nullptr) copyLinkIntoAudit(audit, link, "InkLink");
    }
    zundo_trace("<< leaving writeInkUsages\n");
}
