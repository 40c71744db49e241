#include "core/sample_sort.h"

#include "core/action_log.h"
#include "core/editing.h"
#include "core/hooks.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sample_move.h"
#include "core/sample_names.h"
#include "core/sheet_state.h"
#include "core/show_sample.h"

SampleSort sampleSort;

static double depthOf(int sample)
{
    return leadingNumber(sheet.SampleField(sample, 2));
}

bool canSortSamples()
{
    bool ascending = true;
    for (int sample = 1; sample <= sheet.SampleCount; ++sample) {
        if (!isDepth(sheet.SampleField(sample, 2)))
            return false;
        ascending = ascending && (sample == 1 || depthOf(sample - 1) <= depthOf(sample));
    }
    return !ascending;
}

void mnuEdit_Open()
{
    sampleSort.mnuSortSamples.enabled = canSortSamples();
}

void mnuSortSamples_Click()
{
    const VisitInterrupted visit; // a name that is still being typed may be refused
    if (!canSortSamples())
        return;
    for (int sample = 2; sample <= sheet.SampleCount; ++sample) {
        int place = sample;
        while (place > 1 && depthOf(place - 1) > depthOf(sample))
            --place;
        if (place != sample)
            carrySample(sample, place);
    }
    markUnsavedWork();
    listSampleNames();
    frmMain.Combo2.text = sheet.SampleField(sheet.CurrentSample, 2);
    logAction("(Sort samples by depth)");
    sampleSort.mnuSortSamples.enabled = sampleSort.offer.visible = false;
    hooks.ReloadDiagram(); // depths that were renamed while it was open find their rows, too
    if (!sheet.Modifying)
        frmMain.focus = MainFocus::Text99;
}
