#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Puts a text among the backups under a name of its own that tells date and time, never over another file.
/// `kind`: what it is, the beginning of the name. Its name, or nothing if it could not be written.
std::optional<std::string> keepAmongBackups(const std::string& kind, std::string_view text,
                                            const std::string& ending = ".csv");
/// The same for the sheet on show, as "Unsaved_work_": what the user has not saved and not given up either.
std::optional<std::string> keepUnsavedWork();
/// Ten at most: the oldest ones go.
void pruneUnsavedWork();
/// One that turned out to be given up.
void dropUnsavedWork(const std::string& name);
