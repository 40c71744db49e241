#include "window/diagram_window.h"

#include "core/main_screen.h"
#include "core/sample_sort.h"
#include "core/sheet_state.h"
#include "diagram/diagram_hand.h"
#include "diagram/diagram_mouse.h"
#include "diagram/diagram_window.h"
#include "platform/qt/text.h"
#include "platform/twips.h"
#include "window/bring_forward.h"
#include "window/elided_label.h"
#include "window/main_window.h"
#include "window/surface_view.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>

namespace {

int pixels(int twips)
{
    return qRound(twips / double{twipsPerPixel});
}

std::vector<ControlRow> diagramControls()
{
    DiagramForm& f = frmDiagram;
    return {
        {.name = "Picture1"},
        {.name = "Picture2"},
        {.name = "Picture3"},
        {.name = "Picture4"},
        {.name = "HScroll1", .record = &f.HScroll1, .changed = HScroll1_Change},
        {.name = "Slider1", .record = &f.Slider1, .changed = Slider1_Change},
        {.name = "Slider2", .record = &f.Slider2, .changed = Slider2_Change},
        {.name = "UpDown1_Up", .clicked = UpDown1_UpClick},
        {.name = "UpDown1_Down", .clicked = UpDown1_DownClick},
        {.name = "Check1", .record = &f.Check1, .clicked = Check1_Click},
        {.name = "Combo2", .record = &f.Combo2, .chosen = frmDiagram_Combo2_Click},
        {.name = "Command1", .clicked = frmDiagram_Command1_Click},
        {.name = "Text1", .record = &f.Text1},
        {.name = "Text2", .record = &f.Text2},
        {.name = "mnuSortSamples", .record = &sampleSort.offer, .clicked = mnuSortSamples_Click},
    };
}

void put(QWidget* widget, const Place& place)
{
    widget->setGeometry(
        QRect(QPoint(pixels(place.left), pixels(place.top)),
              QPoint(pixels(place.left + place.width) - 1, pixels(place.top + place.height) - 1)));
}

} // namespace

DiagramWindow::DiagramWindow(MainWindow& main) : BoundWindow(*this, main, diagramControls())
{
    setObjectName("frmDiagram");
    makeMenus();
    statusBar()->setObjectName("StatusBar1");
    statusBar()->setSizeGripEnabled(true);

    auto* const surface = new QWidget;
    setCentralWidget(surface);
    surface->setMouseTracking(true);
    surface->installEventFilter(this);
    notice_ = new ElidedLabel;
    notice_->setParent(surface);
    notice_->setObjectName("notice");
    sort_ = bind(new QToolButton(surface), "mnuSortSamples");
    sort_->setText("Sort samples by depth");
    sort_->setFocusPolicy(Qt::TabFocus);
    names_ = picture("Picture4", frmDiagram.Picture4, "Taxon names");
    names_->setPaper(Paper::window);
    diagram_ = picture("Picture1", frmDiagram.Picture1, "Percentage diagram");
    dendrogram_ = picture("Picture2", frmDiagram.Picture2, "Dendrogram of the cluster analysis");
    strip_ = bind(new QWidget(surface), "Picture3");
    strip_->installEventFilter(this);
    scroll_ = bind(new QScrollBar(Qt::Horizontal, surface), "HScroll1");
    scroll_->setAccessibleName("Scroll through the taxa");
    sample_ = bind(new QSlider(Qt::Vertical, surface), "Slider1");
    sample_->setAccessibleName("Selected sample");
    sample_->setToolTip("Selects a sample");
    sample_->setInvertedAppearance(true); // the first sample is at the top
    sample_->setInvertedControls(true);
    connect(sample_, &QSlider::sliderReleased, this, [this] { runEvent(Slider1_Click); });
    buttons_ = sampleButtons();
    panel_ = samplePanel();
    corner_ = corner();
    sample_->installEventFilter(this);
    for (QWidget* const part : {buttons_, panel_, corner_}) {
        part->setParent(surface);
        part->setMouseTracking(true);
        part->installEventFilter(this);
    }
    panel_->raise();
    parting_ = new QFrame(surface);
    parting_->setFrameShape(QFrame::VLine);

    frmDiagram.chromeHeight =
        (menuBar()->sizeHint().height() + statusBar()->sizeHint().height()) * twipsPerPixel;
    setMinimumSize(150, 120); // below that the window says itself that it is too small
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* focused) {
        if (focused != nullptr && focused->window() == this)
            frmDiagram.sliderFocused = focused == sample_;
    });
}

SurfaceView* DiagramWindow::picture(const char* name, Surface& surface, const QString& accessibleName)
{
    auto* const view = new SurfaceView(surface);
    view->setParent(centralWidget());
    bind(view, name);
    view->setAccessibleName(accessibleName);
    view->setMouseTracking(true);
    view->setFocusPolicy(Qt::TabFocus);
    view->installEventFilter(this);
    return view;
}

QWidget* DiagramWindow::sampleButtons()
{
    auto* const both = new QWidget;
    both->setObjectName("UpDown1");
    auto* const column = new QVBoxLayout(both);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    const auto add = [&](const char* name, Qt::ArrowType arrow, const QString& says) {
        auto* const button = bind(new QToolButton, name);
        button->setArrowType(arrow);
        button->setFocusPolicy(Qt::NoFocus);
        button->setAutoRaise(true);
        button->setAutoRepeat(true);
        button->setToolTip(says);
        button->setAccessibleName(says);
        button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        column->addWidget(button);
    };
    add("UpDown1_Up", Qt::UpArrow, "Sample above");
    add("UpDown1_Down", Qt::DownArrow, "Sample below");
    return both;
}

QWidget* DiagramWindow::samplePanel()
{
    auto* const panel = new QFrame;
    panel->setObjectName("Frame3");
    panel->setFrameShape(QFrame::StyledPanel);
    panel->setAutoFillBackground(true);
    auto* const column = new QVBoxLayout(panel);
    column->setContentsMargins(5, 2, 5, 3);
    column->setSpacing(2);
    check_ = bind(new QCheckBox, "Check1");
    check_->setToolTip("Draws a line at this sample, and the panel goes with it");
    auto* const names = new QComboBox;
    names->setAccessibleName("Choose a sample");
    names->setEditable(true);
    names->lineEdit()->setReadOnly(true);
    names->lineEdit()->setAccessibleName("Choose a sample");
    names->setFocusPolicy(Qt::TabFocus);
    names->setInsertPolicy(QComboBox::NoInsert);
    names->setCompleter(nullptr);
    names->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    names->setMinimumContentsLength(4);
    names->installEventFilter(this);
    bind(names, "Combo2");
    column->addWidget(check_);
    column->addWidget(names);
    return panel;
}

/// Zoom and the sample that is being moved, in the corner beside the names.
QWidget* DiagramWindow::corner()
{
    auto* const box = new QWidget;
    box->setObjectName("Frame1");
    auto* const grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(3);
    auto* const zoom = bind(new QSlider(Qt::Horizontal), "Slider2");
    zoom->setAccessibleName("Zoom");
    zoom->setToolTip("Width of a percent: 5 is one to one");
    zoom->setPageStep(1);
    zoom->setTickPosition(QSlider::TicksBelow);
    auto* const zoomLabel = new QLabel("Zoom");
    zoomLabel->setBuddy(zoom);
    auto* const both = new QWidget;
    both->setAutoFillBackground(true); // the paper of the names reaches under it, white in a dark theme
    auto* const rows = new QVBoxLayout(both);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(3);
    rows->addWidget(zoomLabel);
    rows->addWidget(zoom);
    grid->addWidget(both, 0, 0, 1, 2);
    grid->setRowStretch(2, 1);
    move_ = new QWidget;
    grid->addWidget(move_, 3, 0, 1, 2);
    auto* const moved = new QGridLayout(move_);
    moved->setContentsMargins(0, 0, 0, 0);
    moved->setVerticalSpacing(3);
    auto* const move = bind(new QPushButton("Moved sample"), "Command1");
    move->setAutoDefault(false);
    move->setToolTip("Shows from where to where a sample was dragged last");
    moved->addWidget(move, 0, 0, 1, 2);
    const auto number = [&](const char* name, const QString& says, int column) {
        auto* const edit = bind(new QLineEdit, name);
        edit->setReadOnly(true);
        edit->setFocusPolicy(Qt::NoFocus);
        edit->setToolTip(says);
        edit->setAccessibleName(says);
        edit->setMinimumWidth(20);
        moved->addWidget(edit, 1, column);
    };
    number("Text1", "Moved from place", 0);
    number("Text2", "Moved to place", 1);
    return box;
}

void DiagramWindow::present()
{
    const DiagramForm& f = frmDiagram;
    if (!sheet.DiagramOpen) {
        if (isVisible())
            hide();
        return;
    }
    showControls();
    presentPanel();
    presentPlaces();
    move_->setVisible(sheet.NamesNotNumeric); // depths have their places
    for (SurfaceView* const view : {names_, diagram_, dendrogram_})
        view->present();
    if (const QString title = "Diagram" + shownText(frmMain.caption.substr(frmMain.caption.find(" - [")));
        title != windowTitle())
        setWindowTitle(title);
    const Qt::CursorShape shape = f.pointer == DiagramPointer::sizeNS ? Qt::SizeVerCursor : Qt::ArrowCursor;
    for (SurfaceView* const view : {diagram_, dendrogram_})
        if (view->cursor().shape() != shape)
            view->setCursor(shape);
    if (const QString tip = shownText(f.toolTip); tip != diagram_->toolTip())
        diagram_->setToolTip(tip);

    takeSize(QSize(pixels(f.Width), pixels(f.Height)));
    if (!isVisible())
        show();
    if (f.forwardRevision != forwardShown_) {
        forwardShown_ = f.forwardRevision;
        bringForward(*this);
    }
    if (f.sliderFocused && isActiveWindow() && !sample_->hasFocus())
        sample_->setFocus();
}

/// A handler wants another size. What the screen has no room for, the diagram gives up.
void DiagramWindow::takeSize(QSize wanted)
{
    if (wanted == size() || resizeWaits_)
        return;
    const QRect free = screen()->availableGeometry();
    const QSize frame = frameSize() - size();
    const QSize possible = isMaximized() ? size() : wanted.boundedTo(free.size() - frame);
    resize(possible);
    if (isVisible() && frameGeometry().left() + possible.width() + frame.width() > free.right())
        move(std::max(free.left(), free.right() - possible.width() - frame.width()), pos().y());
    if (possible != wanted)
        resized();
}

void DiagramWindow::presentPanel()
{
    const DiagramForm& f = frmDiagram;
    const QString sample = shownText(f.Check1.caption);
    constexpr int besideName = 36; // the tick and the margins
    const QString name =
        check_->fontMetrics().elidedText(sample, Qt::ElideMiddle, pixels(f.frame3Place.width) - besideName);
    if (const QString caption = QString(name).replace('&', "&&"); caption != check_->text())
        check_->setText(caption);
    if (const QString said = "Line at sample " + sample; said != check_->accessibleName())
        check_->setAccessibleName(said);
    if (const QString notice = shownText(f.notice); notice != notice_->text())
        notice_->setText(notice);
}

void DiagramWindow::presentPlaces()
{
    const DiagramForm& f = frmDiagram;
    put(names_, f.picture4Place);
    put(diagram_, f.picture1Place);
    put(dendrogram_, f.picture2Place);
    dendrogram_->setVisible(f.picture2Visible);
    parting_->setGeometry(dendrogram_->x(), dendrogram_->y(), 1, dendrogram_->height());
    parting_->setVisible(f.picture2Visible); // a curve at the edge does not run on in a branch
    put(strip_, f.picture3Place);
    put(scroll_, f.hScroll1Place);
    put(sample_, f.slider1Place);
    put(panel_, f.frame3Place);
    put(buttons_, f.upDown1Place);
    put(corner_, f.cornerPlace);
    constexpr int noticeLeft = 6;
    const int besides = sort_->isHidden() ? 0 : sort_->sizeHint().width() + noticeLeft;
    sort_->setGeometry(noticeLeft, 1, besides - noticeLeft, 19);
    notice_->setGeometry(noticeLeft + besides, 2, width() - 2 * noticeLeft - besides, 18);
}

/// Waits for the event loop: the handler may ask something, which must not happen inside a resize.
void DiagramWindow::resized()
{
    if (resizeWaits_ || !isVisible())
        return;
    resizeWaits_ = true;
    QTimer::singleShot(0, this, [this] {
        resizeWaits_ = false;
        frmDiagram.chromeWidth = (width() - centralWidget()->width()) * twipsPerPixel;
        frmDiagram.chromeHeight = (height() - centralWidget()->height()) * twipsPerPixel;
        runEvent([this] { frmDiagram_Resize(width() * twipsPerPixel, height() * twipsPerPixel); });
    });
}

bool DiagramWindow::pictureEvent(SurfaceView* view, QMouseEvent& event)
{
    const DiagramPicture which = view == diagram_ ? DiagramPicture::diagram : DiagramPicture::dendrogram;
    const Surface& surface = view == diagram_ ? frmDiagram.Picture1 : frmDiagram.Picture2;
    const auto x =
        static_cast<float>(surface.scale.left + event.position().x() / view->width() * surface.scale.width);
    const auto y =
        static_cast<float>(surface.scale.top + event.position().y() / view->height() * surface.scale.height);
    const bool right = event.button() == Qt::RightButton;
    bool menuOpens = false;
    if (event.type() == QEvent::MouseMove)
        runEvent([&] { pictureMouseMove(which, x, y); });
    else if (event.type() == QEvent::MouseButtonRelease)
        runEvent(pictureMouseUp);
    else if (event.button() == Qt::LeftButton || right)
        runEvent([&] { menuOpens = pictureMouseDown(which, x, y, right); });
    if (menuOpens)
        menuNamed(view == diagram_ ? "RB1" : "RBConiss")->popup(event.globalPosition().toPoint());
    return true;
}

bool DiagramWindow::eventFilter(QObject* target, QEvent* event)
{
    const bool isPicture = target == diagram_ || target == dendrogram_;
    switch (event->type()) {
    case QEvent::Resize:
        if (target == centralWidget())
            resized();
        return false;
    case QEvent::ContextMenu:
    case QEvent::KeyPress:
        if (target == sample_ && event->type() == QEvent::KeyPress)
            return arrowKey(target, static_cast<QKeyEvent&>(*event));
        return (isPicture || target == names_) && keyOnPicture(static_cast<SurfaceView*>(target), *event);
    case QEvent::Wheel: // a turn on the way elsewhere must not change the sample
        if (isPicture || target == names_) {
            const auto& wheel = static_cast<QWheelEvent&>(*event);
            const QPoint turn = wheel.angleDelta();
            runEvent([&] {
                turnWheel(turn.y() != 0 ? turn.y() : turn.x(),
                          wheel.modifiers().testFlag(Qt::ControlModifier));
            });
            return true;
        }
        return qobject_cast<QComboBox*>(target) != nullptr;
    case QEvent::MouseMove:
        if (isPicture)
            return pictureEvent(static_cast<SurfaceView*>(target), static_cast<QMouseEvent&>(*event));
        runEvent(target == centralWidget() || target == names_ ? mouseOverSurface : mouseOverControls);
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        if (isPicture)
            return pictureEvent(static_cast<SurfaceView*>(target), static_cast<QMouseEvent&>(*event));
        if (target == names_ && event->type() == QEvent::MouseButtonPress &&
            static_cast<QMouseEvent&>(*event).button() == Qt::RightButton)
            menuNamed("RB3")->popup(static_cast<QMouseEvent&>(*event).globalPosition().toPoint());
        if (target == names_ || target == strip_)
            runEvent(frmDiagram_Activate);
        return false;
    default:
        return false;
    }
}

void DiagramWindow::closeEvent(QCloseEvent* event)
{
    event->ignore(); // the record says whether it is open
    runEvent(closeDiagram);
}

void DiagramWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        runEvent(frmDiagram_Activate);
}
