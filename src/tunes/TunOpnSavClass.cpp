// SPDX-License-Identifier: GPL-3.0-or-later
#include "tunes/TunOpnSavClass.h"

#include <exception>
#include <string>
#include <utility>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "base/Guarded.h"
#include "base/Product.h"
#include "base/Text.h"
#include "core/FileHead.h"
#include "core/IniFile.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "core/SongModel.h"
#include "core/Tell.h"
#include "tunes/TuneVersions.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

void Write_Tune_File(const LongsWriter& data, const fs::path& path, Flush flush)
{
    ReplaceDataFile(path, FileHead("TqTun", " Sprout Tune File"), data, flush);
}

void ReadVersion(TuneReading& reading, const fs::path& path, TuneLoad mode)
{
    FileSource source(path);
    const float version = FileVersion(source);
    Tune& tune = reading.Record.emplace();
    if (version == 2.0F) {
        reading.Failure = Load_Tune_V20(tune, source, path, mode);
        reading.IsWhole = !reading.Failure;
        return;
    }
    if (version != 0.0F)
        return;
    if (source.Size() > kMostIniBytes)
        throw RunTimeError(Words::Text("The file %1 is too large for a tune.", PathText(path)));
    Load_Tune_V00(tune, path, mode);
    reading.IsWhole = true;
}

} // namespace

TuneReading ReadTune(const fs::path& path, TuneLoad mode)
{
    TuneReading reading;
    const auto tell = [&reading](const std::exception& error) {
        reading.Failure = ReadFailure{Words::Text("Error Opening File"), ErrorWords(error)};
    };
    GuardedBy(tell, [&] { ReadVersion(reading, path, mode); });
    return reading;
}

void TellFailure(const TuneReading& reading)
{
    if (reading.Failure)
        Tell(reading.Failure->Title, reading.Failure->Text);
}

void TunOpnSavClass::Save_Tune(const fs::path& path)
{
    const Tune& tune = Shared().TuneClipboard;
    Write_Tune_File(Write_Tune_Data(tune), path, saveFlush);
    if (!Shared().SongBeatsInside)
        WriteTuneCache(tune, path);
}

bool TunOpnSavClass::Load_Tune(const fs::path& path, TuneLoad mode)
{
    Tune& tune = Shared().TuneClipboard;
    const fs::path file = FindFile(path);
    if (file.empty()) {
        ResetTune(tune);
        return false;
    }
    TuneReading reading = ReadTune(file, mode);
    if (reading.Record)
        tune = *std::move(reading.Record);
    TellFailure(reading);
    return reading.IsWhole;
}

bool IsOriginalTune(const Tune& tune)
{
    return BeginsIgnoringCase(tune.CreatedBy, kProductFamily);
}

} // namespace sprout
