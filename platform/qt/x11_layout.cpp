#include "platform/qt/x11_layout.h"

#include <QGuiApplication>

#include <xkbcommon/xkbcommon-x11.h>

// a field in this C header is named with a keyword of C++
#ifdef __clang__
#pragma clang diagnostic ignored "-Wkeyword-macro"
#endif
#define explicit explicitComponents
#include <xcb/xkb.h>
#undef explicit

X11Layout::X11Layout()
{
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    connection = x11 != nullptr ? x11->connection() : nullptr;
    if (connection == nullptr) // the offscreen platform has the interface, but no connection
        return;
    if (xkb_x11_setup_xkb_extension(connection, XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
                                    XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, &xkbEvent,
                                    nullptr) == 0)
        return;
    context.reset(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
    keymapChanged = true;
    qGuiApp->installNativeEventFilter(this);
}

// The group is taken from the key event: key events wait in a queue of Qt, and by the time they are delivered
// the keyboard may already be in another group.
const keycodes::Layout* X11Layout::layoutFor(std::uint32_t nativeModifiers)
{
    if (keymapChanged)
        readKeymap();
    if (!keymap)
        return nullptr;
    const std::uint32_t group = (nativeModifiers >> 13) & 3U; // bits 13 and 14 of the X state
    if (!groups[group])
        groups[group] = readGroup(group);
    return &*groups[group];
}

// Qt has selected these events of the core keyboard on this connection. A new keymap is announced by several
// of them at once, so it is only read when the next key asks for it.
bool X11Layout::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    constexpr int sentByAnotherProgram = 0x80;
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & ~sentByAnotherProgram) == xkbEvent) {
        const std::uint8_t xkbType = event->pad0;
        if (xkbType == XCB_XKB_NEW_KEYBOARD_NOTIFY || xkbType == XCB_XKB_MAP_NOTIFY)
            keymapChanged = true;
    }
    return false;
}

void X11Layout::readKeymap()
{
    keymapChanged = false;
    groups.fill(std::nullopt);
    const std::int32_t keyboard = xkb_x11_get_core_keyboard_device_id(connection);
    keymap.reset(
        xkb_x11_keymap_new_from_device(context.get(), connection, keyboard, XKB_KEYMAP_COMPILE_NO_FLAGS));
}

keycodes::Layout X11Layout::readGroup(std::uint32_t group) const
{
    keycodes::BaseKeysyms keysyms{};
    for (std::uint32_t keycode = 0; keycode < keysyms.size(); ++keycode) {
        constexpr xkb_level_index_t unshifted = 0;
        const xkb_keysym_t* typed = nullptr;
        if (xkb_keymap_key_get_syms_by_level(keymap.get(), keycode, group, unshifted, &typed) > 0)
            keysyms[keycode] = typed[0];
    }
    return keycodes::Layout(keysyms);
}

void X11Layout::Unref::operator()(xkb_context* released) const
{
    xkb_context_unref(released);
}

void X11Layout::Unref::operator()(xkb_keymap* released) const
{
    xkb_keymap_unref(released);
}
