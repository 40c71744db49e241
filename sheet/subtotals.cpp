#include "sheet/subtotals.h"

#include "core/basis_members.h"
#include "core/editing.h"
#include "core/forms.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/recount_totals.h"
#include "core/sheet_state.h"
#include "core/taxon_name.h"

SubtotalForm frmSubtotal;
static const Form form("frmSubtotal", frmSubtotal.visible, frmSubtotal_Command3_Click);

namespace {

/// The taxa as they were when the form was opened.
std::array<TaxonFields, taxonSlots + 1> taxaBefore;

int groupOnShow()
{
    return frmSubtotal.Option1[1].selected ? 1 : 2;
}

std::string& memberFlag(TaxonFields& taxon, int group)
{
    return group == 1 ? taxon.Subtotal1 : taxon.Subtotal2;
}

std::string& groupName(int group)
{
    return sheet.SheetHeader[2][group + 1];
}

void showMembers()
{
    for (int slot = 1; slot <= taxonSlots; ++slot)
        frmSubtotal.Check1[slot].checked =
            leadingNumber(memberFlag(sheet.TaxonRecord[slot], groupOnShow())) == 1;
}

void setMember(int slot, bool member)
{
    frmSubtotal.Check1[slot].checked = member;
    memberFlag(sheet.TaxonRecord[slot], groupOnShow()) = member ? "1" : "0";
}

bool membersChanged()
{
    for (int slot = 1; slot <= taxonSlots; ++slot)
        for (int group = 1; group <= 2; ++group)
            if (memberFlag(sheet.TaxonRecord[slot], group) != memberFlag(taxaBefore[slot], group))
                return true;
    return false;
}

} // namespace

void mnuSubtotal_Click()
{
    frmSubtotal = SubtotalForm();
    frmSubtotal.Option1[1].selected = true;
    for (int group = 1; group <= 2; ++group)
        frmSubtotal.Text1[group].text = groupName(group);
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        const std::string& name = sheet.TaxonRecord[slot].Name;
        CheckBox& box = frmSubtotal.Check1[slot];
        box.caption = name.empty() || name == noText ? decimalText(slot) + ": ---" : name;
        box.top = frmMain.Text1[slot].top;
        box.left = frmMain.Text1[slot].left;
    }
    taxaBefore = sheet.TaxonRecord;
    showMembers();
    openAboveMain(frmSubtotal.visible);
}

void frmSubtotal_Option1_Click(int group)
{
    for (int each = 1; each <= 2; ++each)
        frmSubtotal.Option1[each].selected = each == group;
    showMembers();
}

void frmSubtotal_Check1_Click(int slot)
{
    setMember(slot, !frmSubtotal.Check1[slot].checked);
    RecountTotals(sheet.CurrentSample);
}

void frmSubtotal_Command2_Click(int value)
{
    for (int slot = 1; slot <= taxonSlots; ++slot)
        setMember(slot, value == 1);
    RecountTotals(sheet.CurrentSample);
}

void frmSubtotal_Text1_Edited(int group, std::string_view text, int caret)
{
    TextBox& box = frmSubtotal.Text1[group];
    typeInto(box, text, caret);
    if (box.text == groupName(group)) // nothing was left of it by the character rule
        return;
    groupName(group) = box.text;
    showSubtotalNames();
    markUnsavedWork();
}

void frmSubtotal_Command1_Click()
{
    RecountTotals(sheet.CurrentSample);
    if (membersChanged())
        markUnsavedWork();
    closeAboveMain(frmSubtotal.visible);
    underlineBasis(); // an open diagram keeps its members until the next count or change of basis
}

void frmSubtotal_Command3_Click()
{
    for (int slot = 1; slot <= taxonSlots; ++slot)
        for (int group = 1; group <= 2; ++group)
            memberFlag(sheet.TaxonRecord[slot], group) = memberFlag(taxaBefore[slot], group);
    RecountTotals(sheet.CurrentSample);
    closeAboveMain(frmSubtotal.visible);
}

void showSubtotalNames()
{
    const std::string& all = frmMain.Label2[0].caption;
    frmMain.Label2[1].caption = groupName(1) + ":";
    frmMain.Label2[2].caption = groupName(2) + ":";
    frmMain.mnuPercentAll.caption = "% by " + all.substr(0, all.size() - 1);
    frmMain.mnuPercentSub1.caption = "% by " + groupName(1);
    frmMain.mnuPercentSub2.caption = "% by " + groupName(2);
}
