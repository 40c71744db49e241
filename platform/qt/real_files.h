#pragma once

#include "platform/ports.h"
#include "platform/qt/disk.h"

#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <thread>

class RealFiles : public Files {
public:
    RealFiles();
    ~RealFiles() override; ///< waits until what is to settle has settled

    std::optional<std::string> read(const std::string& path, std::size_t limit) override;
    bool write(const std::string& path, std::string_view bytes) override;
    bool create(const std::string& path) override;
    bool replace(const std::string& path, std::string_view bytes) override;
    bool append(const std::string& path, std::string_view bytes) override;
    void settle(const std::string& path) override;
    bool remove(const std::string& path) override;
    std::vector<std::string> list(const std::string& folder) override;
    bool claim(const std::string& path) override;
    void release(const std::string& path) override;

private:
    void settleAll();

    std::map<std::string, std::unique_ptr<disk::Lock>> claims_;

    // A disk may take longer than a key may wait, so one more thread does the waiting. It takes paths and
    // gives back which of them failed; all else belongs to the thread of the program.
    std::mutex mutex_;
    std::condition_variable wake_;
    std::set<std::string> toSettle_;
    std::set<std::string> unsettled_; ///< could not reach the disk
    bool ending_ = false;
    std::thread settler_;
};
