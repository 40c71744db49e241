#include "trials/days/session.h"

#include "keys/first_run.h"
#include "keys/key_capture.h"
#include "keys/key_commit.h"
#include "keys/key_editor.h"
#include "keys/key_note.h"

namespace {

bool isEditorInFront()
{
    return frmKeyCode.visible && !frmNote.visible;
}

DayEvent inEditor(const char* name, int weight, std::function<void(Session&)> happen)
{
    return {name, weight, Effect::none, isEditorInFront, std::move(happen)};
}

/// A box is visited, a key is pressed in it or none, and the box is left.
template <class Box>
void capture(Session& s, const Box& box, int index)
{
    const int code = s.chance.between(1, 255);
    s.event([&] { box.gotFocus(index); });
    if (!s.chance.oneIn(4)) {
        s.event([&] { box.keyDown(index, code); });
        if (s.chance.oneIn(2))
            s.event([&] { box.keyPress(index, static_cast<char32_t>(s.chance.between(1, 300))); });
        s.event([&] { box.keyUp(index, code); });
    }
    s.event([&] { box.lostFocus(index); });
}

struct CapturedBox {
    void (*gotFocus)(int);
    void (*keyDown)(int, int);
    void (*keyPress)(int, char32_t);
    void (*keyUp)(int, int);
    void (*lostFocus)(int);
};

void typeNumber(Session& s)
{
    const int position = s.chance.between(1, keysPerLayer);
    s.event([&] { frmKeyCode_Text3_GotFocus(position); });
    frmKeyCode.Text3[position].text = s.anyText();
    s.event([&] { frmKeyCode_Text3_LostFocus(position); });
}

} // namespace

std::vector<DayEvent> eventsOfKeyWindows()
{
    static const CapturedBox definition{frmKeyCode_Text1_GotFocus, frmKeyCode_Text1_KeyDown,
                                        frmKeyCode_Text1_KeyPress, frmKeyCode_Text1_KeyUp,
                                        frmKeyCode_Text1_LostFocus};
    static const CapturedBox function{frmKeyCode_Text4_GotFocus, frmKeyCode_Text4_KeyDown,
                                      frmKeyCode_Text4_KeyPress, frmKeyCode_Text4_KeyUp,
                                      frmKeyCode_Text4_LostFocus};
    return {
        inEditor("page of the key editor", 2,
                 [](Session& s) { s.event([page = s.chance.below(3)] { frmKeyCode_SSTab1_Click(page); }); }),
        inEditor("hand", 1,
                 [](Session& s) { s.event([side = s.chance.below(2)] { frmKeyCode_Option1_Click(side); }); }),
        inEditor("all keys cleared", 1, [](Session& s) { s.event(frmKeyCode_Command2_Click); }),
        inEditor("default key numbers", 1,
                 [](Session& s) {
                     if (frmKeyCode.Command5.visible)
                         s.event(frmKeyCode_Command5_Click);
                 }),
        inEditor("key captured", 3,
                 [](Session& s) { capture(s, definition, s.chance.between(1, keysPerLayer)); }),
        inEditor("function key captured", 2, [](Session& s) { capture(s, function, s.chance.below(5)); }),
        inEditor("key number typed", 2, typeNumber),
        inEditor("keys accepted", 4, [](Session& s) { s.event(frmKeyCode_Command4_Click); }),
        inEditor("keys dropped", 1, [](Session& s) { s.event(frmKeyCode_Command1_Click); }),
        inEditor("note about keys", 1, [](Session& s) { s.event(frmKeyCode_Command3_Click); }),
        {"note about keys closed", 1, Effect::none, [] { return frmNote.visible; },
         [](Session& s) { s.event(frmNote_Command1_Click); }},

        {"reference key", 12, Effect::none, [] { return frmInitial.visible; },
         [](Session& s) {
             const int box =
                 frmInitial.focus < referenceKeys ? frmInitial.focus : s.chance.below(referenceKeys);
             if (!frmInitial.Text1[box].enabled)
                 return;
             s.event([&] { frmInitial_Text1_GotFocus(box); });
             s.event([&] { frmInitial_Text1_KeyDown(box, s.chance.between(1, 255)); });
         }},
        {"reference keys accepted", 2, Effect::none,
         [] { return frmInitial.visible && frmInitial.Command1.enabled; },
         [](Session& s) { s.event(frmInitial_Command1_Click); }},
        {"reference keys dropped", 1, Effect::none, [] { return frmInitial.visible; },
         [](Session& s) { s.event(closeInitial); }},
    };
}
