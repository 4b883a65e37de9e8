// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-library/Check.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <iomanip>
#include <map>
#include <span>
#include <sstream>

#include "base/FilePaths.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "core/SongTime.h"
#include "service/PictureFiles.h"
#include "service/Services.h"
#include "songs/OpenSaveClass.h"
#include "sound/TrackRender.h"
#include "sound/TuneRender.h"
#include "sprout-library/BeatSound.h"
#include "sprout-library/DrawPicture.h"
#include "sprout-library/Measure.h"
#include "tunes/RandomTune.h"
#include "tunes/TunOpnSavClass.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr double kMostAlike = 0.85;
constexpr double kMostClash = 0.15;
constexpr double kMostMedianClash = 0.08;
constexpr double kLeastShortBeats = 0.6;
// Bytes. A tune's file has its picture and its steps, but no samples; every user gets a copy of the whole library.
constexpr std::uintmax_t kLargestTune = 10'000;
constexpr std::uintmax_t kLargestLibrary = 20'000'000;

std::string Number(double value, int decimals)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return text;
}

double Median(std::vector<double> values)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    const std::size_t half = values.size() / 2;
    return values.size() % 2 == 1 ? values[half] : (values[half - 1] + values[half]) / 2;
}

std::vector<fs::path> Sorted(const fs::path& folder, std::string_view extension)
{
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        if (entry.path().extension() == extension)
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

/// One sound on the song's time line, in frames.
struct Sounding {
    double first = 0;
    double last = 0;
    std::int32_t pitch = 0;
};

void AddSoundings(const SongState& song, const Track& track, std::vector<Sounding>& soundings)
{
    const Tune& tune = track.TrackTune;
    std::int32_t k = 0;
    for (std::int32_t cell = 1; cell <= song.SongCells; ++cell) {
        k = track.IsPainted(cell) ? k % std::max(tune.StepCount, 1) + 1 : 0;
        if (k == 0 || k > tune.StepCount)
            continue;
        const TuneStep& step = tune.Steps[static_cast<std::size_t>(k)];
        const bool known = step.IsOn() && step.BeatIndex >= 1 && step.BeatIndex <= song.SongBeatCount;
        if (!known || !IsPitched(song.SongBeats[static_cast<std::size_t>(step.BeatIndex)].Name))
            continue;
        const double first = cell * CellSeconds(song.Tempo) * step.StepWave.Rate;
        soundings.push_back({first, first + step.StepWave.Length, step.PitchShift});
    }
}

bool Clashes(std::int32_t semitones)
{
    const std::int32_t apart = std::abs(semitones) % 12;
    return apart == 1 || apart == 2 || apart == 6 || apart == 10 || apart == 11;
}

/// Collects the broken rules.
class Report {
public:
    explicit Report(std::ostream& stream) : out(stream) {}

    void Line(const std::string& text) { out << text << '\n'; }

    void Require(bool held, const std::string& name, const std::string& rule)
    {
        if (held)
            return;
        out << "  BROKEN  " << name << ": " << rule << '\n';
        ++broken;
    }

    int broken = 0;

private:
    std::ostream& out;
};

void RequireBeat(Report& report, const BeatFacts& beat)
{
    report.Require(beat.Seconds <= kLongestBeatOfLibrarySeconds, beat.Name, "lasts too long");
    report.Require(beat.PeakDb >= kLowestBeatPeakDb && beat.PeakDb <= kHighestBeatPeakDb, beat.Name, "peak");
    report.Require(beat.OnsetSeconds <= kLatestOnsetSeconds, beat.Name, "begins too late");
    report.Require(beat.EndDb < kEndDb, beat.Name, "does not end in silence");
    report.Require(std::abs(beat.Offset) <= kMostOffset, beat.Name, "has an offset");
    report.Require(beat.Key > 0 || !IsPitched(beat.Name), beat.Name, "stands on no C");
    report.Require(std::abs(beat.CentsOff) <= kMostCentsOff, beat.Name, "is out of tune");
}

std::string BeatLine(const BeatFacts& beat)
{
    std::ostringstream line;
    line << std::left << std::setw(26) << beat.Name << Number(beat.Seconds, 2) << " s  peak " << Number(beat.PeakDb, 1)
         << " dB  loudest " << Number(beat.LoudestDb, 1) << " LUFS  onset " << Number(beat.OnsetSeconds * 1000, 1)
         << " ms  end " << Number(beat.EndDb, 0) << " dB";
    if (beat.Key > 0)
        line << "  C" << beat.Key / 12 - 1 << ' ' << Number(beat.CentsOff, 1) << " cents";
    return line.str();
}

void CheckBeats(const fs::path& folder, Report& report)
{
    std::map<char, std::vector<BeatFacts>> families;
    double count = 0, shortCount = 0;
    for (const fs::path& file : Sorted(folder, ".wav")) {
        BeatFacts beat = MeasureBeat(BaseName(file), LoadWaveFile(file));
        beat.Bytes = fs::file_size(file);
        report.Line(BeatLine(beat));
        RequireBeat(report, beat);
        report.Require(FileExists(folder / (beat.Name + ".bmp")), beat.Name, "has no picture");
        count += 1;
        shortCount += beat.Bytes < kShortBeatBytes ? 1 : 0;
        families[beat.Name.front()].push_back(beat);
    }
    for (const auto& [letter, beats] : families) {
        std::vector<double> levels;
        for (const BeatFacts& beat : beats)
            levels.push_back(beat.LoudestDb);
        for (const BeatFacts& beat : beats)
            report.Require(std::abs(beat.LoudestDb - Median(levels)) <= kMostLoudnessOffFamilyDb, beat.Name,
                           "is not as loud as its family");
    }
    report.Line("Beats: " + Number(count, 0) + ", of these short: " + Number(shortCount, 0));
    report.Require(shortCount >= kLeastShortBeats * count, "Beats", "too few are short");
}

struct NamedPicture {
    std::string name;
    Picture picture;
};

void CheckPictures(std::span<const NamedPicture> pictures, Report& report)
{
    for (std::size_t i = 0; i < pictures.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            report.Require(SharePixels(pictures[i].picture, pictures[j].picture) <= kMostAlike, pictures[i].name,
                           "looks like " + pictures[j].name);
}

std::vector<NamedPicture> PictureFilesOf(const fs::path& folder)
{
    std::vector<NamedPicture> pictures;
    for (const fs::path& file : Sorted(folder, ".bmp"))
        pictures.push_back({BaseName(file), TheServices().pictures->LoadPicture(file)});
    return pictures;
}

void CheckTunes(const fs::path& folder, Report& report)
{
    std::vector<NamedPicture> pictures;
    for (const fs::path& file : Sorted(folder, ".TqTun")) {
        TunOpnSavClass().Load_Tune(file);
        Tune& tune = Shared().TuneClipboard;
        const bool hasSound = tune.TuneWaveValid;
        RenderTuneCycle(tune);
        const double peak = std::max(PeakDb(Samples(tune.TuneWave.WavL)), PeakDb(Samples(tune.TuneWave.WavR)));
        report.Line(tune.Name + ": " + std::to_string(tune.StepCount) + " steps, peak " + Number(peak, 1) + " dB, " +
                    Number(LoudnessDb(tune.TuneWave), 1) + " LUFS");
        report.Require(IsOriginalTune(tune), tune.Name, "is no original");
        report.Require(!hasSound && fs::file_size(file) <= kLargestTune, tune.Name, "carries sounds");
        report.Require(tune.TuneWave.Length > 0, tune.Name, "has no sound");
        report.Require(tune.StepCount >= 2 && tune.StepCount <= 64, tune.Name, "has a wrong count of steps");
        // A cycle is cut at 80 percent of full scale, which is 1.94 dB below it.
        report.Require(peak < -1.95, tune.Name, "is cut off at its peaks");
        pictures.push_back({tune.Name, tune.Picture});
    }
    report.Line("Tunes: " + std::to_string(pictures.size()));
    CheckPictures(pictures, report);
}

void CheckSongs(const fs::path& folder, Report& report)
{
    std::vector<double> clashes;
    for (const fs::path& file : Sorted(folder, ".TqSng")) {
        OpenSaveClass().Load_Song(file);
        const SongFacts song = MeasureSong(BaseName(file));
        report.Line(song.Name + ": " + Number(song.Seconds, 1) + " s, " + std::to_string(song.Tracks) +
                    " tracks, peak " + Number(song.PeakDb, 2) + " dB, " + Number(song.LoudnessDb, 1) +
                    " LUFS, clashing " + Number(song.Clash * 100, 1) + " %");
        report.Require(song.PeakDb >= -6 && song.PeakDb <= -0.3, song.Name, "peak");
        report.Require(song.LoudnessDb >= -20 && song.LoudnessDb <= -14, song.Name, "loudness");
        report.Require(song.Seconds >= 60 && song.Seconds <= 240, song.Name, "length");
        report.Require(song.Tracks >= 6 && song.Tracks <= 9, song.Name, "count of tracks");
        report.Require(song.Clash <= kMostClash, song.Name, "clashes too much");
        clashes.push_back(song.Clash);
    }
    report.Line("Songs: " + std::to_string(clashes.size()) + ", median of clashing " +
                Number(Median(clashes) * 100, 1) + " %");
    report.Require(Median(clashes) < kMostMedianClash, "Songs", "clash too much");
}

/// Only what is copied for each user: there may be demos beside it.
void CheckSize(const fs::path& library, Report& report)
{
    std::uintmax_t bytes = 0;
    for (const char* folder : {"Beats", "Tunes", "Stars", "Songs"})
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(library / folder))
            bytes += entry.is_regular_file() ? entry.file_size() : 0;
    report.Line("Library: " + Number(static_cast<double>(bytes) / 1e6, 1) + " MB");
    report.Require(bytes <= kLargestLibrary, "Library", "is too large");
}

} // namespace

BeatFacts MeasureBeat(const std::string& name, const WaveData& wave)
{
    const std::vector<double> sound = Samples(wave.WavL);
    BeatFacts facts;
    facts.Name = name;
    facts.Seconds = static_cast<double>(wave.Length) / wave.Rate;
    facts.PeakDb = PeakDb(sound);
    facts.LoudestDb = LoudestDb(sound);
    const double level = std::pow(10.0, facts.PeakDb / 20) * kOnsetShare;
    const auto onset = std::find_if(sound.begin(), sound.end(), [level](double s) { return std::abs(s) > level; });
    facts.OnsetSeconds = static_cast<double>(onset - sound.begin()) / wave.Rate;
    const std::size_t endFrames = std::min<std::size_t>(sound.size(), static_cast<std::size_t>(wave.Rate / 200));
    facts.EndDb = PeakDb(std::span(sound).last(endFrames));
    facts.Offset = Offset(sound);
    facts.Key = IsPitched(name) ? SoundingC(sound) : 0;
    facts.CentsOff = facts.Key > 0 ? CentsOff(sound, facts.Key) : 0;
    return facts;
}

bool IsPitched(const std::string& beatName)
{
    return !beatName.empty() && beatName.front() != 'D' && beatName.front() != 'F' && beatName.front() != 'd' &&
           beatName.front() != 'f';
}

double ClashShare(const SongState& song)
{
    std::vector<Sounding> soundings;
    for (const Track& track : song.Tracks)
        if (track.IsMusic() && track.Painted.size() > static_cast<std::size_t>(song.SongCells))
            AddSoundings(song, track, soundings);
    std::sort(soundings.begin(), soundings.end(),
              [](const Sounding& a, const Sounding& b) { return a.first < b.first; });
    double all = 0, clashing = 0;
    for (std::size_t i = 0; i < soundings.size(); ++i) {
        for (std::size_t j = i + 1; j < soundings.size() && soundings[j].first < soundings[i].last; ++j) {
            const double together = std::min(soundings[i].last, soundings[j].last) - soundings[j].first;
            all += together;
            clashing += Clashes(soundings[i].pitch - soundings[j].pitch) ? together : 0;
        }
    }
    return all > 0 ? clashing / all : 0;
}

SongFacts MeasureSong(const std::string& name)
{
    MixSong();
    const SongState& song = Shared().Song;
    SongFacts facts;
    facts.Name = name;
    facts.Tracks = song.TrackCount;
    facts.Seconds = static_cast<double>(song.SongMix.Length) / song.SongMix.Rate;
    facts.PeakDb = std::max(PeakDb(Samples(song.SongMix.WavL)), PeakDb(Samples(song.SongMix.WavR)));
    facts.LoudnessDb = LoudnessDb(song.SongMix);
    facts.Clash = ClashShare(song);
    return facts;
}

int CheckLibrary(const fs::path& folder, std::ostream& out)
{
    SetUserRoot(folder);
    Report report(out);
    CheckBeats(folder / "Beats", report);
    CheckPictures(PictureFilesOf(folder / "Beats"), report);
    CheckTunes(folder / "Tunes", report);
    CheckPictures(PictureFilesOf(folder / "Stars"), report);
    CheckSongs(folder / "Songs", report);
    CheckSize(folder, report);
    report.Line(report.broken == 0 ? "All rules hold." : std::to_string(report.broken) + " rules are broken.");
    return report.broken;
}

} // namespace sprout
