#pragma once

#include "platform/controls.h"

#include <QDialog>
#include <functional>
#include <string_view>

class MainWindow;
class QAbstractButton;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

/// What a box of one line sets off beside showing its record.
struct BoxHandlers {
    std::function<void()> entered = {}; ///< it gets the focus
    std::function<void()> left = {};    ///< it loses the focus
    /// What the user typed, with the caret; without this it goes into the record alone.
    std::function<void(std::string_view text, int caret)> edited = {};
};

/// A small window above the main one. It is on show while its record says so; its frame and Esc do what
/// Cancel does. What the user types goes into the record; what a handler writes there shows again.
class FormWindow : public QDialog {
public:
    FormWindow(MainWindow& main, const char* name, const QString& title, const bool& visible,
               void (*cancel)());

    /// Brings the window up to date with its record.
    void present();

protected:
    /// A box of one line bound to a record.
    QLineEdit* box(const QString& name, TextBox& record, BoxHandlers handlers = {});
    QPlainTextEdit* area(const QString& name, TextBox& record);
    QPushButton* button(const QString& name, const QString& caption, std::function<void()> clicked,
                        const Button* record = nullptr);
    /// Buttons at the right end of a row.
    static QLayout* buttonRow(std::initializer_list<QWidget*> buttons);
    QLabel* label(const QString& name, const std::string& caption);
    /// A label that never changes.
    QLabel* fixedText(const QString& name, const QString& text);
    /// `entered` runs when a visit of a widget begins and `left` when it ends. A message or another program
    /// in front ends none.
    void watchVisits(QWidget* widget, std::function<void()> entered, std::function<void()> left);
    MainWindow& mainWindow() const { return main_; }
    /// A check box or a radio button. A click runs the handler, and `marked` tells what shows.
    template <class Widget>
    Widget* mark(const QString& name, const bool& marked, const std::function<void()>& clicked)
    {
        auto* const made = new Widget(this);
        made->setObjectName(name);
        bindMark(made, marked, clicked);
        return made;
    }
    /// What present() brings up to date beside the boxes.
    virtual void presentMore() {}
    /// The box that has the focus when the window opens.
    void setFirst(QWidget* widget) { first_ = widget; }

    bool eventFilter(QObject* target, QEvent* event) override;
    void reject() override;

private:
    void bindMark(QAbstractButton* widget, const bool& marked, std::function<void()> clicked);

    MainWindow& main_;
    const bool& shouldShow_;
    void (*cancel_)();
    QWidget* first_ = nullptr;
    QList<std::function<void()>> shows_;
    QHash<QObject*, std::pair<std::function<void()>, std::function<void()>>> focusHandlers_;
    QObject* visited_ = nullptr;
};
