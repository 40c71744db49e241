#include "window/figure_taxa_panel.h"

#include "platform/ports.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <set>

namespace {

QString shown(const std::string& text)
{
    return QString::fromStdString(text);
}

QIcon colourIcon(Colour colour)
{
    QPixmap picture(14, 14);
    picture.fill(QColor(colour.red, colour.green, colour.blue));
    return picture;
}

} // namespace

FigureTaxaPanel::FigureTaxaPanel(std::function<void(const Change&)> changed)
    : changed_(std::move(changed)), list_(new QListWidget)
{
    list_->setObjectName("taxa");
    list_->setAccessibleName("Taxa of the figure");
    list_->setDragDropMode(QAbstractItemView::InternalMove);
    list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list_->setUniformItemSizes(true);
    list_->setMinimumHeight(12 * list_->fontMetrics().lineSpacing());
    list_->setToolTip("Ticked taxa are shown, in this order. Drag them to another place.");
    told_ = new QLabel;
    told_->setObjectName("shownTaxa");
    told_->setWordWrap(true);
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(orderRow());
    whole->addWidget(list_);
    whole->addWidget(told_);
    whole->addWidget(chosenRow());
    whole->addWidget(groupRow());
    connect(list_, &QListWidget::itemChanged, this, [this] { listChanged(); });
    connect(list_->model(), &QAbstractItemModel::rowsMoved, this, [this] { listChanged(); });
    connect(list_, &QListWidget::itemSelectionChanged, this, [this] {
        group_->lineEdit()->setModified(false); // what was typed was for others
        chosenChanged();
    });
}

QWidget* FigureTaxaPanel::orderRow()
{
    auto* const row = new QWidget;
    auto* const grid = new QGridLayout(row);
    grid->setContentsMargins(0, 0, 0, 0);
    order_ = new QComboBox;
    order_->setObjectName("order");
    order_->setAccessibleName("Order of the taxa");
    order_->addItems({"by the sheet", "by group", "by average depth", "by group, then depth", "as dragged"});
    connect(order_, &QComboBox::activated, this, [this](int index) {
        if (index > static_cast<int>(TaxonOrder::groupWa))
            return;
        const auto order = static_cast<TaxonOrder>(index);
        changed_([order](FigureSettings& settings) {
            settings.order = order;
            if (!settings.taxa)
                return;
            // The ticks stay and are put in the order that was chosen.
            const FigurePlan& plan = frmFigure.plan;
            FigureSettings all = settings;
            all.taxa.reset();
            all.threshold = 0;
            all.samples = 0;
            const std::set<std::string> ticked(settings.taxa->begin(), settings.taxa->end());
            settings.taxa->clear();
            for (const ShownTaxon& taxon : shownTaxa(plan.data, plan.shares, plan.groups, all))
                if (ticked.count(plan.data.taxa[taxon.taxon].name) != 0)
                    settings.taxa->push_back(plan.data.taxa[taxon.taxon].name);
        });
    });
    threshold_ = new QPushButton("By threshold");
    threshold_->setObjectName("byThreshold");
    threshold_->setToolTip("Forgets ticks and dragging: the share decides, and the order above.");
    connect(threshold_, &QPushButton::clicked, this,
            [this] { changed_([](FigureSettings& settings) { settings.taxa.reset(); }); });
    grid->addWidget(new QLabel("Order"), 0, 0);
    grid->addWidget(order_, 0, 1);
    grid->addWidget(threshold_, 0, 2);
    grid->setColumnStretch(1, 1);
    return row;
}

QWidget* FigureTaxaPanel::chosenRow()
{
    auto* const row = new QWidget;
    auto* const grid = new QGridLayout(row);
    grid->setContentsMargins(0, 0, 0, 0);
    group_ = new QComboBox;
    group_->setObjectName("group");
    group_->setAccessibleName("Group of the chosen taxa");
    group_->setEditable(true);
    group_->setInsertPolicy(QComboBox::NoInsert);
    group_->setToolTip("Type a new name to make a new group of the chosen taxa.");
    connect(group_, &QComboBox::activated, this, [this] { moveToGroup(group_->currentText()); });
    connect(group_->lineEdit(), &QLineEdit::returnPressed, this,
            [this] { moveToGroup(group_->currentText()); });
    slant_ = new QComboBox;
    slant_->setObjectName("slant");
    slant_->setAccessibleName("Letters of the chosen names");
    slant_->addItems({"plain", "italic", "by words", "as all names"});
    connect(slant_, &QComboBox::activated, this, [this](int index) {
        const std::vector<std::string> taxa = chosenTaxa();
        changed_([&](FigureSettings& settings) {
            for (const std::string& taxon : taxa) {
                auto& own = settings.slants;
                own.erase(std::remove_if(own.begin(), own.end(),
                                         [&](const auto& entry) { return entry.first == taxon; }),
                          own.end());
                if (index < 3)
                    own.emplace_back(taxon, static_cast<NameSlant>(index));
            }
        });
    });
    grid->addWidget(new QLabel("Chosen: group"), 0, 0);
    grid->addWidget(group_, 0, 1);
    grid->addWidget(new QLabel("letters"), 1, 0);
    grid->addWidget(slant_, 1, 1);
    grid->setColumnStretch(1, 1);
    return row;
}

QWidget* FigureTaxaPanel::groupRow()
{
    groupButtons_ = new QWidget;
    auto* const line = new QHBoxLayout(groupButtons_);
    line->setContentsMargins(0, 0, 0, 0);
    auto* const rename = new QPushButton("Rename group...");
    rename->setObjectName("renameGroup");
    connect(rename, &QPushButton::clicked, this, [this] {
        bool accepted = false;
        const QString name = QInputDialog::getText(this, "Rename group", "Name of the group",
                                                   QLineEdit::Normal, group_->currentText(), &accepted);
        if (accepted && !name.trimmed().isEmpty())
            changeGroup([&](FigureGroup& group) { group.name = name.trimmed().toStdString(); });
    });
    auto* const colour = new QPushButton("Colour...");
    colour->setObjectName("groupColour");
    connect(colour, &QPushButton::clicked, this, [this] {
        changeGroup([](FigureGroup& group) {
            group.colour = ports.dialogs->chooseColour(group.colour).value_or(group.colour);
        });
    });
    auto* const earlier = new QPushButton("Earlier");
    earlier->setObjectName("groupEarlier");
    earlier->setToolTip("Puts the group before the one that stands left of it.");
    connect(earlier, &QPushButton::clicked, this, [this] {
        const std::string name = group_->currentText().toStdString();
        std::vector<FigureGroup> groups = ownGroups();
        const auto place =
            std::find_if(groups.begin(), groups.end(), [&](const auto& one) { return one.name == name; });
        if (place == groups.end() || place == groups.begin())
            return;
        std::iter_swap(place, place - 1);
        changed_([&](FigureSettings& settings) { settings.groups = groups; });
    });
    line->addWidget(rename);
    line->addWidget(colour);
    line->addWidget(earlier);
    line->addStretch(1);
    return groupButtons_;
}

std::vector<FigureGroup> FigureTaxaPanel::ownGroups()
{
    if (!frmFigure.settings.groups.empty())
        return frmFigure.settings.groups;
    std::vector<FigureGroup> groups;
    for (const ShownGroup& shown : frmFigure.plan.groups) {
        FigureGroup& group = groups.emplace_back(FigureGroup{shown.name, shown.colour, {}});
        for (const int taxon : shown.taxa)
            group.taxa.push_back(frmFigure.plan.data.taxa[taxon].name);
    }
    return groups;
}

void FigureTaxaPanel::moveToGroup(const QString& name)
{
    const std::vector<std::string> taxa = chosenTaxa();
    const std::string wanted = name.trimmed().toStdString();
    if (wanted.empty() || taxa.empty() || showing_)
        return;
    std::vector<FigureGroup> groups = ownGroups();
    for (FigureGroup& group : groups)
        for (const std::string& taxon : taxa)
            group.taxa.erase(std::remove(group.taxa.begin(), group.taxa.end(), taxon), group.taxa.end());
    auto place =
        std::find_if(groups.begin(), groups.end(), [&](const auto& group) { return group.name == wanted; });
    if (place == groups.end())
        place = groups.insert(groups.end(), {wanted, groupColour(groups.size()), {}});
    place->taxa.insert(place->taxa.end(), taxa.begin(), taxa.end());
    group_->lineEdit()->setModified(false);
    changed_([&](FigureSettings& settings) { settings.groups = groups; });
}

void FigureTaxaPanel::changeGroup(const std::function<void(FigureGroup&)>& change)
{
    const std::string name = group_->currentText().toStdString();
    std::vector<FigureGroup> groups = ownGroups();
    for (FigureGroup& group : groups)
        if (group.name == name) {
            change(group);
            changed_([&](FigureSettings& settings) { settings.groups = groups; });
            return;
        }
}

std::vector<std::string> FigureTaxaPanel::chosenTaxa() const
{
    std::vector<std::string> taxa;
    for (const QListWidgetItem* const item : list_->selectedItems())
        taxa.push_back(item->data(Qt::UserRole).toString().toStdString());
    return taxa;
}

/// Ticked or dragged: from now on the list decides.
void FigureTaxaPanel::listChanged()
{
    if (showing_)
        return;
    std::vector<std::string> ticked;
    for (int row = 0; row < list_->count(); ++row)
        if (list_->item(row)->checkState() == Qt::Checked)
            ticked.push_back(list_->item(row)->data(Qt::UserRole).toString().toStdString());
    changed_([&](FigureSettings& settings) { settings.taxa = ticked; });
}

void FigureTaxaPanel::chosenChanged()
{
    const QScopedValueRollback<bool> quiet(showing_, true);
    const std::vector<std::string> taxa = chosenTaxa();
    for (QWidget* const box : std::initializer_list<QWidget*>{group_, slant_, groupButtons_})
        box->setEnabled(!taxa.empty());
    if (taxa.empty()) {
        group_->setCurrentIndex(-1);
        return;
    }
    const FigurePlan& plan = frmFigure.plan;
    for (const ShownGroup& group : plan.groups)
        for (const int taxon : group.taxa)
            if (plan.data.taxa[taxon].name == taxa.front() && !group_->lineEdit()->isModified())
                group_->setCurrentIndex(group_->findText(shown(group.name), Qt::MatchExactly));
    int slant = 3;
    for (const auto& [taxon, own] : frmFigure.settings.slants)
        if (taxon == taxa.front())
            slant = static_cast<int>(own);
    slant_->setCurrentIndex(slant);
}

void FigureTaxaPanel::present()
{
    const QScopedValueRollback<bool> quiet(showing_, true);
    const FigurePlan& plan = frmFigure.plan;
    const FigureSettings& settings = frmFigure.settings;
    order_->setCurrentIndex(settings.taxa ? 4 : static_cast<int>(settings.order));
    threshold_->setEnabled(settings.taxa.has_value());
    std::vector<int> groupOf(plan.data.taxa.size());
    for (int group = 0; group < static_cast<int>(plan.groups.size()); ++group)
        for (const int taxon : plan.groups[group].taxa)
            groupOf[taxon] = group;

    // Those that are shown stand first, in their order. Without room for columns none is drawn, but it is
    // ticked.
    std::vector<std::pair<int, bool>> rows;
    std::vector<bool> ticked(plan.data.taxa.size());
    for (const ShownTaxon& taxon : shownTaxa(plan.data, plan.shares, plan.groups, settings)) {
        rows.emplace_back(taxon.taxon, true);
        ticked[taxon.taxon] = true;
    }
    const auto shownCount = static_cast<int>(rows.size());
    for (int taxon = 0; taxon < static_cast<int>(ticked.size()); ++taxon)
        if (!ticked[taxon])
            rows.emplace_back(taxon, false);
    while (list_->count() > static_cast<int>(rows.size()))
        delete list_->takeItem(list_->count() - 1);
    for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
        if (row == list_->count())
            list_->addItem(new QListWidgetItem);
        QListWidgetItem& item = *list_->item(row);
        const auto& [taxon, tick] = rows[row];
        const QString name = shown(plan.data.taxa[taxon].name);
        item.setFlags((item.flags() | Qt::ItemIsUserCheckable) & ~Qt::ItemIsDropEnabled);
        if (item.data(Qt::UserRole).toString() != name) {
            item.setText(name);
            item.setData(Qt::UserRole, name);
        }
        item.setCheckState(tick ? Qt::Checked : Qt::Unchecked);
        const ShownGroup& group = plan.groups[groupOf[taxon]];
        const QVariant look = QColor(group.colour.red, group.colour.green, group.colour.blue);
        if (item.data(Qt::UserRole + 1) != look) {
            item.setIcon(colourIcon(group.colour));
            item.setData(Qt::UserRole + 1, look);
        }
        item.setToolTip(shown(group.name));
    }
    told_->setText(QString("%1 of %2 taxa are shown.").arg(shownCount).arg(rows.size()));
    if (!group_->lineEdit()->isModified()) { // a name that is being typed stays
        group_->clear();
        for (const ShownGroup& group : plan.groups)
            group_->addItem(colourIcon(group.colour), shown(group.name));
    }
    chosenChanged();
}
