// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/FuzzSupport.h"
#include "tunes/TunOpnSavClass.h"

// The cache file beside a tune that was saved without its beats.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace sprout;
    const FuzzRun run;
    Shared().SongBeatsInside = false;
    const auto path = Shared().UserTunes / "input.TqTun";
    TunOpnSavClass(Flush::No).Save_Tune(path);
    SetWrittenIn2020(path, 0);
    run.Write(path.native() + "Cache", data, size);
    TunOpnSavClass().Load_Tune(path);
    return 0;
}
