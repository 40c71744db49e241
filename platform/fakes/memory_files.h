#pragma once

#include "platform/ports.h"

#include <map>

/// Files in memory, by path.
class MemoryFiles : public Files {
public:
    std::map<std::string, std::string> contents;

    std::optional<std::string> read(const std::string& path, std::size_t limit) override
    {
        const auto file = contents.find(path);
        if (file == contents.end() || file->second.size() > limit)
            return std::nullopt;
        return file->second;
    }
};
