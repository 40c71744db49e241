#pragma once

#include "platform/ports.h"

#include <QLockFile>
#include <map>
#include <memory>

class RealFiles : public Files {
public:
    std::optional<std::string> read(const std::string& path, std::size_t limit) override;
    bool write(const std::string& path, std::string_view bytes) override;
    bool create(const std::string& path) override;
    bool replace(const std::string& path, std::string_view bytes) override;
    bool remove(const std::string& path) override;
    bool claim(const std::string& path) override;
    void release(const std::string& path) override;

private:
    std::map<std::string, std::unique_ptr<QLockFile>> claims_;
};
