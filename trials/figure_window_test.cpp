#include "trials/window_fixture_test.h"

#include "figure/figure_form.h"
#include "files/open_sheet.h"
#include "platform/json.h"
#include "platform/ports.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTableWidget>

namespace {

class FigureWidgets : public WindowTest {
protected:
    QWidget* figure = nullptr;

    void SetUp() override
    {
        frmFigure = {};
        WindowTest::SetUp();
        window->onEvent([] { openDropped(EXAMPLE); });
        named<QAction>("mnuFigure")->trigger();
        for (QWidget* const top : QApplication::topLevelWidgets())
            if (top->objectName() == "frmFigure")
                figure = top;
        ASSERT_NE(figure, nullptr);
        ASSERT_TRUE(waitFor([this] { return figure->isVisible(); }));
    }
    void TearDown() override
    {
        window->onEvent(closeFigure);
        frmMain.Command5[0].enabled = false;
    }
    template <class Widget>
    Widget* part(const char* name)
    {
        Widget* const found = figure->findChild<Widget*>(name);
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
};

TEST_F(FigureWidgets, settingsChangeThePageAndWhatDoesNotFitIsSaid)
{
    EXPECT_FALSE(part<QLabel>("notice")->isVisible());
    part<QDoubleSpinBox>("width")->setValue(60);
    EXPECT_EQ(frmFigure.settings.width, 60);
    EXPECT_TRUE(part<QLabel>("notice")->isVisible());
    EXPECT_NE(part<QLabel>("notice")->text().indexOf("would fit"), -1);
    part<QDoubleSpinBox>("width")->setValue(240);
    EXPECT_TRUE(frmFigure.plan.faults.empty());

    part<QCheckBox>("plus")->click();
    EXPECT_FALSE(frmFigure.settings.plus);
    auto* const ages = part<QPlainTextEdit>("ages");
    ages->setPlainText("400 1000\n600 5000\n");
    EXPECT_EQ(frmFigure.settings.ages.size(), 2);
    emit part<QLineEdit>("cuts")->textEdited("500; 550");
    EXPECT_EQ(frmFigure.settings.cuts, (std::vector<double>{500, 550}));
    EXPECT_EQ(frmFigure.settings.zonesBy, ZonesBy::hand);
    EXPECT_FALSE(part<QDoubleSpinBox>("concentration")->isEnabled()) << "there is no marker";
}

TEST_F(FigureWidgets, choicesOfZonesGoTogether)
{
    emit part<QComboBox>("zones_by")->activated(static_cast<int>(ZonesBy::hand));
    EXPECT_EQ(frmFigure.settings.cuts, (std::vector<double>{476, 547})) << "the lines that were on show";
    emit part<QComboBox>("zones_by")->activated(static_cast<int>(ZonesBy::stick));
    emit part<QComboBox>("method")->activated(static_cast<int>(ClusterMethod::unweighted));
    EXPECT_EQ(frmFigure.settings.zonesBy, ZonesBy::none) << "the variant has no broken stick";
    EXPECT_TRUE(frmFigure.plan.faults.empty());
    emit part<QComboBox>("zones_by")->activated(static_cast<int>(ZonesBy::stick));
    EXPECT_EQ(frmFigure.settings.method, ClusterMethod::grimm);
}

TEST_F(FigureWidgets, taxaAreTickedAndDragged)
{
    auto* const list = part<QListWidget>("taxa");
    const auto shown = static_cast<int>(frmFigure.plan.layout.columns.size());
    ASSERT_GT(list->count(), shown);
    EXPECT_EQ(list->item(shown)->checkState(), Qt::Unchecked);
    EXPECT_TRUE(part<QDoubleSpinBox>("threshold")->isEnabled());
    list->item(0)->setCheckState(Qt::Unchecked);
    EXPECT_FALSE(part<QDoubleSpinBox>("threshold")->isEnabled()) << "the ticks decide";
    EXPECT_EQ(frmFigure.plan.layout.columns.size(), shown - 1);
    const std::string last = frmFigure.settings.taxa->back();
    list->model()->moveRow({}, shown - 2, {}, 0);
    EXPECT_EQ(frmFigure.settings.taxa->front(), last);
    EXPECT_EQ(list->item(0)->text().toStdString(), last);
    part<QAbstractButton>("byThreshold")->click();
    EXPECT_FALSE(frmFigure.settings.taxa);
    EXPECT_EQ(frmFigure.plan.layout.columns.size(), shown);
}

TEST_F(FigureWidgets, filesAreTheSameEachTimeAndTellWhatTheyAre)
{
    const Page& page = frmFigure.plan.page;
    for (const PictureFormat format :
         {PictureFormat::svg, PictureFormat::pdf, PictureFormat::png, PictureFormat::tiff}) {
        const std::string once = ports.pictures->encode(page, format, 150);
        settle(1100); // a clock that is written shows seconds
        EXPECT_EQ(once, ports.pictures->encode(page, format, 150)) << static_cast<int>(format);
    }
    const QByteArray pdf = QByteArray::fromStdString(ports.pictures->encode(page, PictureFormat::pdf, 0));
    EXPECT_TRUE(pdf.contains("/FontFile"));
    EXPECT_TRUE(pdf.contains("/Title"));
    EXPECT_TRUE(pdf.contains("/Creator"));
    const QImage png =
        QImage::fromData(QByteArray::fromStdString(ports.pictures->encode(page, PictureFormat::png, 300)));
    EXPECT_EQ(png.width(), qRound(page.width / 25.4 * 300));
    EXPECT_EQ(png.dotsPerMeterX(), qRound(300 / 0.0254));

    part<QAction>("mnuFigureCopy")->trigger();
    const QMimeData* const data = QApplication::clipboard()->mimeData();
    EXPECT_TRUE(data->hasImage());
    EXPECT_TRUE(data->data("image/svg+xml").contains("id=\"taxon-1\""));
    EXPECT_TRUE(data->data("application/pdf").startsWith("%PDF"));
    part<QAction>("mnuFigureCaption")->trigger();
    EXPECT_TRUE(QApplication::clipboard()->text().contains("Percent of all individuals"));
}

TEST_F(FigureWidgets, clustersStandInTables)
{
    part<QAction>("mnuFigureClusters")->trigger();
    auto* const merges = part<QTableWidget>("merges");
    EXPECT_TRUE(merges->isVisible());
    EXPECT_EQ(merges->rowCount(), 62);
    EXPECT_EQ(part<QLineEdit>("lineOfR")->text(), "rioja::chclust(dist(sqrt(x / rowSums(x)))^2)");
}

TEST_F(FigureWidgets, jsonComesBackAsItWas)
{
    Json object = Json::object();
    object.set("text", Json::of(std::string("M\xC3\xB6\xC3\xB6r")));
    object.set("number", Json::of(0.1));
    object.set("list", Json::list());
    const std::string text = ports.json->write(object);
    const auto read = ports.json->read(text);
    ASSERT_TRUE(read);
    EXPECT_EQ(ports.json->write(*read), text);
    EXPECT_EQ(read->find("number")->number, 0.1);
    EXPECT_FALSE(ports.json->read("{broken"));
}

} // namespace
