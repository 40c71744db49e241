#pragma once

#include "keys/key_editor.h"

#include <QWidget>

class QLineEdit;

/// A key map of frmKeyCode: boxes that stand where their records say, as the keys stand on the keyboard. Its
/// size follows the letters, so that the longest name of a key fits.
class KeyMap : public QWidget {
public:
    KeyMap();
    void add(QLineEdit* box, const KeyBox& record);
    void present();

protected:
    void paintEvent(QPaintEvent*) override;

private:
    struct Entry {
        QLineEdit* box;
        const KeyBox* record;
    };
    QList<Entry> entries_;
    double across_; ///< pixels per twip
    double down_;
};

/// Letters of a box, red and bold while a commit has found it equal to another.
void showRed(QWidget& box, bool red);
