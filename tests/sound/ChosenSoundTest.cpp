// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/ChosenSound.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

#include <string>

#include "base/Errors.h"
#include "sound/Waves.h"
#include "support/FakeServices.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class ChosenSoundTest : public testing::Test {
protected:
    ChosenSoundTest()
    {
        SaveWaveFile(MonoWave({1, 2, 3}), In("converted"));
        services.soundReader.wave = ReadBytes(In("converted"));
        services.soundReader.outcome = Conversion::Done;
    }

    fs::path In(const std::string& name) const { return services.folder.Path() / name; }

    /// A WAV file of four frames with `bytes` at `place`.
    fs::path Wave(std::size_t place = 0, const std::string& bytes = "") const
    {
        SaveWaveFile(RampWave(4), In("chosen.wav"));
        WriteBytes(In("chosen.wav"), ReadBytes(In("chosen.wav")).replace(place, bytes.size(), bytes));
        return In("chosen.wav");
    }

    void ExpectAsItIs(const fs::path& file)
    {
        const ChosenSound sound = OpenChosenSound(file, 1, TooLong::Refuse);
        EXPECT_EQ(sound.File, file);
        EXPECT_EQ(sound.WaveFile, file);
        EXPECT_FALSE(sound.IsTooLong);
        EXPECT_THAT(services.soundReader.calls, IsEmpty()) << file;
    }

    void ExpectConverted(const fs::path& file)
    {
        services.soundReader.calls.clear();
        const ChosenSound sound = OpenChosenSound(file, 7, TooLong::Refuse);
        EXPECT_EQ(sound.File, file);
        EXPECT_EQ(LoadWaveFile(sound.WaveFile), MonoWave({1, 2, 3})) << file;
        EXPECT_THAT(services.soundReader.calls, ElementsAre(FakeSoundReader::Call{file, 7, TooLong::Refuse}));
    }

    FakeServices services;
};

TEST_F(ChosenSoundTest, LeavesEveryWaveOfTheProgramAsItIs)
{
    for (const std::int32_t bits : {8, 16})
        for (const std::int32_t rate : {11025, 22050, 44100}) {
            SaveWaveFile(MonoWave({1, 2}, rate, bits), In("mono.wav"));
            ExpectAsItIs(In("mono.wav"));
            SaveWaveFile(StereoWave({1, 2}, {3, 4}, rate, bits), In("stereo.wav"));
            ExpectAsItIs(In("stereo.wav"));
        }
}

TEST_F(ChosenSoundTest, LeavesAWaveAsItIsHoweverLong)
{
    SaveWaveFile(RampWave(2 * 44100), In("long.wav"));
    ExpectAsItIs(In("long.wav"));
}

TEST_F(ChosenSoundTest, ConvertsWhatIsNoWave)
{
    ExpectConverted(Wave(0, "RIFX"));
    ExpectConverted(Wave(8, "AVI "));
    WriteBytes(In("a.mp3"), "a song");
    ExpectConverted(In("a.mp3"));
    WriteBytes(In("empty.mp3"), "");
    ExpectConverted(In("empty.mp3"));
}

TEST_F(ChosenSoundTest, ConvertsFormatsThatTheProgramDoesNotRead)
{
    ExpectConverted(Wave(20, std::string("\3\0", 2)));
    ExpectConverted(Wave(20, "\xFE\xFF"));
    ExpectConverted(Wave(20, std::string("\1\1", 2)));
    ExpectConverted(Wave(22, "\3"));
    ExpectConverted(Wave(24, std::string("\x80\xBB\0\0", 4))); // 48,000
    ExpectConverted(Wave(34, "\x18"));
}

TEST_F(ChosenSoundTest, ConvertsStreamsWhoseSizeIsNotTold)
{
    ExpectConverted(Wave(40, std::string(4, '\0')));
    ExpectConverted(Wave(40, std::string(4, '\xFF')));
    ExpectConverted(Wave(40, std::string("\0\0\0\x80", 4)));
}

TEST_F(ChosenSoundTest, LeavesToTheReaderOfWavesWhatItHasWordsFor)
{
    WriteBytes(In("tada.wav"), ReadBytes(Wave(36, "tada")).replace(4, 4, 4, '\xFF'));
    ExpectAsItIs(In("tada.wav"));
    WriteBytes(In("short.wav"), ReadBytes(Wave(20, "\3")).substr(0, 44));
    ExpectAsItIs(In("short.wav"));
    WriteBytes(In("cut.wav"), ReadBytes(Wave()).replace(36, 9, "xxdata123"));
    WriteBytes(In("cut.wav"), ReadBytes(In("cut.wav")).substr(0, 45));
    ExpectAsItIs(In("cut.wav"));
    ExpectAsItIs(In("missing.wav"));
    ExpectAsItIs("");
}

TEST_F(ChosenSoundTest, WaitsForNoPipeFolderOrDevice)
{
    ASSERT_EQ(::mkfifo(In("pipe").c_str(), 0600), 0);
    ExpectAsItIs(In("pipe"));
    ExpectAsItIs(services.folder.Path());
    ExpectAsItIs("/dev/zero");
}

TEST_F(ChosenSoundTest, FindsTheFileInAnyLetterCase)
{
    WriteBytes(In("Song.MP3"), "a song");
    const ChosenSound sound = OpenChosenSound(In("song.mp3"), 5, TooLong::Cut);
    EXPECT_EQ(LoadWaveFile(sound.WaveFile).Length, 3);
    EXPECT_THAT(services.soundReader.calls, ElementsAre(FakeSoundReader::Call{In("Song.MP3"), 5, TooLong::Cut}));
}

TEST_F(ChosenSoundTest, DeletesTheTemporaryFileAtItsEnd)
{
    WriteBytes(In("a.mp3"), "a song");
    {
        const ChosenSound sound = OpenChosenSound(In("a.mp3"), 5, TooLong::Cut);
        EXPECT_TRUE(fs::exists(sound.WaveFile));
        EXPECT_EQ(sound.WaveFile.parent_path(), Shared().TempFolder);
    }
    EXPECT_TRUE(fs::is_empty(Shared().TempFolder));
}

TEST_F(ChosenSoundTest, GivesTheChosenFileWhereItCannotBeConverted)
{
    WriteBytes(In("a.mp3"), std::string(100, 'x'));
    services.soundReader.outcome = Conversion::Unreadable;
    const ChosenSound sound = OpenChosenSound(In("a.mp3"), 5, TooLong::Cut);
    EXPECT_EQ(sound.WaveFile, In("a.mp3"));
    EXPECT_FALSE(sound.IsTooLong);
    EXPECT_EQ(LoadWaveFile(sound.WaveFile).Length, 0);
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].text, "The String 'Data' - is not found");
}

TEST_F(ChosenSoundTest, GivesTheChosenFileWhereNoReaderIsThere)
{
    TheServices().soundReader = nullptr;
    WriteBytes(In("a.mp3"), "a song");
    ExpectAsItIs(In("a.mp3"));
}

TEST_F(ChosenSoundTest, SaysWhatIsTooLong)
{
    WriteBytes(In("a.mp3"), "a long song");
    services.soundReader.outcome = Conversion::TooLong;
    EXPECT_TRUE(OpenChosenSound(In("a.mp3"), 120, TooLong::Refuse).IsTooLong);
}

TEST_F(ChosenSoundTest, ShowsItsProgressAndMayBeStopped)
{
    WriteBytes(In("a.mp3"), "a song");
    static_cast<void>(OpenChosenSound(In("a.mp3"), 5, TooLong::Cut));
    EXPECT_EQ(services.screen.lastProgress, std::pair(std::size_t{1}, std::size_t{2}));
    EXPECT_THAT(services.screen.stages, ElementsAre("Reading the sound", ""));
    services.screen.progressesBeforeStop = 0;
    EXPECT_THROW(static_cast<void>(OpenChosenSound(In("a.mp3"), 5, TooLong::Cut)), WorkStopped);
    EXPECT_EQ(services.screen.hourglasses, 0);
    EXPECT_EQ(services.screen.stages.back(), "");
}

} // namespace
} // namespace sprout
