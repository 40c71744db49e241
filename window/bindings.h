#pragma once

#include "core/main_screen_type.h"
#include "diagram/diagram_form.h"
#include "keys/key_editor.h"

#include <QList>

class QAbstractButton;
class QAbstractSlider;
class QAction;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QProgressBar;
class QRadioButton;

/// Which widget shows which control record: one list for each kind of widget. show() touches only what
/// differs from what it showed last; widgets are written so that no signal of a user's edit comes back.

template <class Widget, class Record>
struct Binding {
    Widget* widget;
    const Record* record;
    Record shown{}; ///< a new widget looks like a new record
};

using LineBinding = Binding<QLineEdit, TextBox>;
using NoteBinding = Binding<QPlainTextEdit, TextBox>;
using LabelBinding = Binding<QLabel, Label>;
using ButtonBinding = Binding<QAbstractButton, Button>;
using OptionBinding = Binding<QRadioButton, OptionButton>;
using CheckBinding = Binding<QCheckBox, CheckBox>;
using SliderBinding = Binding<QAbstractSlider, Slider>;
using ScrollBinding = Binding<QAbstractSlider, ScrollBar>;
using KeyBinding = Binding<QLineEdit, KeyBox>;
using ListBinding = Binding<QListWidget, ListBox>;
using ActionBinding = Binding<QAction, MenuEntry>;
using BarBinding = Binding<QProgressBar, ProgressBar>;

/// Lists and logs are long, so only what was added is compared.
struct ComboBinding {
    QComboBox* widget;
    const ComboBox* record;
    std::size_t shownItems = 0;
    int shownRevision = 0;
};
struct LogBinding {
    QPlainTextEdit* widget;
    const LogBox* record;
    std::size_t shownLength = 0;
};

void show(LineBinding& binding);
/// Decides which part of a long text is in view: in a visited box that with the caret, else an end.
void placeView(const LineBinding& binding);
void show(NoteBinding& binding);
void show(LabelBinding& binding);
void show(ButtonBinding& binding);
void show(OptionBinding& binding);
void show(CheckBinding& binding);
void show(SliderBinding& binding);
void show(ScrollBinding& binding);
void show(KeyBinding& binding);
void show(ListBinding& binding);
void show(ActionBinding& binding);
void show(BarBinding& binding);
void show(ComboBinding& binding);
void show(LogBinding& binding);

/// No box takes more characters than this from the user; a longer text of a file stays as long as it is.
constexpr int textLimit = 32767;

/// Takes what the user made of a box, in the form that the record holds: letters and their accents become one
/// character, what the code page lacks shows as "?" at once, and a line break that came into a box of one
/// line as a blank. `caret`: in characters of the text.
struct TypedText {
    std::string text;
    int caret = 0;
    bool full = false; ///< the box takes no more
};
TypedText typedInto(QLineEdit& widget);
TypedText typedInto(LineBinding& binding);
TypedText typedInto(NoteBinding& binding);

template <class AnyBinding>
void showAll(QList<AnyBinding>& bindings)
{
    for (AnyBinding& binding : bindings)
        show(binding);
}
