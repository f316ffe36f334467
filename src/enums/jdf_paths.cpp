// Where each attribute that modification audits can name lives in a JDF
// node, relative to the node.
#include <algorithm>
#include <cstring>
#include <iterator>

#include "enums/jdf_paths.h"
#include "zundo.h"

const zundo_jdf_path_s jdfPathTable[] = {
    {"job-collate", "ResourcePool/DigitalPrintingParams/@Collate"},
    {"job-comment", "Comment/@Name=\"Description\""},
    {"job-copies", "ResourceLinkPool/ComponentLink/@Amount"},
    {"job-created-by", "AuditPool/Created/@Author"},
    {"job-delivery-method", "ResourcePool/DigitalPrintingParams/@morvellan:DeliveryMethod"},
    {"job-folding", "ResourcePool/FoldingParams/"},
    {"job-hold", "@Activation"},
    {"job-hold-action", "@morvellan:ActivationDetails"},
    {"job-media", "ResourcePool/Media/"},
    {"job-name", "CustomerInfo/@CustomerJobName"},
    {"job-output-bin-name", "Component/Location/@LocationName"},
    {"job-page-delivery", "ResourcePool/DigitalPrintingParams/PageDelivery/"},
    {"job-page-rotation", "ResourcePool/LayoutPreparationParams/@Rotate"},
    {"job-processing-information", "Comment/@Name=\"UserText\""},
    {"job-sides", "ResourcePool/LayoutPreparationParams/@Sides"},
    {"job-stitching", "ResourcePool/StitchingParams/"},
    {"media-type-details", "ResourcePool/Media/@MediaType | ResourcePool/Media/@MediaTypeDetails"},
    {"media-type-manual-mode", "ResourcePool/Media/@morvellan:MediaTypeManualMode"},
    {"media-weight", "ResourcePool/Media/@Weight"},
    {"media-x-dimension", "ResourcePool/Media/@Dimension"},
    {"media-y-dimension", "ResourcePool/Media/@Dimension"},
    {"notification-comment", "CustomerInfo/CustomerMessage/Comment/"},
    {"notification-language", "CustomerInfo/CustomerMessage/Comment/@Language"},
};

const size_t jdfPathTableRows = std::size(jdfPathTable);

extern "C" const char *getJDFPathForAttribute(const char *attribute) {
    if (attribute == nullptr) return nullptr;
    const zundo_jdf_path_s *end = jdfPathTable + jdfPathTableRows;
    const zundo_jdf_path_s *row = std::lower_bound(
        jdfPathTable, end, attribute, [](const zundo_jdf_path_s &r, const char *name) {
            return std::strcmp(r.attribute, name) < 0;
        });
    return row != end && std::strcmp(row->attribute, attribute) == 0 ? row->path : attribute;
}
