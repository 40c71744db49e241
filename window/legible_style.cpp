#include "window/legible_style.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <algorithm>
#include <cmath>

namespace {

constexpr double enough = 4.6; // styles shade what a text stands on a little

double luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

struct TextOnGround {
    QPalette::ColorRole text;
    QList<QPalette::ColorRole> grounds;
};

const QList<TextOnGround>& texts()
{
    static const QList<TextOnGround> all = {{QPalette::WindowText, {QPalette::Window, QPalette::Base}},
                                            {QPalette::Text, {QPalette::Base, QPalette::Window}},
                                            {QPalette::ButtonText, {QPalette::Button, QPalette::Window}},
                                            {QPalette::HighlightedText, {QPalette::Highlight}},
                                            {QPalette::ToolTipText, {QPalette::ToolTipBase}},
                                            {QPalette::Link, {QPalette::Base, QPalette::Window}},
                                            {QPalette::LinkVisited, {QPalette::Base, QPalette::Window}}};
    return all;
}

/// What a menu bar shows where it has more entries than room. The system's picture is dark in dark themes
/// too, and reading the first picture loads the plug-ins for all formats, for which a start would wait.
QPixmap moreToTheRight(const QColor& colour)
{
    constexpr int size = 16;
    constexpr int sharp = 2;
    QPixmap picture(QSize(size, size) * sharp);
    picture.setDevicePixelRatio(sharp);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1.5));
    for (const int left : {4, 8})
        painter.drawPolyline(QPolygon({{left, 4}, {left + 4, 8}, {left, 12}}));
    return picture;
}

} // namespace

QColor mixed(const QColor& from, const QColor& to, double share)
{
    const auto part = [share](int a, int b) { return static_cast<int>(std::lround(a + share * (b - a))); };
    return {part(from.red(), to.red()), part(from.green(), to.green()), part(from.blue(), to.blue())};
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor legible(const QColor& text, const QColor& strong, const QList<QColor>& grounds)
{
    const auto reads = [&grounds](const QColor& colour) {
        return std::all_of(grounds.begin(), grounds.end(),
                           [&colour](const QColor& ground) { return contrast(colour, ground) >= enough; });
    };
    constexpr int steps = 16;
    for (int step = 0; step < steps; ++step)
        if (const QColor colour = mixed(text, strong, step / double(steps)); reads(colour))
            return colour;
    return strong;
}

void LegibleStyle::polish(QPalette& colours)
{
    QProxyStyle::polish(colours);
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (const TextOnGround& pair : texts()) {
            QList<QColor> grounds;
            for (const QPalette::ColorRole ground : pair.grounds)
                grounds += colours.color(group, ground);
            if (pair.text == QPalette::ButtonText)
                grounds += grounds.front().lighter(145); // buttons are shaded
            const bool onDark = contrast(Qt::white, grounds.front()) > contrast(Qt::black, grounds.front());
            colours.setColor(
                group, pair.text,
                legible(colours.color(group, pair.text), onDark ? Qt::white : Qt::black, grounds));
        }
        // Many themes leave it to be made of the text, half transparent.
        const QColor text = colours.color(group, QPalette::Text);
        const QColor ground = colours.color(group, QPalette::Base);
        colours.setColor(group, QPalette::PlaceholderText, legible(mixed(text, ground, 0.4), text, {ground}));
        // A dark theme without a colour for every other row would get a white one.
        if (contrast(text, colours.color(group, QPalette::AlternateBase)) < enough)
            colours.setColor(group, QPalette::AlternateBase, mixed(ground, text, 0.05));
    }
}

QIcon LegibleStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                                 const QWidget* widget) const
{
    if (picture == SP_ToolBarHorizontalExtensionButton)
        return moreToTheRight(QGuiApplication::palette().color(QPalette::ButtonText));
    return QProxyStyle::standardIcon(picture, option, widget);
}
