#include "core/editing.h"

#include "core/action_log.h"
#include "core/character_rule.h"
#include "core/cue.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/offers.h"
#include "core/recount_totals.h"
#include "core/sample_names.h"
#include "core/sheet_state.h"
#include "core/show_sample.h"
#include "core/taxon_name.h"
#include "core/text_changes.h"
#include "platform/ports.h"

#include <algorithm>

static void keepToCharacterRule(TextBox& box)
{
    if (const auto refused = refusedCharacter(box.text, box.caret, sheet.LastKeyDown)) {
        beep();
        ports.dialogs->ask("Using double quotation mark causes fatal error. Please choose another symbol.",
                           refused->title, Buttons::ok, Icon::exclamation);
        box.text = refused->text;
        box.caret = refused->caret;
    }
    // A mark that came by another way than its key, such as a paste, would cut the text off in the file.
    if (box.text.find('"') != std::string::npos) {
        std::replace(box.text.begin(), box.text.end(), '"', '\'');
        frmMain.notice = "Data files cannot hold double quotation marks: apostrophes stand for them.";
    }
}

void typeInto(TextBox& box, std::string_view text, int caret)
{
    box.text = text;
    box.caret = caret;
    keepToCharacterRule(box);
}

void tellOfName(std::string_view name)
{
    std::string number(name);
    std::replace(number.begin(), number.end(), ',', '.');
    if (number != name && isDepth(number))
        frmMain.notice = "'" + std::string(name) +
                         "' is no number, so the diagram has no depth scale: write " + number + ".";
}

bool hasUnsavedWork()
{
    return sheet.Modifying ? sheet.UnsavedEdits : frmMain.Command5[0].enabled;
}

void touchSheet()
{
    frmMain.readingNotice.clear();
}

void markEdited()
{
    touchSheet();
    sheet.UnsavedEdits = true;
}

void markUnsavedWork()
{
    touchSheet();
    sheet.SheetPristine = false;
    if (sheet.Modifying)
        sheet.UnsavedEdits = true;
    else
        offerSave(true);
}

void Text1_Edited(int slot, std::string_view text, int caret)
{
    const std::string before = frmMain.Text1[slot].text;
    typeInto(frmMain.Text1[slot], text, caret);
    if (frmMain.Text1[slot].text == before)
        return;
    markEdited();
    if (slot == 0)
        tellOfName(frmMain.Text1[0].text);
    Text1_Change(slot);
}

void Text2_Edited(int slot, std::string_view text, int caret)
{
    TextBox& box = frmMain.Text2[slot];
    const std::string before = box.text;
    box.text = text;
    box.caret = caret;
    Text2_Change(slot);
    if (box.text != before)
        markEdited();
    box.caret = std::min(caret, static_cast<int>(box.text.size())); // a refused number has gone
}

void Text4_Edited(std::string_view text, int caret)
{
    const std::string before = frmMain.Text4.text;
    typeInto(frmMain.Text4, text, caret);
    if (frmMain.Text4.text == before)
        return;
    sheet.SampleNote(sheet.CurrentSample, 0) = frmMain.Text4.text;
    markEdited();
    sheet.SheetPristine = false;
}

static void storeText5(int item)
{
    sheet.AdditionalInfo(sheet.CurrentSample, item) = frmMain.Label8.caption = frmMain.Text5[item].text;
}

void Text5_Edited(int item, std::string_view text, int caret)
{
    const std::string before = frmMain.Text5[item].text;
    typeInto(frmMain.Text5[item], text, caret);
    if (frmMain.Text5[item].text == before)
        return;
    storeText5(item);
    markEdited();
    sheet.SheetPristine = false;
    frmMain.mnuNew.enabled = true;
}

static bool visit(EditedBox box, int index, const TextBox& record)
{
    leaveEditedBox();
    if (!sheet.Modifying)
        return false;
    sheet.Edited = box;
    sheet.EditedIndex = index;
    sheet.EditOld = record.text;
    sheet.LastKeyDown = noKeyYet;
    return true;
}

void Text1_GotFocus(int slot)
{
    visit(EditedBox::Text1, slot, frmMain.Text1[slot]);
}

void Text2_GotFocus(int slot)
{
    if (visit(EditedBox::Text2, slot, frmMain.Text2[slot]))
        sheet.PreviousCount = static_cast<float>(wholeNumber(frmMain.Text2[slot].text));
}

void Text4_GotFocus()
{
    if (visit(EditedBox::Text4, 0, frmMain.Text4))
        frmMain.Text4.caret = static_cast<int>(frmMain.Text4.text.size());
}

void Text5_GotFocus(int item)
{
    TextBox& box = frmMain.Text5[item];
    if (visit(EditedBox::Text5, item, box) && box.text == noText)
        box.text.clear(); // an offer to type, no edit: nothing is stored
}

static bool anotherSampleIsNamed(std::string_view name)
{
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        if (sample != sheet.CurrentSample && sheet.SampleField(sample, 2) == name)
            return true;
    return false;
}

void renameShownSample(std::string_view name, int caret)
{
    TextBox typed;
    typeInto(typed, name, caret);
    if (anotherSampleIsNamed(typed.text)) {
        frmMain.Combo2.text = frmMain.Text1[0].text;
        return;
    }
    markEdited();
    tellOfName(typed.text);
    setText1(0, typed.text);
    frmMain.Combo2.text = typed.text;
    listSampleNames();
}

static void leaveText1(int slot)
{
    const std::string& text = frmMain.Text1[slot].text;
    if (text == sheet.EditOld)
        return;
    if (slot == 0 && anotherSampleIsNamed(text)) {
        ports.dialogs->ask("The sample name is already used. Choose another name.", "Error!", Buttons::ok,
                           Icon::exclamation);
        setText1(0, sheet.EditOld);
        listSampleNames(); // a move of a sample may have listed it meanwhile
        return;
    }
    if (slot == 0)
        listSampleNames();
    logAction(frmMain.Label1[slot].caption + ": Taxa name [" + text + "]");
    RecountTotals(sheet.CurrentSample);
}

static void leaveText2(int slot)
{
    const std::string& text = frmMain.Text2[slot].text;
    if (text == sheet.EditOld)
        return;
    sheet.SheetPristine = false;
    frmMain.mnuNew.enabled = true;
    RecountTotals(sheet.CurrentSample);
    logAction(frmMain.Label1[slot].caption + " (" + frmMain.Text1[slot].text + "): Replace " + sheet.EditOld +
              " by " + text);
}

static void leaveText5(int item)
{
    if (!frmMain.Text5[item].text.empty())
        return;
    frmMain.Text5[item].text = noText;
    storeText5(item);
}

void leaveEditedBox()
{
    const EditedBox box = sheet.Edited;
    sheet.Edited = EditedBox::none;
    if (box == EditedBox::Text1)
        leaveText1(sheet.EditedIndex);
    else if (box == EditedBox::Text2)
        leaveText2(sheet.EditedIndex);
    else if (box == EditedBox::Text5)
        leaveText5(sheet.EditedIndex);
}

VisitInterrupted::VisitInterrupted() : box_(sheet.Edited), index_(sheet.EditedIndex)
{
    leaveEditedBox();
}

VisitInterrupted::~VisitInterrupted()
{
    switch (box_) {
    case EditedBox::none:
        break;
    case EditedBox::Text1:
        Text1_GotFocus(index_);
        break;
    case EditedBox::Text2:
        Text2_GotFocus(index_);
        break;
    case EditedBox::Text4:
        Text4_GotFocus();
        break;
    case EditedBox::Text5:
        Text5_GotFocus(index_);
        break;
    }
}
