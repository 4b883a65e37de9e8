// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <filesystem>

#include "base/Errors.h"
#include "core/IniFile.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "support/AllocationWatch.h"
#include "support/FakeServices.h"
#include "support/HandArray.h"
#include "tunes/TunOpnSavClass.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace fs = std::filesystem;
using Elements = std::vector<std::int32_t>;

inline Beat MakeBeat(const std::string& name, std::int16_t sample)
{
    return {name, "01/02/2003,04:05:06", WaveOf({sample}), PlainPicture(0x30), true};
}

/// Off, on with "Drum", on with "Drum", on with "drum".
inline Tune MakeTune()
{
    Tune tune;
    tune.Name = "Rain";
    tune.CreatedBy = "Ann";
    tune.Picture = PlainPicture(0x20);
    tune.Steps.resize(5);
    tune.StepCount = 4;
    for (std::int32_t i = 1; i <= 4; ++i)
        At(tune.Steps, i) = {i > 1 ? 1 : 0, 0, i, 10 * i, 100 * i, {}, {}, {}};
    tune.Steps[2].StepBeat = MakeBeat("Drum", 5);
    tune.Steps[3].StepBeat = tune.Steps[2].StepBeat;
    tune.Steps[4].StepBeat = MakeBeat("drum", 6);
    tune.TuneWave = WaveOf({7, 8, 9});
    return tune;
}

/// `MakeTune` as it must look in a file that includes its beats.
inline HandArray MakeArray()
{
    HandArray array;
    array.Text("Rain").Text("Ann").Picture(0x20).Add({4});
    array.Add({0, 1, 100, 10}).Add({1, 2, 200, 20}).Add({1, 3, 300, 30}).Add({1, 4, 400, 40});
    array.Text("Drum").Text("Drum").Text("drum");
    array.Add({1}).Text("01/02/2003,04:05:06").Add({5, 16, 1, 44100, 1, 5}).Picture(0x30);
    array.Add({1}).Text("01/02/2003,04:05:06").Add({5, 16, 1, 44100, 1, 6}).Picture(0x30);
    array.Add({1}).Add({6, 16, 1, 44100, 3, 0x00080007, 9});
    return array;
}

class TunOpnSavClassTest : public testing::Test {
protected:
    [[nodiscard]] fs::path Path() const { return Shared().UserTunes / "Rain.TqTun"; }

    const Tune& LoadBytes(const std::string& bytes, TuneLoad mode = TuneLoad::All)
    {
        fs::remove(Path()); // emptying and rewriting a file would wait for the disk
        WriteBytes(Path(), bytes);
        TunOpnSavClass().Load_Tune(Path(), mode);
        return Shared().TuneClipboard;
    }

    std::string SaveBytes(const Tune& tune)
    {
        Shared().TuneClipboard = tune;
        TunOpnSavClass(Flush::No).Save_Tune(Path());
        return ReadBytes(Path());
    }

    FakeServices services;
};

} // namespace sprout
