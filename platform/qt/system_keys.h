#pragma once

#include <QList>
#include <cstdint>
#include <memory>
#include <qnamespace.h>

class QKeyEvent;

/// What the key events of this system tell about the key itself; see platform/key_codes.h.
class SystemKeys {
public:
    virtual ~SystemKeys() = default;
    /// The code that the program works with; 0 if the key has none.
    virtual int virtualKey(const QKeyEvent& event) = 0;
    /// Which key of the keyboard it is, whatever it types: the same number down and up.
    virtual std::uint32_t physicalKey(const QKeyEvent& event) const = 0;
    /// Keys that no window gets to see unless a shortcut asks for them.
    virtual QList<QKeyCombination> toAskFor() const { return {}; }
};

/// Those of the system that the program was built for. Needs a QGuiApplication that outlives them.
std::unique_ptr<SystemKeys> systemKeys();
