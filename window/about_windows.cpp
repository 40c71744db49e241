#include "window/about_windows.h"

#include "core/version.h"
#include "extras/about.h"
#include "platform/ports.h"
#include "window/system_facts.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int textWidth = 560;

QString row(QString label, const QString& text)
{
    return "<tr><td style='padding-right:14px'>" + label.replace(' ', "&nbsp;") + "</td><td>" +
           text.toHtmlEscaped() + "</td></tr>";
}

/// %1 version, %2 that of Qt, %3 that of SDL, %4 rows of folders.
const char* const appText = R"(
<h2>TallyStrata %1</h2>
<p>Counts pollen, diatoms and other small things in a series of samples with one hand on the keyboard, and draws them
against depth.</p>
<p>© 2026 The TallyStrata developers. TallyStrata is free software under the MIT licence: you may use, copy,
change and pass it on as long as its licence goes with it. It comes without any warranty.</p>
<p>It is built on</p>
<ul style='margin-left:-20px'>
<li>Qt %2, © The Qt Company Ltd. and other contributors, under the GNU Lesser General Public License,
version 3</li>
<li>SDL %3, © Sam Lantinga and other contributors, under the zlib licence</li>
</ul>
<p>Both are separate libraries, linked dynamically, and can be replaced by other versions of them.</p>
<p>Folders in use:</p>
<table>%4</table>
)";

const char* const keypadText = R"(
<h3>Keypads, number pads and foot switches</h3>
<p>A programmable keypad counts in TallyStrata if it acts as a keyboard: if a key on it, pressed, sends what a key of
an ordinary keyboard sends. So do keypads with movable keys such as the Ergodex DX-1, fixed ones such as the Keytech
M-62, number pads and foot switches. TallyStrata needs no driver for them and does not see which device a key is on.</p>
<p><b>1. Give each key of the keypad a key of its own.</b> With the means that come with the keypad, let each of its
keys send one plain key: a letter, a digit, a sign or a function key. Choose keys that you do not need elsewhere while
you count. No sequences of several keys, no Ctrl or Alt with them, and no quick repeat.</p>
<p><b>2. Let the shift keys be held.</b> A key that is to be Shift-1, Shift-2 or Undo must send its press when it goes
down and its release when it comes up. A device that sends both at once can count but cannot hold a layer. Ordinary
keys serve better than Shift, Ctrl and Alt, to which the system may give a meaning of its own.</p>
<p><b>3. Tell TallyStrata the keys.</b> Open <i>Key settings</i> in the menu <i>Tools</i>, place the cursor in the box
of a key and press the key on the keypad; the box takes its code. If your keys stand in another order than the boxes,
change the key numbers on the page <i>Key number</i>: the taxa of the main window then stand where your keys are.</p>
<p><b>4. Try it.</b> <i>Diagnose</i> in the menu <i>Tools</i> shows what each key sends and what it would do, and
counts nothing. Try all three layers and Undo with a counter key before you count.</p>
<p><i>Initialise</i> asks for keys of the keyboard that you type on, not of the keypad.</p>
)";

} // namespace

AboutWindow::AboutWindow(MainWindow& main, const char* name, const QString& title, void (*closeIt)())
    : FormWindow(main, name, title, {{.name = "Label1"}, {.name = "Command1", .clicked = closeIt}}),
      text_(bind(new QLabel, "Label1"))
{
    text_->setTextFormat(Qt::RichText);
    text_->setWordWrap(true);
    text_->setFixedWidth(textWidth);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text_->setFocusPolicy(Qt::NoFocus);
    QPushButton* const ok = button("Command1", "OK");
    ok->setDefault(true);
    setFirst(ok);
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(20, 16, 20, 14);
    whole->setSpacing(12);
    whole->addWidget(text_);
    whole->addLayout(buttonRow({ok}));
    whole->setSizeConstraint(QLayout::SetFixedSize);
}

AboutAppWindow::AboutAppWindow(MainWindow& main)
    : AboutWindow(main, "frmAboutApp", "About TallyStrata", frmAboutApp_Command1_Click)
{
}

void AboutAppWindow::presentMore()
{
    if (isVisible())
        return;
    const SystemFacts facts = systemFacts();
    const QString folder = QDir::toNativeSeparators(QString::fromStdString(facts.programFolder));
    const QString inside = folder + QDir::separator();
    const QString folders = row("Program", folder) + row("Key settings", inside + "References") +
                            row("Backups", inside + QDir::toNativeSeparators("References/Back up files")) +
                            row("Sounds", inside + "Sound files");
    text_->setText(QString(appText).arg(programVersion, QString::fromStdString(facts.qt),
                                        QString::fromStdString(facts.sdl), folders));
}

AboutKeypadWindow::AboutKeypadWindow(MainWindow& main)
    : AboutWindow(main, "frmAboutDX1", "About programmable keypads", frmAboutDX1_Command1_Click)
{
    text_->setText(keypadText);
}
