#pragma once

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <string_view>
#include <thread>
#include <xcb/xtest.h>

/// Keys by their places on a US keyboard (X keycodes).
namespace place {
constexpr int escape = 9, digit1 = 10, digit3 = 12, minus = 20, save = 21, backspace = 22, tab = 23, q = 24,
              w = 25, p = 33, enter = 36, ctrl = 37, a = 38, f = 41, semicolon = 47, shift = 50, comma = 59,
              period = 60, alt = 64, space = 65, f1 = 67, f4 = 70, f10 = 76, numLock = 77, keypad1 = 87,
              up = 111, left = 113, right = 114, down = 116, deleteKey = 119, leftSuper = 133;
constexpr std::string_view letterRows[] = {"1234567890", "qwertyuiop", "asdfghjkl", "zxcvbnm"};
constexpr int rowStarts[] = {10, 24, 38, 52};
inline int of(char sign)
{
    for (int row = 0; row < 4; ++row)
        if (const auto at = letterRows[row].find(sign); at != std::string_view::npos)
            return rowStarts[row] + static_cast<int>(at);
    return period;
}
} // namespace place

inline void pauseFor(int milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

/// A user's hand on the keyboard and the mouse of the X server.
class XHand {
public:
    XHand() : connection_(xcb_connect(nullptr, nullptr)) {}
    ~XHand() { xcb_disconnect(connection_); }
    XHand(const XHand&) = delete;
    XHand& operator=(const XHand&) = delete;

    bool holds(int key) const { return held_.count(key) != 0; }
    void press(int key)
    {
        held_.insert(key);
        send(XCB_KEY_PRESS, key);
    }
    void release(int key)
    {
        held_.erase(key);
        send(XCB_KEY_RELEASE, key);
    }
    void releaseAll()
    {
        while (!held_.empty())
            release(*held_.begin());
        for (const int button : {1, 2, 3})
            send(XCB_BUTTON_RELEASE, button);
    }
    void tap(int key, int milliseconds = 25)
    {
        press(key);
        pauseFor(milliseconds);
        release(key);
        pauseFor(milliseconds);
    }
    void tapWith(int held, int key)
    {
        press(held);
        pauseFor(20);
        tap(key);
        release(held);
    }
    void moveTo(int x, int y) { send(XCB_MOTION_NOTIFY, 0, x, y); }
    void button(int number, bool down) { send(down ? XCB_BUTTON_PRESS : XCB_BUTTON_RELEASE, number); }

    void resize(std::uint32_t window, std::uint32_t x, std::uint32_t y, std::uint32_t width,
                std::uint32_t height)
    {
        const std::uint32_t values[] = {x, y, width, height};
        xcb_configure_window(connection_, window,
                             XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                                 XCB_CONFIG_WINDOW_HEIGHT,
                             values);
        sync();
    }
    /// A window of another program takes the keyboard.
    void takeFocusAway()
    {
        const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
        if (other_ == 0) {
            other_ = xcb_generate_id(connection_);
            const std::uint32_t unmanaged = 1;
            xcb_create_window(connection_, XCB_COPY_FROM_PARENT, other_, screen->root, 0, 0, 10, 10, 0,
                              XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, XCB_CW_OVERRIDE_REDIRECT,
                              &unmanaged);
        }
        xcb_map_window(connection_, other_);
        xcb_set_input_focus(connection_, XCB_INPUT_FOCUS_PARENT, other_, XCB_CURRENT_TIME);
        sync();
    }
    void giveFocusBack()
    {
        if (other_ != 0)
            xcb_unmap_window(connection_, other_);
        sync();
    }

private:
    void send(int type, int detail, int x = 0, int y = 0)
    {
        const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
        xcb_test_fake_input(connection_, static_cast<std::uint8_t>(type), static_cast<std::uint8_t>(detail),
                            0, screen->root, static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0);
        sync();
    }
    void sync() { free(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr)); }

    xcb_connection_t* connection_;
    xcb_window_t other_ = 0;
    std::set<int> held_;
};
