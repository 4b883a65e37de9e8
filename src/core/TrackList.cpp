// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/TrackList.h"

#include <utility>

#include "core/Shared.h"
#include "core/SongChanges.h"
#include "core/SongModel.h"
#include "core/SongSizes.h"

namespace sprout {

namespace {

/// Returns whether the picture was one of the two.
bool SwapBlankPicture(Picture& picture)
{
    const SharedState& shared = Shared();
    if (SamePicture(picture, shared.BlankPic))
        picture = shared.BlankStarPic;
    else if (SamePicture(picture, shared.BlankStarPic))
        picture = shared.BlankPic;
    else
        return false;
    return true;
}

} // namespace

Track* TrackOfNumber(std::int32_t number)
{
    SongState& song = Shared().Song;
    return number >= 1 && number <= song.TrackCount ? &At(song.Tracks, number) : nullptr;
}

std::int32_t AddMusicTrack()
{
    SongState& song = Shared().Song;
    ResizeTracks(song, song.TrackCount + 1);
    ResetTrack(song.TrackCount);
    return song.TrackCount;
}

void EndAddMusicTrack()
{
    SongState& song = Shared().Song;
    if (At(song.Tracks, song.TrackCount).TrackTune.Name.empty())
        ResizeTracks(song, song.TrackCount - 1);
    SongChanges::TrackAdded(song);
}

void AddAudioTrack(WaveData wave)
{
    SongState& song = Shared().Song;
    ResizeTracks(song, song.TrackCount + 1);
    ResetTrack(song.TrackCount);
    Track& track = At(song.Tracks, song.TrackCount);
    track.TrackType = static_cast<std::int32_t>(TrackKind::Audio);
    track.TrackAudio = std::move(wave);
    SongChanges::TrackAdded(song);
}

void DeleteTrack(std::int32_t trackNumber)
{
    SongState& song = Shared().Song;
    if (song.TrackCount == 1)
        return ResetTrack(1);
    EraseTrack(song, trackNumber);
    SongChanges::TrackDeleted(song);
}

std::vector<std::int32_t> BlinkTunesNotFilled()
{
    SongState& song = Shared().Song;
    std::vector<std::int32_t> swapped;
    for (std::int32_t number = 1; number <= song.TrackCount; ++number)
        if (SwapBlankPicture(At(song.Tracks, number).TrackTune.Picture))
            swapped.push_back(number);
    return swapped;
}

} // namespace sprout
