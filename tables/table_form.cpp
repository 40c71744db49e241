#include "tables/table_form.h"

#include "core/action_log.h"
#include "core/cue.h"
#include "core/editing.h"
#include "core/forms.h"
#include "core/main_screen.h"
#include "core/messages.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "core/taxon_name.h"
#include "files/open_sheet.h"
#include "files/sheet_text.h"
#include "platform/code_page.h"
#include "platform/ports.h"
#include "tables/table_file.h"
#include "tables/table_words.h"

#include <algorithm>
#include <numeric>

TableForm frmTable;
static const Form form("frmTable", frmTable.visible, frmTable_Command2_Click);

namespace {

std::string numberOf(std::size_t number, const char* one, const char* several)
{
    return decimalText(static_cast<long long>(number)) + " " + (number == 1 ? one : several);
}

std::string separatorName(char separator)
{
    return separator == ';' ? "semicolons" : separator == '\t' ? "tabs" : "commas";
}

/// The first samples of the first taxa.
void showCells()
{
    const CountTable& table = frmTable.table;
    const auto cell = [&](std::size_t row, std::size_t column) -> std::string {
        if (row == 0)
            return column == 0 || column > table.samples.size() ? "" : table.samples[column - 1];
        if (row > table.taxa.size())
            return "";
        if (column == 0)
            return table.taxa[row - 1];
        const bool counted =
            column <= table.samples.size() && table.counts.size() == table.samples.size() * table.taxa.size();
        return counted ? decimalText(table.count(column - 1, row - 1)) : "";
    };
    constexpr std::size_t side = tablePreview + 1;
    for (std::size_t i = 0; i < frmTable.Label4.size(); ++i)
        frmTable.Label4[i].caption = cell(i / side, i % side);
}

void showTable()
{
    TableForm& f = frmTable;
    f.table = readCountTable(f.text, f.reading);
    const CountTable& table = f.table;
    f.Label1.caption = f.name + ": " + f.encoding + ", separated by " + separatorName(table.separator) +
                       ", samples in its " + (table.samplesStand == Samples::columns ? "columns" : "rows");
    const auto individuals = std::accumulate(table.counts.begin(), table.counts.end(), std::int64_t{0});
    f.Label2.caption = numberOf(table.taxa.size(), "taxon", "taxa") + " in " +
                       numberOf(table.samples.size(), "sample", "samples");
    if (!table.counts.empty())
        f.Label2.caption +=
            ", " + numberOf(static_cast<std::size_t>(individuals), "individual", "individuals");
    f.Label3.caption = table.refusal;
    f.Label3.visible = !table.refusal.empty();
    showCells();
    f.Text1.text.clear();
    if (f.replaced > 0)
        f.Text1.text = "\"?\" stands for " +
                       numberOf(static_cast<std::size_t>(f.replaced), "character", "characters") +
                       " that a data sheet cannot hold.\r\n";
    constexpr std::size_t shown = 100; // of a table that is none, there may be any number
    for (std::size_t i = 0; i < std::min(shown, table.remarks.size()); ++i)
        f.Text1.text += table.remarks[i] + "\r\n";
    if (table.remarks.size() > shown)
        f.Text1.text += "And " + decimalText(static_cast<long long>(table.remarks.size() - shown)) +
                        " more of this kind.\r\n";
    if (f.Text1.text.empty() && table.refusal.empty())
        f.Text1.text = "Nothing is left out.";
    f.Check1.visible = table.surplusTaxa > 0;
    f.Check1.checked = f.reading.leaveOutRarest;
    f.Check1.caption = table.surplusTaxa == 1
                           ? "Leave out the rarest taxon"
                           : "Leave out the " + decimalText(table.surplusTaxa) + " rarest taxa";
    f.Command1.enabled = table.refusal.empty();
}

/// The same question as before any other sheet takes the place of the one in memory.
bool sheetMayGo()
{
    if (sheet.SheetPristine && !hasUnsavedWork())
        return true;
    playCue(Cue::SoundError);
    return mayLoseCounts();
}

/// The table as the text of a data sheet.
std::string sheetText(const CountTable& table)
{
    SheetTables made;
    const Moment now = ports.clock->now();
    made.SheetHeader[1] = {"", "Untitled", "Last modified (dd/mm/yyyy):", noText, "Serial No."};
    made.SampleCount = static_cast<int>(table.samples.size());
    for (std::size_t taxon = 0; taxon < table.taxa.size(); ++taxon)
        made.TaxonRecord[taxon + 1].Name = table.taxa[taxon];
    for (int sample = 1; sample <= made.SampleCount; ++sample) {
        const auto place = static_cast<std::size_t>(sample) - 1;
        made.SampleField(sample, 1) = decimalText(sample);
        made.SampleField(sample, 2) = table.samples[place];
        made.SampleStamp(sample, 1) = dateStamp(now);
        for (std::size_t taxon = 0; taxon < table.taxa.size(); ++taxon)
            made.Count(sample, static_cast<int>(taxon) + 1) = table.count(place, taxon);
    }
    fillEmptyCells(made, {});
    return dataSheetText(made, sampleTotals(made).value());
}

} // namespace

void mnuNewFromTable_Click()
{
    const auto file = chooseTable("Open table of counts");
    if (!file)
        return;
    TableForm shown;
    shown.name = file->name;
    shown.encoding = file->decoded.encoding;
    shown.text = file->decoded.text;
    shown.replaced = file->decoded.replaced;
    const CountTable table = readCountTable(shown.text, {});
    if (!table.isTable) {
        tellTableFault("'" + file->name + "' cannot be taken. " + table.refusal);
        return;
    }
    shown.reading.samples = table.samplesStand;
    if (!table.samplesStand) {
        const bool rows =
            ports.dialogs->ask("Nothing in the table tells whether its samples are its rows or its columns. "
                               "Are they its rows?",
                               "New from a table", Buttons::yesNo, Icon::question) == Answer::yes;
        shown.reading.samples = rows ? Samples::rows : Samples::columns;
    }
    frmTable = std::move(shown);
    showTable();
    openAboveMain(frmTable.visible);
}

void frmTable_Command1_Click()
{
    if (!frmTable.Command1.enabled || !sheetMayGo())
        return;
    const std::string what = frmTable.Label2.caption;
    openUnsavedText(sheetText(frmTable.table));
    logAction("(New from a table) " + frmTable.name);
    frmMain.notice = what + ": not saved yet.";
    frmTable_Command2_Click();
}

void frmTable_Command2_Click()
{
    closeAboveMain(frmTable.visible);
    frmTable = {};
}

void frmTable_Command3_Click()
{
    frmTable.reading.samples = frmTable.reading.samples == Samples::rows ? Samples::columns : Samples::rows;
    frmTable.reading.leaveOutRarest = false;
    showTable();
}

void frmTable_Check1_Click()
{
    frmTable.reading.leaveOutRarest = !frmTable.reading.leaveOutRarest;
    showTable();
}
