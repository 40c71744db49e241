#pragma once

// Real key events of an X server, as they come from a keyboard. Needs a display of its own.

#include "trials/window_fixture_test.h"
#include "trials/x_hand.h"

#include "core/number_text.h"

#include <cstdlib>

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
    deleteKey = 119,
    leftSuper = 133
};

class RealKeys : public WindowTest {
protected:
    XHand keyboard;

    void SetUp() override
    {
        layout("us");
        WindowTest::SetUp();
        sheet.SoundOn = false;
    }

    /// Waits until a window has the keyboard.
    static void waitUntilInFront(const QWidget* wanted)
    {
        ASSERT_TRUE(waitFor([&] { return wanted->isActiveWindow(); })) << wanted->objectName().toStdString();
        settle(200); // the window manager has its own idea of when that is done
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
