#include "platform/qt/system_keys.h"

#include "platform/key_codes.h"
#include "platform/qt/x11_layout.h"

#include <QKeyEvent>

/// X11 and Wayland.
class XKeys : public SystemKeys {
public:
    int virtualKey(const QKeyEvent& event) override
    {
        const bool numLock = keycodes::numLockIn(event.nativeModifiers());
        if (const keycodes::Layout* const layout = layout_.layoutFor(event.nativeModifiers()))
            return layout->virtualKey(event.nativeScanCode(), numLock);
        return keycodes::virtualKeyFromEventAlone(event.nativeScanCode(), event.nativeVirtualKey(), numLock);
    }
    std::uint32_t physicalKey(const QKeyEvent& event) const override { return event.nativeScanCode(); }

private:
    X11Layout layout_;
};

std::unique_ptr<SystemKeys> systemKeys()
{
    return std::make_unique<XKeys>();
}
