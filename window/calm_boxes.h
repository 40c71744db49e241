#pragma once

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEvent>

/// The wheel over a box scrolls the panel: it must not change a setting in passing.
class CalmSpin : public QDoubleSpinBox {
protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

class CalmChoice : public QComboBox {
protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};
