// The job-level resources that describe the printer and how it interprets
// and keeps the job: Device, the Disposition of a RunList,
// PDLResourceAlias, morvellan:RecordInfo, FontPolicy, InterpretingParams
// and morvellan:CalibrationTypeParams.
#ifndef ZUNDO_READ_DEVICE_READER_H
#define ZUNDO_READ_DEVICE_READER_H

#include "xml/jdf_entries.h"

// The job's destination: the Device, its controller and its connector.
// Always ZUNDO_OK.
zundo_status_t readDeviceResource(xercesc::DOMElement *resource, zundo_int_object_s *ticket);

// The retain settings of a Disposition child of the RunList as
// "job-retain". ZUNDO_OK when the Disposition asks for nothing to be
// kept; otherwise the status of making and setting the retain.
zundo_status_t readDispositionElement(xercesc::DOMElement *runList,
                                      xercesc::DOMElement *disposition, zundo_int_object_s *job);

// The AFP form or page definition the alias names. Always ZUNDO_OK.
zundo_status_t readPDLResourceAliasResource(xercesc::DOMElement *resource,
                                            zundo_int_object_s *ticket);
// Pages per record, record count and the records to process. Always
// ZUNDO_OK.
zundo_status_t readRecordInfoResource(xercesc::DOMElement *resource, zundo_int_object_s *ticket);
// Always ZUNDO_OK.
zundo_status_t readFontPolicyResource(xercesc::DOMElement *resource, zundo_int_object_s *ticket);
// "job-calibration-type" from the resource and its first
// DensityConversionParameter. Always ZUNDO_OK.
zundo_status_t readCalibrationTypeParamsResource(xercesc::DOMElement *resource,
                                                 zundo_int_object_s *job);

// Mirroring, image resolution and PDF caching of the job, and its RIP
// parameters from the morvellan:MorvellanInterpretingParams child.
// ZUNDO_ERROR without that child (what was read before stays set);
// otherwise the status of making the RIP parameters.
zundo_status_t readMorvellanInterpretingParamsResource(xercesc::DOMElement *resource,
                                                       zundo_int_object_s *ticket);

#endif
