// SPDX-License-Identifier: GPL-3.0-or-later
#include <filesystem>
#include <fstream>
#include <limits>
#include <optional>
#include <sstream>
#include <string>

#include "base/Errors.h"
#include "core/Shared.h"
#include "core/SongModel.h"
#include "sound/StretchWave.h"
#include "sound/TrackRender.h"
#include "sound/TuneRender.h"
#include "sprout-song/Commands.h"
#include "sprout-song/Loading.h"
#include "waves/WavOperations.h"
#include "waves/WaveFormat.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr std::int32_t kSlowestTempo = 10;
constexpr std::int32_t kFastestTempo = 10000;

/// A rendered wave and the cell that its first frame belongs to.
struct Rendering {
    WaveData wave;
    std::int32_t origin = 0;
};

Rendering RenderWhole()
{
    MixSong();
    return {Shared().Song.SongMix, Shared().Song.SongFirstPos};
}

Rendering RenderTrack(std::int32_t number)
{
    const Track& track = At(Shared().Song.Tracks, number);
    if (track.IsMusic())
        RenderTuneTrack(number);
    else if (track.IsAudio())
        RenderAudioTrack(number);
    return {track.TrackRender, track.FirstPainted};
}

bool StretchOne(Session& session, const fs::path& in, float pitch, float duration, const fs::path& out)
{
    const std::optional<WaveData> wave = LoadWave(session, in, ReadSamples::Yes);
    return wave && SaveWave(session, StretchWave(*wave, pitch, duration), out);
}

/// One line of a list: in, pitch, duration, out, separated by blanks.
bool StretchLine(Session& session, const std::string& line, const std::string& place)
{
    std::istringstream words(line);
    std::string in;
    std::string pitchText;
    std::string durationText;
    std::string out;
    std::string rest;
    words >> in >> pitchText >> durationText >> out;
    const std::optional<float> pitch = ParseFactor(pitchText);
    const std::optional<float> duration = ParseFactor(durationText);
    if (out.empty() || words >> rest || !pitch || !duration) {
        session.Fail(Words::Text("Error Reading List"),
                     Words::Text("%1 is not: in pitch duration out, with factors from 0.5 to 2.", place));
        return false;
    }
    return StretchOne(session, in, *pitch, *duration, out);
}

bool StretchList(Session& session, const std::string& path)
{
    std::error_code error;
    std::ifstream list(path);
    if (!list || fs::is_directory(path, error)) {
        session.Fail(Words::Text("Error Reading List"), Words::Text("The file %1 could not be read.", path));
        return false;
    }
    bool allDone = true;
    std::string line;
    for (int number = 1; std::getline(list, line); ++number)
        if (line.find_first_not_of(" \t\r") != std::string::npos)
            allDone = StretchLine(session, line, path + " line " + std::to_string(number)) && allDone;
    return allDone;
}

float RequireFactor(const Arguments& arguments, std::string_view option)
{
    const std::optional<std::string> text = arguments.Text(option);
    const std::optional<float> factor = text ? ParseFactor(*text) : std::nullopt;
    if (!factor)
        throw UsageError("The option " + std::string(option) + " takes a factor from 0.5 to 2.");
    return *factor;
}

std::int32_t OneOf(const Arguments& arguments, std::string_view option, std::initializer_list<std::int32_t> allowed)
{
    const std::optional<std::int32_t> number = arguments.Number(option, 0, std::numeric_limits<std::int32_t>::max());
    if (!number)
        return 0;
    std::string names;
    for (const std::int32_t one : allowed) {
        if (*number == one)
            return one;
        names += (names.empty() ? "" : ", ") + std::to_string(one);
    }
    throw UsageError("The option " + std::string(option) + " takes one of " + names + ".");
}

} // namespace

bool RunRender(Session& session, const Arguments& arguments)
{
    arguments.RequireWords(2, "render SONG OUT.wav");
    const std::optional<std::int32_t> track = arguments.Number("--track", 1, std::numeric_limits<std::int32_t>::max());
    const std::optional<std::int32_t> cell = arguments.Number("--from", 1, kSongCells);
    if (!LoadSong(session, arguments.Words()[0]))
        return false;
    if (track && *track > Shared().Song.TrackCount) {
        session.Fail(Words::Text("Error Rendering Song"),
                     Words::Text("The song has %1 tracks.", Shared().Song.TrackCount));
        return false;
    }
    Rendering rendering = track ? RenderTrack(*track) : RenderWhole();
    if (cell) {
        const std::optional<PlayFrom> part = CutFromCell(rendering.wave, rendering.origin, *cell, Shared().Song.Tempo);
        rendering.wave = part ? part->Wave : EmptyWave();
    }
    return SaveWave(session, rendering.wave, arguments.Words()[1]);
}

bool RunCycle(Session& session, const Arguments& arguments)
{
    arguments.RequireWords(2, "cycle TUNE OUT.wav");
    Shared().Song.Tempo = arguments.Number("--tempo", kSlowestTempo, kFastestTempo).value_or(kReferenceTempo);
    if (!LoadTune(session, arguments.Words()[0]))
        return false;
    RenderTuneCycle(Shared().TuneClipboard);
    return SaveWave(session, Shared().TuneClipboard.TuneWave, arguments.Words()[1]);
}

bool RunConvert(Session& session, const Arguments& arguments)
{
    arguments.RequireWords(2, "convert IN.wav OUT.wav");
    const std::int32_t rate = OneOf(arguments, "--rate", {11025, 22050, 44100});
    const std::int32_t bits = OneOf(arguments, "--bits", {8, 16});
    const std::int32_t channels = OneOf(arguments, "--channels", {1, 2});
    std::optional<WaveData> wave = LoadWave(session, arguments.Words()[0], ReadSamples::Yes);
    if (!wave)
        return false;
    try {
        if (channels != 0)
            wave = ConvertWaveChannels(*wave, channels);
        wave = ConvertWaveFormat(*wave, rate != 0 ? rate : wave->Rate, bits != 0 ? bits : wave->Bits);
    } catch (const RunTimeError& error) {
        session.Fail(Words::Text("Error Converting Wave"), ErrorWords(error));
        return false;
    }
    return SaveWave(session, *wave, arguments.Words()[1]);
}

bool RunStretch(Session& session, const Arguments& arguments)
{
    if (const std::optional<std::string> list = arguments.Text("--list")) {
        arguments.RequireWords(0, "stretch --list FILE");
        if (arguments.Has("--pitch") || arguments.Has("--duration"))
            throw UsageError("The factors of a list stand in its lines.");
        return StretchList(session, *list);
    }
    arguments.RequireWords(2, "stretch IN.wav OUT.wav --pitch FACTOR --duration FACTOR");
    const float pitch = RequireFactor(arguments, "--pitch");
    const float duration = RequireFactor(arguments, "--duration");
    return StretchOne(session, arguments.Words()[0], pitch, duration, arguments.Words()[1]);
}

} // namespace sprout
