#pragma once

#include "platform/ports.h"

/// Figures as images and as vectors, for the system's clipboard and for files.
class QtPictures : public Pictures {
public:
    void copy(const Figure& figure) override;
    std::string encode(const Figure& figure, PictureFormat format) override;
    float textWidth(const Letters& letters) override;
};
