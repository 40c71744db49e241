#include "tables/table_exports.h"

#include "core/cue.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_name.h"
#include "core/sheet_state.h"
#include "files/sheet_on_screen.h"
#include "platform/code_page.h"
#include "platform/ports.h"
#include "tables/export_tables.h"
#include "tables/table_words.h"

#include <vector>

namespace {

/// In UTF-8.
std::string sheetTitle()
{
    return baseName(sheet.SheetPath).value_or("Untitled");
}

std::string tidyTableOfSheet(const SheetTables& state)
{
    return tidyTable(state, sheetTitle());
}

struct Export {
    const char* ending;
    const char* dialogTitle;
    std::string (*text)(const SheetTables&);
};

constexpr Export counts = {"_counts.csv", "Export table of counts", countsTable};
constexpr Export tidy = {"_tidy.csv", "Export tidy table", tidyTableOfSheet};
constexpr Export taxa = {"_taxa.csv", "Export table of taxa", taxaTable};

std::string fileName(const std::string& path)
{
    return toCodePageFromUtf8(fileNameOf(path));
}

std::string besideTheSheet(const Export& table)
{
    const std::string& path = sheet.SheetPath;
    return path.substr(0, path.size() - fileNameOf(path).size()) + sheetTitle() + table.ending;
}

void tellFault(const std::string& text)
{
    ports.dialogs->ask(text, "Error", Buttons::ok, Icon::exclamation);
}

/// Some systems tell no capital from a small letter in the names of files.
bool isSheetsOwn(const std::string& path)
{
    return smallLetters(path) == smallLetters(sheet.SheetPath);
}

bool write(const Export& table, const std::string& path)
{
    if (isSheetsOwn(path)) {
        tellFault("'" + fileName(path) + "' is the sheet's own file. Choose another name.");
        return false;
    }
    if (!ports.files->write(path, table.text(sheet))) {
        tellFault("'" + fileName(path) + "' could not be written.");
        return false;
    }
    return true;
}

void tellWritten(const std::string& what)
{
    playCue(Cue::SoundSave);
    frmMain.notice = what + " written. The sheet itself is not saved by that.";
}

void exportOne(const Export& table)
{
    storeShownSample();
    const auto path = ports.dialogs->chooseFileToSave(table.dialogTitle, besideTheSheet(table));
    if (path && write(table, *path))
        tellWritten("'" + fileName(*path) + "'");
}

bool mayWriteOver(const std::vector<std::string>& paths)
{
    std::string names;
    for (const std::string& path : paths)
        if (ports.files->read(path, std::string().max_size()))
            names += (names.empty() ? "'" : ", '") + fileName(path) + "'";
    return names.empty() || ports.dialogs->ask("Already there: " + names + ". Do you want to write over?",
                                               "Caution!", Buttons::yesNo, Icon::question) == Answer::yes;
}

} // namespace

void mnuExportCounts_Click()
{
    exportOne(counts);
}

void mnuExportTidy_Click()
{
    exportOne(tidy);
}

void mnuExportTaxa_Click()
{
    exportOne(taxa);
}

void mnuExportAll_Click()
{
    storeShownSample();
    const auto folder = ports.dialogs->chooseFolder("Export all three tables into a folder");
    if (!folder)
        return;
    const std::string base = *folder + "/" + sheetTitle();
    if (!mayWriteOver({base + counts.ending, base + tidy.ending, base + taxa.ending}))
        return;
    for (const Export& table : {counts, tidy, taxa})
        if (!write(table, base + table.ending))
            return;
    tellWritten("Three tables");
}
