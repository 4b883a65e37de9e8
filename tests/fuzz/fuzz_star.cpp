// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/FuzzSupport.h"

#include "base/Errors.h"
#include "tunes/TunOpnSavClass.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace sprout;
    const FuzzRun run;
    run.Write(Shared().UserStars / "input.TqSta", data, size);
    Tune star;
    star.Name = "input";
    try {
        LoadStarFile(star);
    } catch (const RunTimeError&) {
        return 0; // an invalid number is reported to the caller
    }
    return 0;
}
