// Finishing resources read into finishing objects: bindings (cover
// application, spine taping, ring and wire-comb binding), stitching,
// folding, hole making, trimming, trapping and screening, on the job and,
// for the partitioned ones, on the job's page ranges. Also the amount pool
// of a finishing ComponentLink: page-range reference edges and the cover
// sheet of a binding.
#ifndef ZUNDO_READ_FINISHING_READER_H
#define ZUNDO_READ_FINISHING_READER_H

#include "read/resource_dispatch.h"

// Reader of the parameter pass for every finishing resource, chosen by the
// element name.
zundo_status_t readFinishingResource(xercesc::DOMElement *resource, const char *name,
                                     ResourceReadContext *context);

// The resource readers. The binding type comes from the element name.
zundo_status_t readBindingResource(xercesc::DOMElement *resource, zundo_int_object_s *ticket,
                                   const char *elementName);
zundo_status_t readStitchingParamsResource(xercesc::DOMElement *resource,
                                           zundo_int_object_s *ticket);
zundo_status_t readFoldingParamsResource(xercesc::DOMElement *resource, zundo_int_object_s *ticket);
zundo_status_t readHoleMakingParamsResource(xercesc::DOMElement *resource,
                                            zundo_int_object_s *ticket);
zundo_status_t readTrimmingParamsResource(xercesc::DOMElement *resource,
                                          zundo_int_object_s *ticket);
zundo_status_t readTrappingDetailsResource(xercesc::DOMElement *resource,
                                           zundo_int_object_s *ticket);
zundo_status_t readScreeningParamsResource(xercesc::DOMElement *resource,
                                           zundo_int_object_s *ticket);

// Builders: a new object made of the entries that partitionMatches accepts
// for the filters (both null at job level). *out is null when no object
// results.
zundo_status_t createBindingObject(zundo_int_object_s **out, AttributeEntry *const *attrs,
                                   const char *docFilter, const char *runFilter, int bindingType);
// No stitching results from entries without NoOp, a stitch count or angle,
// or a known StitchType.
zundo_status_t createStitchingObject(zundo_int_object_s **out, AttributeEntry *const *attrs,
                                     const char *docFilter, const char *runFilter);
// ZUNDO_INTERNAL_ERROR, without an object, when the entries name no fold
// and no NoOp "true".
zundo_status_t createFoldingObject(zundo_int_object_s **out, AttributeEntry *const *attrs,
                                   const char *docFilter, const char *runFilter);
zundo_status_t createHoleMakingObject(zundo_int_object_s **out, AttributeEntry *const *attrs,
                                      ElementEntry *const *elements, const char *docFilter,
                                      const char *runFilter);
zundo_status_t createTrimmingObject(zundo_int_object_s **out, AttributeEntry *const *attrs,
                                    const char *docFilter, const char *runFilter);
zundo_status_t createTrappingObject(zundo_int_object_s **out, AttributeEntry *const *attrs,
                                    const char *docFilter, const char *runFilter);

// The AmountPool of a ComponentLink of the named process: the Orientation
// of each PartAmount becomes the reference edge of the stitching, hole
// making or folding of the page ranges its Parts name; for CoverApplication
// the Transformation and the Parts describe the job's binding cover.
// Always ZUNDO_OK.
zundo_status_t readFinishingAmounts(const xercesc::DOMElement *link, zundo_int_object_s *job,
                                    const char *processName);

#endif
