#pragma once

#include "platform/ports.h"

#include <QByteArray>

/// The forms in which a figure leaves the program.
QByteArray figurePng(const Figure& figure);
QByteArray figureSvg(const Figure& figure);
QByteArray figurePdf(const Figure& figure);

/// The system's clipboard.
class ClipboardPictures : public Pictures {
public:
    void copy(const Figure& figure) override;
};
