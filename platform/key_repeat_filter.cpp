#include "platform/key_repeat_filter.h"

namespace keycodes {

KeyRepeatFilter::Events KeyRepeatFilter::down(const RawKey& key)
{
    Events events;
    const bool repeatsPending = isPair(pending, key);
    if (repeatsPending)
        pending.reset();
    else
        letOutPending(events);

    const int pressed = pressedCode(key.physicalKey);
    // A key that went down in another window and is still held is none of ours until it comes up.
    const bool heldElsewhere =
        pressed == 0 && !repeatsPending && (key.markedRepeat || isPair(strayRelease, key));
    strayRelease.reset();
    if (heldElsewhere)
        return events;
    const bool repeats = pressed != 0 && (repeatsPending || key.markedRepeat);
    const int code = repeats ? pressed : key.code;
    setPressedCode(key.physicalKey, code);
    events.add({code, true});
    return events;
}

KeyRepeatFilter::Events KeyRepeatFilter::up(const RawKey& key)
{
    Events events;
    letOutPending(events);
    const int pressed = pressedCode(key.physicalKey);
    if (!key.markedRepeat && pressed != 0)
        pending = PendingRelease{key.physicalKey, pressed, key.timestampMs};
    if (pressed == 0)
        strayRelease = PendingRelease{key.physicalKey, 0, key.timestampMs};
    return events;
}

KeyRepeatFilter::Events KeyRepeatFilter::flush()
{
    Events events;
    letOutPending(events);
    return events;
}

void KeyRepeatFilter::forget()
{
    pending.reset();
    pressedCodes.fill(0);
}

bool KeyRepeatFilter::isPair(const std::optional<PendingRelease>& release, const RawKey& press)
{
    return release && release->physicalKey == press.physicalKey &&
           release->timestampMs == press.timestampMs && press.timestampMs != 0;
}

void KeyRepeatFilter::letOutPending(Events& events)
{
    if (!pending)
        return;
    events.add({pending->code, false});
    setPressedCode(pending->physicalKey, 0);
    pending.reset();
}

int KeyRepeatFilter::pressedCode(std::uint32_t physicalKey) const
{
    return physicalKey < pressedCodes.size() ? pressedCodes[physicalKey] : 0;
}

void KeyRepeatFilter::setPressedCode(std::uint32_t physicalKey, int code)
{
    if (physicalKey < pressedCodes.size())
        pressedCodes[physicalKey] = static_cast<std::uint8_t>(code);
}

} // namespace keycodes
