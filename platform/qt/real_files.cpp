#include "platform/qt/real_files.h"

#include <QFile>
#include <QFileInfo>

std::optional<std::string> RealFiles::read(const std::string& path, std::size_t limit)
{
    QFile file(QString::fromStdString(path));
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly) ||
        file.size() > static_cast<qint64>(limit))
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError || bytes.size() != file.size())
        return std::nullopt;
    return bytes.toStdString();
}
