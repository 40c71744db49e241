#include "statistics/recount.h"

#include "core/number_text.h"
#include "core/sheet_state.h"

Recount recount;

bool areSumsHidden()
{
    return recount.hiddenSerial != 0 &&
           wholeNumber(sheet.SampleField(sheet.CurrentSample, 1)) == recount.hiddenSerial;
}
