// Consumption recorded by the UsageCounter and Ink resources: the amounts
// on their Input links and the ResourceAudits that stamp them.
#include <xercesc/dom/DOMElement.hpp>

#include <cstring>
#include <initializer_list>
#include <string>

#include "enums/audit_value_tables.h"
#include "enums/value_tables.h"
#include "read/audit_pool_reader.h"
#include "read/reader_conversions.h"
#include "xml/jdf_pools.h"

namespace {

// Each word is a unit, a colorant or a media side, tried in that order.
void readCounterTypes(zundo_int_object_s *counter, const char *text) {
    zundo_int_attribute_s *colorants = nullptr, *sides = nullptr;
    if (newAttribute(&colorants, "usage-counter-colorants", ZUNDO_KIND_INTEGER_LIST, nullptr) !=
            ZUNDO_OK ||
        newAttribute(&sides, "usage-counter-media-sides", ZUNDO_KIND_INTEGER_LIST, nullptr) !=
            ZUNDO_OK) {
        destroyAttribute(colorants);
        return;
    }
    for (const std::string &word : splitWords(text, kCommaAndBlankSeparators)) {
        int code = 0;
        if ((code = codeForJDFName(usageCounterUnitValues, word.c_str())) != 0)
            setIntegerAttribute(counter, "usage-counter-unit", code);
        else if ((code = codeForJDFName(usageCounterColorantValues, word.c_str())) != 0)
            addValue(colorants, &code);
        else if ((code = codeForJDFName(usageCounterMediaSideValues, word.c_str())) != 0)
            addValue(sides, &code);
    }
    for (zundo_int_attribute_s *list : {colorants, sides}) {
        if (getNumValues(list) > 0) set(counter, list);
        destroyAttribute(list);
    }
}

// The Input link of the resource and the ResourceAudit that copies it.
struct ConsumptionRecord {
    xercesc::DOMElement *link;
    const xercesc::DOMElement *audit;
};

ConsumptionRecord findConsumption(const xercesc::DOMElement *resource, const char *linkName) {
    ConsumptionRecord record = {getElementLinkFromElement(resource, "Input"), nullptr};
    ElementAttribute reference(record.link, "rRef");
    if (reference.value() != nullptr)
        record.audit = findResourceAudit(resource, linkName, reference.value());
    return record;
}

zundo_int_object_s *readInkUsage(const xercesc::DOMElement *partAmount) {
    xercesc::DOMElement *part = ChildElements(partAmount).first("Part");
    int name = codeForJDFName(inkUsageNameValues, ElementAttribute(part, "Separation").value());
    zundo_int_object_s *usage = nullptr;
    if (newInkUsage(&usage, name) != ZUNDO_OK) return nullptr;
    double amount = -1.0;
    if (!convertStringToDouble(ElementAttribute(partAmount, "ActualAmount").value(), &amount))
        amount = -1.0;
    setDoubleAttribute(usage, "ink-usage-amount", amount);
    return usage;
}

}  // namespace

const xercesc::DOMElement *findResourceAudit(const xercesc::DOMElement *resource,
                                             const char *linkName, const char *reference) {
    xercesc::DOMNode *node = getParentElement(getParentElement(resource));
    if (node == nullptr || node->getNodeType() != xercesc::DOMNode::ELEMENT_NODE) return nullptr;
    ChildElements nodeChildren(static_cast<xercesc::DOMElement *>(node));
    ChildElements audits(nodeChildren.first("AuditPool"));
    for (ElementEntry *audit : audits) {
        if (std::strcmp(audit->name, "ResourceAudit") != 0) continue;
        for (ElementEntry *link : ChildElements(audit->element))
            if (std::strcmp(link->name, linkName) == 0 &&
                textIs(ElementAttribute(link->element, "rRef").value(), reference))
                return audit->element;
    }
    return nullptr;
}

zundo_status_t readUsageCounterResource(xercesc::DOMElement *usageCounter,
                                        ListAppender *usageCounters) {
    zundo_int_object_s *counter = nullptr;
    if (newUsageCounter(&counter) != ZUNDO_OK) return ZUNDO_OK;
    ElementAttribute id(usageCounter, "CounterID");
    if (id.value() != nullptr) setStringAttribute(counter, "usage-counter-id", id.value());
    readCounterTypes(counter, ElementAttribute(usageCounter, "CounterTypes").value());
    ConsumptionRecord record = findConsumption(usageCounter, "UsageCounterLink");
    ElementAttribute amount(record.link, "ActualAmount");
    if (amount.value() != nullptr)
        setRealFromText(counter, "usage-counter-actual-amount", amount.value());
    if (record.audit != nullptr) {
        setAuditTime(counter, "usage-counter-time-stamp", record.audit, "TimeStamp");
        ElementAttribute reason(record.audit, "Reason");
        if (reason.value() != nullptr)
            setIntegerAttribute(counter, "usage-counter-reason",
                                codeForJDFName(auditReasonValues, reason.value()));
    }
    if (usageCounters->add(counter) == ZUNDO_NOT_FOUND) destroy(counter);
    return ZUNDO_OK;
}

void readInkUsages(xercesc::DOMElement *ink, zundo_int_object_s *job) {
    ElementAttribute unit(ink, "Unit");
    if (unit.value() != nullptr)
        setIntegerAttribute(job, "job-ink-usages-units",
                            codeForJDFName(inkUsageAmountValues, unit.value()));
    ConsumptionRecord record = findConsumption(ink, "InkLink");
    if (record.link == nullptr) return;
    if (record.audit != nullptr)
        setAuditTime(job, "job-ink-usages-time-stamp", record.audit, "TimeStamp");
    zundo_int_attribute_s *usages = nullptr;
    if (newAttribute(&usages, "job-ink-usages", ZUNDO_KIND_OBJECT, nullptr) != ZUNDO_OK) return;
    for (ElementEntry *partAmount : ChildElements(ChildElements(record.link).first("AmountPool"))) {
        if (std::strcmp(partAmount->name, "PartAmount") != 0) continue;
        zundo_int_object_s *usage = readInkUsage(partAmount->element);
        if (usage != nullptr && addValue(usages, usage) != ZUNDO_OK) destroy(usage);
    }
    setAndReleaseAttribute(job, usages);
}
