// Connector and controller of the destination device.
#include "write/device_writer.h"

#include <new>
#include <string>

#include "write/jdf_attr.h"
#include "write/number_format.h"
#include "write/object_values.h"
#include "write/resource_getters.h"
#include "zundo_trace.h"

namespace {

enum ControllerValueForm { kControllerText, kControllerTextList, kControllerReal };

struct ControllerRow {
    const char *attribute;
    const char *jdfName;
    ControllerValueForm form;
};

const ControllerRow kControllerRows[] = {
    {"job-destination-controller-name", "Name", kControllerText},
    {"job-destination-controller-available-functions", "AvailableFunctions", kControllerTextList},
    {"job-destination-controller-bos-version", "BOSVersion", kControllerText},
    {"job-destination-controller-engine-interface-unit-version", "EngineInterfaceUnitVersion",
     kControllerText},
    {"job-destination-controller-firmware-version", "FirmwareVersion", kControllerText},
    {"job-destination-controller-installed-memory", "InstalledMemory", kControllerReal},
    {"job-destination-controller-processor-speed", "ProcessorSpeed", kControllerReal},
    {"job-destination-controller-processor-name", "ProcessorName", kControllerText},
    {"job-destination-controller-serial-number", "SerialNumber", kControllerText},
    {"job-destination-controller-version", "Version", kControllerText},
};

// Every value joined by single blanks; false when memory runs out.
bool joinTexts(zundo_int_attribute_s *texts, std::string *joined) {
    try {
        resetIterator(texts);
        while (hasNextValue(texts)) {
            const char *text = static_cast<const char *>(nextValue(texts));
            if (text == nullptr) continue;
            if (!joined->empty()) *joined += ' ';
            *joined += text;
        }
    } catch (const std::bad_alloc &) {
        return false;
    }
    return true;
}

// The element is made at the first value, so that a job without any makes
// no Device.
void writeControllerValues(JDFWriteContext *ctx, zundo_int_object_s *job) {
    xercesc::DOMElement *controller = nullptr;
    for (const ControllerRow &row : kControllerRows) {
        FetchedAttribute value(job, row.attribute);
        if (!value.hasValue()) continue;
        if (controller == nullptr) {
            xercesc::DOMElement *device = getDevice(ctx);
            controller =
                device != nullptr ? appendChildTraced(device, "morvellan:ControllerInfo") : nullptr;
            if (controller == nullptr) return;
        }
        char number[kNumberTextSize];
        std::string functions;
        const char *text = nullptr;
        switch (row.form) {
        case kControllerText:
            text = value.firstString();
            break;
        case kControllerReal:
            text = formatReal(number, sizeof number, value.firstDouble(0.0));
            break;
        case kControllerTextList:
            if (!joinTexts(value.attribute(), &functions)) {
                traceOutOfMemory("writeControllerInfo");
                return;
            }
            text = functions.c_str();
            break;
        }
        setAttributeTraced(controller, row.jdfName, text);
    }
}

}  // namespace

void writeConnectorInfo(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeConnectorInfo\n");
    FetchedAttribute format(job, "job-destination-connector-file-format");
    const char *mimeType =
        format.hasValue()
            ? getJDFValueFromChar("job-destination-connector-file-format", format.firstString())
            : nullptr;
    xercesc::DOMElement *device = mimeType != nullptr ? getDevice(ctx) : nullptr;
    xercesc::DOMElement *connector =
        device != nullptr ? appendChildTraced(device, "morvellan:ConnectorInfo") : nullptr;
    if (connector != nullptr) setAttributeTraced(connector, "PrintFileFormat", mimeType);
    zundo_trace("<< leaving writeConnectorInfo\n");
}

void writeControllerInfo(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeControllerInfo\n");
    writeControllerValues(ctx, job);
    zundo_trace("<< leaving writeControllerInfo\n");
}
