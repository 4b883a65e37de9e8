// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-library/SongText.h"

#include <algorithm>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "base/Text.h"
#include "beats/BeatFiles.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "core/SongModel.h"
#include "core/SongTime.h"
#include "sprout-library/Table.h"
#include "tunes/TunOpnSavClass.h"

namespace sprout {

namespace {

std::int32_t WholeNumber(const TableRow& row, std::string_view text, std::int32_t most)
{
    const TableRow single{{std::string(Trim(text))}, row.file, row.line};
    return static_cast<std::int32_t>(CellNumber(single, 0, 1, most));
}

/// The cells of a run of bars such as "3-6" or "7".
CellRun RunOfBars(const TableRow& row, const std::string& text, std::int32_t barCells)
{
    const std::vector<std::string> ends = Split(text, '-');
    const std::int32_t mostBars = kSongCells / barCells;
    const std::int32_t first = WholeNumber(row, ends.front(), mostBars);
    const std::int32_t last = WholeNumber(row, ends.back(), mostBars);
    if (ends.size() > 2 || last < first)
        throw RunTimeError(Words::Text("%1\"%2\" is no run of bars.", row.Place(), text));
    return {(first - 1) * barCells + 1, last * barCells};
}

SongTextTrack TrackOf(const TableRow& row, std::int32_t barCells)
{
    if (row.cells.size() != 3)
        throw RunTimeError(Words::Text("%1a track has a tune and bars.", row.Place()));
    SongTextTrack track{row.cells[1], {}};
    for (const std::string& run : Split(row.cells[2], ','))
        track.Runs.push_back(RunOfBars(row, run, barCells));
    return track;
}

void FillTrack(const SongTextTrack& text, std::int32_t number)
{
    SharedState& shared = Shared();
    const std::filesystem::path file = NamedFile(shared.UserTunes, text.TuneName, ".TqTun");
    if (!FileExists(file))
        throw RunTimeError(Words::Text("There is no tune %1.", text.TuneName));
    ResetTrack(number);
    TunOpnSavClass().Load_Tune(file);
    Track& track = At(shared.Song.Tracks, number);
    track.TrackTune = shared.TuneClipboard;
    MergeTuneBeats(shared.Song, track.TrackTune);
    for (const CellRun& run : text.Runs)
        std::fill(track.Painted.begin() + run.First, track.Painted.begin() + run.Last + 1, kPaintedCell);
}

} // namespace

SongText ReadSongText(const std::filesystem::path& file)
{
    SongText song;
    song.Title = BaseName(file);
    song.Tempo = kReferenceTempo;
    std::int32_t barCells = 1;
    for (const TableRow& row : ReadTable(file, 2, 3)) {
        if (row.cells[0] == "Author")
            song.CreatedBy = row.cells[1];
        else if (row.cells[0] == "Tempo")
            song.Tempo = TempoOfPercent(static_cast<std::int32_t>(CellNumber(row, 1, 50, 200)));
        else if (row.cells[0] == "Bar")
            barCells = WholeNumber(row, row.cells[1], kSongCells);
        else if (row.cells[0] == "Track")
            song.Tracks.push_back(TrackOf(row, barCells));
        else
            throw RunTimeError(Words::Text("%1a song has no \"%2\".", row.Place(), row.cells[0]));
    }
    return song;
}

void BuildSong(const SongText& text)
{
    NewSong();
    SongState& song = Shared().Song;
    song.SongTitle = text.Title;
    song.SongCreatedBy = text.CreatedBy;
    song.Tempo = text.Tempo;
    song.TrackCount = static_cast<std::int32_t>(text.Tracks.size());
    song.Tracks.assign(text.Tracks.size() + 1, Track());
    for (std::int32_t number = 1; number <= song.TrackCount; ++number)
        FillTrack(text.Tracks[static_cast<std::size_t>(number) - 1], number);
}

} // namespace sprout
