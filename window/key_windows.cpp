#include "window/key_windows.h"

#include "core/character_rule.h"
#include "core/sheet_state.h"
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

std::vector<ControlRow> keyEditorControls()
{
    KeyCodeForm& f = frmKeyCode;
    return {{.name = "Text1",
             .record = f.Text1.data(),
             .first = 1,
             .last = keysPerLayer,
             .entered = frmKeyCode_Text1_GotFocus,
             .left = frmKeyCode_Text1_LostFocus,
             .keyDown = frmKeyCode_Text1_KeyDown,
             .keyPress = frmKeyCode_Text1_KeyPress,
             .keyUp = frmKeyCode_Text1_KeyUp},
            {.name = "Text1", .record = f.Text1.data(), .first = keysPerLayer + 1, .last = lastKeyBox},
            {.name = "Text2", .record = f.Text2.data(), .first = 1, .last = lastKeyBox},
            {.name = "Text3",
             .record = f.Text3.data(),
             .first = 1,
             .last = keysPerLayer,
             .edited = frmKeyCode_Text3_Edited,
             .entered = frmKeyCode_Text3_GotFocus,
             .left = frmKeyCode_Text3_LostFocus},
            {.name = "Text3", .record = f.Text3.data(), .first = keysPerLayer + 1, .last = lastKeyBox},
            {.name = "Text4",
             .record = f.Text4.data(),
             .first = 0,
             .last = 4,
             .entered = frmKeyCode_Text4_GotFocus,
             .left = frmKeyCode_Text4_LostFocus,
             .keyDown = frmKeyCode_Text4_KeyDown,
             .keyPress = frmKeyCode_Text4_KeyPress,
             .keyUp = frmKeyCode_Text4_KeyUp},
            {.name = "Option1",
             .record = f.Option1.data(),
             .first = 0,
             .last = 1,
             .clicked = frmKeyCode_Option1_Click},
            {.name = "Label2", .record = &f.Label2},
            {.name = "Label4", .record = &f.Label4},
            {.name = "ProgressBar1", .record = &f.ProgressBar1},
            {.name = "Command1", .clicked = frmKeyCode_Command1_Click},
            {.name = "Command2", .clicked = frmKeyCode_Command2_Click},
            {.name = "Command3", .clicked = frmKeyCode_Command3_Click},
            {.name = "Command4", .clicked = frmKeyCode_Command4_Click},
            {.name = "Command5", .record = &f.Command5, .clicked = frmKeyCode_Command5_Click},
            {.name = "DeliveredKeys", .clicked = frmKeyCode_DeliveredKeys_Click}};
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
    : FormWindow(main, "frmKeyCode", "Key settings", keyEditorControls())
{
    ok_ = actionButton("Command4", "OK");
    ok_->setDefault(true);

    pages_ = new QTabWidget;
    pages_->setObjectName("SSTab1");
    pages_->setAccessibleName("Key maps");
    pages_->addTab(definitionPage(), "Key definition");
    pages_->addTab(codePage(), "Key code");
    pages_->addTab(numberPage(), "Key number");
    connect(pages_, &QTabWidget::tabBarClicked, ok_, [this] { ok_->setFocus(); });
    connect(pages_, &QTabWidget::currentChanged, this,
            [this](int page) { runEvent([page] { frmKeyCode_SSTab1_Click(page); }); });
    setFirst(pages_);

    auto* const progress = bind(new QProgressBar, "ProgressBar1");
    progress->setTextVisible(false);
    auto* const foot = new QHBoxLayout;
    for (const int side : {0, 1}) {
        auto* const choice = mark<QRadioButton>("Option1", side);
        choice->setText(side == 0 ? "Left handed" : "Right handed");
        foot->addWidget(choice);
    }
    foot->addWidget(progress, 1);
    foot->addStretch(1);
    foot->addWidget(actionButton("Command5", "Default"));
    foot->addWidget(actionButton("DeliveredKeys", "Delivered keys"));
    foot->addWidget(actionButton("Command2", "All clear"));
    foot->addWidget(ok_);
    foot->addWidget(actionButton("Command1", "Cancel"));

    auto* const whole = new QVBoxLayout(this);
    whole->addWidget(pages_);
    whole->addWidget(functionKeys());
    whole->addLayout(foot);
    whole->setSizeConstraint(QLayout::SetFixedSize);
}

/// A click on a button leaves the box in visit first, on systems too where buttons do not take the focus.
QPushButton* KeyCodeWindow::actionButton(const char* name, const char* caption)
{
    QPushButton* const made = button(name, caption);
    connect(made, &QPushButton::pressed, made, [made] { made->setFocus(); });
    return made;
}

QLineEdit* KeyCodeWindow::readBox(const char* name, int index)
{
    QLineEdit* const made = bind(new QLineEdit, name, index);
    made->setEnabled(false);
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
            auto* const taking = bind(new CaptureBox, "Text1", key);
            tellHowToUse(*taking);
            taking->goOnTo([this, key] { return nextStop("Text1", key, keyBehind(key)); });
            box = taking;
        } else {
            box = readBox("Text1", key);
        }
        box->setAccessibleName(QString("Definition of key %1").arg(key));
        map->add(box, frmKeyCode.Text1[key]);
    }
    auto* const page = new QWidget;
    auto* const rows = new QGridLayout(page);
    rows->addWidget(fixedText("Label6", "Place cursor in the text box and press a key of your choice: "), 0,
                    0);
    rows->addWidget(fixedText("Label3", "Ascii code: "), 0, 2);
    rows->addWidget(label("Label4"), 0, 3);
    rows->addWidget(framed("Frame1", "Key definition map", map), 1, 0, 1, 4);
    rows->setColumnStretch(1, 1);
    rows->setColumnMinimumWidth(3, fontMetrics().horizontalAdvance("0000"));
    return page;
}

QWidget* KeyCodeWindow::codePage()
{
    auto* const map = new KeyMap;
    for (int key = 1; key <= lastKeyBox; ++key) {
        QLineEdit* const box = readBox("Text2", key);
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
    rows->addWidget(label("Label2"), 0, 4);
    rows->addWidget(framed("Frame2", "Key code map (automatically linked to the definition map)", map), 1, 0,
                    1, 5);
    rows->setColumnStretch(2, 1);
    return page;
}

QWidget* KeyCodeWindow::numberPage()
{
    auto* const map = new KeyMap;
    for (int position = 1; position <= lastKeyBox; ++position) {
        QLineEdit* box = nullptr;
        if (position <= keysPerLayer) {
            box = bind(new NumberBox(*ok_), "Text3", position);
        } else {
            box = readBox("Text3", position);
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
    auto* const box = bind(new CaptureBox, "Text4", function);
    box->setFixedWidth(fontMetrics().horizontalAdvance("[ScrollLock]") + 16);
    tellHowToUse(*box);
    box->goOnTo([this, function] { return nextStop("Text4", function, functionBehind(function)); });
    return box;
}

/// The last box stays, and another key does not take the place of the one just taken.
QWidget* KeyCodeWindow::nextStop(const char* name, int taken, int next) const
{
    QWidget* const box = boxNamed(name, next);
    return box == nullptr && sheet.LastKeyDown != noKeyYet ? boxNamed(name, taken) : box;
}

QWidget* KeyCodeWindow::boxNamed(const char* name, int index) const
{
    return findChild<QLineEdit*>(indexed(name, index));
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
    grid->addWidget(actionButton("Command3", "Notice"), 0, 6, 2, 1, Qt::AlignVCenter);
    return frame;
}

void KeyCodeWindow::presentMore()
{
    for (KeyMap* const map : maps_)
        map->present();
    const QSignalBlocker quiet(pages_);
    pages_->setCurrentIndex(frmKeyCode.SSTab1);
}

/// On the window or a frame: the box in visit is left.
void KeyCodeWindow::mousePressEvent(QMouseEvent*)
{
    ok_->setFocus();
}

KeyNoteWindow::KeyNoteWindow(MainWindow& main)
    : FormWindow(main, "frmNote", "Message from TallyStrata",
                 {{.name = "Command1", .clicked = frmNote_Command1_Click}})
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
    QPushButton* const ok = button("Command1", "OK");
    ok->setDefault(true);
    setFirst(ok);
    whole->addLayout(buttonRow({ok}));
    whole->setSpacing(12);
    whole->setContentsMargins(20, 16, 20, 16);
    whole->setSizeConstraint(QLayout::SetFixedSize);
}
