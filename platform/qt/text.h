#pragma once

#include "platform/code_page.h"

#include <QDir>
#include <QString>

/// Texts between the records (code page of the sheets) and the widgets.

inline QString shownText(std::string_view text)
{
    const std::u16string wide = fromCodePage(text);
    return QString(reinterpret_cast<const QChar*>(wide.data()), static_cast<qsizetype>(wide.size()));
}

inline std::string heldText(const QString& text)
{
    return toCodePage(
        {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())});
}

/// A path as the user of this system writes it: on Windows with "\".
inline std::string nativePath(const QString& path)
{
    return QDir::toNativeSeparators(path).toStdString();
}

/// The object name of one of several controls, as in "Text2(12)".
inline QString indexed(const char* name, int index)
{
    return QString("%1(%2)").arg(name).arg(index);
}
