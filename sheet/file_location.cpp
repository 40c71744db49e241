#include "sheet/file_location.h"

#include "core/main_screen.h"

/// Breaks behind the last folder's end or blank at one of the positions `highest` down to `lowest`, counted
/// from 1. The position, or 0 if there was none.
static std::size_t breakBehind(std::string& path, std::size_t highest, std::size_t lowest)
{
    for (std::size_t position = highest; position >= lowest; --position)
        if (std::string_view("\\/ ").find(path[position - 1]) != std::string_view::npos) {
            path.insert(position, "\r\n");
            return position;
        }
    return 0;
}

std::string wrappedPath(std::string path)
{
    constexpr std::size_t line = 40;
    if (path.size() <= line)
        return path;
    const std::size_t first = breakBehind(path, 39, 3);
    if (first != 0 && path.size() - first > line + 2)
        breakBehind(path, first + 41, 43);
    return path;
}

void WrapFileLocation()
{
    frmMain.Text6.text = wrappedPath(std::move(frmMain.Text6.text));
}
