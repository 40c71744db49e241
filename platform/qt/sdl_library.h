#pragma once

#include <QLibrary>
#include <SDL.h>

// NOLINTBEGIN(bugprone-macro-parentheses): a name that is declared
#define FROM_LIBRARY(name)                                                                                   \
    decltype(&::SDL_##name) name = reinterpret_cast<decltype(&::SDL_##name)>(file_.resolve("SDL_" #name))
// NOLINTEND(bugprone-macro-parentheses)

/// The functions of the sound library. It is loaded when the first one asks for it: some thirty others come
/// with it, and a program that is linked to them waits for all of them before its window opens.
class SdlLibrary {
private:
    QLibrary file_;

public:
    FROM_LIBRARY(AudioStreamAvailable);
    FROM_LIBRARY(AudioStreamFlush);
    FROM_LIBRARY(AudioStreamGet);
    FROM_LIBRARY(AudioStreamPut);
    FROM_LIBRARY(CloseAudioDevice);
    FROM_LIBRARY(FreeAudioStream);
    FROM_LIBRARY(FreeWAV);
    FROM_LIBRARY(GetAudioDeviceStatus);
    FROM_LIBRARY(GetCurrentAudioDriver);
    FROM_LIBRARY(GetVersion);
    FROM_LIBRARY(InitSubSystem);
    FROM_LIBRARY(LoadWAV_RW);
    FROM_LIBRARY(LockAudioDevice);
    FROM_LIBRARY(NewAudioStream);
    FROM_LIBRARY(OpenAudioDevice);
    FROM_LIBRARY(PauseAudioDevice);
    FROM_LIBRARY(QuitSubSystem);
    FROM_LIBRARY(RWFromConstMem);
    FROM_LIBRARY(SetHint);
    FROM_LIBRARY(UnlockAudioDevice);
    FROM_LIBRARY(WasInit);

    /// nullptr where the system has none, or one from before 2.0.7. From any thread.
    static const SdlLibrary* loaded();

private:
    SdlLibrary();
};

#undef FROM_LIBRARY
