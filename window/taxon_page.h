#pragma once

#include "platform/twips.h"

#include <QWidget>

class CellBox;
class QLabel;
class QPainter;

/// One page of the sheet: the 45 cells of a layer, each a name, a count and a key index, or the name of its
/// key while keys count. It places them by their records and scales them, letters included, with its own
/// size; where it is wider than its design, the cells are too, so that names have room. A row that is
/// coloured, as the one counted last or those found, gets a frame, since its colour alone is not enough for
/// every eye.
class TaxonPage : public QWidget {
public:
    TaxonPage(int layer, QWidget* parent);

    CellBox* nameBox(int slot) const { return names_[slot - firstSlot_]; }
    CellBox* countBox(int slot) const { return counts_[slot - firstSlot_]; }
    QLabel* indexLabel(int slot) const { return indexes_[slot - firstSlot_]; }
    int firstSlot() const { return firstSlot_; }
    int lastSlot() const { return firstSlot_ + 44; }

    /// Brings places and letter sizes up to date with the records and the page's size. Cheap when nothing
    /// changed.
    void placeCells();
    /// Modify template mode: the cells take keys and look so, and Tab goes row by row through the names, then
    /// through the counts.
    void makeEditable(bool editable);
    /// Brings the frames up to date with the rows' colours.
    void frameCells();
    /// Shows the names of the keys, or not.
    void showKeyNames(bool shown);

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void showEvent(QShowEvent*) override;

private:
    QRect scaled(int left, int top, int width, int height) const;
    QRect cellRect(int slot) const;
    double frameWidth() const;
    int letterPixels(int points) const;
    void sizeLetters(QWidget* widget, int points) const;
    void paintKeyNames(QPainter& painter, const QRegion& where) const;
    QColor blockColour() const;

    int firstSlot_;
    QList<int> framed_;                          ///< slots
    double pixelsPerTwip_ = 1.0 / twipsPerPixel; ///< of heights and letters
    double pixelsAcross_ = 1.0 / twipsPerPixel;  ///< of widths
    bool keyNamesShown_ = false;
    QList<int> placed_; ///< what the cells were last placed by
    QList<CellBox*> names_;
    QList<CellBox*> counts_;
    QList<QLabel*> indexes_;
};
