// Rows of the settings of a figure, each for a member of the record.

#include "core/number_text.h"
#include "window/calm_boxes.h"
#include "window/figure_settings_panel.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QSignalBlocker>

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
        // The longest number with the longest unit would take half of a small screen.
        spin->setMinimumWidth(spin->fontMetrics().horizontalAdvance("888888888888888"));
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
            return settings.*member ? QString::fromStdString(plainDecimal(*(settings.*member))) : QString();
        },
        [member](FigureSettings& settings, const QString& text) {
            bool number = false;
            const double value = text.toDouble(&number);
            settings.*member = number ? std::optional(value) : std::nullopt;
        });
    line->setPlaceholderText(empty);
}
