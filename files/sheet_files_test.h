#pragma once

#include "core/fields.h"
#include "core/program_test.h"
#include "files/backup.h"
#include "files/open_sheet.h"
#include "files/save_sheet.h"

inline const std::string busy =
    "The file is being used by another software. Please close the file and try again.";
inline const std::string folder = "/program/References/Back up files/";

class SheetFiles : public ProgramTest {
protected:
    SheetFiles()
    {
        hooks.SaveSheet = SaveSheet;
        hooks.AutoBackup = AutoBackup;
        sheet.BackupSlot = -1;
    }
    void saveAs(const std::string& path)
    {
        dialogs.paths.push_back(path);
        mnuSaveAs_Click();
    }
    void open(const std::string& path)
    {
        dialogs.paths.push_back(path);
        mnuOpen_Click();
    }
    /// A sheet of two samples on disk, the second on show.
    void makeSheet()
    {
        addSamples(2);
        sheet.CurrentSample = 2;
        frmMain.Combo2.text = frmMain.Text1[0].text = "20";
        tap('Q', 3);
        saveAs("/home/Lake1.csv");
    }
    static std::string lastAction() { return frmMain.Combo1.text; }
    std::string field(const std::string& path, int line, std::size_t number)
    {
        FieldReader fields(files.contents.at(path));
        std::string found;
        for (int at = 1; at <= line; ++at) {
            for (std::size_t i = 1;; ++i) {
                found = fields.next().value();
                if (at == line && i == number)
                    return found;
                if (fields.atLineEnd())
                    break;
            }
        }
        return found;
    }
};
