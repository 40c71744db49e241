#include "core/sheet_name.h"

std::optional<std::string> baseName(const std::string& path)
{
    if (path.size() < 2)
        return std::nullopt;
    const std::size_t point = path.rfind('.', path.size() - 2);
    if (point == std::string::npos)
        return std::nullopt;
    const std::size_t separator = path.substr(0, point).find_last_of("\\/");
    const std::size_t begin = separator == std::string::npos ? 0 : separator + 1;
    return path.substr(begin, point - begin);
}

static std::string withoutExtension(const std::string& path)
{
    return path.size() > 4 ? path.substr(0, path.size() - 4) : path;
}

std::string proposedCopyName(const std::string& path, const std::string& date)
{
    const auto part = [&date](std::size_t begin, std::size_t length) {
        return begin < date.size() ? date.substr(begin, length) : std::string();
    };
    const std::string year = date.size() > 4 ? date.substr(date.size() - 4) : date;
    return withoutExtension(path) + "_(" + part(0, 2) + "." + part(3, 2) + "." + year + ").csv";
}

std::string proposedTableName(const std::string& path)
{
    return path.empty() ? path : withoutExtension(path) + "_percent.csv";
}
