#pragma once

#include <string>

/// In the older layouts of the data sheet a note also held the date stamps, in this shape:
/// "Created: " date " (" time ")" CR LF "Note:" text CR LF "Last saved:" date.
class NoteMigration {
public:
    /// Cleans the note of one sample. A "Created" stamp goes to `created`. A "Last saved" stamp goes to
    /// `lastSaved` for the first note of the file that has one only: samples after it keep none, on purpose,
    /// since only the sample on show was stamped when such a file was saved.
    void clean(std::string& note, std::string& created, std::string& lastSaved);

private:
    void cutLastSaved(std::string& note, std::string& lastSaved);

    bool lastSavedFound_ = false;
};
