#include "trials/days/session.h"

#include "core/editing.h"
#include "core/endings.h"
#include "core/forms.h"
#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "extras/about.h"
#include "extras/diagnose.h"
#include "extras/pictures.h"
#include "files/new_sheet.h"
#include "files/next_sample.h"
#include "files/rename_info.h"
#include "sheet/find.h"
#include "sheet/subtotals.h"
#include "sheet/summary.h"
#include "tables/table_form.h"
#include "tables/taxa_form.h"

namespace {

/// The window that takes what the user does is this one.
std::function<bool()> on(const bool& visible)
{
    return [&visible] { return visible && (&visible == &frmParaName.visible || !frmParaName.visible); };
}

DayEvent button(const bool& form, const char* name, int weight, void (*handler)(),
                Effect effect = Effect::none, const Button* record = nullptr)
{
    return {name, weight, effect,
            [isOn = on(form), record] { return isOn() && (record == nullptr || record->visible); },
            [handler](Session& s) { s.event(handler); }};
}

/// Typing into a box of a form, with `store` for the text.
template <class Store>
void typeIntoForm(Session& s, Store store)
{
    constexpr int keys[] = {'A', 50, 51, 222, 9999};
    sheet.LastKeyDown = s.chance.oneOf(keys);
    const std::string text = s.anyText();
    s.event([&, caret = s.caretIn(text)] { store(text, caret); });
}

void describeSample(Session& s, SampleForm& form)
{
    const int box = s.chance.below(infoItems + 3);
    if (box == 0 || box > infoItems)
        typeIntoForm(s, [&](const std::string& text, int caret) {
            typeInto(box == 0 ? form.Text2 : form.Text1, text, caret);
        });
    else {
        s.event([&] { form.enterInfo(box); });
        typeIntoForm(s, [&](const std::string& text, int caret) { typeInto(form.Text3[box], text, caret); });
        s.event([&] { form.leaveInfo(box); });
    }
}

void search(Session& s)
{
    std::string text = s.chance.oneIn(3) ? s.anyText() : frmMain.Text1[s.anySlot()].text;
    text.resize(std::min<std::size_t>(text.size(), static_cast<std::size_t>(s.chance.between(1, 10))));
    s.event([&] {
        frmFind.Text1.text = text;
        frmFind_Text1_Change();
    });
}

/// What counts by way of Find has pressed a key.
DayEvent find(const char* name, int weight, void (*handler)(Session&))
{
    return {name, weight, Effect::counted, on(frmFind.visible), [handler](Session& s) {
                handler(s);
                s.pressOtherKey();
            }};
}

/// A window stands above the main one and takes all that the user does.
bool isBelowForm()
{
    return !isMainEnabled();
}

void closeWindow()
{
    bool cancel = false;
    Form_Unload(cancel);
}

} // namespace

std::vector<DayEvent> eventsOfForms()
{
    const bool& siteName = frmSiteName.visible;
    const bool& next = frmNext.visible;
    const bool& paraName = frmParaName.visible;
    const bool& subtotal = frmSubtotal.visible;
    return {
        {"timer below a form", 1, Effect::none, isBelowForm, [](Session& s) { s.runOutTimer(); }},
        {"keyboard lost below a form", 1, Effect::none, isBelowForm, [](Session& s) { s.loseKeyboard(); }},

        {"first sample described", 4, Effect::none, on(siteName),
         [](Session& s) { describeSample(s, frmSiteName); }},
        button(siteName, "first sample", 2, frmSiteName_Command1_Click, Effect::replaced),
        button(siteName, "no first sample", 1, frmSiteName_Command3_Click),

        {"next sample described", 4, Effect::none, [isOn = on(next)] { return isOn() && frmNext.entryBoxes; },
         [](Session& s) { describeSample(s, frmNext); }},
        {"next sample", 4, Effect::edited, [isOn = on(next)] { return isOn() && frmNext.entryBoxes; },
         [](Session& s) { s.event(frmNext_Command1_Click); }},
        button(next, "no next sample", 1, frmNext_Command3_Click),
        button(next, "another file", 1, frmNext_Command2_Click, Effect::replaced, &frmNext.Command2),
        button(next, "a new file", 4, frmNext_Command4_Click, Effect::none, &frmNext.Command4),
        {"info renamed for the next sample", 1, Effect::none,
         [isOn = on(next)] { return isOn() && frmNext.Command5[1].visible; },
         [](Session& s) {
             s.event([item = s.chance.between(1, infoItems)] { frmNext_Command5_Click(item); });
         }},

        {"info named", 3, Effect::none, on(paraName),
         [](Session& s) {
             typeIntoForm(
                 s, [](const std::string& text, int caret) { typeInto(frmParaName.Text1, text, caret); });
         }},
        button(paraName, "info name accepted", 2, frmParaName_Command1_Click),
        button(paraName, "info name dropped", 1, frmParaName_Command2_Click),

        {"group chosen", 2, Effect::none, on(subtotal),
         [](Session& s) { s.event([group = s.chance.between(1, 2)] { frmSubtotal_Option1_Click(group); }); }},
        {"taxon ticked", 8, Effect::none, on(subtotal),
         [](Session& s) { s.event([slot = s.anySlot()] { frmSubtotal_Check1_Click(slot); }); }},
        {"all taxa ticked", 1, Effect::none, on(subtotal),
         [](Session& s) { s.event([to = s.chance.below(2)] { frmSubtotal_Command2_Click(to); }); }},
        {"group named", 2, Effect::none, on(subtotal),
         [](Session& s) {
             typeIntoForm(s, [group = s.chance.between(1, 2)](const std::string& text, int caret) {
                 frmSubtotal_Text1_Edited(group, text, caret);
             });
         }},
        button(subtotal, "groups accepted", 2, frmSubtotal_Command1_Click),
        button(subtotal, "groups dropped", 1, frmSubtotal_Command3_Click),

        find("search", 6, search),
        find("line of the list", 3,
             [](Session& s) {
                 const int lines = static_cast<int>(frmFind.List1.items.size());
                 s.event([line = s.chance.between(-1, lines)] { frmFind_List1_Click(line); });
             }),
        find("line twice", 1, [](Session& s) { s.event(frmFind_List1_DblClick); }),
        find("Enter in Find", 2, [](Session& s) { s.event(frmFind_Enter); }),
        find("count of Find", 2,
             [](Session& s) {
                 if (frmFind.Command3.enabled)
                     s.event(frmFind_Command3_Click);
             }),
        button(frmFind.visible, "Find closed", 1, frmFind_Command2_Click),

        button(frmTable.visible, "table taken over", 3, frmTable_Command1_Click, Effect::replaced),
        button(frmTable.visible, "table dropped", 1, frmTable_Command2_Click),
        button(frmTable.visible, "table turned", 2, frmTable_Command3_Click),
        button(frmTable.visible, "rarest left out", 1, frmTable_Check1_Click),
        {"list typed", 4, Effect::none, on(frmTaxa.visible),
         [](Session& s) {
             typeIntoForm(s, [](const std::string& text, int caret) {
                 frmTaxa_Text1_Edited("taxon,group\r\n" + text + ",Trees\r\n" + text, caret);
             });
         }},
        button(frmTaxa.visible, "list taken over", 2, frmTaxa_Command1_Click),
        button(frmTaxa.visible, "list dropped", 1, frmTaxa_Command2_Click),
        button(frmTaxa.visible, "list opened", 1, frmTaxa_Command3_Click),

        {"key in Diagnose", 3, Effect::none, on(frmDiagnose.visible),
         [](Session& s) {
             constexpr int keys[] = {16, 17, 8, 'Q'};
             const int key = s.chance.oneOf(keys);
             s.event([&] { frmDiagnose_KeyDown(key); });
             if (s.chance.oneIn(2))
                 s.event([&] { frmDiagnose_KeyUp(key); });
         }},
        button(frmDiagnose.visible, "Diagnose closed", 1, frmDiagnose_Command2_Click),
        button(frmSummary.visible, "Summary closed", 1, frmSummary_Unload),
        button(frmPicture.visible, "picture closed", 1, closePicture),
        button(frmAboutApp.visible, "About closed", 1, frmAboutApp_Command1_Click),
        button(frmAboutDX1.visible, "About keypads closed", 1, frmAboutDX1_Command1_Click),
        {"computer shut down", 1, Effect::replaced,
         [] { return isBelowForm() && sheet.ActionCount % 50 == 0; },
         [](Session& s) { s.event(closeWindow); }},
    };
}
