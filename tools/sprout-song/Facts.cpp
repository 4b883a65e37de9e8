// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-song/Facts.h"

namespace sprout {

namespace {

Facts StepFacts(const TuneStep& step)
{
    return {{"on", step.IsOn()},
            {"beat_index", step.BeatIndex},
            {"pitch_shift", step.PitchShift},
            {"volume", step.Volume},
            {"duration", step.Duration}};
}

Facts BeatFacts(const Beat& beat)
{
    Facts facts = {{"name", beat.Name}, {"date_stamp", beat.DateStamp}, {"loaded", beat.Loaded}};
    facts.update(WaveFacts(beat.Sound));
    return facts;
}

/// Runs of painted cells, each as its first and last cell.
Facts PaintedRuns(const Track& track)
{
    Facts runs = Facts::array();
    const auto cells = static_cast<std::int32_t>(track.Painted.size()) - 1;
    std::int32_t first = 0;
    for (std::int32_t cell = 1; cell <= cells + 1; ++cell) {
        const bool painted = track.IsPainted(cell);
        if (painted && first == 0)
            first = cell;
        if (!painted && first != 0) {
            runs.push_back({first, cell - 1});
            first = 0;
        }
    }
    return runs;
}

Facts TrackFacts(const Track& track)
{
    return {{"type", track.TrackType},
            {"painted", PaintedRuns(track)},
            {"tune", track.IsMusic() ? TuneFacts(track.TrackTune) : Facts()},
            {"audio", track.IsAudio() ? WaveFacts(track.TrackAudio) : Facts()}};
}

} // namespace

Facts WaveFacts(const WaveData& wave)
{
    return {{"bits", wave.Bits}, {"channels", wave.Channels}, {"rate", wave.Rate}, {"length", wave.Length}};
}

Facts EncodedFacts(const SoundFacts& sound)
{
    return {{"codec", sound.Codec},        {"bit_rate", sound.BitRate}, {"channels", sound.Channels},
            {"rate", sound.Rate},          {"seconds", sound.Seconds},  {"title", sound.Title},
            {"author", sound.Author},      {"year", sound.Year},        {"copyright", sound.Copyright},
            {"description", sound.Comment}};
}

Facts TuneFacts(const Tune& tune)
{
    Facts steps = Facts::array();
    for (std::size_t i = 1; i < tune.Steps.size(); ++i)
        steps.push_back(StepFacts(tune.Steps[i]));
    return {{"name", tune.Name},
            {"created_by", tune.CreatedBy},
            {"date_stamp", tune.DateStamp},
            {"step_count", tune.StepCount},
            {"steps", steps}};
}

Facts SongFacts(const SongState& song)
{
    Facts beats = Facts::array();
    for (std::size_t i = 1; i < song.SongBeats.size(); ++i)
        beats.push_back(BeatFacts(song.SongBeats[i]));
    Facts tracks = Facts::array();
    for (std::size_t i = 1; i < song.Tracks.size(); ++i)
        tracks.push_back(TrackFacts(song.Tracks[i]));
    return {{"title", song.SongTitle}, {"created_by", song.SongCreatedBy},
            {"tempo", song.Tempo},     {"cells", song.SongCells},
            {"beats", beats},          {"tracks", tracks}};
}

} // namespace sprout
