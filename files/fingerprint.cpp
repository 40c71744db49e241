#include "files/fingerprint.h"

#include "core/sheet_state.h"
#include "files/data_sheet_reader.h"
#include "platform/ports.h"

std::optional<Fingerprint> fingerprintOfFile(const std::string& path)
{
    const auto bytes = ports.files->read(path, sheetLimit);
    return bytes ? std::optional(fingerprintOf(*bytes)) : std::nullopt;
}

bool sheetFileHasChanged()
{
    const auto now = sheet.SheetPath.empty() ? std::nullopt : fingerprintOfFile(sheet.SheetPath);
    return now && now != sheet.KnownFile;
}
