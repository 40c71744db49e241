#include "extras/manual.h"

#include "core/forms.h"

#include <utility>

ManualForm frmManual;
static const Form form("frmManual", frmManual.visible, closeManual, Form::Stands::beside);

void mnuManual_Click()
{
    frmManual.visible = true;
    ++frmManual.forwardRevision;
}

std::string pageOf(std::string_view window)
{
    constexpr std::pair<std::string_view, const char*> pages[] = {
        {"frmMain", "windows/main-window"},     {"frmDiagram", "../diagram"},
        {"frmFigure", "windows/figure"},        {"frmStatistics", "windows/statistics"},
        {"frmTarget", "is-it-enough"},          {"frmFind", "windows/find"},
        {"frmSummary", "windows/summary"},      {"frmSubtotal", "windows/subtotal-settings"},
        {"frmSiteName", "windows/next-sample"}, {"frmNext", "windows/next-sample"},
        {"frmParaName", "windows/rename"},      {"frmTable", "windows/new-from-table"},
        {"frmTaxa", "windows/taxa-from-list"},  {"frmKeyCode", "windows/key-settings"},
        {"frmNote", "windows/key-settings"},    {"frmInitial", "windows/initialise"},
        {"frmDiagnose", "windows/diagnose"},    {"frmPicture", "windows/are-you-tired"},
        {"frmAboutApp", "windows/about"},       {"frmAboutDX1", "windows/about"},
        {"frmManual", "windows/manual"}};
    for (const auto& [name, page] : pages)
        if (name == window)
            return std::string("manual/") + page + ".md";
    return "manual/index.md";
}

void openPageOf(std::string_view window)
{
    frmManual.page = pageOf(window);
    mnuManual_Click();
}

void closeManual()
{
    frmManual.visible = false;
}
