// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-song/SproutSong.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <string>

#include "tools/SproutSongRun.h"

namespace sprout {
namespace {

TEST_F(SproutSong, ExportsAClassOfSongsAsWma)
{
    SaveAudioSong("a.TqSng");
    SaveAudioSong("b.TqSng");
    SaveAudioSong("c.TqSng");
    EXPECT_EQ(Run({"export", At("a.TqSng"), At("b.TqSng"), At("c.TqSng"), "--out", At("sounds/new")}), kDone);
    EXPECT_EQ(err.str(), "");
    EXPECT_NE(out.str().find(At("b.TqSng") + " -> " + At("sounds/new/b.wma") + "\n"), std::string::npos);
    EXPECT_TRUE(out.str().ends_with("3 exported, 0 failed.\n"));
    for (const char* name : {"a", "b", "c"}) {
        const json facts = Info(At(std::string("sounds/new/") + name + ".wma"))["wma"];
        EXPECT_EQ(facts["codec"], "wmav2");
        EXPECT_EQ(facts["rate"], 44100);
        EXPECT_EQ(facts["channels"], 2);
        EXPECT_EQ(facts["title"], name) << "as the program names a song that it opened";
        EXPECT_EQ(facts["author"], "Ada");
        EXPECT_EQ(facts["description"], "Tonquill Sprout Painter Song");
    }
}

TEST_F(SproutSong, ExportsTheSamplesThatItRenders)
{
    SaveAudioSong("a.TqSng");
    EXPECT_EQ(Run({"export", "--to=wav", At("a.TqSng")}), kDone);
    EXPECT_EQ(Run({"render", At("a.TqSng"), At("render.wav")}), kDone);
    EXPECT_EQ(ReadBytes(At("a.wav")), ReadBytes(At("render.wav")));
}

TEST_F(SproutSong, ExportsTheOtherSongsWhereOneFails)
{
    SaveAudioSong("good.TqSng");
    SaveAudioSong("blocked.TqSng");
    WriteBytes(At("broken.TqSng"), ReadBytes(At("good.TqSng")).substr(0, 400));
    WithEngine([&] {
        Shared().Song.Tracks.assign(2, Track());
        Shared().Song.Tracks[1].Painted.assign(kSongCells + 1, 0);
        Shared().Song.TrackCount = 1;
        OpenSaveClass().Save_Song(At("silent.TqSng"));
    });
    std::filesystem::create_directory(At("blocked.wav"));
    WriteBytes(At("silent.wav"), "old");
    EXPECT_EQ(Run({"export", "--to", "wav", At("missing.TqSng"), At("broken.TqSng"), At("silent.TqSng"),
                   At("blocked.TqSng"), At("good.TqSng")}),
              kFailed);
    EXPECT_TRUE(out.str().ends_with("1 exported, 4 failed.\n")) << out.str();
    EXPECT_NE(err.str().find(At("missing.TqSng") + ": Error Opening File: The file "), std::string::npos);
    EXPECT_NE(err.str().find(At("broken.TqSng") + ": "), std::string::npos);
    EXPECT_NE(err.str().find(At("silent.TqSng") + ": Writing wave error: Silent or Zero size wave found\n"),
              std::string::npos);
    EXPECT_NE(err.str().find("The file " + At("blocked.wav") + " cannot be replaced."), std::string::npos);
    EXPECT_GT(LoadWave("good.wav").Length, 0);
    EXPECT_EQ(ReadBytes(At("silent.wav")), "old");
    EXPECT_EQ(Run({"export", At("silent.TqSng")}), kFailed);
    EXPECT_NE(err.str().find("The song is silent."), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(At("silent.wma")));
}

TEST_F(SproutSong, TellsOfAnExportFolderThatCannotBeMade)
{
    SaveAudioSong("a.TqSng");
    EXPECT_EQ(Run({"export", At("a.TqSng"), "--out", At("a.TqSng")}), kFailed);
    EXPECT_NE(err.str().find("could not be made"), std::string::npos);
}

} // namespace
} // namespace sprout
