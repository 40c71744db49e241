#include "platform/tiff.h"

#include <algorithm>

namespace {

/// PackBits: runs of equal bytes, and literal stretches between them, at most 128 bytes each.
void pack(const std::vector<std::uint8_t>& bytes, std::string& out)
{
    constexpr std::size_t longest = 128;
    std::size_t i = 0;
    const auto runAt = [&](std::size_t from) {
        std::size_t end = from + 1;
        while (end < bytes.size() && end - from < longest && bytes[end] == bytes[from])
            ++end;
        return end - from;
    };
    while (i < bytes.size()) {
        const std::size_t run = runAt(i);
        if (run > 2) {
            out += static_cast<char>(257 - run);
            out += static_cast<char>(bytes[i]);
            i += run;
            continue;
        }
        std::size_t end = i;
        while (end < bytes.size() && end - i < longest && runAt(end) < 3)
            ++end;
        out += static_cast<char>(end - i - 1);
        out.append(bytes.begin() + static_cast<std::ptrdiff_t>(i),
                   bytes.begin() + static_cast<std::ptrdiff_t>(end));
        i = end;
    }
}

void put(std::string& out, std::uint32_t value, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        out += static_cast<char>(value >> (8 * i) & 0xFF);
}

} // namespace

std::string tiffImage(int width, int height, int dotsPerInch,
                      const std::function<void(int row, std::uint8_t* rgb)>& row)
{
    constexpr int rowsPerStrip = 64;
    std::string out = "II*";
    out += '\0';
    put(out, 0, 4); // place of the directory, known at the end
    std::vector<std::uint32_t> offsets;
    std::vector<std::uint32_t> sizes;
    std::vector<std::uint8_t> bytes(3 * static_cast<std::size_t>(width));
    for (int y = 0; y < height; ++y) {
        if (y % rowsPerStrip == 0) {
            if (!offsets.empty())
                sizes.push_back(static_cast<std::uint32_t>(out.size()) - offsets.back());
            offsets.push_back(static_cast<std::uint32_t>(out.size()));
        }
        row(y, bytes.data());
        pack(bytes, out);
    }
    sizes.push_back(static_cast<std::uint32_t>(out.size()) - offsets.back());
    if (out.size() % 2 != 0)
        out += '\0';

    const auto place = [&] { return static_cast<std::uint32_t>(out.size()); };
    const std::uint32_t bits = place();
    for (int i = 0; i < 3; ++i)
        put(out, 8, 2);
    const std::uint32_t resolution = place();
    put(out, static_cast<std::uint32_t>(dotsPerInch), 4);
    put(out, 1, 4);
    const auto strips = static_cast<std::uint32_t>(offsets.size());
    const std::uint32_t offsetsAt = place();
    for (const std::uint32_t offset : offsets)
        put(out, offset, 4);
    const std::uint32_t sizesAt = place();
    for (const std::uint32_t size : sizes)
        put(out, size, 4);

    const std::uint32_t directory = place();
    for (int i = 0; i < 4; ++i)
        out[4 + static_cast<std::size_t>(i)] = static_cast<char>(directory >> (8 * i) & 0xFF);
    constexpr int shortType = 3;
    constexpr int longType = 4;
    constexpr int ratioType = 5;
    struct Entry {
        std::uint32_t tag, type, count, value;
    };
    const Entry entries[] = {
        {256, longType, 1, static_cast<std::uint32_t>(width)},
        {257, longType, 1, static_cast<std::uint32_t>(height)},
        {258, shortType, 3, bits},
        {259, shortType, 1, 32773}, // PackBits
        {262, shortType, 1, 2},     // RGB
        {273, longType, strips, strips == 1 ? offsets[0] : offsetsAt},
        {277, shortType, 1, 3},
        {278, longType, 1, rowsPerStrip},
        {279, longType, strips, strips == 1 ? sizes[0] : sizesAt},
        {282, ratioType, 1, resolution},
        {283, ratioType, 1, resolution},
        {284, shortType, 1, 1},
        {296, shortType, 1, 2}, // inches
    };
    put(out, static_cast<std::uint32_t>(std::size(entries)), 2);
    for (const Entry& entry : entries) {
        put(out, entry.tag, 2);
        put(out, entry.type, 2);
        put(out, entry.count, 4);
        put(out, entry.value, 4);
    }
    put(out, 0, 4); // no other image
    return out;
}
