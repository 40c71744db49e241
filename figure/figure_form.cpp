#include "figure/figure_form.h"

#include "core/forms.h"
#include "core/hooks.h"
#include "core/messages.h"
#include "core/number_text.h"
#include "core/sheet_name.h"
#include "core/sheet_state.h"
#include "figure/caption.h"
#include "figure/settings_file.h"
#include "platform/ports.h"

#include <algorithm>
#include <map>

FigureForm frmFigure;
static const Form form("frmFigure", frmFigure.visible, closeFigure, Form::Stands::beside);

namespace {

constexpr int pause = 300; // milliseconds after a key until the figure follows
constexpr std::size_t settingsLimit = 1 << 20;

/// Settings of sheets that were closed without keeping them, by path.
std::map<std::string, FigureSettings> unkeptSettings;

std::string settingsPath(const std::string& sheetPath)
{
    return fileBeside(sheetPath, ".figure.json");
}

double letterWidth(std::string_view text, bool italic)
{
    return ports.pictures->letterWidth(text, italic);
}

FigureData dataOfSheet()
{
    FigureData data = figureData(sheet, sheet.SheetPath);
    for (FigureSample& sample : data.samples)
        sample.concentration = hooks.ConcentrationOf(sample.column);
    return data;
}

void replan()
{
    FigureForm& f = frmFigure;
    f.plan = planFigure(f.data, f.settings, letterWidth);
    f.fit = f.plan.faults.empty() ? "" : whatWouldFit(f.data, f.settings, letterWidth);
    ++f.planRevision;
}

std::string tellFirstSettings(const FigureSettings& first)
{
    const FigureSettings usual;
    const auto size = [](const FigureSettings& settings) {
        return plainDecimal(settings.width) + " x " + plainDecimal(settings.height) + " mm";
    };
    return "The taxa do not fit a page of " + size(usual) + ": this one is " + size(first) +
           (first.threshold > usual.threshold
                ? ", with a threshold of " + plainDecimal(first.threshold) + " %."
                : ".");
}

/// Reads settings; false if there are none.
bool readSettings(const std::string& path)
{
    FigureForm& f = frmFigure;
    const auto bytes = path.empty() ? std::nullopt : ports.files->read(path, settingsLimit);
    if (!bytes)
        return false;
    const auto json = ports.json->read(*bytes);
    ReadSettings read = json ? settingsFromJson(*json) : ReadSettings{{}, {}, true};
    if (read.foreign) {
        f.notice = path + " holds no settings of a figure and is ignored.";
        return false;
    }
    f.settings = read.settings;
    f.kept = *json;
    f.notice.clear();
    for (const std::string& finding : read.findings)
        f.notice += (f.notice.empty() ? "" : " ") + finding;
    return true;
}

void readOwnSettings()
{
    FigureForm& f = frmFigure;
    f.settings = {};
    f.kept = {};
    f.notice.clear();
    const bool kept = readSettings(settingsPath(sheet.SheetPath));
    f.unkept = false;
    if (const auto remembered = unkeptSettings.find(sheet.SheetPath); remembered != unkeptSettings.end()) {
        f.settings = remembered->second;
        f.unkept = true;
    } else if (!kept) {
        f.settings = firstSettings(f.data, letterWidth);
        if (f.settings != FigureSettings())
            f.notice += (f.notice.empty() ? "" : " ") + tellFirstSettings(f.settings);
    }
    f.settingsBelong = true;
}

bool keepSettings()
{
    FigureForm& f = frmFigure;
    const std::string path = settingsPath(sheet.SheetPath);
    if (path.empty())
        return false;
    // A file that could not be read as settings belongs to someone else.
    if (const auto bytes = ports.files->read(path, settingsLimit)) {
        const auto json = ports.json->read(*bytes);
        if ((!json || settingsFromJson(*json).foreign) &&
            ports.dialogs->ask(path + " holds no settings of a figure. Write over it?", "Caution!",
                               Buttons::yesNo, Icon::question) != Answer::yes)
            return false;
    }
    Json json = settingsToJson(f.settings, f.kept);
    if (!ports.files->write(path, ports.json->write(json))) {
        tellFileInUse();
        return false;
    }
    f.kept = std::move(json);
    f.unkept = false;
    unkeptSettings.erase(sheet.SheetPath);
    return true;
}

/// Says why a figure with faults does not leave the program.
bool refused()
{
    FigureForm& f = frmFigure;
    if (f.plan.faults.empty())
        return false;
    std::string text;
    for (const std::string& fault : f.plan.faults)
        text += fault + "\n";
    ports.dialogs->ask(text + f.fit, "Error", Buttons::ok, Icon::exclamation);
    return true;
}

/// The figure of the counts as they are now, whether the hand has paused or not.
void bringUpToDate()
{
    if (ports.figureTimer != nullptr)
        ports.figureTimer->stop();
    FigureTimer_Timer();
}

void saveTable(const std::string& table)
{
    const auto path = ports.dialogs->chooseFileToSave("Save table", "");
    if (path && !ports.files->write(*path, table))
        tellFileInUse();
}

} // namespace

void mnuFigure_Click()
{
    FigureForm& f = frmFigure;
    f.data = dataOfSheet();
    if (!f.settingsBelong)
        readOwnSettings();
    f.visible = true;
    ++f.forwardRevision;
    replan();
}

void closeFigure()
{
    frmFigure.visible = false;
    frmFigure.clustersVisible = false;
}

void figureSheetGoes()
{
    FigureForm& f = frmFigure;
    if (f.settingsBelong && f.unkept)
        unkeptSettings[sheet.SheetPath] = f.settings;
    f.settingsBelong = false;
    closeFigure();
}

void changeFigure(const FigureSettings& settings)
{
    FigureForm& f = frmFigure;
    if (settings == f.settings)
        return;
    f.settings = settings;
    f.unkept = true;
    f.notice.clear();
    replan();
}

void figureMayHaveChanged()
{
    if (frmFigure.visible)
        ports.figureTimer->start(pause);
}

void FigureTimer_Timer()
{
    FigureForm& f = frmFigure;
    if (!f.visible)
        return;
    FigureData data = dataOfSheet();
    if (data == f.data)
        return;
    f.data = std::move(data);
    replan();
}

void mnuFigureSave_Click()
{
    bringUpToDate();
    if (refused())
        return;
    const std::string name =
        sheet.SheetPath.empty() ? "figure.pdf" : fileBeside(sheet.SheetPath, "_figure.pdf");
    const auto path = ports.dialogs->chooseFigureToSave(name);
    if (!path)
        return;
    const auto format = pictureFormatOf(*path);
    if (!format) {
        ports.dialogs->ask("Please end the file name with .svg, .pdf, .png or .tif.", "Error", Buttons::ok,
                           Icon::exclamation);
        return;
    }
    FigureForm& f = frmFigure;
    if (!ports.files->write(*path, ports.pictures->encode(f.plan.page, *format, f.settings.dotsPerInch))) {
        tellFileInUse();
        return;
    }
    f.notice = "Saved as " + *path + ".";
    if (!sheet.SheetPath.empty() && keepSettings())
        f.notice += " Its settings are kept beside the sheet.";
}

void mnuFigureCopy_Click()
{
    bringUpToDate();
    if (refused())
        return;
    ports.pictures->copy(frmFigure.plan.page);
    frmFigure.notice = "The figure is on the clipboard, as PNG, SVG and PDF.";
}

void mnuFigureCaption_Click()
{
    bringUpToDate();
    ports.pictures->copyText(figureCaption(frmFigure.plan, frmFigure.settings));
    frmFigure.notice = "The caption is on the clipboard.";
}

void mnuFigureKeep_Click()
{
    if (sheet.SheetPath.empty()) {
        ports.dialogs->ask("Please save the sheet first: the settings are kept beside it.", "Error",
                           Buttons::ok, Icon::exclamation);
        return;
    }
    if (keepSettings())
        frmFigure.notice = "Settings kept in " + settingsPath(sheet.SheetPath) + ".";
}

void mnuFigureOther_Click()
{
    const auto path = ports.dialogs->chooseFileToOpen();
    if (!path)
        return;
    FigureForm& f = frmFigure;
    Json own = f.kept;
    f.notice.clear(); // what is said then is about the other sheet
    if (readSettings(settingsPath(*path))) {
        f.kept = std::move(own); // what else this sheet's file holds stays its own
        f.unkept = true;
        replan();
        f.notice = "Settings of " + *path + ". " + f.notice;
    } else if (f.notice.empty()) {
        f.notice = "There are no settings of a figure beside " + *path + ".";
    }
}

void mnuFigureClusters_Click()
{
    frmFigure.clustersVisible = true;
}

void closeClusters()
{
    frmFigure.clustersVisible = false;
}

void saveMerges()
{
    saveTable(mergesTable(frmFigure.plan.clusters));
}

void saveSticks()
{
    saveTable(sticksTable(frmFigure.plan.clusters));
}

std::vector<DatedDepth> agesIn(std::string_view text)
{
    std::vector<DatedDepth> ages;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        std::string copy(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (copy.find_first_of(";\t") != std::string::npos) // then a comma is decimal
            std::replace(copy.begin(), copy.end(), ',', '.');
        std::string_view line = copy;
        std::vector<double> numbers;
        constexpr std::string_view between = " \t,;\"";
        while (!line.empty()) {
            const std::size_t begin = std::min(line.find_first_not_of(between), line.size());
            line.remove_prefix(begin);
            const std::string_view field = line.substr(0, std::min(line.find_first_of(between), line.size()));
            line.remove_prefix(field.size());
            if (!field.empty() && field.find_first_not_of("+-.0123456789") == std::string_view::npos)
                numbers.push_back(leadingNumber(field));
        }
        if (numbers.size() >= 2)
            ages.push_back({numbers[0], numbers[1]});
    }
    return ages;
}

void readAges()
{
    const auto path = ports.dialogs->chooseFileToOpen();
    if (!path)
        return;
    const auto bytes = ports.files->read(*path, settingsLimit);
    const std::vector<DatedDepth> ages = bytes ? agesIn(*bytes) : std::vector<DatedDepth>();
    if (ages.size() < 2) {
        ports.dialogs->ask("No depths with ages were found in this file: two numbers a line are needed.",
                           "Error", Buttons::ok, Icon::exclamation);
        return;
    }
    FigureSettings settings = frmFigure.settings;
    settings.ages = ages;
    changeFigure(settings);
}
