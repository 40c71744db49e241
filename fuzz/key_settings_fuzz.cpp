// Any bytes in place of the key settings: a table or nothing; the sanitizers watch for faults.

#include "keys/key_settings_file.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    parseKeySettings({reinterpret_cast<const char*>(data), size});
    return 0;
}
