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

std::string fileNameOf(const std::string& path)
{
    return path.substr(path.find_last_of("\\/") + 1);
}

std::string fileBeside(const std::string& sheetPath, std::string_view ending)
{
    if (sheetPath.empty())
        return {};
    const std::size_t separator = sheetPath.find_last_of("\\/");
    const std::size_t point = sheetPath.rfind('.');
    const bool hasEnding =
        point != std::string::npos && (separator == std::string::npos || point > separator + 1);
    return sheetPath.substr(0, hasEnding ? point : sheetPath.size()).append(ending);
}

static std::string withoutExtension(const std::string& path)
{
    return path.size() > 4 ? path.substr(0, path.size() - 4) : path;
}

std::string proposedCopyName(const std::string& path, const std::string& date)
{
    std::string day;
    for (const char c : date)
        if (c >= '0' && c <= '9')
            day += c;
        else if (!day.empty() && day.back() != '.')
            day += '.';
    if (!day.empty() && day.back() == '.')
        day.pop_back();
    return withoutExtension(path) + "_(" + day + ").csv";
}

std::string proposedTableName(const std::string& path)
{
    return path.empty() ? path : withoutExtension(path) + "_percent.csv";
}
