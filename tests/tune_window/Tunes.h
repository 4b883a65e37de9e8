// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "core/Shared.h"
#include "support/Flags.h"
#include "support/HandArray.h"
#include "tunes/TunOpnSavClass.h"
#include "waves/WavOperations.h"

namespace sprout {

/// Two steps, the first one on with its own beat; the tune is rendered as `samples` frames of the value 9.
inline Tune PlainTune(const std::string& name, const std::string& author, int samples = 4)
{
    Tune tune;
    tune.Name = name;
    tune.CreatedBy = author;
    tune.Picture = PlainPicture(0x102030);
    tune.Steps.resize(3);
    tune.StepCount = 2;
    tune.Steps[1].OnPos = 1;
    tune.Steps[1].StepBeat = {"Drum", "01/02/2003,04:05:06", WaveOf({5, 6}), PlainPicture(0x40), true};
    tune.TuneWave = WaveOf(std::vector<std::int16_t>(static_cast<std::size_t>(samples), 9));
    SetTuneWaveValid(tune, true);
    return tune;
}

/// Writes a tune to a file in `UserTunes`.
inline void MakeTuneFile(const Tune& tune)
{
    Shared().TuneClipboard = tune;
    TunOpnSavClass(Flush::No).Save_Tune(Shared().UserTunes / (tune.Name + ".TqTun"));
}

/// Writes a tune whose file holds no sound, as it is saved while songs do not include their beats and its own is not in
/// the folder.
inline void MakeSilentTuneFile(const Tune& tune)
{
    HandArray array;
    array.Text(tune.Name).Text(tune.CreatedBy).Picture(0x102030).Add({2}).Add({1, 0, 100, 100}).Add({0, 0, 100, 100});
    array.Text("Drum").Add({1}).Text("01/02/2003,04:05:06").Add({5, 16, 1, 44100, 1, 5}).Picture(0x40);
    array.Add({0});
    WriteBytes(Shared().UserTunes / (tune.Name + ".TqTun"), FileOf("TqTun", "2", array.Elements()));
}

/// Writes a tune as the library has it: of its two steps, the first one plays "Drum", which is in the folder of beats.
inline void MakeLightTuneFile(const std::string& name)
{
    HandArray array;
    array.Text(name).Text("Tonquill").Picture(0x102030).Add({2}).Add({1, 0, 100, 100}).Add({0, 0, 100, 100});
    array.Text("Drum").Add({0, 0});
    WriteBytes(Shared().UserTunes / (name + ".TqTun"), FileOf("TqTun", "2", array.Elements()));
}

/// Writes the beat of `MakeLightTuneFile`.
inline void MakeDrum()
{
    SaveWaveFile(WaveOf(std::vector<std::int16_t>(2000, 5)), Shared().UserBeats / "Drum.wav");
}

/// The user's "Tune 01", "Tune 02", ...
inline std::string NumberedTune(int number)
{
    std::string digits = std::to_string(number);
    return "Tune " + std::string(digits.size() < 2 ? 1 : 0, '0') + digits;
}

inline void MakeTuneFiles(int count)
{
    for (int i = 1; i <= count; ++i)
        MakeTuneFile(PlainTune(NumberedTune(i), "Ann"));
}

} // namespace sprout
