// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-library/Tool.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <iomanip>

#include "base/Errors.h"
#include "core/Shared.h"
#include "service/PictureFiles.h"
#include "service/Services.h"
#include "sprout-library/Check.h"
#include "sprout-library/DrawPicture.h"
#include "sprout-library/Library.h"
#include "sprout-library/Measure.h"
#include "sprout-song/Session.h"
#include "tunes/TunOpnSavClass.h"
#include "waves/WavOperations.h"
#include "waves/WaveFormat.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kHelp = "Makes and measures the library of beats, tunes, stars and songs.\n"
                                   "  sprout-library SOURCE OUTPUT       make it; SOURCE holds library/ and art/\n"
                                   "  sprout-library --check FOLDER      measure it; fails where a rule is broken\n"
                                   "  sprout-library --sheet KIND FOLDER PNG\n"
                                   "                                     its pictures on a sheet: beats, tunes, stars\n"
                                   "  sprout-library --measure WAV       length, peak and loudness of a sound\n"
                                   "SOUNDFONT names the sound font, SOURCE_DATE_EPOCH the time of the files made.\n";
constexpr const char* kSoundFont = "/usr/share/sounds/sf2/FluidR3_GM.sf2";
// Used if no time is given: the first second of 2024.
constexpr std::int64_t kFallbackTime = 1704067200;

std::int64_t SourceTime()
{
    const char* text = std::getenv("SOURCE_DATE_EPOCH");
    std::int64_t time = kFallbackTime;
    if (text)
        std::from_chars(text, text + std::char_traits<char>::length(text), time);
    return time;
}

int Make(Session& session, const std::string& source, const std::string& output)
{
    const char* font = std::getenv("SOUNDFONT");
    // The engine's clock and the files use the same time.
    const std::int64_t time = SourceTime();
    ::setenv("SOURCE_DATE_EPOCH", std::to_string(time).c_str(), 1);
    MakeLibrary(session, {source, font ? font : kSoundFont, output, time});
    return 0;
}

int Measure(Session& session, const std::string& file)
{
    const WaveData wave = ConvertWaveChannels(ConvertWaveFormat(LoadWaveFile(file), 0, 0), 0);
    if (wave.Length == 0)
        return 1;
    const Loud loudest = LoudestSecond(wave);
    session.out << std::fixed << std::setprecision(1) << "length " << static_cast<double>(wave.Length) / wave.Rate
                << " s, peak " << std::setprecision(2)
                << std::max(PeakDb(Samples(wave.WavL)), PeakDb(Samples(wave.WavR))) << " dBFS, loudness "
                << std::setprecision(1) << LoudnessDb(wave) << " LUFS, loudest second " << loudest.Db << " LUFS from "
                << loudest.Seconds << " s on\n";
    return 0;
}

int Sheet(const std::string& kind, const fs::path& folder, const fs::path& sheet)
{
    std::string name = kind;
    name.front() = static_cast<char>(std::toupper(name.front()));
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder / name))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    std::vector<Picture> pictures;
    for (const fs::path& file : files) {
        if (file.extension() == ".bmp") {
            pictures.push_back(TheServices().pictures->LoadPicture(file));
        } else if (file.extension() == ".TqTun") {
            TunOpnSavClass().Load_Tune(file, TuneLoad::List);
            pictures.push_back(Shared().TuneClipboard.Picture);
        }
    }
    WriteSheet(pictures, sheet);
    return 0;
}

int Run(Session& session, const std::vector<std::string>& words)
{
    if (words.size() == 2 && words[0] == "--check")
        return CheckLibrary(words[1], session.out) == 0 ? 0 : 1;
    if (words.size() == 2 && words[0] == "--measure")
        return Measure(session, words[1]);
    if (words.size() == 4 && words[0] == "--sheet" && !words[1].empty())
        return Sheet(words[1], words[2], words[3]);
    if (words.size() == 2 && !words[0].starts_with("--"))
        return Make(session, words[0], words[1]);
    session.out << kHelp;
    return words.size() == 1 && words[0] == "--help" ? 0 : 2;
}

} // namespace

int RunTool(const std::vector<std::string>& words, std::ostream& out, std::ostream& err)
{
    try {
        Session session(out, err, fs::temp_directory_path(), false, StandardErrorIsWatched());
        return Run(session, words);
    } catch (const std::exception& error) {
        err << "sprout-library: " << error.what() << '\n';
        return 1;
    }
}

} // namespace sprout
