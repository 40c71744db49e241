#pragma once

#include "platform/key_codes.h"

#include <QAbstractNativeEventFilter>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>

struct xcb_connection_t;
struct xkb_context;
struct xkb_keymap;

/// The keyboard layouts of X11, followed while the program runs.
///
/// Needs a QGuiApplication that outlives it; to be used on its thread.
class X11Layout : public QAbstractNativeEventFilter {
public:
    X11Layout();

    /// The layout that was in force when the event with these native modifiers was made.
    /// nullptr when the program does not run on X11 or the keymap cannot be read.
    /// The pointer is good until control returns to the event loop.
    const keycodes::Layout* layoutFor(std::uint32_t nativeModifiers);

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

private:
    struct Unref {
        void operator()(xkb_context* context) const;
        void operator()(xkb_keymap* keymap) const;
    };

    void readKeymap();
    keycodes::Layout readGroup(std::uint32_t group) const;

    xcb_connection_t* connection = nullptr;
    std::uint8_t xkbEvent = 0; ///< response type of the events of the XKB extension
    std::unique_ptr<xkb_context, Unref> context;
    std::unique_ptr<xkb_keymap, Unref> keymap;
    std::array<std::optional<keycodes::Layout>, 4> groups; ///< of the keymap, as far as they were needed
    bool keymapChanged = false;
};
