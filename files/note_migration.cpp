#include "files/note_migration.h"

#include "core/taxon_name.h"
#include <string_view>

namespace {

constexpr std::string_view lineEnd = "\r\n";

std::string trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos
               ? ""
               : std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

/// Position of the first `mark` behind whose beginning the text ends within `reach` characters.
std::size_t findNearEnd(std::string_view text, std::string_view mark, std::size_t reach)
{
    for (std::size_t at = text.find(mark); at != std::string_view::npos; at = text.find(mark, at + 1))
        if (text.size() <= at + reach)
            return at;
    return std::string_view::npos;
}

void takeCreated(std::string& note, std::string& created)
{
    constexpr std::string_view mark = "Created: ";
    if (!std::string_view(note).starts_with(mark))
        return;
    for (std::size_t length = 19; length <= 23; ++length) { // dates of 8 to 12 characters
        if (note.size() < mark.size() + length || note[8 + length] != ')' || note[5 + length] != ':')
            continue;
        created = trimmed(std::string_view(note).substr(mark.size(), length));
        note.erase(0, mark.size() + length + lineEnd.size());
        return;
    }
}

} // namespace

void NoteMigration::cutLastSaved(std::string& note, std::string& lastSaved)
{
    constexpr std::string_view mark = "Last saved:";
    for (bool found = true; found;) {
        found = false;
        if (const std::size_t at = findNearEnd(note, mark, 33); at != std::string::npos) {
            found = true;
            if (!lastSavedFound_ && note.size() >= at + 12)
                lastSaved = trimmed(std::string_view(note).substr(at + 12));
            lastSavedFound_ = true;
            note = trimmed(std::string_view(note).substr(0, at));
        }
        if (const std::size_t at = findNearEnd(note, lineEnd, 3); at != std::string::npos) {
            found = true;
            note = trimmed(std::string_view(note).substr(0, at));
        }
    }
}

/// Every line end as CR LF, as it was before a spreadsheet had the file.
static std::string withWholeLineEnds(std::string_view text)
{
    std::string whole;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' && text[i] != '\n') {
            whole += text[i];
            continue;
        }
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
            ++i;
        whole += lineEnd;
    }
    return whole;
}

void NoteMigration::clean(std::string& note, std::string& created, std::string& lastSaved)
{
    note = withWholeLineEnds(note);
    cutLastSaved(note, lastSaved);
    takeCreated(note, created);
    if (std::string_view(note).starts_with("Note:"))
        note.erase(0, 5);
    while (!note.empty() && (note.front() == ' ' || std::string_view(note).starts_with(lineEnd)))
        note.erase(0, note.front() == ' ' ? 1 : 2);
    note = trimmed(note);
    while (std::string_view(note).ends_with(lineEnd))
        note = trimmed(std::string_view(note).substr(0, note.size() - 2));
    if (note.empty())
        note = noText;
}
