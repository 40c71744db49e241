// The figure of the fullest sheet, 250 samples of 135 taxa: its plan and Grimm's clusters beside the plain
// parsing and summing of the counts; its preview and its PDF file beside one call of Qt that draws as many
// lines.

#include "bench/full_sheet.h"
#include "bench/yardsticks.h"
#include "figure/plan_figure.h"
#include "files/data_sheet_reader.h"
#include "platform/page_svg.h"
#include "platform/qt/page_files.h"
#include "platform/qt/page_painter.h"

#include <QApplication>
#include <QPainter>

static FigureData fullData()
{
    const std::string text = fullSheetText();
    SheetTables sheet;
    readDataSheet(text, sheet);
    return figureData(sheet, "");
}

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const FigureData data = fullData();
    FigureSettings settings;
    settings.threshold = 0;
    settings.samples = 1;
    settings.width = 1200;
    settings.height = 700;
    const FigureShares shares = figureShares(data, settings.basis);
    std::vector<double> planning;
    std::vector<double> clustering;
    std::vector<double> showing;
    std::vector<double> writing;
    std::vector<double> sums;
    std::vector<double> plain;
    QImage screen(1100, 650, QImage::Format_RGB32); // the preview of the whole page
    std::vector<QLineF> lines; // from taxon to taxon and from sample to sample, as silhouettes go
    for (int taxon = 0; taxon < taxonSlots; ++taxon)
        for (int sample = 0; sample < sampleLimit; ++sample)
            lines.emplace_back(8.0 * taxon, 2.5 * sample, 8.0 * taxon + sample % 8, 2.5 * sample + 2.5);
    for (int round = 0; round < 31; ++round) {
        sums.push_back(sheetSumMilliseconds());
        plain.push_back(milliseconds([&] {
            QPainter painter(&screen);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.drawLines(lines.data(), static_cast<int>(lines.size()));
        }));
        FigurePlan plan;
        planning.push_back(milliseconds([&] { plan = planFigure(data, settings, pageLetterWidth); }));
        if (plan.layout.columns.size() != taxonSlots)
            return 1;
        clustering.push_back(
            milliseconds([&] { figureClusters(data, shares, settings.transform, ClusterMethod::grimm); }));
        showing.push_back(planning.back() + milliseconds([&] {
                              QPainter painter(&screen);
                              painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
                              painter.scale(1100 / plan.page.width, 1100 / plan.page.width);
                              paintPage(painter, plan.page);
                          }));
        if (round < 7)
            writing.push_back(milliseconds([&] { pagesPdf({&plan.page, 1}); }));
    }
    report("plan the fullest figure", median(planning), median(sums), 25);
    report("Grimm's clusters of 250 samples of 135 taxa", median(clustering), median(sums), 5);
    report("plan it and paint the preview", median(showing), median(plain), 5);
    report("its PDF file", median(writing), median(plain), 20);
    return 0;
}
