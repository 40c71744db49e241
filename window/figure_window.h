#pragma once

#include "figure/figure_form.h"
#include "window/bound_window.h"

#include <QMainWindow>

class ClusterWindow;
class FigurePreview;
class FigureSettingsPanel;
class FigureTaxaPanel;
class QLabel;

/// The widgets of frmFigure: settings at the left, the page at the right.
class FigureWindow : public QMainWindow, public BoundWindow {
public:
    explicit FigureWindow(MainWindow& main);
    ~FigureWindow() override;

    /// Brings the window up to date with its record.
    void present();

protected:
    void closeEvent(QCloseEvent*) override;

private:
    QWidget* zoomRow();
    void change(const std::function<void(FigureSettings&)>& change);
    void presentNotice();

    FigureSettingsPanel* settings_;
    FigureTaxaPanel* taxa_;
    FigurePreview* preview_;
    QLabel* notice_;
    ClusterWindow* clusters_;
    int forwardShown_ = 0;
    int planShown_ = 0;
};
