#pragma once

#include <string>

/// A data sheet is about to be written over the file at `path`. What stands there goes to the backups first,
/// as "Before_" and its name, if it is no data sheet that can be read whole or, `always`, in any case: it may
/// hold counts that stand nowhere else. Up to 99 of one name are kept, each content once. False if they could
/// not be kept.
bool keepFormerBytes(const std::string& path, bool always);
