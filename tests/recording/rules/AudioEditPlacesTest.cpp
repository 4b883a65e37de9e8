// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/AudioEditPlaces.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

const Box& PlaceOf(const AudioEditPlaces& places, EditTool tool)
{
    return places.tools[static_cast<std::size_t>(tool)];
}

TEST(AudioEditPlaces, PutsPictureBarSelectionToolsAndAnswersBelowEachOther)
{
    const AudioEditPlaces places = PlaceAudioEditor(800, 574);
    EXPECT_EQ(places.picture, (Box{16, 14, 736, 300}));
    EXPECT_EQ(places.scroll, (Box{16, 322, 736, 18}));
    EXPECT_EQ(places.selection, (Box{16, 344, 736, 24}));
    EXPECT_EQ(PlaceOf(places, EditTool::TestPlay), (Box{16, 368, 56, 56}));
    EXPECT_EQ(places.answersLeft, 16);
    EXPECT_EQ(places.answersTop, 432);
    EXPECT_EQ(places.width, 768);
    EXPECT_EQ(places.height, 492);
}

TEST(AudioEditPlaces, SeparatesTheGroupsOfToolsAndPutsHelpAtTheRight)
{
    const AudioEditPlaces places = PlaceAudioEditor(800, 574);
    EXPECT_EQ(PlaceOf(places, EditTool::VolumeUp).left, 16 + 56 + 20);
    EXPECT_EQ(PlaceOf(places, EditTool::VolumeDown).left, 92 + 56 + 6);
    EXPECT_EQ(PlaceOf(places, EditTool::Delete).left, 154 + 56 + 6);
    EXPECT_EQ(PlaceOf(places, EditTool::ZoomIn).left, 216 + 56 + 20);
    EXPECT_EQ(PlaceOf(places, EditTool::ZoomOut).left, 292 + 56 + 6);
    EXPECT_EQ(PlaceOf(places, EditTool::Help).left, 16 + 736 - 56);
}

TEST(AudioEditPlaces, HasSmallToolsWithoutGroupsOnANarrowScreen)
{
    const AudioEditPlaces narrow = PlaceAudioEditor(559, 300);
    EXPECT_EQ(PlaceOf(narrow, EditTool::TestPlay).width, 40);
    EXPECT_EQ(PlaceOf(narrow, EditTool::VolumeUp).left, 16 + 40 + 6);
    EXPECT_EQ(PlaceOf(PlaceAudioEditor(560, 300), EditTool::TestPlay).width, 56);
}

TEST(AudioEditPlaces, KeepsThePictureWithinItsLimitsAndItsSidesMultiplesOfFour)
{
    const AudioEditPlaces least = PlaceAudioEditor(100, 100);
    EXPECT_EQ(least.picture.width, 320);
    EXPECT_EQ(least.picture.height, 64);
    const AudioEditPlaces most = PlaceAudioEditor(4000, 3000);
    EXPECT_EQ(most.picture.width, 960);
    EXPECT_EQ(most.picture.height, 300);
    for (int room = 500; room < 520; ++room) {
        const AudioEditPlaces places = PlaceAudioEditor(room, room);
        EXPECT_EQ(places.picture.width % 4, 0);
        EXPECT_EQ(places.picture.height % 4, 0);
    }
}

} // namespace
} // namespace sprout
