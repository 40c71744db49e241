// The adapter between records and widgets, which the plain tests do not see: each kind of widget shows its
// record, and what a user does to it reaches the record.

#include "trials/window_fixture_test.h"

#include "core/hooks.h"

#include <QAction>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QUrl>

class Widgets : public WindowTest {};

TEST_F(Widgets, everyControlHasItsName)
{
    for (const char* name :
         {"SSTab1",      "Frame1(0)",   "Frame1(1)",   "Frame1(2)",   "Picture1",    "Picture2",
          "Text99",      "Combo1",      "Combo2",      "Label3",      "Label4",      "Label5",
          "Label6",      "Label7(0)",   "Label7(1)",   "Label7(2)",   "Label9",      "Label11",
          "Label12",     "Label13",     "Label15",     "Command2(0)", "Command3(0)", "Command3(1)",
          "Command4(0)", "Command5(0)", "Command5(1)", "Command6",    "Command8",    "Command9",
          "Text4",       "Text6",       "Text7",       "ProgressBar1"})
        named<QWidget>(name);
    for (const auto& [name, last] :
         {std::pair("Text1", taxonSlots), {"Text2", taxonSlots}, {"Label1", taxonSlots}})
        for (int slot = 1; slot <= last; ++slot)
            named<QWidget>(QString("%1(%2)").arg(name).arg(slot).toLatin1());
    for (int i = 0; i < 3; ++i)
        for (const char* name : {"Label2(%1)", "Text3(%1)", "Option1(%1)", "Label14(%1)"})
            named<QWidget>(QString(name).arg(i).toLatin1());
    for (int item = 1; item <= infoItems; ++item)
        for (const char* name : {"Text5(%1)", "Label10(%1)", "Command7(%1)"})
            named<QWidget>(QString(name).arg(item).toLatin1());
    EXPECT_EQ(window->objectName(), "frmMain");

    for (const char* name : {"mnuNew",
                             "mnuOpen",
                             "mnuSave",
                             "mnuSaveAs",
                             "mnuSaveCopy",
                             "mnuTemplate",
                             "mnuNext",
                             "mnuSaveHistory",
                             "mnuSaveSaturation",
                             "mnuPercentAll",
                             "mnuPercentSub1",
                             "mnuPercentSub2",
                             "mnuExportCounts",
                             "mnuExportTidy",
                             "mnuExportTaxa",
                             "mnuExportAll",
                             "mnuNewFromTable",
                             "mnuTaxaFromList",
                             "mnuQuit",
                             "mnuUndo",
                             "mnuReset",
                             "mnuStartAmend",
                             "mnuFinishAmend",
                             "mnuFind",
                             "mnuBar",
                             "mnuArea",
                             "mnuDot",
                             "mnuCurve",
                             "mnuDotCurve",
                             "mnuKeyCodeReader",
                             "mnuInitial",
                             "mnuSubtotal",
                             "mnuSummary",
                             "mnuDiagnose",
                             "mnuItalic",
                             "mnuFontSize(6)",
                             "mnuFontSize(7)",
                             "mnuFontSize(8)",
                             "mnuFontSize(9)",
                             "mnuFontSize(10)",
                             "mnuAlign(0)",
                             "mnuAlign(1)",
                             "mnuCoffee",
                             "mnuBeach",
                             "mnuFavorite",
                             "mnuAboutDX1",
                             "mnuAboutApp",
                             "mnuA",
                             "mnuZ"})
        named<QAction>(name);
}

TEST_F(Widgets, aBoxShowsItsRecord)
{
    TextBox& name = frmMain.Text1[50];
    name = {"Quercus \xE6",     true,     true,      true, true, true, 8, 3,
            RGB(255, 255, 110), name.top, name.left, true};
    frmMain.Text2[50].text = "-12";
    frmMain.Text4.text = "First line\r\nSecond line";
    frmMain.Text4.enabled = true;
    window->present();

    QLineEdit* const shown = named<QLineEdit>("Text1(50)");
    EXPECT_EQ(shown->text(), QString::fromUtf8("Quercus æ"));
    EXPECT_TRUE(shown->font().bold() && shown->font().italic() && shown->font().underline());
    EXPECT_TRUE(shown->alignment().testFlag(Qt::AlignRight));
    EXPECT_EQ(shown->cursorPosition(), 9);
    EXPECT_EQ(shown->palette().color(QPalette::Base), QColor(255, 255, 110));
    EXPECT_EQ(shown->palette().color(QPalette::Text), QColor(Qt::black)) << "dark letters in any theme";
    EXPECT_EQ(named<QLineEdit>("Text2(50)")->text(), "-12");
    EXPECT_EQ(named<QLineEdit>("Text2(50)")->accessibleName(),
              QString::fromUtf8("Count of Quercus æ, key 50"));
    EXPECT_EQ(named<QPlainTextEdit>("Text4")->toPlainText(), "First line\nSecond line");
    EXPECT_TRUE(named<QPlainTextEdit>("Text4")->isEnabled());
}

TEST_F(Widgets, labelsButtonsEntriesAndPagesShowTheirRecords)
{
    frmMain.Label2[1].caption = "Trees:";
    frmMain.Label1[7].visible = frmMain.Label1[7].enabled = frmMain.Label1[7].bold = true;
    frmMain.Command3[1].enabled = true;
    frmMain.Command7[2].visible = true;
    frmMain.Option1[0].selected = false;
    frmMain.Option1[2].selected = true;
    frmMain.mnuSave.enabled = true;
    frmMain.mnuItalic.checked = false;
    frmMain.mnuPercent.enabled = false;
    frmMain.ProgressBar1 = {true, 30, 135};
    frmMain.notice = "Word at the foot";
    frmMain.caption = "TallyStrata 3.2.5 - [Lake1]";
    frmMain.SSTab1 = 2;
    window->present();

    EXPECT_EQ(named<QLabel>("Label2(1)")->text(), "Trees:");
    QWidget* const page = named<QWidget>("Frame1(0)");
    EXPECT_TRUE(named<QLabel>("Label1(7)")->isVisibleTo(page) && named<QLabel>("Label1(7)")->font().bold());
    EXPECT_FALSE(named<QLabel>("Label1(8)")->isVisibleTo(page));
    EXPECT_TRUE(named<QWidget>("Command3(1)")->isEnabled());
    EXPECT_FALSE(named<QWidget>("Command5(0)")->isEnabled());
    EXPECT_TRUE(named<QWidget>("Command7(2)")->isVisible());
    EXPECT_FALSE(named<QWidget>("Command7(3)")->isVisible());
    EXPECT_FALSE(named<QRadioButton>("Option1(0)")->isChecked());
    EXPECT_TRUE(named<QRadioButton>("Option1(2)")->isChecked());
    EXPECT_TRUE(named<QAction>("mnuSave")->isEnabled());
    EXPECT_FALSE(named<QAction>("mnuItalic")->isChecked());
    EXPECT_FALSE(named<QMenu>("mnuPercent")->menuAction()->isEnabled());
    EXPECT_EQ(named<QWidget>("ProgressBar1")->isVisible(), true);
    EXPECT_EQ(window->statusBar()->currentMessage(), "Word at the foot");
    EXPECT_EQ(window->windowTitle(), "TallyStrata 3.2.5 - [Lake1]");
    EXPECT_EQ(named<QTabWidget>("SSTab1")->currentIndex(), 2);
}

TEST_F(Widgets, listsAndTheHistoryGrowAtTheirEndAndCanBeReplaced)
{
    QComboBox* const latest = named<QComboBox>("Combo1");
    QPlainTextEdit* const history = named<QPlainTextEdit>("Text7");
    EXPECT_EQ(history->toPlainText(), "(Start)");
    frmMain.Combo1.items.push_back("1: ---");
    frmMain.Combo1.text = "1: ---";
    frmMain.Text7.text += "\r\n1: ---\r\n2: ---";
    window->present();
    EXPECT_EQ(latest->count(), 2);
    EXPECT_EQ(latest->currentText(), "1: ---");
    EXPECT_EQ(history->toPlainText(), "(Start)\n1: ---\n2: ---");

    frmMain.Combo2.items = {"10", "20", "30"};
    frmMain.Combo2.text = "20";
    window->present();
    EXPECT_EQ(named<QComboBox>("Combo2")->currentIndex(), 1) << "where the list opens";
    frmMain.Combo2.text = "30";
    window->present();
    frmMain.Combo2.items = {"5"};
    ++frmMain.Combo2.itemsRevision;
    window->present();
    EXPECT_EQ(named<QComboBox>("Combo2")->count(), 1);
    EXPECT_EQ(named<QComboBox>("Combo2")->currentText(), "30") << "its text need not be one of its items";
}

TEST_F(Widgets, cellsStandWhereTheirRecordsSayAndGrowWithTheWindow)
{
    const auto place = [this](const char* name) { return named<QLineEdit>(name)->geometry(); };
    const auto order = [&] {
        return place("Text1(28)").left() < place("Text1(29)").left() &&
               place("Text1(28)").top() < place("Text1(1)").top() &&
               place("Text2(1)").top() > place("Text1(1)").top();
    };
    EXPECT_TRUE(order());
    const int before = place("Text1(1)").width();
    const int letters = named<QLineEdit>("Text1(1)")->font().pixelSize();
    window->resize(2 * window->size());
    settle();
    EXPECT_TRUE(order());
    EXPECT_GT(place("Text1(1)").width(), 1.8 * before);
    EXPECT_GT(named<QLineEdit>("Text1(1)")->font().pixelSize(), 1.8 * letters);
    for (const char* name : {"Label14(0)", "Label14(1)", "Label14(2)"}) {
        const auto* const stamp = named<QLabel>(name);
        EXPECT_GE(stamp->width(), stamp->fontMetrics().horizontalAdvance("28/08/2028 (08:58:58)")) << name;
    }

    const QRect home = place("Text1(1)");
    std::swap(sheet.KeySetting[1].Number, sheet.KeySetting[45].Number);
    window->onEvent([] { hooks.ArrangeTaxonCells(); });
    EXPECT_EQ(place("Text1(45)"), home);
}

TEST_F(Widgets, whatTheUserDoesReachesTheHandlers)
{
    named<QAction>("mnuItalic")->trigger();
    EXPECT_FALSE(frmMain.mnuItalic.checked);
    named<QAction>("mnuFontSize(10)")->trigger();
    EXPECT_EQ(frmMain.Text1[135].fontSize, 10);
    EXPECT_TRUE(named<QAction>("mnuFontSize(10)")->isChecked());
    EXPECT_FALSE(named<QAction>("mnuFontSize(8)")->isChecked());
    named<QAbstractButton>("Command8")->click();
    EXPECT_TRUE(frmMain.Text1[1].rightAligned);
    named<QTabWidget>("SSTab1")->tabBar()->tabBarClicked(1);
    EXPECT_EQ(frmMain.SSTab1, 1);

    named<QRadioButton>("Option1(1)")->click();
    EXPECT_TRUE(frmMain.Option1[1].selected && !frmMain.Option1[0].selected);
}

TEST_F(Widgets, aClickOnTheSheetReturnsToCountingAndSelectsNothing)
{
    QWidget* const sink = named<QWidget>("Text99");
    named<QAbstractButton>("Command8")->setFocus();
    EXPECT_EQ(frmMain.focus, MainFocus::elsewhere);
    QLineEdit* const cell = named<QLineEdit>("Text1(1)");
    QTest::mouseClick(cell, Qt::LeftButton, {}, {5, 5});
    QTest::mouseDClick(cell, Qt::LeftButton, {}, {5, 5});
    EXPECT_TRUE(sink->hasFocus());
    frmMain.Label1[9].visible = frmMain.Label1[9].enabled = true;
    window->present();
    QLabel* const index = named<QLabel>("Label1(9)");
    QTest::mousePress(index, Qt::LeftButton, {}, {5, 5});
    EXPECT_EQ(sheet.MoveSource, 9);
    EXPECT_FALSE(cell->hasSelectedText());
    EXPECT_FALSE(sink->inputMethodQuery(Qt::ImEnabled).toBool()) << "an input method would take the keys";
}

TEST_F(Widgets, aDroppedDataSheetIsOpened)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(DELIVERED_FOLDER "/examples/khil_phytoliths.csv")});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    sheet.BackupSlot = 0;
    QApplication::sendEvent(window, &drop);
    ASSERT_TRUE(waitFor([] { return sheet.SampleCount == 16; }));
    EXPECT_EQ(window->windowTitle(), "TallyStrata 3.2.5 - [khil_phytoliths]");
    EXPECT_EQ(named<QLineEdit>("Text2(1)")->text(), "1");
    EXPECT_EQ(named<QComboBox>("Combo2")->count(), 16);
    EXPECT_EQ(named<QComboBox>("Combo2")->currentText(), "EKH-C-18");
}

TEST_F(Widgets, findShowsATaxonAsItIsTypedAndCountsIt)
{
    for (int slot = 1; slot <= taxonSlots; ++slot)
        frmMain.Text1[slot].text = "Taxon " + std::to_string(slot);
    named<QAction>("mnuFind")->trigger();
    const auto control = [this](const char* name) {
        return window->findChild<QWidget*>("frmFind")->findChild<QWidget*>(name);
    };
    auto* const text = qobject_cast<QLineEdit*>(control("Text1"));
    ASSERT_TRUE(waitFor([&] { return text->hasFocus(); }));
    QTest::keyClicks(text, "taxon 13");
    auto* const list = qobject_cast<QListWidget*>(control("List1"));
    EXPECT_EQ(list->count(), 7) << "13 and 130 to 135";
    EXPECT_EQ(named<QTabWidget>("SSTab1")->currentIndex(), 0);
    QTest::keyClick(text, Qt::Key_Down);
    EXPECT_EQ(list->currentItem()->text(), "Taxon 130");
    EXPECT_EQ(named<QTabWidget>("SSTab1")->currentIndex(), 2);
    EXPECT_EQ(named<QLineEdit>("Text1(130)")->palette().color(QPalette::Base), QColor(255, 210, 127));
    for (const char* key : {"Command1(40)", "Command1(46)", "Command1(51)"})
        EXPECT_EQ(control(key)->palette().color(QPalette::Button), QColor(255, 127, 0)) << key;
    QTest::keyClick(text, Qt::Key_Return);
    EXPECT_EQ(named<QLineEdit>("Text2(130)")->text(), "1");
    EXPECT_FALSE(text->window()->isVisible());
    EXPECT_TRUE(waitFor([this] { return named<QWidget>("Text99")->hasFocus(); }));
}

TEST_F(Widgets, aPictureFillsItsWindowAndAClickEndsTheRest)
{
    for (const char* entry : {"mnuCoffee", "mnuBeach", "mnuFavorite"}) {
        named<QAction>(entry)->trigger();
        auto* const picture = named<QWidget>("frmPicture");
        picture->resize(160 * 5, 100 * 5);
        const QImage shown = picture->grab().toImage();
        for (const QPoint& corner : {QPoint(1, 1), QPoint(798, 1), QPoint(1, 498), QPoint(798, 498)})
            EXPECT_NE(shown.pixelColor(corner), QColor(Qt::black)) << entry;
        QTest::mousePress(picture, Qt::LeftButton, {}, {5, 5});
        EXPECT_FALSE(picture->isVisible());
        EXPECT_TRUE(isMainEnabled());
    }
}

/// Modify template mode in the real window: keys come as real widgets see them.
class Editing : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        named<QAbstractButton>("Command3(0)")->click();
    }
    static void type(const QString& text, Qt::Key key = Qt::Key_unknown)
    {
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), key, text, Qt::NoModifier);
    }
    static QString focused() { return QApplication::focusWidget()->objectName(); }
};

TEST_F(Editing, tabGoesFromNameToNameAsAPersonReads)
{
    EXPECT_EQ(focused(), "Text4");
    named<QWidget>("Text1(30)")->setFocus(Qt::TabFocusReason);
    for (const char* next : {"Text1(34)", "Text1(35)", "Text1(36)", "Text1(40)"}) {
        type("\t", Qt::Key_Tab);
        EXPECT_EQ(focused(), next);
    }
    named<QAbstractButton>("Command3(1)")->click();
    EXPECT_EQ(focused(), "Text99");
    for (const char* cell : {"Text1(0)", "Text1(30)", "Text2(30)", "Text5(1)", "Text4"})
        EXPECT_EQ(named<QWidget>(cell)->focusPolicy(), Qt::NoFocus) << cell;
}

TEST_F(Editing, whatIsTypedIsStoredShownAndLogged)
{
    named<QWidget>("Text1(30)")->setFocus(Qt::TabFocusReason);
    for (const char* letter : {"A", "\"", "\u2192"})
        type(QString::fromUtf8(letter));
    EXPECT_EQ(sheet.TaxonRecord[30].Name, "A'?");
    EXPECT_EQ(named<QLineEdit>("Text1(30)")->text(), "A'?") << "what a file cannot hold shows at once";
    named<QWidget>("Text2(30)")->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(sheet.ActionText.back(), "30: Taxa name [A'?]");
    type("1");
    type("2");
    EXPECT_EQ(sheet.Count(1, 30), 12) << "typing replaces the number";
    EXPECT_EQ(named<QLineEdit>("Text3(0)")->text(), "12");

    QPlainTextEdit* const note = named<QPlainTextEdit>("Text4");
    note->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(sheet.ActionText.back(), "30 (A'?): Replace 0 by 12");
    note->selectAll();
    note->insertPlainText("First\n\u2192\"");
    EXPECT_EQ(sheet.SampleNote(1, 0), "First\r\n?'");
    EXPECT_EQ(note->toPlainText(), "First\n?'");
    EXPECT_TRUE(note->textCursor().atEnd());
}

TEST_F(Editing, aClickIntoACellWithoutATaxonLetsItsNameBeTyped)
{
    frmMain.Text1[2].text = "Betula";
    window->present();
    const auto click = [this](const char* name) {
        QLineEdit* const box = named<QLineEdit>(name);
        box->setFocus(Qt::MouseFocusReason);
        QTest::mouseClick(box, Qt::LeftButton, {}, {5, 5});
    };
    click("Text1(0)");
    type("7");
    EXPECT_EQ(sheet.SampleField(1, 2), "7");
    click("Text1(1)");
    type("P");
    EXPECT_EQ(sheet.TaxonRecord[1].Name, "P");
    click("Text1(2)");
    EXPECT_FALSE(named<QLineEdit>("Text1(2)")->hasSelectedText()) << "a letter of it may be mended";
}

TEST_F(Editing, theLineAtTheFootStaysUntilTheNextDeed)
{
    const auto foot = [this] { return window->statusBar()->currentMessage(); };
    frmMain.readingNotice = "line 3: 7 fields instead of 12";
    window->present();
    EXPECT_EQ(foot(), "line 3: 7 fields instead of 12");
    QLineEdit* const name = named<QLineEdit>("Text1(0)");
    name->setFocus(Qt::TabFocusReason);
    name->selectAll();
    for (const char* letter : {"1", ",", "5"})
        type(letter);
    const QString told = "'1,5' is no number, so the diagram has no depth scale: write 1.5.";
    EXPECT_EQ(foot(), told);
    named<QWidget>("Text1(1)")->setFocus(Qt::TabFocusReason);
    QTest::mouseMove(name, {5, 5});
    EXPECT_EQ(foot(), told);
    named<QAction>("mnuItalic")->trigger();
    EXPECT_EQ(foot(), "");
}

TEST_F(Editing, aRowIsMovedByItsMenu)
{
    named<QWidget>("Text2(1)")->setFocus(Qt::TabFocusReason);
    type("7");
    QLabel* const index = named<QLabel>("Label1(1)");
    QTest::mousePress(index, Qt::LeftButton, {}, {5, 5});
    EXPECT_TRUE(named<QMenu>("mnuRightButton")->isVisible());
    named<QMenu>("mnuRightButton")->close();
    QMenu* const targets = named<QMenu>("mnu46to90");
    targets->popup({0, 0});
    EXPECT_EQ(frmMain.SSTab1, 1);
    EXPECT_EQ(named<QAction>("mnuMoveTo2(50)")->text(), "50: ---");
    targets->close();
    named<QAction>("mnuMoveTo2(50)")->trigger();
    EXPECT_EQ(sheet.Count(1, 50), 7);
    EXPECT_TRUE(waitFor([&] { return !named<QAction>("mnuMoveTo2(50)")->isEnabled(); }));
}
