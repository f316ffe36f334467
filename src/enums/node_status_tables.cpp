// Status and StatusDetails of the JDF node: the codes of
// "job-jdf-node-status" and "job-jdf-node-status-details", shared by the
// reader and the writer.
#include "enums/value_tables.h"

const zundo_enum_pair_s jdfNodeStatusValues[] = {
    {1, "Aborted"}, {2, "Completed"}, {3, "InProgress"}, {4, "Stopped"},
    {5, "Suspended"}, {6, "Waiting"}, {7, "Ready"}, {-1, nullptr},
};

const zundo_enum_pair_s jdfNodeStatusDetailsValues[] = {
    {1, "Good"},
    {2, "JobCanceledByOperator"},
    {3, "JobCanceledByUser"},
    {4, "JobAbortedBySystem"},
    {5, "JobCompletedSuccessfully"},
    {6, "JobCompletedWithErrors"},
    {7, "JobCompletedWithWarnings"},
    {8, "JobHeldOnCreate"},
    {9, "JobHeld"},
    {10, "JobIncoming"},
    {11, "JobSuspended"},
    {12, "Pause"},
    {13, "PendingPrinting"},
    {14, "PendingProcessing"},
    {15, "Processing"},
    {-1, nullptr},
};
