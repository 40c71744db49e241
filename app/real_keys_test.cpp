// Real key events of an X server, as they come from a keyboard. Needs a display of its own.

#include "app/window_fixture_test.h"

#include "sheet/percent_view.h"

#include "core/main_keys.h"
#include "core/number_text.h"

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <cstdlib>
#include <xcb/xtest.h>

namespace {

/// X keycodes: places on the keyboard, whatever the layout.
enum Place : std::uint8_t {
    escape = 9,
    digit1 = 10,
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
    f10 = 76,
    numLock = 77,
    keypad1 = 87,
    down = 116
};

class Keyboard {
public:
    Keyboard() : connection_(xcb_connect(nullptr, nullptr)) {}
    ~Keyboard() { xcb_disconnect(connection_); }
    void press(Place place) { send(XCB_KEY_PRESS, place); }
    void release(Place place) { send(XCB_KEY_RELEASE, place); }

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
    void send(std::uint8_t type, Place place)
    {
        xcb_test_fake_input(connection_, type, place, 0, XCB_NONE, 0, 0, 0);
        // The server has it, and so has the program, however busy the machine is.
        free(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
        QGuiApplication::sync();
    }
    xcb_connection_t* connection_;
};

} // namespace

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

TEST_F(RealKeys, lettersFollowTheLayoutAndDigitsTheirPlace)
{
    tap(placeQ);
    tapWith({leftShift}, digit1);
    EXPECT_EQ(shown(1), 1);
    EXPECT_EQ(shown(31), 1) << "the key of the digit 1, though Shift gives another sign";
    layout("fr");
    tap(placeQ); // types "a"
    tap(digit1); // types "&"
    tap(placeA); // types "q"
    EXPECT_EQ(shown(4), 1);
    EXPECT_EQ(shown(31), 2);
    EXPECT_EQ(shown(1), 2);
    layout("ru");
    tap(placeQ);
    EXPECT_EQ(shown(1), 3) << "a script without Latin letters goes by place";
    layout("us");
}

TEST_F(RealKeys, bothLayersAndReverseCounting)
{
    tapWith({placeSemicolon}, placeQ);
    tapWith({placeP}, placeQ);
    tapWith({placeP, placeSemicolon}, placeQ);
    EXPECT_EQ(shown(46), 2);
    EXPECT_EQ(shown(91), 1);
    EXPECT_EQ(frmMain.SSTab1, 0);
    tapWith({placeSemicolon, placeP, backspace}, placeQ);
    EXPECT_EQ(shown(91), 0);
    tap(backspace);
    EXPECT_EQ(shown(91), 1);
}

TEST_F(RealKeys, theKeypadGoesByNumLockAndNotByShift)
{
    bind(1, 97);
    bind(2, 35); // End
    tap(numLock);
    tap(keypad1);
    tapWith({leftShift}, keypad1);
    EXPECT_EQ(shown(1), 2);
    tap(numLock);
    tap(keypad1);
    EXPECT_EQ(shown(2), 1);
}

TEST_F(RealKeys, keysThatMoveFocusOrOpenMenusElsewhereOnlyCountWhenTheyAreBound)
{
    const std::pair<Place, int> keys[] = {{tab, 9},   {space, 32},   {enter, 13},
                                          {f10, 121}, {leftAlt, 18}, {down, 40}};
    int row = 0;
    for (const auto& [place, code] : keys)
        bind(++row, code);
    for (const auto& [place, code] : keys)
        tap(place);
    for (int slot = 1; slot <= row; ++slot)
        EXPECT_EQ(shown(slot), 1) << "row " << slot;
    tapWith({leftAlt}, placeF); // two more counts, and no File menu
    EXPECT_EQ(total(), row + 2);
    EXPECT_TRUE(named<QWidget>("Text99")->hasFocus());
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(window->menuBar()->activeAction(), nullptr);
}

TEST_F(RealKeys, altOpensTheMenusWhereItIsNoKeyOfTheCount)
{
    tapWith({leftAlt}, placeF);
    const QWidget* const menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->objectName(), "mnuFile");
    tap(placeQ); // a letter of an open menu counts nothing
    EXPECT_EQ(total(), 0);
    tap(escape);
    tap(escape);
    tap(placeQ);
    EXPECT_EQ(total(), 1);
}

TEST_F(RealKeys, ctrlAndALetterCountsNothingAndBoxesInWorkKeepTheirShortcuts)
{
    tapWith({leftCtrl}, placeQ);
    EXPECT_EQ(total(), 0);

    sheet.Modifying = true;
    frmMain.focus = MainFocus::elsewhere;
    QLineEdit box("abc", window->centralWidget());
    box.show();
    box.setFocus();
    tapWith({leftCtrl}, placeA);
    EXPECT_EQ(box.selectedText(), "abc");
    tap(placeQ);
    EXPECT_EQ(box.text(), "q");
    EXPECT_EQ(total(), 0);
}

TEST_F(RealKeys, aHeldKeyRepeatsWithoutComingUp)
{
    for (int i = 0; i < 6; ++i)
        tap(placeQ);
    keyboard.press(backspace); // every key-up in between would take a count back
    settle(1200);
    keyboard.release(backspace);
    settle(60);
    EXPECT_EQ(shown(1), 5);
    keyboard.press(placeW);
    settle(1200);
    keyboard.release(placeW);
    settle(60);
    EXPECT_GT(shown(2), 3) << "after the guard a held key counts again";
}

TEST_F(RealKeys, losingTheKeyboardLetsGoOfAllKeysAndTakesNothingBack)
{
    tap(placeQ);
    keyboard.press(placeSemicolon);
    keyboard.press(backspace);
    ASSERT_TRUE(waitFor([] { return sheet.Layer == 1 && sheet.MinusState == 1; }));
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(waitFor([&] { return other.isActiveWindow(); }));
    keyboard.release(backspace);
    keyboard.release(placeSemicolon);
    settle();
    EXPECT_EQ(sheet.Layer, 0);
    EXPECT_EQ(sheet.MinusState, 0);
    EXPECT_FALSE(sheet.Shift1Down);
    EXPECT_EQ(frmMain.SSTab1, 0);
    EXPECT_EQ(shown(1), 1);
}

TEST_F(RealKeys, anotherProgramTakesTheKeyboardAndTheKeysAndTheViewWithIt)
{
    tap(placeQ);
    keyboard.press(placeSemicolon);
    settle(60);
    EXPECT_EQ(sheet.Layer, 1);
    window->onEvent(Command6_MouseDown);
    EXPECT_FALSE(sheet.KeysActive);
    keyboard.takeFocusAway();
    ASSERT_TRUE(waitFor([] { return QGuiApplication::focusWindow() == nullptr; }));
    settle(60);
    keyboard.release(placeSemicolon);
    EXPECT_TRUE(sheet.Layer == 0 && !sheet.Shift1Down && sheet.KeysActive);
    window->activateWindow();
    ASSERT_TRUE(waitFor([this] { return window->isActiveWindow(); }));
    tap(placeQ);
    EXPECT_EQ(shown(1), 2);
}

TEST_F(RealKeys, aKeyThatRaisedTheWarningCountsOnItsLayer)
{
    sheet.SampleCount = 2;
    for (const bool yes : {false, true}) {
        QTimer::singleShot(300, this->window, [yes] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            box->button(yes ? QMessageBox::Yes : QMessageBox::No)->click();
        });
        tapWith({placeSemicolon}, placeQ);
        settle(500);
        EXPECT_EQ(shown(46), yes ? 1 : 0);
        EXPECT_EQ(sheet.Layer, 0);
        EXPECT_FALSE(sheet.Shift1Down);
        EXPECT_EQ(frmMain.SSTab1, 0);
    }
    ASSERT_TRUE(waitFor([this] { return window->isActiveWindow(); }));
    tap(placeQ);
    EXPECT_EQ(shown(1), 1) << "the window counts on";
}

TEST_F(RealKeys, theDiagnosisIsShownEachKeyAndNoKeyDoesAnythingElse)
{
    named<QAction>("mnuDiagnose")->trigger();
    QWidget* const diagnose = window->findChild<QWidget*>("frmDiagnose");
    ASSERT_TRUE(waitFor([&] { return diagnose->isActiveWindow(); }));
    for (const Place place : {placeQ, tab, space, enter, escape, backspace})
        tap(place);
    tapWith({placeSemicolon}, placeW);
    EXPECT_TRUE(diagnose->isVisible());
    EXPECT_EQ(total(), 0);
    EXPECT_EQ(sheet.UndoStack[0].slot, 0);
    const QString report = diagnose->findChild<QPlainTextEdit*>("Text1")->toPlainText();
    EXPECT_TRUE(report.contains("down  27   [Esc]"));
    EXPECT_TRUE(report.contains("down  87   w              layer 1")) << report.toStdString();
    diagnose->findChild<QPushButton*>("Command2")->click();
    ASSERT_TRUE(waitFor([this] { return window->isActiveWindow(); }));
    tap(placeQ);
    EXPECT_EQ(shown(1), 1);
}

TEST_F(RealKeys, aWarningThatFindRaisesIsAnsweredAboveIt)
{
    sheet.SampleCount = 2;
    frmMain.Text1[50].text = "Betula";
    named<QAction>("mnuFind")->trigger();
    QWidget* const find = window->findChild<QWidget*>("frmFind");
    ASSERT_TRUE(waitFor([&] { return find->isActiveWindow(); }));
    for (const char letter : {'B', 'e', 't'}) {
        QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(letter)));
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }
    QTimer::singleShot(300, this->window, [] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        EXPECT_TRUE(box->isActiveWindow());
        box->button(QMessageBox::Yes)->click();
    });
    tap(enter);
    settle(500);
    EXPECT_EQ(shown(50), 1);
    EXPECT_FALSE(find->isVisible());
    EXPECT_EQ(sheet.Layer, 0);
    ASSERT_TRUE(waitFor([this] { return window->isActiveWindow(); }));
}
