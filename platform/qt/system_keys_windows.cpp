#include "platform/qt/system_keys.h"

#include "platform/key_codes.h"

#include <QKeyEvent>

class WindowsKeys : public SystemKeys {
public:
    int virtualKey(const QKeyEvent& event) override
    {
        return keycodes::virtualKeyFromWindows(event.nativeVirtualKey());
    }
    std::uint32_t physicalKey(const QKeyEvent& event) const override { return event.nativeScanCode(); }
};

std::unique_ptr<SystemKeys> systemKeys()
{
    return std::make_unique<WindowsKeys>();
}
