// What the tables of all windows promise, tried on every control: it exists under its name, shows its record,
// brings what a user makes of it into the record, and runs the handler that its name says.

#include "trials/shown_records_test.h"
#include "trials/window_fixture_test.h"

#include "window/bound_window.h"
#include "window/diagram_window.h"

#include <QAction>
#include <QClipboard>
#include <QLineEdit>
#include <QMessageBox>
#include <QMetaMethod>
#include <QPlainTextEdit>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <cxxabi.h>
#include <dlfcn.h>
#include <map>
#include <set>

namespace {

/// "mnuSave_Click" for the address of that function; empty for one that has no name to the outside.
std::string nameOf(const void* code)
{
    Dl_info found{};
    if (dladdr(code, &found) == 0 || found.dli_saddr != code)
        return {};
    int failed = 0;
    char* const text = abi::__cxa_demangle(found.dli_sname, nullptr, nullptr, &failed);
    std::string name = failed == 0 ? text : found.dli_sname;
    std::free(text);
    return name.substr(0, name.find('('));
}

template <class Function>
const void* addressOf(Function* function)
{
    return reinterpret_cast<const void*>(function);
}

std::string told(const QObject* widget, const Control& control)
{
    return widget->objectName().toStdString() + " " + control.kind->name;
}

class Controls : public WindowTest, public ::testing::WithParamInterface<std::string> {
protected:
    void expectNames() const;
    void expectHandlers();
    void expectEdits();
    void expectRecords();

    BoundWindow* bound = nullptr;
    QWidget* top = nullptr;

    void SetUp() override
    {
        WindowTest::SetUp();
        if (GetParam() != "frmMain")
            for (const Form* const form : forms())
                if (GetParam() == form->name)
                    form->visible = true;
        frmDiagram.Width = 15 * 800;
        frmDiagram.Height = 15 * 600;
        window->present();
        const auto tops = QApplication::topLevelWidgets();
        const auto found = std::find_if(tops.begin(), tops.end(), [](const QWidget* one) {
            return one->objectName().toStdString() == GetParam();
        });
        ASSERT_NE(found, tops.end());
        top = *found;
        bound = dynamic_cast<BoundWindow*>(top);
        ASSERT_NE(bound, nullptr);
    }
    void TearDown() override
    {
        for (const Form* const form : forms())
            form->visible = false;
        sheet.DiagramOpen = false;
        if (window != nullptr)
            window->present();
        frmMain.Command5[0].enabled = sheet.UnsavedEdits = false;
    }
};

/// Whose handler has another name than it, with the handler's.
const std::map<std::string, std::string> otherNames = {{"frmMain.Command2(0)", "AbortCount"},
                                                       {"frmMain.Command4(0)", "mnuOpen_Click"},
                                                       {"frmMain.Command5(0)", "mnuSave_Click"},
                                                       {"frmMain.Command5(1)", "mnuNext_Click"},
                                                       {"frmMain.Option1", "selectBasis"},
                                                       {"frmMain.Combo1", "giveFocusBack"},
                                                       {"frmMain.mnuReset", "AbortCount"},
                                                       {"frmMain.mnuSummary", "LaunchSummary"},
                                                       {"frmMain.mnuSaveDiversity", "SaveDiversity"},
                                                       {"frmDiagram.mnuSub1", "frmDiagram_Basis_Click"},
                                                       {"frmDiagram.mnuSub2", "frmDiagram_Basis_Click"},
                                                       {"frmDiagram.mnuAll", "frmDiagram_Basis_Click"},
                                                       {"frmFigure.mnuFigureClose", "closeFigure"}};

/// A handler is called as its control with an ending, and with its form's name before it where others have a
/// control of that name too.
void expectHandler(const std::string& form, const std::string& control, const std::string& ending,
                   const void* code)
{
    const std::string plain = control.substr(0, control.find('('));
    for (const std::string& key : {form + "." + control, form + "." + plain})
        if (const auto other = otherNames.find(key); other != otherNames.end() && ending == "_Click") {
            EXPECT_EQ(nameOf(code), other->second) << key;
            return;
        }
    std::set<std::string> names = {plain + ending, form + "_" + plain + ending};
    if (plain.ends_with("_Up") || plain.ends_with("_Down"))
        names.insert(plain + ending.substr(1));
    if (plain.starts_with("mnu") && plain.back() >= '1' && plain.back() <= '9')
        names.insert(plain.substr(0, plain.size() - 1) + ending); // an entry that stands in several menus
    EXPECT_TRUE(names.count(nameOf(code)) == 1) << form << "." << control << " runs " << nameOf(code);
}

/// As from another program, over all that stands there.
void paste(QWidget* box, const QString& text)
{
    QApplication::clipboard()->setText(text);
    if (auto* const line = qobject_cast<QLineEdit*>(box)) {
        line->selectAll();
        line->paste();
    } else {
        qobject_cast<QPlainTextEdit*>(box)->selectAll();
        qobject_cast<QPlainTextEdit*>(box)->paste();
    }
}

struct Pasted {
    QString text;
    std::string inLine; ///< what a box of one line makes of it
    std::string inArea;
};

const Pasted pasted[] = {
    {QString::fromUtf8("Abies \xF0\x9F\x8C\xB2 alba"), "Abies ? alba", "Abies ? alba"},
    {QString::fromUtf8("Caf\x65\xCC\x81 n\xCC\x83 7\xF0\x9F\x8C\xB2"), "Caf\xE9 \xF1 7?", "Caf\xE9 \xF1 7?"},
    {"one\ntwo\r\nthree", "one two three", "one\r\ntwo\r\nthree"},
    {QString("nul") + QChar(0) + "l", "null", "null"},
};

/// Keys of the small map in Find are only looked at; what Diagnose copies is what its own window shows.
bool isPlainKey(const Control& control)
{
    return std::string_view(control.kind->name) == "Command1" &&
           (Controls::GetParam() == "frmFind" || Controls::GetParam() == "frmDiagnose");
}

bool isOpenToTyping(const QWidget* widget)
{
    const auto* const line = qobject_cast<const QLineEdit*>(widget);
    const auto* const area = qobject_cast<const QPlainTextEdit*>(widget);
    return (line != nullptr && !line->isReadOnly()) || (area != nullptr && !area->isReadOnly());
}

void Controls::expectNames() const
{
    std::map<std::pair<const ControlRow*, int>, int> made;
    for (const auto& [object, control] : bound->bound()) {
        ++made[{control.kind, control.index}];
        const auto* const widget = qobject_cast<const QWidget*>(object);
        EXPECT_EQ(widget->window(), top) << told(widget, control);
        EXPECT_EQ(widget->objectName(), control.index == noIndex
                                            ? QString(control.kind->name)
                                            : QString("%1(%2)").arg(control.kind->name).arg(control.index));
        EXPECT_TRUE(BoundWindow::controlOf(widget).kind == control.kind &&
                    BoundWindow::controlOf(widget).index == control.index);
    }
    for (const ControlRow& row : bound->table())
        for (int index = row.first; index <= row.last; ++index)
            EXPECT_EQ((made[{&row, index}]), 1) << row.name << " " << index;
}

/// Each shows its own record: the records hold different things.
void Controls::expectRecords()
{
    for (const auto& [object, control] : bound->bound())
        withRecord(control, [&, &one = control](auto& record) { give(record, one); });
    window->present();
    for (const auto& [object, control] : bound->bound()) {
        SCOPED_TRACE(told(object, control));
        const auto* const widget = qobject_cast<const QWidget*>(object);
        withRecord(control, [&](auto& record) { expectShown(widget, record); });
    }
    for (const auto& entry : bound->entries())
        if (entry.record != nullptr) {
            auto& record = const_cast<MenuEntry&>(*entry.record);
            for (const bool on : {true, false}) {
                record.enabled = record.checked = on;
                window->present();
                EXPECT_EQ(entry.action->isEnabled(), on) << entry.action->objectName().toStdString();
                EXPECT_EQ(entry.action->isChecked(), on && entry.action->isCheckable());
            }
        }
}

void Controls::expectEdits()
{
    if (GetParam() == "frmMain")
        named<QAbstractButton>("Command3(0)")->click(); // opens its boxes to typing
    std::set<const ControlRow*> filled;
    for (const auto& [object, control] : bound->bound()) {
        auto* const widget = qobject_cast<QWidget*>(object);
        TextBox* const* const base = std::get_if<TextBox*>(&control.kind->record);
        if (base == nullptr || !isOpenToTyping(widget))
            continue;
        SCOPED_TRACE(told(widget, control));
        TextBox& record = (*base)[std::max(control.index, 0)];
        if (control.kind->isNumber) {
            paste(widget, "12");
            EXPECT_EQ(record.text, "12");
            continue;
        }
        const bool isLine = qobject_cast<QLineEdit*>(widget) != nullptr;
        for (const Pasted& one : pasted) {
            paste(widget, one.text);
            EXPECT_EQ(record.text, isLine ? one.inLine : one.inArea);
            const std::string shown =
                isLine ? one.inLine : QString::fromLatin1(one.inArea).remove('\r').toLatin1().toStdString();
            expectShown(widget, TextBox{.text = shown});
        }
        if (!filled.insert(control.kind).second)
            continue;
        frmMain.notice.clear();
        paste(widget, QString(1 << 20, 'x'));
        EXPECT_EQ(record.text, std::string(textLimit, 'x'));
        EXPECT_EQ(frmMain.notice, "A box holds 32767 characters: what would come after them is left out.");
        for (int again = 0; again < 2 && !isLine; ++again) { // the record holds a line's end as two
            frmMain.notice.clear();
            paste(widget, QString("x\n").repeated(textLimit));
            EXPECT_FALSE(frmMain.notice.empty());
        }
        paste(widget, "7");
    }
}

void Controls::expectHandlers()
{
    for (const ControlRow& row : bound->table()) {
        const auto expectNamed = [&](const std::string& ending, const void* code) {
            if (code != nullptr)
                expectHandler(GetParam(),
                              row.first == row.last && row.first != noIndex
                                  ? std::string(row.name) + "(" + std::to_string(row.first) + ")"
                                  : row.name,
                              ending, code);
        };
        expectNamed("_Click", row.clicked.address());
        expectNamed("_GotFocus", row.entered.address());
        expectNamed("_LostFocus", row.left.address());
        expectNamed("_DblClick", addressOf(row.doubleClicked));
        expectNamed("_KeyDown", addressOf(row.keyDown));
        expectNamed("_KeyPress", addressOf(row.keyPress));
        expectNamed("_KeyUp", addressOf(row.keyUp));
    }
    for (const auto& [object, control] : bound->bound()) {
        const ControlRow& row = *control.kind;
        const bool isButton = qobject_cast<QAbstractButton*>(object) != nullptr;
        const bool isSlider = qobject_cast<QAbstractSlider*>(object) != nullptr;
        EXPECT_TRUE(!isButton || row.clicked || row.pressed != nullptr || isPlainKey(control))
            << told(object, control) << " does nothing";
        EXPECT_TRUE(!isSlider || row.changed) << told(object, control) << " does nothing";
    }
    for (const auto& entry : bound->entries()) {
        const std::string name = entry.action->objectName().toStdString();
        EXPECT_TRUE(entry.clicked) << name;
        const auto* const style = std::find_if(std::begin(diagramStyles), std::end(diagramStyles),
                                               [&](const DiagramStyle& one) { return one.name == name; });
        if (style != std::end(diagramStyles)) {
            EXPECT_EQ(nameOf(entry.clicked.address()),
                      GetParam() == "frmMain" ? "mnuDiagramStyle_Click" : "frmDiagram_Style_Click");
            EXPECT_EQ(entry.clicked.value(), style - diagramStyles) << name;
            continue;
        }
        expectHandler(GetParam(), name, "_Click", entry.clicked.address());
        if (const auto bracket = name.find('('); bracket != std::string::npos) {
            EXPECT_EQ(entry.clicked.value(), std::stoi(name.substr(bracket + 1))) << name;
        }
    }
}

} // namespace

TEST_P(Controls, keepWhatTheirTablePromises)
{
    expectNames();
    expectHandlers();
    expectEdits();
    expectRecords();
}

INSTANTIATE_TEST_SUITE_P(EveryWindow, Controls, ::testing::ValuesIn([] {
                             std::vector<std::string> names = {"frmMain"};
                             for (const Form* const form : forms())
                                 if (std::string_view(form->name) != "frmManual") // pages of text
                                     names.emplace_back(form->name);
                             return names;
                         }()),
                         [](const auto& one) { return one.param; });

namespace {

class WhatUsersRead : public WindowTest {};

/// Enter, Space and Esc in the message box that `ask` brings up.
Answer answerOf(int key, Buttons buttons)
{
    QTimer::singleShot(0, [key] {
        QWidget* const box = QApplication::activeModalWidget();
        ASSERT_NE(qobject_cast<QMessageBox*>(box), nullptr);
        QTest::keyClick(box, Qt::Key_Y);
        QTest::keyClick(box, Qt::Key_Y, Qt::AltModifier);
        ASSERT_EQ(QApplication::activeModalWidget(), box) << "a letter answers nothing";
        QTest::keyClick(box->focusWidget() != nullptr ? box->focusWidget() : box, static_cast<Qt::Key>(key));
    });
    return ports.dialogs->ask("Do you proceed?", "Caution!", buttons, Icon::question);
}

} // namespace

TEST_F(WhatUsersRead, isWhatTheButtonsAndEntriesDo)
{
    const std::pair<const char*, const char*> captions[] = {
        {"Command2(0)", "Reset"},  {"Command3(0)", "Modify"}, {"Command3(1)", "Resume"},
        {"Command4(0)", "Open"},   {"Command5(0)", "Save"},   {"Command5(1)", "Next sample"},
        {"Command9", "Go"},        {"Command8", "Alignment"}, {"Command6", "%"},
        {"Command7(1)", "Rename"}, {"Command7(6)", "Rename"}};
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(named<QAbstractButton>(name)->text(), caption);
    const std::pair<const char*, const char*> entries[] = {{"mnuNew", "New"},
                                                           {"mnuOpen", "Open..."},
                                                           {"mnuSave", "Save"},
                                                           {"mnuSaveAs", "Save as..."},
                                                           {"mnuSaveCopy", "Save copy..."},
                                                           {"mnuTemplate", "Create template"},
                                                           {"mnuNext", "Next sample"},
                                                           {"mnuSaveHistory", "Save history"},
                                                           {"mnuQuit", "Quit"},
                                                           {"mnuUndo", "Undo"},
                                                           {"mnuReset", "Reset"},
                                                           {"mnuStartAmend", "Modify template"},
                                                           {"mnuFinishAmend", "Resume counting"}};
    for (const auto& [name, caption] : entries)
        EXPECT_EQ(named<QAction>(name)->text(), caption);

    sheet.DiagramOpen = true;
    window->present();
    const auto tops = QApplication::topLevelWidgets();
    const auto diagram = std::find_if(tops.begin(), tops.end(),
                                      [](const QWidget* one) { return one->objectName() == "frmDiagram"; });
    ASSERT_NE(diagram, tops.end());
    auto* const up = (*diagram)->findChild<QToolButton*>("UpDown1_Up");
    auto* const down = (*diagram)->findChild<QToolButton*>("UpDown1_Down");
    EXPECT_TRUE(up->arrowType() == Qt::UpArrow && up->toolTip() == "Sample above");
    EXPECT_TRUE(down->arrowType() == Qt::DownArrow && down->toolTip() == "Sample below");
    EXPECT_LT(up->geometry().bottom(), down->geometry().top() + 1);
    sheet.DiagramOpen = false;
    window->present();
}

TEST_F(WhatUsersRead, isAnsweredSafelyByEnterSpaceAndEsc)
{
    for (const int key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape}) {
        EXPECT_EQ(answerOf(key, Buttons::ok), Answer::ok) << key;
        EXPECT_EQ(answerOf(key, Buttons::yesNo), Answer::no) << key;
        EXPECT_EQ(answerOf(key, Buttons::yesNoCancel), Answer::cancel) << key;
    }
}

TEST_F(WhatUsersRead, isTheBeginningOfANameUnlessAlignmentIsRight)
{
    auto* const box = named<QLineEdit>("Text1(30)");
    named<QAbstractButton>("Command3(0)")->click();
    box->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(box, "Juniperus-type of a very long name");
    EXPECT_EQ(box->cursorPosition(), 34);
    named<QWidget>("Text1(34)")->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(box->cursorPosition(), 0) << "the box is left";
    named<QAbstractButton>("Command3(1)")->click();
    EXPECT_EQ(box->cursorPosition(), 0);
    named<QAction>("mnuAlign(1)")->trigger();
    EXPECT_EQ(box->cursorPosition(), 34);
    frmMain.Text1[30].text += ", longer";
    window->present();
    EXPECT_EQ(box->cursorPosition(), 42);
    named<QAction>("mnuAlign(0)")->trigger();
    EXPECT_EQ(box->cursorPosition(), 0);
    frmMain.Command5[0].enabled = sheet.UnsavedEdits = false;
}
