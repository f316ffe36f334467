// What the finishing readers take from the Components of the process
// chain beside the parameter resources.
#ifndef ZUNDO_READ_FINISHING_COMPONENTS_H
#define ZUNDO_READ_FINISHING_COMPONENTS_H

#include "xml/jdf_entries.h"

// "folding-component-type" of a job-level folding from the ComponentType
// of the Folding process's Input Component, found through the JDF node of
// the FoldingParams resource.
void addJobFoldingComponentType(zundo_int_object_s *folding,
                                const xercesc::DOMElement *foldingParams);

// The same for the foldings that the RunIndex partitions of FoldingParams
// gave the job's page ranges, from the Component's RunIndex partitions.
void addPageRangeFoldingComponentTypes(const xercesc::DOMElement *foldingParams,
                                       zundo_int_object_s *job);

#endif
