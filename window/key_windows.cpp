#include "window/key_windows.h"

#include "keys/key_capture.h"
#include "keys/key_commit.h"
#include "keys/key_editor.h"
#include "keys/key_note.h"
#include "platform/qt/text.h"
#include "window/capture_box.h"
#include "window/key_map.h"
#include "window/main_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTabWidget>

namespace {

/// A box that only shows.
QLineEdit* readBox(const QString& name)
{
    auto* const box = new QLineEdit;
    box->setObjectName(name);
    box->setEnabled(false);
    return box;
}

/// Of a box that takes a key.
void tellHowToUse(CaptureBox& box)
{
    box.setToolTip("Click here, or come by Tab and press Enter; then press the key");
    box.setAccessibleDescription("Press Enter, then the key");
}

/// A box in which a number is typed. Enter leaves it and does no more, so that "OK" finds the number tested.
class NumberBox : public QLineEdit {
public:
    explicit NumberBox(QWidget& next) : next_(next) { setMaxLength(4); }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            next_.setFocus();
        else
            QLineEdit::keyPressEvent(event);
    }

private:
    QWidget& next_;
};

} // namespace

KeyCodeWindow::KeyCodeWindow(MainWindow& main)
    : FormWindow(main, "frmKeyCode", "Key settings", frmKeyCode.visible, frmKeyCode_Command1_Click)
{
    ok_ = actionButton("Command4", "OK", frmKeyCode_Command4_Click);
    ok_->setDefault(true);

    pages_ = new QTabWidget;
    pages_->setObjectName("SSTab1");
    pages_->setAccessibleName("Key maps");
    pages_->addTab(definitionPage(), "Key definition");
    pages_->addTab(codePage(), "Key code");
    pages_->addTab(numberPage(), "Key number");
    connect(pages_, &QTabWidget::tabBarClicked, ok_, [this] { ok_->setFocus(); });
    connect(pages_, &QTabWidget::currentChanged, this,
            [this](int page) { mainWindow().onEvent([page] { frmKeyCode_SSTab1_Click(page); }); });
    setFirst(pages_);

    progress_ = new QProgressBar;
    progress_->setObjectName("ProgressBar1");
    progress_->setTextVisible(false);
    auto* const foot = new QHBoxLayout;
    for (const int side : {0, 1}) {
        auto* const choice = mark<QRadioButton>(indexed("Option1", side), frmKeyCode.Option1[side].selected,
                                                [side] { frmKeyCode_Option1_Click(side); });
        choice->setText(side == 0 ? "Left handed" : "Right handed");
        foot->addWidget(choice);
    }
    foot->addWidget(progress_, 1);
    foot->addStretch(1);
    foot->addWidget(actionButton("Command5", "Default", frmKeyCode_Command5_Click, &frmKeyCode.Command5));
    foot->addWidget(actionButton("Command2", "All clear", frmKeyCode_Command2_Click));
    foot->addWidget(ok_);
    foot->addWidget(actionButton("Command1", "Cancel", frmKeyCode_Command1_Click));

    auto* const whole = new QVBoxLayout(this);
    whole->addWidget(pages_);
    whole->addWidget(functionKeys());
    whole->addLayout(foot);
    whole->setSizeConstraint(QLayout::SetFixedSize);
}

/// A click on a button leaves the box in visit first, on systems too where buttons do not take the focus.
QPushButton* KeyCodeWindow::actionButton(const char* name, const char* caption, void (*clicked)(),
                                         const Button* record)
{
    QPushButton* const made = button(name, caption, clicked, record);
    connect(made, &QPushButton::pressed, made, [made] { made->setFocus(); });
    return made;
}

QWidget* KeyCodeWindow::framed(const char* name, const char* title, KeyMap* map)
{
    maps_ += map;
    auto* const frame = new QGroupBox(title);
    frame->setObjectName(name);
    auto* const inside = new QVBoxLayout(frame);
    inside->addWidget(map, 0, Qt::AlignCenter);
    return frame;
}

QWidget* KeyCodeWindow::definitionPage()
{
    auto* const map = new KeyMap;
    for (int key = 1; key <= lastKeyBox; ++key) {
        QLineEdit* box = nullptr;
        if (key <= keysPerLayer) {
            auto* const taking = new CaptureBox(
                mainWindow(), {[key](int code) { frmKeyCode_Text1_KeyDown(key, code); },
                               [key](char32_t character) { frmKeyCode_Text1_KeyPress(key, character); },
                               [key](int code) { frmKeyCode_Text1_KeyUp(key, code); }});
            tellHowToUse(*taking);
            box = taking;
            box->setObjectName(indexed("Text1", key));
            watchVisits(
                box, [key] { frmKeyCode_Text1_GotFocus(key); }, [key] { frmKeyCode_Text1_LostFocus(key); });
        } else {
            box = readBox(indexed("Text1", key));
        }
        box->setAccessibleName(QString("Definition of key %1").arg(key));
        map->add(box, frmKeyCode.Text1[key]);
    }
    characterCode_ = fixedText("Label4", {});
    auto* const page = new QWidget;
    auto* const rows = new QGridLayout(page);
    rows->addWidget(fixedText("Label6", "Place cursor in the text box and press a key of your choice: "), 0,
                    0);
    rows->addWidget(fixedText("Label3", "Ascii code: "), 0, 2);
    rows->addWidget(characterCode_, 0, 3);
    rows->addWidget(framed("Frame1", "Key definition map", map), 1, 0, 1, 4);
    rows->setColumnStretch(1, 1);
    rows->setColumnMinimumWidth(3, fontMetrics().horizontalAdvance("0000"));
    return page;
}

QWidget* KeyCodeWindow::codePage()
{
    auto* const map = new KeyMap;
    for (int key = 1; key <= lastKeyBox; ++key) {
        QLineEdit* const box = readBox(indexed("Text2", key));
        box->setAccessibleName(QString("Code of key %1").arg(key));
        map->add(box, frmKeyCode.Text2[key]);
    }
    auto* const page = new QWidget;
    auto* const rows = new QGridLayout(page);
    rows->addWidget(fixedText(indexed("Label7", 4), "Place the cursor in the box and press [F1] key: "), 0,
                    0);
    CaptureBox* const functionRow = functionBox(4);
    functionRow->setAccessibleName("[F1] key, for the nine function keys from it on");
    rows->addWidget(functionRow, 0, 1);
    rows->addWidget(fixedText("Label1", "Key code: "), 0, 3);
    rows->addWidget(label("Label2", frmKeyCode.Label2.caption), 0, 4);
    rows->addWidget(framed("Frame2", "Key code map (automatically linked to the definition map)", map), 1, 0,
                    1, 5);
    rows->setColumnStretch(2, 1);
    return page;
}

QWidget* KeyCodeWindow::numberPage()
{
    auto* const map = new KeyMap;
    for (int position = 1; position <= lastKeyBox; ++position) {
        const QString name = indexed("Text3", position);
        QLineEdit* box = nullptr;
        if (position <= keysPerLayer) {
            box = new NumberBox(*ok_);
            box->setObjectName(name);
            connect(box, &QLineEdit::textEdited, this, [this, position](const QString& text) {
                mainWindow().onEvent([&] { frmKeyCode.Text3[position].text = heldText(text); });
            });
            watchVisits(
                box, [position] { frmKeyCode_Text3_GotFocus(position); },
                [position] { frmKeyCode_Text3_LostFocus(position); });
        } else {
            box = readBox(name);
        }
        box->setAccessibleName(QString("Key number at position %1").arg(position));
        map->add(box, frmKeyCode.Text3[position]);
    }
    auto* const page = new QWidget;
    auto* const rows = new QVBoxLayout(page);
    rows->addStretch(1);
    rows->addWidget(framed("Frame3", "Ergodex key number map", map));
    return page;
}

CaptureBox* KeyCodeWindow::functionBox(int function)
{
    auto* const box = new CaptureBox(
        mainWindow(), {[function](int code) { frmKeyCode_Text4_KeyDown(function, code); },
                       [function](char32_t character) { frmKeyCode_Text4_KeyPress(function, character); },
                       [function](int code) { frmKeyCode_Text4_KeyUp(function, code); }});
    box->setObjectName(indexed("Text4", function));
    box->setFixedWidth(fontMetrics().horizontalAdvance("[ScrollLock]") + 16);
    watchVisits(
        box, [function] { frmKeyCode_Text4_GotFocus(function); },
        [function] { frmKeyCode_Text4_LostFocus(function); });
    tellHowToUse(*box);
    functions_[function] = box;
    return box;
}

QWidget* KeyCodeWindow::functionKeys()
{
    auto* const frame = new QGroupBox("Functional keys");
    frame->setObjectName("Frame4");
    auto* const grid = new QGridLayout(frame);
    const char* const captions[] = {
        "\"Shift-1\" key  (ex. [;], [Up], etc.]): ", "\"Shift-2\" key  (ex. [p], [Down], etc.): ",
        "\"Undo\" key  (ex. [BkSp], [Delete], etc.): ", "\"Save\" key  (ex. [=], [Return], etc.): "};
    for (int function = 0; function < 4; ++function) {
        const int row = function / 2;
        const int column = 3 * (function % 2);
        QLabel* const caption = fixedText(indexed("Label7", function), captions[function]);
        CaptureBox* const box = functionBox(function);
        box->setAccessibleName(captions[function]);
        grid->addWidget(caption, row, column);
        grid->addWidget(box, row, column + 1);
    }
    grid->setColumnStretch(2, 1);
    grid->setColumnStretch(5, 1);
    grid->addWidget(actionButton("Command3", "Notice", frmKeyCode_Command3_Click), 0, 6, 2, 1,
                    Qt::AlignVCenter);
    return frame;
}

void KeyCodeWindow::presentMore()
{
    for (KeyMap* const map : maps_)
        map->present();
    for (int function = 0; function < 5; ++function) {
        const KeyBox& record = frmKeyCode.Text4[function];
        functions_[function]->setText(shownText(record.text));
        showRed(*functions_[function], record.red);
    }
    characterCode_->setText(shownText(frmKeyCode.Label4.caption));
    const QSignalBlocker quiet(pages_);
    pages_->setCurrentIndex(frmKeyCode.SSTab1);
    const ProgressBar& bar = frmKeyCode.ProgressBar1;
    progress_->setVisible(bar.visible);
    progress_->setMaximum(bar.max);
    progress_->setValue(bar.value);
}

/// On the window or a frame: the box in visit is left.
void KeyCodeWindow::mousePressEvent(QMouseEvent*)
{
    ok_->setFocus();
}

KeyNoteWindow::KeyNoteWindow(MainWindow& main)
    : FormWindow(main, "frmNote", "Message from TallyStrata", frmNote.visible, frmNote_Command1_Click)
{
    auto* const whole = new QVBoxLayout(this);
    QLabel* const heading = fixedText("Label1", "Useful information:");
    QFont letters = heading->font();
    letters.setBold(true);
    heading->setFont(letters);
    whole->addWidget(heading);
    int number = 2;
    for (const char* const paragraph : keyNoteParagraphs)
        whole->addWidget(fixedText(QString("Label%1").arg(number++), shownText(paragraph).trimmed()));
    QPushButton* const ok = button("Command1", "OK", frmNote_Command1_Click);
    ok->setDefault(true);
    setFirst(ok);
    whole->addLayout(buttonRow({ok}));
    whole->setSpacing(12);
    whole->setContentsMargins(20, 16, 20, 16);
    whole->setSizeConstraint(QLayout::SetFixedSize);
}
