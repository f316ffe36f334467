// CustomerInfo: who the job is for and whom to tell about it.
#include "read/customer_info_reader.h"

#include <cstring>
#include <initializer_list>
#include <string>
#include <vector>

#include "enums/value_tables.h"
#include "read/reader_conversions.h"
#include "zundo_trace.h"

namespace {

const char kMailPrefix[] = "mailto:";

bool named(const ElementEntry *entry, const char *name) {
    return std::strcmp(entry->name, name) == 0;
}

// The three text lists of a notification, destroyed with the holder
// unless handed over.
struct MessageLists {
    zundo_int_attribute_s *comments = nullptr;
    zundo_int_attribute_s *languages = nullptr;
    zundo_int_attribute_s *sendTo = nullptr;

    ~MessageLists() {
        destroyAttribute(comments);
        destroyAttribute(languages);
        destroyAttribute(sendTo);
    }
    zundo_status_t create() {
        zundo_status_t status =
            newAttribute(&comments, "notification-comment", ZUNDO_KIND_STRING, nullptr);
        if (status == ZUNDO_OK)
            status = newAttribute(&languages, "notification-language", ZUNDO_KIND_STRING, nullptr);
        if (status == ZUNDO_OK)
            status = newAttribute(&sendTo, "notification-send-to", ZUNDO_KIND_STRING, nullptr);
        return status;
    }
    void setOn(zundo_int_object_s *notification) const {
        for (zundo_int_attribute_s *list : {sendTo, languages, comments})
            if (getNumValues(list) > 0) set(notification, list);
    }
};

void readMessageComment(const xercesc::DOMElement *comment, MessageLists *lists) {
    ElementAttribute language(comment, "Language");
    if (language.value() != nullptr) addValue(lists->languages, language.value());
    char *text = nullptr;
    if (getElementText(comment, &text).status == ZUNDO_OK) addValue(lists->comments, text);
    delete[] text;
}

// The channel type carries over from one ComChannel to the next; the
// first e-mail channel fixes the delivery type, and only locators of a
// channel of that type are addressees.
void readComChannel(const xercesc::DOMElement *channel, int *channelType, int *deliveryType,
                    MessageLists *lists) {
    AttributeEntry **attributes = nullptr;
    getAttrs(channel, &attributes);
    for (AttributeEntry **at = attributes; at != nullptr && *at != nullptr; ++at) {
        const char *value = (*at)->value;
        if (std::strcmp((*at)->name, "ChannelType") == 0) {
            *channelType = codeForJDFName(notificationDeliveryTypeValues, value);
            if (*deliveryType == 0) *deliveryType = *channelType;
        } else if (std::strcmp((*at)->name, "Locator") == 0 && *channelType == *deliveryType) {
            bool mail = std::strstr(value, kMailPrefix) != nullptr;
            addValue(lists->sendTo, mail ? value + std::strlen(kMailPrefix) : value);
        }
    }
    freeAttrList(attributes);
}

void readContact(const xercesc::DOMElement *element, zundo_int_object_s *job) {
    zundo_int_object_s *contact = nullptr;
    if (newContactInfo(&contact) != ZUNDO_OK) return;
    zundo_int_attribute_s *types = nullptr;
    if (newAttribute(&types, "contact-info-types", ZUNDO_KIND_INTEGER_LIST, nullptr) == ZUNDO_OK) {
        // An unknown type is left out: as a 0 it would hide the types after it.
        for (const std::string &word :
             splitWords(ElementAttribute(element, "ContactTypes").value(), kBlankSeparators)) {
            int code = codeForJDFName(contactInfoTypesValues, word.c_str());
            if (code != 0) addValue(types, &code);
        }
        if (getNumValues(types) > 0) set(contact, types);
        destroyAttribute(types);
    }
    for (ElementEntry *child : ChildElements(element)) {
        ElementAttribute name(child->element, "OrganizationName");
        if (named(child, "Company") && name.value() != nullptr)
            setStringAttribute(contact, "contact-info-company", name.value());
    }
    if (setObjectAttribute(job, "job-contact-info", contact) != ZUNDO_OK) destroy(contact);
}

}  // namespace

zundo_status_t readCustomerMessageElement(xercesc::DOMElement *message,
                                          zundo_int_attribute_s *notifications) {
    zundo_trace(">> Entering readCustomerMessageElement\n");
    MessageLists lists;
    zundo_status_t status = lists.create();
    if (status != ZUNDO_OK) return status;
    std::vector<std::string> events =
        splitWords(ElementAttribute(message, "MessageEvents").value(), kBlankSeparators);
    int channelType = 0, deliveryType = 0;
    for (ElementEntry *child : ChildElements(message)) {
        if (named(child, "Comment"))
            readMessageComment(child->element, &lists);
        else if (named(child, "ComChannel"))
            readComChannel(child->element, &channelType, &deliveryType, &lists);
    }
    std::vector<const char *> eventTexts;
    for (const std::string &event : events) eventTexts.push_back(event.c_str());
    eventTexts.push_back(nullptr);
    zundo_int_object_s *notification = nullptr;
    if (newNotification(&notification, nullptr, eventTexts.data(), 0) == ZUNDO_OK) {
        lists.setOn(notification);
        if (deliveryType != 0)
            setIntegerAttribute(notification, "notification-delivery-type", deliveryType);
        if (addValue(notifications, notification) != ZUNDO_OK) destroy(notification);
    }
    zundo_trace("<< Leaving readCustomerMessageElement\n");
    return ZUNDO_OK;
}

zundo_status_t getCustomerInfoElement(xercesc::DOMElement *customerInfo,
                                      zundo_int_object_s *ticket) {
    zundo_trace(">> Entering getCustomerInfoElement \n");
    zundo_int_object_s *job = getJob(ticket);
    ElementAttribute jobName(customerInfo, "CustomerJobName");
    if (jobName.value() != nullptr) setStringAttribute(job, "job-name", jobName.value());
    ElementAttribute billingCode(customerInfo, "BillingCode");
    if (billingCode.value() != nullptr)
        setStringAttribute(job, "job-billing-code", billingCode.value());
    zundo_int_attribute_s *notifications = nullptr;
    newAttribute(&notifications, "job-notifications", ZUNDO_KIND_OBJECT, nullptr);
    for (ElementEntry *child : ChildElements(customerInfo)) {
        if (named(child, "CustomerMessage") && notifications != nullptr)
            readCustomerMessageElement(child->element, notifications);
        else if (named(child, "Contact"))
            readContact(child->element, job);
    }
    if (getNumValues(notifications) > 0) setAndReleaseAttribute(job, notifications);
    else destroyAttribute(notifications);
    zundo_trace("<< Leaving getCustomerInfoElement \n");
    return ZUNDO_OK;
}
