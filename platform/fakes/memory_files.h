#pragma once

#include "platform/ports.h"

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

/// Files in memory, by path, and the faults of a disk.
class MemoryFiles : public Files {
public:
    std::map<std::string, std::string> contents;
    std::set<std::string> unwritable; ///< read-only, locked, a folder, or below a folder that is missing
    std::size_t room = SIZE_MAX;      ///< bytes that one file may take
    bool closeFails = false;
    std::set<std::string> cutShort; ///< written over by half when the power goes
    std::set<std::string> claimedByOthers;
    std::set<std::string> claimed;

    std::optional<std::string> read(const std::string& path, std::size_t limit) override
    {
        const auto file = contents.find(path);
        if (file == contents.end() || file->second.size() > limit)
            return std::nullopt;
        return file->second;
    }
    bool write(const std::string& path, std::string_view bytes) override
    {
        if (unwritable.count(path) != 0 || bytes.size() > room)
            return false;
        const bool whole = cutShort.count(path) == 0;
        contents[path] = bytes.substr(0, whole ? bytes.size() : bytes.size() / 2);
        return whole && !closeFails;
    }
    bool replace(const std::string& path, std::string_view bytes) override
    {
        if (unwritable.count(path) != 0 || bytes.size() > room || closeFails)
            return false;
        contents[path] = bytes;
        return true;
    }
    bool append(const std::string& path, std::string_view bytes) override
    {
        if (unwritable.count(path) != 0 || contents[path].size() + bytes.size() > room || closeFails)
            return false;
        contents[path] += bytes;
        return true;
    }
    void settle(const std::string&) override {}
    bool remove(const std::string& path) override
    {
        return unwritable.count(path) == 0 && (contents.erase(path), true);
    }
    std::vector<std::string> list(const std::string& folder) override
    {
        std::vector<std::string> names;
        for (const auto& [path, bytes] : contents)
            if (path.rfind('/') == folder.size() && path.compare(0, folder.size(), folder) == 0)
                names.push_back(path.substr(folder.size() + 1));
        return names;
    }
    bool claim(const std::string& path) override
    {
        return claimedByOthers.count(path) == 0 && unwritable.count(path) == 0 &&
               (claimed.insert(path), true);
    }
    void release(const std::string& path) override { claimed.erase(path); }
    bool create(const std::string& path) override
    {
        return unwritable.count(path) == 0 && (contents.try_emplace(path), true);
    }
};
