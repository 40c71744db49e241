#pragma once

#include "window/bound_window.h"

#include <QDialog>

struct Form;
class QAbstractButton;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

/// A small window above the main one. It is on show while its form says so; its frame and Esc close the form.
class FormWindow : public QDialog, public BoundWindow {
public:
    /// `name`: of the form, and of the window. `table`: its controls.
    FormWindow(MainWindow& main, const char* name, const QString& title, std::vector<ControlRow> table);

    const Form& form() const { return form_; }
    /// Brings the window up to date with its record.
    void present();

protected:
    // Makers of what most windows have. Each binds what it makes to its row of the table.
    QLineEdit* box(const char* name, int index = noIndex);
    QPlainTextEdit* area(const char* name, int index = noIndex);
    QPushButton* button(const char* name, const QString& caption, int index = noIndex);
    QLabel* label(const char* name, int index = noIndex);
    /// A check box or a radio button.
    template <class Widget>
    Widget* mark(const char* name, int index = noIndex)
    {
        return bind(new Widget(this), name, index);
    }
    /// A label that never changes.
    QLabel* fixedText(const QString& name, const QString& text);
    /// Buttons at the right end of a row.
    static QLayout* buttonRow(std::initializer_list<QWidget*> buttons);

    MainWindow& mainWindow() const { return main_; }
    /// What present() brings up to date beside the bound controls.
    virtual void presentMore() {}
    /// What has the focus when the window opens.
    void setFirst(QWidget* widget) { first_ = widget; }

    bool eventFilter(QObject* target, QEvent* event) override;
    void reject() override;

private:
    void place();

    MainWindow& main_;
    const Form& form_;
    QWidget* first_ = nullptr;
    QObject* visited_ = nullptr;
};
