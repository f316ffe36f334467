// Partitioned resources: reading the first and second partition levels as
// entries that carry their key values, and finding or creating partitions
// when writing.
//
// A partition is a child element with the resource's own name. First-level
// partitions are keyed by DocIndex, Run or Condition; second-level ones,
// inside a first-level partition or directly under the resource, by
// DocRunIndex or RunIndex. In the entries handed out, firstKey holds the
// first-level key value and secondKey the second-level one (null where the
// level does not apply); key attributes are never entries themselves.
#ifndef ZUNDO_XML_PARTITIONS_H
#define ZUNDO_XML_PARTITIONS_H

#include "xml/jdf_entries.h"

// Lookups: *out is set to null first. A resource without PartIDKeys has no
// first-level entries; the second-level walk does not consult PartIDKeys.
zundo_result_t get1stLvlAttrs(const xercesc::DOMElement *resource, AttributeEntry ***out,
                              const char *key);
zundo_result_t get2ndLvlAttrs(const xercesc::DOMElement *resource, AttributeEntry ***out,
                              const char *firstKey, const char *secondKey);
zundo_result_t get1stLvlElements(const xercesc::DOMElement *resource, ElementEntry ***out,
                                 const char *key);
zundo_result_t get2ndLvlElements(const xercesc::DOMElement *resource, ElementEntry ***out,
                                 const char *firstKey, const char *secondKey);

zundo_result_t getDocIndexLvlAttrs(const xercesc::DOMElement *resource, AttributeEntry ***out);
zundo_result_t getDocRunIndexLvlAttrs(const xercesc::DOMElement *resource, AttributeEntry ***out);
zundo_result_t getRunLvlAttrs(const xercesc::DOMElement *resource, AttributeEntry ***out);
zundo_result_t getRunIndexLvlAttrs(const xercesc::DOMElement *resource, AttributeEntry ***out);
zundo_result_t getDocIndexLvlElements(const xercesc::DOMElement *resource, ElementEntry ***out);
zundo_result_t getDocRunIndexLvlElements(const xercesc::DOMElement *resource, ElementEntry ***out);
zundo_result_t getRunLvlElements(const xercesc::DOMElement *resource, ElementEntry ***out);
zundo_result_t getRunIndexLvlElements(const xercesc::DOMElement *resource, ElementEntry ***out);

// Writing. The partition is the first descendant with the resource's name
// whose key equals the value, created (and PartIDKeys set) when missing;
// null only on bad arguments or when the DOM refuses.
xercesc::DOMElement *findOrCreatePartition(xercesc::DOMElement *resource, const char *value,
                                           const char *key);
// A new partition named like parent, appended to it with key = value; null
// when the DOM refuses. Partitions of a document being written are made
// only this way (or by the find-or-create operations), so that lookups stay
// indexed.
xercesc::DOMElement *appendPartition(xercesc::DOMElement *parent, const char *key,
                                     const char *value);
// Gives an existing partition a new value for its key (a RunIndex that
// grows), the one way to re-key a partition of a document being written.
zundo_status_t setPartitionKey(xercesc::DOMElement *partition, const char *key, const char *value);
// Adds a blank and `word` to the value of a partition's key (a RunIndex
// that lists one more range).
zundo_status_t appendToPartitionKey(xercesc::DOMElement *partition, const char *key,
                                    const char *word);
// With a null firstValue the second-level partition sits directly under
// the resource and PartIDKeys becomes secondKey alone.
xercesc::DOMElement *findOrCreateSubPartition(xercesc::DOMElement *resource, const char *firstKey,
                                              const char *firstValue, const char *secondKey,
                                              const char *secondValue, const char *partIdKeys);

// Set entry->name = entry->value on the partition named by the entry's
// key values (firstKey required by the first form, secondKey by the
// second).
zundo_result_t setPartitionAttr(xercesc::DOMElement *resource, const AttributeEntry *entry,
                                const char *key);
zundo_result_t setSubPartitionAttr(xercesc::DOMElement *resource, const AttributeEntry *entry,
                                   const char *firstKey, const char *secondKey,
                                   const char *partIdKeys);
zundo_result_t setDocIndexPartitionAttr(xercesc::DOMElement *resource, const AttributeEntry *entry);
// Requires both key values.
zundo_result_t setDocRunIndexPartitionAttr(xercesc::DOMElement *resource,
                                           const AttributeEntry *entry);
zundo_result_t setRunPartitionAttr(xercesc::DOMElement *resource, const AttributeEntry *entry);
zundo_result_t setRunIndexPartitionAttr(xercesc::DOMElement *resource, const AttributeEntry *entry);

// Create an element named entry->name inside the partition named by the
// entry's key values and store it in entry->element.
zundo_result_t createPartitionElement(xercesc::DOMElement *resource, ElementEntry *entry,
                                      const char *key);
zundo_result_t createSubPartitionElement(xercesc::DOMElement *resource, ElementEntry *entry,
                                         const char *firstKey, const char *secondKey,
                                         const char *partIdKeys);
zundo_result_t createDocIndexPartitionElement(xercesc::DOMElement *resource, ElementEntry *entry);
// Requires both key values (ZUNDO_NULL_ARGUMENT without firstKey).
zundo_result_t createDocRunIndexPartitionElement(xercesc::DOMElement *resource,
                                                 ElementEntry *entry);
zundo_result_t createRunPartitionElement(xercesc::DOMElement *resource, ElementEntry *entry);
zundo_result_t createRunIndexPartitionElement(xercesc::DOMElement *resource, ElementEntry *entry);
// A Condition partition, or with a secondKey its RunIndex partition
// ("Condition RunIndex"); firstKey is required (ZUNDO_NULL_ARGUMENT).
zundo_result_t createConditionPartitionElement(xercesc::DOMElement *resource, ElementEntry *entry);

#endif
