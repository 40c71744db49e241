#include "window/figure_settings_panel.h"

#include "core/number_text.h"
#include "figure/figure_form.h"
#include "window/main_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEvent>
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

/// The wheel over a box scrolls the panel: it must not change a setting in passing.
class CalmSpin : public QDoubleSpinBox {
protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

class CalmChoice : public QComboBox {
protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

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
        addGroup(whole, caption, forms_.size() < 2);
    whole->addStretch(1);
    addPage();
    addTaxa();
    addStyle();
    addAxes();
    addZones();
    addNumbers(SettingsGroup::panels);
    setWidget(inside);
    setMinimumWidth(inside->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width());
}

void FigureSettingsPanel::present(const FigureSettings& settings)
{
    for (const auto& showOne : shows_)
        showOne(settings);
}

void FigureSettingsPanel::setTaxaPanel(QWidget* panel)
{
    group(SettingsGroup::taxa)->insertRow(0, panel);
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
    forms_ += form;
}

void FigureSettingsPanel::addNumbers(SettingsGroup which)
{
    for (const NumberSetting& setting : numberSettings) {
        if (setting.group != which)
            continue;
        auto* const spin = new CalmSpin;
        spin->setObjectName(setting.key);
        spin->setAccessibleName(setting.caption);
        spin->setRange(setting.least, setting.most);
        spin->setDecimals(setting.most > 10000 ? 2 : 1);
        spin->setSingleStep(setting.most > 300 ? 5 : setting.most <= 20 ? 0.5 : 1);
        spin->setKeyboardTracking(false); // half a number is none
        if (*setting.unit != 0)
            spin->setSuffix(QString(" ") + setting.unit);
        if (setting.most > 10000)
            spin->setSpecialValueText("chosen");
        else if (which == SettingsGroup::panels && setting.least == 0 && setting.most >= 200)
            spin->setSpecialValueText("absent");
        connect(spin, &QDoubleSpinBox::valueChanged, this, [this, member = setting.member](double value) {
            changed_([member, value](FigureSettings& settings) { settings.*member = value; });
        });
        shows_ += [spin, member = setting.member](const FigureSettings& settings) {
            const QSignalBlocker quiet(spin);
            if (spin->value() != settings.*member)
                spin->setValue(settings.*member);
        };
        group(which)->addRow(setting.caption, spin);
    }
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
}

void FigureSettingsPanel::addZones()
{
    addChoice(
        SettingsGroup::zones, "Zones", "zones_by", {"none", "by the broken stick", "by hand"},
        [](const FigureSettings& settings) { return static_cast<int>(settings.zonesBy); },
        [](FigureSettings& settings, int index) { settings.zonesBy = static_cast<ZonesBy>(index); });
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
        [](FigureSettings& settings, int index) { settings.method = static_cast<ClusterMethod>(index); });
    addChoice(
        SettingsGroup::zones, "Fractions", "transform", {"square roots", "as they are"},
        [](const FigureSettings& settings) { return static_cast<int>(settings.transform); },
        [](FigureSettings& settings, int index) { settings.transform = static_cast<Transform>(index); });
}

void FigureSettingsPanel::addText(SettingsGroup which, const QString& caption, const char* key,
                                  std::string FigureSettings::*member, const QString& empty)
{
    QLineEdit* const line = addLine(
        which, caption, key,
        [member](const FigureSettings& settings) { return QString::fromStdString(settings.*member); },
        [member](FigureSettings& settings, const QString& text) { settings.*member = text.toStdString(); });
    line->setPlaceholderText(empty);
}

QLineEdit* FigureSettingsPanel::addLine(SettingsGroup which, const QString& caption, const char* key,
                                        std::function<QString(const FigureSettings&)> get,
                                        std::function<void(FigureSettings&, const QString&)> set)
{
    auto* const line = new QLineEdit;
    line->setObjectName(key);
    line->setAccessibleName(caption);
    line->setMaxLength(120);
    connect(line, &QLineEdit::textEdited, this, [this, set = std::move(set)](const QString& text) {
        changed_([&](FigureSettings& settings) { set(settings, text); });
    });
    shows_ += [line, get = std::move(get)](const FigureSettings& settings) {
        if (!line->hasFocus() && line->text() != get(settings))
            line->setText(get(settings));
    };
    group(which)->addRow(caption, line);
    return line;
}

void FigureSettingsPanel::addTick(SettingsGroup which, const QString& caption, const char* key,
                                  std::function<bool&(FigureSettings&)> member)
{
    auto* const tick = new QCheckBox(caption);
    tick->setObjectName(key);
    connect(tick, &QCheckBox::clicked, this,
            [this, member](bool on) { changed_([&](FigureSettings& settings) { member(settings) = on; }); });
    shows_ += [tick, member](const FigureSettings& settings) {
        FigureSettings copy = settings;
        tick->setChecked(member(copy));
    };
    group(which)->addRow(tick);
}

void FigureSettingsPanel::addChoice(SettingsGroup which, const QString& caption, const char* key,
                                    const QStringList& words, std::function<int(const FigureSettings&)> get,
                                    std::function<void(FigureSettings&, int)> set)
{
    auto* const choice = new CalmChoice;
    choice->setObjectName(key);
    choice->setAccessibleName(caption);
    choice->addItems(words);
    connect(choice, &QComboBox::activated, this, [this, set = std::move(set)](int index) {
        changed_([&](FigureSettings& settings) { set(settings, index); });
    });
    shows_ += [choice, get = std::move(get)](const FigureSettings& settings) {
        choice->setCurrentIndex(get(settings));
    };
    group(which)->addRow(caption, choice);
}

void FigureSettingsPanel::addOptional(SettingsGroup which, const QString& caption, const char* key,
                                      std::optional<double> FigureSettings::*member, const QString& unit,
                                      const QString& empty)
{
    QLineEdit* const line = addLine(
        which, unit.isEmpty() ? caption : caption + " (" + unit + ")", key,
        [member](const FigureSettings& settings) {
            return settings.*member ? numberText(*(settings.*member)) : QString();
        },
        [member](FigureSettings& settings, const QString& text) {
            bool number = false;
            const double value = text.toDouble(&number);
            settings.*member = number ? std::optional(value) : std::nullopt;
        });
    line->setPlaceholderText(empty);
}
