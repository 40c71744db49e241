// The windows that take keys by their being pressed, by real key events.

#include "trials/real_keys_fixture_test.h"

#include "files/next_sample.h"
#include "keys/first_run.h"
#include "keys/key_editor.h"

#include <QAction>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

class KeyWindows : public RealKeys {
protected:
    QWidget* open(const char* entry, const char* form)
    {
        named<QAction>(entry)->trigger();
        return waitForWindow(form);
    }
    QWidget* waitForWindow(const char* form)
    {
        QWidget* const opened = named<QWidget>(form);
        waitUntilInFront(opened);
        return opened;
    }
    void click(const QWidget* widget)
    {
        const QPoint middle = widget->mapToGlobal(widget->rect().center());
        keyboard.moveTo(middle.x(), middle.y());
        for (const bool down : {true, false})
            keyboard.button(1, down);
        settle(40);
    }
    /// Clicks into a box of frmKeyCode, presses a key there and leaves it. `result` tells what came of it.
    template <class Result>
    void capture(QWidget* form, const QString& name, int place, std::initializer_list<int> held,
                 Result result, const std::string& expected)
    {
        const QWidget* const box = form->findChild<QWidget*>(name);
        click(box);
        ASSERT_TRUE(waitFor([&] { return box->hasFocus(); }));
        tapWith(held, place);
        waitFor([&] { return result() == expected; });
        EXPECT_EQ(result(), expected);
        EXPECT_TRUE(form->isActiveWindow()) << expected;
        form->findChild<QWidget*>("Command4")->setFocus();
    }
    void expectKey27(QWidget* form, const std::string& expected, int place,
                     std::initializer_list<int> held = {})
    {
        capture(form, "Text1(27)", place, held, key27, expected);
        EXPECT_EQ(key27(), expected) << "after the visit";
    }
    static std::string key27() { return frmKeyCode.Text1[27].text + " " + frmKeyCode.Text2[27].text; }
};

TEST_F(KeyWindows, aCaptureBoxTakesEveryKeyAndTheSettingsAreInForceAtOnce)
{
    QWidget* const form = open("mnuKeyCodeReader", "frmKeyCode");
    const std::pair<int, const char*> keys[] = {{place::shift, "[Shift] 16"},
                                                {place::ctrl, "[Ctrl] 17"},
                                                {place::deleteKey, "[Delete] 46"},
                                                {place::backspace, "[BkSp] 8"},
                                                {place::escape, "[Esc] 27"},
                                                {place::enter, "[Enter] 13"},
                                                {place::space, "[Space] 32"},
                                                {place::f1, "[F1] 112"},
                                                {place::left, "[Left] 37"},
                                                {place::right, "[Right] 39"},
                                                {place::down, "[Down] 40"},
                                                {place::f10, "[F10] 121"},
                                                {place::w, "w 87"},
                                                {place::semicolon, "; 186"},
                                                {place::tab, "[Tab] 9"},
                                                {place::alt, "[Alt] 18"}};
    for (const auto& [place, expected] : keys)
        expectKey27(form, expected, place);
    expectKey27(form, "f 70", place::f, {place::alt}); // opens no menu
    expectKey27(form, "Q 81", place::q, {place::shift});
    expectKey27(form, "q 81", place::q, {place::ctrl}); // sets off no shortcut
    tap(place::numLock);
    expectKey27(form, "1 97", place::keypad1);
    tap(place::numLock);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(total(), 0);

    layout("fr");
    bool told = false;
    QTimer answering;
    QObject::connect(&answering, &QTimer::timeout, window, [&told] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            told = box->windowTitle() == "Are you an AZERTY keyboard user?";
            box->button(QMessageBox::Ok)->click();
        }
    });
    answering.start(50);
    click(form->findChild<QWidget*>("Text1(27)"));
    tap(place::digit3);
    EXPECT_TRUE(waitFor([&] { return told && form->isActiveWindow(); }));
    EXPECT_EQ(key27(), "1 97");
    layout("us");

    expectKey27(form, "[Left] 37", place::left);
    const auto shift1 = [] {
        return frmKeyCode.Text4[0].text + " " + frmKeyCode.Text2[46].text + " " + frmKeyCode.Text2[48].text;
    };
    capture(form, "Text4(0)", place::up, {}, shift1, "[Up] 38 38");
    click(form->findChild<QWidget*>("Command4"));
    ASSERT_TRUE(waitFor([this] { return window->isActiveWindow() && !frmKeyCode.visible; }));
    tapWith({place::up}, place::left);
    EXPECT_TRUE(waitFor([] { return shown(45 + 27) == 1; }));
    QFile file(delivered.keySettings());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("\"[Left]\",\"37\",\"27\"\r\n"));
}

TEST_F(KeyWindows, oneKeyAfterTheOtherIsTakenAndTheDeliveredOnesComeBack)
{
    QWidget* const form = open("mnuKeyCodeReader", "frmKeyCode");
    const auto box = [form](int key) { return form->findChild<QWidget*>(QString("Text1(%1)").arg(key)); };
    const auto text = [](int key) { return frmKeyCode.Text1[key].text + " " + frmKeyCode.Text2[key].text; };
    click(box(30));
    tap(place::semicolon);
    ASSERT_TRUE(waitFor([&] { return box(34)->hasFocus(); })) << "the next one as they are seen";
    tapWith({place::shift}, place::p);
    ASSERT_TRUE(waitFor([&] { return box(35)->hasFocus(); }));
    EXPECT_EQ(text(30), "; 186");
    EXPECT_EQ(text(34), "P 80");
    form->findChild<QWidget*>("Command4")->setFocus();
    EXPECT_EQ(text(35), "[F5] 116") << "left as it was";

    box(28)->setFocus(Qt::TabFocusReason);
    tap(place::enter);
    tap(place::w);
    ASSERT_TRUE(waitFor([&] { return box(29)->hasFocus(); }));
    EXPECT_EQ(text(28), "w 87");
    tap(place::q); // only comes by
    EXPECT_EQ(text(29), "[F2] 113");

    form->findChild<QPushButton*>("DeliveredKeys")->click();
    EXPECT_EQ(text(28), "[F1] 112");
    EXPECT_EQ(text(34), "[F4] 115");
    EXPECT_EQ(frmKeyCode.Text4[1].text, "p");
    form->findChild<QPushButton*>("Command1")->click();
    ASSERT_TRUE(waitFor([] { return !frmKeyCode.visible; }));
}

TEST_F(KeyWindows, aCaptureBoxIsEnteredAndLeftWithoutAMouse)
{
    QWidget* const form = open("mnuKeyCodeReader", "frmKeyCode");
    QWidget* const box = form->findChild<QWidget*>("Text1(27)");
    box->setFocus(Qt::TabFocusReason);
    const std::string before = key27();
    EXPECT_EQ(before, ". 190") << "Tab coming by empties nothing";
    tap(place::tab);
    ASSERT_TRUE(waitFor([&] { return !box->hasFocus(); }));
    box->setFocus(Qt::TabFocusReason);
    tap(place::enter);
    ASSERT_TRUE(waitFor([] { return frmKeyCode.Text1[27].text.empty(); }));
    tapWith({place::shift}, place::tab); // both are taken, and the last one holds
    ASSERT_TRUE(waitFor([] { return key27() == "[Tab] 9"; }));
    ASSERT_TRUE(box->hasFocus() && form->isActiveWindow());
    settle(40);
    tap(place::tab);
    EXPECT_TRUE(waitFor([&] { return !box->hasFocus(); })) << "one key was all";
    EXPECT_EQ(key27(), "[Tab] 9");
    tap(place::escape);
    EXPECT_TRUE(waitFor([] { return !frmKeyCode.visible; }));
}

/// The program as it is started for the first time.
class FirstStart : public KeyWindows {
protected:
    void SetUp() override
    {
        layout("us");
        QFile::remove(delivered.keySettings());
        QFile::copy(DELIVERED_FOLDER "/References/KeySetting.csv", delivered.keySettings());
        sheet = SheetState();
        frmMain = MainScreen();
        program = std::make_unique<Program>(delivered.path());
        window = &program->window();
    }
};

TEST_F(FirstStart, goesFromKeyToKeyToTheFirstSheet)
{
    waitForWindow("frmInitial");
    EXPECT_FALSE(window->isVisible());
    const auto walk = [this](std::initializer_list<int> places) {
        for (const int place : places) {
            const int next = frmInitial.focus + 1;
            tap(place);
            EXPECT_TRUE(waitFor([&] { return frmInitial.focus == next; })) << next;
        }
    };
    walk({place::shift, place::ctrl, place::deleteKey, place::backspace, place::escape});
    keyboard.press(place::enter); // a held key fills one box, and presses no button
    settle(900);
    keyboard.release(place::enter);
    settle(60);
    EXPECT_EQ(frmInitial.focus, 6);
    walk({place::space, place::f1, place::left, place::up, place::right});
    EXPECT_FALSE(named<QWidget>("frmInitial")->findChild<QWidget*>("Command1")->isEnabled());
    walk({place::down});
    ASSERT_TRUE(frmInitial.visible);
    tap(place::enter);
    QWidget* const next = waitForWindow("frmNext");
    EXPECT_TRUE(window->isVisible() && !frmInitial.visible && sheet.KeySetting[62].Code == "40");
    click(next->findChild<QWidget*>("Command4"));
    ASSERT_TRUE(waitFor([] { return frmNext.entryBoxes; }));
    tap(place::digit1);
    tap(place::enter);
    ASSERT_TRUE(waitFor([this] { return window->isActiveWindow() && !frmNext.visible; }));
    tap(place::q);
    EXPECT_TRUE(waitFor([] { return shown(1) == 1; }));
    EXPECT_EQ(frmMain.Combo2.text, "1");
}

TEST_F(FirstStart, goesOnWhenItsWindowIsClosed)
{
    waitForWindow("frmInitial")->close();
    ASSERT_TRUE(waitFor([this] { return window->isActiveWindow(); }));
    tap(place::q);
    EXPECT_TRUE(waitFor([] { return shown(1) == 1; }));
}
