// JDF spellings of values that no attribute conversion row lists: a
// reader and its writer share each table.
#include "enums/value_tables.h"

const zundo_enum_pair_s baseScreenValues[] = {
    {1, "150Dot"},  {2, "168Dot"},  {3, "168Line"}, {4, "175Dot"},  {5, "175Line"},
    {6, "200Dot"},  {7, "200Line"}, {8, "270Dot"},  {9, "270Line"}, {10, "300Dot"},
    {11, "300Line"}, {12, "FMScreen"}, {13, "Hybrid"}, {14, "InterferenceReduction"},
    {-1, nullptr}};

const zundo_enum_pair_s deliveryMethodValues[] = {
    {1, "Archive"},  {2, "Proof"},           {3, "PrintLater"},        {4, "PrintNow"},
    {5, "PrintNowAndArchive"}, {6, "PrintNowAndSave"}, {7, "PrintLaterAndSave"}, {8, "Save"},
    {-1, nullptr}};

const zundo_enum_pair_s startPageDescriptionValues[] = {
    {1, "Cover"}, {2, "DesignationSheet"}, {-1, nullptr}};
