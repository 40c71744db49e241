#pragma once

#include "platform/ports.h"

/// Figures as images and as vectors, for the system's clipboard and for files.
class QtPictures : public Pictures {
public:
    void copy(const Figure& figure) override;
    std::string encode(const Figure& figure, PictureFormat format) override;
    float textWidth(const Letters& letters) override;
    void copy(const Page& page) override;
    std::string encode(const Page& page, PictureFormat format, int dotsPerInch) override;
    std::string encodePages(const std::vector<Page>& pages) override;
    double letterWidth(std::string_view text, bool italic) override;
    void copyText(std::string_view text) override;
};
