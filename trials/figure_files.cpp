// Writes the figure of a data sheet as SVG, PDF, PNG (300 dots an inch) and TIFF, and again, for
// tools/compare_figures. Arguments: the sheet, the folder, and optionally width and height in millimetres.

#include "figure/plan_figure.h"
#include "files/data_sheet_reader.h"
#include "platform/page_svg.h"
#include "platform/qt/page_files.h"
#include "platform/qt/page_painter.h"

#include <QApplication>
#include <QFile>
#include <cstdio>

static bool write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName("TallyStrata");
    if (argc < 3)
        return 2;
    QFile file(argv[1]);
    if (!file.open(QIODevice::ReadOnly))
        return 2;
    const std::string text = file.readAll().toStdString();
    SheetTables sheet;
    readDataSheet(text, sheet);
    FigureSettings settings;
    settings.order = TaxonOrder::groupWa;
    settings.width = argc > 3 ? QByteArray(argv[3]).toDouble() : 240;
    settings.height = argc > 4 ? QByteArray(argv[4]).toDouble() : 150;
    const FigureData data = figureData(sheet, argv[1]);
    FigurePlan plan = planFigure(data, settings, pageLetterWidth);
    for (const double threshold : {0.5, 3.0, 5.0, 7.0, 10.0})
        if (!plan.faults.empty()) {
            settings.threshold = threshold;
            plan = planFigure(data, settings, pageLetterWidth);
        }
    for (const std::string& fault : plan.faults)
        std::puts(fault.c_str());
    const QString folder = argv[2];
    for (const char* const name : {"/figure", "/again"})
        if (!write(folder + name + ".svg", QByteArray::fromStdString(svgText(plan.page))) ||
            !write(folder + name + ".pdf", pagesPdf({&plan.page, 1})) ||
            !write(folder + name + ".png", pngOf(pageImage(plan.page, 300))) ||
            !write(folder + name + ".tif", QByteArray::fromStdString(pageTiff(plan.page, 300))))
            return 1;
    return plan.faults.empty() ? 0 : 1;
}
