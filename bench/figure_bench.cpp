// The figure of the fullest sheet, 250 samples of 135 taxa. Limits: plan 5 milliseconds, Grimm's clusters 1,
// PDF 200, plan and preview together 50.

#include "bench/full_sheet.h"
#include "bench/report.h"
#include "figure/plan_figure.h"
#include "files/data_sheet_reader.h"
#include "platform/page_svg.h"
#include "platform/qt/page_files.h"
#include "platform/qt/page_painter.h"

#include <QApplication>
#include <QPainter>
#include <chrono>

static FigureData fullData()
{
    const std::string text = fullSheetText();
    SheetTables sheet;
    DataSheetReader reader(text, sheet);
    reader.readPath();
    reader.readSerials();
    reader.readNames();
    for (int row = 1; row <= taxonSlots; ++row)
        reader.readTaxon(row);
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
    const auto milliseconds = [](auto&& work) {
        const auto begin = std::chrono::steady_clock::now();
        work();
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
    };
    QImage screen(1100, 650, QImage::Format_RGB32); // the preview of the whole page
    for (int round = 0; round < 31; ++round) {
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
            writing.push_back(milliseconds([&] { pagePdf(plan.page); }));
    }
    report("plan the fullest figure", median(planning), "ms", 5);
    report("Grimm's clusters of 250 samples of 135 taxa", median(clustering), "ms", 1);
    report("plan it and paint the preview", median(showing), "ms", 50);
    report("its PDF file", median(writing), "ms", 200);
    return 0;
}
