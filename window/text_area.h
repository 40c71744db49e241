#pragma once

#include <QPlainTextEdit>

/// A box of several lines. What is pasted or dropped is cut where the box is full: laid out whole, a very
/// long text would make the window wait.
class TextArea : public QPlainTextEdit {
public:
    using QPlainTextEdit::QPlainTextEdit;

protected:
    void insertFromMimeData(const QMimeData* source) override;
};
