#pragma once

#include "window/form_window.h"

class QCheckBox;
class QLabel;
class QWidget;

/// The preview of a table of counts.
class TableWindow : public FormWindow {
public:
    explicit TableWindow(MainWindow& main);

protected:
    void presentMore() override;

private:
    QLabel* sentence(const char* name);
    QWidget* cells();

    QCheckBox* rarest_;
};

/// A list of taxa, and where they would go.
class TaxaWindow : public FormWindow {
public:
    explicit TaxaWindow(MainWindow& main);
};
