#pragma once

#include "window/form_window.h"

class TargetWindow : public FormWindow {
public:
    explicit TargetWindow(MainWindow& main);
};
