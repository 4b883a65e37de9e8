// SPDX-License-Identifier: GPL-3.0-or-later
#include <fstream>
#include <ios>
#include <span>
#include <utility>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "base/Log.h"
#include "core/Paths.h"
#include "core/rendered/Rendered.h"
#include "tunes/TuneVersions.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

fs::path CachePath(const fs::path& tunePath)
{
    return tunePath.native() + "Cache";
}

/// Opens a file for writing without emptying it; creates it if it is missing.
bool OpenKept(std::filebuf& file, const fs::path& path)
{
    return file.open(path, std::ios::in | std::ios::out | std::ios::binary) ||
           file.open(path, std::ios::out | std::ios::binary);
}

} // namespace

void WriteTuneCache(const Tune& tune, const fs::path& path)
{
    LongsWriter data;
    data.Put(0);
    data.PutText(FileStamp(path));
    data.PutWave(tune.TuneWave);
    data.PutLastIndex();
    std::filebuf file;
    bool written = OpenKept(file, CachePath(path));
    for (const std::span<const std::byte> piece : data.Pieces()) {
        const auto count = static_cast<std::streamsize>(piece.size());
        written = written && file.sputn(reinterpret_cast<const char*>(piece.data()), count) == count;
    }
    if (!written || !file.close())
        throw RunTimeError(Words::Text("The file %1 could not be written.", PathText(CachePath(path))));
}

void ReadTuneCache(Tune& tune, const fs::path& path)
{
    const fs::path cache = FindFile(CachePath(path));
    if (cache.empty())
        return;
    try {
        FileSource source(cache);
        LongsReader data(source, 0);
        if (data.GetText() != tune.DateStamp)
            return;
        Rendered::KeepTuneWave(tune, data.GetWave());
    } catch (const RunTimeError& error) {
        LogFailure("Reading the cached sound of a tune", error);
        return; // the tune is rendered again when it is played
    }
}

} // namespace sprout
