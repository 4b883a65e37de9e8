// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sound/MachineCapture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "app/sound/MachineCaptureDesk.h"

namespace sprout {
namespace {

TEST_F(MachineCaptureTest, AMutedSourceIsSilentAndAVolumeAboveZeroUnmutesIt)
{
    Plug("mic1");
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Records());
    EXPECT_EQ(Volume("mic1-for-people"), 65535);
    ASSERT_TRUE(server.Does({"set-source-mute", "mic1-mic", "1"}));
    EXPECT_TRUE(Comes([this] { return Volume("mic1-for-people") == 0; }));
    auto played = Play("mic1", 2 * 44100);
    EXPECT_TRUE(Comes([this] { return capture.Status().SilentSeconds > 1; }));
    EXPECT_TRUE(Records());
    capture.SetVolume(IndexOf("mic1-for-people"), 65535);
    EXPECT_TRUE(Comes([this] { return Volume("mic1-for-people") == 65535; }));
    EXPECT_EQ(played.get(), "");
    auto again = Play("mic1", 44100);
    EXPECT_TRUE(Comes([this] { return capture.Peaks().Left > 0; }));
    EXPECT_LT(capture.Status().SilentSeconds, 1);
}

TEST_F(MachineCaptureTest, OnlyAVolumeAboveZeroUnmutesASource)
{
    Plug("mic1");
    const auto isMuted = [this] {
        return server.Told({"env", "LC_ALL=C", "pactl", "get-source-mute", "mic1-mic"}).find("yes") !=
               std::string::npos;
    };
    ASSERT_TRUE(server.Does({"set-source-mute", "mic1-mic", "1"}));
    const auto turnsTo = [this](std::int32_t volume) {
        return Comes([&] { return Volume("mic1-for-people") == volume; }); // a server may report it later
    };
    capture.SetVolume(IndexOf("mic1-for-people"), 0);
    EXPECT_TRUE(turnsTo(0));
    EXPECT_TRUE(isMuted());
    capture.SetVolume(IndexOf("mic1-for-people"), 656); // one percent
    EXPECT_TRUE(turnsTo(656));
    EXPECT_FALSE(isMuted());
    capture.SetVolume(IndexOf("mic1-for-people"), 0);
    EXPECT_TRUE(turnsTo(0));
    EXPECT_FALSE(isMuted()) << "silent by its volume, and not muted by this program";
}

TEST_F(MachineCaptureTest, AVolumeChangedFromOutsideIsSeen)
{
    Plug("mic1");
    EXPECT_EQ(Volume("mic1-for-people"), 65535); // the list is available before the opening
    const std::uint64_t changes = capture.SourceChanges();
    ASSERT_TRUE(server.Does({"set-source-volume", "mic1-mic", "50%"}));
    EXPECT_TRUE(Comes([&] { return capture.SourceChanges() != changes; }));
    EXPECT_EQ(Volume("mic1-for-people"), 32768);
    ASSERT_TRUE(server.Does({"set-source-volume", "mic1-mic", "150%"}));
    EXPECT_TRUE(Comes([this] { return Volume("mic1-for-people") == 65535; }));
    capture.SetVolume(IndexOf("mic1-for-people"), 16384);
    EXPECT_TRUE(Comes([this] { return Volume("mic1-for-people") == 16384; }));
    EXPECT_NE(server.Told({"env", "LC_ALL=C", "pactl", "get-source-volume", "mic1-mic"}).find("25%"),
              std::string::npos);
}

TEST_F(MachineCaptureTest, AMicrophoneThatComesIsSeen)
{
    EXPECT_TRUE(Listed().Sources.empty());
    const std::uint64_t changes = capture.SourceChanges();
    Plug("mic1");
    EXPECT_TRUE(Comes([&] { return capture.SourceChanges() != changes; }));
    EXPECT_TRUE(Comes([this] { return Listed().Selected == 0; }));
}

TEST_F(MachineCaptureTest, AnotherSourceGoesOnInTheSameFilesAndIsRemembered)
{
    Plug("mic1");
    Plug("mic2");
    ASSERT_TRUE(server.Does({"set-default-source", "mic1-mic"}));
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Records());
    auto first = Play("mic1", 4 * 44100);
    EXPECT_TRUE(Comes([this] { return capture.Peaks().Right > 0; }));
    EXPECT_TRUE(KeepsBlocks(3));
    capture.SelectSource(IndexOf("mic2-for-people"));
    auto second = Play("mic2", 4 * 44100, 1000);
    EXPECT_TRUE(Comes([this] { return capture.Peaks().Right >= 1000; }));
    EXPECT_TRUE(KeepsBlocks(3));
    EXPECT_TRUE(Records());
    capture.Stop();
    const CapturedRamp taken = Files();
    const auto turn = std::find_if(taken.right.begin(), taken.right.end(), [](int lap) { return lap >= 1000; });
    const auto before = static_cast<std::ptrdiff_t>(turn - taken.right.begin());
    ASSERT_NE(turn, taken.right.end());
    std::vector<int> numbers = taken.Numbers();
    EXPECT_EQ(GapsOf(Sounded({numbers.begin(), numbers.begin() + before})), "");
    numbers = taken.Numbers(1000);
    EXPECT_EQ(GapsOf(Sounded({numbers.begin() + before, numbers.end()})), "");
    capture.Release();
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    EXPECT_EQ(Listed().Selected, IndexOf("mic2-for-people"));
    EXPECT_NE(server.Told({"pactl", "get-default-source"}).find("mic1-mic"), std::string::npos);
}

TEST_F(MachineCaptureTest, ASourceThatDoesNotOpenLeavesTheOneBefore)
{
    Plug("mic1");
    Plug("mic2");
    ASSERT_TRUE(server.Does({"set-default-source", "mic1-mic"}));
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Records());
    const std::int32_t gone = IndexOf("mic2-for-people");
    ASSERT_TRUE(server.PullOut("mic2"));
    capture.SelectSource(gone);
    capture.SelectSource(-1);
    capture.SelectSource(77);
    capture.SetVolume(77, 5);
    EXPECT_TRUE(KeepsBlocks(1));
    EXPECT_TRUE(Records());
    EXPECT_EQ(Listed().Selected, IndexOf("mic1-for-people"));
}

TEST_F(MachineCaptureTest, SixtySourcesWithLongNamesAreListedAsFarAsThereIsRoom)
{
    for (int i = 0; i < 60; ++i)
        ASSERT_TRUE(server.Does({"load-module", "module-remap-source", "master=out.monitor",
                                 "source_name=mic" + std::to_string(i),
                                 "source_properties=device.description=" + std::string(60, 'x') + std::to_string(i)}));
    ASSERT_TRUE(server.Does({"set-default-source", "mic59"}));
    ASSERT_TRUE(Comes([this] { return server.Told({"pactl", "get-default-source"}) == "mic59\n"; }));
    const SoundSources sources = Listed();
    std::size_t bytes = 0;
    for (const SoundSource& source : sources.Sources)
        bytes += source.Name.size() + 1;
    EXPECT_EQ(sources.Sources.size(), 50U);
    EXPECT_LE(bytes, 3200U);
    ASSERT_GE(sources.Selected, 0);
    EXPECT_EQ(sources.Sources[static_cast<std::size_t>(sources.Selected)].Name, std::string(60, 'x') + "59");
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
}

} // namespace
} // namespace sprout
