// SPDX-License-Identifier: GPL-3.0-or-later
#include "tunes/TunOpnSavClass.h"

#include <exception>
#include <string>

#include "base/Errors.h"
#include "base/FilePaths.h"
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

bool LoadVersion(Tune& tune, const fs::path& path, TuneLoad mode)
{
    FileSource source(path);
    const float version = FileVersion(source);
    tune = Tune();
    if (version == 2.0F)
        return Load_Tune_V20(tune, source, path, mode);
    if (version != 0.0F)
        return false;
    if (source.Size() > kMostIniBytes)
        throw RunTimeError("The file " + PathText(path) + " is too large for a tune.");
    Load_Tune_V00(tune, path, mode);
    return true;
}

} // namespace

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
    try {
        return LoadVersion(tune, file, mode);
    } catch (const std::exception& error) {
        Tell("Error Opening File", ErrorText(error));
        return false;
    }
}

bool IsOriginalTune(const Tune& tune)
{
    return BeginsIgnoringCase(tune.CreatedBy, kProductFamily);
}

} // namespace sprout
