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
#include <QSignalBlocker>

namespace {

constexpr QSize keySize(42, 24);

} // namespace

FindWindow::FindWindow(MainWindow& main)
    : FormWindow(main, "frmFind", "Find", frmFind.visible, frmFind_Command2_Click), main_(main)
{
    // No box of the sheet: what is typed here goes into no file, so it keeps to no character rule.
    text_ = new QLineEdit;
    text_->setObjectName("Text1");
    text_->setMinimumWidth(180);
    text_->installEventFilter(this);
    connect(text_, &QLineEdit::textEdited, this, [this](const QString& text) {
        main_.onEvent([&] {
            frmFind.Text1.text = heldText(text);
            frmFind_Text1_Change();
        });
    });
    auto* const what = new QLabel("Find what:");
    what->setBuddy(text_);
    setFirst(text_);

    list_ = new QListWidget;
    list_->setObjectName("List1");
    list_->setAccessibleName("Matching names");
    list_->setFixedHeight(6 * list_->fontMetrics().lineSpacing() + 2 * list_->frameWidth());
    list_->installEventFilter(this);
    connect(list_, &QListWidget::currentRowChanged, this,
            [this](int line) { main_.onEvent([line] { frmFind_List1_Click(line); }); });
    connect(list_, &QListWidget::itemClicked, this,
            [this] { main_.onEvent([line = list_->currentRow()] { frmFind_List1_Click(line); }); });
    connect(list_, &QListWidget::itemDoubleClicked, this, [this] { main_.onEvent(frmFind_List1_DblClick); });

    count_ = button("Command3", "Count", frmFind_Command3_Click);

    auto* const search = new QGridLayout;
    search->addWidget(what, 0, 0);
    search->addWidget(text_, 0, 1);
    search->addWidget(list_, 1, 0, 1, 2);
    search->addLayout(buttonRow({count_, button("Command2", "Close", frmFind_Command2_Click)}), 2, 0, 1, 2);
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
    keySink_ = new QWidget(map);
    keySink_->setObjectName(indexed("Command1", 0));
    keySink_->setAccessibleName("Key map");
    keySink_->setFocusPolicy(Qt::ClickFocus);
    keySink_->setGeometry(0, 0, 1, 1);
    for (int place = 1; place <= 51; ++place) {
        QPushButton*& key = keys_[place] = new QPushButton(map);
        key->setObjectName(indexed("Command1", place));
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
    if (frmFind.Text1.text != heldText(text_->text()))
        text_->setText(shownText(frmFind.Text1.text));
    presentList();
    presentKeyMap();
    count_->setEnabled(frmFind.Command3.enabled);
}

void FindWindow::presentList()
{
    QStringList names;
    for (const std::string& name : frmFind.List1.items)
        names += shownText(name);
    const QSignalBlocker quiet(list_);
    bool same = names.size() == list_->count();
    for (int line = 0; same && line < list_->count(); ++line)
        same = list_->item(line)->text() == names[line];
    if (!same) {
        list_->clear();
        list_->addItems(names);
    }
    if (list_->currentRow() != frmFind.List1.chosen)
        list_->setCurrentRow(frmFind.List1.chosen);
}

void FindWindow::presentKeyMap()
{
    for (int place = 1; place <= 51; ++place) {
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
            main_.onEvent(frmFind_Enter);
            return true;
        }
        const int step = key.key() == Qt::Key_Down ? 1 : key.key() == Qt::Key_Up ? -1 : 0;
        if (target == text_ && step != 0) {
            main_.onEvent([step] { frmFind_List1_Click(frmFind.List1.chosen + step); });
            return true;
        }
    }
    return FormWindow::eventFilter(target, event);
}

void FindWindow::showEvent(QShowEvent* event)
{
    FormWindow::showEvent(event);
    const QRect below = main_.geometry();
    const int titleBar = main_.geometry().top() - main_.frameGeometry().top();
    adjustSize();
    move(below.center().x() - width() / 2, below.bottom() - height() - titleBar);
}
