// The JDF node's own attributes as "jt-" attributes of the ticket and
// "job-" attributes of the job.
#include <cstring>

#include "enums/value_tables.h"
#include "read/read_driver.h"
#include "read/reader_conversions.h"
#include "zundo_trace.h"

namespace {

// Attributes copied as text or converted through a code table. Their
// statuses do not decide the read.
struct NodeAttributeRow {
    const char *jdfName;
    const char *attribute;
    bool onTicket;                   // else on the job
    const zundo_enum_pair_s *codes;  // null: the text itself
};

const NodeAttributeRow kNodeAttributeRows[] = {
    {"DescriptiveName", "job-jdf-node-name", false, nullptr},
    {"ID", "jt-jdf-node-id", true, nullptr},
    {"JobPartID", "job-internal-id", false, nullptr},
    {"Status", "job-jdf-node-status", false, jdfNodeStatusValues},
    {"StatusDetails", "job-jdf-node-status-details", false, jdfNodeStatusDetailsValues},
    {"TemplateVersion", "jt-version", true, nullptr},
};

enum Activation { kNoActivation, kActive, kHeld, kInformative };

// What the hold settings leave behind: the activation and hold action
// seen, and the status of the last hold setting made.
struct HoldState {
    Activation activation = kNoActivation;
    int holdAction = 0;
    zundo_status_t status = ZUNDO_OK;
};

void storeMapped(const NodeAttributeRow &row, const char *value, zundo_int_object_s *ticket,
                 zundo_int_object_s *job) {
    zundo_int_object_s *owner = row.onTicket ? ticket : job;
    if (row.codes == nullptr)
        setStringAttribute(owner, row.attribute, value);
    else
        setIntegerAttribute(owner, row.attribute, codeForJDFName(row.codes, value));
}

// Name and value pairs; a last name without a value is dropped.
void readNamedFeatures(const char *value, zundo_int_object_s *job) {
    zundo_int_attribute_s *features = nullptr;
    if (newAttribute(&features, "job-named-features", ZUNDO_KIND_OBJECT, nullptr) != ZUNDO_OK)
        return;
    std::vector<std::string> tokens = splitWords(value, kBlankSeparators);
    for (size_t i = 0; i + 1 < tokens.size(); i += 2) {
        zundo_int_object_s *feature = nullptr;
        if (newNamedFeature(&feature, tokens[i].c_str(), tokens[i + 1].c_str()) != ZUNDO_OK)
            continue;
        if (addValue(features, feature) != ZUNDO_OK) destroy(feature);
    }
    setAndReleaseAttribute(job, features);
}

void readActivation(const char *value, zundo_int_object_s *job, HoldState *hold) {
    if (std::strcmp(value, "Active") == 0) {
        hold->activation = kActive;
    } else if (std::strcmp(value, "Informative") == 0) {
        hold->activation = kInformative;
    } else if (std::strcmp(value, "Held") == 0) {
        hold->activation = kHeld;
        hold->status = setIntegerAttribute(job, "job-hold", 1);
    }
}

void readSnapshotName(const char *value, zundo_int_object_s *job, HoldState *hold) {
    hold->status = setStringAttribute(job, "job-snapshot-name", value);
    if (hold->status != ZUNDO_OK)
        zundo_trace("call to setStringAttribute failed for %s: internal error \n",
                    "job-snapshot-name");
}

void readNodeAttribute(const AttributeEntry *entry, zundo_int_object_s *ticket,
                       zundo_int_object_s *job, HoldState *hold) {
    const char *name = entry->name;
    const char *value = entry->value;
    for (const NodeAttributeRow &row : kNodeAttributeRows) {
        if (std::strcmp(row.jdfName, name) == 0) {
            storeMapped(row, value, ticket, job);
            return;
        }
    }
    if (std::strcmp(name, "NamedFeatures") == 0) {
        readNamedFeatures(value, job);
    } else if (std::strcmp(name, "Activation") == 0) {
        readActivation(value, job, hold);
    } else if (std::strcmp(name, "morvellan:ActivationDetails") == 0 && value[0] != '\0') {
        hold->holdAction = getZUNDOEnumValue("job-hold-action", value);
        hold->status = setIntegerAttribute(job, "job-hold-action", hold->holdAction);
    } else if (std::strcmp(name, "morvellan:SnapshotName") == 0) {
        readSnapshotName(value, job, hold);
    }
}

// "job-hold" from the activation and the hold action together. Held with
// an action that prints first, or Active with one that holds first, leave
// it as it is.
void settleHold(zundo_int_object_s *job, HoldState *hold) {
    int action = hold->holdAction;
    if (hold->activation == kActive && (action == 0 || (action >= 3 && action <= 6)))
        hold->status = setIntegerAttribute(job, "job-hold", 0);
    else if (hold->activation == kHeld && action >= 0 && action <= 2)
        hold->status = setIntegerAttribute(job, "job-hold", 1);
    else if (hold->activation == kInformative)
        hold->status = setIntegerAttribute(job, "job-hold", -1);
}

}  // namespace

zundo_status_t readJDFNodeAttributes(xercesc::DOMElement *jdfNode, zundo_int_object_s *ticket) {
    AttributeEntry **attributes = nullptr;
    zundo_result_t listed = getAttrs(jdfNode, &attributes);
    if (listed.status != ZUNDO_OK) return listed.status;
    zundo_int_object_s *job = getJob(ticket);
    HoldState hold;
    for (AttributeEntry **entry = attributes; *entry != nullptr; ++entry)
        readNodeAttribute(*entry, ticket, job, &hold);
    freeAttrList(attributes);
    settleHold(job, &hold);
    return hold.status;
}
