// What people need who use no mouse, a screen reader, or a theme of their own.

#include "trials/window_fixture_test.h"

#include "core/text_changes.h"
#include "diagram/diagram_window.h"
#include "extras/diagnose.h"
#include "extras/manual.h"
#include "files/new_sheet.h"
#include "files/next_sample.h"
#include "files/open_sheet.h"
#include "keys/key_editor.h"
#include "window/legible_style.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

namespace {

class Accessibility : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        window->onEvent([] { openDropped(EXAMPLE); });
    }
    void open(const char* entry) { named<QAction>(entry)->trigger(); }
    static QWidget* topLevel(const char* name)
    {
        for (QWidget* const one : QApplication::topLevelWidgets())
            if (one->objectName() == name)
                return one;
        return nullptr;
    }
};

bool isControl(const QWidget* widget, const QAccessibleInterface& heard)
{
    if (widget->parentWidget()->objectName().startsWith("qt_scrollarea_"))
        return false; // bars that come with a text
    switch (heard.role()) {
    case QAccessible::EditableText:
    case QAccessible::Button:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ComboBox:
    case QAccessible::Slider:
    case QAccessible::ScrollBar:
    case QAccessible::List:
    case QAccessible::PageTabList:
        return true;
    default:
        return widget->focusPolicy() != Qt::NoFocus;
    }
}

void expectNames(const QWidget* top, const char* when)
{
    ASSERT_TRUE(top != nullptr && top->isVisible()) << when;
    int controls = 0;
    for (QWidget* const widget : top->findChildren<QWidget*>()) {
        QAccessibleInterface* const heard = QAccessible::queryAccessibleInterface(widget);
        if (!widget->isVisible() || heard == nullptr || !isControl(widget, *heard))
            continue;
        ++controls;
        EXPECT_FALSE(heard->text(QAccessible::Name).isEmpty())
            << when << ": " << widget->metaObject()->className() << " " << widget->objectName().toStdString();
    }
    EXPECT_GT(controls, 0) << when;
}

} // namespace

TEST_F(Accessibility, everyControlOfEveryWindowHasAName)
{
    expectNames(window, "counting");
    open("mnuStartAmend");
    expectNames(window, "Modify template mode");
    named<QAbstractButton>("Command7(1)")->click();
    expectNames(named<QWidget>("frmParaName"), "frmParaName");
    named<QDialog>("frmParaName")->close();
    open("mnuTaxaFromList");
    expectNames(named<QWidget>("frmTaxa"), "frmTaxa");
    named<QDialog>("frmTaxa")->close();
    open("mnuFinishAmend");
    frmMain.Command5[0].enabled = false;

    for (const auto& [entry, form] : {std::pair("mnuSubtotal", "frmSubtotal"),
                                      {"mnuSummary", "frmSummary"},
                                      {"mnuFind", "frmFind"},
                                      {"mnuInitial", "frmInitial"},
                                      {"mnuDiagnose", "frmDiagnose"},
                                      {"mnuAboutApp", "frmAboutApp"},
                                      {"mnuAboutDX1", "frmAboutDX1"}}) {
        open(entry);
        expectNames(named<QWidget>(form), form);
        named<QDialog>(form)->close();
    }
    open("mnuKeyCodeReader");
    for (int page = 0; page < 3; ++page) {
        window->onEvent([page] { frmKeyCode_SSTab1_Click(page); });
        expectNames(named<QWidget>("frmKeyCode"), "frmKeyCode");
    }
    named<QWidget>("frmKeyCode")->findChild<QAbstractButton*>("Command3")->click();
    expectNames(named<QWidget>("frmNote"), "frmNote");
    named<QDialog>("frmNote")->close();
    named<QDialog>("frmKeyCode")->close();

    window->onEvent(mnuNext_Click);
    expectNames(named<QWidget>("frmNext"), "frmNext");
    named<QDialog>("frmNext")->close();
    open("mnuManual");
    expectNames(topLevel("frmManual"), "frmManual");
    topLevel("frmManual")->close();
    open("mnuBar");
    topLevel("frmDiagram")->findChild<QAction*>("nmuConiss")->trigger();
    expectNames(topLevel("frmDiagram"), "frmDiagram");
    window->onEvent(closeDiagram);
    window->onEvent(showSiteName);
    expectNames(named<QWidget>("frmSiteName"), "frmSiteName");
    named<QDialog>("frmSiteName")->close();
}

TEST_F(Accessibility, theKeyboardDoesWhatTheMouseDoes)
{
    const std::string count = frmMain.Text2[34].text;
    auto* const percent = named<QAbstractButton>("Command6");
    percent->setFocus(Qt::TabFocusReason);
    QTest::keyPress(percent, Qt::Key_Space);
    EXPECT_FALSE(sheet.KeysActive);
    QTest::keyRelease(percent, Qt::Key_Space);
    EXPECT_TRUE(sheet.KeysActive && frmMain.focus == MainFocus::Text99);
    EXPECT_EQ(frmMain.Text2[34].text, count);

    const auto opensMenu = [&](QWidget* from, const char* menu) {
        QTest::keyClick(from, Qt::Key_F10, Qt::ShiftModifier);
        QWidget* const opened = QApplication::activePopupWidget();
        ASSERT_NE(opened, nullptr) << menu;
        EXPECT_EQ(opened->objectName(), menu);
        opened->close();
    };
    opensMenu(named<QWidget>("Picture2"), "mnuDiversityRB");
    open("mnuBar");
    QWidget* const diagram = topLevel("frmDiagram");
    diagram->findChild<QAction*>("nmuConiss")->trigger();
    opensMenu(diagram->findChild<QWidget*>("Picture1"), "RB1");
    opensMenu(diagram->findChild<QWidget*>("Picture2"), "RBConiss");
    opensMenu(diagram->findChild<QWidget*>("Picture4"), "RB3");
    QTest::keyClick(diagram->findChild<QWidget*>("Picture1"), Qt::Key_Right);
    EXPECT_EQ(frmDiagram.HScroll1.value, frmDiagram.HScroll1.smallChange);
    window->onEvent(closeDiagram);

    open("mnuStartAmend");
    opensMenu(named<QWidget>("Text2(34)"), "mnuRightButton");
    EXPECT_EQ(sheet.MoveSource, 34);
    open("mnuFinishAmend");

    open("mnuDiagnose");
    window->onEvent([] {
        frmDiagnose_KeyDown(27);
        frmDiagnose_KeyDown(27); // held
        frmDiagnose_KeyUp(27);
    });
    const QWidget* const form = named<QWidget>("frmDiagnose");
    auto* const close = form->findChild<QAbstractButton*>("Command2");
    EXPECT_NE(form->focusWidget(), close);
    window->onEvent([] { frmDiagnose_KeyDown(27); });
    EXPECT_EQ(form->focusWidget(), close);
    QTest::keyClick(close, Qt::Key_Space);
    EXPECT_TRUE(isMainEnabled());
    frmMain.Command5[0].enabled = false;
}

TEST(LegibleStyle, givesTextsTheirContrastInAnyTheme)
{
    const QPalette themes[] = {QPalette(Qt::white), QPalette(QColor(49, 54, 59), QColor(49, 54, 59)),
                               QPalette(QColor(110, 110, 110), QColor(140, 140, 140))};
    for (QPalette colours : themes) {
        LegibleStyle().polish(colours);
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            for (const auto& [text, ground] : {std::pair(QPalette::WindowText, QPalette::Window),
                                               {QPalette::Text, QPalette::Base},
                                               {QPalette::ButtonText, QPalette::Button},
                                               {QPalette::HighlightedText, QPalette::Highlight},
                                               {QPalette::Link, QPalette::Base}})
                EXPECT_GE(contrast(colours.color(group, text), colours.color(group, ground)), 4.5)
                    << group << " " << text;
    }
}
