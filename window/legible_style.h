#pragma once

#include <QProxyStyle>

/// The system's style with texts that everybody can read: at least 4.5 to 1 between a text and what it stands
/// on, in light and dark themes, links and disabled texts included. The theme's own colours are kept where
/// they reach that.
class LegibleStyle : public QProxyStyle {
public:
    using QProxyStyle::polish;
    /// Runs for the palette of the program whenever the theme changes.
    void polish(QPalette& colours) override;
    QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                       const QWidget* widget) const override;
};

/// The colour that is `share` of the way, 0 to 1.
QColor mixed(const QColor& from, const QColor& to, double share);
/// Contrast of two colours as the Web Content Accessibility Guidelines define it, 1 to 21.
double contrast(const QColor& one, const QColor& other);
/// `text`, or if it has too little contrast to one of the grounds the first colour on the way to `strong`
/// that has enough.
QColor legible(const QColor& text, const QColor& strong, const QList<QColor>& grounds);
