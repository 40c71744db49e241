#include "trials/window_fixture_test.h"

#include "diagram/coniss_window.h"
#include "diagram/diagram_form.h"
#include "diagram/diagram_window.h"
#include "diagram/figures.h"
#include "files/open_sheet.h"
#include "window/diagram_window.h"
#include "window/surface_view.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QImage>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QSlider>
#include <QTest>

namespace {

class DiagramWidgets : public WindowTest {
protected:
    QWidget* diagram = nullptr;

    void SetUp() override
    {
        frmDiagram = DiagramForm();
        WindowTest::SetUp();
        window->onEvent([] { openDropped(EXAMPLE); });
        ASSERT_EQ(sheet.SampleCount, 63);
        named<QAction>("mnuCurve")->trigger();
        for (QWidget* const top : QApplication::topLevelWidgets())
            if (top->objectName() == "frmDiagram")
                diagram = top;
        ASSERT_NE(diagram, nullptr);
        ASSERT_TRUE(waitFor([this] { return diagram->isVisible() && frmDiagram.chromeHeight > 0; }));
        settle();
    }
    void TearDown() override
    {
        window->onEvent(closeDiagram);
        frmMain.Command5[0].enabled = false;
    }
    template <class Widget>
    Widget* part(const char* name)
    {
        Widget* const found = diagram->findChild<Widget*>(name);
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
};

int inkIn(const QImage& image)
{
    int ink = 0;
    for (int y = 0; y < image.height(); y += 3)
        for (int x = 0; x < image.width(); ++x)
            ink += image.pixelColor(x, y).lightness() < 128 ? 1 : 0;
    return ink;
}

} // namespace

TEST_F(DiagramWidgets, showTheDiagramWithNamesThatStandOverTheirColumns)
{
    EXPECT_EQ(diagram->windowTitle(), "Diagram - [dallican_pollen]");
    auto* const view = part<SurfaceView>("Picture1");
    EXPECT_EQ(view->width(), 495);
    EXPECT_EQ(part<SurfaceView>("Picture4")->geometry().left(), view->geometry().left());
    EXPECT_EQ(part<SurfaceView>("Picture4")->geometry().bottom() + 1, view->geometry().top());
    EXPECT_GT(inkIn(view->grab().toImage()), 1000);
    EXPECT_GT(inkIn(part<SurfaceView>("Picture4")->grab().toImage()), 200);
    for (const char* name : {"HScroll1", "Slider1", "Slider2", "UpDown1", "Frame3", "Check1", "Combo2",
                             "Text1", "Text2", "Command1", "StatusBar1", "Picture2", "Picture3"})
        EXPECT_NE(diagram->findChild<QWidget*>(name), nullptr) << name;
    for (const char* name : {"mnuSub1",
                             "mnuSub2",
                             "mnuAll",
                             "mnuBar",
                             "mnuArea",
                             "mnuDot",
                             "mnuCurve",
                             "mnuDotCurve",
                             "mnuDefaultDGColour",
                             "mnuCustomDGColour",
                             "mnuVertical",
                             "mnuHorizontal",
                             "mnuTaxaName",
                             "nmuConiss",
                             "mnuECC",
                             "mnuCopyDiagram",
                             "mnuCopyConiss",
                             "mnuSaveConiss",
                             "mnuCopyTaxaName",
                             "mnuCopyEOF"})
        EXPECT_NE(diagram->findChild<QAction*>(name), nullptr) << name;
    EXPECT_EQ(part<QAction>("mnuSub1")->text(), "Trees");
    EXPECT_FALSE(part<QAction>("mnuECC")->isVisible());
}

TEST_F(DiagramWidgets, controlsReachTheirHandlers)
{
    part<QSlider>("Slider1")->setValue(7);
    EXPECT_EQ(part<QComboBox>("Combo2")->currentText().toStdString(), sheet.SampleField(7, 2));
    part<QSlider>("Slider2")->setValue(0);
    EXPECT_EQ(frmDiagram.Slider2.value, 1);
    EXPECT_EQ(part<QSlider>("Slider2")->value(), 1);
    part<QScrollBar>("HScroll1")->setValue(30);
    EXPECT_EQ(frmDiagram.HScroll1.value, 30);
    part<QCheckBox>("Check1")->click();
    EXPECT_EQ(frmDiagram.Picture1.layer.marks.size(), 1);
    part<QAction>("mnuDot")->trigger();
    EXPECT_TRUE(part<QAction>("mnuDot")->isChecked() && !part<QAction>("mnuCurve")->isChecked());
    part<QAction>("mnuSub1")->trigger();
    EXPECT_TRUE(frmMain.Option1[1].selected);

    part<QAction>("nmuConiss")->trigger();
    settle();
    EXPECT_EQ(frmDiagram.Width, 15 * diagram->width());
    EXPECT_TRUE(diagram->width() == 649 + 200 || diagram->width() > diagram->screen()->size().width() - 50)
        << "as wide as the screen lets it be";
    EXPECT_GT(inkIn(part<SurfaceView>("Picture2")->grab().toImage()), 50);
    diagram->resize(1000, 700);
    settle();
    EXPECT_EQ(part<SurfaceView>("Picture1")->width(), 1000 - 154 - 200);
    EXPECT_EQ(sheet.DiagramWidth, 15000);
}

TEST_F(DiagramWidgets, keyCountsThereAndBringsTheMainWindowForward)
{
    sheet.WarnNotLatest = false;
    diagram->activateWindow();
    ASSERT_TRUE(waitFor([this] { return diagram->isActiveWindow(); }));
    EXPECT_TRUE(part<QSlider>("Slider1")->hasFocus());
    const std::string total = frmMain.Text3[0].text;
    pressQ(*diagram);
    EXPECT_NE(frmMain.Text3[0].text, total);
    EXPECT_TRUE(waitFor([this] { return window->isActiveWindow(); }));
}

TEST_F(DiagramWidgets, mouseDragsTheLineAndOpensThePopups)
{
    auto* const view = part<SurfaceView>("Picture1");
    const auto rowInView = [&](float row) {
        return QPoint(100, qRound(qreal{row - frmDiagram.Picture1.scale.top} /
                                  frmDiagram.Picture1.scale.height * view->height()));
    };
    QTest::mouseMove(view, rowInView(630));
    EXPECT_EQ(view->cursor().shape(), Qt::SizeVerCursor);
    QTest::mousePress(view, Qt::LeftButton, {}, rowInView(630));
    QTest::mouseMove(view, rowInView(10));
    QTest::mouseRelease(view, Qt::LeftButton, {}, rowInView(10));
    EXPECT_EQ(part<QSlider>("Slider1")->value(), 1);
    QTest::mousePress(view, Qt::RightButton, {}, rowInView(300));
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(QApplication::activePopupWidget()->objectName(), "RB1");
    QApplication::activePopupWidget()->close();
}

TEST_F(DiagramWidgets, picturesAreCopiedAsImageAndAsVectors)
{
    part<QAction>("mnuCopyDiagram")->trigger();
    const QMimeData* const data = QApplication::clipboard()->mimeData();
    const QImage image = qvariant_cast<QImage>(data->imageData());
    EXPECT_GE(image.width(), 2 * 495);
    EXPECT_GT(inkIn(image), 1000);
    EXPECT_TRUE(data->data("image/svg+xml").contains("<svg"));
    EXPECT_TRUE(data->data("application/pdf").startsWith("%PDF"));

    window->onEvent(nmuConiss_Click);
    const Figure whole = wholeFigure();
    const std::string svg = ports.pictures->encode(whole, PictureFormat::svg);
    EXPECT_NE(svg.find("Betula"), std::string::npos) << "a column beyond the view";
    const QImage png =
        QImage::fromData(QByteArray::fromStdString(ports.pictures->encode(whole, PictureFormat::png)));
    EXPECT_EQ(png.width(), static_cast<int>(std::ceil(whole.width * 3)));
}
