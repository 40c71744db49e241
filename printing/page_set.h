#pragma once

#include "platform/page.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// How wide a UTF-8 text is in the letters of pages, as a multiple of their size.
using LetterWidth = std::function<double(std::string_view text, bool italic)>;

/// The pages of one document, filled line by line from the top. Lengths are millimetres from the left margin,
/// sizes of letters points; texts are UTF-8.
class PageSet {
public:
    /// `title` stands at the top of each page, its number at the foot.
    PageSet(double width, double height, std::string title, LetterWidth letterWidth);

    /// Between the margins.
    double width() const;
    /// How many lines of `pitch` still fit on the page.
    int linesLeft(double pitch) const;
    /// `subtitle`: what of the document stands on this page; may be empty.
    void newPage(const std::string& subtitle);
    /// What comes next stands lower by as much.
    void down(double pitch) { y_ += pitch; }
    void text(double x, double points, std::string text, Anchor anchor = Anchor::start, bool italic = false);
    /// A thin line below what was written last.
    void rule(double from, double to);
    /// In mm.
    double widthOf(std::string_view text, double points, bool italic = false) const;
    /// The text, or its beginning and an ellipsis if it is wider than `room`.
    std::string fitted(std::string text, double points, double room, bool italic = false) const;
    /// All pages, numbered.
    std::vector<Page> finished() const;

private:
    PageText letters(std::string text, double points, Anchor anchor, bool italic) const;

    Page empty_;
    LetterWidth letterWidth_;
    std::vector<Page> pages_;
    double y_ = 0;
};
