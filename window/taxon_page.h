#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

/// One page of the sheet: the 45 cells of a layer, each a name, a count and a key index. It places them by
/// their records and scales them, letters included, with its own size. A row that is coloured, as the one
/// counted last or those found, gets a frame, since its colour alone is not enough for every eye.
class TaxonPage : public QWidget {
public:
    explicit TaxonPage(int layer);

    QLineEdit* nameBox(int slot) const { return names_[slot - firstSlot_]; }
    QLineEdit* countBox(int slot) const { return counts_[slot - firstSlot_]; }
    QLabel* indexLabel(int slot) const { return indexes_[slot - firstSlot_]; }
    int firstSlot() const { return firstSlot_; }
    int lastSlot() const { return firstSlot_ + 44; }

    /// Brings places and letter sizes up to date with the records and the page's size. Cheap when nothing
    /// changed.
    void placeCells();
    /// Modify template mode: the cells take keys and look so, and Tab goes from name to count to the next
    /// cell, row by row.
    void makeEditable(bool editable);
    /// Brings the frames up to date with the rows' colours.
    void frameCells();

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    QRect scaled(int left, int top, int width, int height) const;
    QRect cellRect(int slot) const;
    double frameWidth() const;
    void sizeLetters(QWidget* widget, int points) const;

    int firstSlot_;
    QList<int> framed_; ///< slots
    double pixelsPerTwip_ = 1.0 / 15;
    int leftMargin_ = 0;
    QList<int> placed_; ///< what the cells were last placed by
    QList<QLineEdit*> names_;
    QList<QLineEdit*> counts_;
    QList<QLabel*> indexes_;
};
