#pragma once

#include <QWidget>

class QLayout;

/// Holds a total together with its alarm. The one that is watched has a frame in the colour of what is
/// chosen, and a wider one, since a colour alone is not enough for every eye.
class TotalFrame : public QWidget {
public:
    explicit TotalFrame(QLayout* inside);

    void setWatched(bool watched);
    bool isWatched() const { return watched_; }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    bool watched_ = false;
};
