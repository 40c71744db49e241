#include "window/find_window.h"

#include "core/key_grid.h"
#include "platform/qt/text.h"
#include "window/fitted_letters.h"
#include "window/main_window.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace {

constexpr QSize keySize(42, 24);
constexpr int lastMapKey = 51;

} // namespace

FindWindow::FindWindow(MainWindow& main)
    : FormWindow(main, "frmFind", "Find",
                 {{.name = "Text1", .record = &frmFind.Text1, .edited = frmFind_Text1_Edited},
                  {.name = "List1",
                   .record = &frmFind.List1,
                   .changed = frmFind_List1_Click,
                   .doubleClicked = frmFind_List1_DblClick},
                  {.name = "Command3", .record = &frmFind.Command3, .clicked = frmFind_Command3_Click},
                  {.name = "Command2", .clicked = frmFind_Command2_Click},
                  {.name = "Command1", .first = 0, .last = lastMapKey}})
{
    text_ = box("Text1");
    text_->setMinimumWidth(180);
    auto* const what = new QLabel("Find what:");
    what->setBuddy(text_);
    setFirst(text_);

    list_ = bind(new QListWidget, "List1");
    list_->setAccessibleName("Matching names");
    list_->setFixedHeight(6 * list_->fontMetrics().lineSpacing() + 2 * list_->frameWidth());
    list_->installEventFilter(this);

    auto* const search = new QGridLayout;
    search->addWidget(what, 0, 0);
    search->addWidget(text_, 0, 1);
    search->addWidget(list_, 1, 0, 1, 2);
    search->addLayout(buttonRow({button("Command3", "Count"), button("Command2", "Close")}), 2, 0, 1, 2);
    auto* const whole = new QHBoxLayout(this);
    whole->addLayout(search);
    whole->addSpacing(8);
    whole->addWidget(keyMap(), 0, Qt::AlignTop);
    whole->setSizeConstraint(QLayout::SetFixedSize);
}

QWidget* FindWindow::keyMap()
{
    auto* const map = new QWidget;
    map->setAccessibleName("Key map");
    keySink_ = bind(new QWidget(map), "Command1", 0);
    keySink_->setAccessibleName("Key map");
    keySink_->setFocusPolicy(Qt::ClickFocus);
    keySink_->setGeometry(0, 0, 1, 1);
    for (int place = 1; place <= lastMapKey; ++place) {
        QPushButton*& key = keys_[place] = bind(new QPushButton(map), "Command1", place);
        key->setAutoDefault(false);
        if (place <= keysPerLayer)
            key->setFixedSize(keySize);
        else
            key->setFixedHeight(keySize.height());
        key->setFocusPolicy(Qt::ClickFocus);
        key->setFocusProxy(keySink_);
    }

    auto* const grid = new QGridLayout;
    grid->setSpacing(3);
    for (const int gap : {3, 7})
        grid->setColumnMinimumWidth(gap, 8);
    for (int row = 0; row < keyGridRows; ++row)
        for (int column = 0; column < keyGridColumns; ++column)
            grid->addWidget(keys_[keyGrid[row][column]], row,
                            column + column / 3); // a gap between the blocks
    grid->setRowMinimumHeight(5, 4);
    constexpr int shiftKeys[] = {46, 47, 48, 51};
    auto* const shifts = new QHBoxLayout;
    shifts->setSpacing(3);
    for (const int key : shiftKeys)
        shifts->addWidget(keys_[key]);
    grid->addLayout(shifts, 6, 0, 1, 11);

    auto* const whole = new QHBoxLayout(map);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(keys_[49], 0, Qt::AlignTop);
    whole->addLayout(grid);
    whole->addWidget(keys_[50], 0, Qt::AlignTop);
    return map;
}

void FindWindow::presentMore()
{
    for (int place = 1; place <= lastMapKey; ++place) {
        QPushButton& key = *keys_[place];
        const MapKey& record = frmFind.Command1[place];
        key.setText(shownText(record.caption).replace('&', "&&"));
        key.setToolTip(shownText(record.caption));
        const bool toTake = record.backColor != frmFind.Command1[0].backColor;
        QFont letters = font();
        letters.setBold(toTake); // colour alone is not enough for every eye
        key.setAccessibleDescription(toTake ? "Counts what was found" : "");
        if (place <= keysPerLayer)
            letters = fittedLetters(letters, key.text(), keySize.width() - 8);
        if (letters == key.font())
            continue;
        key.setFont(letters);
        QPalette colours = palette();
        if (toTake) {
            const Colour& back = record.backColor;
            colours.setColor(QPalette::Button, QColor(back.red, back.green, back.blue));
            colours.setColor(QPalette::ButtonText, Qt::black);
        }
        key.setPalette(colours);
    }
}

/// The arrows move in the list while the search text is being typed, and Enter goes on without the mouse.
bool FindWindow::eventFilter(QObject* target, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && (target == text_ || target == list_)) {
        auto& key = static_cast<QKeyEvent&>(*event);
        if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
            runEvent(frmFind_Enter);
            return true;
        }
        const int step = key.key() == Qt::Key_Down ? 1 : key.key() == Qt::Key_Up ? -1 : 0;
        if (target == text_ && step != 0) {
            runEvent([step] { frmFind_List1_Click(frmFind.List1.chosen + step); });
            return true;
        }
    }
    return FormWindow::eventFilter(target, event);
}

void FindWindow::showEvent(QShowEvent* event)
{
    FormWindow::showEvent(event);
    const QRect below = mainWindow().geometry();
    const int titleBar = mainWindow().geometry().top() - mainWindow().frameGeometry().top();
    adjustSize();
    move(below.center().x() - width() / 2, below.bottom() - height() - titleBar);
}
