#include "core/show_sample.h"

#include "core/hooks.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/recount_totals.h"
#include "core/sheet_state.h"
#include "core/taxon_name.h"
#include "core/text_changes.h"

#include <algorithm>

ShowingSample::ShowingSample() : before_(sheet.SampleSwitching)
{
    sheet.SampleSwitching = true;
}

ShowingSample::~ShowingSample()
{
    sheet.SampleSwitching = before_;
}

std::string orDashes(const std::string& text)
{
    return text.empty() ? noText : text;
}

void forgetCurve()
{
    std::fill(sheet.DiversityCurve.begin(), sheet.DiversityCurve.end(), std::int16_t{0});
}

void showSample(int sample)
{
    const ShowingSample showing;
    forgetCurve();
    sheet.WarnNotLatest = true; // the next key may still be meant for the sample before
    sheet.CurrentSample = sample;
    for (int slot = 1; slot <= taxonSlots; ++slot)
        setText2(slot, decimalText(sheet.Count(sample, slot)));
    RecountTotals(sample);
    hooks.DrawDiversity(); // also of a sample with the same total

    setText1(0, sheet.SampleField(sample, 2));
    frmMain.Combo2.text = sheet.SampleField(sample, 2);
    showSerial(sample);
    frmMain.Text4.text = sheet.SampleNote(sample, 0);
    for (int item = 1; item <= infoItems; ++item)
        frmMain.Text5[item].text = orDashes(sheet.AdditionalInfo(sample, item));
    for (int date = 0; date < 3; ++date)
        frmMain.Label14[date].caption = orDashes(sheet.SampleStamp(sample, date + 1));
}

void listSampleNames()
{
    frmMain.Combo2.items.clear();
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        frmMain.Combo2.items.push_back(sheet.SampleField(sample, 2));
    ++frmMain.Combo2.itemsRevision;
}
