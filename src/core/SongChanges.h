// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "core/Song.h"

namespace sprout {

/// What can happen to a song, a track or a tune. Whoever changes a record calls the operation that says so; it clears
/// the flags of the sounds that are stale now, and marks the song as changed where that counts as unsaved work.
///
/// Nobody else clears a flag. Tracks and steps are numbered from 1. Interface thread only.
class SongChanges {
public:
    /// How many of them happened since the start: who saw another number before finds something changed.
    [[nodiscard]] static std::uint64_t Count() { return count; }

    /// A press of the brush or the eraser has changed a cell of a track.
    static void PaintPressed(SongState& song, std::int32_t track);
    /// A drag has changed cells of a track. The press that began the stroke answers for the rest of the song: a stroke
    /// that starts on a cell that already has its value does not mark the song as changed.
    static void PaintDragged(Track& track);

    /// A track has another tune.
    static void TuneReplaced(SongState& song, std::int32_t track);
    /// An audio track has another sound.
    static void AudioReplaced(SongState& song, std::int32_t track);

    /// The adding of a track has ended, even if the track was given up; the track that is now the last one counts as
    /// new. Element 0 does in a song without tracks.
    static void TrackAdded(SongState& song);
    /// A track is gone, and those after it moved up.
    static void TrackDeleted(SongState& song);
    /// A track was emptied. That alone marks neither the mix nor the song.
    static void TrackReset(Track& track);

    /// The song has another tempo. The sounds of steps do not depend on it.
    static void TempoChanged(SongState& song);
    /// The song has another title or author.
    static void TitleChanged(SongState& song);

    /// Another song takes the place of the one in memory. The mark of changes waits until it is shown.
    static void SongReplaced(SongState& song);
    /// A new song, or one from a file, is shown.
    static void SongOpened(SongState& song);
    static void SongSaved(SongState& song);

    /// A step sounds differently: its pitch, loudness, length, beat or whether it is on.
    static void StepChanged(Tune& tune, std::int32_t step);
    /// Steps have moved as whole records, which takes their sounds with them.
    static void StepsMoved(Tune& tune);
    /// The cycle has become longer or shorter; steps that stay keep their sounds.
    static void StepCountChanged(Tune& tune);
    /// All steps are new records.
    static void StepsReplaced(Tune& tune);
    /// The tune has no sound any more: a file saved at once must not contain that of another tune.
    static void TuneEmptied(Tune& tune);

private:
    inline static std::uint64_t count = 0;
};

} // namespace sprout
