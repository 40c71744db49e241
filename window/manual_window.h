#pragma once

#include <QMainWindow>

class MainWindow;
class ManualPages;

/// The pages of docs/manual. They lie beside the program, so no network is needed.
class ManualWindow : public QMainWindow {
public:
    explicit ManualWindow(MainWindow& main);

    /// Brings the window up to date with its record.
    void present();

protected:
    void closeEvent(QCloseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    MainWindow& main_;
    ManualPages* pages_;
    int forwardShown_ = 0;
};
