// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/FuzzSupport.h"
#include "songs/OpenSaveClass.h"

// All three versions: the head says which one it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace sprout;
    const FuzzRun run;
    OpenSaveClass().Load_Song(run.Write(Shared().UserSongs / "input.TqSng", data, size));
    if (Shared().Song.TrackCount == 0)
        return 0;
    RenderLoadedSong();
    const auto saved = Shared().UserSongs / "output.TqSng";
    OpenSaveClass(Flush::No).Save_Song(saved);
    OpenSaveClass().Load_Song(saved);
    return 0;
}
