#pragma once

#include "files/sample_form.h"
#include "window/form_window.h"

class QGridLayout;

/// The boxes that describe a sample: name, note and additional info.
class SampleWindow : public FormWindow {
protected:
    using FormWindow::FormWindow;
    /// Lays the boxes out in rows of label, box and, in the third column, what `beside` makes for an item.
    QWidget* entryBoxes(const std::function<QWidget*(int item)>& beside = {});
};

class SiteNameWindow : public SampleWindow {
public:
    explicit SiteNameWindow(MainWindow& main);
};

class NextWindow : public SampleWindow {
public:
    explicit NextWindow(MainWindow& main);

protected:
    void presentMore() override;

private:
    QWidget* entries_;
    QPushButton* ok_;
};

class ParameterNameWindow : public FormWindow {
public:
    explicit ParameterNameWindow(MainWindow& main);
};
