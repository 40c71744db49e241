#pragma once

#include <memory>
#include <string>
#include <string_view>

/// Writing as each system does it so that it lasts. Paths are UTF-8. A true answer means that a power cut
/// takes nothing of it any more; after a false one what stood there before stands, or the new bytes do.
namespace disk {

/// Straight over what is there. Only here a crash may leave a mixture; if a step fails, the old bytes are put
/// back as far as the disk still takes them, and a new file is removed.
bool write(const std::string& path, std::string_view bytes);
/// Makes an empty file if there is none.
bool create(const std::string& path);
/// By way of a file beside it that then takes its name.
bool replace(const std::string& path, std::string_view bytes);
/// To the end of a file that is made if there is none. It has not reached the disk itself yet.
bool append(const std::string& path, std::string_view bytes);
/// Waits until what was appended has reached the disk.
bool settle(const std::string& path);
/// True if there is no such file afterwards.
bool remove(const std::string& path);

/// A lock that ends with the program, however that ends. Its file goes with it if it can.
class Lock {
public:
    virtual ~Lock() = default;
};
/// Nothing if a running program holds it or the folder cannot be written. Whatever else stands at the path
/// (an empty file, garbage, a link to nowhere) is no hindrance.
std::unique_ptr<Lock> tryLock(const std::string& path);

} // namespace disk
