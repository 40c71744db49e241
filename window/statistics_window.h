#pragma once

#include "window/form_window.h"

#include <array>

class QRadioButton;
class QTabWidget;
class StatTableView;
class SurfaceView;

/// Stands beside the main window, where counting goes on.
class StatisticsWindow : public FormWindow {
public:
    explicit StatisticsWindow(MainWindow& main);

protected:
    void presentMore() override;
    void changeEvent(QEvent* event) override;

private:
    QLayout* scopeRow();
    QWidget* richness();
    QWidget* limits();
    QWidget* compare();
    QWidget* concentration();
    QLayout* laboratoryBoxes();
    StatTableView* table(int page, const QString& accessibleName);
    /// "Copy" and "Save table..." of a page.
    QLayout* leavingRow(int page);
    QLineEdit* numberBox(const char* name, const QString& accessibleName, int index = -1);
    QLabel* wrappedLabel(const char* name);

    QTabWidget* tabs_ = nullptr;
    std::array<QRadioButton*, 2> scopes_{};
    std::array<StatTableView*, 4> tables_{};
    SurfaceView* picture_ = nullptr;
    QWidget* pictureFrame_ = nullptr;
    int forwardShown_ = 0;
};
