// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <type_traits>

namespace sprout {

/// What the canvas needs from its window. Every function is called from a user event.
struct TrackCanvasCalls {
    std::function<void(std::int32_t cell)> PlaySongFrom;
    std::function<void(std::int32_t track, std::int32_t cell)> PlayTrackFrom;
    std::function<void()> EnableTrackTitlePlayTimer; ///< a stroke begins, or the pointer is over a tune or audio button
    std::function<void()> PlayOrStop;                ///< the space bar
    std::function<void(std::string_view)> ShowCell;  ///< the text of `TrackMouPosLbl`
    // Clicks on the canvas buttons.
    std::function<void()> TrackPlayBtn, TrackDeleteBtn, TrackTuneBtn, TrackAudioBtn, TrackAddBtn, TrackAddRecBtn;
};

/// Calls the window's function, if there is one.
template <class... Arguments>
void Ask(const std::function<void(Arguments...)>& call, const std::type_identity_t<Arguments>&... arguments)
{
    if (call)
        call(arguments...);
}

} // namespace sprout
