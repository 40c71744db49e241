#pragma once

#include "extras/diagnose.h"
#include "window/form_window.h"

class QPlainTextEdit;

/// The window of frmDiagnose: the last key in large letters, and below it the whole report as it is copied.
class DiagnoseWindow : public FormWindow {
public:
    explicit DiagnoseWindow(MainWindow& main);

protected:
    void presentMore() override;

private:
    void presentLastKey();

    QLabel* key_;
    QLabel* meaning_;
    QLabel* copied_;
    QPushButton* copy_;
    QPushButton* close_;
    QPlainTextEdit* report_;
    std::vector<SeenKey> shownKeys_;
};
