// Tables and lists of taxa in the real window.

#include "trials/window_fixture_test.h"

#include "platform/fakes/scripted_dialogs.h"
#include "tables/table_form.h"
#include "tables/taxa_form.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

namespace {

class TableWindows : public WindowTest {
protected:
    ScriptedDialogs dialogs;

    void SetUp() override
    {
        WindowTest::SetUp();
        ports.dialogs = &dialogs;
    }
    QDialog* openTable(const std::string& text)
    {
        const std::string path = delivered.path().toStdString() + "/table.csv";
        EXPECT_TRUE(ports.files->write(path, text));
        dialogs.paths.push_back(path);
        named<QAction>("mnuNewFromTable")->trigger();
        return named<QDialog>("frmTable");
    }
    static void paste(QWidget* box) { QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier); }
};

} // namespace

TEST_F(TableWindows, aTableIsLookedAtTurnedAndTakenOver)
{
    std::string text = "taxon,10,20\n";
    for (int taxon = 1; taxon <= 136; ++taxon)
        text += "A taxon with rather a long name & a number " + std::to_string(taxon) + ",1,2\n";
    QDialog* const form = openTable(text);
    ASSERT_TRUE(form->isVisible() && form->isModal());
    const auto part = [form](const char* name) { return form->findChild<QWidget*>(name); };
    auto* const take = static_cast<QPushButton*>(part("Command1"));
    auto* const rarest = static_cast<QCheckBox*>(part("Check1"));
    EXPECT_FALSE(take->isEnabled());
    EXPECT_TRUE(rarest->isVisible() && part("Label3")->isVisible());
    EXPECT_EQ(rarest->text(), "Leave out the rarest taxon");
    EXPECT_EQ(form->findChild<QLabel*>("Label4(8)")->text(), "2");
    EXPECT_LE(form->width(), 1000) << "long names are cut";
    rarest->click();
    EXPECT_TRUE(take->isEnabled() && rarest->isChecked() && !part("Label3")->isVisible());
    static_cast<QPushButton*>(part("Command3"))->click();
    EXPECT_FALSE(rarest->isVisible());
    EXPECT_EQ(frmTable.Label2.caption, "2 taxa in 136 samples, 408 individuals");
    take->click();
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(isMainEnabled());
    EXPECT_EQ(sheet.SampleCount, 136);
    EXPECT_EQ(named<QLineEdit>("Text1(2)")->text(), "20");
    EXPECT_TRUE(named<QAbstractButton>("Command5(0)")->isEnabled());
}

TEST_F(TableWindows, severalPastedLinesBecomeAList)
{
    named<QAction>("mnuStartAmend")->trigger();
    auto* const box = named<QLineEdit>("Text1(3)");
    box->setFocus();
    QApplication::clipboard()->setText("Pinus");
    box->selectAll();
    paste(box);
    EXPECT_EQ(frmMain.Text1[3].text, "Pinus");
    QApplication::clipboard()->setText(QString::fromUtf8("F\u00E6x\nBetula\n"));
    paste(box);
    auto* const form = named<QDialog>("frmTaxa");
    ASSERT_TRUE(form->isVisible());
    EXPECT_EQ(frmMain.Text1[3].text, "Pinus");
    EXPECT_EQ(frmTaxa.Text2.text, "1: F\xE6x\r\n2: Betula\r\n");
    form->findChild<QPlainTextEdit*>("Text1")->appendPlainText("\"Alnus\"");
    EXPECT_EQ(form->findChild<QPlainTextEdit*>("Text2")->toPlainText(),
              QString::fromUtf8("1: F\u00E6x\n2: Betula\n4: Alnus\n"));
    form->findChild<QPushButton*>("Command1")->click();
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(named<QLineEdit>("Text1(4)")->text(), "Alnus");
}
