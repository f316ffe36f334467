// CustomerInfo: who the job is for and whom to tell about it.
#include "write/customer_info_writer.h"

#include <new>
#include <string>

#include "enums/value_tables.h"
#include "write/attribute_cascade.h"
#include "write/audit_writers.h"
#include "write/comments.h"
#include "write/jdf_attr.h"
#include "write/resource_getters.h"
#include "zundo_trace.h"

namespace {

const ObjectValueRow kCustomerJobRows[] = {
    {"job-name", "CustomerJobName", nullptr, getCustomerInfo},
    {"job-billing-code", "BillingCode", nullptr, getCustomerInfo},
    {nullptr, nullptr, nullptr, nullptr},
};

// The texts of a list attribute joined by single blanks. Throws
// std::bad_alloc.
std::string joinedTexts(zundo_int_object_s *object, const char *name) {
    std::string joined;
    forEachValue(object, name, [&joined](void *text) {
        if (!joined.empty()) joined += ' ';
        joined += static_cast<const char *>(text);
    });
    return joined;
}

void writeContactTypes(xercesc::DOMElement *contact, zundo_int_object_s *info) {
    std::string types;
    try {
        forEachValue(info, "contact-info-types", [&types](void *code) {
            const char *spelling =
                jdfNameForCode(contactInfoTypesValues, *static_cast<int *>(code));
            if (spelling == nullptr) return;
            if (!types.empty()) types += ' ';
            types += spelling;
        });
    } catch (const std::bad_alloc &) {
        zundo_trace("writeContactInfo() generated out of memory");
        return;
    }
    if (!types.empty()) setAttributeTraced(contact, "ContactTypes", types.c_str());
}

void writeEvents(xercesc::DOMElement *message, zundo_int_object_s *notification) {
    try {
        std::string events = joinedTexts(notification, "notification-events");
        if (!events.empty()) setAttributeTraced(message, "MessageEvents", events.c_str());
    } catch (const std::bad_alloc &) {
        zundo_trace("writeNotificationEvents() generated out of memory");
    }
}

// One ComChannel per addressee; an e-mail address is written as a mailto
// locator.
void writeChannels(xercesc::DOMElement *message, zundo_int_object_s *notification) {
    int delivery = FetchedAttribute(notification, "notification-delivery-type").firstInt(0);
    if (delivery == 0) return;
    const char *channelType = jdfNameForCode(notificationDeliveryTypeValues, delivery);
    try {
        forEachValue(notification, "notification-send-to", [&](void *value) {
            const char *sendTo = static_cast<const char *>(value);
            xercesc::DOMElement *channel = appendChildTraced(message, "ComChannel");
            if (channel == nullptr) return;
            if (channelType != nullptr) setAttributeTraced(channel, "ChannelType", channelType);
            setAttributeTraced(channel, "Locator",
                               delivery == 1 ? ("mailto:" + std::string(sendTo)).c_str() : sendTo);
        });
    } catch (const std::bad_alloc &) {
        zundo_trace("writeNotificationTypeAndSendTo() generated out of memory");
    }
}

// Comments and languages pair up by position, as the reader gives each
// Comment's Language back.
void writeMessageComments(xercesc::DOMElement *message, zundo_int_object_s *notification) {
    FetchedAttribute languages(notification, "notification-language");
    zundo_int_attribute_s *languageList = languages.attribute();
    resetIterator(languageList);
    forEachValue(notification, "notification-comment", [&](void *text) {
        const char *language =
            hasNextValue(languageList) ? static_cast<const char *>(nextValue(languageList))
                                       : nullptr;
        addComment(message, static_cast<const char *>(text), language, "UserText");
    });
}

void writeNotification(JDFWriteContext *ctx, zundo_int_object_s *notification) {
    xercesc::DOMElement *info = getCustomerInfo(ctx);
    xercesc::DOMElement *message = info != nullptr ? appendChildTraced(info, "CustomerMessage")
                                                   : nullptr;
    if (message == nullptr) return;
    setAttributeTraced(message, "ShowList", "UserText");
    writeEvents(message, notification);
    writeChannels(message, notification);
    writeMessageComments(message, notification);
}

}  // namespace

void writeCustomerJobInfo(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeCustomerJobInfo\n");
    writeObjectValues(ctx, job, kCustomerJobRows);
    zundo_trace("<< leaving writeCustomerJobInfo\n");
}

void writeContactInfo(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeContactInfo\n");
    zundo_int_object_s *info = FetchedAttribute(job, "job-contact-info").firstObject();
    FetchedAttribute company(info, "contact-info-company");
    if (info != nullptr && (company.hasValue() || objectHasValue(info, "contact-info-types"))) {
        xercesc::DOMElement *customerInfo = getCustomerInfo(ctx);
        xercesc::DOMElement *contact =
            customerInfo != nullptr ? appendChildTraced(customerInfo, "Contact") : nullptr;
        xercesc::DOMElement *organisation =
            contact != nullptr && company.hasValue() ? appendChildTraced(contact, "Company")
                                                     : nullptr;
        if (organisation != nullptr)
            setAttributeTraced(organisation, "OrganizationName", company.firstString());
        if (contact != nullptr) writeContactTypes(contact, info);
    }
    zundo_trace("<< leaving writeContactInfo\n");
}

void writeNotifications(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeNotifications\n");
    forEachValue(job, "job-notifications", [ctx](void *notification) {
        if (notification != nullptr)
            writeNotification(ctx, static_cast<zundo_int_object_s *>(notification));
    });
    zundo_trace("<< leaving writeNotifications\n");
}
