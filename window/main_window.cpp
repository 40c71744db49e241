#include "window/main_window.h"

#include "core/editing.h"
#include "core/endings.h"
#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "core/taxon_name.h"
#include "files/open_sheet.h"
#include "platform/qt/text.h"
#include "sheet/focus_and_pointer.h"
#include "sheet/key_names.h"
#include "sheet/percent_view.h"
#include "statistics/recount.h"
#include "window/bring_forward.h"
#include "window/cell_box.h"
#include "window/diagram_window.h"
#include "window/figure_window.h"
#include "window/manual_window.h"
#include "window/surface_view.h"
#include "window/taxon_page.h"
#include "window/total_frame.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScreen>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolTip>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr QSize designSize(1000, 700);
constexpr int designLetters = 12; // pixels
constexpr QSize frameRoom(8, 40); // what a window manager puts around the window

/// Text99: takes the focus and no text, so that no input method looks at the keys.
class FocusSink : public QWidget {
public:
    explicit FocusSink(QWidget* parent) : QWidget(parent)
    {
        setObjectName("Text99");
        setAccessibleName("Counting");
        setFocusPolicy(Qt::StrongFocus);
        setGeometry(0, 0, 1, 1);
    }
};

/// Every text that a user reads keeps its contrast when its box is disabled: that says "not now" here, not
/// "unimportant".
void keepDisabledTextsLegible(QWidget& widget)
{
    QPalette colours = widget.palette();
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText})
        colours.setColor(QPalette::Disabled, role, colours.color(QPalette::Active, role));
    widget.setPalette(colours);
}

} // namespace

MainWindow::MainWindow() : BoundWindow(*this, *this, mainControls())
{
    setObjectName("frmMain");
    setMinimumSize(designSize * 0.65);
    const QRect free = screen()->availableGeometry();
    resize(designSize.boundedTo(free.size() - frameRoom));
    // After a first run other windows have been there before, and a window manager would place it beside
    // them.
    move(free.center() - QRect(QPoint(), size() + frameRoom).center());
    setAcceptDrops(true);
    makeMenus();

    auto* const surface = new QWidget;
    surface->setObjectName("Picture1");
    keepDisabledTextsLegible(*surface);
    setCentralWidget(surface);
    focusSink_ = new FocusSink(surface);

    auto* const bottom = new QHBoxLayout;
    bottom->addWidget(infoPanel(), 6);
    bottom->addWidget(notePanel(), 4);
    bottom->addWidget(historyPanel(), 5);
    bottom->addWidget(curvePanel(), 5);
    auto* const whole = new QVBoxLayout(surface);
    whole->setContentsMargins(8, 6, 8, 2);
    whole->addWidget(sampleStrip());
    whole->addWidget(sumStrip());
    whole->addWidget(statisticsStrip());
    whole->addWidget(sheetPages(), 13);
    whole->addLayout(bottom, 6);
    statusBar()->setObjectName("StatusBar1");

    scaleFont();
    watch(surface);
    for (QWidget* const part : surface->findChildren<QWidget*>())
        watch(part);
    plainColours_ = surface->palette();

    takeCtrlLetters(*this);

    // The user moves the focus with Tab among the buttons; the record follows.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* focused) {
        if (focused != nullptr && focused->window() == this)
            frmMain.focus = focused == focusSink_ ? MainFocus::Text99
                            : focused == note_    ? MainFocus::Text4
                                                  : MainFocus::elsewhere;
    });
}

MainWindow::~MainWindow() = default;

void MainWindow::watch(QWidget* control)
{
    control->installEventFilter(this);
    control->setMouseTracking(true);
}

void MainWindow::beginEvent()
{
    frmMain.notice.clear();
}

/// The row of the table that a cell of the sheet belongs to; nullptr of anything else.
const ControlRow* MainWindow::cellRow(const QObject* target)
{
    const ControlRow* const row = controlOf(target).kind;
    return row != nullptr && row->hovered != nullptr ? row : nullptr;
}

/// While counting, a click anywhere on the sheet returns to the counting, and selects no text of a cell. In
/// Modify template mode the boxes are edited.
bool MainWindow::eventFilter(QObject* target, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseMove: {
        const ControlRow* const cell = cellRow(target);
        onPassing(cell != nullptr ? cell->hovered : Form_MouseMove);
        break;
    }
    case QEvent::MouseButtonPress:
        if (boxPressed(static_cast<QWidget*>(target), static_cast<QMouseEvent&>(*event)))
            return true;
        break;
    case QEvent::UngrabMouse:
        if (target == percent_)
            onEvent(Command6_MouseUp);
        return false;
    case QEvent::MouseButtonRelease:
        if (static_cast<QMouseEvent&>(*event).button() == Qt::MiddleButton &&
            boxPasted(static_cast<QWidget*>(target), QClipboard::Selection))
            return true;
        if (target == percent_ && static_cast<QMouseEvent&>(*event).button() == Qt::LeftButton)
            onEvent(Command6_MouseUp);
        if (target == enteredByMouse_ && !enteredByMouse_->hasSelectedText())
            enteredByMouse_->selectAll();
        enteredByMouse_ = nullptr;
        break;
    case QEvent::MouseButtonDblClick:
        if (sheet.Modifying && static_cast<QMouseEvent&>(*event).button() == Qt::LeftButton)
            boxDoubleClicked(static_cast<QWidget*>(target));
        break;
    case QEvent::FocusIn:
        boxEntered(static_cast<QWidget*>(target), static_cast<QFocusEvent&>(*event).reason());
        return false;
    case QEvent::FocusOut: {
        if (!sheet.KeysActive)
            onPassing(Command6_MouseUp);
        // A message or a menu in front is no reason to think that the user is done with the box.
        const Qt::FocusReason reason = static_cast<QFocusEvent&>(*event).reason();
        if (sheet.Modifying && reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
            frmMain.focus = MainFocus::elsewhere; // or the note would call it back
            onPassing(leaveEditedBox);
            boxLeft(target);
        }
        return false;
    }
    case QEvent::ContextMenu:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return keyOnControl(static_cast<QWidget*>(target), *event);
    case QEvent::ToolTip:
        return showCutText(target, static_cast<QHelpEvent&>(*event));
    case QEvent::Wheel: // a turn of the wheel on the way elsewhere must not change the sample
        return qobject_cast<QComboBox*>(target) != nullptr;
    default:
        return false;
    }
    return !sheet.Modifying && cellRow(target) != nullptr;
}

/// A text that its box is too narrow for.
bool MainWindow::showCutText(const QObject* target, const QHelpEvent& event)
{
    const auto* const box = qobject_cast<const QLineEdit*>(target);
    if (box == nullptr || !box->toolTip().isEmpty())
        return false;
    const bool cut = box->fontMetrics().horizontalAdvance(box->text()) > box->contentsRect().width() - 4;
    QToolTip::showText(event.globalPos(), cut ? box->text() : QString());
    return true;
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    scaleFont();
}

void MainWindow::paintEvent(QPaintEvent* event)
{
    QMainWindow::paintEvent(event);
    constexpr int untilInUse = 100; // milliseconds: no hand goes for Shift sooner
    if (!isPainted_)
        QTimer::singleShot(untilInUse, this, [this] {
            makePages(tabs_->count());
            makeDiagram(); // its chrome is measured before a diagram is laid out
            present();
        });
    isPainted_ = true;
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (sheet.Unloading)
        return;
    event->ignore(); // the handler ends the program itself, or not
    bool cancel = false;
    onEvent([&cancel] { Form_Unload(cancel); });
}

static QString droppedFile(const QDropEvent& event)
{
    const QList<QUrl> urls = event.mimeData()->urls();
    return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (droppedFile(*event).isEmpty())
        return;
    event->setDropAction(Qt::CopyAction); // never moved: the file stays where it is
    event->accept();
}

/// The file manager is let go first: the questions of opening must not keep it waiting.
void MainWindow::dropEvent(QDropEvent* event)
{
    const std::string path = nativePath(droppedFile(*event));
    event->setDropAction(Qt::CopyAction);
    event->accept();
    QTimer::singleShot(0, this, [this, path] {
        if (QApplication::activeModalWidget() == nullptr) // a question that came first is answered first
            onEvent([&] { openDropped(path); });
    });
}

/// The whole sheet grows with the window: the letters of its controls here, those of the cells in their
/// pages.
void MainWindow::scaleFont()
{
    const double scale =
        std::min(width() / double(designSize.width()), height() / double(designSize.height()));
    QFont letters = font();
    letters.setPixelSize(std::max(9, qRound(designLetters * scale)));
    if (letters == centralWidget()->font())
        return;
    centralWidget()->setFont(letters);
    letters.setPixelSize(letters.pixelSize() * 5 / 4); // the sums are read at arm's length
    letters.setBold(true);
    for (QLineEdit* const sum : sums_) {
        sum->setFont(letters);
        sum->setMinimumWidth(QFontMetrics(letters).horizontalAdvance("88888") + 12);
    }
    heading_->setFixedWidth(QFontMetrics(centralWidget()->font()).horizontalAdvance("Alarm and ") + 2);
    statisticsLine_->setMinimumHeight(QFontMetrics(centralWidget()->font()).height() + 2);
    location_->setFixedHeight(3 * QFontMetrics(centralWidget()->font()).lineSpacing() + 1);
}

void MainWindow::present()
{
    if (!pages_.isEmpty() && (frmMain.SSTab1 >= pages_.size() || frmMain.sheetColour.has_value()))
        makePages(tabs_->count());
    // A box that is disabled passes the focus on, which is not the user's doing.
    const MainFocus wanted = frmMain.focus;
    showControls();
    presentKeyNames();
    presentNames();
    for (TaxonPage* const page : pages_) {
        if (page->isVisible()) // else when it comes into view, at the size that it has then
            page->placeCells();
        page->frameCells();
    }
    if (tabs_->currentIndex() != frmMain.SSTab1)
        tabs_->setCurrentIndex(frmMain.SSTab1);
    if (const QString title = shownText(frmMain.caption); title != windowTitle())
        setWindowTitle(title);
    presentNotice();
    for (int total = 0; total < 3; ++total) {
        hundredMarks_[total]->setVisible(frmMain.hundredMark[total]);
        totals_[total]->setWatched(frmMain.Option1[total].selected);
    }
    presentRecount();
    curve_->present();
    presentMode();
    frmMain.focus = wanted;
    presentFocusAndPointer();
    if (isVisible() != frmMain.visible)
        setVisible(frmMain.visible);
    if (pages_.isEmpty() && isVisible()) {
        makePages(1); // a tab widget lays out its pages only once it is shown: cells are placed once
        present();
        return;
    }
    presentForms();
    if (frmMain.forwardRevision != forwardShown_) {
        forwardShown_ = frmMain.forwardRevision;
        bringForward(*this);
    }
}

void MainWindow::presentNotice()
{
    const QString notice = shownText(!frmMain.notice.empty()       ? frmMain.notice
                                     : !frmMain.diskNotice.empty() ? frmMain.diskNotice
                                                                   : frmMain.readingNotice);
    if (notice != statusBar()->currentMessage())
        statusBar()->showMessage(notice);
}

/// While a sample is counted again its sums are not to be seen; the curve shows the total too.
void MainWindow::presentRecount()
{
    const bool hidden = areSumsHidden();
    const auto mode = hidden ? QLineEdit::NoEcho : QLineEdit::Normal;
    if (sums_[0]->echoMode() == mode)
        return;
    for (QLineEdit* const sum : sums_) {
        sum->setEchoMode(mode);
        sum->setToolTip(hidden ? "Hidden until the recount is finished: View > Statistics..., Compare"
                               : QString());
    }
    curve_->setVisible(!hidden);
}

/// Where the key indexes stand in Modify template mode.
void MainWindow::presentKeyNames()
{
    const bool shown = keyNames.mnuKeyNames.checked && !frmMain.sheetColour;
    if (keyNames.revision == keyNamesShown_ && shown == keyNamesOnShow_)
        return;
    if (keyNames.revision != keyNamesShown_)
        namesShown_.fill({}); // tips name keys too
    keyNamesShown_ = keyNames.revision;
    keyNamesOnShow_ = shown;
    for (TaxonPage* const page : pages_)
        page->showKeyNames(shown);
}

/// What a screen reader says of a cell, and its tip: not before the window is on the screen.
void MainWindow::presentNames()
{
    if (!isPainted_)
        return;
    for (TaxonPage* const page : pages_)
        for (int slot = page->firstSlot(); slot <= page->lastSlot(); ++slot) {
            std::string& named = namesShown_[slot];
            if (named == frmMain.Text1[slot].text)
                continue;
            named = frmMain.Text1[slot].text;
            const QString tip = shownText(tipOfCell(slot));
            page->nameBox(slot)->setToolTip(tip);
            page->countBox(slot)->setToolTip(tip);
            page->nameBox(slot)->setAccessibleName(QString("Taxon, key %1").arg(slot));
            page->countBox(slot)->setAccessibleName(
                QString("Count of %1, key %2").arg(shownText(named)).arg(slot));
        }
}

void MainWindow::presentFocusAndPointer()
{
    if (frmMain.focus == MainFocus::Text99 && isActiveWindow() && !focusSink_->hasFocus())
        focusSink_->setFocus();
    if (frmMain.focus == MainFocus::Text4 && isActiveWindow() && !note_->hasFocus())
        note_->setFocus();
    if (frmMain.pointer != pointerShown_) {
        pointerShown_ = frmMain.pointer;
        constexpr Qt::CursorShape shapes[] = {Qt::ArrowCursor, Qt::IBeamCursor, Qt::WaitCursor};
        centralWidget()->setCursor(shapes[static_cast<int>(pointerShown_)]);
    }
}
