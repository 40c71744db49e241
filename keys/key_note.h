#pragma once

#include <array>

/// "Message from TallyStrata": what layer keys may run into, beside the key editor.
struct KeyNoteForm {
    bool visible = false;
};
extern KeyNoteForm frmNote;

/// Its four paragraphs; the line ends are part of the text.
extern const std::array<const char*, 4> keyNoteParagraphs;

/// "Notice" of frmKeyCode.
void frmKeyCode_Command3_Click();
/// "OK".
void frmNote_Command1_Click();
