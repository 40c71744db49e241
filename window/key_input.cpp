#include "window/key_input.h"

#include "core/dispatch_key.h"
#include "core/forms.h"
#include "core/main_keys.h"
#include "core/sheet_state.h"
#include "diagram/diagram_window.h"
#include "extras/diagnose.h"
#include "platform/qt/system_keys.h"
#include "sheet/percent_view.h"
#include "window/capture_box.h"
#include "window/main_window.h"

#include <QApplication>
#include <QKeyEvent>
#include <QShortcut>
#include <QWindow>

/// Milliseconds. The two halves of a repeat carry the same time, but on a busy machine the second one has
/// been seen to arrive some 10 ms after the first.
constexpr int releaseWaits = 15;

KeyInput::KeyInput(MainWindow& window) : window_(window), keys_(systemKeys())
{
    heldRelease_.setSingleShot(true);
    connect(&heldRelease_, &QTimer::timeout, this, [this] { deliver(repeats_.flush(), 0); });
    qApp->installEventFilter(this);
    for (const QKeyCombination key : keys_->toAskFor())
        (new QShortcut(key, &window))->setContext(Qt::ApplicationShortcut);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* focused) {
        if (focused == nullptr || (focused != window_.windowHandle() && !window_.isDiagram(focused)))
            keyboardLost();
    });
}

KeyInput::~KeyInput() = default;

void KeyInput::keyboardLost()
{
    deliver(repeats_.flush(), 0); // that key did come up
    repeats_.forget();
    captured_.clear();
    window_.onPassing([] {
        Form_Deactivate();
        Command6_MouseUp(); // percentages are looked at in passing
    });
}

bool KeyInput::isForCounting(const QObject* target) const
{
    return (target == window_.windowHandle() || window_.isDiagram(target)) && isMainEnabled() &&
           QApplication::activePopupWidget() == nullptr && QApplication::activeModalWidget() == nullptr;
}

keycodes::RawKey KeyInput::rawKey(const QKeyEvent& event, int code) const
{
    return {keys_->physicalKey(event), code, event.timestamp(), event.isAutoRepeat()};
}

/// The diagnose window is in front: it is shown all keys, and no button of it takes one. The manual beside it
/// keeps its own.
bool KeyInput::isForDiagnosis(const QObject* target) const
{
    return frmDiagnose.visible && frmDiagnose.takesKeys && target->isWindowType() &&
           !window_.isManual(target) && QApplication::activePopupWidget() == nullptr;
}

/// With Alt, Ctrl or Super held, a key is meant for a menu or the desktop, unless that key itself is bound.
static bool isMeantElsewhere(const QKeyEvent& event, int code)
{
    constexpr int ctrl = 17;
    constexpr int alt = 18;
    constexpr int super[] = {91, 92};
    Qt::KeyboardModifiers held = event.modifiers();
    if (code == alt) // with Shift held before it many layouts call it Meta, and so its own modifier
        held.setFlag(Qt::MetaModifier, false);
    return (held.testFlag(Qt::ControlModifier) && !isBoundKey(ctrl)) ||
           (held.testFlag(Qt::AltModifier) && !isBoundKey(alt)) ||
           (held.testFlag(Qt::MetaModifier) && !isBoundKey(super[0]) && !isBoundKey(super[1]));
}

/// Counts the key if it is to count, or shows it to the diagnosis. True if no one else may see it.
bool KeyInput::takesKey(QKeyEvent& event)
{
    const int code = keys_->virtualKey(event);
    const keycodes::RawKey key = rawKey(event, code);
    if (code == 0) {
        if (frmDiagnose.visible && event.type() == QEvent::KeyPress)
            window_.onEvent([&] { frmDiagnose_KeyWithoutCode(key.physicalKey); });
        return frmDiagnose.visible;
    }
    if (event.type() == QEvent::KeyPress && !sheet.Modifying && !frmDiagnose.visible &&
        isMeantElsewhere(event, code))
        return false;
    const int shift = static_cast<int>(event.modifiers() >> 25); // 1 Shift, 2 Ctrl, 4 Alt
    // Asked before the key is handled: what is bound may change through it.
    const bool taken = frmDiagnose.visible || (!sheet.Modifying && isBoundKey(code));
    if (event.type() == QEvent::KeyPress) {
        deliver(repeats_.down(key), shift);
    } else {
        deliver(repeats_.up(key), shift);
        if (repeats_.hasPending())
            heldRelease_.start(releaseWaits);
    }
    return taken;
}

static CaptureBox* captureBox()
{
    auto* const box = dynamic_cast<CaptureBox*>(QApplication::focusWidget());
    return box != nullptr && box->takesKeys() ? box : nullptr;
}

/// True if the key is for a capture box, or still that of one.
bool KeyInput::isCaptured(QKeyEvent& event)
{
    const int code = keys_->virtualKey(event);
    if (captureBox() == nullptr && !captured_.contains(code))
        return false;
    if (code == 0)
        return true;
    const keycodes::RawKey key = rawKey(event, code);
    if (event.type() == QEvent::KeyRelease) {
        deliver(repeats_.up(key), 0);
        if (repeats_.hasPending())
            heldRelease_.start(releaseWaits);
        return true;
    }
    for (const keycodes::KeyEvent& one : repeats_.down(key)) {
        if (!one.isDown) {
            deliver(one, 0);
        } else if (!captured_.contains(one.code)) { // else it repeats
            captured_.insert(one.code);
            if (CaptureBox* const box = captureBox())
                box->keyWentDown(one.code, event.text());
        }
    }
    return true;
}

void KeyInput::deliver(const keycodes::KeyRepeatFilter::Events& events, int shift)
{
    for (const keycodes::KeyEvent& key : events)
        deliver(key, shift);
}

void KeyInput::deliver(const keycodes::KeyEvent& key, int shift)
{
    if (!key.isDown && captured_.remove(key.code)) {
        if (CaptureBox* const box = captureBox())
            box->keyCameUp(key.code);
        return;
    }
    const auto handle = [&] {
        if (frmDiagnose.visible)
            key.isDown ? frmDiagnose_KeyDown(key.code) : frmDiagnose_KeyUp(key.code);
        else if (inDiagram_)
            key.isDown ? frmDiagram_KeyDown(key.code, shift) : frmDiagram_KeyUp(key.code);
        else
            key.isDown ? Form_KeyDown(key.code, shift) : Form_KeyUp(key.code, shift);
    };
    key.isDown ? window_.onEvent(handle) : window_.onPassing(handle);
}

/// Ctrl and a letter is for the hidden shortcuts, also where Ctrl itself is bound.
static bool isForShortcuts(const QKeyEvent& event, int code)
{
    return (event.modifiers().testFlag(Qt::ControlModifier) && code >= 'A' && code <= 'Z') ||
           isMeantElsewhere(event, code);
}

bool KeyInput::eventFilter(QObject* target, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        if (isForCounting(target) || isForDiagnosis(target)) {
            inDiagram_ = window_.isDiagram(target);
            return takesKey(static_cast<QKeyEvent&>(*event));
        }
        if (target->isWindowType() && isCaptured(static_cast<QKeyEvent&>(*event)))
            return true;
        if (target->isWindowType() &&
            event->type() == QEvent::KeyPress) // a box of another window takes it next
            sheet.LastKeyDown = keys_->virtualKey(static_cast<QKeyEvent&>(*event));
        return false;
    case QEvent::ShortcutOverride: {
        auto& key = static_cast<QKeyEvent&>(*event);
        if (captureBox() != nullptr) {
            key.accept();
            return true;
        }
        const QWidget* const active = QApplication::activeWindow();
        const bool inWindow = active != nullptr &&
                              (active == &window_ || window_.isDiagram(active->windowHandle())) &&
                              QApplication::activePopupWidget() == nullptr && !sheet.Modifying;
        const int code = inWindow ? keys_->virtualKey(key) : 0;
        if (code == 0 || !isBoundKey(code) || isForShortcuts(key, code))
            return false;
        key.accept(); // no menu and no shortcut takes a key that counts
        return true;
    }
    case QEvent::MouseButtonPress: // before it takes the focus from a capture box whose key has come up
        if (!captured_.isEmpty())
            deliver(repeats_.flush(), 0);
        return false;
    case QEvent::Show: // an opened menu or list takes the keyboard, key-ups included
        if (target->isWidgetType() && static_cast<QWidget*>(target)->windowType() == Qt::Popup)
            keyboardLost();
        return false;
    default:
        return false;
    }
}
