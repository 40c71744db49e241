#pragma once

#include "core/number_text.h"
#include "core/sheet_state_type.h"
#include "files/sheet_text.h"

/// The text of the fullest sheet: 250 samples of 135 taxa.
inline std::string fullSheetText()
{
    SheetState tables;
    tables.SampleCount = sampleLimit;
    for (int sample = 1; sample <= sampleLimit; ++sample) {
        tables.SampleField(sample, 1) = decimalText(sample);
        tables.SampleField(sample, 2) = decimalText(10 * sample);
        for (int slot = 1; slot <= taxonSlots; ++slot)
            tables.Count(sample, slot) = sample * slot % 150;
    }
    for (int slot = 1; slot <= taxonSlots; ++slot)
        tables.TaxonRecord[slot].Name = "Taxon name " + decimalText(slot);
    fillEmptyCells(tables, {});
    return dataSheetText(tables, *sampleTotals(tables));
}
