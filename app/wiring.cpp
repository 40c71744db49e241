#include "app/wiring.h"

#include "core/hooks.h"
#include "files/backup.h"
#include "files/save_sheet.h"
#include "keys/key_settings.h"
#include "sheet/cell_grid.h"

void connectRooms()
{
    hooks.ReadKeySettings = ReadKeySettings;
    hooks.ArrangeTaxonCells = ArrangeTaxonCells;
    hooks.SaveSheet = SaveSheet;
    hooks.AutoBackup = AutoBackup;
}
