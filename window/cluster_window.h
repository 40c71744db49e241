#pragma once

#include <QDialog>
#include <functional>

class QLabel;
class QLineEdit;
class QTableWidget;

/// The clusters of the figure as tables: merges, and drops beside their broken sticks.
class ClusterWindow : public QDialog {
public:
    ClusterWindow(QWidget& figure, std::function<void(const std::function<void()>&)> runEvent);

    void present();

protected:
    void reject() override;

private:
    void fill();

    std::function<void(const std::function<void()>&)> runEvent_;
    QLabel* method_;
    QTableWidget* merges_;
    QTableWidget* sticks_;
    QLineEdit* lineOfR_;
    int planShown_ = 0;
};
