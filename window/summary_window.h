#pragma once

#include "window/form_window.h"

class SummaryWindow : public FormWindow {
public:
    explicit SummaryWindow(MainWindow& main);
};
