// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <filesystem>

#include "base/Errors.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "support/FakeServices.h"
#include "support/HandArray.h"
#include "tunes/TunOpnSavClass.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

/// A tune saved without its sound, which is in the cache beside it.
class TuneCacheTest : public testing::Test {
protected:
    TuneCacheTest()
    {
        Shared().SongBeatsInside = false;
        Save(WaveOf({7, 8, 9}));
    }

    void Save(const WaveData& wave)
    {
        Shared().TuneClipboard = Tune();
        Shared().TuneClipboard.TuneWave = wave;
        TunOpnSavClass(Flush::No).Save_Tune(TunePath());
    }

    [[nodiscard]] static fs::path TunePath() { return Shared().UserTunes / "Rain.TqTun"; }
    [[nodiscard]] static fs::path CachePath() { return Shared().UserTunes / "Rain.TqTunCache"; }

    const Tune& Load()
    {
        TunOpnSavClass().Load_Tune(TunePath());
        return Shared().TuneClipboard;
    }

    FakeServices services;
};

TEST_F(TuneCacheTest, HoldsTheTunesStampAndItsSoundWithoutAHead)
{
    HandArray array;
    array.Text(FileStamp(TunePath())).Add({6, 16, 1, 44100, 3, 0x00080007, 9});
    EXPECT_EQ(ElementsOf(ReadBytes(CachePath())), array.Elements());
    EXPECT_EQ(ArrayOf(ReadBytes(TunePath())).back(), 0); // there is no sound in the tune itself
}

TEST_F(TuneCacheTest, GivesTheTuneItsSoundBack)
{
    EXPECT_EQ(Load().TuneWave, WaveOf({7, 8, 9}));
    EXPECT_TRUE(Shared().TuneClipboard.TuneWaveValid);
}

TEST_F(TuneCacheTest, IsNotWrittenForATuneThatCarriesItsSound)
{
    Shared().SongBeatsInside = true;
    TunOpnSavClass(Flush::No).Save_Tune(Shared().UserTunes / "Sun.TqTun");
    EXPECT_FALSE(fs::exists(Shared().UserTunes / "Sun.TqTunCache"));
}

TEST_F(TuneCacheTest, OfAnotherMomentIsIgnored)
{
    SetWrittenIn2020(TunePath(), 1);
    EXPECT_FALSE(Load().TuneWaveValid);
    EXPECT_EQ(Shared().TuneClipboard.TuneWave.Length, 0);
    EXPECT_TRUE(fs::exists(CachePath()));
}

TEST_F(TuneCacheTest, KeepsTheTailOfALongerOldFile)
{
    const std::string longer = ReadBytes(CachePath()) + "an old tail";
    WriteBytes(CachePath(), longer);
    Save(WaveOf({1}));
    EXPECT_EQ(ReadBytes(CachePath()).size(), longer.size());
    EXPECT_EQ(Load().TuneWave, WaveOf({1}));
}

TEST_F(TuneCacheTest, CutAnywhereCountsAsNotThere)
{
    const std::string bytes = ReadBytes(CachePath());
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        WriteBytes(CachePath(), bytes.substr(0, size));
        EXPECT_FALSE(Load().TuneWaveValid) << size;
    }
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(TuneCacheTest, WithLyingNumbersNeverBreaksTheLoad)
{
    const std::vector<std::int32_t> array = ElementsOf(ReadBytes(CachePath()));
    for (std::size_t place = 0; place < array.size(); ++place)
        for (const std::int32_t lie : {0, -1, 4, 100, 2147483647, -2147483647 - 1}) {
            std::vector<std::int32_t> lying = array;
            lying[place] = lie;
            WriteBytes(CachePath(), BytesOf(lying));
            Load();
        }
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(TuneCacheTest, AFolderOfItsNameIsNoCache)
{
    DeleteFile(CachePath());
    fs::create_directory(CachePath());
    EXPECT_FALSE(Load().TuneWaveValid);
    EXPECT_THROW(TunOpnSavClass(Flush::No).Save_Tune(TunePath()), RunTimeError);
    EXPECT_EQ(Load().StepCount, 0); // the tune itself was saved
}

} // namespace
} // namespace sprout
