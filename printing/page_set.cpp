#include "printing/page_set.h"

#include <utility>

namespace {

constexpr double margin = 15;
constexpr double headRoom = 14; // from the margin to the first line
constexpr double footRoom = 8;
constexpr Colour ink = {0, 0, 0};

void dropLastCharacter(std::string& text)
{
    while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0) == 0x80)
        text.pop_back();
    if (!text.empty())
        text.pop_back();
}

} // namespace

PageSet::PageSet(double width, double height, std::string title, LetterWidth letterWidth)
    : letterWidth_(std::move(letterWidth))
{
    empty_.width = width;
    empty_.height = height;
    empty_.title = std::move(title);
}

double PageSet::width() const
{
    return empty_.width - 2 * margin;
}

int PageSet::linesLeft(double pitch) const
{
    return static_cast<int>((empty_.height - margin - footRoom - y_) / pitch);
}

void PageSet::newPage(const std::string& subtitle)
{
    pages_.push_back(empty_);
    constexpr double titlePoints = 12;
    constexpr double subtitlePoints = 9;
    y_ = margin + titlePoints * millimetresPerPoint;
    const double subtitleWidth = widthOf(subtitle, subtitlePoints);
    text(0, titlePoints, fitted(empty_.title, titlePoints, width() - subtitleWidth - 5));
    text(width(), subtitlePoints, subtitle, Anchor::end);
    y_ = margin + headRoom;
}

PageText PageSet::letters(std::string text, double points, Anchor anchor, bool italic) const
{
    PageText made;
    made.width = widthOf(text, points, italic);
    made.runs = {{std::move(text), italic}};
    made.points = points;
    made.anchor = anchor;
    made.colour = ink;
    return made;
}

void PageSet::text(double x, double points, std::string text, Anchor anchor, bool italic)
{
    if (!text.empty())
        pages_.back().text(margin + x, y_, letters(std::move(text), points, anchor, italic));
}

void PageSet::rule(double from, double to)
{
    constexpr double below = 1.2;
    Stroke stroke;
    stroke.colour = ink;
    stroke.points = 0.4;
    pages_.back().line(margin + from, y_ + below, margin + to, y_ + below, stroke);
}

double PageSet::widthOf(std::string_view text, double points, bool italic) const
{
    return letterWidth_(text, italic) * points * millimetresPerPoint;
}

std::string PageSet::fitted(std::string text, double points, double room, bool italic) const
{
    room += 1e-6; // of a sum of widths that this one is a part of
    if (widthOf(text, points, italic) <= room)
        return text;
    constexpr const char* ellipsis = "\xE2\x80\xA6";
    while (!text.empty() && widthOf(text + ellipsis, points, italic) > room)
        dropLastCharacter(text);
    return text + ellipsis;
}

std::vector<Page> PageSet::finished() const
{
    std::vector<Page> pages = pages_;
    for (std::size_t i = 0; i < pages.size(); ++i)
        pages[i].text(empty_.width - margin, empty_.height - margin,
                      letters("Page " + std::to_string(i + 1) + " of " + std::to_string(pages.size()), 8,
                              Anchor::end, false));
    return pages;
}
