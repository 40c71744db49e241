#pragma once

#include "sheet/find.h"
#include "window/form_window.h"

class QLineEdit;
class QListWidget;

/// The window of frmFind. It opens over the foot of the main window, so that the taxon cells stay in view.
class FindWindow : public FormWindow {
public:
    explicit FindWindow(MainWindow& main);

protected:
    void presentMore() override;
    bool eventFilter(QObject* target, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QWidget* keyMap();

    QLineEdit* text_;
    QListWidget* list_;
    std::array<QPushButton*, 52> keys_{}; ///< Command1(1) to (51)
    QWidget* keySink_;                    ///< Command1(0)
};
