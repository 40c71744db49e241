#pragma once

#include "figure/figure_settings.h"

#include <QScrollArea>
#include <functional>

class QFormLayout;
class QLineEdit;
class QVBoxLayout;

/// The settings of a figure in groups that fold, each with its unit. Shows the record and hands on what the
/// user changes.
class FigureSettingsPanel : public QScrollArea {
public:
    using Change = std::function<void(FigureSettings&)>;

    /// `changed` is called for each change of the user.
    explicit FigureSettingsPanel(std::function<void(const Change&)> changed);

    /// Brings the controls up to date; what the user is typing is left alone.
    void present(const FigureSettings& settings);
    /// What stands in the group of taxa, above its numbers.
    void setTaxaPanel(QWidget* panel);

private:
    struct Group {
        QWidget* head;
        QFormLayout* form;
    };
    QFormLayout* group(SettingsGroup which) { return groups_[static_cast<int>(which)].form; }
    void fitWidth();
    void orderTabs();
    void addGroup(QVBoxLayout* whole, const QString& caption, bool open);
    void addNumbers(SettingsGroup which);
    void addPage();
    void addTaxa();
    void addStyle();
    void addAxes();
    void addZones();
    void addPanels();

    void addText(SettingsGroup which, const QString& caption, const char* key,
                 std::string FigureSettings::*member, const QString& empty = {});
    void addTick(SettingsGroup which, const QString& caption, const char* key,
                 std::function<bool&(FigureSettings&)> member);
    /// A choice among `words`, by their place.
    void addChoice(SettingsGroup which, const QString& caption, const char* key, const QStringList& words,
                   std::function<int(const FigureSettings&)> get,
                   std::function<void(FigureSettings&, int)> set);
    /// A number or nothing.
    void addOptional(SettingsGroup which, const QString& caption, const char* key,
                     std::optional<double> FigureSettings::*member, const QString& unit,
                     const QString& empty);
    QLineEdit* addLine(SettingsGroup which, const QString& caption, const char* key,
                       std::function<QString(const FigureSettings&)> get,
                       std::function<void(FigureSettings&, const QString&)> set);

    std::function<void(const Change&)> changed_;
    QList<Group> groups_;
    QList<std::function<void(const FigureSettings&)>> shows_;
};
