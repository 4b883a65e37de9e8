// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ffmpeg/SoundFacts.h"

#include <sys/stat.h>

#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "service/ffmpeg/WmaMaker.h"
#include "sound/Waves.h"
#include "support/TestFolder.h"
#include "waves/WaveBytes.h"

namespace sprout {
namespace {

class SoundFactsOfAFile : public testing::Test {
protected:
    [[nodiscard]] std::filesystem::path Path() const { return folder.Path() / "song.wma"; }

    [[nodiscard]] SoundFacts Read(const std::string& bytes) const
    {
        WriteBytes(Path(), bytes);
        return ReadSoundFacts(Path());
    }

    /// Returns false if a sentence says that the file is damaged.
    [[nodiscard]] bool IsRead(const std::string& bytes) const
    {
        try {
            static_cast<void>(Read(bytes));
            return true;
        } catch (const RunTimeError& error) {
            EXPECT_GT(std::string(error.what()).size(), 10U);
            return false;
        }
    }

    TestFolder folder;
};

TEST_F(SoundFactsOfAFile, AreThoseThatWereWritten)
{
    const SoundFacts facts = Read(WmaOf(Music(5 * 44100), {.Title = "أغنية \"Zumi\"",
                                                           .Author = "Zoë",
                                                           .Copyright = "All rights reserved",
                                                           .Year = "2031",
                                                           .Description = "A Song"}));
    EXPECT_EQ(facts.Container, "asf");
    EXPECT_EQ(facts.Codec, "wmav2");
    EXPECT_EQ(facts.BitRate, 64000);
    EXPECT_EQ(facts.Rate, 44100);
    EXPECT_EQ(facts.Channels, 2);
    EXPECT_NEAR(facts.Seconds, 5.1, 0.1);
    EXPECT_EQ(facts.Title, "أغنية \"Zumi\"");
    EXPECT_EQ(facts.Author, "Zoë");
    EXPECT_EQ(facts.Copyright, "All rights reserved");
    EXPECT_EQ(facts.Year, "2031");
    EXPECT_EQ(facts.Comment, "A Song");
}

TEST_F(SoundFactsOfAFile, AreBlankWhereThereAreNone)
{
    const SoundFacts facts = Read(WmaOf(Music(4096)));
    EXPECT_EQ(facts.Title + facts.Author + facts.Copyright + facts.Year + facts.Comment, "");
}

TEST_F(SoundFactsOfAFile, AreNotReadFromOtherFiles)
{
    EXPECT_FALSE(IsRead(""));
    EXPECT_FALSE(IsRead("This is a letter."));
    EXPECT_FALSE(IsRead("#EXTM3U\n#EXTINF:1,\nhttp://localhost/song.wma\n"));
    EXPECT_FALSE(IsRead("ffconcat version 1.0\nfile /etc/hostname\n"));
    EXPECT_FALSE(IsRead(std::string(100000, '\0')));
    auto waveHead = WaveHead(LevelWave(1000, 5));
    SetWaveSizes(waveHead, 4000);
    std::string waveFile(4044, '\5');
    std::memcpy(waveFile.data(), waveHead.data(), waveHead.size());
    EXPECT_FALSE(IsRead(waveFile));
    EXPECT_THROW(static_cast<void>(ReadSoundFacts(folder.Path())), RunTimeError);
    EXPECT_THROW(static_cast<void>(ReadSoundFacts(folder.Path() / "none.wma")), RunTimeError);
    ASSERT_EQ(::mkfifo((folder.Path() / "pipe.wma").c_str(), 0600), 0);
    EXPECT_THROW(static_cast<void>(ReadSoundFacts(folder.Path() / "pipe.wma")), RunTimeError);
}

TEST_F(SoundFactsOfAFile, AreNotReadFromOneThatIsCutShort)
{
    const std::string wma = WmaOf(Music(5 * 44100), {.Title = "Zumi"});
    ASSERT_TRUE(IsRead(wma));
    for (std::size_t length = 0; length < 1200; length += 29)
        EXPECT_FALSE(IsRead(wma.substr(0, length))) << length;
    EXPECT_FALSE(IsRead(wma.substr(0, wma.size() / 2)));
}

TEST_F(SoundFactsOfAFile, AreSentenceOrFactsInADamagedFile)
{
    const std::string wma = WmaOf(Music(44100), {.Title = "Zumi"});
    constexpr int rounds = 300;
    std::mt19937 random(1);
    int damagedAreRead = 0;
    for (int round = 0; round < rounds; ++round) {
        std::string damaged = wma;
        for (int i = 0; i < 5; ++i)
            damaged[random() % 900] = static_cast<char>(random());
        damagedAreRead += IsRead(damaged) ? 1 : 0;
    }
    EXPECT_LT(damagedAreRead, rounds);
}

TEST_F(SoundFactsOfAFile, NeedTheHeadAlone)
{
    // A file of a gigabyte without an end: only its head is there.
    WriteBytes(Path(), WmaOf(Music(44100)));
    std::filesystem::resize_file(Path(), 1U << 30);
    EXPECT_THROW(static_cast<void>(ReadSoundFacts(Path())), RunTimeError);
    WriteBytes(Path(), std::string(1 << 16, '\0'));
    std::filesystem::resize_file(Path(), 1U << 30);
    EXPECT_THROW(static_cast<void>(ReadSoundFacts(Path())), RunTimeError);
}

} // namespace
} // namespace sprout
