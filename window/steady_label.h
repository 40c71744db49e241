#pragma once

#include <QLabel>

/// A label with room for its widest text in whatever letters it has, so that nothing moves when its text
/// changes.
class SteadyLabel : public QLabel {
public:
    explicit SteadyLabel(const QString& widest) : widest_(widest) {}
    QSize sizeHint() const override { return withRoom(QLabel::sizeHint()); }
    QSize minimumSizeHint() const override { return withRoom(QLabel::minimumSizeHint()); }

private:
    QSize withRoom(const QSize& size) const
    {
        return size.expandedTo({fontMetrics().horizontalAdvance(widest_), 0});
    }

    QString widest_;
};
