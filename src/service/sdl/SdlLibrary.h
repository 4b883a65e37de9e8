// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <SDL.h>

namespace sprout {

/// SDL's calls for sound. The library is loaded at first use, not at program start: it loads thirty more, which would
/// delay the first picture of the window.
struct SdlLibrary {
    decltype(&SDL_SetHint) SetHint = nullptr;
    decltype(&SDL_EventState) EventState = nullptr;
    decltype(&SDL_InitSubSystem) InitSubSystem = nullptr;
    decltype(&SDL_QuitSubSystem) QuitSubSystem = nullptr;
    decltype(&SDL_GetNumAudioDevices) GetNumAudioDevices = nullptr;
    decltype(&SDL_OpenAudioDevice) OpenAudioDevice = nullptr;
    decltype(&SDL_PauseAudioDevice) PauseAudioDevice = nullptr;
    decltype(&SDL_GetAudioDeviceStatus) GetAudioDeviceStatus = nullptr;
    decltype(&SDL_CloseAudioDevice) CloseAudioDevice = nullptr;

    /// If the library is missing, no other call may be made.
    [[nodiscard]] bool IsThere() const { return CloseAudioDevice != nullptr; }
};

/// The library, which is loaded once and stays loaded. May be called from any thread.
[[nodiscard]] const SdlLibrary& Sdl();

/// Starts SDL's audio once more; each successful start needs its own `QuitSubSystem`. Returns false if it does not
/// start, or if there is no library.
[[nodiscard]] bool StartSdlAudio();

} // namespace sprout
