#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace keycodes {

/// A key event as the toolkit reports it.
struct RawKey {
    std::uint32_t physicalKey; ///< number of the key itself, below 512: X keycode, scan code
    int code;                  ///< virtual-key code, 1..255
    std::uint64_t timestampMs; ///< 0 if the event has no time; then it is never taken for part of a pair
    bool markedRepeat;         ///< the toolkit says that the keyboard repeats a held key
};

/// A key event as the program counts it.
struct KeyEvent {
    int code;
    bool isDown;

    bool operator==(const KeyEvent&) const = default;
};

/// Turns the auto-repeat of a held key into repeated downs without ups between them.
///
/// X11 repeats a key as pairs of release and press. The toolkit marks most of them, but when the press comes
/// late, both look as if the key had been lifted. The two then carry the same time, which no finger can do.
/// An unmarked release is therefore held back until the next event shows what it was; the caller waits while
/// hasPending() and then calls flush(). 15 ms are enough on a busy machine, where 5 ms are not.
///
/// A key reports the code of its press until it is released, even if NumLock, Shift or the layout changed in
/// between, so that every down is followed by the up of the same code. A release whose press was never seen
/// is dropped: that press went to another window, or to a shortcut, and did nothing here that could end. So
/// are the repeats of a key that went down elsewhere and is still held.
class KeyRepeatFilter {
public:
    /// The events that result from a call, in order.
    class Events {
    public:
        const KeyEvent* begin() const { return events.data(); }
        const KeyEvent* end() const { return events.data() + count; }
        void add(KeyEvent event) { events[count++] = event; }

    private:
        std::array<KeyEvent, 2> events{}; // at most a release that was held back and a down
        std::size_t count = 0;
    };

    Events down(const RawKey& key);
    Events up(const RawKey& key);

    /// Lets out the release that is held back. Also to be called when the window loses the focus.
    Events flush();

    /// Whether a release is held back.
    bool hasPending() const { return pending.has_value(); }

    /// Drops the release that is held back and forgets which keys are down. For keys whose release will go to
    /// another window; after flush().
    void forget();

private:
    struct PendingRelease {
        std::uint32_t physicalKey;
        int code;
        std::uint64_t timestampMs;
    };

    static bool isPair(const std::optional<PendingRelease>& release, const RawKey& press);
    void letOutPending(Events& events);
    int pressedCode(std::uint32_t physicalKey) const;
    void setPressedCode(std::uint32_t physicalKey, int code);

    std::array<std::uint8_t, 512> pressedCodes{}; // X has 256 keycodes, Windows 512 scan codes; 0 while up
    std::optional<PendingRelease> pending;
    std::optional<PendingRelease> strayRelease; ///< the last one whose press was never seen
};

} // namespace keycodes
