#pragma once

#include "core/number_text.h"
#include "core/sheet_tables.h"
#include "files/sheet_text.h"

/// A sheet of 135 taxa; by default the fullest.
inline SheetTables fullSheet(int samples = sampleLimit)
{
    SheetTables tables;
    tables.SampleCount = samples;
    for (int sample = 1; sample <= samples; ++sample) {
        tables.SampleField(sample, 1) = decimalText(sample);
        tables.SampleField(sample, 2) = decimalText(10 * sample);
        for (int slot = 1; slot <= taxonSlots; ++slot)
            tables.Count(sample, slot) = sample * slot % 150;
    }
    for (int slot = 1; slot <= taxonSlots; ++slot)
        tables.TaxonRecord[slot].Name = "Taxon name " + decimalText(slot);
    return tables;
}

inline std::string fullSheetText(int samples = sampleLimit)
{
    SheetTables tables = fullSheet(samples);
    fillEmptyCells(tables, {});
    return dataSheetText(tables, *sampleTotals(tables));
}
