#pragma once

#include <QMainWindow>

class MainWindow;
class ManualPages;
class QLineEdit;
class QToolBar;

/// The pages of docs/manual. They lie beside the program, so no network is needed.
class ManualWindow : public QMainWindow {
public:
    explicit ManualWindow(MainWindow& main);

    /// Brings the window up to date with its record.
    void present();
    /// A window that takes all that the user does leaves the manual to be read beside it.
    void standBy(QWidget& modal);

protected:
    void closeEvent(QCloseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    void showWantedPage();
    void addSearch(QToolBar& bar);
    void findNext();

    MainWindow& main_;
    ManualPages* pages_;
    QLineEdit* searched_ = nullptr;
    QString sought_; ///< the text found last
    int forwardShown_ = 0;
};
