#pragma once

#include "platform/ports.h"

class RealFiles : public Files {
public:
    std::optional<std::string> read(const std::string& path, std::size_t limit) override;
    bool write(const std::string& path, std::string_view bytes) override;
    bool create(const std::string& path) override;
};
