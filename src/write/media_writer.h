// Media of the written ticket. Every distinct media (by mediaEquals) becomes
// one Media resource "Media%i", written at its first use, and every use
// refers to it with a MediaRef. The numbers are positions in the context's
// media reference list.
#ifndef ZUNDO_WRITE_MEDIA_WRITER_H
#define ZUNDO_WRITE_MEDIA_WRITER_H

#include "write/writer_context.h"

// The number of the media: that of the first equal media already written,
// or a new one for which the Media resource is written now. A media
// written only for its amount-used audit (auditOnly) has its link marked
// so. Negative when the media cannot be recorded.
int generateMediaId(JDFWriteContext *ctx, zundo_int_object_s *media, bool auditOnly);

// Cascade step "media": the MediaRef in DigitalPrintingParams, in the
// partition of the job, document or page range. All job-level page ranges
// that share a media share one RunIndex partition listing their ranges.
// ZUNDO_INVALID_ARGUMENT without a media, ZUNDO_ERROR when it cannot be
// numbered or DigitalPrintingParams cannot be had.
zundo_status_t writeMediaForDPP(JDFWriteContext *ctx, zundo_int_object_s *media,
                                const char *runRange, const char *documentIndex);

// Makes sure the Media resource exists and appends a MediaRef to each
// element of the null-terminated list (finishing Components, sheet
// Layouts, SourceResources), in the partition runRange / documentIndex
// name. A null list writes the media for its audit only. ZUNDO_ERROR when
// the media cannot be numbered.
zundo_status_t writeMedia(JDFWriteContext *ctx, zundo_int_object_s *media,
                          xercesc::DOMElement *const *elements, const char *runRange,
                          const char *documentIndex);

// Writer step: every media of "job-audit-medias" that has an amount used.
void writeAuditMedia(JDFWriteContext *ctx, zundo_int_object_s *job);

// A child `name` of parent holding the object's binary value as Base64
// text, with FormatVersion naming its version; nothing when the object has
// neither.
void writeVersionedBinary(xercesc::DOMElement *parent, const char *name, zundo_int_object_s *object,
                          const char *dataAttribute, const char *versionAttribute);

// A HoleLine element's content: the line's hole as a "Hole" child, and
// its Pitch. Media hole lists and hole making share it.
void writeHoleLineContent(xercesc::DOMElement *holeLine, zundo_int_object_s *line);

// The content of a new Media resource and the amount-used audit of its
// link, in the order written: holes, calibration, engine information, the
// audit, PMP information, then the attributes with their sub-elements.
void writeMediaContent(JDFWriteContext *ctx, xercesc::DOMElement *resource,
                       xercesc::DOMElement *link, zundo_int_object_s *media, bool auditOnly);

#endif
