#pragma once

// Real key events of an X server, as they come from a keyboard. Needs a display of its own.

#include "app/window_fixture_test.h"

#include "core/number_text.h"

#include <cstdlib>
#include <xcb/xtest.h>

/// X keycodes: places on the keyboard, whatever the layout.
enum Place : std::uint8_t {
    escape = 9,
    digit1 = 10,
    digit3 = 12,
    backspace = 22,
    tab = 23,
    placeQ = 24,
    placeW = 25,
    placeP = 33,
    enter = 36,
    leftCtrl = 37,
    placeA = 38,
    placeF = 41,
    placeSemicolon = 47,
    leftShift = 50,
    leftAlt = 64,
    space = 65,
    f1 = 67,
    f10 = 76,
    numLock = 77,
    keypad1 = 87,
    up = 111,
    left = 113,
    right = 114,
    down = 116,
    deleteKey = 119
};

/// The keyboard and the mouse beside it.
class Keyboard {
public:
    Keyboard() : connection_(xcb_connect(nullptr, nullptr)) {}
    ~Keyboard() { xcb_disconnect(connection_); }
    void press(Place place) { send(XCB_KEY_PRESS, place); }
    void release(Place place) { send(XCB_KEY_RELEASE, place); }
    void click(QPoint place)
    {
        const xcb_window_t screen = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
        constexpr std::uint8_t leftButton = 1;
        send(XCB_MOTION_NOTIFY, 0, screen, place);
        send(XCB_BUTTON_PRESS, leftButton);
        send(XCB_BUTTON_RELEASE, leftButton);
    }

    /// A window of another program takes the keyboard.
    void takeFocusAway()
    {
        const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
        const xcb_window_t other = xcb_generate_id(connection_);
        const std::uint32_t unmanaged = 1;
        xcb_create_window(connection_, XCB_COPY_FROM_PARENT, other, screen->root, 0, 0, 10, 10, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, XCB_CW_OVERRIDE_REDIRECT,
                          &unmanaged);
        xcb_map_window(connection_, other);
        xcb_set_input_focus(connection_, XCB_INPUT_FOCUS_PARENT, other, XCB_CURRENT_TIME);
        xcb_flush(connection_);
    }

private:
    void send(std::uint8_t type, std::uint8_t detail, xcb_window_t screen = XCB_NONE, QPoint place = {})
    {
        xcb_test_fake_input(connection_, type, detail, 0, screen, static_cast<std::int16_t>(place.x()),
                            static_cast<std::int16_t>(place.y()), 0);
        // The server has it, and so has the program, however busy the machine is.
        free(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
        QGuiApplication::sync();
    }
    xcb_connection_t* connection_;
};

class RealKeys : public WindowTest {
protected:
    Keyboard keyboard;

    void SetUp() override
    {
        layout("us");
        WindowTest::SetUp();
        sheet.SoundOn = false;
    }

    static void layout(const std::string& name)
    {
        ASSERT_EQ(std::system(("setxkbmap " + name).c_str()), 0);
        settle(150);
    }

    /// Until the release, which waits for a repeat, is out and the repeat guard has ended.
    void tap(Place place)
    {
        keyboard.press(place);
        settle(20);
        keyboard.release(place);
        settle(40);
        waitFor([] { return !sheet.RepeatGuard; });
    }
    void tapWith(std::initializer_list<Place> held, Place place)
    {
        for (const Place key : held)
            keyboard.press(key);
        settle(30);
        tap(place);
        for (const Place key : held)
            keyboard.release(key);
        settle(60);
    }
    static int shown(int slot) { return wholeNumber(frmMain.Text2[slot].text); }
    static int total() { return wholeNumber(frmMain.Text3[0].text); }
    static void bind(int row, int code) { sheet.KeySetting[row].Code = decimalText(code); }
};
