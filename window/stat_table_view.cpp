#include "window/stat_table_view.h"

#include "platform/qt/text.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

class StatTableView::Model : public QAbstractTableModel {
public:
    Model(const StatTable& table, QObject* parent) : QAbstractTableModel(parent), table_(table) {}

    int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(table_.rows.size());
    }
    int columnCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(table_.columns.size()) + !table_.barsHead.empty();
    }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void changed()
    {
        beginResetModel();
        endResetModel();
    }

private:
    const StatTable& table_;
};

QVariant StatTableView::Model::data(const QModelIndex& index, int role) const
{
    const auto row = static_cast<std::size_t>(index.row());
    const auto column = static_cast<std::size_t>(index.column());
    if (row >= table_.rows.size() || column >= table_.rows[row].cells.size())
        return {}; // of the pictures, or the table is about to be shown anew
    const QString text = shownText(table_.rows[row].cells[column].text);
    const bool isText = table_.columns[column].isText;
    switch (role) {
    case Qt::DisplayRole:
        return text;
    case Qt::ToolTipRole:
        return isText ? "<qt>" + text.toHtmlEscaped() + "</qt>" : QVariant(); // long ones are cut
    case Qt::TextAlignmentRole:
        return static_cast<int>((isText ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant StatTableView::Model::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical)
        return {};
    if (section >= static_cast<int>(table_.columns.size()))
        return role == Qt::DisplayRole   ? shownText(table_.barsHead)
               : role == Qt::ToolTipRole ? QVariant("Point: the share. Line: its 95 % limits.")
                                         : QVariant();
    const StatTable::Column& column = table_.columns[static_cast<std::size_t>(section)];
    switch (role) {
    case Qt::DisplayRole:
        return shownText(column.head);
    case Qt::ToolTipRole: // wraps as rich text only
        return column.tip.empty() ? QVariant() : "<qt>" + shownText(column.tip).toHtmlEscaped() + "</qt>";
    case Qt::TextAlignmentRole:
        return static_cast<int>((column.isText ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    default:
        return {};
    }
}

/// The shares of a row with their limits, all rows to one scale.
class StatTableView::BarPainter : public QStyledItemDelegate {
public:
    BarPainter(const StatTable& table, QObject* parent) : QStyledItemDelegate(parent), table_(table) {}
    void reset() { reach_ = table_.reach(); }
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    const StatTable& table_;
    double reach_ = 0;
};

void StatTableView::BarPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const bool isBars = index.column() == static_cast<int>(table_.columns.size());
    if (!isBars || reach_ <= 0 || index.row() >= static_cast<int>(table_.rows.size()))
        return;
    const bool isDark = option.palette.color(QPalette::Base).lightness() < 128;
    const QColor colours[] = {isDark ? QColor(86, 180, 233) : QColor(0, 114, 178),
                              isDark ? QColor(230, 159, 0) : QColor(190, 85, 0)};
    const StatTable::Row& row = table_.rows[static_cast<std::size_t>(index.row())];
    const QRectF inside = QRectF(option.rect).adjusted(6, 2, -6, -2);
    const auto x = [&](double share) { return inside.left() + share / reach_ * inside.width(); };
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const bool both = row.bars[1].has_value();
    for (std::size_t which = 0; which < row.bars.size(); ++which) {
        const auto& bar = row.bars[which];
        if (!bar)
            continue;
        const double y = inside.center().y() + (both ? (which == 0 ? -3.5 : 3.5) : 0);
        painter->setPen(QPen(colours[which], 1.5));
        if (bar->limits) {
            const double left = x(bar->limits->lower);
            const double right = x(bar->limits->upper);
            painter->drawLine(QPointF(left, y), QPointF(right, y));
            for (const double end : {left, right})
                painter->drawLine(QPointF(end, y - 2), QPointF(end, y + 2));
        }
        painter->setBrush(colours[which]);
        if (which == 0)
            painter->drawEllipse(QPointF(x(bar->value), y), 2, 2);
        else // told apart without its colour
            painter->drawRect(QRectF(x(bar->value) - 2, y - 2, 4, 4));
    }
    painter->restore();
}

StatTableView::StatTableView(const StatTable& table, std::function<void(int)> sorted)
    : table_(table), model_(new Model(table, this)), painter_(new BarPainter(table, this))
{
    setModel(model_);
    setItemDelegate(painter_);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    QHeaderView& heads = *horizontalHeader();
    heads.setSectionsClickable(true);
    heads.setHighlightSections(false);
    heads.setSortIndicatorShown(true);
    heads.setSortIndicator(-1, Qt::AscendingOrder);
    connect(&heads, &QHeaderView::sectionClicked, this, [this, sorted = std::move(sorted)](int column) {
        if (column < static_cast<int>(table_.columns.size())) // not the pictures
            sorted(column);
    });
}

void StatTableView::present()
{
    if (shown_ == table_.revision)
        return;
    shown_ = table_.revision;
    const int row = currentIndex().row();
    model_->changed();
    painter_->reset();
    horizontalHeader()->setSortIndicator(table_.sortedBy,
                                         table_.descending ? Qt::DescendingOrder : Qt::AscendingOrder);
    std::vector<std::string> heads;
    for (const StatTable::Column& column : table_.columns)
        heads.push_back(column.head);
    const bool fills = rowsShown_ == 0 && !table_.rows.empty();
    rowsShown_ = table_.rows.size();
    if (heads != headsShown_ || fills) {
        headsShown_ = heads;
        fitColumns();
    }
    if (row >= 0 && row < static_cast<int>(table_.rows.size()))
        selectRow(row);
}

/// The columns as wide as their heads and the first rows need, and the pictures over what is left.
void StatTableView::fitColumns()
{
    QHeaderView& heads = *horizontalHeader();
    heads.setStretchLastSection(false); // or the last column would keep what it had before
    resizeColumnsToContents();
    constexpr int widest = 200; // room for the pictures; the tip shows a name whole
    constexpr int leastForBars = 120;
    const int columns = static_cast<int>(table_.columns.size());
    const bool lastIsText = columns > 0 && table_.columns.back().isText;
    for (int column = 0; column < columns; ++column)
        setColumnWidth(column, std::min(widest, columnWidth(column) + 4));
    if (!table_.barsHead.empty())
        setColumnWidth(columns, leastForBars);
    heads.setStretchLastSection(!table_.barsHead.empty() || lastIsText);
}
