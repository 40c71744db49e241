#include "printing/printing.h"

#include "core/cue.h"
#include "core/main_screen.h"
#include "core/messages.h"
#include "core/sheet_name.h"
#include "core/sheet_state.h"
#include "files/sheet_on_screen.h"
#include "platform/code_page.h"
#include "platform/ports.h"
#include "printing/sheet_pages.h"
#include "sheet/summary.h"

namespace {

SheetWords words()
{
    SheetWords made;
    made.title = baseName(sheet.SheetPath).value_or("Untitled");
    for (std::size_t total = 0; total < made.totals.size(); ++total)
        made.totals[total] = frmMain.Label2[total].caption;
    made.infoNames = shownCaptions();
    made.italics = frmMain.mnuItalic.checked;
    return made;
}

double letterWidth(std::string_view text, bool italic)
{
    return ports.pictures->letterWidth(text, italic);
}

void save(const std::vector<Page>& pages, const std::string& ending)
{
    const std::string beside = fileBeside(sheet.SheetPath, ending);
    const auto path = ports.dialogs->choosePagesToSave(beside.empty() ? "Untitled" + ending : beside);
    if (!path)
        return;
    if (pictureFormatOf(*path) != PictureFormat::pdf) { // the sheet itself among others
        ports.dialogs->ask("Pages are written as PDF. Choose a name that ends in '.pdf'.", "Error",
                           Buttons::ok, Icon::exclamation);
        return;
    }
    if (!ports.files->write(*path, ports.pictures->encodePages(pages))) {
        tellFileInUse();
        return;
    }
    playCue(Cue::SoundSave);
    frmMain.notice = "'" + toCodePageFromUtf8(fileNameOf(*path)) + "' written, to be printed from there.";
}

} // namespace

void mnuPrintSheet_Click()
{
    storeShownSample();
    save(sheetPages(sheet, words(), letterWidth), "_sheet.pdf");
}

void mnuPrintSummary_Click()
{
    storeShownSample();
    save(summaryPages(sheet, sheet.CurrentSample, rankedTaxa(), words(), letterWidth), "_summary.pdf");
}
