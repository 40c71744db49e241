#include "window/taxon_page.h"

#include "core/highlight.h"
#include "core/main_screen.h"
#include "platform/qt/text.h"
#include "sheet/cell_grid.h"
#include "sheet/key_names.h"
#include "window/cell_box.h"
#include "window/legible_style.h"

#include <QLabel>
#include <QLineEdit>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

namespace {

constexpr int pageWidth = 12945; // twips: the grid and its margins
constexpr int pageHeight = 4860;
constexpr int indexHeight = 225;
constexpr int twipsPerPoint = 20;
constexpr int indexLetters = 7; // points

CellBox* cellBox(QWidget* page, Qt::Alignment alignment)
{
    auto* const box = new CellBox(page);
    box->setFrame(false);
    box->setReadOnly(true);
    box->unsetCursor(); // the sheet's pointer holds here too
    box->setFocusPolicy(Qt::NoFocus);
    box->setContextMenuPolicy(Qt::NoContextMenu);
    box->setAlignment(alignment);
    return box;
}

} // namespace

TaxonPage::TaxonPage(int layer, QWidget* parent) : QWidget(parent), firstSlot_(layer * keysPerLayer + 1)
{
    setMinimumSize(pageWidth / 24, pageHeight / 24);
    // The cells keep their told colours in a dark theme too, so their letters are dark in any.
    QPalette colours = palette();
    colours.setColor(QPalette::Text, Qt::black);
    colours.setColor(QPalette::Base, Qt::white);
    setPalette(colours);
    for (int i = 0; i < keysPerLayer; ++i) {
        names_ += cellBox(this, Qt::AlignLeft | Qt::AlignVCenter);
        counts_ += cellBox(this, Qt::AlignRight | Qt::AlignVCenter);
        indexes_ += new QLabel(this);
        indexes_.back()->setAlignment(Qt::AlignCenter);
    }
}

QRect TaxonPage::scaled(int left, int top, int width, int height) const
{
    const auto across = [this](int twips) { return qRound(twips * pixelsAcross_); };
    const auto down = [this](int twips) { return qRound(twips * pixelsPerTwip_); };
    return {QPoint(across(left), down(top)), QPoint(across(left + width) - 1, down(top + height) - 1)};
}

QRect TaxonPage::cellRect(int slot) const
{
    return names_[slot - firstSlot_]->geometry().united(counts_[slot - firstSlot_]->geometry());
}

double TaxonPage::frameWidth() const
{
    return std::max(2.0, 45 * pixelsPerTwip_);
}

void TaxonPage::placeCells()
{
    QList<int> wanted = {width(), height()};
    wanted.reserve(2 + 3 * keysPerLayer);
    for (int slot = firstSlot(); slot <= lastSlot(); ++slot)
        wanted << frmMain.Text1[slot].top << frmMain.Text1[slot].left << frmMain.Text1[slot].fontSize;
    if (wanted == placed_)
        return;
    placed_ = wanted;

    pixelsAcross_ = width() / double(pageWidth);
    pixelsPerTwip_ = std::min(pixelsAcross_, height() / double(pageHeight));
    for (int slot = firstSlot(); slot <= lastSlot(); ++slot) {
        const TextBox& name = frmMain.Text1[slot];
        const TextBox& count = frmMain.Text2[slot];
        const Label& index = frmMain.Label1[slot];
        nameBox(slot)->setGeometry(scaled(name.left, name.top, cellNameWidth, cellCountBelow));
        countBox(slot)->setGeometry(scaled(count.left, count.top, cellNameWidth, cellCountHeight));
        indexLabel(slot)->setGeometry(
            scaled(index.left, index.top, cellNameWidth - 2 * cellIndexInset, indexHeight));
        sizeLetters(nameBox(slot), name.fontSize);
        sizeLetters(countBox(slot), count.fontSize);
        sizeLetters(indexLabel(slot), indexLetters);
    }
    update();
}

int TaxonPage::letterPixels(int points) const
{
    return std::max(1, qRound(points * twipsPerPoint * pixelsPerTwip_));
}

void TaxonPage::sizeLetters(QWidget* widget, int points) const
{
    QFont letters = widget->font();
    letters.setPixelSize(letterPixels(points));
    if (letters != widget->font())
        widget->setFont(letters);
}

void TaxonPage::makeEditable(bool editable)
{
    setAutoFillBackground(editable);
    QList<int> order;
    for (int slot = firstSlot(); slot <= lastSlot(); ++slot) {
        order << slot;
        for (CellBox* const box : {nameBox(slot), countBox(slot)}) {
            box->setReadOnly(!editable);
            box->setFrame(editable);
            box->setFocusPolicy(editable ? Qt::StrongFocus : Qt::NoFocus);
            box->unsetCursor(); // the sheet's pointer holds here
            if (!editable)
                box->deselect();
        }
    }
    std::sort(order.begin(), order.end(), [](int one, int other) {
        const auto place = [](int slot) {
            return std::pair(frmMain.Text1[slot].top, frmMain.Text1[slot].left);
        };
        return place(one) < place(other);
    });
    QList<QWidget*> stops;
    for (const int slot : order)
        stops << nameBox(slot);
    for (const int slot : order)
        stops << countBox(slot);
    for (int stop = 1; stop < stops.size(); ++stop)
        setTabOrder(stops[stop - 1], stops[stop]);
}

void TaxonPage::showKeyNames(bool shown)
{
    keyNamesShown_ = shown;
    update();
}

void TaxonPage::frameCells()
{
    QList<int> framed;
    for (int slot = firstSlot(); slot <= lastSlot(); ++slot)
        if (frmMain.Text1[slot].backColor != plainRow)
            framed << slot;
    if (framed == framed_)
        return;
    for (const int changed : framed_ + framed)
        update(cellRect(changed).marginsAdded(QMargins() + static_cast<int>(frameWidth() + 1)));
    framed_ = framed;
}

void TaxonPage::resizeEvent(QResizeEvent*)
{
    placeCells();
}

void TaxonPage::showEvent(QShowEvent*)
{
    placeCells();
}

QColor TaxonPage::blockColour() const
{
    const QColor window = palette().color(QPalette::Window);
    return mixed(window, palette().color(window.lightness() < 128 ? QPalette::Light : QPalette::Mid),
                 60 / 255.0);
}

/// Small and quiet: they are looked for, and must not be in the way of the counts above them.
void TaxonPage::paintKeyNames(QPainter& painter, const QRegion& where) const
{
    painter.setFont(indexLabel(firstSlot())->font());
    const QColor strong = palette().color(QPalette::WindowText);
    const QColor ground = blockColour();
    painter.setPen(legible(mixed(strong, ground, 0.4), strong, {ground}));
    for (int slot = firstSlot(); slot <= lastSlot(); ++slot) {
        const QRect place = indexLabel(slot)->geometry();
        const std::string& key = keyNames.ofNumber[slot - firstSlot() + 1];
        if (!key.empty() && where.intersects(place))
            painter.drawText(place, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip, shownText(key));
    }
}

/// Four edges outside the cell: an outline would be many times as dear, and all cells have one.
static void frameAround(QPainter& painter, const QRectF& cell, double width, const QColor& colour)
{
    const QRectF outer = cell.adjusted(-width, -width, width, width);
    painter.fillRect(QRectF(outer.left(), outer.top(), outer.width(), width), colour);
    painter.fillRect(QRectF(outer.left(), cell.bottom(), outer.width(), width), colour);
    painter.fillRect(QRectF(outer.left(), cell.top(), width, cell.height()), colour);
    painter.fillRect(QRectF(cell.right(), cell.top(), width, cell.height()), colour);
}

void TaxonPage::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    // The six blocks of the keyboard, so that the eye finds a key's place at once.
    painter.setPen(Qt::NoPen);
    painter.setBrush(blockColour());
    for (const int left : {240, 4560, 8880})
        for (const QRect& block : {scaled(left - 105, 225, 4035, 1815), scaled(left - 105, 2085, 4035, 2625)})
            if (event->region().intersects(block))
                painter.drawRoundedRect(block, 6, 6);

    painter.setRenderHint(QPainter::Antialiasing, false);
    for (int slot = firstSlot(); slot <= lastSlot(); ++slot)
        if (event->region().intersects(cellRect(slot).adjusted(-2, -2, 2, 2)))
            frameAround(painter, cellRect(slot), 1, palette().color(QPalette::Mid));

    if (keyNamesShown_)
        paintKeyNames(painter, event->region());

    for (const int slot : framed_)
        frameAround(painter, cellRect(slot), frameWidth(), QColor(0xC0, 0x50, 0x00));
}
