#include "window/figure_settings_panel.h"

#include "core/number_text.h"
#include "figure/figure_form.h"
#include "window/calm_boxes.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

QString numberText(double value)
{
    return QString::fromStdString(plainDecimal(value));
}

QStringList parts(const QString& text)
{
    static const QRegularExpression between("[;,]");
    QStringList list;
    for (const QString& part : text.split(between))
        list += part.trimmed();
    while (!list.isEmpty() && list.last().isEmpty())
        list.removeLast();
    return list;
}

} // namespace

FigureSettingsPanel::FigureSettingsPanel(std::function<void(const Change&)> changed)
    : changed_(std::move(changed))
{
    setObjectName("settings");
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* const inside = new QWidget;
    auto* const whole = new QVBoxLayout(inside);
    whole->setContentsMargins(6, 6, 6, 6);
    whole->setSpacing(2);
    const char* const captions[] = {"Page", "Taxa", "Style", "Axes", "Zones", "Panels"};
    for (const char* const caption : captions)
        addGroup(whole, caption, groups_.size() < 2);
    whole->addStretch(1);
    addPage();
    addTaxa();
    addStyle();
    addAxes();
    addZones();
    addPanels();
    setWidget(inside);
}

/// As wide as its widest group, folded or not, beside the scroll bar.
void FigureSettingsPanel::fitWidth()
{
    int widest = 0;
    for (const Group& one : std::as_const(groups_))
        widest = std::max(widest, one.form->minimumSize().width());
    const QMargins margins = widget()->layout()->contentsMargins();
    setMinimumWidth(widest + margins.left() + margins.right() + verticalScrollBar()->sizeHint().width());
}

void FigureSettingsPanel::present(const FigureSettings& settings)
{
    for (const auto& showOne : shows_)
        showOne(settings);
}

void FigureSettingsPanel::setTaxaPanel(QWidget* panel)
{
    group(SettingsGroup::taxa)->insertRow(0, panel);
    fitWidth();
    orderTabs();
}

/// Tab goes down the panel: a head, then what is under it.
void FigureSettingsPanel::orderTabs()
{
    QWidget* before = nullptr;
    const auto next = [&before](QWidget* widget) {
        if (before != nullptr)
            setTabOrder(before, widget);
        before = widget;
    };
    for (const auto& [head, form] : std::as_const(groups_)) {
        next(head);
        for (int row = 0; row < form->rowCount(); ++row) {
            const QLayoutItem* const field = form->itemAt(row, QFormLayout::FieldRole);
            QWidget* const widget =
                (field != nullptr ? field : form->itemAt(row, QFormLayout::SpanningRole))->widget();
            if ((widget->focusPolicy() & Qt::TabFocus) != 0) {
                next(widget);
                continue;
            }
            for (QWidget* const part : widget->findChildren<QWidget*>())
                if ((part->focusPolicy() & Qt::TabFocus) != 0 && part->focusProxy() == nullptr &&
                    part->window() == window()) // lists that drop down are windows
                    next(part);
        }
    }
}

void FigureSettingsPanel::addGroup(QVBoxLayout* whole, const QString& caption, bool open)
{
    auto* const head = new QToolButton;
    head->setObjectName("fold" + caption);
    head->setText(caption);
    head->setCheckable(true);
    head->setChecked(open);
    head->setAutoRaise(true);
    head->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    head->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
    head->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    QFont bold = head->font();
    bold.setBold(true);
    head->setFont(bold);
    auto* const body = new QWidget;
    auto* const form = new QFormLayout(body);
    form->setContentsMargins(18, 2, 4, 8);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    body->setVisible(open);
    connect(head, &QToolButton::toggled, body, [head, body](bool on) {
        head->setArrowType(on ? Qt::DownArrow : Qt::RightArrow);
        body->setVisible(on);
    });
    whole->addWidget(head);
    whole->addWidget(body);
    groups_.append({head, form});
}

void FigureSettingsPanel::addPage()
{
    auto* const preset = new CalmChoice;
    preset->setObjectName("preset");
    preset->setAccessibleName("Size of the page");
    struct Size {
        const char* caption;
        double width;
        double height;
    };
    static constexpr Size sizes[] = {
        {"90 mm, one column", 90, 120},        {"140 mm, one and a half", 140, 200},
        {"180 mm, two columns", 180, 240},     {"190 mm, two columns", 190, 240},
        {"240 x 150 mm, landscape", 240, 150}, {"Free size", 0, 0}};
    for (const Size& size : sizes)
        preset->addItem(size.caption);
    connect(preset, &QComboBox::activated, this, [this](int index) {
        if (sizes[index].width > 0)
            changed_([index](FigureSettings& settings) {
                settings.width = sizes[index].width;
                settings.height = sizes[index].height;
            });
    });
    shows_ += [preset](const FigureSettings& settings) {
        int index = 0;
        while (sizes[index].width > 0 &&
               (sizes[index].width != settings.width || sizes[index].height != settings.height))
            ++index;
        preset->setCurrentIndex(index);
    };
    group(SettingsGroup::page)->addRow("Size", preset);
    addNumbers(SettingsGroup::page);
    addOptional(SettingsGroup::page, "Header", "header", &FigureSettings::header, "mm", "as needed");
    addText(SettingsGroup::page, "Title", "title", &FigureSettings::title);
    addText(SettingsGroup::page, "Foot line", "foot", &FigureSettings::foot, "the basis");
    static constexpr int resolutions[] = {300, 600, 1000};
    addChoice(
        SettingsGroup::page, "Images", "dots_per_inch",
        {"300 dots an inch", "600 dots an inch", "1000 dots an inch"},
        [](const FigureSettings& settings) {
            return settings.dotsPerInch <= 300 ? 0 : settings.dotsPerInch <= 600 ? 1 : 2;
        },
        [](FigureSettings& settings, int index) { settings.dotsPerInch = resolutions[index]; });
}

void FigureSettingsPanel::addTaxa()
{
    addChoice(
        SettingsGroup::taxa, "Basis", "basis", {"All individuals", "Subtotal-1", "Subtotal-2"},
        [](const FigureSettings& settings) { return static_cast<int>(settings.basis); },
        [](FigureSettings& settings, int index) { settings.basis = static_cast<FigureBasis>(index); });
    addNumbers(SettingsGroup::taxa);
    auto* const samples = new CalmSpin;
    samples->setObjectName("samples");
    samples->setAccessibleName("Samples that reach the threshold");
    samples->setDecimals(0);
    samples->setRange(1, 250);
    samples->setKeyboardTracking(false);
    samples->setSuffix(" samples");
    connect(samples, &QDoubleSpinBox::valueChanged, this, [this](double value) {
        changed_([value](FigureSettings& settings) { settings.samples = static_cast<int>(value); });
    });
    shows_ += [samples](const FigureSettings& settings) {
        const QSignalBlocker quiet(samples);
        samples->setValue(settings.samples);
    };
    group(SettingsGroup::taxa)->insertRow(2, "in at least", samples);
    shows_ += [this](const FigureSettings& settings) {
        for (const char* const name : {"threshold", "samples"}) {
            auto* const spin = findChild<QDoubleSpinBox*>(name);
            spin->setEnabled(!settings.taxa);
            spin->setToolTip(settings.taxa ? "The ticks in the list decide. \"By threshold\" undoes that."
                                           : "");
        }
    };
    addChoice(
        SettingsGroup::taxa, "Names", "names", {"plain", "italic", "by words"},
        [](const FigureSettings& settings) { return static_cast<int>(settings.slant); },
        [](FigureSettings& settings, int index) { settings.slant = static_cast<NameSlant>(index); });
    addTick(SettingsGroup::taxa, "Headings of groups", "headings",
            [](FigureSettings& settings) -> bool& { return settings.headings; });
}

void FigureSettingsPanel::addStyle()
{
    const std::pair<const char*, bool FigureStyle::*> styles[] = {{"Silhouette", &FigureStyle::silhouette},
                                                                  {"Line", &FigureStyle::line},
                                                                  {"Thick bars", &FigureStyle::thickBars},
                                                                  {"Thin bars", &FigureStyle::thinBars},
                                                                  {"Points", &FigureStyle::points}};
    for (const auto& [caption, member] : styles)
        addTick(SettingsGroup::style, caption,
                QString(caption).toLower().replace(' ', '_').toUtf8().constData(),
                [member = member](FigureSettings& settings) -> bool& { return settings.style.*member; });
    addChoice(
        SettingsGroup::style, "Groups by", "fill", {"colours (Okabe-Ito)", "greys", "hatches"},
        [](const FigureSettings& settings) { return static_cast<int>(settings.fill); },
        [](FigureSettings& settings, int index) { settings.fill = static_cast<GroupFill>(index); });
    addNumbers(SettingsGroup::style);
    addTick(SettingsGroup::style, "+ for less than 0.5 %", "plus",
            [](FigureSettings& settings) -> bool& { return settings.plus; });
}

void FigureSettingsPanel::addAxes()
{
    addText(SettingsGroup::axes, "Depths are called", "depth_title", &FigureSettings::depthTitle);
    addText(SettingsGroup::axes, "Unit of depths", "depth_unit", &FigureSettings::depthUnit);
    addOptional(SettingsGroup::axes, "Axis from", "depth_from", &FigureSettings::depthFrom, "",
                "first sample");
    addOptional(SettingsGroup::axes, "to", "depth_to", &FigureSettings::depthTo, "", "last sample");
    auto* const ages = new QPlainTextEdit;
    ages->setObjectName("ages");
    ages->setAccessibleName("Depths and ages");
    ages->setPlaceholderText("Depth and age, one pair a line,\ntyped or pasted");
    ages->setTabChangesFocus(true);
    ages->setFixedHeight(5 * ages->fontMetrics().lineSpacing());
    connect(ages, &QPlainTextEdit::textChanged, this, [this, ages] {
        const std::vector<DatedDepth> read = agesIn(ages->toPlainText().toStdString());
        changed_([&read](FigureSettings& settings) { settings.ages = read; });
    });
    shows_ += [ages](const FigureSettings& settings) {
        if (ages->hasFocus() || agesIn(ages->toPlainText().toStdString()) == settings.ages)
            return;
        QStringList lines;
        for (const DatedDepth& dated : settings.ages)
            lines += numberText(dated.depth) + "\t" + numberText(dated.age);
        const QSignalBlocker quiet(ages);
        ages->setPlainText(lines.join('\n'));
    };
    group(SettingsGroup::axes)->addRow("Ages", ages);
    auto* const read = new QPushButton("Read ages...");
    read->setObjectName("readAges");
    connect(read, &QPushButton::clicked, this, [this] {
        readAges();
        changed_([](FigureSettings&) {});
    });
    group(SettingsGroup::axes)->addRow("", read);
    addText(SettingsGroup::axes, "Ages are called", "age_title", &FigureSettings::ageTitle);
    addText(SettingsGroup::axes, "Unit of ages", "age_unit", &FigureSettings::ageUnit);
    addNumbers(SettingsGroup::axes);
    shows_ += [this](const FigureSettings& settings) {
        const QString depths = QString::fromStdString(settings.depthUnit);
        findChild<QDoubleSpinBox*>("depth_step")->setSuffix(" " + depths);
        findChild<QDoubleSpinBox*>("age_step")->setSuffix(" " + QString::fromStdString(settings.ageUnit));
        findChild<QLineEdit*>("depth_from")->setPlaceholderText("first sample, " + depths);
        findChild<QLineEdit*>("depth_to")->setPlaceholderText("last sample, " + depths);
    };
}

void FigureSettingsPanel::addZones()
{
    addChoice(
        SettingsGroup::zones, "Zones", "zones_by", {"none", "by the broken stick", "by hand"},
        [](const FigureSettings& settings) { return static_cast<int>(settings.zonesBy); },
        [](FigureSettings& settings, int index) {
            settings.zonesBy = static_cast<ZonesBy>(index);
            if (settings.zonesBy == ZonesBy::hand && settings.cuts.empty()) // begins with those on show
                for (const FigureZone& zone : frmFigure.plan.zones)
                    if (&zone != &frmFigure.plan.zones.back())
                        settings.cuts.push_back(zone.lowerLine);
            if (settings.zonesBy == ZonesBy::stick)
                settings.method = ClusterMethod::grimm; // the variant has no broken stick
        });
    QLineEdit* const cuts = addLine(
        SettingsGroup::zones, "Cuts by hand", "cuts",
        [](const FigureSettings& settings) {
            QStringList list;
            for (const double cut : settings.cuts)
                list += numberText(cut);
            return list.join("; ");
        },
        [](FigureSettings& settings, const QString& text) {
            settings.cuts.clear();
            static const QRegularExpression number("^[-+]?[0-9]*\\.?[0-9]+$");
            for (const QString& part : parts(text))
                if (number.match(part).hasMatch())
                    settings.cuts.push_back(part.toDouble());
            if (!settings.cuts.empty())
                settings.zonesBy = ZonesBy::hand;
        });
    cuts->setPlaceholderText("depths: 476; 547");
    QLineEdit* const prefix = addLine(
        SettingsGroup::zones, "Names begin with", "prefix",
        [](const FigureSettings& settings) { return QString::fromStdString(settings.prefix.value_or("")); },
        [](FigureSettings& settings, const QString& text) {
            settings.prefix = text.isEmpty() ? std::nullopt : std::optional(text.toStdString());
        });
    prefix->setPlaceholderText("the sheet's letters");
    QLineEdit* const names = addLine(
        SettingsGroup::zones, "Names from below", "zone_names",
        [](const FigureSettings& settings) {
            QStringList list;
            for (const std::string& name : settings.zoneNames)
                list += QString::fromStdString(name);
            return list.join("; ");
        },
        [](FigureSettings& settings, const QString& text) {
            settings.zoneNames.clear();
            for (const QString& part : parts(text))
                settings.zoneNames.push_back(part.toStdString());
        });
    names->setPlaceholderText("Z-1; Z-2; ...");
    addChoice(
        SettingsGroup::zones, "Clusters", "method", {"CONISS (Grimm 1987)", "unweighted variant"},
        [](const FigureSettings& settings) { return static_cast<int>(settings.method); },
        [](FigureSettings& settings, int index) {
            settings.method = static_cast<ClusterMethod>(index);
            if (settings.method == ClusterMethod::unweighted && settings.zonesBy == ZonesBy::stick)
                settings.zonesBy = ZonesBy::none;
        });
    addChoice(
        SettingsGroup::zones, "Fractions", "transform", {"square roots", "as they are"},
        [](const FigureSettings& settings) { return static_cast<int>(settings.transform); },
        [](FigureSettings& settings, int index) { settings.transform = static_cast<Transform>(index); });
}

void FigureSettingsPanel::addPanels()
{
    addNumbers(SettingsGroup::panels);
    shows_ += [this](const FigureSettings&) {
        auto* const spin = findChild<QDoubleSpinBox*>("concentration");
        const bool known = hasConcentrations(frmFigure.data);
        spin->setEnabled(known);
        spin->setToolTip(known ? "By the marker, with 95 % limits"
                               : "<qt>Needs a marker, tablets and quantities: View &gt; Statistics..., "
                                 "Concentration.</qt>");
    };
}
