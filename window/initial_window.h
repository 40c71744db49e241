#pragma once

#include "keys/first_run.h"
#include "window/form_window.h"

class CaptureBox;

/// frmInitial.
class InitialWindow : public FormWindow {
public:
    explicit InitialWindow(MainWindow& main);

protected:
    void presentMore() override;

private:
    QWidget* column(int firstBox);

    std::array<CaptureBox*, referenceKeys> boxes_{};
    std::array<QLabel*, referenceKeys> labels_{};
    QPushButton* ok_;
};
