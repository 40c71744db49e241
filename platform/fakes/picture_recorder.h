#pragma once

#include "platform/ports.h"

#include <vector>

/// Keeps what was put on the clipboard.
class PictureRecorder : public Pictures {
public:
    std::vector<Figure> copied;

    void copy(const Figure& figure) override { copied.push_back(figure); }
    std::string encode(const Figure&, PictureFormat format) override
    {
        constexpr const char* bytes[] = {"svg bytes", "pdf bytes", "png bytes", "tiff bytes"};
        return bytes[static_cast<int>(format)];
    }
    float textWidth(const Letters& letters) override
    {
        return static_cast<float>(letters.text.size()) * letters.height / 2;
    }

    std::vector<Page> copiedPages;
    std::string copiedText; ///< UTF-8

    void copy(const Page& page) override { copiedPages.push_back(page); }
    std::string encode(const Page& page, PictureFormat format, int dotsPerInch) override
    {
        return std::to_string(page.marks.size()) + " marks as " + encode(Figure(), format) + " at " +
               std::to_string(dotsPerInch);
    }
    std::string encodePages(const std::vector<Page>& pages) override
    {
        encodedPages = pages;
        return std::to_string(pages.size()) + " pages";
    }
    std::vector<Page> encodedPages;
    double letterWidth(std::string_view text, bool) override
    {
        return 0.5 * static_cast<double>(text.size());
    }
    void copyText(std::string_view text) override { copiedText = text; }
};
