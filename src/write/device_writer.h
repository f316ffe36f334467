// What the job says about the device it is sent to, beyond the name,
// maker and model the attribute cascade writes: the file format its
// connector takes and the controller behind it.
#ifndef ZUNDO_WRITE_DEVICE_WRITER_H
#define ZUNDO_WRITE_DEVICE_WRITER_H

#include "write/writer_context.h"

// Writer step: morvellan:ConnectorInfo of Device.
void writeConnectorInfo(JDFWriteContext *ctx, zundo_int_object_s *job);
// Writer step: morvellan:ControllerInfo of Device.
void writeControllerInfo(JDFWriteContext *ctx, zundo_int_object_s *job);

#endif
