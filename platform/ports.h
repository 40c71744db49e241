#pragma once

#include "platform/drawing.h"
#include "platform/json.h"
#include "platform/page.h"
#include "platform/picture_format.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What the program asks of the computer it runs on. Each interface has a real adapter in platform/qt and one
/// in memory in platform/fakes. All calls come from the one thread of the program.

/// Files. Paths are UTF-8 and absolute. What was written, created or put in place has reached the disk itself
/// when it is reported, with its entry in the folder, so that a power cut takes nothing of it.
class Files {
public:
    virtual ~Files() = default;
    /// The bytes of a file; nothing if it is missing, cannot be read, is no file or is larger than `limit`.
    [[nodiscard]] virtual std::optional<std::string> read(const std::string& path, std::size_t limit) = 0;
    /// Writes a whole file over what is there. False if any step failed: open, room on the disk, write,
    /// flush, close. The old bytes are left alone if the file cannot be opened or the disk has no room for
    /// the new ones. A crash meanwhile may leave a mixture of both.
    [[nodiscard]] virtual bool write(const std::string& path, std::string_view bytes) = 0;
    /// Makes an empty file where there is none; one that is there keeps its bytes.
    virtual bool create(const std::string& path) = 0;
    /// Puts a whole file in place of what is there: whatever happens, the old or the new one stands.
    [[nodiscard]] virtual bool replace(const std::string& path, std::string_view bytes) = 0;
    /// Adds to the end of a file, which is made if there is none: all of the bytes or, as far as the disk
    /// lets, none. They have not reached the disk itself yet. False also if an earlier settle() did not get
    /// there.
    [[nodiscard]] virtual bool append(const std::string& path, std::string_view bytes) = 0;
    /// What was appended is to reach the disk. Does not wait for it.
    virtual void settle(const std::string& path) = 0;
    /// True if there is no such file afterwards.
    virtual bool remove(const std::string& path) = 0;
    /// Names of the files in a folder, those changed last at the end.
    virtual std::vector<std::string> list(const std::string& folder) = 0;
    /// Claims a path for this program until it ends, however it ends, or gives the path free. False if
    /// another running program has it or the folder cannot be written.
    [[nodiscard]] virtual bool claim(const std::string& path) = 0;
    virtual void release(const std::string& path) = 0;
};

enum class Buttons { ok, yesNo, yesNoCancel };
enum class Answer { ok, yes, no, cancel };
enum class Icon { exclamation, question, information };

/// Boxes that block until they are answered.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    /// A message. Closing it by its frame or by Esc answers Cancel, else No, else OK: the
    /// last of them that it has.
    virtual Answer ask(std::string_view text, std::string_view title, Buttons buttons, Icon icon) = 0;
    /// Path of a data file to write, or nothing if the user cancels. Asks before it names a file that exists.
    /// `title`: what is saved. `proposed`: a path, or a name for the folder of the sheet; may be empty.
    virtual std::optional<std::string> chooseFileToSave(std::string_view title,
                                                        const std::string& proposed) = 0;
    /// Path of a data file to read, or nothing if the user cancels.
    virtual std::optional<std::string> chooseFileToOpen() = 0;
    /// Path of a text file with a table or a list, or nothing if the user cancels. `title`: what for.
    virtual std::optional<std::string> chooseTableToOpen(std::string_view title) = 0;
    /// Path of a folder, without a separator at its end, or nothing if the user cancels. `title`: what for.
    virtual std::optional<std::string> chooseFolder(std::string_view title) = 0;
    /// Path of a picture to write, with one of the endings .svg, .pdf and .png, or nothing if the user
    /// cancels.
    virtual std::optional<std::string> choosePictureToSave(const std::string& proposed) = 0;
    /// Path of a figure to write, with one of the endings .svg, .pdf, .png and .tif, or nothing if the user
    /// cancels.
    virtual std::optional<std::string> chooseFigureToSave(const std::string& proposed) = 0;
    /// Path of a PDF file to write, or nothing if the user cancels.
    virtual std::optional<std::string> choosePagesToSave(const std::string& proposed) = 0;
    /// A colour, or nothing if the user cancels.
    virtual std::optional<Colour> chooseColour(Colour current) = 0;
};

enum class Cue {
    SoundKey1,
    SoundKey2,
    SoundKey3,
    SoundOpening,
    SoundUndo,
    SoundSave,
    SoundAlarm,
    SoundError
};
constexpr int cueCount = 8;

/// One voice: a cue replaces the one that still plays. Nothing here waits for a device or fails; without a
/// device there is silence.
class Sound {
public:
    virtual ~Sound() = default;
    /// Keeps the image of a whole WAV file for a cue. An image that is no WAV is kept as silence.
    virtual void load(Cue cue, std::string_view wavImage) = 0;
    virtual void play(Cue cue) = 0;
    virtual void beep() = 0;
    /// What plays, for people to read: the system's sound driver, or that there is none.
    virtual std::string device() const = 0;
};

/// Pictures that leave the program.
class Pictures {
public:
    virtual ~Pictures() = default;
    /// Puts a picture on the clipboard in place of what is there: sharp in a word processor, and as vectors
    /// for a drawing program.
    virtual void copy(const Figure& figure) = 0;
    /// The bytes of a file that holds the picture.
    virtual std::string encode(const Figure& figure, PictureFormat format) = 0;
    /// How long a text is, pixels of the design.
    virtual float textWidth(const Letters& letters) = 0;
    /// Puts a page on the clipboard as an image, as SVG and as PDF.
    virtual void copy(const Page& page) = 0;
    /// The bytes of a file that holds the page; the same page gives the same bytes. `dotsPerInch` is that of
    /// images.
    virtual std::string encode(const Page& page, PictureFormat format, int dotsPerInch) = 0;
    /// The bytes of a PDF file of several pages, at least one.
    virtual std::string encodePages(const std::vector<Page>& pages) = 0;
    /// How wide a UTF-8 text is in the letters of pages, as a multiple of their size.
    virtual double letterWidth(std::string_view text, bool italic) = 0;
    /// Puts a UTF-8 text on the clipboard.
    virtual void copyText(std::string_view text) = 0;
};

/// Reads and writes the texts of JSON files.
class JsonText {
public:
    virtual ~JsonText() = default;
    /// Nothing if the text is no JSON.
    virtual std::optional<Json> read(std::string_view text) = 0;
    /// One member a line; the same value gives the same bytes.
    virtual std::string write(const Json& json) = 0;
};

/// One reading of the system's clock, local time.
struct Moment {
    std::string date; ///< the system's short date, as in "15/11/2026"
    int hour = 0;
    int minute = 0;
    int second = 0;
    int millisecond = 0;
};

class Clock {
public:
    virtual ~Clock() = default;
    virtual Moment now() = 0;
};

/// A one-shot timer; its owner runs the handler that belongs to it. A start while it runs starts it anew.
class OneShotTimer {
public:
    virtual ~OneShotTimer() = default;
    virtual void start(int milliseconds) = 0;
    virtual void stop() = 0;
};

/// The ports in use, set once before anything else runs.
struct Ports {
    Files* files = nullptr;
    Dialogs* dialogs = nullptr;
    Sound* sound = nullptr;
    Clock* clock = nullptr;
    OneShotTimer* Timer1 = nullptr;        ///< ends the repeat guard
    OneShotTimer* recoveryTimer = nullptr; ///< until unsaved work is copied
    Pictures* pictures = nullptr;
    std::string programFolder; ///< holds "References" and "Sound files"; UTF-8, no separator at its end
    int screenWidth = 15360;   ///< of the screen that the program is on, twips
    OneShotTimer* journalTimer = nullptr;    ///< when the event is over and what it changed is painted
    OneShotTimer* pauseTimer = nullptr;      ///< the hand pauses
    OneShotTimer* deadlineTimer = nullptr;   ///< it does not
    OneShotTimer* statisticsTimer = nullptr; ///< until the window of statistics follows the counting
    OneShotTimer* figureTimer = nullptr;     ///< until the figure follows the counts
    JsonText* json = nullptr;
};

extern Ports ports;
