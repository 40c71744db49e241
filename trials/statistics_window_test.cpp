// The line under the sums, the target and the window of statistics, as a user meets them.

#include "trials/window_fixture_test.h"

#include "files/open_sheet.h"
#include "statistics/laboratory.h"
#include "statistics/recount.h"
#include "statistics/statistics_form.h"
#include "statistics/statistics_line.h"
#include "statistics/target.h"

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

namespace {

class StatisticsWindows : public WindowTest {
protected:
    QString folder;

    void SetUp() override
    {
        statisticsLine = {};
        target = {};
        frmStatistics = {};
        laboratory = {};
        recount = {};
        WindowTest::SetUp();
        folder = delivered.path();
        ASSERT_TRUE(QFile::copy(EXAMPLE, folder + "/sheet.csv"));
        QFile::setPermissions(folder + "/sheet.csv", QFile::ReadOwner | QFile::WriteOwner);
        window->onEvent([this] { openDropped((folder + "/sheet.csv").toStdString()); });
    }
    template <class Widget>
    Widget* part(const char* name)
    {
        Widget* const widget = named<QDialog>("frmStatistics")->findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    static void type(QLineEdit* box, const QString& text)
    {
        box->setFocus();
        box->setText(text);
        box->textEdited(text);
    }
    /// Where the head of a column is clicked.
    static void clickHead(QTableView* table, int column)
    {
        table->horizontalHeader()->sectionClicked(column);
    }
};

} // namespace

TEST_F(StatisticsWindows, theLineTakesNoRoomUntilItIsAskedFor)
{
    auto* const line = named<QLabel>("StatisticsLine");
    EXPECT_FALSE(line->isVisible());
    named<QAction>("mnuStatisticsLine")->trigger();
    EXPECT_TRUE(line->isVisible());
    EXPECT_TRUE(line->text().startsWith("Coverage ")) << line->text().toStdString();
    QTest::mousePress(line, Qt::LeftButton, {}, {5, 5});
    auto* const offered = named<QMenu>("mnuHalfWidth");
    EXPECT_TRUE(offered->isVisible());
    EXPECT_EQ(offered->actions()[3]->text(), "+-3 %");
    offered->actions()[3]->trigger();
    offered->close();
    EXPECT_EQ(statisticsLine.halfWidth, 3);
    EXPECT_TRUE(named<QAction>("mnuHalfWidth(3)")->isChecked());
    named<QAction>("mnuStatisticsLine")->trigger();
    EXPECT_FALSE(line->isVisible());
}

TEST_F(StatisticsWindows, theTargetStandsBesideItsSum)
{
    named<QAction>("mnuTarget")->trigger();
    auto* const form = named<QDialog>("frmTarget");
    EXPECT_TRUE(form->isVisible() && form->isModal());
    auto* const number = form->findChild<QLineEdit*>("Text1");
    number->setText("100000");
    number->textEdited("100000");
    form->findChild<QPushButton*>("Command1")->click();
    EXPECT_FALSE(form->isVisible());
    auto* const label = named<QLabel>("Target(0)");
    EXPECT_TRUE(label->isVisible());
    EXPECT_TRUE(label->text().startsWith("100,000: ") && label->text().endsWith(" to go"));
    EXPECT_FALSE(named<QLabel>("Target(1)")->isVisible());
}

TEST_F(StatisticsWindows, theWindowLetsTheCountingGoOn)
{
    named<QAction>("mnuStatistics")->trigger();
    auto* const form = named<QDialog>("frmStatistics");
    EXPECT_TRUE(form->isVisible());
    EXPECT_FALSE(form->isModal());
    EXPECT_TRUE(isMainEnabled());
    auto* const table = part<QTableView>("Table1(0)");
    const QString individuals = table->model()->index(0, 1).data().toString();
    window->onEvent([] { ++sheet.Count(sheet.CurrentSample, 1); });
    EXPECT_TRUE(waitFor([&] { return table->model()->index(0, 1).data().toString() != individuals; }));

    auto* const tabs = part<QTabWidget>("SSTab1");
    tabs->setCurrentIndex(limitsPage);
    auto* const limits = part<QTableView>("Table1(1)");
    EXPECT_EQ(limits->model()->rowCount(), 50);
    clickHead(limits, 1);
    EXPECT_GE(limits->model()->index(0, 1).data().toInt(), limits->model()->index(1, 1).data().toInt());
    EXPECT_EQ(limits->horizontalHeader()->sortIndicatorSection(), 1);
    const QString tip = limits->model()->headerData(3, Qt::Horizontal, Qt::ToolTipRole).toString();
    EXPECT_TRUE(tip.contains("Wilson")) << "how it is computed and by whom";
    form->close();
    EXPECT_FALSE(frmStatistics.visible);
}

TEST_F(StatisticsWindows, laboratoryDataReachTheirFile)
{
    frmStatistics.SSTab1 = concentrationPage;
    named<QAction>("mnuStatistics")->trigger();
    auto* const marker = part<QComboBox>("Combo2");
    marker->setCurrentIndex(1);
    emit marker->activated(1);
    type(part<QLineEdit>("Text3(0)"), "2");
    type(part<QLineEdit>("Text3(1)"), "18584"); // the focus goes on, and takes what was typed
    window->activateWindow();
    part<QLineEdit>("Text3(2)")->setFocus();
    QFile file(folder + "/sheet.lab.csv");
    ASSERT_TRUE(waitFor([&] {
        file.close();
        return file.open(QIODevice::ReadOnly) && file.readAll().contains(",2,18584,");
    }));
}

TEST_F(StatisticsWindows, aRecountShowsNoSumUntilItIsFinished)
{
    frmStatistics.SSTab1 = comparePage;
    named<QAction>("mnuStatistics")->trigger();
    part<QPushButton>("Command3")->click();
    EXPECT_TRUE(areSumsHidden());
    for (const char* const sum : {"Text3(0)", "Text3(1)", "Text3(2)"})
        EXPECT_EQ(named<QLineEdit>(sum)->displayText(), "");
    EXPECT_FALSE(named<QWidget>("Picture2")->isVisible());
    part<QPushButton>("Command4")->click();
    EXPECT_EQ(named<QLineEdit>("Text3(0)")->displayText(), "0");
    EXPECT_TRUE(named<QWidget>("Picture2")->isVisible());
}
