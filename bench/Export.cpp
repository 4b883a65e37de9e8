// SPDX-License-Identifier: GPL-3.0-or-later
#include "Export.h"

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>

#include "BenchFacts.h"
#include "BenchSounds.h"
#include "core/Shared.h"
#include "service/Services.h"
#include "service/WmaEncoder.h"
#include "songs/SongExport.h"
#include "sound/TrackRender.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace {

using Write = ExportOutcome (*)(const WaveData& wave, const std::filesystem::path& path);

const WaveData& FullSongMix()
{
    if (!Shared().Song.SongMixValid) {
        MakeFullSong();
        MixSong();
    }
    return Shared().Song.SongMix;
}

bool IsWritten(const ExportOutcome& outcome)
{
    if (outcome.End != ExportEnd::Written)
        std::fprintf(stderr, "not written: %s %s\n", outcome.Line1.English().c_str(), outcome.Line2.English().c_str());
    return outcome.End == ExportEnd::Written;
}

void Export(benchmark::State& state, Write write)
{
    const std::filesystem::path target = BenchSong().native() + ".exported";
    const WaveData& mix = FullSongMix();
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        std::filesystem::remove(target);
        state.ResumeTiming();
        if (!IsWritten(write(mix, target)))
            state.SkipWithError("The export failed.");
    }
    std::filesystem::remove(target);
}

int PrintMemory(Write write, const std::filesystem::path& file)
{
    const WaveData& mix = FullSongMix();
    const std::int64_t before = RestartMemoryPeak();
    const bool written = IsWritten(write(mix, file));
    std::printf("%lld\n", static_cast<long long>(MemoryPeak() - before));
    return written ? 0 : 1;
}

} // namespace

void WavExport(benchmark::State& state)
{
    Export(state, &WriteWavFile);
}

void WmaExport(benchmark::State& state)
{
    if (!TheServices().wma->Load())
        state.SkipWithError("The libraries are missing.");
    Export(state, &WriteWmaFile);
}

int WriteMix(const std::filesystem::path& file)
{
    SaveWaveFile(FullSongMix(), file);
    return 0;
}

int EncodeWavFile(const std::filesystem::path& from, const std::filesystem::path& to)
{
    Shared().Song.SongTitle = "Übung \"1\" ألحان";
    Shared().Song.SongCreatedBy = "Zoë";
    return IsWritten(WriteWmaFile(LoadWaveFile(from), to)) ? 0 : 1;
}

int PrintWavMemory(const std::filesystem::path& file)
{
    return PrintMemory(&WriteWavFile, file);
}

int PrintWmaMemory(const std::filesystem::path& file)
{
    return TheServices().wma->Load() ? PrintMemory(&WriteWmaFile, file) : 1;
}

} // namespace sprout
