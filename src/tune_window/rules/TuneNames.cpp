// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/rules/TuneNames.h"

#include <filesystem>
#include <system_error>

#include "core/Paths.h"
#include "core/Shared.h"
#include "core/Text.h"
#include "tune_window/rules/TuneTable.h"
#include "tunes/TunOpnSavClass.h"

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

std::string_view WhatIsMissing(const TuneNames& names)
{
    if (names.Name.empty())
        return "Enter a Tune Name.";
    if (names.CreatedBy.empty())
        return "Enter a your name in \"Created By\" box.";
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
    DeleteFile(FindFile(NamedFile(Shared().UserTunes, name, ".bmp")));
}

} // namespace sprout
