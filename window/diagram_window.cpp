#include "window/diagram_window.h"

#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "diagram/diagram_mouse.h"
#include "diagram/diagram_window.h"
#include "platform/qt/text.h"
#include "window/bring_forward.h"
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
#include <QSignalBlocker>
#include <QSlider>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>

namespace {

constexpr double twipsPerPixel = 15;

int pixels(int twips)
{
    return qRound(twips / twipsPerPixel);
}

void put(QWidget* widget, const Place& place)
{
    widget->setGeometry(
        QRect(QPoint(pixels(place.left), pixels(place.top)),
              QPoint(pixels(place.left + place.width) - 1, pixels(place.top + place.height) - 1)));
}

} // namespace

DiagramWindow::DiagramWindow(MainWindow& main) : main_(main)
{
    setObjectName("frmDiagram");
    makeMenus();
    makePopups();
    statusBar()->setObjectName("StatusBar1");
    statusBar()->setSizeGripEnabled(true);

    auto* const surface = new QWidget;
    setCentralWidget(surface);
    surface->setMouseTracking(true);
    surface->installEventFilter(this);
    notice_ = new QLabel(surface);
    notice_->setObjectName("notice");
    names_ = picture("Picture4", frmDiagram.Picture4, "Taxon names");
    names_->setPaper(Paper::window);
    diagram_ = picture("Picture1", frmDiagram.Picture1, "Percentage diagram");
    dendrogram_ = picture("Picture2", frmDiagram.Picture2, "Dendrogram of the cluster analysis");
    strip_ = new QWidget(surface);
    strip_->setObjectName("Picture3");
    strip_->installEventFilter(this);
    scroll_ = new QScrollBar(Qt::Horizontal, surface);
    scroll_->setObjectName("HScroll1");
    scroll_->setAccessibleName("Scroll through the taxa");
    connect(scroll_, &QScrollBar::valueChanged, this,
            [this](int value) { onEvent([&] { HScroll1_Change(value); }); });
    sample_ = new QSlider(Qt::Vertical, surface);
    sample_->setObjectName("Slider1");
    sample_->setAccessibleName("Selected sample");
    sample_->setToolTip("Selects a sample");
    sample_->setInvertedAppearance(true); // the first sample is at the top
    sample_->setInvertedControls(true);
    connect(sample_, &QSlider::valueChanged, this,
            [this](int value) { onEvent([&] { Slider1_Change(value); }); });
    connect(sample_, &QSlider::sliderReleased, this, [this] { onEvent(Slider1_Click); });
    buttons_ = sampleButtons();
    panel_ = samplePanel();
    corner_ = corner();
    for (QWidget* const part : {buttons_, panel_, corner_}) {
        part->setParent(surface);
        part->setMouseTracking(true);
        part->installEventFilter(this);
    }
    panel_->raise();
    parting_ = new QFrame(surface);
    parting_->setFrameShape(QFrame::VLine);

    frmDiagram.chromeHeight =
        static_cast<int>((menuBar()->sizeHint().height() + statusBar()->sizeHint().height()) * twipsPerPixel);
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
    view->setObjectName(name);
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
    const auto add = [&](Qt::ArrowType arrow, const QString& says, void (*clicked)()) {
        auto* const button = new QToolButton;
        button->setArrowType(arrow);
        button->setFocusPolicy(Qt::NoFocus);
        button->setAutoRaise(true);
        button->setAutoRepeat(true);
        button->setToolTip(says);
        button->setAccessibleName(says);
        button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        connect(button, &QToolButton::clicked, this, [this, clicked] { onEvent(clicked); });
        column->addWidget(button);
    };
    add(Qt::UpArrow, "Sample above", UpDown1_UpClick);
    add(Qt::DownArrow, "Sample below", UpDown1_DownClick);
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
    check_ = new QCheckBox;
    check_->setObjectName("Check1");
    check_->setToolTip("Draws a line at this sample, and the panel goes with it");
    connect(check_, &QCheckBox::clicked, this, [this](bool on) { onEvent([&] { Check1_Click(on); }); });
    auto* const names = new QComboBox;
    names->setObjectName("Combo2");
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
    connect(names, &QComboBox::activated, this, [this](int index) {
        onEvent([&] { frmDiagram_Combo2_Click(std::string(frmDiagram.Combo2.items[index])); });
    });
    combos_.append({names, &frmDiagram.Combo2});
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
    zoom_ = new QSlider(Qt::Horizontal);
    zoom_->setObjectName("Slider2");
    zoom_->setAccessibleName("Zoom");
    zoom_->setToolTip("Width of a percent: 5 is one to one");
    zoom_->setRange(0, 10);
    zoom_->setPageStep(1);
    zoom_->setTickPosition(QSlider::TicksBelow);
    connect(zoom_, &QSlider::valueChanged, this,
            [this](int value) { onEvent([&] { Slider2_Change(value); }); });
    auto* const zoomLabel = new QLabel("Zoom");
    zoomLabel->setBuddy(zoom_);
    for (QWidget* const part : {static_cast<QWidget*>(zoomLabel), static_cast<QWidget*>(zoom_)})
        part->setAutoFillBackground(true); // the paper of the names reaches under it, white in a dark theme
    grid->addWidget(zoomLabel, 0, 0, 1, 2);
    grid->addWidget(zoom_, 1, 0, 1, 2);
    grid->setRowStretch(2, 1);
    move_ = new QWidget;
    grid->addWidget(move_, 3, 0, 1, 2);
    auto* const moved = new QGridLayout(move_);
    moved->setContentsMargins(0, 0, 0, 0);
    moved->setVerticalSpacing(3);
    auto* const move = new QPushButton("Moved sample");
    move->setObjectName("Command1");
    move->setAutoDefault(false);
    move->setToolTip("Shows from where to where a sample was dragged last");
    connect(move, &QPushButton::clicked, this, [this] { onEvent(frmDiagram_Command1_Click); });
    moved->addWidget(move, 0, 0, 1, 2);
    const auto number = [&](const char* name, const TextBox& record, const QString& says, int column) {
        auto* const edit = new QLineEdit;
        edit->setObjectName(name);
        edit->setReadOnly(true);
        edit->setFocusPolicy(Qt::NoFocus);
        edit->setToolTip(says);
        edit->setAccessibleName(says);
        edit->setMinimumWidth(20);
        lines_.append({edit, &record});
        moved->addWidget(edit, 1, column);
    };
    number("Text1", frmDiagram.Text1, "Moved from place", 0);
    number("Text2", frmDiagram.Text2, "Moved to place", 1);
    return box;
}

void DiagramWindow::onEvent(const std::function<void()>& handler)
{
    main_.onEvent(handler);
}

void DiagramWindow::present()
{
    const DiagramForm& f = frmDiagram;
    if (!sheet.DiagramOpen) {
        if (isVisible())
            hide();
        return;
    }
    showAll(actions_);
    showAll(combos_);
    showAll(lines_);
    presentScales();
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

void DiagramWindow::presentScales()
{
    const DiagramForm& f = frmDiagram;
    const QSignalBlocker quietScroll(scroll_);
    scroll_->setRange(0, f.HScroll1.max);
    scroll_->setSingleStep(f.HScroll1.smallChange);
    scroll_->setPageStep(f.HScroll1.largeChange);
    scroll_->setValue(f.HScroll1.value);
    scroll_->setVisible(f.HScroll1.visible);
    const QSignalBlocker quietSample(sample_);
    sample_->setRange(f.Slider1.min, f.Slider1.max);
    sample_->setValue(f.Slider1.value);
    const QSignalBlocker quietZoom(zoom_);
    zoom_->setValue(f.Slider2.value);
    check_->setChecked(f.Check1.checked);
    const QString sample = shownText(f.Check1.caption);
    constexpr int besideName = 36; // the tick and the margins
    const QString name =
        check_->fontMetrics().elidedText(sample, Qt::ElideRight, pixels(f.frame3Place.width) - besideName);
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
    notice_->setGeometry(pixels(f.picture4Place.left), 2, width() - pixels(f.picture4Place.left), 18);
}

/// Waits for the event loop: the handler may ask something, which must not happen inside a resize.
void DiagramWindow::resized()
{
    if (resizeWaits_ || !isVisible())
        return;
    resizeWaits_ = true;
    QTimer::singleShot(0, this, [this] {
        resizeWaits_ = false;
        frmDiagram.chromeWidth = static_cast<int>((width() - centralWidget()->width()) * twipsPerPixel);
        frmDiagram.chromeHeight = static_cast<int>((height() - centralWidget()->height()) * twipsPerPixel);
        onEvent([this] {
            frmDiagram_Resize(static_cast<int>(width() * twipsPerPixel),
                              static_cast<int>(height() * twipsPerPixel));
        });
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
        onEvent([&] { pictureMouseMove(which, x, y); });
    else if (event.type() == QEvent::MouseButtonRelease)
        onEvent(pictureMouseUp);
    else if (event.button() == Qt::LeftButton || right)
        onEvent([&] { menuOpens = pictureMouseDown(which, x, y, right); });
    if (menuOpens)
        (view == diagram_ ? diagramMenu_ : dendrogramMenu_)->popup(event.globalPosition().toPoint());
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
        return (isPicture || target == names_) && keyOnPicture(static_cast<SurfaceView*>(target), *event);
    case QEvent::Wheel: // a turn on the way elsewhere must not change the sample
        return qobject_cast<QComboBox*>(target) != nullptr;
    case QEvent::MouseMove:
        if (isPicture)
            return pictureEvent(static_cast<SurfaceView*>(target), static_cast<QMouseEvent&>(*event));
        onEvent(target == centralWidget() || target == names_ ? mouseOverSurface : mouseOverControls);
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        if (isPicture)
            return pictureEvent(static_cast<SurfaceView*>(target), static_cast<QMouseEvent&>(*event));
        if (target == names_ && event->type() == QEvent::MouseButtonPress &&
            static_cast<QMouseEvent&>(*event).button() == Qt::RightButton)
            namesMenu_->popup(static_cast<QMouseEvent&>(*event).globalPosition().toPoint());
        if (target == names_ || target == strip_)
            onEvent(frmDiagram_Activate);
        return false;
    default:
        return false;
    }
}

void DiagramWindow::closeEvent(QCloseEvent* event)
{
    event->ignore(); // the record says whether it is open
    onEvent(closeDiagram);
}

void DiagramWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        onEvent(frmDiagram_Activate);
}
