#include "core/forms.h"

#include "core/main_screen.h"
#include "core/sheet_state.h"

#include <algorithm>
#include <array>
#include <cassert>

namespace {

/// These go first when the program ends, in this order; nothing asks for when the others go.
constexpr std::array<std::string_view, 11> goFirst = {
    "frmAboutDX1", "frmAboutApp", "frmDiagram",  "frmInitial",  "frmKeyCode", "frmNext",
    "frmNote",     "frmParaName", "frmSiteName", "frmSubtotal", "frmPicture"};

std::vector<const Form*>& list()
{
    static std::vector<const Form*> all; // there before the first form, whichever that is
    return all;
}

bool isEarlier(const Form* one, const Form* other)
{
    const auto rank = [](const Form* form) { return std::find(goFirst.begin(), goFirst.end(), form->name); };
    return rank(one) < rank(other);
}

} // namespace

Form::Form(const char* formName, bool& isVisible, void (*closeForm)(), Stands place)
    : name(formName), visible(isVisible), close(closeForm), stands(place)
{
    list().insert(std::upper_bound(list().begin(), list().end(), this, isEarlier), this);
}

const std::vector<const Form*>& forms()
{
    return list();
}

const Form& formNamed(std::string_view name)
{
    const auto found =
        std::find_if(list().begin(), list().end(), [&](const Form* form) { return form->name == name; });
    assert(found != list().end());
    return **found;
}

bool isMainEnabled()
{
    return std::none_of(list().begin(), list().end(), [](const Form* form) {
        return form->stands == Form::Stands::aboveMain && form->visible;
    });
}

void openAboveMain(bool& visible)
{
    visible = true;
}

void closeAboveMain(bool& visible)
{
    visible = false;
    if (sheet.Unloading || !isMainEnabled())
        return;
    frmMain.visible = true;
    if (!sheet.Modifying)
        frmMain.focus = MainFocus::Text99;
}

void takeDownForms()
{
    for (const Form* const form : list())
        if (form->stands == Form::Stands::beside)
            form->close();
        else
            form->visible = false;
}
