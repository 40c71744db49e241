#include "platform/qt/sdl_library.h"

SdlLibrary::SdlLibrary()
#ifdef Q_OS_WIN
    : file_("SDL2")
#else
    : file_("SDL2-2.0", 0)
#endif
{
}

const SdlLibrary* SdlLibrary::loaded()
{
    static const SdlLibrary library;
    return library.AudioStreamFlush != nullptr ? &library : nullptr; // the newest of them
}
