#include "platform/key_codes.h"

namespace keycodes {

int virtualKeyFromWindows(std::uint32_t nativeVirtualKey)
{
    // left and right Shift, left and right Ctrl, left and right Alt
    if (nativeVirtualKey >= 160 && nativeVirtualKey <= 165)
        return 16 + static_cast<int>(nativeVirtualKey - 160) / 2;
    return nativeVirtualKey <= 255 ? static_cast<int>(nativeVirtualKey) : 0;
}

} // namespace keycodes
