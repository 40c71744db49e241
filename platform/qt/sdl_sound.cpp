#include "platform/qt/sdl_sound.h"

#include "platform/qt/sdl_library.h"

#include <QApplication>
#include <algorithm>
#include <chrono>
#include <utility>

namespace {

constexpr int rate = 44100;
constexpr int periodFrames = 256;
constexpr auto untilWindowStands = std::chrono::milliseconds(250); // loading the library would delay it
constexpr auto watchInterval = std::chrono::seconds(1);
constexpr int turnsBetweenTries = 10;

/// The samples of a WAV image at the rate of the device; none if it is no WAV.
std::vector<std::int16_t> decoded(const SdlLibrary& sdl, std::string_view image)
{
    SDL_AudioSpec spec{};
    Uint8* raw = nullptr;
    Uint32 rawBytes = 0;
    SDL_RWops* const source = sdl.RWFromConstMem(image.data(), static_cast<int>(image.size()));
    if (source == nullptr || sdl.LoadWAV_RW(source, 1, &spec, &raw, &rawBytes) == nullptr)
        return {};

    std::vector<std::int16_t> samples;
    SDL_AudioStream* const stream =
        sdl.NewAudioStream(spec.format, spec.channels, spec.freq, AUDIO_S16SYS, 1, rate);
    if (stream != nullptr && sdl.AudioStreamPut(stream, raw, static_cast<int>(rawBytes)) == 0 &&
        sdl.AudioStreamFlush(stream) == 0) {
        samples.resize(static_cast<std::size_t>(sdl.AudioStreamAvailable(stream)) / sizeof(std::int16_t));
        sdl.AudioStreamGet(stream, samples.data(), static_cast<int>(samples.size() * sizeof(std::int16_t)));
    }
    sdl.FreeAudioStream(stream);
    sdl.FreeWAV(raw);
    return samples;
}

} // namespace

SdlSound::SdlSound()
{
    keeper_ = std::thread([this] { keep(); });
}

SdlSound::~SdlSound()
{
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    wake_.notify_one();
    keeper_.join();
}

void SdlSound::load(Cue cue, std::string_view wavImage)
{
    {
        const std::lock_guard lock(mutex_);
        images_[static_cast<std::size_t>(cue)] = wavImage;
        hasImages_ = true;
    }
    wake_.notify_one();
}

void SdlSound::play(Cue cue)
{
    marked_.store(static_cast<int>(cue), std::memory_order_release);
}

void SdlSound::beep()
{
    QApplication::beep();
}

std::string SdlSound::device() const
{
    const char* const driver = driver_;
    return driver == nullptr ? "no sound device" : std::string(driver) + ", open";
}

std::string SdlSound::version()
{
    const SdlLibrary* const sdl = SdlLibrary::loaded();
    if (sdl == nullptr)
        return "not found";
    SDL_version loaded;
    sdl->GetVersion(&loaded);
    return std::to_string(loaded.major) + "." + std::to_string(loaded.minor) + "." +
           std::to_string(loaded.patch);
}

void SdlSound::fill(void* self, std::uint8_t* stream, int bytes)
{
    static_cast<SdlSound*>(self)->mix(reinterpret_cast<std::int16_t*>(stream),
                                      static_cast<std::size_t>(bytes) / sizeof(std::int16_t));
}

void SdlSound::mix(std::int16_t* out, std::size_t count)
{
    const auto copyTo = [&](std::int16_t* target) {
        std::size_t copied = 0;
        if (playing_ != nullptr) {
            copied = std::min(count, playing_->size() - position_);
            std::copy_n(playing_->begin() + static_cast<std::ptrdiff_t>(position_), copied, target);
            position_ += copied;
        }
        std::fill(target + copied, target + count, std::int16_t{0});
    };

    copyTo(out);
    // A cue that is marked before it is decoded waits for that.
    const int cue = hasImages_ ? noCue : marked_.exchange(noCue, std::memory_order_acquire);
    if (cue == noCue)
        return;
    // The cue that still plays fades out under the new one: a hard cut would click.
    std::array<std::int16_t, 4 * periodFrames> old{};
    const std::size_t fade = std::min(count, old.size());
    std::copy_n(out, fade, old.begin());
    playing_ = &cues_[static_cast<std::size_t>(cue)];
    position_ = 0;
    copyTo(out);
    for (std::size_t i = 0; i < fade; ++i) {
        const long faded = old[i] * static_cast<long>(fade - i) / static_cast<long>(fade);
        out[i] = static_cast<std::int16_t>(std::clamp(out[i] + faded, -32768L, 32767L));
    }
}

void SdlSound::keep()
{
    {
        std::unique_lock lock(mutex_);
        if (wake_.wait_for(lock, untilWindowStands, [this] { return ending_; }))
            return;
    }
    const SdlLibrary* const sdl = SdlLibrary::loaded();
    if (sdl == nullptr)
        return;
    sdl->SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1"); // Ctrl+C and a session's end must still end the program
    sdl->SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "TallyStrata");
    keepDeviceOpen(*sdl);
}

/// On a slow machine cues may still come while the device is open.
void SdlSound::decodeImages(const SdlLibrary& sdl, std::uint32_t device)
{
    Images images;
    {
        const std::lock_guard lock(mutex_);
        images.swap(images_);
    }
    for (std::size_t cue = 0; cue < images.size(); ++cue) {
        if (images[cue].empty())
            continue;
        Samples samples = decoded(sdl, images[cue]);
        sdl.LockAudioDevice(device); // it may be playing the former ones; without a device there is no lock
        cues_[cue] = std::move(samples);
        sdl.UnlockAudioDevice(device);
    }
    const std::lock_guard lock(mutex_);
    hasImages_ =
        std::any_of(images_.begin(), images_.end(), [](const std::string& image) { return !image.empty(); });
}

void SdlSound::keepDeviceOpen(const SdlLibrary& sdl)
{
    SDL_AudioSpec wanted{};
    wanted.freq = rate;
    wanted.format = AUDIO_S16SYS;
    wanted.channels = 1;
    wanted.samples = periodFrames;
    wanted.callback = fill;
    wanted.userdata = this;

    SDL_AudioDeviceID device = 0;
    int untilNextTry = 0; // in turns of the watch
    std::unique_lock lock(mutex_);
    for (bool first = true; !ending_; first = false) {
        lock.unlock();
        if (hasImages_)
            decodeImages(sdl, device);
        if (device != 0 && sdl.GetAudioDeviceStatus(device) == SDL_AUDIO_STOPPED) {
            sdl.CloseAudioDevice(device);
            device = 0;
            untilNextTry = 0;
        }
        // Where there is no device, a new one is looked for now and then, and only while there is something
        // to play.
        if (device == 0 && (first || (--untilNextTry <= 0 && marked_ != noCue))) {
            untilNextTry = turnsBetweenTries;
            if (!first)
                marked_ = noCue; // what was marked while there was no device is long past
            if (sdl.WasInit(SDL_INIT_AUDIO) != 0 || sdl.InitSubSystem(SDL_INIT_AUDIO) == 0)
                device = sdl.OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
            if (device != 0)
                sdl.PauseAudioDevice(device, 0);
        }
        driver_ = device != 0 ? sdl.GetCurrentAudioDriver() : nullptr;
        lock.lock();
        wake_.wait_for(lock, watchInterval, [this] { return ending_ || hasImages_; });
    }
    lock.unlock();
    if (device != 0)
        sdl.CloseAudioDevice(device);
    sdl.QuitSubSystem(SDL_INIT_AUDIO);
}
