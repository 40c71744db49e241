#include "core/sheet_state_type.h"

SheetState::SheetState()
{
    SavedTaxon = TaxonRecord;
    SavedInfo = AdditionalInfo;
}
