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
    /// It opens the menu of the right button there, and so may count nothing where Shift is a layer key.
    QList<QKeyCombination> toAskFor() const override { return {Qt::SHIFT | Qt::Key_F10}; }
};

std::unique_ptr<SystemKeys> systemKeys()
{
    return std::make_unique<WindowsKeys>();
}
