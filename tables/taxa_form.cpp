#include "tables/taxa_form.h"

#include "core/action_log.h"
#include "core/basis_members.h"
#include "core/editing.h"
#include "core/forms.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/recount_totals.h"
#include "core/sheet_state.h"
#include "core/text_changes.h"
#include "sheet/subtotals.h"
#include "tables/table_file.h"

TaxaForm frmTaxa;
static const Form form("frmTaxa", frmTaxa.visible, frmTaxa_Command2_Click);

namespace {

constexpr std::size_t listLimit = 100000; // characters; 135 names take a tenth of it

/// The name that a subtotal has once the list is taken over.
const std::string& nameToBe(int subtotal)
{
    const std::string& given = frmTaxa.plan.subtotalNames[subtotal];
    return given.empty() ? sheet.SheetHeader[2][subtotal + 1] : given;
}

std::string rowText(const TaxonPlan::Row& row)
{
    std::string text = decimalText(row.slot) + ": " + row.name;
    for (int subtotal = 1; subtotal <= 2; ++subtotal)
        if (row.inSubtotal[subtotal])
            text += ", " + nameToBe(subtotal);
    return text;
}

void showPlan()
{
    frmTaxa.plan = planTaxa(readTaxonList(frmTaxa.Text1.text), sheet);
    const TaxonPlan& plan = frmTaxa.plan;
    const auto rows = static_cast<long long>(plan.rows.size());
    frmTaxa.Label1.caption = rows == 0   ? "No name gets a row."
                             : rows == 1 ? "1 name gets a row, told by its key:"
                                         : decimalText(rows) + " names get a row each, told by its key:";
    std::string& text = frmTaxa.Text2.text;
    text.clear();
    for (const std::string& remark : plan.remarks)
        text += remark + "\r\n";
    for (int subtotal = 1; subtotal <= 2; ++subtotal)
        if (!plan.subtotalNames[subtotal].empty())
            text +=
                sheet.SheetHeader[2][subtotal + 1] + " is called " + plan.subtotalNames[subtotal] + ".\r\n";
    for (const TaxonPlan::Row& row : plan.rows)
        text += rowText(row) + "\r\n";
    frmTaxa.Command1.enabled = rows > 0;
}

void takeList(std::string_view list)
{
    if (list.size() > listLimit)
        frmMain.notice = "Only the beginning of the list was taken: it is longer than any list of taxa.";
    frmTaxa.Text1.text = list.substr(0, listLimit);
    frmTaxa.Text1.caret = 0;
    showPlan();
}

void open(std::string_view list)
{
    frmTaxa = {};
    takeList(list);
    openAboveMain(frmTaxa.visible);
}

} // namespace

void mnuTaxaFromList_Click()
{
    if (sheet.Modifying)
        open("");
}

bool Text1_Paste(int slot, std::string_view text)
{
    if (slot == 0 || !sheet.Modifying || readTaxonList(text.substr(0, listLimit)).size() < 2)
        return false;
    open(text);
    return true;
}

void frmTaxa_Text1_Edited(std::string_view text, int caret)
{
    frmTaxa.Text1.text = text;
    frmTaxa.Text1.caret = caret;
    showPlan();
}

void frmTaxa_Command1_Click()
{
    if (!frmTaxa.Command1.enabled)
        return;
    const VisitInterrupted interrupted; // of the box that the names may go into
    const TaxonPlan plan = frmTaxa.plan;
    for (int subtotal = 1; subtotal <= 2; ++subtotal)
        if (!plan.subtotalNames[subtotal].empty())
            sheet.SheetHeader[2][subtotal + 1] = plan.subtotalNames[subtotal];
    for (const TaxonPlan::Row& row : plan.rows) {
        setText1(row.slot, row.name);
        if (row.inSubtotal[1])
            sheet.TaxonRecord[row.slot].Subtotal1 = "1";
        if (row.inSubtotal[2])
            sheet.TaxonRecord[row.slot].Subtotal2 = "1";
    }
    showSubtotalNames();
    RecountTotals(sheet.CurrentSample);
    underlineBasis();
    markUnsavedWork();
    frmMain.mnuNew.enabled = true;
    logAction("(Taxa from a list: " + decimalText(static_cast<long long>(plan.rows.size())) + ")");
    frmTaxa_Command2_Click();
}

void frmTaxa_Command2_Click()
{
    closeAboveMain(frmTaxa.visible);
    frmTaxa = {};
}

void frmTaxa_Command3_Click()
{
    const auto file = chooseTable("Open list of taxa");
    if (!file)
        return;
    takeList(file->decoded.text);
}
