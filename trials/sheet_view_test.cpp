// What the sheet shows beside the counts: names that can be told apart, the keys, the watched total; and the
// ways of the keyboard through its cells.

#include "trials/window_fixture_test.h"

#include "core/number_text.h"
#include "files/open_sheet.h"
#include "sheet/cell_grid.h"
#include "sheet/key_names.h"
#include "window/cell_box.h"
#include "window/taxon_page.h"
#include "window/total_frame.h"

#include <QAction>
#include <QLabel>
#include <QRadioButton>
#include <QTest>
#include <set>

namespace {

class SheetView : public WindowTest {
protected:
    /// Once more drawn, a page without the names of its keys is another picture.
    QImage page(int layer)
    {
        return named<QWidget>(qPrintable(QString("Frame1(%1)").arg(layer)))->grab().toImage();
    }
    CellBox* nameBox(int slot)
    {
        return static_cast<CellBox*>(named<QLineEdit>(qPrintable(QString("Text1(%1)").arg(slot))));
    }
};

} // namespace

TEST_F(SheetView, namesOfTheExamplesCanBeToldApart)
{
    window->resize(1000, 700);
    for (const char* const example : {"cradle_lake_diatoms", "dallican_pollen", "khil_phytoliths"}) {
        window->onEvent([&] { openDropped(std::string(DELIVERED_FOLDER "/examples/") + example + ".csv"); });
        for (int layer = 0; layer < 3; ++layer) {
            named<QAction>("mnuAlign(0)")->trigger();
            std::set<QString> read;
            int named = 0;
            for (int slot = 45 * layer + 1; slot <= 45 * layer + 45; ++slot)
                if (frmMain.Text1[slot].text != "---") {
                    ++named;
                    read.insert(nameBox(slot)->readText());
                }
            EXPECT_EQ(static_cast<int>(read.size()), named) << example << " " << layer;
        }
    }
}

TEST_F(SheetView, longNamesAreCutWhereTheAlignmentWantsTheirEnds)
{
    window->onEvent([] { frmMain.Text1[1].text = "Chrysophyceae stomatocysts, psilate"; });
    const QString cut = nameBox(1)->readText();
    EXPECT_TRUE(cut.startsWith("Chr") && cut.size() < 24) << cut.toStdString();
    named<QAction>("mnuAlign(1)")->trigger();
    EXPECT_TRUE(nameBox(1)->readText().endsWith("psilate"));
    EXPECT_EQ(nameBox(1)->toolTip(), "Chrysophyceae stomatocysts, psilate, key q");
    EXPECT_EQ(nameBox(1)->text(), "Chrysophyceae stomatocysts, psilate");
}

TEST_F(SheetView, cellsUseTheWidthOfTheWindow)
{
    window->resize(1000, 700);
    const QSize before = nameBox(1)->size();
    window->resize(1600, 700);
    settle();
    EXPECT_GT(nameBox(1)->width(), before.width() * 14 / 10);
    EXPECT_NEAR(nameBox(1)->height(), before.height(), 1);
    EXPECT_NEAR(nameBox(42)->geometry().right() + nameBox(28)->x(), nameBox(1)->parentWidget()->width(), 2)
        << "centred";
}

TEST_F(SheetView, namesOfTheKeysStandBelowTheCounts)
{
    const QImage with = page(0);
    named<QAction>("mnuKeyNames")->trigger();
    const QImage without = page(0);
    EXPECT_NE(with, without);
    named<QAction>("mnuKeyNames")->trigger();
    EXPECT_EQ(page(0), with);
    window->onEvent([] {
        std::swap(sheet.KeySetting[1].Definition, sheet.KeySetting[30].Definition);
        ArrangeTaxonCells();
    });
    EXPECT_NE(page(0), with) << "they follow the settings";
    EXPECT_EQ(nameBox(1)->toolTip(), "Key [F3]");
    EXPECT_EQ(named<QWidget>("Text2(91)")->toolTip(), "Key [F3] with Shift-1 and Shift-2");
}

TEST_F(SheetView, theWatchedTotalStandsOut)
{
    const auto frameOf = [this](int total) {
        return static_cast<TotalFrame*>(
            named<QWidget>(qPrintable(QString("Option1(%1)").arg(total)))->parentWidget());
    };
    for (const int chosen : {1, 2, 0}) {
        named<QRadioButton>(qPrintable(QString("Option1(%1)").arg(chosen)))->click();
        for (int total = 0; total < 3; ++total) {
            EXPECT_EQ(frameOf(total)->isWatched(), total == chosen);
            EXPECT_EQ(named<QWidget>(qPrintable(QString("Text3(%1)").arg(total)))->parentWidget(),
                      frameOf(total));
            EXPECT_EQ(named<QRadioButton>(qPrintable(QString("Option1(%1)").arg(total)))->isChecked(),
                      total == chosen);
        }
    }
}

TEST_F(SheetView, aFloraIsNamedWithoutTheMouse)
{
    named<QAbstractButton>("Command3(0)")->click();
    nameBox(45)->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(nameBox(45), "Alnus");
    QTest::keyClick(nameBox(45), Qt::Key_Return);
    ASSERT_TRUE(nameBox(46)->hasFocus());
    EXPECT_EQ(frmMain.SSTab1, 1);
    EXPECT_TRUE(nameBox(46)->isVisible());
    QTest::keyClicks(nameBox(46), "Betula"); // over what stands for a name
    QTest::keyClick(nameBox(46), Qt::Key_Down);
    QTest::keyClicks(nameBox(47), "Corylus");
    QTest::keyClick(nameBox(47), Qt::Key_Up);
    QTest::keyClick(nameBox(46), Qt::Key_Return, Qt::ShiftModifier);
    ASSERT_TRUE(nameBox(45)->hasFocus());
    EXPECT_EQ(frmMain.SSTab1, 0);
    EXPECT_EQ(nameBox(45)->selectedText(), "Alnus");
    EXPECT_EQ(sheet.TaxonRecord[46].Name, "Betula");
    EXPECT_EQ(sheet.TaxonRecord[47].Name, "Corylus");
    const auto& lines = frmMain.Combo1.items;
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                            [](const std::string& line) { return line.find(": Taxa name [") != line.npos; }),
              3)
        << "a line for each name";

    auto* const count = named<QLineEdit>("Text2(1)");
    count->setFocus(Qt::TabFocusReason);
    QTest::keyClick(count, Qt::Key_Return);
    EXPECT_TRUE(named<QWidget>("Text2(2)")->hasFocus());
    frmMain.Command5[0].enabled = sheet.UnsavedEdits = false;
}

TEST_F(SheetView, tabGoesThroughTheNamesAndThenThroughTheCounts)
{
    named<QAbstractButton>("Command3(0)")->click();
    const auto next = [](const QWidget* box) {
        const QWidget* one = box->nextInFocusChain();
        while ((one->focusPolicy() & Qt::TabFocus) == 0 || !one->isEnabled())
            one = one->nextInFocusChain();
        return one;
    };
    EXPECT_EQ(next(nameBox(28)), nameBox(29));
    EXPECT_EQ(next(nameBox(42)), nameBox(31));
    EXPECT_EQ(next(nameBox(27)), named<QWidget>("Text2(28)"));
    EXPECT_EQ(next(named<QWidget>("Text2(28)")), named<QWidget>("Text2(29)"));
}
