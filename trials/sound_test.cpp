// What is really played: SDL's disk driver writes it to a file instead of a device.

#include "platform/qt/sdl_sound.h"

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

std::string littleEndian(std::uint32_t number, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text += static_cast<char>(number >> (8 * i));
    return text;
}

/// A WAV image, 16 bit mono at 44100 Hz, of one constant level.
std::string wav(std::int16_t level, std::uint32_t frames)
{
    std::string data;
    for (std::uint32_t i = 0; i < frames; ++i)
        data += littleEndian(static_cast<std::uint16_t>(level), 2);
    return "RIFF" + littleEndian(36 + static_cast<std::uint32_t>(data.size()), 4) + "WAVEfmt " +
           littleEndian(16, 4) + littleEndian(1, 2) + littleEndian(1, 2) + littleEndian(44100, 4) +
           littleEndian(88200, 4) + littleEndian(2, 2) + littleEndian(16, 2) + "data" +
           littleEndian(static_cast<std::uint32_t>(data.size()), 4) + data;
}

class SoundOnDisk : public ::testing::Test {
protected:
    QTemporaryDir folder;
    QString path = folder.filePath("played.raw");

    SoundOnDisk()
    {
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", path.toUtf8());
    }
    ~SoundOnDisk() override { qunsetenv("SDL_AUDIODRIVER"); }

    std::vector<std::int16_t> played() const
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        const QByteArray bytes = file.readAll();
        std::vector<std::int16_t> samples(static_cast<std::size_t>(bytes.size()) / 2);
        std::copy_n(bytes.data(), samples.size() * 2, reinterpret_cast<char*>(samples.data()));
        return samples;
    }

    /// A cue that is marked sooner gives way to the next one before it is heard.
    static bool waitUntilOpen(const SdlSound& sound)
    {
        for (int i = 0; i < 200 && sound.device() != "disk, open"; ++i)
            std::this_thread::sleep_for(10ms);
        return sound.device() == "disk, open";
    }

    bool waitForLevel(std::int16_t level) const
    {
        for (int i = 0; i < 200; ++i) {
            const auto samples = played();
            if (std::find(samples.begin(), samples.end(), level) != samples.end())
                return true;
            std::this_thread::sleep_for(10ms);
        }
        return false;
    }
};

} // namespace

TEST_F(SoundOnDisk, aCueIsHeardAndANewOneReplacesItWithinOnePeriod)
{
    SdlSound sound;
    sound.load(Cue::SoundKey1, wav(1000, 44100));
    sound.load(Cue::SoundUndo, wav(5000, 2000));
    sound.play(Cue::SoundKey1);
    ASSERT_TRUE(waitForLevel(1000));
    sound.play(Cue::SoundUndo);
    ASSERT_TRUE(waitForLevel(5000));
    std::this_thread::sleep_for(100ms);

    const auto samples = played();
    const auto begin = std::find(samples.begin(), samples.end(), std::int16_t{1000});
    const auto mixed = std::find_if(begin, samples.end(), [](std::int16_t level) { return level > 1000; });
    const auto alone = std::find(mixed, samples.end(), std::int16_t{5000});
    EXPECT_LE(alone - mixed, 256) << "the old cue fades out within one period";
    const auto end = std::find_if(alone, samples.end(), [](std::int16_t level) { return level != 5000; });
    EXPECT_EQ(end - mixed, 2000);
    EXPECT_TRUE(std::all_of(end, samples.end(), [](std::int16_t level) { return level == 0; }))
        << "one voice: nothing of the old cue comes back";
}

TEST_F(SoundOnDisk, aCueThatIsReadLateIsHeardAndTakesNoOtherAway)
{
    SdlSound sound;
    sound.load(Cue::SoundKey1, wav(1000, 600));
    ASSERT_TRUE(waitUntilOpen(sound)); // on a slow machine, before all cues are read
    sound.load(Cue::SoundOpening, wav(700, 600));
    sound.play(Cue::SoundOpening);
    EXPECT_TRUE(waitForLevel(700));
    sound.play(Cue::SoundKey1);
    EXPECT_TRUE(waitForLevel(1000));
}

TEST_F(SoundOnDisk, whatIsNoWavIsSilence)
{
    SdlSound sound;
    for (const std::string& image :
         {std::string(), std::string("no sound at all"), wav(7, 100).substr(0, 30)})
        sound.load(Cue::SoundSave, image);
    sound.load(Cue::SoundAlarm, wav(300, 600));
    ASSERT_TRUE(waitUntilOpen(sound));
    sound.play(Cue::SoundSave);
    std::this_thread::sleep_for(50ms);
    sound.play(Cue::SoundAlarm);
    EXPECT_TRUE(waitForLevel(300));
}

TEST(SoundWithoutDevice, neverWaitsAndNeverFails)
{
    qputenv("SDL_AUDIODRIVER", "no such driver");
    SdlSound sound;
    sound.load(Cue::SoundKey1, wav(1000, 100));
    for (int i = 0; i < 1000; ++i) {
        sound.play(Cue::SoundKey1);         // hangs or fails if it ever waits for the device
        std::this_thread::sleep_for(500us); // until long after the device was looked for
    }
    EXPECT_EQ(sound.device(), "no sound device");
    qunsetenv("SDL_AUDIODRIVER");
}
