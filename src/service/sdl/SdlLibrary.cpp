// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/sdl/SdlLibrary.h"

#include <dlfcn.h>

#include <mutex>
#include <string>

#include "base/Product.h"

namespace sprout {

namespace {

constexpr const char* kLibraryFile = "libSDL2-2.0.so.0";

/// Finds a call; returns false if the library lacks it.
template <class Call>
bool Find(void* library, const char* name, Call& call)
{
    call = reinterpret_cast<Call>(dlsym(library, name));
    return call != nullptr;
}

SdlLibrary LoadLibrary()
{
    void* const library = dlopen(kLibraryFile, RTLD_LAZY | RTLD_LOCAL);
    SdlLibrary calls;
    const bool isWhole = library && Find(library, "SDL_SetHint", calls.SetHint) &&
                         Find(library, "SDL_EventState", calls.EventState) &&
                         Find(library, "SDL_InitSubSystem", calls.InitSubSystem) &&
                         Find(library, "SDL_QuitSubSystem", calls.QuitSubSystem) &&
                         Find(library, "SDL_GetNumAudioDevices", calls.GetNumAudioDevices) &&
                         Find(library, "SDL_OpenAudioDevice", calls.OpenAudioDevice) &&
                         Find(library, "SDL_PauseAudioDevice", calls.PauseAudioDevice) &&
                         Find(library, "SDL_GetAudioDeviceStatus", calls.GetAudioDeviceStatus) &&
                         Find(library, "SDL_CloseAudioDevice", calls.CloseAudioDevice);
    return isWhole ? calls : SdlLibrary();
}

} // namespace

const SdlLibrary& Sdl()
{
    static const SdlLibrary library = LoadLibrary();
    return library;
}

bool StartSdlAudio()
{
    static std::mutex mutex; // devices are counted in a separate thread
    const std::lock_guard lock(mutex);
    if (!Sdl().IsThere())
        return false;
    // Ctrl-C must still end the program.
    Sdl().SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    Sdl().SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, std::string(kProductName).c_str());
    const bool starts = Sdl().InitSubSystem(SDL_INIT_AUDIO) == 0;
    // Nobody fetches these events: the open device's state says the same.
    Sdl().EventState(SDL_AUDIODEVICEADDED, SDL_IGNORE);
    Sdl().EventState(SDL_AUDIODEVICEREMOVED, SDL_IGNORE);
    return starts;
}

} // namespace sprout
