// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-library/Library.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <fstream>
#include <set>
#include <utility>

#include "base/Errors.h"
#include "base/Extensions.h"
#include "base/FolderFiles.h"
#include "base/Text.h"
#include "core/IniFile.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "service/Machine.h"
#include "service/PictureFiles.h"
#include "service/Services.h"
#include "songs/OpenSaveClass.h"
#include "sprout-library/BeatSound.h"
#include "sprout-library/BeatTable.h"
#include "sprout-library/DrawPicture.h"
#include "sprout-library/Freshness.h"
#include "sprout-library/SongText.h"
#include "sprout-library/Table.h"
#include "tunes/TunOpnSavClass.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr std::uint32_t kPaper = 0xFFF8E7;

void WriteText(const fs::path& file, std::string_view bytes)
{
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream << bytes;
    if (!stream.flush())
        throw RunTimeError(Words::Text("The file %1 could not be written.", file.native()));
}

/// Saves `TuneClipboard` with neither beats nor sound. The beats are in their folder, and the program renders the sound
/// when the tune is chosen for the first time.
void SaveLight(const fs::path& file)
{
    const bool before = std::exchange(Shared().SongBeatsInside, false);
    TunOpnSavClass().Save_Tune(file);
    Shared().SongBeatsInside = before;
    fs::remove(file.native() + "Cache"); // it has no sound
}

/// Makes one library; each kind needs the kinds before it.
class Maker {
public:
    Maker(Session& ownSession, const LibraryPlaces& ownPlaces)
        : session(ownSession),
          places(ownPlaces),
          texts(places.Source / "library"),
          art(places.Source / "art"),
          sounds(places.SoundFont),
          freshness(places.Output)
    {
        base.Add(std::to_string(places.Time));
        base.AddFile(TheServices().machine->ExecutablePath());
        for (const char* kind : {"Beats", "Tunes", "Stars", "Songs"})
            fs::create_directories(places.Output / kind);
        SetUserRoot(places.Output);
    }

    void MakeAll()
    {
        MakeBeats();
        MakeTunes();
        MakeStars();
        MakeSongs();
        freshness.Finish();
    }

private:
    void MakeBeats();
    void MakeBeat(const BeatRecipe& recipe, const BeatFamily& family);
    [[nodiscard]] Picture BeatPicture(const BeatRecipe& recipe, const BeatFamily& family) const;
    void MakeTunes();
    void MakeTune(const std::string& name);
    void WriteTuneOrder(const std::vector<std::string>& names);
    void MakeStars();
    void MakeSongs();
    [[nodiscard]] Fingerprint TunePrint(const std::string& name) const;

    /// Sets the time of a finished file of the tree; throws if the engine reported a failure.
    void Finished(const fs::path& file)
    {
        const auto time = std::chrono::sys_seconds(std::chrono::seconds(places.Time));
        fs::last_write_time(places.Output / file, std::chrono::file_clock::from_sys(time));
        if (!session.NoMessageSince(0))
            throw RunTimeError(Words::Text("The file %1 was not made.", file.native()));
    }

    Session& session;
    LibraryPlaces places;
    fs::path texts;
    fs::path art;
    BeatSounds sounds;
    Freshness freshness;
    Fingerprint base;
    Fingerprint allBeats; // any changed beat remakes all tunes: they are few, and checking each is not faster
};

Picture Maker::BeatPicture(const BeatRecipe& recipe, const BeatFamily& family) const
{
    const fs::path glyph = art / "beats" / (recipe.Glyph + ".svg");
    if (recipe.Name.ends_with(" High"))
        return DrawPicture(family.HighColour, std::array{art / "beats" / "ground" / "High.svg", glyph});
    if (recipe.Name.ends_with(" Low"))
        return DrawPicture(family.LowColour, std::array{art / "beats" / "ground" / "Low.svg", glyph});
    return DrawPicture(family.PlainColour, std::array{glyph});
}

void Maker::MakeBeat(const BeatRecipe& recipe, const BeatFamily& family)
{
    const fs::path wav = fs::path("Beats") / (recipe.Name + ".wav");
    const fs::path bmp = fs::path("Beats") / (recipe.Name + ".bmp");
    const Picture picture = BeatPicture(recipe, family);
    Fingerprint print = base;
    for (const double number : {static_cast<double>(recipe.Key), static_cast<double>(recipe.Velocity),
                                recipe.HeldSeconds, recipe.Seconds, family.LoudnessDb})
        print.Add(std::to_string(number));
    print.Add(recipe.Sound).Add(recipe.Pitched ? "pitched" : "");
    print.Add({reinterpret_cast<const char*>(picture.Pixels().data()), picture.Pixels().size_bytes()});
    allBeats.Add(recipe.Name).Add(print.Text());
    if (freshness.IsFresh({wav, bmp}, print.Text()))
        return;
    SaveWaveFile(sounds.Make(recipe, family), places.Output / wav);
    TheServices().pictures->SavePicture(picture, places.Output / bmp);
    Finished(wav);
    Finished(bmp);
}

void Maker::MakeBeats()
{
    const auto families = ReadFamilyTable(texts / "families.txt");
    allBeats = base;
    for (const BeatRecipe& recipe : ReadBeatTable(texts / "beats.txt")) {
        const auto family = families.find(recipe.Family());
        if (family == families.end())
            throw RunTimeError(Words::Text("The beat %1 is of no family.", recipe.Name));
        MakeBeat(recipe, family->second);
    }
}

Fingerprint Maker::TunePrint(const std::string& name) const
{
    Fingerprint print = allBeats;
    return print.AddFile(texts / "tunes" / (name + ".ini")).AddFile(art / "tunes" / (name + ".svg"));
}

/// The text is a tune file of the old form: it is loaded beside its picture and saved in the current form.
void Maker::MakeTune(const std::string& name)
{
    const fs::path tune = fs::path("Tunes") / (name + ".TqTun");
    if (freshness.IsFresh({tune}, TunePrint(name).Text()))
        return;
    const fs::path file = places.Output / tune;
    const fs::path picture = places.Output / "Tunes" / (name + ".bmp");
    WriteText(file, ReadWholeFile(texts / "tunes" / (name + ".ini")));
    const std::array drawings = {art / "tunes" / (name + ".svg")};
    TheServices().pictures->SavePicture(DrawPicture(kPaper, drawings), picture);
    TunOpnSavClass().Load_Tune(file);
    fs::remove(picture);
    for (const TuneStep& step : Shared().TuneClipboard.Steps)
        if (step.IsOn() && step.StepBeat.Name.empty())
            throw RunTimeError(Words::Text("The tune %1 plays a beat that is not there.", name));
    SaveLight(file);
    Finished(tune);
}

void Maker::WriteTuneOrder(const std::vector<std::string>& names)
{
    const fs::path index = fs::path("Tunes") / "TqTunes.ini";
    IniFile order;
    int place = 0;
    for (const std::string& name : names)
        order.SetValue("SortOrder", name, std::to_string(++place));
    if (freshness.IsFresh({index}, Fingerprint(base).Add(order.Bytes()).Text()))
        return;
    order.Write(places.Output / index);
    Finished(index);
}

void Maker::MakeTunes()
{
    std::vector<std::string> names;
    for (const TableRow& row : ReadTable(texts / "tunes.txt", 2, 2))
        names.push_back(row.cells[0]);
    for (const std::string& name : NamesInFolder(texts / "tunes", ".ini"))
        if (std::find(names.begin(), names.end(), name) == names.end())
            throw RunTimeError(Words::Text("The tune %1 is missing from tunes.txt.", name));
    for (const std::string& name : names)
        MakeTune(name);
    WriteTuneOrder(names);
}

void Maker::MakeStars()
{
    for (const auto& [name, text] : FilesInFolder(texts / "stars", ".ini")) {
        const fs::path star = fs::path("Stars") / (name + std::string(kStarExtension));
        const fs::path bmp = fs::path("Stars") / (name + ".bmp");
        const std::array drawings = {art / "stars" / (name + ".svg")};
        if (freshness.IsFresh({star, bmp}, Fingerprint(base).AddFile(text).AddFile(drawings[0]).Text()))
            continue;
        WriteText(places.Output / star, ReadWholeFile(text));
        TheServices().pictures->SavePicture(DrawPicture(kPaper, drawings), places.Output / bmp);
        Finished(star);
        Finished(bmp);
    }
}

void Maker::MakeSongs()
{
    for (const auto& [name, file] : FilesInFolder(texts / "songs", ".txt")) {
        const fs::path song = fs::path("Songs") / (name + ".TqSng");
        const SongText text = ReadSongText(file);
        Fingerprint print = base;
        print.AddFile(file);
        for (const SongTextTrack& track : text.Tracks)
            print.Add(TunePrint(track.TuneName).Text());
        if (freshness.IsFresh({song}, print.Text()))
            continue;
        BuildSong(text);
        OpenSaveClass().Save_Song(places.Output / song);
        Finished(song);
    }
}

} // namespace

void MakeLibrary(Session& session, const LibraryPlaces& places)
{
    Maker(session, places).MakeAll();
}

} // namespace sprout
