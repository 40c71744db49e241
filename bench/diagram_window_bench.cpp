// The diagram of the fullest sheet on the screen: a full repaint of all columns beside one plain call of Qt
// that draws the lines of "Bar and curve" (limit: 1.5 times), and a key press with the diagram open to the
// repainted windows, with and without a dendrogram to dismiss, beside a key press without a diagram (limit:
// 33 milliseconds above it). In turn, in one run; medians.

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
#include <QElapsedTimer>
#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QTemporaryDir>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

double milliseconds(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void settle(int wait)
{
    const QDeadlineTimer deadline(wait);
    while (!deadline.hasExpired())
        QApplication::processEvents(QEventLoop::AllEvents, 5);
}

void repaints()
{
    struct Style {
        const char* name;
        DiagramStyle style;
    };
    constexpr Style styles[] = {{"Bar", DiagramStyle::bar},
                                {"Curve", DiagramStyle::curve},
                                {"Dot", DiagramStyle::dot},
                                {"Bar and curve", DiagramStyle::barAndCurve},
                                {"Dot and curve", DiagramStyle::dotAndCurve}};
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
    std::vector<double> painted[5];
    for (int round = 0; round < 21; ++round) {
        plain.push_back(milliseconds([&] {
            picture.fill(Qt::white);
            QPainter painter(&picture);
            painter.setPen(QPen(QColor(0, 128, 0), 1));
            painter.drawLines(lines.data(), static_cast<int>(lines.size()));
        }));
        for (int i = 0; i < 5; ++i)
            painted[i].push_back(milliseconds([&] {
                view.style = styles[i].style;
                picture.fill(Qt::white);
                QPainter painter(&picture);
                paintDrawing(painter, planDiagram(frmDiagram.plot, rows, view), view.scale, whole,
                             LineWidth::onePixel);
            }));
    }
    std::printf("one call of Qt for %zu lines: %.1f ms\n", lines.size(), median(plain));
    for (int i = 0; i < 5; ++i) {
        const double ratio = median(painted[i]) / median(plain);
        if (styles[i].style == DiagramStyle::barAndCurve)
            report("repaint of all columns, Bar and curve, to one call of Qt", ratio, "times", 1.5);
        else
            std::printf("repaint of all columns, %s: %.1f ms, %.2f times\n", styles[i].name,
                        median(painted[i]), ratio);
    }
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
            mnuCurve_Click();
            Slider2_Change(1);
        });
        settle(200);
    };
    opened();
    repaints();

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
    report("key press with the diagram open, above one without", median(with) - median(without), "ms", 33);
    report("key press that dismisses the dendrogram, above one without", median(dismissing) - median(without),
           "ms", 33);
    frmMain.Command5[0].enabled = false; // no question at the end
    return 0;
}
