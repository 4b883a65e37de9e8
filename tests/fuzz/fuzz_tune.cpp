// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/FuzzSupport.h"
#include "sound/TuneRender.h"
#include "tunes/TunOpnSavClass.h"

// Both forms: the file itself says which one it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace sprout;
    const FuzzRun run;
    const auto path = run.Write(Shared().UserTunes / "input.TqTun", data, size);
    for (const TuneLoad mode : {TuneLoad::List, TuneLoad::StepNames, TuneLoad::Beats, TuneLoad::All})
        TunOpnSavClass().Load_Tune(path, mode);
    RenderTuneCycle(Shared().TuneClipboard);
    TunOpnSavClass(Flush::No).Save_Tune(Shared().TempFolder / "output.TqTun");
    return 0;
}
