// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/Picture.h"
#include "base/WaveData.h"
#include "core/FileMark.h"

namespace sprout {

/// Cells of every song's time grid.
inline constexpr std::int32_t kSongCells = 1280;
/// The reference tempo, 100 percent, in cells per minute.
inline constexpr std::int32_t kReferenceTempo = 320;
/// Used in place of a track's number for the whole song, in the time band and during play.
inline constexpr std::int32_t kWholeSong = -1;

/// Values of `OnPos`. Any other value in a file is neither.
inline constexpr std::int32_t kStepOff = 0;
inline constexpr std::int32_t kStepOn = 1;

/// What a cell of `Painted` holds: the number of the tool that wrote it, or 0 if none did. Only the brush's number
/// counts as painted.
inline constexpr std::int32_t kUntouchedCell = 0;
inline constexpr std::int32_t kPaintedCell = 1;
inline constexpr std::int32_t kErasedCell = 2;

/// The value at `index` of a 1-based record array, with a 32-bit index.
template <class Record>
[[nodiscard]] auto& At(Record& records, std::int32_t index)
{
    return records[static_cast<std::size_t>(index)];
}

/// A flag of a record, which everybody may read and which is copied with its record. Only two classes change it:
/// `SongChanges`, which is told what happened, and `Rendered`, which stores a sound together with its flag.
template <class Record>
class RecordFlag {
public:
    RecordFlag() = default;

    operator bool() const { return value; }

private:
    friend Record; // otherwise another record's flag could be assigned alone
    friend class SongChanges;
    friend class Rendered;

    RecordFlag(const RecordFlag&) = default;
    RecordFlag& operator=(const RecordFlag&) = default;

    void Set() { value = true; }
    void Clear() { value = false; }

    bool value = false;
};

/// One instrument: a short wave and its picture.
struct Beat {
    std::string Name;      ///< base name of its files in `UserBeats`; empty for no beat
    std::string DateStamp; ///< last-write time of the .wav, "mm/dd/yyyy,hh:mm:ss"
    WaveData Sound;        ///< in its file's format
    sprout::Picture Picture;
    bool Loaded = false; ///< the record contains sound
};

/// One position in a tune's cycle.
struct TuneStep {
    std::int32_t OnPos = kStepOff;
    std::int32_t BeatIndex = 0;         ///< index in `SongBeats`, from 1, while the tune belongs to a track
    std::int32_t PitchShift = 0;        ///< semitones relative to the beat's own pitch
    std::int32_t Volume = 100;          ///< percent of the beat's loudness
    std::int32_t Duration = 100;        ///< percent of the beat's length
    Beat StepBeat;                      ///< the step's own instrument, in tune files and in the tune window
    WaveData StepWave;                  ///< the step's rendered sound
    RecordFlag<TuneStep> StepWaveValid; ///< `StepWave` matches the fields above

    [[nodiscard]] bool IsOn() const { return OnPos == kStepOn; }
    void SetOn(bool on) { OnPos = on ? kStepOn : kStepOff; }
};

/// A cycle of steps.
struct Tune {
    sprout::Picture Picture;
    std::string CreatedBy;
    std::string Name;                                       ///< the file's base name
    std::string DateStamp;                                  ///< last-write time of the tune's file
    std::vector<TuneStep> Steps = std::vector<TuneStep>(1); ///< element 0 is never used
    std::int32_t StepCount = 0;                             ///< upper bound of `Steps`
    WaveData TuneWave;                                      ///< the rendered cycle
    RecordFlag<Tune> TuneWaveValid;                         ///< `TuneWave` matches the steps
};

enum class TrackKind : std::int32_t { Music = 0, Audio = 1 };

/// One row of the song.
struct Track {
    std::int32_t TrackType = 0; ///< a `TrackKind`; a file may hold other values
    Tune TrackTune;
    WaveData TrackAudio;
    std::vector<std::int32_t> Painted = std::vector<std::int32_t>(1); ///< one value per cell, from 1
    std::int32_t FirstPainted = 0;                                    ///< set when rendered; 0 if nothing is painted
    WaveData TrackRender;                                             ///< the sound from `FirstPainted` on
    RecordFlag<Track> TrackRenderValid;                               ///< `TrackRender` matches paint, tune and tempo

    [[nodiscard]] bool IsMusic() const { return TrackType == static_cast<std::int32_t>(TrackKind::Music); }
    [[nodiscard]] bool IsAudio() const { return TrackType == static_cast<std::int32_t>(TrackKind::Audio); }

    /// False for a cell that the track does not have.
    [[nodiscard]] bool IsPainted(std::int32_t cell) const
    {
        return cell >= 1 && static_cast<std::size_t>(cell) < Painted.size() && At(Painted, cell) == kPaintedCell;
    }
};

/// The state of the open song. Element 0 of each array exists but is unused.
struct SongState {
    std::string SongTitle;
    std::string SongCreatedBy;
    std::vector<Track> Tracks = std::vector<Track>(1);
    std::int32_t TrackCount = 0; ///< upper bound of `Tracks`
    std::vector<Beat> SongBeats = std::vector<Beat>(1);
    std::int32_t SongBeatCount = 0; ///< upper bound of `SongBeats`
    std::int32_t SongCells = kSongCells;
    std::int32_t Tempo = kReferenceTempo; ///< cells per minute
    WaveData SongMix;
    RecordFlag<SongState> SongMixValid; ///< `SongMix` matches the tracks and the tempo
    std::int32_t SongFirstPos = 0;      ///< first painted cell of the whole song, set by the mix
    RecordFlag<SongState> SongChanged;  ///< there is unsaved work
    FileMark OwnFile;                   ///< the file it was read from without a message, or last saved to
};

} // namespace sprout
