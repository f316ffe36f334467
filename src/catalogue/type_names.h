// The type string of every object type, spelled once.
#ifndef ZUNDO_TYPE_NAMES_H
#define ZUNDO_TYPE_NAMES_H

extern const char ZUNDO_TYPE_ABSTRACT_JDP[];
extern const char ZUNDO_TYPE_BANNER_SHEET[];
extern const char ZUNDO_TYPE_BINDING[];
extern const char ZUNDO_TYPE_CALIBRATION_TYPE[];
extern const char ZUNDO_TYPE_COLOR_PLANE[];
extern const char ZUNDO_TYPE_CONTACT_INFO[];
extern const char ZUNDO_TYPE_CONTAINER[];
extern const char ZUNDO_TYPE_DOCUMENT[];
extern const char ZUNDO_TYPE_FOLDING[];
extern const char ZUNDO_TYPE_HOLE[];
extern const char ZUNDO_TYPE_HOLE_LINE[];
extern const char ZUNDO_TYPE_HOLE_LIST[];
extern const char ZUNDO_TYPE_HOLE_MAKING[];
extern const char ZUNDO_TYPE_INK_USAGE[];
extern const char ZUNDO_TYPE_INSERT_SHEET[];
extern const char ZUNDO_TYPE_JOB[];
extern const char ZUNDO_TYPE_JOB_TICKET[];
extern const char ZUNDO_TYPE_MARK[];
extern const char ZUNDO_TYPE_MEDIA[];
extern const char ZUNDO_TYPE_NAMED_FEATURE[];
extern const char ZUNDO_TYPE_NAMED_FEATURE_VALUE[];
extern const char ZUNDO_TYPE_NOTIFICATION[];
extern const char ZUNDO_TYPE_NOTIFICATION_AUDIT[];
extern const char ZUNDO_TYPE_PAGE_CELL[];
extern const char ZUNDO_TYPE_PAGE_RANGE[];
extern const char ZUNDO_TYPE_PAGINATION[];
extern const char ZUNDO_TYPE_PHASE_TIME[];
extern const char ZUNDO_TYPE_PROCESS_RUN[];
extern const char ZUNDO_TYPE_PROOF_PRINT[];
extern const char ZUNDO_TYPE_REGISTER_MARK[];
extern const char ZUNDO_TYPE_RETAIN[];
extern const char ZUNDO_TYPE_RIP_PARAMS[];
extern const char ZUNDO_TYPE_SCREENING[];
extern const char ZUNDO_TYPE_SEPARATOR_SHEET[];
extern const char ZUNDO_TYPE_STITCHING[];
extern const char ZUNDO_TYPE_TRAPPING[];
extern const char ZUNDO_TYPE_TRIMMING[];
extern const char ZUNDO_TYPE_TRIM_BLEED_MARK[];
extern const char ZUNDO_TYPE_USAGE_COUNTER[];

#endif
