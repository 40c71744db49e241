// Counting by real key events.

#include "trials/real_keys_fixture_test.h"

#include "sheet/percent_view.h"

#include "core/amending.h"
#include "core/main_keys.h"

#include <QAction>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

TEST_F(RealKeys, lettersFollowTheLayoutAndDigitsTheirPlace)
{
    tap(place::q);
    tapWith({place::shift}, place::digit1);
    EXPECT_EQ(shown(1), 1);
    EXPECT_EQ(shown(31), 1) << "the key of the digit 1, though Shift gives another sign";
    layout("fr");
    tap(place::q);      // types "a"
    tap(place::digit1); // types "&"
    tap(place::a);      // types "q"
    EXPECT_EQ(shown(4), 1);
    EXPECT_EQ(shown(31), 2);
    EXPECT_EQ(shown(1), 2);
    layout("ru");
    tap(place::q);
    EXPECT_EQ(shown(1), 3) << "a script without Latin letters goes by place";
    layout("us");
}

TEST_F(RealKeys, bothLayersAndReverseCounting)
{
    tapWith({place::semicolon}, place::q);
    tapWith({place::p}, place::q);
    tapWith({place::p, place::semicolon}, place::q);
    EXPECT_EQ(shown(46), 2);
    EXPECT_EQ(shown(91), 1);
    EXPECT_EQ(frmMain.SSTab1, 0);
    tapWith({place::semicolon, place::p, place::backspace}, place::q);
    EXPECT_EQ(shown(91), 0);
    tap(place::backspace);
    EXPECT_EQ(shown(91), 1);

    bind(rowShift1, sheet.Shift1Key = 16);
    bind(rowShift2, sheet.Shift2Key = 18);
    tapWith({place::shift, place::alt}, place::w); // Alt is another key to the system while Shift is held
    tapWith({place::alt, place::shift}, place::w);
    EXPECT_EQ(shown(92), 2);
}

TEST_F(RealKeys, theKeypadGoesByNumLockAndNotByShift)
{
    bind(1, 97);
    bind(2, 35); // End
    tap(place::numLock);
    tap(place::keypad1);
    tapWith({place::shift}, place::keypad1);
    EXPECT_EQ(shown(1), 2);
    tap(place::numLock);
    tap(place::keypad1);
    EXPECT_EQ(shown(2), 1);
}

TEST_F(RealKeys, keysThatMoveFocusOrOpenMenusElsewhereOnlyCountWhenTheyAreBound)
{
    const std::pair<int, int> keys[] = {{place::tab, 9},   {place::space, 32}, {place::enter, 13},
                                        {place::f10, 121}, {place::alt, 18},   {place::down, 40}};
    int row = 0;
    for (const auto& [place, code] : keys)
        bind(++row, code);
    for (const auto& [place, code] : keys)
        tap(place);
    for (int slot = 1; slot <= row; ++slot)
        EXPECT_EQ(shown(slot), 1) << "row " << slot;
    tapWith({place::alt}, place::f); // two more counts, and no File menu
    EXPECT_EQ(total(), row + 2);
    EXPECT_TRUE(named<QWidget>("Text99")->hasFocus());
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(window->menuBar()->activeAction(), nullptr);
}

TEST_F(RealKeys, altOpensTheMenusWhereItIsNoKeyOfTheCount)
{
    tapWith({place::alt}, place::f);
    const QWidget* const menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->objectName(), "mnuFile");
    tap(place::q); // a letter of an open menu counts nothing
    EXPECT_EQ(total(), 0);
    tap(place::escape);
    tap(place::escape);
    tap(place::q);
    EXPECT_EQ(total(), 1);
}

TEST_F(RealKeys, aKeyHeldWithAltCtrlOrSuperCountsNothingUnlessThatKeyIsBound)
{
    tap(place::q);
    EXPECT_EQ(total(), 1);
    for (const int held : {place::alt, place::ctrl, place::leftSuper})
        for (const int key : {place::q, place::digit1, place::backspace}) {
            tapWith({held}, key);
            EXPECT_EQ(total(), 1) << "place " << held << ", " << key;
            tap(place::escape); // out of the menu bar, where Alt leads to
        }
    tap(place::digit1);
    EXPECT_EQ(total(), 2);
    bind(3, 91);
    tapWith({place::leftSuper}, place::digit1);
    EXPECT_EQ(total(), 4) << "both of them count";
}

TEST_F(RealKeys, ctrlAndALetterCountsNothingAndBoxesInWorkKeepTheirShortcuts)
{
    tapWith({place::ctrl}, place::q);
    EXPECT_EQ(total(), 0);

    sheet.SampleCount = 2;
    sheet.WarnNotLatest = false;
    window->onEvent([] { frmMain.mnuDiagramStyles.enabled = true; });
    named<QAction>("mnuCurve")->trigger();
    const auto isActive = [](const char* name) {
        return QApplication::activeWindow() != nullptr && QApplication::activeWindow()->objectName() == name;
    };
    ASSERT_TRUE(waitFor([&] { return isActive("frmDiagram"); }));
    tapWith({place::ctrl}, place::q);
    EXPECT_EQ(total(), 0) << "there neither";
    QApplication::activeWindow()->close();
    ASSERT_TRUE(waitFor([&] { return isActive("frmMain"); }));

    sheet.Modifying = true;
    frmMain.focus = MainFocus::elsewhere;
    QLineEdit box("abc", window->centralWidget());
    box.show();
    box.setFocus();
    tapWith({place::ctrl}, place::a);
    EXPECT_EQ(box.selectedText(), "abc");
    tap(place::q);
    EXPECT_EQ(box.text(), "q");
    EXPECT_EQ(total(), 0);
}

TEST_F(RealKeys, whatTheFootSaysOutlivesTheKeyThatItIsAbout)
{
    window->onEvent([] { AmendingOnOff(0); });
    QLineEdit* const name = named<QLineEdit>("Text1(0)");
    name->setFocus();
    name->selectAll();
    for (const int key : {place::digit1, place::comma, place::digit3})
        tap(key);
    ASSERT_EQ(name->text(), "1,3");
    const auto foot = [this] { return window->statusBar()->currentMessage(); };
    EXPECT_EQ(foot(), "'1,3' is no number, so the diagram has no depth scale: write 1.3.");
    tap(place::backspace);
    EXPECT_EQ(foot(), "");
}

TEST_F(RealKeys, aHeldKeyRepeatsWithoutComingUp)
{
    for (int i = 0; i < 6; ++i)
        tap(place::q);
    keyboard.press(place::backspace); // every key-up in between would take a count back
    settle(1200);
    keyboard.release(place::backspace);
    settle(60);
    EXPECT_EQ(shown(1), 5);
    keyboard.press(place::w);
    settle(1200);
    keyboard.release(place::w);
    settle(60);
    EXPECT_GT(shown(2), 3) << "after the guard a held key counts again";
}

TEST_F(RealKeys, losingTheKeyboardLetsGoOfAllKeysAndTakesNothingBack)
{
    tap(place::q);
    keyboard.press(place::semicolon);
    keyboard.press(place::backspace);
    ASSERT_TRUE(waitFor([] { return sheet.Layer == 1 && sheet.MinusState == 1; }));
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(waitFor([&] { return other.isActiveWindow(); }));
    keyboard.release(place::backspace);
    keyboard.release(place::semicolon);
    settle();
    EXPECT_EQ(sheet.Layer, 0);
    EXPECT_EQ(sheet.MinusState, 0);
    EXPECT_FALSE(sheet.Shift1Down);
    EXPECT_EQ(frmMain.SSTab1, 0);
    EXPECT_EQ(shown(1), 1);
}

TEST_F(RealKeys, anotherProgramTakesTheKeyboardAndTheKeysAndTheViewWithIt)
{
    tap(place::q);
    keyboard.press(place::semicolon);
    settle(60);
    EXPECT_EQ(sheet.Layer, 1);
    window->onEvent(Command6_MouseDown);
    EXPECT_FALSE(sheet.KeysActive);
    keyboard.takeFocusAway();
    ASSERT_TRUE(waitFor([] { return QGuiApplication::focusWindow() == nullptr; }));
    settle(60);
    keyboard.release(place::semicolon);
    EXPECT_TRUE(sheet.Layer == 0 && !sheet.Shift1Down && sheet.KeysActive);
    window->activateWindow();
    waitUntilInFront(window);
    tap(place::q);
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
        tapWith({place::semicolon}, place::q);
        settle(500);
        EXPECT_EQ(shown(46), yes ? 1 : 0);
        EXPECT_EQ(sheet.Layer, 0);
        EXPECT_FALSE(sheet.Shift1Down);
        EXPECT_EQ(frmMain.SSTab1, 0);
    }
    waitUntilInFront(window);
    tap(place::q);
    EXPECT_EQ(shown(1), 1) << "the window counts on";
}

TEST_F(RealKeys, theDiagnosisIsShownEachKeyAndNoKeyDoesAnythingElse)
{
    named<QAction>("mnuDiagnose")->trigger();
    QWidget* const diagnose = window->findChild<QWidget*>("frmDiagnose");
    ASSERT_TRUE(waitFor([&] { return diagnose->isActiveWindow(); }));
    for (const int place :
         {place::q, place::tab, place::space, place::enter, place::escape, place::backspace})
        tap(place);
    tapWith({place::semicolon}, place::w);
    EXPECT_TRUE(diagnose->isVisible());
    EXPECT_EQ(total(), 0);
    EXPECT_EQ(sheet.UndoStack[0].slot, 0);
    const QString report = diagnose->findChild<QPlainTextEdit*>("Text1")->toPlainText();
    EXPECT_TRUE(report.contains("down  27   [Esc]"));
    EXPECT_TRUE(report.contains("down  87   w              layer 1")) << report.toStdString();
    diagnose->findChild<QPushButton*>("Command2")->click();
    waitUntilInFront(window);
    tap(place::q);
    EXPECT_EQ(shown(1), 1);
}

TEST_F(RealKeys, aWarningThatFindRaisesIsAnsweredAboveIt)
{
    sheet.SampleCount = 2;
    frmMain.Text1[50].text = "Betula";
    named<QAction>("mnuFind")->trigger();
    QWidget* const find = window->findChild<QWidget*>("frmFind");
    ASSERT_TRUE(waitFor([&] { return find->isActiveWindow(); }));
    QTest::keyClicks(QApplication::focusWidget(), "Bet");
    QTimer::singleShot(300, this->window, [] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        EXPECT_TRUE(box->isActiveWindow());
        box->button(QMessageBox::Yes)->click();
    });
    tap(place::enter);
    settle(500);
    EXPECT_EQ(shown(50), 1);
    EXPECT_FALSE(find->isVisible());
    EXPECT_EQ(sheet.Layer, 0);
    ASSERT_TRUE(waitFor([this] { return window->isActiveWindow(); }));
}
