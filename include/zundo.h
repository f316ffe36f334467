/*
 * zundo: job-ticket objects and their JDF 1.4 form.
 *
 * Callers describe a print job as a tree of typed objects (job ticket, job,
 * documents, page ranges, media, finishing ...) whose named attributes hold
 * typed values, and read or write that tree as a CIP4 JDF job ticket.
 *
 * Conventions: output parameters come first, every operation that can fail
 * returns a zundo_status_t, compare operations return 0 when equal (the
 * attributesEqual, mediaEquals and containerEquals return 1 when equal). Whatever a constructor or
 * get() hands out belongs to the caller until it is set into an attribute of
 * an object; from then on the object owns it.
 */
#ifndef ZUNDO_H
#define ZUNDO_H

#include <stddef.h>
#include <stdio.h>

#if defined(ZUNDO_BUILDING_LIBRARY)
#define ZUNDO_API __attribute__((visibility("default")))
#else
#define ZUNDO_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ------------------------------------------------------------------ */
/* Status codes                                                        */
/* ------------------------------------------------------------------ */

typedef enum zundo_status_t {
    ZUNDO_OK = 0,
    ZUNDO_ERROR = 1,
    ZUNDO_INVALID_ARGUMENT = 2,
    ZUNDO_NOT_FOUND = 3,
    ZUNDO_FILE_ERROR = 4,
    ZUNDO_NO_SPACE = 5,
    ZUNDO_OUT_OF_MEMORY = 6,
    ZUNDO_INVALID_JOB_TICKET = 7,
    ZUNDO_PARSE_FAILED = 8,
    ZUNDO_INTERNAL_ERROR = 9,
    ZUNDO_XML_INIT_FAILED = 10,
    ZUNDO_WRONG_ELEMENT = 11,
    ZUNDO_MISSING_FIELD = 12,
    ZUNDO_NULL_ARGUMENT = 13,
    ZUNDO_NO_CHILDREN = 14,
    ZUNDO_UNSUPPORTED_XML_VERSION = 18,
    ZUNDO_UNSUPPORTED_ENCODING = 19
} zundo_status_t;

/* ------------------------------------------------------------------ */
/* Opaque types                                                        */
/* ------------------------------------------------------------------ */

typedef struct zundo_int_object_s zundo_int_object_s;
typedef struct zundo_int_attribute_s zundo_int_attribute_s;

typedef struct zundo_date_time_s zundo_date_time_s;
typedef struct zundo_time_period_s zundo_time_period_s;
typedef struct zundo_range_s zundo_range_s;
typedef struct zundo_rgb_s zundo_rgb_s;
typedef struct zundo_binary_object_s zundo_binary_object_s;
typedef struct zundo_start_page_s zundo_start_page_s;
typedef struct zundo_modified_s zundo_modified_s;

/* Value kinds: the code an attribute's values are typed with. */
#define ZUNDO_KIND_INTEGER "I"
#define ZUNDO_KIND_DOUBLE "D"
#define ZUNDO_KIND_STRING "S"
#define ZUNDO_KIND_INTEGER_LIST "IL"
#define ZUNDO_KIND_OBJECT "O"
#define ZUNDO_KIND_RANGE "R"
#define ZUNDO_KIND_MODIFIED "M"
#define ZUNDO_KIND_DATE_TIME "DT"
#define ZUNDO_KIND_BINARY "B"
#define ZUNDO_KIND_TIME_PERIOD "TP"
#define ZUNDO_KIND_RGB "RGB"
#define ZUNDO_KIND_START_PAGE "SP"

/* ------------------------------------------------------------------ */
/* Tracing and version                                                 */
/* ------------------------------------------------------------------ */

/* Receives each traced message (no time stamp). */
typedef void (*zundo_trace_callback_t)(const char *message);

/* Traces only while the environment variable DEBUG_ZUNDO is defined. */
ZUNDO_API zundo_status_t zundotrace(int level, const char *format, ...)
#if defined(__GNUC__)
    __attribute__((format(printf, 2, 3)))
#endif
    ;
ZUNDO_API void zundo_trace(const char *format, ...)
#if defined(__GNUC__)
    __attribute__((format(printf, 1, 2)))
#endif
    ;
ZUNDO_API void enableTraceFile(int level, const char *path);
ZUNDO_API void disableTraceFile(void);
ZUNDO_API int getTraceFileLevel(void);
ZUNDO_API void enableTraceCallback(int level, zundo_trace_callback_t callback);
ZUNDO_API void disableTraceCallback(void);
ZUNDO_API int getTraceCallbackLevel(void);
ZUNDO_API const char *getZUNDOCurrentVersion(void);

/* ------------------------------------------------------------------ */
/* Attributes                                                          */
/* ------------------------------------------------------------------ */

/* firstValue and value: a pointer to the int or double for "I", "D" and
 * "IL"; the string for "S"; the object or value object itself otherwise. */
ZUNDO_API zundo_status_t newAttribute(zundo_int_attribute_s **out, const char *name,
                                      const char *kind, const void *firstValue);
ZUNDO_API zundo_status_t addValue(zundo_int_attribute_s *attribute, const void *value);
ZUNDO_API void destroyAttribute(zundo_int_attribute_s *attribute);
ZUNDO_API const char *getName(const zundo_int_attribute_s *attribute);
ZUNDO_API const char *getValueType(const zundo_int_attribute_s *attribute);
ZUNDO_API int getNumValues(const zundo_int_attribute_s *attribute);
ZUNDO_API int hasNextValue(const zundo_int_attribute_s *attribute);
ZUNDO_API void *nextValue(zundo_int_attribute_s *attribute);
ZUNDO_API void resetIterator(zundo_int_attribute_s *attribute);
ZUNDO_API zundo_status_t cloneAttribute(zundo_int_attribute_s **out,
                                        const zundo_int_attribute_s *attribute);
ZUNDO_API int attributesEqual(const zundo_int_attribute_s *a, const zundo_int_attribute_s *b);

/* ------------------------------------------------------------------ */
/* Objects                                                             */
/* ------------------------------------------------------------------ */

ZUNDO_API zundo_int_attribute_s *get(zundo_int_object_s *object, const char *name);
ZUNDO_API zundo_status_t set(zundo_int_object_s *object, zundo_int_attribute_s *attribute);
ZUNDO_API void destroy(zundo_int_object_s *object);
ZUNDO_API const char *getObjectType(const zundo_int_object_s *object);
ZUNDO_API zundo_int_object_s *cloneObj(const zundo_int_object_s *object);
ZUNDO_API int compareObjects(const zundo_int_object_s *a, const zundo_int_object_s *b);
ZUNDO_API char **getAttributeNames(const zundo_int_object_s *object);
ZUNDO_API void freeAttributeNames(char **names);
ZUNDO_API zundo_status_t getSetAttributes(zundo_int_object_s *object,
                                          zundo_int_attribute_s ***out);
ZUNDO_API void freeSetAttributesList(zundo_int_attribute_s **list);

ZUNDO_API zundo_status_t setIntegerAttribute(zundo_int_object_s *object, const char *name,
                                             int value);
ZUNDO_API zundo_status_t setDoubleAttribute(zundo_int_object_s *object, const char *name,
                                            double value);
ZUNDO_API zundo_status_t setStringAttribute(zundo_int_object_s *object, const char *name,
                                            const char *value);
ZUNDO_API zundo_status_t setObjectAttribute(zundo_int_object_s *object, const char *name,
                                            zundo_int_object_s *value);
ZUNDO_API zundo_status_t setStringsAttribute(zundo_int_object_s *object, const char *name,
                                             const char *const *values);
ZUNDO_API zundo_status_t setObjectsAttribute(zundo_int_object_s *object, const char *name,
                                             zundo_int_object_s *const *values);
ZUNDO_API zundo_status_t setModificationsAttribute(zundo_int_object_s *object,
                                                   const char *name,
                                                   zundo_modified_s *const *values);
ZUNDO_API zundo_status_t setBinaryAttribute(zundo_int_object_s *object, const char *name,
                                            zundo_binary_object_s *value);
ZUNDO_API zundo_status_t setDateTimeAttribute(zundo_int_object_s *object, const char *name,
                                              zundo_date_time_s *value);
ZUNDO_API zundo_status_t setTimePeriodAttribute(zundo_int_object_s *object, const char *name,
                                                zundo_time_period_s *value);
ZUNDO_API zundo_status_t setRGBAttribute(zundo_int_object_s *object, const char *name,
                                         zundo_rgb_s *value);

/* ------------------------------------------------------------------ */
/* Job, document and job ticket                                        */
/* ------------------------------------------------------------------ */

/* A ticket owns its job, a job its documents; each of the three is
 * destroyed with destroy(), copied with cloneObj() and compared with
 * compareObjects(). Job and document also carry the print-parameter block
 * under their prefix ("job-media", "document-sides"). */

/* The job takes the document. 2 for a null out or a document that is not a
 * "ZUNDO_DOCUMENT". "job-copies" starts at 1, "job-include-pages" at 0 ~ -1. */
ZUNDO_API zundo_status_t newJob(zundo_int_object_s **out, zundo_int_object_s *document);
ZUNDO_API zundo_status_t newJobNoDocument(zundo_int_object_s **out);
/* Appends the document; the job takes ownership. A document belongs to one
 * job only. */
ZUNDO_API zundo_status_t addDocument(zundo_int_object_s *job, zundo_int_object_s *document);
/* The job's own null-terminated document array (not a copy), or null. */
ZUNDO_API zundo_int_object_s **getDocuments(zundo_int_object_s *job);
/* "document-file-name" takes fileName (none when null). */
ZUNDO_API zundo_status_t newDocument(zundo_int_object_s **out, const char *fileName);
/* The ticket takes the job. */
ZUNDO_API zundo_status_t newJobTicketInfoFromJob(zundo_int_object_s **out,
                                                 zundo_int_object_s *job);
/* The ticket's job (not a copy), or null. */
ZUNDO_API zundo_int_object_s *getJob(zundo_int_object_s *ticket);
/* Every distinct media the job uses: job, first binding, insert, separator
 * and banner sheets, page ranges. The null-terminated list is released
 * with freeMediaList, which leaves the media to their objects. */
ZUNDO_API zundo_status_t getMedia(zundo_int_object_s *ticket, zundo_int_object_s ***out);
ZUNDO_API zundo_status_t freeMediaList(zundo_int_object_s **list);
ZUNDO_API int compareJobs(const zundo_int_object_s *a, const zundo_int_object_s *b);
/* Compares the "jt-" attributes only, not the jobs. */
ZUNDO_API int compareJobTicketInfos(const zundo_int_object_s *a, const zundo_int_object_s *b);

/* ------------------------------------------------------------------ */
/* Feature objects                                                     */
/* ------------------------------------------------------------------ */

/* Finishing, media, layout, colour, notification and audit objects. Each
 * type has a constructor new<Type>, a clone<Type> (2 for a null argument)
 * and a compare<Type> (0 when equal); destroy, cloneObj, compareObjects,
 * get and set work on all of them.
 *
 * Constructors set their arguments through set, so the type's rules apply
 * to them. They return 2 for a null out pointer or a refused argument, 6
 * when memory is exhausted, 1 when the object cannot be made; on failure
 * *out is null. Texts are copied. Value objects and sub-objects handed to a
 * constructor (ranges, date-times, media, holes) pass to the new object in
 * every case: when construction fails they are destroyed. */

/* Reference edges, types, shapes, classes and names are enumeration codes
 * (0: not set). */
ZUNDO_API zundo_status_t newBannerSheet(zundo_int_object_s **out, int type);
ZUNDO_API zundo_status_t cloneBannerSheet(zundo_int_object_s **out,
                                          const zundo_int_object_s *source);
ZUNDO_API int compareBannerSheet(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newBinding(zundo_int_object_s **out, int type, int referenceEdge);
ZUNDO_API zundo_status_t cloneBinding(zundo_int_object_s **out, const zundo_int_object_s *source);
ZUNDO_API int compareBinding(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newCalibrationType(zundo_int_object_s **out, const char *productId);
ZUNDO_API zundo_status_t cloneCalibrationType(zundo_int_object_s **out,
                                              const zundo_int_object_s *source);
ZUNDO_API int compareCalibrationType(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newColorPlane(zundo_int_object_s **out, const char *name);
ZUNDO_API zundo_status_t cloneColorPlane(zundo_int_object_s **out,
                                         const zundo_int_object_s *source);
ZUNDO_API int compareColorPlane(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newContactInfo(zundo_int_object_s **out);
ZUNDO_API zundo_status_t cloneContactInfo(zundo_int_object_s **out,
                                          const zundo_int_object_s *source);
ZUNDO_API int compareContactInfo(const zundo_int_object_s *a, const zundo_int_object_s *b);

/* The format is required and may not be empty. */
ZUNDO_API zundo_status_t newContainer(zundo_int_object_s **out, const char *format,
                                      const char *fileName);
ZUNDO_API zundo_status_t cloneContainer(zundo_int_object_s **out,
                                        const zundo_int_object_s *source);
ZUNDO_API int compareContainerAttrValue(const zundo_int_object_s *a, const zundo_int_object_s *b);
/* 1 when both are containers with equal attributes (or the same pointer). */
ZUNDO_API int containerEquals(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newFolding(zundo_int_object_s **out, const char *type);
ZUNDO_API zundo_status_t cloneFolding(zundo_int_object_s **out, const zundo_int_object_s *source);
ZUNDO_API int compareFolding(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newHole(zundo_int_object_s **out, double centerX, double centerY,
                                 double extentX, double extentY, int shape);
ZUNDO_API zundo_status_t newHoleEmpty(zundo_int_object_s **out);
ZUNDO_API zundo_status_t cloneHole(zundo_int_object_s **out, const zundo_int_object_s *source);
ZUNDO_API int compareHole(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newHoleLine(zundo_int_object_s **out, double pitch,
                                     zundo_int_object_s *hole);
ZUNDO_API zundo_status_t newHoleLineEmpty(zundo_int_object_s **out);
ZUNDO_API zundo_status_t cloneHoleLine(zundo_int_object_s **out,
                                       const zundo_int_object_s *source);
ZUNDO_API int compareHoleLine(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newHoleList(zundo_int_object_s **out);
ZUNDO_API zundo_status_t cloneHoleList(zundo_int_object_s **out,
                                       const zundo_int_object_s *source);
ZUNDO_API int compareHoleList(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newHoleMaking(zundo_int_object_s **out, int count, int referenceEdge);
ZUNDO_API zundo_status_t cloneHoleMaking(zundo_int_object_s **out,
                                         const zundo_int_object_s *source);
ZUNDO_API int compareHoleMaking(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newInkUsage(zundo_int_object_s **out, int name);
ZUNDO_API zundo_status_t cloneInkUsage(zundo_int_object_s **out,
                                       const zundo_int_object_s *source);
ZUNDO_API int compareInkUsage(const zundo_int_object_s *a, const zundo_int_object_s *b);

/* pages and sheets are null-terminated Range arrays; pages and media may be
 * null. An insert sheet holds pages or sheets, never both. */
ZUNDO_API zundo_status_t newInsertSheet(zundo_int_object_s **out, int position,
                                        zundo_range_s *const *pages, zundo_int_object_s *media);
ZUNDO_API zundo_status_t newInsertSheetWithSheets(zundo_int_object_s **out, int position,
                                                  zundo_range_s *const *sheets);
ZUNDO_API zundo_status_t cloneInsertSheet(zundo_int_object_s **out,
                                          const zundo_int_object_s *source);
ZUNDO_API int compareInsertSheet(const zundo_int_object_s *a, const zundo_int_object_s *b);

/* The text format is required; the rotation is 0-359 (-1: not set). */
ZUNDO_API zundo_status_t newMark(zundo_int_object_s **out, const char *textFormat, int rotation,
                                 double placementX, double placementY);
ZUNDO_API zundo_status_t cloneMark(zundo_int_object_s **out, const zundo_int_object_s *source);
ZUNDO_API int compareMark(const zundo_int_object_s *a, const zundo_int_object_s *b);

/* The name may be null. */
ZUNDO_API zundo_status_t newMedia(zundo_int_object_s **out, const char *name);
ZUNDO_API zundo_status_t cloneMedia(zundo_int_object_s **out, const zundo_int_object_s *source);
ZUNDO_API int compareMedia(const zundo_int_object_s *a, const zundo_int_object_s *b);
/* 1 when compareMedia reports equal. */
ZUNDO_API int mediaEquals(const zundo_int_object_s *a, const zundo_int_object_s *b);
/* Exchanges "media-x-dimension" and "media-y-dimension". */
ZUNDO_API void swapDimensions(zundo_int_object_s *media);

/* A feature with one value made from value. */
ZUNDO_API zundo_status_t newNamedFeature(zundo_int_object_s **out, const char *name,
                                         const char *value);
ZUNDO_API zundo_status_t cloneNamedFeature(zundo_int_object_s **out,
                                           const zundo_int_object_s *source);
ZUNDO_API int compareNamedFeature(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newNamedFeatureValue(zundo_int_object_s **out, const char *value);
ZUNDO_API zundo_status_t cloneNamedFeatureValue(zundo_int_object_s **out,
                                                const zundo_int_object_s *source);
ZUNDO_API int compareNamedFeatureValue(const zundo_int_object_s *a, const zundo_int_object_s *b);

/* sendTo and events are null-terminated text arrays. events is required;
 * sendTo is null exactly when deliveryType is 0 (not set). */
ZUNDO_API zundo_status_t newNotification(zundo_int_object_s **out, const char *const *sendTo,
                                         const char *const *events, int deliveryType);
ZUNDO_API zundo_status_t cloneNotification(zundo_int_object_s **out,
                                           const zundo_int_object_s *source);
ZUNDO_API int compareNotificationAttrValue(const zundo_int_object_s *a,
                                           const zundo_int_object_s *b);

/* The time stamp may be null. */
ZUNDO_API zundo_status_t newNotificationAudit(zundo_int_object_s **out, int auditClass,
                                              zundo_date_time_s *timeStamp);
ZUNDO_API zundo_status_t cloneNotificationAudit(zundo_int_object_s **out,
                                                const zundo_int_object_s *source);
ZUNDO_API int compareNotificationAudit(const zundo_int_object_s *a, const zundo_int_object_s *b);

/* Page cells and page ranges carry the print-parameter block under the
 * prefixes "page-cell-" and "page-range-". cells is required; a null pages
 * range stands for all pages, 0 ~ -1. */
ZUNDO_API zundo_status_t newPageCellInfo(zundo_int_object_s **out, zundo_range_s *cells);
ZUNDO_API zundo_status_t clonePageCell(zundo_int_object_s **out,
                                       const zundo_int_object_s *source);
ZUNDO_API int comparePageCell(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newPageRange(zundo_int_object_s **out, zundo_range_s *pages,
                                      zundo_int_object_s *media);
ZUNDO_API zundo_status_t clonePageRange(zundo_int_object_s **out,
                                        const zundo_int_object_s *source);
ZUNDO_API int comparePageRange(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newPagination(zundo_int_object_s **out);
ZUNDO_API zundo_status_t clonePagination(zundo_int_object_s **out,
                                         const zundo_int_object_s *source);
ZUNDO_API int comparePagination(const zundo_int_object_s *a, const zundo_int_object_s *b);

/* All four arguments are required. */
ZUNDO_API zundo_status_t newPhaseTime(zundo_int_object_s **out, int type, const char *deviceId,
                                      zundo_date_time_s *startTime,
                                      zundo_date_time_s *timeStamp);
ZUNDO_API zundo_status_t clonePhaseTime(zundo_int_object_s **out,
                                        const zundo_int_object_s *source);
ZUNDO_API int comparePhaseTime(const zundo_int_object_s *a, const zundo_int_object_s *b);

/* The date-times may be null; the end status is required. */
ZUNDO_API zundo_status_t newProcessRun(zundo_int_object_s **out, zundo_date_time_s *end,
                                       int endStatus, zundo_date_time_s *start,
                                       zundo_date_time_s *timeStamp);
ZUNDO_API zundo_status_t cloneProcessRun(zundo_int_object_s **out,
                                         const zundo_int_object_s *source);
ZUNDO_API int compareProcessRun(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newProofPrint(zundo_int_object_s **out, int copies);
ZUNDO_API zundo_status_t cloneProofPrint(zundo_int_object_s **out,
                                         const zundo_int_object_s *source);
ZUNDO_API int compareProofPrint(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newRegisterMark(zundo_int_object_s **out, int name);
ZUNDO_API zundo_status_t cloneRegisterMark(zundo_int_object_s **out,
                                           const zundo_int_object_s *source);
ZUNDO_API int compareRegisterMark(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newRetain(zundo_int_object_s **out, int action);
ZUNDO_API zundo_status_t cloneRetain(zundo_int_object_s **out, const zundo_int_object_s *source);
ZUNDO_API int compareRetain(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newRipParams(zundo_int_object_s **out, int blackDetection,
                                      int brightness, int combinedSeparations, int createMaster,
                                      int digitalPressMode, int imageSmooth, int mirror,
                                      int negative, int printMode, int removeWhitePptBackground,
                                      int textGraphicEnhancement, int useMaster);
ZUNDO_API zundo_status_t cloneRipParams(zundo_int_object_s **out,
                                        const zundo_int_object_s *source);
ZUNDO_API int compareRipParamsAttrValue(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newScreening(zundo_int_object_s **out, const char *family,
                                      double frequency);
ZUNDO_API zundo_status_t newScreeningEmpty(zundo_int_object_s **out);
ZUNDO_API zundo_status_t cloneScreening(zundo_int_object_s **out,
                                        const zundo_int_object_s *source);
ZUNDO_API int compareScreening(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newSeparatorSheet(zundo_int_object_s **out, int type,
                                           zundo_int_object_s *media);
ZUNDO_API zundo_status_t cloneSeparatorSheet(zundo_int_object_s **out,
                                             const zundo_int_object_s *source);
ZUNDO_API int compareSeparatorSheet(const zundo_int_object_s *a, const zundo_int_object_s *b);

/* count: at least 1, or -1 (not set); type is required. */
ZUNDO_API zundo_status_t newStitching(zundo_int_object_s **out, int count, int referenceEdge,
                                      int type);
ZUNDO_API zundo_status_t cloneStitching(zundo_int_object_s **out,
                                        const zundo_int_object_s *source);
ZUNDO_API int compareStitching(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newTrapping(zundo_int_object_s **out, int type);
ZUNDO_API zundo_status_t cloneTrapping(zundo_int_object_s **out,
                                       const zundo_int_object_s *source);
ZUNDO_API int compareTrapping(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newTrimBleedMark(zundo_int_object_s **out, int name);
ZUNDO_API zundo_status_t cloneTrimBleedMark(zundo_int_object_s **out,
                                            const zundo_int_object_s *source);
ZUNDO_API int compareTrimBleedMark(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newTrimming(zundo_int_object_s **out, int type);
ZUNDO_API zundo_status_t cloneTrimming(zundo_int_object_s **out,
                                       const zundo_int_object_s *source);
ZUNDO_API int compareTrimming(const zundo_int_object_s *a, const zundo_int_object_s *b);

ZUNDO_API zundo_status_t newUsageCounter(zundo_int_object_s **out);
ZUNDO_API zundo_status_t cloneUsageCounter(zundo_int_object_s **out,
                                           const zundo_int_object_s *source);
ZUNDO_API int compareUsageCounter(const zundo_int_object_s *a, const zundo_int_object_s *b);

/* ------------------------------------------------------------------ */
/* Value objects                                                       */
/* ------------------------------------------------------------------ */

/* Constructors and parsers store the new value in *out (null on failure)
 * and return 2 for a null out pointer or a refused value, 6 when memory is
 * exhausted. Setters return 2 for a null record or an out-of-range value
 * and then leave the record unchanged. Getters of a null record return the
 * value named in brackets. Destroy operations ignore null.
 *
 * The toString operations write into the caller's buffer and return it
 * (null for a null buffer; an empty string for a null value). The unsized
 * forms need a buffer of at least the ZUNDO_*_TEXT_SIZE bytes below; the
 * ...N forms take the buffer size and return null when the text does not
 * fit. */
#define ZUNDO_DATE_TIME_TEXT_SIZE 26
#define ZUNDO_TIME_PERIOD_TEXT_SIZE 70
#define ZUNDO_RANGE_TEXT_SIZE 26
#define ZUNDO_RGB_TEXT_SIZE 12

/* DateTime: xs:dateTime, "2009-03-07T14:05:00+01:00", "...Z", "INF", "-INF".
 * Order of arguments: hour, minute, second, month, day, year, offset hours. */
ZUNDO_API zundo_status_t newDateTime(zundo_date_time_s **out, int hour, int minute, int second,
                                     int month, int day, int year, int offsetHours);
ZUNDO_API zundo_status_t newCurrentDateTime(zundo_date_time_s **out);
ZUNDO_API zundo_status_t newDateTimeFromString(zundo_date_time_s **out, const char *text);
ZUNDO_API char *toStringDateTime(char *buffer, const zundo_date_time_s *dateTime);
ZUNDO_API char *toStringDateTimeN(char *buffer, size_t size, const zundo_date_time_s *dateTime);
ZUNDO_API zundo_status_t setYear(zundo_date_time_s *dateTime, int year);          /* 0-9999 */
ZUNDO_API zundo_status_t setMonth(zundo_date_time_s *dateTime, int month);        /* 0-12 */
ZUNDO_API zundo_status_t setDay(zundo_date_time_s *dateTime, int day);            /* 0-31 */
ZUNDO_API zundo_status_t setHour(zundo_date_time_s *dateTime, int hour);          /* 0-23 */
ZUNDO_API zundo_status_t setMinute(zundo_date_time_s *dateTime, int minute);      /* 0-59 */
ZUNDO_API zundo_status_t setSecond(zundo_date_time_s *dateTime, int second);      /* 0-59 */
ZUNDO_API zundo_status_t setOffset(zundo_date_time_s *dateTime, int offsetHours); /* -12-13 */
ZUNDO_API zundo_status_t setOffsetMinute(zundo_date_time_s *dateTime, int offsetMinute);
ZUNDO_API zundo_status_t setZulu(zundo_date_time_s *dateTime, int zulu);
/* "INF" or "-INF"; resets the date and time fields to 0. */
ZUNDO_API zundo_status_t setINF(zundo_date_time_s *dateTime, const char *text);
ZUNDO_API int getYear(const zundo_date_time_s *dateTime);         /* [-1] */
ZUNDO_API int getMonth(const zundo_date_time_s *dateTime);        /* [0] */
ZUNDO_API int getDay(const zundo_date_time_s *dateTime);          /* [0] */
ZUNDO_API int getHour(const zundo_date_time_s *dateTime);         /* [-1] */
ZUNDO_API int getMinute(const zundo_date_time_s *dateTime);       /* [-1] */
ZUNDO_API int getSecond(const zundo_date_time_s *dateTime);       /* [-1] */
ZUNDO_API int getOffset(const zundo_date_time_s *dateTime);       /* [0] */
ZUNDO_API int getOffsetMinute(const zundo_date_time_s *dateTime); /* [0] */
ZUNDO_API int getZulu(const zundo_date_time_s *dateTime);         /* [0] */
ZUNDO_API const char *getINF(const zundo_date_time_s *dateTime);  /* [null] */
ZUNDO_API void destroyDateTime(zundo_date_time_s *dateTime);
ZUNDO_API zundo_status_t cloneDateTime(zundo_date_time_s **out, const zundo_date_time_s *dateTime);
/* -1, 0 or 1 by the instants in time; "-INF" before and "INF" after every
 * ordinary date-time; a null date-time before everything. */
ZUNDO_API int compareDateTime(const zundo_date_time_s *a, const zundo_date_time_s *b);

/* TimePeriod: xs:duration, "P0Y2M10DT04H30M15S", "-P...", "INF". */
ZUNDO_API zundo_status_t newTimePeriod(zundo_time_period_s **out, int years, int months,
                                       int days, int hours, int minutes);
ZUNDO_API zundo_status_t newTimePeriodWithSeconds(zundo_time_period_s **out, int years,
                                                  int months, int days, int hours, int minutes,
                                                  int seconds);
ZUNDO_API zundo_status_t newTimePeriodFromString(zundo_time_period_s **out, const char *text);
ZUNDO_API char *toStringTimePeriod(char *buffer, const zundo_time_period_s *period);
ZUNDO_API char *toStringTimePeriodN(char *buffer, size_t size, const zundo_time_period_s *period);
ZUNDO_API zundo_status_t setYears(zundo_time_period_s *period, int years); /* each >= 0 */
ZUNDO_API zundo_status_t setMonths(zundo_time_period_s *period, int months);
ZUNDO_API zundo_status_t setDays(zundo_time_period_s *period, int days);
ZUNDO_API zundo_status_t setHours(zundo_time_period_s *period, int hours);
ZUNDO_API zundo_status_t setMinutes(zundo_time_period_s *period, int minutes);
ZUNDO_API zundo_status_t setSeconds(zundo_time_period_s *period, int seconds);
ZUNDO_API zundo_status_t setINFtp(zundo_time_period_s *period, const char *text); /* "INF" */
ZUNDO_API void setNegativeDuration(zundo_time_period_s *period, int negative);
ZUNDO_API int getYears(const zundo_time_period_s *period);        /* [0] */
ZUNDO_API int getMonths(const zundo_time_period_s *period);       /* [0] */
ZUNDO_API int getDays(const zundo_time_period_s *period);         /* [0] */
ZUNDO_API int getHours(const zundo_time_period_s *period);        /* [0] */
ZUNDO_API int getMinutes(const zundo_time_period_s *period);      /* [0] */
ZUNDO_API int getSeconds(const zundo_time_period_s *period);      /* [-1]: no seconds */
ZUNDO_API const char *getINFtp(const zundo_time_period_s *period); /* [null] */
ZUNDO_API int getNegativeDuration(const zundo_time_period_s *period); /* [0] */
ZUNDO_API void destroyTimePeriod(zundo_time_period_s *period);
ZUNDO_API zundo_status_t cloneTimePeriod(zundo_time_period_s **out,
                                         const zundo_time_period_s *period);
/* 0 equal, 1 different. */
ZUNDO_API int compareTimePeriod(const zundo_time_period_s *a, const zundo_time_period_s *b);

/* Range of pages: "3 ~ 7" or "7"; negative numbers count from the end
 * (-1 is the last page). Refused: a negative lower with a non-negative
 * upper, and lower > upper unless lower >= 0 and upper < 0. */
ZUNDO_API zundo_status_t newRange(zundo_range_s **out, int lower, int upper);
ZUNDO_API zundo_status_t newRangeFromString(zundo_range_s **out, const char *text);
ZUNDO_API char *toStringRange(char *buffer, const zundo_range_s *range);
ZUNDO_API char *toStringRangeN(char *buffer, size_t size, const zundo_range_s *range);
ZUNDO_API zundo_status_t setLower(zundo_range_s *range, int lower);
ZUNDO_API zundo_status_t setUpper(zundo_range_s *range, int upper);
ZUNDO_API int getLower(const zundo_range_s *range); /* [0] */
ZUNDO_API int getUpper(const zundo_range_s *range); /* [0] */
ZUNDO_API void destroyRange(zundo_range_s *range);
ZUNDO_API zundo_status_t cloneRange(zundo_range_s **out, const zundo_range_s *range);
ZUNDO_API int compareRange(const zundo_range_s *a, const zundo_range_s *b);

/* RGB colour, each component 0-255: "255 0 10". */
ZUNDO_API zundo_status_t newRGB(zundo_rgb_s **out, int red, int green, int blue);
ZUNDO_API zundo_status_t newRGBFromString(zundo_rgb_s **out, const char *text);
ZUNDO_API char *toStringRGB(char *buffer, const zundo_rgb_s *rgb);
ZUNDO_API char *toStringRGBN(char *buffer, size_t size, const zundo_rgb_s *rgb);
ZUNDO_API zundo_status_t setRed(zundo_rgb_s *rgb, int red);
ZUNDO_API zundo_status_t setGreen(zundo_rgb_s *rgb, int green);
ZUNDO_API zundo_status_t setBlue(zundo_rgb_s *rgb, int blue);
ZUNDO_API int getRed(const zundo_rgb_s *rgb);   /* [0] */
ZUNDO_API int getGreen(const zundo_rgb_s *rgb); /* [0] */
ZUNDO_API int getBlue(const zundo_rgb_s *rgb);  /* [0] */
ZUNDO_API void destroyRGB(zundo_rgb_s *rgb);
ZUNDO_API zundo_status_t cloneRGB(zundo_rgb_s **out, const zundo_rgb_s *rgb);
ZUNDO_API int compareRGB(const zundo_rgb_s *a, const zundo_rgb_s *b);

/* BinaryObject: a private copy of `length` bytes (data must not be null). */
ZUNDO_API zundo_status_t newBinaryObject(zundo_binary_object_s **out, const void *data,
                                         size_t length);
ZUNDO_API const unsigned char *getBinaryData(const zundo_binary_object_s *binary); /* [null] */
ZUNDO_API size_t getBinaryDataLength(const zundo_binary_object_s *binary);         /* [0] */
ZUNDO_API void destroyBinaryObject(zundo_binary_object_s *binary);
ZUNDO_API zundo_status_t cloneBinaryObject(zundo_binary_object_s **out,
                                           const zundo_binary_object_s *binary);
ZUNDO_API int compareBinaryObject(const zundo_binary_object_s *a,
                                  const zundo_binary_object_s *b);

/* StartPage: page, sheet side (never 0) and description code (0: none). */
ZUNDO_API zundo_status_t newStartPage(zundo_start_page_s **out, int page, int sheetSide);
ZUNDO_API zundo_status_t setPage(zundo_start_page_s *startPage, int page);
ZUNDO_API zundo_status_t setSheetSide(zundo_start_page_s *startPage, int sheetSide);
ZUNDO_API zundo_status_t setDescription(zundo_start_page_s *startPage, int description);
ZUNDO_API int getPage(const zundo_start_page_s *startPage);        /* [0] */
ZUNDO_API int getSheetSide(const zundo_start_page_s *startPage);   /* [0] */
ZUNDO_API int getDescription(const zundo_start_page_s *startPage); /* [0] */
ZUNDO_API void destroyStartPage(zundo_start_page_s *startPage);
ZUNDO_API zundo_status_t cloneStartPage(zundo_start_page_s **out,
                                        const zundo_start_page_s *startPage);
ZUNDO_API int compareStartPage(const zundo_start_page_s *a, const zundo_start_page_s *b);

/* Modified: one entry of "job-modifications". The record owns its
 * date-time and its attribute (with the attribute's values); both pass to
 * it when set. newModified takes the date-time (may be null) only when it
 * succeeds. Texts are copied; a null or empty text clears the field. */
ZUNDO_API zundo_status_t newModified(zundo_modified_s **out, zundo_date_time_s *dateTime,
                                     const char *modifiedBy);
ZUNDO_API zundo_status_t setDateTime(zundo_modified_s *modified, zundo_date_time_s *dateTime);
ZUNDO_API zundo_date_time_s *getDateTime(const zundo_modified_s *modified);
/* Returns 1 when the copy cannot be made. */
ZUNDO_API zundo_status_t setModifiedBy(zundo_modified_s *modified, const char *modifiedBy);
ZUNDO_API const char *getModifiedBy(const zundo_modified_s *modified);
ZUNDO_API zundo_status_t setProjectID(zundo_modified_s *modified, const char *projectId);
ZUNDO_API const char *getProjectID(const zundo_modified_s *modified);
ZUNDO_API zundo_status_t setProjectVersion(zundo_modified_s *modified,
                                           const char *projectVersion);
ZUNDO_API const char *getProjectVersion(const zundo_modified_s *modified);
ZUNDO_API zundo_status_t setModifiedType(zundo_modified_s *modified, int type);
ZUNDO_API int getModifiedType(const zundo_modified_s *modified); /* [0] */
ZUNDO_API zundo_status_t setModifiedAttribute(zundo_modified_s *modified,
                                              zundo_int_attribute_s *attribute);
ZUNDO_API zundo_int_attribute_s *getModifiedAttribute(const zundo_modified_s *modified);
ZUNDO_API void destroyModified(zundo_modified_s *modified);
ZUNDO_API zundo_status_t cloneModified(zundo_modified_s **out, const zundo_modified_s *modified);
ZUNDO_API int compareModified(const zundo_modified_s *a, const zundo_modified_s *b);

/* ------------------------------------------------------------------ */
/* Enumeration mapping and control characters                         */
/* ------------------------------------------------------------------ */

/* Enumerated attributes hold integer codes or library strings; these give
 * their JDF spellings and back. Returned texts are constants of the library
 * or the caller's own input: never free them. */
ZUNDO_API const char *getJDFValueFromInt(const char *attribute, int code);
ZUNDO_API const char *getJDFValueFromChar(const char *attribute, const char *text);
ZUNDO_API int getZUNDOEnumValue(const char *attribute, const char *jdfName);
ZUNDO_API const char *getZUNDOStringValue(const char *attribute, const char *jdfText);
ZUNDO_API const char *convertZUNDOReferenceEdgeToJDFOrientation(int code);
ZUNDO_API int convertJDFOrientationToZUNDOReferenceEdge(const char *orientation);
ZUNDO_API const char *getJDFPathForAttribute(const char *attribute);

/* Characters 1-31 (except tab, line feed, carriage return) and 127 are
 * written as "&#xHH;" references. encodeControlCharacters and
 * decodeControlCharacters replace *text with a new text, released with
 * freeEncodedOrDecodedStrings; the caller keeps the text it passed. */
ZUNDO_API int containsEncodableControlCharacters(const char *text);
ZUNDO_API int containsDecodableControlCharacters(const char *text);
ZUNDO_API void encodeControlCharacters(char **text, int count);
ZUNDO_API void decodeControlCharacters(char **text);
ZUNDO_API void freeEncodedOrDecodedStrings(char *text);
ZUNDO_API void setControlCharacterEncoding(short flag);
ZUNDO_API short getControlCharacterEncodingFlag(void);
ZUNDO_API void setControlCharacterDecoding(short flag);
ZUNDO_API short getControlCharacterDecodingFlag(void);

/* ------------------------------------------------------------------ */
/* XML documents                                                       */
/* ------------------------------------------------------------------ */

/* Outcome of reading a job ticket or of an XML-layer operation. line and
 * column hold the parser position when status is ZUNDO_PARSE_FAILED and
 * are 0 otherwise, unless the operation documents another use of line. */
typedef struct zundo_result_t {
    zundo_status_t status;
    int line;
    int column;
} zundo_result_t;

/* ------------------------------------------------------------------ */
/* Reading job tickets                                                 */
/* ------------------------------------------------------------------ */

/* A new job-ticket object read from a NUL-terminated UTF-8 JDF text; the
 * caller destroys it with destroy(). On failure *out is left without a
 * ticket and the result carries the status (with the parser's line and
 * column for ZUNDO_PARSE_FAILED). */
ZUNDO_API zundo_result_t newJobTicketInfoFromString(zundo_int_object_s **out, const char *text);
/* The same from a file named by a "file://" URL or a plain path. */
ZUNDO_API zundo_result_t newJobTicketInfoFromURL(zundo_int_object_s **out, const char *url);
/* The same from an open stream, read from its start. */
ZUNDO_API zundo_result_t newJobTicketInfoFromStream(zundo_int_object_s **out, FILE *stream);
/* Reads a text into an existing ticket. */
ZUNDO_API zundo_status_t readJobTicketString(const char *text, zundo_int_object_s *ticket);

/* ------------------------------------------------------------------ */
/* Writing job tickets                                                 */
/* ------------------------------------------------------------------ */

/* Writes the ticket as a JDF 1.4 job ticket. The text stored in *out is
 * released with releaseJobTicketString. */
ZUNDO_API zundo_status_t writeJobTicketString(zundo_int_object_s *jobTicket, char **out);
/* Writes the text to an open stream, which is neither flushed nor closed. */
ZUNDO_API zundo_status_t writeJobTicketStream(zundo_int_object_s *jobTicket, FILE *stream);
/* Writes to a file named by a "file://" URL or a plain path. */
ZUNDO_API zundo_status_t writeJobTicketURL(zundo_int_object_s *jobTicket, const char *url);
ZUNDO_API void releaseJobTicketString(char *text);

#ifdef __cplusplus
}
#endif

#ifdef __cplusplus
namespace xercesc_3_2 {
class XMLTranscoder;
}

/* Converts between UTF-8 char text and the XML library's 16-bit text
 * (XMLCh, which is char16_t). Every returned buffer belongs to the caller
 * and is freed with release(); a null text converts to null. */
class ZUNDO_API UTF8Transcoder {
public:
    UTF8Transcoder() = delete;

    /* Creates the shared UTF-8 transcoder if there is none yet. */
    static bool init();
    static void terminate();

    /* Plain per-unit copies for ASCII names; bytes above 0x7F do not
     * survive a round trip. */
    static char16_t *transcodeAttr(const char *text);
    static char *transcodeAttr(const char16_t *text);

    /* Real UTF-8 conversion of values. maxChars limits the number of
     * 16-bit units produced; 0 converts the whole text. */
    static char16_t *transcodeValue(const char *text, unsigned maxChars = 0);
    static char *transcodeValue(const char16_t *text);

    /* Frees *text when it is not null and sets it to null. */
    static void release(char **text);
    static void release(char16_t **text);

    static xercesc_3_2::XMLTranscoder *_transcoder;

private:
    static bool transcode(const char *source, char16_t *target, unsigned maxChars);
};
#endif

#endif /* ZUNDO_H */
