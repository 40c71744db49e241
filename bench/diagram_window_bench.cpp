// The diagram of the fullest sheet on the screen, beside one plain call of Qt that draws the lines of "Bar
// and curve": a full repaint of all columns; and what a key press with the diagram open, with and without a
// dendrogram to dismiss, takes to the repainted windows above a key press without a diagram. In turn, in one
// run; medians.

#include "app/program.h"
#include "bench/full_sheet.h"
#include "bench/report.h"
#include "core/main_keys.h"
#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "diagram/coniss_window.h"
#include "diagram/diagram_view.h"
#include "diagram/diagram_window.h"
#include "files/open_sheet.h"
#include "platform/qt/drawing_painter.h"
#include "trials/delivered_copy.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QTemporaryDir>
#include <cstdio>
#include <vector>

namespace {

void settle(int wait)
{
    const QDeadlineTimer deadline(wait);
    while (!deadline.hasExpired())
        QApplication::processEvents(QEventLoop::AllEvents, 5);
}

/// Gives the time of the plain call.
double repaints()
{
    DiagramView view = diagramView();
    view.scale.width = frmDiagram.plot.ColumnLeft[taxonSlots + 1];
    QPixmap picture(static_cast<int>(view.scale.width * pixelsPerUnit), 900);
    const QRectF whole(QPointF(), picture.size());
    const std::vector<float> rows = diagramRows();

    std::vector<QLineF> lines;
    const Drawing drawing = planDiagram(frmDiagram.plot, rows, view);
    for (const Mark& mark : drawing.marks)
        if (mark.kind == Mark::Kind::line)
            lines.emplace_back(mark.x1 * pixelsPerUnit, (mark.y1 - view.scale.top) * 900 / view.scale.height,
                               mark.x2 * pixelsPerUnit, (mark.y2 - view.scale.top) * 900 / view.scale.height);
    std::vector<double> plain;
    std::vector<double> painted[std::size(diagramStyles)];
    for (int round = 0; round < 21; ++round) {
        plain.push_back(milliseconds([&] {
            picture.fill(Qt::white);
            QPainter painter(&picture);
            painter.setPen(QPen(QColor(0, 128, 0), 1));
            painter.drawLines(lines.data(), static_cast<int>(lines.size()));
        }));
        for (std::size_t i = 0; i < std::size(diagramStyles); ++i)
            painted[i].push_back(milliseconds([&] {
                view.paintColumn = diagramStyles[i].paintColumn;
                picture.fill(Qt::white);
                QPainter painter(&picture);
                paintDrawing(painter, planDiagram(frmDiagram.plot, rows, view), view.scale, whole,
                             LineWidth::onePixel);
            }));
    }
    for (std::size_t i = 0; i < std::size(diagramStyles); ++i) {
        const bool dots =
            diagramStyles[i].paintColumn == paintDots || diagramStyles[i].paintColumn == paintDotsAndCurve;
        report(("repaint of all columns, " + std::string(diagramStyles[i].name)).c_str(), median(painted[i]),
               median(plain), dots ? 12 : 1.5);
    }
    return median(plain);
}

void press(MainWindow& window)
{
    window.onEvent([] { Form_KeyDown('Q', 0); });
    QApplication::sendPostedEvents();
    QApplication::processEvents();
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const DeliveredCopy delivered(DELIVERED_FOLDER);
    Program program(delivered.path());
    MainWindow& window = program.window();
    const QTemporaryDir folder;
    const QString path = folder.filePath("full.csv");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return 1;
    file.write(QByteArray::fromStdString(fullSheetText()));
    file.close();
    window.onEvent([&] { openDropped(path.toStdString()); });
    sheet.WarnNotLatest = false;

    const auto closed = [&] { window.onEvent(closeDiagram); };
    const auto opened = [&] {
        window.onEvent([] {
            mnuDiagramStyle_Click(styleAtStart);
            Slider2_Change(1);
        });
        settle(200);
    };
    opened();
    const double plain = repaints();

    std::vector<double> without;
    std::vector<double> with;
    std::vector<double> dismissing;
    for (int round = 0; round < 11; ++round) {
        closed();
        settle(100);
        without.push_back(milliseconds([&] { press(window); }));
        opened();
        with.push_back(milliseconds([&] { press(window); }));
        settle(100);
        window.onEvent(nmuConiss_Click);
        settle(100);
        dismissing.push_back(milliseconds([&] { press(window); }));
        settle(100);
    }
    report("key press with the diagram open, above one without", median(with) - median(without), plain, 2);
    report("key press that dismisses the dendrogram, above one without", median(dismissing) - median(without),
           plain, 2);
    frmMain.Command5[0].enabled = false; // no question at the end
    return 0;
}
