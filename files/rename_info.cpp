#include "files/rename_info.h"

#include "core/editing.h"
#include "core/forms.h"
#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "files/next_sample.h"

ParameterNameForm frmParaName;
static const Form form("frmParaName", frmParaName.visible, frmParaName_Command2_Click);

static void show(const char* caller, int item, std::string caption)
{
    if (!caption.empty() && caption.back() == ':')
        caption.pop_back();
    frmParaName.Slider1 = item;
    frmParaName.Label2.caption = frmParaName.Text1.text = caption;
    frmParaName.Label4.caption = caller;
    openAboveMain(frmParaName.visible);
}

void Command7_Click(int item)
{
    show("frmMain", item, frmMain.Label10[item].caption);
}

void frmNext_Command5_Click(int item)
{
    show("frmNext", item, frmNext.Label3[item].caption);
}

void frmParaName_Command1_Click()
{
    const int item = frmParaName.Slider1;
    const std::string caption = frmParaName.Text1.text + ":";
    if (frmParaName.Label4.caption == "frmMain") {
        sheet.AdditionalInfo(0, item) = frmMain.Label10[item].caption = caption;
        markUnsavedWork();
    } else {
        frmNext.Label3[item].caption = caption;
    }
    closeAboveMain(frmParaName.visible);
}

void frmParaName_Command2_Click()
{
    closeAboveMain(frmParaName.visible);
}
