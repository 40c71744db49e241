#pragma once

// Real key events of an X server, as they come from a keyboard. Needs a display of its own.

#include "trials/window_fixture_test.h"
#include "trials/x_hand.h"

#include "core/number_text.h"

#include <cstdlib>

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
    void tap(int place)
    {
        keyboard.press(place);
        settle(20);
        keyboard.release(place);
        settle(40);
        waitFor([] { return !sheet.RepeatGuard; });
    }
    void tapWith(std::initializer_list<int> held, int place)
    {
        for (const int key : held)
            keyboard.press(key);
        settle(30);
        tap(place);
        for (const int key : held)
            keyboard.release(key);
        settle(60);
    }
    static int shown(int slot) { return wholeNumber(frmMain.Text2[slot].text); }
    static int total() { return wholeNumber(frmMain.Text3[0].text); }
    static void bind(int row, int code) { sheet.KeySetting[row].Code = decimalText(code); }
};
