// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/TrackList.h"

#include <gmock/gmock.h>

#include "core/SongModel.h"
#include "support/FakeServices.h"
#include "support/Flags.h"

namespace sprout {
namespace {

class TrackListTest : public testing::Test {
protected:
    TrackListTest()
    {
        NewSong();
        SetSongMixValid(song, true);
        SetSongChanged(song, false);
    }

    void NameTracks(const std::vector<std::string>& names) const
    {
        song.Tracks.assign(names.size() + 1, Track());
        song.TrackCount = static_cast<std::int32_t>(names.size());
        for (std::int32_t number = 1; number <= song.TrackCount; ++number) {
            ResetTrack(number);
            At(song.Tracks, number).TrackTune.Name = names[static_cast<std::size_t>(number) - 1];
        }
    }

    [[nodiscard]] std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (std::int32_t number = 1; number <= song.TrackCount; ++number)
            names.push_back(At(song.Tracks, number).TrackTune.Name);
        return names;
    }

    FakeServices services;
    SongState& song = Shared().Song;
};

TEST_F(TrackListTest, FindsTheTracksOfTheSongAlone)
{
    NameTracks({"a", "b"});
    EXPECT_EQ(TrackOfNumber(0), nullptr);
    EXPECT_EQ(TrackOfNumber(1), &At(song.Tracks, 1));
    EXPECT_EQ(TrackOfNumber(2), &At(song.Tracks, 2));
    EXPECT_EQ(TrackOfNumber(3), nullptr);
    EXPECT_EQ(TrackOfNumber(-1), nullptr);
}

TEST_F(TrackListTest, ANewTrackIsAnEmptyMusicTrackBehindTheOthers)
{
    EXPECT_EQ(AddMusicTrack(), 3);
    EXPECT_EQ(song.TrackCount, 3);
    ASSERT_EQ(song.Tracks.size(), 4U);
    EXPECT_TRUE(song.Tracks[3].IsMusic());
    EXPECT_EQ(song.Tracks[3].Painted.size(), 1281U);
    EXPECT_EQ(song.Tracks[3].TrackTune.StepCount, 16);
    EXPECT_FALSE(song.SongChanged);
}

TEST_F(TrackListTest, ANewTrackWithATuneStays)
{
    AddMusicTrack();
    song.Tracks[3].TrackTune.Name = "Piko";
    SetTrackRenderValid(song.Tracks[3], true);
    EndAddMusicTrack();
    EXPECT_EQ(song.TrackCount, 3);
    EXPECT_FALSE(song.Tracks[3].TrackRenderValid);
    EXPECT_FALSE(song.SongMixValid);
    EXPECT_TRUE(song.SongChanged);
}

TEST_F(TrackListTest, ANewTrackWithoutATuneGoesAndTheSongCountsAsChanged)
{
    SetTrackRenderValid(song.Tracks[2], true);
    AddMusicTrack();
    EndAddMusicTrack();
    EXPECT_EQ(song.TrackCount, 2);
    EXPECT_EQ(song.Tracks.size(), 3U);
    EXPECT_FALSE(song.Tracks[2].TrackRenderValid); // the last one now
    EXPECT_FALSE(song.SongMixValid);
    EXPECT_TRUE(song.SongChanged);
}

TEST_F(TrackListTest, ASongWithoutTracksTakesOneAndGivesItUpAgain)
{
    NameTracks({});
    AddMusicTrack();
    EndAddMusicTrack();
    EXPECT_EQ(song.TrackCount, 0);
    EXPECT_EQ(song.Tracks.size(), 1U);
}

TEST_F(TrackListTest, TheTracksBehindADeletedOneMoveUp)
{
    NameTracks({"Piko", "Doko", "Lila"});
    DeleteTrack(2);
    EXPECT_EQ(Names(), (std::vector<std::string>{"Piko", "Lila"}));
    EXPECT_EQ(song.Tracks.size(), 3U);
    EXPECT_FALSE(song.SongMixValid);
    EXPECT_TRUE(song.SongChanged);
}

TEST_F(TrackListTest, TheOnlyTrackIsEmptiedAndNothingIsMarked)
{
    NameTracks({"Piko"});
    song.Tracks[1].TrackType = static_cast<std::int32_t>(TrackKind::Audio);
    song.Tracks[1].Painted[7] = 1;
    song.Tracks[1].TrackAudio.Length = 5;
    DeleteTrack(1);
    EXPECT_EQ(song.TrackCount, 1);
    EXPECT_EQ(song.Tracks[1].TrackType, 0);
    EXPECT_EQ(song.Tracks[1].Painted[7], 0);
    EXPECT_EQ(song.Tracks[1].TrackTune.Name, "");
    EXPECT_EQ(song.Tracks[1].TrackAudio.Length, 5);
    EXPECT_TRUE(song.SongMixValid);
    EXPECT_FALSE(song.SongChanged);
}

TEST_F(TrackListTest, TracksWithoutATuneSwapTheirTwoPictures)
{
    const SharedState& shared = Shared();
    NameTracks({"", "Doko", "Lila"});
    song.Tracks[2].TrackTune.Picture = shared.NewTunePicture;
    song.Tracks[3].TrackTune.Picture = shared.BlankStarPic;
    EXPECT_THAT(BlinkTunesNotFilled(), testing::ElementsAre(1, 3));
    EXPECT_TRUE(SamePicture(song.Tracks[1].TrackTune.Picture, shared.BlankStarPic));
    EXPECT_TRUE(SamePicture(song.Tracks[2].TrackTune.Picture, shared.NewTunePicture));
    EXPECT_TRUE(SamePicture(song.Tracks[3].TrackTune.Picture, shared.BlankPic));
    EXPECT_THAT(BlinkTunesNotFilled(), testing::ElementsAre(1, 3));
    EXPECT_TRUE(SamePicture(song.Tracks[1].TrackTune.Picture, shared.BlankPic));
}

TEST_F(TrackListTest, APictureThatOnlyLooksLikeTheBlankOneDoesNotBlink)
{
    const Picture& blank = Shared().BlankPic;
    NameTracks({"Doko"});
    song.Tracks[1].TrackTune.Picture = {blank.Width(), blank.Height(), {blank.Pixels().begin(), blank.Pixels().end()}};
    EXPECT_TRUE(BlinkTunesNotFilled().empty());
}

} // namespace
} // namespace sprout
