#include "platform/page_svg.h"

#include <array>
#include <charconv>
#include <cmath>

namespace {

class SvgWriter {
public:
    explicit SvgWriter(const Page& page) : page_(page) { out_.reserve(16 * page.points.size() + 4096); }

    std::string write()
    {
        head();
        std::size_t mark = 0;
        for (std::size_t group = 0; group < page_.groups.size(); ++group) {
            const PageGroup& one = page_.groups[group];
            for (; mark < one.first; ++mark)
                writeMark(page_.marks[mark]);
            if (one.first == one.end)
                continue; // an empty group is in an editor's way
            beginGroup(one, group);
            for (; mark < one.end; ++mark)
                writeMark(page_.marks[mark]);
            out_ += "</g>\n";
        }
        for (; mark < page_.marks.size(); ++mark)
            writeMark(page_.marks[mark]);
        out_ += "</svg>\n";
        return std::move(out_);
    }

private:
    void head()
    {
        out_ += R"(<?xml version="1.0" encoding="UTF-8"?>)"
                "\n"
                R"(<svg xmlns="http://www.w3.org/2000/svg" version="1.1")";
        attribute("width", page_.width, "mm");
        attribute("height", page_.height, "mm");
        out_ += " viewBox=\"0 0 ";
        number(page_.width);
        out_ += ' ';
        number(page_.height);
        out_ += "\" font-family=\"";
        for (const char* const family : pageLetters)
            (out_ += std::string_view(family).find(' ') == std::string_view::npos
                         ? family
                         : "'" + std::string(family) + "'") += ", ";
        out_ += "sans-serif\" stroke-linejoin=\"round\">\n";
        element("title", page_.title);
        element("desc", page_.description);
        out_ += "<rect";
        attribute("width", page_.width);
        attribute("height", page_.height);
        out_ += " fill=\"#FFFFFF\"/>\n";
    }

    void beginGroup(const PageGroup& group, std::size_t index)
    {
        const std::string clip = "clip-" + std::to_string(index + 1);
        if (group.clip) {
            out_ += "<clipPath id=\"" + clip + "\"><rect";
            attribute("x", group.clip->left);
            attribute("y", group.clip->top);
            attribute("width", group.clip->right - group.clip->left);
            attribute("height", group.clip->bottom - group.clip->top);
            out_ += "/></clipPath>\n";
        }
        out_ += "<g";
        if (!group.id.empty())
            attribute("id", group.id);
        if (group.left)
            attribute("data-left", *group.left);
        if (group.width)
            attribute("data-width", *group.width);
        if (group.clip)
            attribute("clip-path", "url(#" + clip + ")");
        out_ += ">\n";
        element("title", group.title);
    }

    void writeMark(const PageMark& mark)
    {
        const PagePoint* const at = page_.points.data() + mark.firstPoint;
        switch (mark.kind) {
        case PageMark::Kind::line:
            if (mark.points == 2)
                oneLine(mark, at[0], at[1]);
            else
                lines(mark, at);
            break;
        case PageMark::Kind::curve:
            begin("polyline", mark);
            pointList(at, mark.points);
            paint(mark);
            break;
        case PageMark::Kind::area:
            begin("polygon", mark);
            pointList(at, mark.points);
            paint(mark);
            break;
        case PageMark::Kind::circle:
            begin("circle", mark);
            attribute("cx", at->x);
            attribute("cy", at->y);
            attribute("r", mark.radius);
            paint(mark);
            break;
        case PageMark::Kind::text:
            text(mark, *at);
            break;
        }
    }

    void oneLine(const PageMark& mark, PagePoint from, PagePoint to)
    {
        begin("line", mark);
        attribute("x1", from.x);
        attribute("y1", from.y);
        attribute("x2", to.x);
        attribute("y2", to.y);
        paint(mark);
    }

    void lines(const PageMark& mark, const PagePoint* at)
    {
        if (mark.points == 0)
            return;
        begin("path", mark);
        out_ += " d=\"";
        for (std::uint32_t i = 0; i < mark.points; ++i) {
            out_ += i % 2 == 0 ? 'M' : 'L';
            number(at[i].x);
            out_ += ' ';
            number(at[i].y);
        }
        out_ += '"';
        paint(mark);
    }

    void pointList(const PagePoint* at, std::uint32_t points)
    {
        out_ += " points=\"";
        for (std::uint32_t i = 0; i < points; ++i) {
            if (i > 0)
                out_ += ' ';
            number(at[i].x);
            out_ += ',';
            number(at[i].y);
        }
        out_ += '"';
    }

    void text(const PageMark& mark, PagePoint at)
    {
        const PageText& letters = page_.texts[mark.text];
        begin("text", mark);
        attribute("x", at.x);
        attribute("y", at.y);
        attribute("font-size", letters.points * millimetresPerPoint);
        if (letters.anchor != Anchor::start)
            attribute("text-anchor", letters.anchor == Anchor::middle ? "middle" : "end");
        if (letters.colour != Colour())
            attribute("fill", colourText(letters.colour));
        if (letters.angle != 0) {
            out_ += " transform=\"rotate(";
            number(-letters.angle);
            out_ += ' ';
            number(at.x);
            out_ += ' ';
            number(at.y);
            out_ += ")\"";
        }
        out_ += " xml:space=\"preserve\">";
        for (const TextRun& run : letters.runs) {
            if (run.italic)
                out_ += "<tspan font-style=\"italic\">";
            escaped(run.text);
            if (run.italic)
                out_ += "</tspan>";
        }
        out_ += "</text>\n";
    }

    void begin(const char* element, const PageMark& mark)
    {
        (out_ += '<') += element;
        if (!mark.id.empty())
            attribute("id", mark.id);
    }

    void paint(const PageMark& mark)
    {
        if (mark.kind != PageMark::Kind::line)
            attribute("fill", mark.fill ? colourText(*mark.fill) : std::string("none"));
        if (mark.stroke.points > 0) {
            attribute("stroke", colourText(mark.stroke.colour));
            attribute("stroke-width", mark.stroke.points * millimetresPerPoint);
        }
        if (mark.stroke.points > 0 && mark.stroke.dash > 0) {
            out_ += " stroke-dasharray=\"";
            number(mark.stroke.dash);
            out_ += ' ';
            number(mark.stroke.space);
            out_ += '"';
        }
        out_ += "/>\n";
    }

    void element(const char* name, const std::string& text)
    {
        if (text.empty())
            return;
        out_ += std::string("<") + name + ">";
        escaped(text);
        out_ += std::string("</") + name + ">\n";
    }

    void attribute(const char* name, double value, const char* unit = "")
    {
        ((out_ += ' ') += name) += "=\"";
        number(value);
        (out_ += unit) += '"';
    }
    void attribute(const char* name, std::string_view value)
    {
        ((out_ += ' ') += name) += "=\"";
        escaped(value);
        out_ += '"';
    }

    /// To a thousandth, without zeros at the end.
    void number(double value)
    {
        auto thousandths = static_cast<long long>(std::llround(value * 1000));
        if (thousandths < 0)
            out_ += '-';
        thousandths = std::abs(thousandths);
        std::array<char, 24> digits{};
        char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), thousandths / 1000).ptr;
        out_.append(digits.data(), end);
        const int rest = static_cast<int>(thousandths % 1000);
        if (rest == 0)
            return;
        const char decimals[] = {static_cast<char>('0' + rest / 100), static_cast<char>('0' + rest / 10 % 10),
                                 static_cast<char>('0' + rest % 10)};
        out_ += '.';
        out_.append(decimals, rest % 100 == 0 ? 1 : rest % 10 == 0 ? 2 : 3);
    }

    static std::string colourText(Colour colour)
    {
        constexpr const char* digits = "0123456789ABCDEF";
        std::string text = "#";
        for (const int part : {colour.red, colour.green, colour.blue})
            (text += digits[part / 16]) += digits[part % 16];
        return text;
    }

    void escaped(std::string_view text)
    {
        for (const char c : text)
            if (c == '&')
                out_ += "&amp;";
            else if (c == '<')
                out_ += "&lt;";
            else if (c == '>')
                out_ += "&gt;";
            else if (c == '"')
                out_ += "&quot;";
            else if (static_cast<unsigned char>(c) < 0x20)
                out_ += ' '; // XML knows no control characters
            else
                out_ += c;
    }

    const Page& page_;
    std::string out_;
};

} // namespace

std::string svgText(const Page& page)
{
    return SvgWriter(page).write();
}
