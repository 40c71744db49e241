#pragma once

#include "figure/figure_form.h"

#include <QWidget>
#include <functional>

class QComboBox;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;

/// Which taxa a figure shows, in which order, in which groups: ticks and dragging.
class FigureTaxaPanel : public QWidget {
public:
    using Change = std::function<void(FigureSettings&)>;

    explicit FigureTaxaPanel(std::function<void(const Change&)> changed);

    /// Brings the list up to date with the plan.
    void present();

private:
    QWidget* orderRow();
    QWidget* chosenRow();
    QWidget* groupRow();
    void listChanged();
    void chosenChanged();
    /// The groups as settings that can be changed: those of the plan where there are none yet.
    static std::vector<FigureGroup> ownGroups();
    void moveToGroup(const QString& name);
    void changeGroup(const std::function<void(FigureGroup&)>& change);
    std::vector<std::string> chosenTaxa() const;

    std::function<void(const Change&)> changed_;
    QListWidget* list_;
    QComboBox* order_ = nullptr;
    QPushButton* threshold_ = nullptr;
    QComboBox* group_ = nullptr;
    QComboBox* slant_ = nullptr;
    QWidget* groupButtons_ = nullptr;
    QLabel* told_ = nullptr;
    bool showing_ = false;
};
