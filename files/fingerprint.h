#pragma once

#include "core/fingerprint.h"

#include <optional>
#include <string>

/// What the sheet's file held when this program last read or wrote it stands in `sheet.KnownFile`. Whoever
/// reads or writes the file at `sheet.SheetPath` sets it.

/// Of a file as it is on disk now; nothing if it is missing or cannot be read. `path`: UTF-8.
std::optional<Fingerprint> fingerprintOfFile(const std::string& path);

/// Whether the file of the sheet on show is there and holds something else than what was last read or
/// written: another program has been at it. False for a sheet without a file.
bool sheetFileHasChanged();
