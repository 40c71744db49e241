#pragma once

#include <QFont>
#include <QLineEdit>

/// The box of a taxon's name or count. While it is only read, it draws no more than its text, since a page
/// has ninety of them; a name that is too long for it is set narrower, then its words are cut, and a single
/// word loses its middle, since names are told apart by their beginnings and their ends; where the end is to
/// be seen, it loses its beginning.
class CellBox : public QLineEdit {
public:
    explicit CellBox(QWidget* parent) : QLineEdit(parent) {}

    /// What of the name is on show.
    QString readText() const { return fitted().text; }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    struct Fitted {
        QString of;
        QFont letters;
        int room = -1;
        bool fromEnd = false;
        QString text;
        QFont narrowed;
    };
    const Fitted& fitted() const;

    mutable Fitted fitted_; ///< kept, since a key press paints boxes anew
};
