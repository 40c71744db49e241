#pragma once

#include <QLabel>

/// A caption that the user may have made long: what finds no room is cut with dots, and the tip shows it
/// whole. A tip of its own shows while nothing is cut.
class ElidedLabel : public QLabel {
public:
    ElidedLabel();
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent*) override;

private:
    QString cut() const;
};
