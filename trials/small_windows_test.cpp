// The small windows above the main one: what they show of their records, and what a user does to them.

#include "trials/window_fixture_test.h"

#include "core/text_changes.h"
#include "extras/manual.h"
#include "sheet/subtotals.h"
#include "sheet/summary.h"

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>

namespace {

class SmallWindows : public WindowTest {
protected:
    QDialog* form = nullptr;

    void SetUp() override
    {
        WindowTest::SetUp();
        window->onEvent([] {
            setText1(1, "P & P, undifferentiated grains");
            setText2(1, "7");
        });
    }
    void open(const char* entry, const char* name)
    {
        named<QAction>(entry)->trigger();
        form = named<QDialog>(name);
        ASSERT_TRUE(form->isVisible() && form->isModal());
    }
    template <class Widget>
    Widget* part(const char* name)
    {
        Widget* const widget = form->findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
};

} // namespace

TEST_F(SmallWindows, groupsAreTickedNamedAndCancelled)
{
    open("mnuSubtotal", "frmSubtotal");
    auto* const pinus = part<QCheckBox>("Check1(1)");
    EXPECT_EQ(pinus->toolTip(), "P & P, undifferentiated grains");
    EXPECT_TRUE(pinus->text().startsWith("P && "))
        << "an ampersand is no shortcut: " << pinus->text().toStdString();
    constexpr int mark = 16;
    EXPECT_LE(pinus->fontMetrics().horizontalAdvance(pinus->text().replace("&&", "&")), pinus->width() - mark)
        << "cut, not clipped: " << pinus->text().toStdString();
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        const auto* const box = part<QCheckBox>(QString("Check1(%1)").arg(slot).toLatin1());
        EXPECT_TRUE(box->parentWidget()->contentsRect().contains(box->geometry())) << slot;
    }
    EXPECT_LE(form->height(), 700) << "fits a small screen";

    pinus->click();
    EXPECT_EQ(sheet.TaxonRecord[1].Subtotal1 + frmMain.Text3[1].text, "17");
    part<QRadioButton>("Option1(2)")->click();
    EXPECT_FALSE(pinus->isChecked() || part<QRadioButton>("Option1(1)")->isChecked());
    part<QPushButton>("Command2(1)")->click();
    EXPECT_TRUE(pinus->isChecked() && part<QCheckBox>("Check1(135)")->isChecked());
    auto* const name = part<QLineEdit>("Text1(2)");
    name->setText("");
    name->insert("Herbs"); // as typed
    name->textEdited(name->text());
    EXPECT_EQ(named<QAction>("mnuPercentSub2")->text(), "% by Herbs");
    QTest::keyClick(form, Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(isMainEnabled());
    EXPECT_EQ(sheet.TaxonRecord[1].Subtotal1 + sheet.TaxonRecord[1].Subtotal2, "00");
}

TEST_F(SmallWindows, theSummaryFillsItsWindow)
{
    open("mnuSummary", "frmSummary");
    auto* const ranking = part<QPlainTextEdit>("Text1(0)");
    EXPECT_EQ(ranking->toPlainText(), "1: P & P, undifferentiated grains (n = 7)\n---");
    form->resize(700, 300);
    settle();
    EXPECT_GT(ranking->width(), 660);
    form->close();
    EXPECT_TRUE(isMainEnabled() && !frmSummary.visible);
}

TEST_F(SmallWindows, f1OpensThePageOfTheWindowAndItsSearchGoesThroughAllPages)
{
    for (const Form* const one : forms()) {
        EXPECT_NE(pageOf(one->name), pageOf("")) << one->name;
        EXPECT_TRUE(QFile::exists(QString::fromStdString(DELIVERED_FOLDER "/docs/" + pageOf(one->name))))
            << one->name;
    }
    const std::string folder = std::exchange(ports.programFolder, DELIVERED_FOLDER);
    open("mnuFind", "frmFind");
    ASSERT_TRUE(waitFor([this] { return form->isActiveWindow(); }));
    QTest::keyClick(form->windowHandle(), Qt::Key_F1);
    ASSERT_TRUE(frmManual.visible && form->isVisible());
    const auto all = QApplication::topLevelWidgets();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [](const QWidget* one) { return one->objectName() == "frmManual"; });
    ASSERT_NE(found, all.end());
    QWidget* const manual = *found;
    auto* const pages = manual->findChild<QTextBrowser*>();
    EXPECT_TRUE(pages->toPlainText().startsWith("Find"));
    auto* const searched = manual->findChild<QLineEdit*>("searched");
    searched->setText("which no page holds");
    QTest::keyClick(searched, Qt::Key_Return);
    EXPECT_TRUE(pages->toPlainText().startsWith("Find"));
    for (const char* const word : {"additional info", "rename", "parameter name"}) {
        pages->setSource(pages->source().resolved(QUrl("main-window.md"))); // it has each of them, too
        searched->setText(word);
        QTest::keyClick(searched, Qt::Key_Return);
        EXPECT_EQ(pages->textCursor().selectedText().toLower(), word);
        EXPECT_TRUE(pages->source().fileName() == "rename.md") << pages->source().toString().toStdString();
    }
    QTest::keyClick(searched, Qt::Key_Return); // and on
    EXPECT_EQ(pages->textCursor().selectedText().toLower(), "parameter name");
    QTest::keyClick(manual, Qt::Key_F1);
    EXPECT_EQ(pages->source().fileName(), "manual.md");
    ports.programFolder = folder;
    manual->close();
    form->close();
}

TEST_F(SmallWindows, theManualIsReadWhileCountingGoesOn)
{
    const std::string folder = std::exchange(ports.programFolder, DELIVERED_FOLDER);
    named<QAction>("mnuManual")->trigger();
    ports.programFolder = folder;
    const auto all = QApplication::topLevelWidgets();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [](const QWidget* one) { return one->objectName() == "frmManual"; });
    ASSERT_NE(found, all.end());
    QWidget* const manual = *found;
    EXPECT_TRUE(manual->isVisible() && !manual->isModal() && isMainEnabled());

    auto* const pages = manual->findChild<QTextBrowser*>();
    ASSERT_TRUE(pages->toPlainText().startsWith("The manual of TallyStrata"));
    const QUrl contents = pages->source();
    pages->setSource(QUrl("../data-formats.md#history"));
    const QTextCursor under = pages->document()->find("Made by \"Save history\"");
    EXPECT_EQ(under.block().previous().text(), "History");
    EXPECT_TRUE(pages->viewport()->rect().contains(pages->cursorRect(under).center()))
        << "a link leads to its heading";
    pages->backward();
    EXPECT_EQ(pages->source(), contents);
    EXPECT_EQ(pages->document()->find("The words of this manual").charFormat().anchorNames(),
              QStringList("the-words-of-this-manual"))
        << "laid out as when it was opened";

    window->activateWindow();
    ASSERT_TRUE(waitFor([this] { return window->isActiveWindow(); }));
    pressQ(*window);
    EXPECT_EQ(frmMain.Text2[1].text, "8") << "the manual takes no key from the counting";
    manual->close();
    EXPECT_FALSE(frmManual.visible);
}
