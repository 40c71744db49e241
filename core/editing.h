#pragma once

#include "core/box_visit.h"

#include "platform/controls.h"

#include <string_view>

/// What the user types into the boxes of the sheet in Modify template mode. A box is visited from when it
/// gets the focus until it is left; each edit is stored at once, and a visit that changed a name or a count
/// gives one line of the log when it ends. `caret`: characters before the caret, 0 to the length of `text`.

/// What the user typed into a box that is to be stored. The character rule takes its character out again,
/// with a message, and a double quotation mark that came another way becomes an apostrophe. `caret`:
/// characters before the caret, 0 to the length of `text`.
void typeInto(TextBox& box, std::string_view text, int caret);

/// Says at the foot that a depth written with a comma is taken as it is, and is no number.
void tellOfName(std::string_view name);

/// The sheet is counted in or edited: what was said of its file is no news.
void touchSheet();
/// The same of an edit that leaves the sheet pristine, which opening another one asks about.
void markEdited();
/// Work to save. In Modify template mode Save is disabled and comes back with the end of the mode.
bool hasUnsavedWork();
void markUnsavedWork();

void Text1_Edited(int slot, std::string_view text, int caret); ///< slot 0: the name of the sample
void Text2_Edited(int slot, std::string_view text, int caret);
void Text4_Edited(std::string_view text, int caret);
void Text5_Edited(int item, std::string_view text, int caret);

/// Names the sample on show from the list of samples. A name that another sample has is refused silently.
void renameShownSample(std::string_view name, int caret);

/// A visit begins; one that still lasts ends first. Outside the mode there are no visits.
void Text1_GotFocus(int slot);
void Text2_GotFocus(int slot);
void Text4_GotFocus();
void Text5_GotFocus(int item);

/// The visit ends, if there is one. What takes the sheet away from the boxes (the end of the mode, the end of
/// the program, another sample) calls this first, since the focus may still stay where it is.
/// A sample's name that another sample has is refused here, and the old one comes back.
void leaveEditedBox();

/// Ends the visit for a change that is no edit of the box, and begins it anew afterwards.
class VisitInterrupted {
public:
    VisitInterrupted();
    ~VisitInterrupted();
    VisitInterrupted(const VisitInterrupted&) = delete;
    VisitInterrupted& operator=(const VisitInterrupted&) = delete;

private:
    EditedBox box_;
    int index_;
};
