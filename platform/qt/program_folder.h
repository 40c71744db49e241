#pragma once

#include <QString>

/// The folder that holds "References" and "Sound files": the one of the executable if they stand beside it
/// and can be written (a copy on a stick, a build), otherwise the user's own data folder, which is filled
/// with what is delivered. A delivered file that is missing there is put back; one that is there is never
/// touched. `executableFolder`: also where delivered files are looked for, else "share/tallystrata" beside
/// its "bin". A user without any folder of their own gets the delivered one, so that keys and sounds work.
QString programFolder(const QString& executableFolder, const QString& userFolder);
