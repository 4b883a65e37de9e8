// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <set>
#include <string>

#include "core/Shared.h"
#include "sound/Waves.h"
#include "support/TestFolder.h"
#include "waves/WavOperations.h"

namespace sprout {

/// A quiet mono wave of a number of frames at 11,025 Hz.
inline WaveData QuietWave(std::int32_t frames)
{
    return MonoWave(SampleList(static_cast<std::size_t>(frames), 9), 11025);
}

/// A pair of files in `UserBeats`. The fake picture reader colours a picture by the size of its file.
inline void MakeBeat(const std::string& name, std::int32_t frames = 11025, std::size_t pictureBytes = 7)
{
    SaveWaveFile(QuietWave(frames), Shared().UserBeats / (name + ".wav"));
    WriteBytes(Shared().UserBeats / (name + ".bmp"), std::string(pictureBytes, 'p'));
}

/// The text of the folder's index.
inline std::string IndexText()
{
    return ReadBytes(Shared().UserBeats / "TqBeats.ini");
}

/// An index that protects nothing, as after the first use of an empty folder.
inline void ProtectNothing()
{
    WriteBytes(Shared().UserBeats / "TqBeats.ini", "[General]\r\nProtectedNos=0\r\nProtected=1\r\n");
}

/// The names of all files in `UserBeats` except the index, sorted, each followed by a space.
inline std::string FilesOfUserBeats()
{
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(Shared().UserBeats))
        if (entry.path().filename() != "TqBeats.ini")
            names.insert(entry.path().filename().native());
    std::string text;
    for (const std::string& name : names)
        text += name + " ";
    return text;
}

} // namespace sprout
