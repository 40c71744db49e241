// The windows that take keys by their being pressed, by real key events.

#include "app/real_keys_fixture_test.h"

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
        EXPECT_TRUE(waitFor([&] { return opened->isActiveWindow(); })) << form;
        return opened;
    }
    void click(const QWidget* widget)
    {
        keyboard.click(widget->mapToGlobal(widget->rect().center()));
        settle(40);
    }
    /// Clicks into a box of frmKeyCode, presses a key there and leaves it.
    void capture(QWidget* form, const QString& box, Place place, std::initializer_list<Place> held = {})
    {
        click(form->findChild<QWidget*>(box));
        tapWith(held, place);
        EXPECT_TRUE(form->isActiveWindow() && form->findChild<QWidget*>(box)->hasFocus()) << place;
        form->findChild<QWidget*>("Command4")->setFocus();
    }
    std::string captured(QWidget* form, int key, Place place, std::initializer_list<Place> held = {})
    {
        capture(form, QString("Text1(%1)").arg(key), place, held);
        return frmKeyCode.Text1[key].text + " " + frmKeyCode.Text2[key].text;
    }
};

TEST_F(KeyWindows, aCaptureBoxTakesEveryKeyAndTheSettingsAreInForceAtOnce)
{
    QWidget* const form = open("mnuKeyCodeReader", "frmKeyCode");
    const std::pair<Place, const char*> keys[] = {
        {leftShift, "[Shift] 16"}, {leftCtrl, "[Ctrl] 17"},   {deleteKey, "[Delete] 46"},
        {backspace, "[BkSp] 8"},   {escape, "[Esc] 27"},      {enter, "[Enter] 13"},
        {space, "[Space] 32"},     {f1, "[F1] 112"},          {left, "[Left] 37"},
        {right, "[Right] 39"},     {down, "[Down] 40"},       {f10, "[F10] 121"},
        {placeW, "w 87"},          {placeSemicolon, "; 186"}, {tab, "[Tab] 9"},
        {leftAlt, "[Alt] 18"}};
    for (const auto& [place, expected] : keys)
        EXPECT_EQ(captured(form, 27, place), expected);
    EXPECT_EQ(captured(form, 27, placeF, {leftAlt}), "f 70") << "opens no menu";
    EXPECT_EQ(captured(form, 27, placeQ, {leftShift}), "Q 81");
    EXPECT_EQ(captured(form, 27, placeQ, {leftCtrl}), "q 81") << "no shortcut";
    tap(numLock);
    EXPECT_EQ(captured(form, 27, keypad1), "1 97");
    tap(numLock);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(total(), 0);

    layout("fr");
    QTimer::singleShot(400, window, [] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->windowTitle(), "Are you an AZERTY keyboard user?");
        box->button(QMessageBox::Ok)->click();
    });
    click(form->findChild<QWidget*>("Text1(27)"));
    tap(digit3);
    settle(500);
    EXPECT_EQ(frmKeyCode.Text1[27].text + " " + frmKeyCode.Text2[27].text, "1 97");
    layout("us");

    captured(form, 27, left);
    capture(form, "Text4(0)", up);
    EXPECT_EQ(frmKeyCode.Text4[0].text + frmKeyCode.Text2[46].text + frmKeyCode.Text2[48].text, "[Up]3838");
    click(form->findChild<QWidget*>("Command4"));
    ASSERT_TRUE(waitFor([this] { return window->isActiveWindow() && !frmKeyCode.visible; }));
    tapWith({up}, left);
    EXPECT_EQ(shown(45 + 27), 1);
    QFile file(folder.settings());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("\"[Left]\",\"37\",\"27\"\r\n"));
}

/// The program as it is started for the first time.
class FirstStart : public KeyWindows {
protected:
    void SetUp() override
    {
        layout("us");
        QFile::remove(folder.settings());
        QFile::copy(DELIVERED_FOLDER "/References/KeySetting.csv", folder.settings());
        sheet = SheetState();
        frmMain = MainScreen();
        program = std::make_unique<Program>(folder.path());
        window = &program->window();
    }
};

TEST_F(FirstStart, goesFromKeyToKeyToTheFirstSheet)
{
    waitForWindow("frmInitial");
    EXPECT_FALSE(window->isVisible());
    for (const Place place : {leftShift, leftCtrl, deleteKey, backspace, escape})
        tap(place);
    keyboard.press(enter); // a held key fills one box, and presses no button
    settle(900);
    keyboard.release(enter);
    settle(60);
    EXPECT_EQ(frmInitial.focus, 6);
    for (const Place place : {space, f1, left, up, right})
        tap(place);
    EXPECT_FALSE(named<QWidget>("frmInitial")->findChild<QWidget*>("Command1")->isEnabled());
    tap(down);
    ASSERT_TRUE(frmInitial.visible);
    tap(enter);
    QWidget* const next = waitForWindow("frmNext");
    EXPECT_TRUE(window->isVisible() && !frmInitial.visible && sheet.KeySetting[62].Code == "40");
    click(next->findChild<QWidget*>("Command4"));
    tap(digit1);
    tap(enter);
    ASSERT_TRUE(waitFor([this] { return window->isActiveWindow() && !frmNext.visible; }));
    tap(placeQ);
    EXPECT_EQ(shown(1), 1);
    EXPECT_EQ(frmMain.Combo2.text, "1");
}

TEST_F(FirstStart, goesOnWhenItsWindowIsClosed)
{
    waitForWindow("frmInitial")->close();
    ASSERT_TRUE(waitFor([this] { return window->isActiveWindow(); }));
    tap(placeQ);
    EXPECT_EQ(shown(1), 1);
}
