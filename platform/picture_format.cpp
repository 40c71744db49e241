#include "platform/picture_format.h"

#include <algorithm>
#include <string>
#include <utility>

std::optional<PictureFormat> pictureFormatOf(std::string_view path)
{
    std::string ending(path.substr(std::min(path.rfind('.'), path.size())));
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](unsigned char letter) { return static_cast<char>(letter | 0x20); });
    constexpr std::pair<std::string_view, PictureFormat> formats[] = {{".svg", PictureFormat::svg},
                                                                      {".pdf", PictureFormat::pdf},
                                                                      {".png", PictureFormat::png},
                                                                      {".tif", PictureFormat::tiff},
                                                                      {".tiff", PictureFormat::tiff}};
    for (const auto& [text, format] : formats)
        if (ending == text)
            return format;
    return std::nullopt;
}
