// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/FuzzSupport.h"
#include "waves/WavOperations.h"
#include "waves/WaveFormat.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace sprout;
    const FuzzRun run;
    const auto path = run.Write(Shared().TempFolder / "input.wav", data, size);
    static_cast<void>(LoadWaveFile(path, ReadSamples::HeaderOnly));
    const WaveData wave = LoadWaveFile(path);
    if (wave.Length < 100000)
        SaveWaveFile(ConvertWaveFormat(wave, 0, 0), Shared().TempFolder / "output.wav");
    return 0;
}
