#include "window/form_window.h"

#include "core/character_rule.h"
#include "core/forms.h"
#include "core/sheet_state.h"
#include "window/capture_box.h"
#include "window/elided_label.h"
#include "window/main_window.h"
#include "window/text_area.h"

#include <QApplication>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

FormWindow::FormWindow(MainWindow& main, const char* name, const QString& title,
                       std::vector<ControlRow> table)
    : QDialog(&main), BoundWindow(*this, main, std::move(table)), main_(main), form_(formNamed(name))
{
    setObjectName(name);
    setWindowTitle(title);
    setModal(true);
}

void FormWindow::present()
{
    const bool shouldShow = form_.visible;
    if (!shouldShow && !isVisible())
        return;
    showControls();
    presentMore();
    if (shouldShow == isVisible())
        return;
    if (!shouldShow)
        visited_ = nullptr;
    if (shouldShow && (layout() == nullptr || layout()->sizeConstraint() != QLayout::SetFixedSize))
        resize(size().boundedTo(screen()->availableGeometry().size() - QSize(8, 40))); // with its frame
    if (shouldShow && isModal())
        main_.keepManualReadable(*this);
    if (shouldShow)
        place();
    setVisible(shouldShow);
    if (shouldShow && first_ != nullptr)
        first_->setFocus();
    if (auto* const box = qobject_cast<QLineEdit*>(first_); shouldShow && box != nullptr)
        box->selectAll(); // typing replaces what it holds
    if (!shouldShow && QApplication::activeModalWidget() == nullptr)
        main_.activateWindow(); // a question in between may have left the keyboard with no window at all
}

/// In the middle of the main window, or of the screen while that is not there; with all of its frame on the
/// screen.
void FormWindow::place()
{
    if (!testAttribute(Qt::WA_Resized)) {
        adjustSize();
        setAttribute(Qt::WA_Resized, false); // its next content may want another size
    }
    const QRect free = screen()->availableGeometry();
    QRect frame(QPoint(), size() + (main_.frameSize() - main_.size()));
    frame.moveCenter(main_.isVisible() ? main_.frameGeometry().center() : free.center());
    move(std::max(free.left(), std::min(frame.left(), free.right() - frame.width())),
         std::max(free.top(), std::min(frame.top(), free.bottom() - frame.height())));
}

QLineEdit* FormWindow::box(const char* name, int index)
{
    QLineEdit* const made = bind(new QLineEdit(this), name, index);
    made->setMinimumWidth(220);
    return made;
}

QPlainTextEdit* FormWindow::area(const char* name, int index)
{
    QPlainTextEdit* const made = bind(new TextArea(this), name, index);
    made->setTabChangesFocus(true);
    made->setFixedHeight(4 * made->fontMetrics().lineSpacing());
    return made;
}

QPushButton* FormWindow::button(const char* name, const QString& caption, int index)
{
    QPushButton* const made = bind(new QPushButton(caption, this), name, index);
    made->setAutoDefault(false);
    return made;
}

QLabel* FormWindow::label(const char* name, int index)
{
    auto* const made = new ElidedLabel;
    made->setParent(this);
    made->setMaximumWidth(360); // captions of additional info are the user's own
    return bind(made, name, index);
}

QLabel* FormWindow::fixedText(const QString& name, const QString& text)
{
    auto* const made = new QLabel(text, this);
    made->setObjectName(name);
    made->setTextFormat(Qt::PlainText);
    return made;
}

QLayout* FormWindow::buttonRow(std::initializer_list<QWidget*> buttons)
{
    auto* const row = new QHBoxLayout;
    row->addStretch(1);
    for (QWidget* const one : buttons)
        row->addWidget(one);
    return row;
}

/// A visit of a box begins and ends with its focus. A message or another program in front ends none.
bool FormWindow::eventFilter(QObject* target, QEvent* event)
{
    const Control control = controlOf(target);
    if (control.kind == nullptr)
        return false;
    const auto comesBy = [target, event] { // Tab, on its way over boxes that take any key
        return dynamic_cast<CaptureBox*>(target) != nullptr &&
               !CaptureBox::beginsVisit(static_cast<QFocusEvent&>(*event).reason());
    };
    if (event->type() == QEvent::FocusIn && visited_ != target && !comesBy()) {
        visited_ = target;
        sheet.LastKeyDown = noKeyYet;
        if (control.kind->entered)
            runPassing([&] { control.kind->entered(control.index); });
    }
    if (event->type() == QEvent::FocusOut && visited_ == target) {
        const Qt::FocusReason reason = static_cast<QFocusEvent&>(*event).reason();
        const bool lasts = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
        if (form_.visible && lasts)
            return false;
        visited_ = nullptr;
        boxLeft(target);
        if (form_.visible && control.kind->left)
            runPassing([&] { control.kind->left(control.index); });
    }
    return false;
}

/// Esc and the frame's own close button.
void FormWindow::reject()
{
    runEvent(form_.close);
}
