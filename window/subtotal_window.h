#pragma once

#include "window/form_window.h"

class CheckPage;

/// The check boxes of all three layers, each where its taxon stands on the sheet.
class SubtotalWindow : public FormWindow {
public:
    explicit SubtotalWindow(MainWindow& main);

protected:
    void presentMore() override;

private:
    QList<CheckPage*> pages_;
};
