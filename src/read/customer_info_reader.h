// The CustomerInfo resource: the job's name and billing code, the
// notifications its customer asked for and the customer's contact.
#ifndef ZUNDO_READ_CUSTOMER_INFO_READER_H
#define ZUNDO_READ_CUSTOMER_INFO_READER_H

#include "xml/jdf_entries.h"

// Sets "job-name", "job-billing-code", "job-notifications" (one per
// CustomerMessage, replacing the job's, when there is any) and
// "job-contact-info" (the last Contact). Always ZUNDO_OK.
zundo_status_t getCustomerInfoElement(xercesc::DOMElement *customerInfo,
                                      zundo_int_object_s *ticket);

// Appends the notification a CustomerMessage describes to notifications
// (kind "O"). A failure to make its lists is returned; a message whose
// notification cannot be made adds nothing.
zundo_status_t readCustomerMessageElement(xercesc::DOMElement *message,
                                          zundo_int_attribute_s *notifications);

#endif
