#include "platform/qt/system_keys.h"

#include "platform/key_codes.h"

#include <QKeyEvent>

class MacKeys : public SystemKeys {
public:
    int virtualKey(const QKeyEvent& event) override
    {
        const int key = event.key(); // what the key types without modifiers, as a capital letter
        const char32_t letter =
            key >= Qt::Key_A && key <= Qt::Key_Z ? static_cast<char32_t>(key + 'a' - 'A') : 0;
        return keycodes::virtualKeyFromMac(event.nativeVirtualKey(), letter);
    }
    std::uint32_t physicalKey(const QKeyEvent& event) const override
    {
        return event.nativeVirtualKey(); // there the scan code is the same for every key
    }
};

std::unique_ptr<SystemKeys> systemKeys()
{
    return std::make_unique<MacKeys>();
}
