// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <SDL.h>

namespace sprout {

/// SDL's calls for sound. The library comes with the first question to it and not with the program: it brings thirty
/// more, for which the first picture of the window need not wait.
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

    /// Without the library no other call may be made.
    [[nodiscard]] bool IsThere() const { return CloseAudioDevice != nullptr; }
};

/// The library, which is loaded once and stays. May be called from any thread.
[[nodiscard]] const SdlLibrary& Sdl();

/// Starts SDL's audio once more; each start that succeeds wants a `QuitSubSystem` of its own. False where it does not
/// start, or where there is no library.
[[nodiscard]] bool StartSdlAudio();

} // namespace sprout
