#pragma once

#include "statistics/stat_table.h"

#include <QTableView>
#include <functional>

/// Shows a table of figures. A click on a head is told to `sorted`; what shows then is the record's.
class StatTableView : public QTableView {
public:
    StatTableView(const StatTable& table, std::function<void(int)> sorted);

    /// Brings the view up to date with its table.
    void present();

private:
    class Model;
    class BarPainter;

    void fitColumns();

    const StatTable& table_;
    Model* model_;
    BarPainter* painter_;
    int shown_ = -1;
    std::vector<std::string> headsShown_;
    std::size_t rowsShown_ = 0;
};
