// The CustomerInfo resource: the job's name and billing code, the
// customer's contact, and the notifications the customer asked for.
#ifndef ZUNDO_WRITE_CUSTOMER_INFO_WRITER_H
#define ZUNDO_WRITE_CUSTOMER_INFO_WRITER_H

#include "write/writer_context.h"

// Writer steps, each for the job. CustomerInfo is made only when one of
// them has something to write.
// CustomerJobName and BillingCode.
void writeCustomerJobInfo(JDFWriteContext *ctx, zundo_int_object_s *job);
// A Contact for the first "job-contact-info" that names a company or types.
void writeContactInfo(JDFWriteContext *ctx, zundo_int_object_s *job);
// A CustomerMessage per notification.
void writeNotifications(JDFWriteContext *ctx, zundo_int_object_s *job);

#endif
