#include "window/text_area.h"

#include "window/bindings.h"

#include <QMimeData>
#include <algorithm>

void TextArea::insertFromMimeData(const QMimeData* source)
{
    const QTextCursor cursor = textCursor();
    const int kept = document()->characterCount() - 1 - (cursor.selectionEnd() - cursor.selectionStart());
    textCursor().insertText(source->text().left(std::max(0, textLimit - kept)));
    ensureCursorVisible();
}
