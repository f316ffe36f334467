// Copies, jog offset and retain of the printed output.
#include "write/digital_printing_writer.h"

#include "enums/value_tables.h"
#include "write/jdf_attr.h"
#include "write/number_format.h"
#include "write/object_values.h"
#include "write/resource_getters.h"
#include "xml/jdf_entries.h"
#include "zundo_trace.h"

namespace {

const int kJogOffsetNone = 1;

// "retain-format" 2 keeps the printed output; any other format keeps the
// prepared pages.
const int kRetainPrintedOutput = 2;
const int kRetainDefaultFormat = 1;

// "retain-action" values that delete after a while; the rest archive.
const int kDeleteAfterPrinting = 1;
const int kDeleteAfterPeriod = 3;
const int kDeleteAtTime = 4;
const char kNoExtraDuration[] = "P0Y0M0DT00H00M";

// The first value of a value-object attribute (date-time, time period),
// or null.
const void *firstValueObject(const FetchedAttribute &value) {
    zundo_int_attribute_s *attribute = value.attribute();
    return hasNextValue(attribute) ? nextValue(attribute) : nullptr;
}

void writeOffsetDirection(xercesc::DOMElement *disjointing, int offset) {
    zundo_trace("\tjog offset = %i \n", offset);
    if (offset == kJogOffsetNone) {
        setAttributeTraced(disjointing, "OffsetDirection", "None");
    } else {
        const char *units = jdfNameForCode(jobJogOffsetValues, offset);
        if (units != nullptr) setAttributeTraced(disjointing, "OffsetUnits", units);
        setAttributeTraced(disjointing, "OffsetDirection", "Reset");
    }
    zundo_trace("added Disjointing OffsetDirection attribute to DigitalPrintingParams\n");
}

void writeDispositionAction(xercesc::DOMElement *disposition, zundo_int_object_s *retain) {
    int action = FetchedAttribute(retain, "retain-action").firstInt(0);
    if (action != kDeleteAfterPrinting && action != kDeleteAfterPeriod && action != kDeleteAtTime) {
        setAttributeTraced(disposition, "DispositionAction", "Archive");
        return;
    }
    setAttributeTraced(disposition, "ExtraDuration", kNoExtraDuration);
    if (action == kDeleteAfterPeriod) {
        // Written even without a period: the empty text still says "delete
        // after a period" to a reader.
        FetchedAttribute period(retain, "retain-time-period");
        char text[ZUNDO_TIME_PERIOD_TEXT_SIZE];
        setAttributeTraced(disposition, "MinDuration",
                           toStringTimePeriod(text, static_cast<const zundo_time_period_s *>(
                                                        firstValueObject(period))));
    } else if (action == kDeleteAtTime) {
        FetchedAttribute until(retain, "retain-until");
        if (until.hasValue()) {
            char text[ZUNDO_DATE_TIME_TEXT_SIZE];
            setAttributeTraced(disposition, "Until",
                               toStringDateTime(text, static_cast<const zundo_date_time_s *>(
                                                          firstValueObject(until))));
        }
    }
    setAttributeTraced(disposition, "DispositionAction", "Delete");
}

}  // namespace

void writeJobCopies(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeJobCopies\n");
    FetchedAttribute copies(job, "job-copies");
    FetchedAttribute actual(job, "job-copies-actual");
    xercesc::DOMElement *link =
        copies.hasValue() || actual.hasValue() ? getFinalProductComponent(ctx) : nullptr;
    if (link != nullptr) {
        char text[kNumberTextSize];
        if (copies.hasValue())
            setAttributeTraced(link, "Amount",
                               formatInteger(text, sizeof text, copies.firstInt(0)));
        if (actual.hasValue())
            setAttributeTraced(link, "ActualAmount",
                               formatReal(text, sizeof text, actual.firstDouble(0.0)));
    }
    zundo_trace("<< leaving writeJobCopies\n");
}

void writeJogOffset(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeJogOffset\n");
    FetchedAttribute offset(job, "job-jog-offset");
    FetchedAttribute amount(job, "job-jog-offset-amount");
    xercesc::DOMElement *params =
        offset.hasValue() || amount.hasValue() ? getDigitalPrintingParams(ctx) : nullptr;
    xercesc::DOMElement *disjointing =
        params != nullptr ? findOrAppendChild(params, "Disjointing") : nullptr;
    if (disjointing != nullptr) {
        if (offset.hasValue()) writeOffsetDirection(disjointing, offset.firstInt(0));
        if (amount.hasValue()) {
            char text[kNumberTextSize];
            setAttributeTraced(disjointing, "OffsetAmount",
                               formatInteger(text, sizeof text, amount.firstInt(0)));
        }
    }
    zundo_trace("<< leaving writeJobOffset\n");
}

void writeRetain(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeRetain\n");
    zundo_int_object_s *retain = FetchedAttribute(job, "job-retain").firstObject();
    if (retain != nullptr) {
        bool printedOutput =
            FetchedAttribute(retain, "retain-format").firstInt(kRetainDefaultFormat) ==
            kRetainPrintedOutput;
        xercesc::DOMElement *runList =
            printedOutput ? getRunListDigitalPrinting(ctx) : getRunListPages(ctx);
        xercesc::DOMElement *disposition =
            runList != nullptr ? appendChildTraced(runList, "Disposition") : nullptr;
        FetchedAttribute priority(retain, "retain-priority");
        if (disposition != nullptr && priority.hasValue()) {
            char text[kNumberTextSize];
            setAttributeTraced(disposition, "Priority",
                               formatInteger(text, sizeof text, priority.firstInt(0)));
        }
        // Not printed first: the resource that feeds the retained output
        // waits until it is released.
        if (FetchedAttribute(retain, "retain-print-first").firstInt(-1) == 0)
            writeJDFAttr(ctx, "Status", "Unavailable", 0, nullptr, nullptr,
                         printedOutput ? getDigitalPrintingParams : getLayoutPreparationParams);
        if (disposition != nullptr) writeDispositionAction(disposition, retain);
    }
    zundo_trace("<< leaving writeRetain\n");
}
