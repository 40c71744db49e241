#pragma once

#include "platform/ports.h"

#include <array>
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <thread>
#include <vector>

class SdlLibrary;

/// The cues, played from memory through the sound device. play() only marks the cue; the device's own thread
/// takes it up at its next period of 256 frames (5.8 ms). The library is loaded, and the device opened,
/// watched and, when it vanishes, opened anew, on a thread of its own, so that neither start nor count ever
/// waits for them.
class SdlSound : public Sound {
public:
    SdlSound();
    ~SdlSound() override;
    SdlSound(const SdlSound&) = delete;
    SdlSound& operator=(const SdlSound&) = delete;

    void load(Cue cue, std::string_view wavImage) override;
    void play(Cue cue) override;
    void beep() override;
    std::string device() const override;
    /// Of the library, as in "2.26.5"; or that there is none, for people to read.
    static std::string version();

private:
    using Samples = std::vector<std::int16_t>;
    using Images = std::array<std::string, cueCount>;
    static constexpr int noCue = -1;

    static void fill(void* self, std::uint8_t* stream, int bytes);
    void mix(std::int16_t* out, std::size_t count);
    void keep();
    void keepDeviceOpen(const SdlLibrary& sdl);
    void decodeImages(const SdlLibrary& sdl, std::uint32_t device);

    Images images_;                             ///< WAV, not decoded yet
    std::atomic<bool> hasImages_ = false;       ///< no cue is taken up meanwhile
    std::array<Samples, cueCount> cues_;        ///< mono, 44100 Hz
    std::atomic<int> marked_ = noCue;           ///< cue that the device has not taken up yet
    std::atomic<const char*> driver_ = nullptr; ///< of the open device, nullptr while there is none

    // Used by the device's thread only.
    const Samples* playing_ = nullptr;
    std::size_t position_ = 0;

    std::mutex mutex_;
    std::condition_variable wake_;
    bool ending_ = false;
    std::thread keeper_;
};
