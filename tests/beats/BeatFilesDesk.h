// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "beats/BeatFiles.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "support/FakeServices.h"
#include "support/HandArray.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace fs = std::filesystem;

class BeatFilesTest : public testing::Test {
protected:
    /// A pair of files in `UserBeats`; the fake picture reader colours a picture by the size of its file.
    static void MakeBeat(const std::string& name, const WaveData& wave, std::size_t pictureBytes = 7)
    {
        const fs::path waveFile = Shared().UserBeats / (name + ".wav");
        SaveWaveFile(wave, waveFile);
        SetWrittenIn2020(waveFile, 5);
        WriteBytes(Shared().UserBeats / (name + ".bmp"), std::string(pictureBytes, 'p'));
    }

    static Beat OldBeat()
    {
        Beat beat;
        beat.Name = "Old";
        beat.DateStamp = "stamp";
        beat.Sound = WaveOf({1, 2, 3});
        beat.Picture = Shared().BlankPic;
        beat.Loaded = true;
        return beat;
    }

    FakeServices services;
};

} // namespace sprout
