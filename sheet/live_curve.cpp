#include "sheet/live_curve.h"

#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "platform/ports.h"

#include <algorithm>
#include <limits>

namespace {

constexpr Colour red = RGB(255, 0, 0);
constexpr Colour grey = RGB(100, 100, 100);
constexpr float individualsAcross = 1.24F; ///< width of the picture, in totals
constexpr float letterHeight = 9.33F;      ///< seven points

/// Points that share a column of pixels, in their order.
struct Column {
    int at = -1;
    int firstIndividual = 0;
    std::int16_t lowest = 0;
    std::int16_t highest = 0;
    std::int16_t last = 0;
};

float across(int individual)
{
    return static_cast<float>(individual) * 10;
}

void drawScale(Drawing& drawing)
{
    const auto taxa = static_cast<float>(sheet.DiversityNow);
    const auto total = static_cast<float>(sheet.DiversityTotal);
    drawing.line(0, 0, 10 * total, 0, grey);
    drawing.line(0, 0, 0, 10 * taxa, grey);

    const std::string totalText = decimalText(sheet.DiversityTotal);
    const std::string taxaText = decimalText(sheet.DiversityNow);
    const auto totalDigits = static_cast<float>(totalText.size());
    const auto taxaDigits = static_cast<float>(taxaText.size());
    const auto print = [&](float x, float y, const std::string& text) {
        drawing.text(x, y, {text, letterHeight}, RGB(0, 0, 0));
    };
    print(0, -0.2F * taxa, "0");
    print((9.9F - 0.2F * totalDigits) * total, -0.2F * taxa, totalText);
    print(-0.45F * total, 0.9F * taxa, "0");
    print((-0.45F - 0.35F * taxaDigits) * total, 10.6F * taxa, taxaText);
}

void drawPicture()
{
    Surface& picture = frmMain.Picture2;
    if (sheet.DiversityTotal == 0) {
        picture.clearPicture();
        return;
    }
    const auto taxa = static_cast<float>(sheet.DiversityNow);
    const auto total = static_cast<float>(sheet.DiversityTotal);
    if (sheet.DiversityNow > 0) {
        picture.scale.top = taxa * 11.53F;
        picture.scale.height = -taxa * 13.4F;
    }
    picture.scale.left = -total * 1.32F;
    picture.scale.width = total * 12.4F;

    const float pixels = picture.width * picture.devicePixels / individualsAcross;
    Drawing drawing = planCurve(sheet.DiversityCurve, static_cast<int>(pixels));
    drawScale(drawing);
    picture.setPicture(std::move(drawing));
}

} // namespace

Drawing planCurve(const std::vector<std::int16_t>& curve, int columns)
{
    Drawing drawing;
    const auto total = static_cast<int>(curve.size()) - 1;
    if (total >= 1 && curve[1] != 0)
        drawing.line(0, curve[0], across(1), curve[1], red);

    Column column; // the one that is being filled
    const auto stroke = [&] {
        if (column.lowest != column.highest)
            drawing.line(across(column.firstIndividual), column.lowest, across(column.firstIndividual),
                         column.highest, red);
    };
    for (int n = 1; n <= total; ++n) {
        const std::int16_t point = curve[n];
        const bool joined = curve[n - 1] != 0 && point != 0;
        const int at = total <= columns ? n : static_cast<int>(std::int64_t{n} * columns / total);
        if (joined && at == column.at) {
            column.lowest = std::min(column.lowest, point);
            column.highest = std::max(column.highest, point);
        } else {
            stroke();
            if (joined)
                drawing.line(across(column.firstIndividual), column.last, across(n), point, red);
            column = {at, n, point, point, point};
        }
        column.last = point;
    }
    stroke();
    return drawing;
}

void DrawDiversity()
{
    const std::int32_t all = wholeNumber(frmMain.Text3[0].text);
    constexpr std::int32_t longest = std::numeric_limits<std::int16_t>::max();
    sheet.DiversityTotal = std::clamp(all, 0, longest);
    sheet.DiversityNow = 0;
    for (int slot = 1; slot <= taxonSlots; ++slot)
        if (wholeNumber(frmMain.Text2[slot].text) != 0)
            ++sheet.DiversityNow;

    auto& curve = sheet.DiversityCurve;
    curve.resize(static_cast<std::size_t>(sheet.DiversityTotal) + 1);
    curve[0] = 0;
    if (!sheet.WarnNotLatest && all >= 1 && all <= longest)
        curve[all] = static_cast<std::int16_t>(10 * sheet.DiversityNow);
    if (all == 1)
        curve[1] = 10;
    drawPicture();
}

void Picture2_Resize()
{
    if (!frmMain.Picture2.picture.marks.empty()) // an opened sheet begins without a curve
        drawPicture();
}

void mnuDiversityRB_Open()
{
    frmMain.mnuCopyDiversity.enabled = frmMain.mnuSaveDiversity.enabled = sheet.DiversityTotal != 0;
}

void mnuCopyDiversity_Click()
{
    const Surface& picture = frmMain.Picture2;
    ports.pictures->copy({picture.width,
                          picture.height,
                          {{0, 0, picture.width, picture.height, picture.scale, picture.picture}}});
}
