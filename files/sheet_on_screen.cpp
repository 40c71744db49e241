#include "files/sheet_on_screen.h"

#include "core/action_log.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "core/version.h"
#include "platform/code_page.h"

#include <algorithm>

void storeShownSample()
{
    if (!sheet.KeysActive) // the boxes show percentages; the tables are right
        return;
    sheet.SampleField(sheet.CurrentSample, 2) = frmMain.Combo2.text;
    for (int slot = 1; slot <= taxonSlots; ++slot)
        sheet.Count(sheet.CurrentSample, slot) = wholeNumber(frmMain.Text2[slot].text);
}

std::array<std::string, infoItems + 1> shownCaptions()
{
    std::array<std::string, infoItems + 1> captions;
    for (int item = 1; item <= infoItems; ++item)
        captions[item] = frmMain.Label10[item].caption;
    return captions;
}

void stampHead(const char* tag, const std::string& path, const Moment& now)
{
    std::string shownPath = toCodePageFromUtf8(path);
    std::replace(shownPath.begin(), shownPath.end(), '"', '\''); // a quotation mark would end the field
    const std::string stamp = dateStamp(now);                    // "15/11/2026 (20:03:45)"
    sheet.SheetHeader[1] = {"", shownPath, tag, now.date + "_" + stamp.substr(now.date.size() + 1),
                            "Serial No."};
}

void showSheetName(const std::string& name)
{
    frmMain.caption = std::string("TallyStrata ") + programVersion + " - [" + toCodePageFromUtf8(name) + "]";
}

void beginProgress(int steps)
{
    frmMain.pointer = Pointer::hourglass;
    frmMain.ProgressBar1 = {true, 0, std::max(1, steps)};
}

void endProgress()
{
    frmMain.pointer = Pointer::arrow;
    frmMain.ProgressBar1.visible = false;
    frmMain.ProgressBar1.value = 0;
}
