// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "BenchFacts.h"
#include "BenchSounds.h"
#include "Editor.h"
#include "Export.h"
#include "Yardsticks.h"
#include "core/Shared.h"
#include "service/Messages.h"
#include "service/Screen.h"
#include "service/Services.h"
#include "service/ffmpeg/FfmpegWmaEncoder.h"
#include "service/posix/LargePages.h"
#include "service/posix/PosixFiles.h"
#include "songs/OpenSaveClass.h"
#include "sound/Mixer.h"
#include "sound/RenderThreads.h"
#include "sound/StepCache.h"
#include "sound/StretchWave.h"
#include "sound/TrackRender.h"
#include "sound/TuneRender.h"
#include "stretch/StretchService.h"
#include "tunes/TunOpnSavClass.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace {

class LoudMessages : public Messages {
public:
    void MessageBox(const Words& title, const Words& text, MessageIcon /*icon*/) override
    {
        std::fprintf(stderr, "%s: %s\n", title.English().c_str(), text.English().c_str());
        std::exit(1);
    }
};

class NoScreen : public Screen {
public:
    void ShowHourglass() override {}
    void RestorePointer() override {}
    void ShowProcessPic() override {}
    void HideProcessPic() override {}
    void ShowProgress(std::size_t /*done*/, std::size_t /*total*/) override {}
    void EnableTuneNotFilledTimer() override {}
};

constexpr int kSteps = 16;

/// The pitches of the sixteen steps: from an octave down to nearly one up, never the beat's own.
std::int32_t StepPitch(int number)
{
    return number <= kSteps / 2 ? number - kSteps / 2 - 1 : number - kSteps / 2;
}

std::vector<WaveData>& StepSounds()
{
    static std::vector<WaveData> sounds = [] {
        std::vector<WaveData> made;
        for (int i = 1; i <= kSteps; ++i)
            made.push_back(PluckedSecond(i));
        return made;
    }();
    return sounds;
}

void Mix(benchmark::State& state)
{
    const std::vector<WaveData>& waves = FullSongWaves();
    std::vector<WaveFilePlacement> placements;
    for (int i = 1; i <= kMixedWaves; ++i)
        placements.push_back({0, i});
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(MixWaves(waves, placements, 100, 0, 100));
}

/// The minimum that any mixer must do: read and add every sample once.
void PlainPass(benchmark::State& state)
{
    const std::vector<WaveData>& waves = FullSongWaves();
    std::vector<std::int32_t> sums(2 * static_cast<std::size_t>(kFullSongFrames));
    for ([[maybe_unused]] auto _ : state) {
        for (int i = 1; i <= kMixedWaves; ++i) {
            std::int32_t* sum = sums.data();
            for (const Channel* channel :
                 {&waves[static_cast<std::size_t>(i)].WavL, &waves[static_cast<std::size_t>(i)].WavR}) {
                const std::span<const std::int16_t> samples = channel->Samples();
                for (std::size_t s = 0; s < samples.size(); ++s)
                    sum[s] += samples[s];
                sum += samples.size();
            }
        }
        benchmark::ClobberMemory();
    }
}

void StepsOurs(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state)
        for (int i = 1; i <= kSteps; ++i)
            benchmark::DoNotOptimize(
                StretchWave(StepSounds()[static_cast<std::size_t>(i - 1)], PitchFactor(StepPitch(i)), 1.0F));
}

template <auto Engine>
void StepsPeer(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state)
        for (int i = 1; i <= kSteps; ++i)
            benchmark::DoNotOptimize(Engine(StepSounds()[static_cast<std::size_t>(i - 1)].WavL.Samples(),
                                            static_cast<double>(PitchFactor(StepPitch(i))), 1.0));
}

/// A tune of the sixteen steps; their beats are in the song.
Tune StepsTune()
{
    SongState& song = Shared().Song;
    song = SongState();
    Tune tune;
    for (int i = 1; i <= kSteps; ++i) {
        Beat beat;
        beat.Name = "Beat " + std::to_string(i);
        beat.Sound = StepSounds()[static_cast<std::size_t>(i - 1)];
        beat.Loaded = true;
        song.SongBeats.push_back(beat);
        TuneStep step;
        step.SetOn(true);
        step.BeatIndex = i;
        step.PitchShift = StepPitch(i);
        tune.Steps.push_back(step);
    }
    song.SongBeatCount = kSteps;
    tune.StepCount = kSteps;
    return tune;
}

/// The whole processing of a tune's steps, on one thread or on all cores.
template <std::size_t Threads>
void StepsWholeWay(benchmark::State& state)
{
    const RenderThreads threads(Threads);
    const Tune fresh = StepsTune();
    for ([[maybe_unused]] auto _ : state) {
        TheStepCache().Clear();
        Tune tune = fresh;
        RenderTrackSteps(tune);
        benchmark::DoNotOptimize(tune);
    }
}

void Load(benchmark::State& state)
{
    const std::filesystem::path file = BenchSong();
    for ([[maybe_unused]] auto _ : state) {
        OpenSaveClass().Load_Song(file);
        state.PauseTiming();
        Shared().Song = SongState();
        state.ResumeTiming();
    }
}

void Save(benchmark::State& state)
{
    OpenSaveClass().Load_Song(BenchSong());
    const std::filesystem::path target = BenchSong().native() + ".saved";
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        std::filesystem::remove(target);
        state.ResumeTiming();
        OpenSaveClass(Flush::No).Save_Song(target);
    }
    std::filesystem::remove(target);
}

/// Five thousand tunes with a sound of eight seconds, read as for a list of tunes. They are fifty files under many
/// names, since the same part is read of each.
std::vector<std::filesystem::path> MakeTunes(const std::filesystem::path& folder)
{
    constexpr int tunes = 5000;
    constexpr int files = 50;
    Tune& tune = Shared().TuneClipboard;
    tune = StepsTune();
    for (TuneStep& step : tune.Steps)
        step.SetOn(false);
    tune.Picture = Picture(kPictureSide, kPictureSide, std::vector<std::uint32_t>(kPicturePixels));
    tune.TuneWave = CutWaveSlice(FullSongWaves()[1], 1, 8 * 44100);
    std::filesystem::create_directories(folder);
    std::vector<std::filesystem::path> paths;
    for (int i = 0; i < tunes; ++i) {
        paths.push_back(folder / ("Tune " + std::to_string(i) + ".TqTun"));
        if (i < files)
            TunOpnSavClass(Flush::No).Save_Tune(paths.back());
        else
            std::filesystem::create_hard_link(paths[static_cast<std::size_t>(i % files)], paths.back());
    }
    return paths;
}

void ListTunes(benchmark::State& state)
{
    const std::filesystem::path folder = BenchSong().native() + ".tunes";
    const std::vector<std::filesystem::path> paths = MakeTunes(folder);
    std::size_t next = 0;
    for ([[maybe_unused]] auto _ : state)
        TunOpnSavClass().Load_Tune(paths[next++ % paths.size()], TuneLoad::List);
    std::filesystem::remove_all(folder);
}

/// Prints the peak bytes that a mix of the full song needs above the loaded song.
int PrintMemory()
{
    MakeFullSong();
    const std::int64_t before = RestartMemoryPeak();
    MixSong();
    std::printf("%lld\n", static_cast<long long>(MemoryPeak() - before));
    return Shared().Song.SongMix.Length >= kFullSongFrames ? 0 : 1;
}

int WriteWaves(const std::filesystem::path& folder)
{
    for (int i = 1; i <= kMixedWaves; ++i)
        SaveWaveFile(FullSongWaves()[static_cast<std::size_t>(i)], folder / (std::to_string(i) + ".wav"));
    return 0;
}

int WriteSong(const std::filesystem::path& file)
{
    constexpr std::int64_t songBytes = 60'000'000;
    MakeLargeSong(songBytes);
    OpenSaveClass(Flush::No).Save_Song(file);
    return 0;
}

int WriteFullSong(const std::filesystem::path& file)
{
    MakeFullSong();
    OpenSaveClass(Flush::No).Save_Song(file);
    return 0;
}

int RunBenchmarks(int argc, char** argv)
{
    const auto add = [](const char* name, void (*function)(benchmark::State&)) {
        benchmark::RegisterBenchmark(name, function)->UseRealTime()->Unit(benchmark::kMillisecond);
    };
    add("mix", Mix);
    add("plain-pass", PlainPass);
    add("steps", StepsOurs);
    add("rubberband", StepsPeer<RubberBandStretch>);
    add("soundtouch", StepsPeer<SoundTouchStretch>);
    add("steps-one-thread", StepsWholeWay<1>);
    add("steps-all-cores", StepsWholeWay<0>);
    add("load", Load);
    add("save", Save);
    add("wav-export", WavExport);
    add("wma-export", WmaExport);
    add("louder", Louder);
    add("louder-at-first", LouderAtFirst);
    add("cut-front", CutFront);
    add("copy-bytes", CopyBytes);
    add("copy-anew", CopyBytesAnew);
    add("copy-tail", CopyTail);
    benchmark::RegisterBenchmark("list-tunes", ListTunes)
        ->Iterations(5000)
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

int Run(int argc, char** argv)
{
    LoudMessages messages;
    NoScreen screen;
    PosixFiles files;
    const std::unique_ptr<Stretch> stretch = MakeStretch();
    FfmpegWmaEncoder wma;
    LargePages::UseFromNowOn();
    TheServices() = {.messages = &messages, .screen = &screen, .files = &files, .stretch = stretch.get(), .wma = &wma};
    const std::vector<std::string_view> words(argv + 1, argv + argc);
    if (words.size() == 1 && words[0] == "--memory")
        return PrintMemory();
    if (words.size() == 2 && words[0] == "--write-waves")
        return WriteWaves(words[1]);
    if (words.size() == 2 && words[0] == "--write-song")
        return WriteSong(words[1]);
    if (words.size() == 2 && words[0] == "--write-full-song")
        return WriteFullSong(words[1]);
    if (words.size() == 2 && words[0] == "--write-mix")
        return WriteMix(words[1]);
    if (words.size() == 2 && words[0] == "--memory-wav-export")
        return PrintWavMemory(words[1]);
    if (words.size() == 2 && words[0] == "--memory-wma-export")
        return PrintWmaMemory(words[1]);
    if (words.size() == 3 && words[0] == "--wma")
        return EncodeWavFile(words[1], words[2]);
    return RunBenchmarks(argc, argv);
}

} // namespace

} // namespace sprout

int main(int argc, char** argv)
{
    return sprout::Run(argc, argv);
}
