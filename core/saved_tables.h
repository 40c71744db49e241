#pragma once

#include "core/sheet_tables.h"

/// What a reset goes back to: the sheet as it was last saved.
struct SavedTables {
    SampleTable<std::int32_t, taxonSlots + 1> SavedCount;
    SampleTable<std::string, infoItems + 1> SavedInfo;
    std::array<TaxonFields, taxonSlots + 1> SavedTaxon;
};
