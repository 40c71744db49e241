#include "files/backup.h"

#include "core/number_text.h"
#include "core/sheet_state.h"
#include "files/sheet_on_screen.h"
#include "files/sheet_text.h"
#include "platform/ports.h"

constexpr int masterCopy = 99;
constexpr int ringSize = 10;

bool AutoBackup()
{
    if (sheet.BackupSlot != masterCopy)
        sheet.BackupSlot = (sheet.BackupSlot + 1) % ringSize;
    storeShownSample();
    const std::string name = sheet.BackupSlot == masterCopy
                                 ? "Master_back_up.csv"
                                 : "Auto_back_up_(" + decimalText(sheet.BackupSlot) + ").csv";
    stampHead("Backed up (dd/mm/yyyy):", sheet.SheetPath, ports.clock->now());
    fillEmptyCells(sheet, shownCaptions());
    const bool written =
        ports.files->replace(ports.programFolder + "/References/Back up files/" + name, backupText(sheet));
    if (written && sheet.BackupSlot == masterCopy) // a master copy that failed is tried again
        sheet.BackupSlot = -1;
    return written;
}
