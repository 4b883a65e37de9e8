// SPDX-License-Identifier: GPL-3.0-or-later
#include "tunes/TuneNames.h"

#include <filesystem>
#include <system_error>

#include "base/Extensions.h"
#include "base/FilePaths.h"
#include "base/Text.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "tunes/TunOpnSavClass.h"
#include "tunes/TuneTable.h"

namespace sprout {

namespace fs = std::filesystem;

TuneNames NamesToOffer(const Tune& tune, bool allowEditOriginal)
{
    if (!allowEditOriginal && IsOriginalTune(tune))
        return {};
    return {tune.Name, tune.CreatedBy};
}

TuneNames Trimmed(const TuneNames& names)
{
    return {std::string(Trim(names.Name)), std::string(Trim(names.CreatedBy))};
}

LaterWords WhatIsMissing(const TuneNames& names)
{
    if (names.Name.empty())
        return Words::Later("Enter a Tune Name.");
    if (names.CreatedBy.empty())
        return Words::Later("Enter a your name in \"Created By\" box.");
    return {};
}

bool IsNameOfOriginal(std::string_view name)
{
    TunOpnSavClass().Load_Tune(TuneFile(name), TuneLoad::List);
    return IsOriginalTune(Shared().TuneClipboard);
}

void SaveTuneFile(const Tune& tune)
{
    const fs::path path = TuneFile(tune.Name);
    const fs::path old = FindFile(path);
    Shared().TuneClipboard = tune;
    TunOpnSavClass().Save_Tune(path);
    std::error_code error;
    if (!old.empty() && old != path && !fs::equivalent(old, path, error))
        fs::remove(old, error);
}

void DeleteTuneFiles(std::string_view name)
{
    DeleteFile(FindFile(TuneFile(name)));
    DeleteFile(FindFile(NamedFile(Shared().UserTunes, name, kPictureExtension)));
}

} // namespace sprout
