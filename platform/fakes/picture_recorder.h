#pragma once

#include "platform/ports.h"

#include <vector>

/// Keeps what was put on the clipboard.
class PictureRecorder : public Pictures {
public:
    std::vector<Figure> copied;

    void copy(const Figure& figure) override { copied.push_back(figure); }
};
