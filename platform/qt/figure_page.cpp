#include "platform/qt/figure_page.h"

#include "platform/code_page.h"
#include "platform/qt/drawing_painter.h"
#include "platform/qt/text.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace {

constexpr double mmPerPixel = 25.4 / 96;
constexpr double pointsPerPixel = 0.75;
constexpr double hairline = 0.5 * pointsPerPixel;

class PanelPage {
public:
    PanelPage(Page& page, const Figure::Panel& panel)
        : page_(page), panel_(panel), perX_(mmPerPixel * panel.width / panel.scale.width),
          perY_(mmPerPixel * panel.height / panel.scale.height)
    {
    }

    void draw()
    {
        const double left = mmPerPixel * panel_.left;
        const double top = mmPerPixel * panel_.top;
        PageGroup group;
        group.clip = {left, top, left + mmPerPixel * panel_.width, top + mmPerPixel * panel_.height};
        page_.begin(group);
        const Mark* before = nullptr;
        for (const Mark& mark : panel_.drawing.marks) {
            drawOne(mark, before);
            before = &mark;
        }
        page_.end();
    }

private:
    double x(float user) const { return mmPerPixel * panel_.left + (user - panel_.scale.left) * perX_; }
    double y(float user) const { return mmPerPixel * panel_.top + (user - panel_.scale.top) * perY_; }

    void drawOne(const Mark& mark, const Mark* before)
    {
        switch (mark.kind) {
        case Mark::Kind::line:
            if (before == nullptr || before->kind != Mark::Kind::line || before->pen != mark.pen)
                page_.mark(PageMark::Kind::line, {mark.pen, hairline});
            if (mark.x1 != mark.x2 || mark.y1 != mark.y2) { // a share of 0 must not leave a dot
                page_.point(x(mark.x1), y(mark.y1));
                page_.point(x(mark.x2), y(mark.y2));
            }
            break;
        case Mark::Kind::box:
            page_.mark(PageMark::Kind::area, {}).fill = mark.fill;
            page_.point(x(mark.x1), y(mark.y1));
            page_.point(x(mark.x2), y(mark.y1));
            page_.point(x(mark.x2), y(mark.y2));
            page_.point(x(mark.x1), y(mark.y2));
            break;
        case Mark::Kind::circle: {
            PageMark& circle = page_.mark(PageMark::Kind::circle, {mark.pen, hairline});
            circle.fill = mark.fill;
            circle.radius = mark.x2 * std::abs(perX_);
            page_.point(x(mark.x1), y(mark.y1));
            break;
        }
        case Mark::Kind::text:
            text(mark);
            break;
        }
    }

    void text(const Mark& mark)
    {
        const Letters& letters = panel_.drawing.texts[mark.letters];
        const QFontMetricsF metrics(fontOf(letters, 96));
        QString text = shownText(letters.text);
        if (letters.longest > 0)
            text = metrics.elidedText(text, Qt::ElideRight, letters.longest);
        PageText made;
        made.runs = {{text.toStdString(), letters.italic}};
        made.points = letters.height * pointsPerPixel;
        made.angle = letters.upwards ? 90 : 0;
        made.colour = mark.pen;
        made.width = metrics.horizontalAdvance(text) * mmPerPixel;
        const double ascent = metrics.ascent() * mmPerPixel;
        const double left = std::max(x(mark.x1), mmPerPixel * panel_.left); // no digit is cut
        page_.text(left + (letters.upwards ? ascent : 0), y(mark.y1) + (letters.upwards ? 0 : ascent),
                   std::move(made));
    }

    Page& page_;
    const Figure::Panel& panel_;
    const double perX_;
    const double perY_;
};

} // namespace

Page pageOf(const Figure& figure)
{
    Page page;
    page.width = figure.width * mmPerPixel;
    page.height = figure.height * mmPerPixel;
    page.title = "TallyStrata";
    for (const Figure::Panel& panel : figure.panels)
        PanelPage(page, panel).draw();
    return page;
}
