#include "keys/key_note.h"

#include "core/forms.h"

KeyNoteForm frmNote;
static const Form form("frmNote", frmNote.visible, frmNote_Command1_Click);

const std::array<const char*, 4> keyNoteParagraphs = {
    "TallyStrata accepts assignments of any keys for Shift-1 and \r\nShift-2. However, combinations of more "
    "than two functional keys\r\nare sometimes refused by (or may have special meaning for)\r\nWindows.  "
    "\r\n",
    "This may potentially prevents TallyStrata from counting or \r\nreverse counting of taxa No. 91 to 135 "
    "(i.e. [Shift-1] + [Shift-2] + \r\n[Counter key], or [Shift-1] + [Shift-2] + [Undo] + [Counter key]). "
    "\r\n",
    "This problem is most likely to be avoided by assigning non-\r\nfunctional keys to Shift-1 and Shift-2. "
    "However, it cannot be \r\ngeneralised because what may happen is specific to your \r\nhardware and also "
    "to the versions of your Windows. \r\n",
    "For safety, TallyStrata strongly recommends you to check the \r\nfunctions of counting and reverse "
    "counting for all taxa, before \r\nuse and every time after changing key settings. \r\n"};

void frmKeyCode_Command3_Click()
{
    openAboveMain(frmNote.visible);
}

void frmNote_Command1_Click()
{
    closeAboveMain(frmNote.visible);
}
