#pragma once

#include <optional>
#include <string_view>
#include <type_traits>

/// The bytes over those of an open file, and no more than them. If a step fails, the old ones are put back as
/// far as the disk still takes them.
template <class File>
bool writeOver(const File& file, std::string_view bytes)
{
    const auto before = file.size();
    const auto old = before ? file.text() : std::nullopt;
    if (!before || !file.reserveRoom(*before, bytes.size()))
        return false;
    if (file.write(bytes, 0) &&
        file.cutTo(static_cast<std::remove_cvref_t<decltype(*before)>>(bytes.size())) && file.sync())
        return true;
    if (old)
        file.write(*old, 0);
    file.cutTo(*before);
    file.sync();
    return false;
}
