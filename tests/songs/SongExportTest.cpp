// SPDX-License-Identifier: GPL-3.0-or-later
#include "songs/SongExport.h"
#include "base/Product.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ctime>

#include "sound/Waves.h"
#include "support/FakeServices.h"
#include "support/FullDisk.h"
#include "waves/WavOperations.h"

namespace sprout {

bool operator==(const ExportOutcome& a, const ExportOutcome& b)
{
    return a.End == b.End && a.Line1.English() == b.Line1.English() && a.Line2.English() == b.Line2.English();
}

void PrintTo(const ExportOutcome& outcome, std::ostream* out)
{
    *out << static_cast<int>(outcome.End) << " '" << outcome.Line1.English() << "' '" << outcome.Line2.English() << "'";
}

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const ExportOutcome kWritten = {.End = ExportEnd::Written};
const ExportOutcome kSilentFailure = {.End = ExportEnd::Failed};

ExportOutcome Failure(const std::string& line1, const std::string& line2 = {})
{
    return {.Line1 = Words::AsIs(line1), .Line2 = Words::AsIs(line2)};
}

std::string ThisYear()
{
    const std::time_t now = std::time(nullptr);
    std::string year(4, ' ');
    std::strftime(year.data(), 5, "%Y", std::localtime(&now));
    return year;
}

/// Exports go to a private folder that holds an old file.
class Export : public testing::Test {
protected:
    Export()
    {
        fs::create_directory(Folder());
        WriteBytes(Path(), "old");
    }

    [[nodiscard]] fs::path Folder() const { return fake.folder.Path() / "Out"; }
    [[nodiscard]] fs::path Path() const { return Folder() / "song"; }

    [[nodiscard]] std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(Folder()))
            names.push_back(entry.path().filename());
        return names;
    }

    /// The old file is unchanged, with nothing beside it.
    void ExpectOldFile() const
    {
        EXPECT_EQ(ReadBytes(Path()), "old");
        EXPECT_THAT(Names(), ElementsAre("song"));
    }

    FakeServices fake;
};

class WmaExport : public Export {
protected:
    [[nodiscard]] ExportOutcome Write(const WaveData& wave = LevelWave(100, 7)) const
    {
        return WriteWmaFile(wave, Path());
    }

    void ExpectFailure(const ExportOutcome& told)
    {
        EXPECT_EQ(Write(), told);
        ExpectOldFile();
    }
};

TEST_F(WmaExport, ReplacesTheFile)
{
    const WaveData wave = RampWave(1000);
    EXPECT_EQ(Write(wave), kWritten);
    SaveWaveFile(wave, Folder() / "song.wav");
    EXPECT_TRUE(ReadBytes(Path()) == ReadBytes(Folder() / "song.wav").substr(44));
    EXPECT_EQ(fake.wma.closes, 1);
    EXPECT_THAT(fake.messages.shown, IsEmpty());
}

TEST_F(WmaExport, FailsWithoutAnEncoder)
{
    TheServices().wma = nullptr;
    ExpectFailure(Failure("Failed to get WMA Codec Formats"));
}

TEST_F(WmaExport, FailsWhereTheLibrariesAreMissing)
{
    fake.wma.isThere = false;
    ExpectFailure(Failure("Failed to get WMA Codec Formats"));
    EXPECT_EQ(fake.wma.lists, 0);
}

TEST_F(WmaExport, FailsWhereTheListHasNoLength)
{
    for (const std::int32_t length : {0, -1}) {
        fake.wma.listLength = length;
        ExpectFailure(Failure("Failed to get WMA Codec Formats"));
    }
    EXPECT_EQ(fake.wma.lists, 0);
}

TEST_F(WmaExport, TellsTheLengthOfAListThatDoesNotCome)
{
    fake.wma.listFails = true;
    fake.wma.listLength = 321;
    ExpectFailure(Failure("Failed to get WMA Codec Formats", "Length needed = 321"));
}

TEST_F(WmaExport, TellsWhatIsWrongWithAList)
{
    fake.wma.list = "Windows Media Audio 2\r\nx\n1e99\n44100\n2\n16";
    const ExportOutcome outcome = Write();
    EXPECT_EQ(outcome.Line1.English(), "Failed to get WMA Codec Formats");
    EXPECT_FALSE(outcome.Line2.IsBlank());
    ExpectOldFile();
}

TEST_F(WmaExport, SaysNothingWhereNoFormatFitsAndTriesAgain)
{
    const std::string good = fake.wma.list;
    fake.wma.list = "Windows Media Audio 2\r\nx\n48000\n44100\n2\n16";
    ExpectFailure(kSilentFailure);
    ExpectFailure(kSilentFailure);
    EXPECT_EQ(fake.wma.lists, 2);
    EXPECT_THAT(fake.wma.formats, IsEmpty());
    fake.wma.list = good;
    EXPECT_EQ(Write(), kWritten);
    EXPECT_EQ(fake.wma.lists, 3);
}

TEST_F(WmaExport, ChoosesTheFormatOnce)
{
    fake.wma.list = "Other\r\nx\n64000\n44100\n2\n16\r\n\r\n"
                    "Windows Media Audio 9\r\nx\n48000\n44100\n2\n16\r\nx\n64000\n44100\n2\n16";
    EXPECT_EQ(Write(), kWritten);
    fake.wma.list = "";
    EXPECT_EQ(Write(), kWritten);
    EXPECT_EQ(fake.wma.lists, 1);
    ASSERT_EQ(fake.wma.formats.size(), 2U);
    for (const WmaFormat& format : fake.wma.formats) {
        EXPECT_EQ(format.Rate, 44100);
        EXPECT_EQ(format.Channels, 2);
        EXPECT_EQ(format.Bits, 16);
        EXPECT_EQ(format.Codec, 1);
        EXPECT_EQ(format.Format, 1);
    }
}

TEST_F(WmaExport, WritesTheSongsTags)
{
    Shared().Song.SongTitle = "أغنية \"Zumi\"";
    Shared().Song.SongCreatedBy = "Zoë";
    EXPECT_EQ(Write(), kWritten);
    ASSERT_EQ(fake.wma.tags.size(), 1U);
    const WmaTags& tags = fake.wma.tags[0];
    EXPECT_EQ(tags.Title, "أغنية \"Zumi\"");
    EXPECT_EQ(tags.Author, "Zoë");
    EXPECT_EQ(tags.Copyright, "All rights reserved");
    EXPECT_EQ(tags.Rating, "");
    EXPECT_EQ(tags.Year, ThisYear());
    EXPECT_EQ(tags.Description, std::string(kProductName) + " Song");
}

TEST_F(WmaExport, RefusesEightBits)
{
    EXPECT_EQ(Write(MonoWave({1, 2, 3}, 44100, 8)),
              Failure("Failed to write WMA file", "This WMA Writer can write only 16 bit wave file\r\nThis is 8 bits"));
    ExpectOldFile();
    EXPECT_THAT(fake.wma.formats, IsEmpty());
}

TEST_F(WmaExport, RefusesMono)
{
    EXPECT_EQ(
        Write(MonoWave({1, 2, 3})),
        Failure("Failed to write WMA file", "This WMA Writer can write only stereo wave file\r\nThis is 1 channel"));
    ExpectOldFile();
    EXPECT_THAT(fake.wma.formats, IsEmpty());
}

TEST_F(WmaExport, TellsThatTheWriterDidNotOpen)
{
    fake.wma.openFails = true;
    ExpectFailure(Failure("Failed to open WMA Writer"));
}

TEST_F(WmaExport, TellsThatNothingCanBeWrittenInTheFolder)
{
    FullDisk disk;
    TheServices().files = &disk;
    ExpectFailure(Failure("Failed to open WMA Writer"));
}

TEST_F(WmaExport, TellsThatSamplesWereNotTaken)
{
    for (const int well : {0, 1}) {
        fake.wma.writes.clear();
        fake.wma.closes = 0;
        fake.wma.writesThatGoWell = well;
        EXPECT_EQ(Write(LevelWave(1000000, 3)), Failure("Failed Writing to WMA file"));
        EXPECT_EQ(fake.wma.writes.size(), static_cast<std::size_t>(well) + 1);
        EXPECT_EQ(fake.wma.closes, 1);
        ExpectOldFile();
    }
}

TEST_F(WmaExport, TellsAWaveThatIsShorterThanItTells)
{
    WaveData wave = LevelWave(10, 1);
    wave.Length = 11;
    EXPECT_EQ(Write(wave), Failure("Failed Writing to WMA file"));
    ExpectOldFile();
}

TEST_F(WmaExport, TellsThatTheWriterDidNotClose)
{
    fake.wma.closeFails = true;
    ExpectFailure(Failure("Failed Closing WMA writer"));
}

TEST_F(WmaExport, TellsATargetThatStaysInTheWay)
{
    fs::remove(Path());
    fs::create_directory(Path());
    EXPECT_EQ(Write(), (ExportOutcome{.End = ExportEnd::NotReplaced}));
    EXPECT_TRUE(fs::is_directory(Path()));
    EXPECT_THAT(Names(), ElementsAre("song"));
}

TEST_F(WmaExport, HandsOverTenSecondsAtATime)
{
    constexpr std::int32_t tenSeconds = 441000;
    EXPECT_EQ(Write(LevelWave(tenSeconds - 1, 5)), kWritten);
    EXPECT_THAT(fake.wma.writes, ElementsAre(1763996));
    fake.wma.writes.clear();
    EXPECT_EQ(Write(LevelWave(tenSeconds, 5)), kWritten);
    EXPECT_THAT(fake.wma.writes, ElementsAre(1764000));
    fake.wma.writes.clear();
    EXPECT_EQ(Write(LevelWave(tenSeconds + 1, 5)), kWritten);
    EXPECT_THAT(fake.wma.writes, ElementsAre(1764000, 4));
    EXPECT_EQ(fake.screen.lastProgress, (std::pair<std::size_t, std::size_t>(tenSeconds + 1, tenSeconds + 1)));
}

TEST_F(WmaExport, MakesNoFileOfAWaveWithoutSamples)
{
    EXPECT_EQ(Write(EmptyWave()), kSilentFailure);
    ExpectOldFile();
    fs::remove(Path());
    EXPECT_EQ(Write(EmptyWave()), kSilentFailure);
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(WmaExport, LeavesTheOldFileWhereItIsStopped)
{
    const WaveData wave = LevelWave(1000000, 5);
    for (const int progresses : {0, 1, 2}) { // the last one is after the last sample
        fake.screen.progressesBeforeStop = progresses;
        EXPECT_THROW(static_cast<void>(Write(wave)), WorkStopped);
        ExpectOldFile();
    }
}

class WavExport : public Export {
protected:
    [[nodiscard]] ExportOutcome Write(const WaveData& wave = LevelWave(100, 7)) const
    {
        return WriteWavFile(wave, Path());
    }
};

TEST_F(WavExport, WritesTheBytesOfSaveWaveFile)
{
    const SampleList left = {1, -2, 100, -128, 127};
    const SampleList right = {5, 6, -7, 8, -9};
    for (const WaveData& wave : {RampWave(200000), RampWave(65536), MonoWave(left), MonoWave(left, 11025, 8),
                                 StereoWave(left, right, 22050), StereoWave(left, right, 44100, 8)}) {
        SaveWaveFile(wave, Folder() / "song.wav");
        EXPECT_EQ(Write(wave), kWritten);
        EXPECT_TRUE(ReadBytes(Path()) == ReadBytes(Folder() / "song.wav"));
    }
    EXPECT_THAT(fake.messages.shown, IsEmpty());
}

TEST_F(WavExport, TellsAnEmptyWave)
{
    EXPECT_EQ(Write(EmptyWave()), kSilentFailure);
    EXPECT_EQ(fake.messages.shown.size(), 1U);
    ExpectOldFile();
}

TEST_F(WavExport, TellsAWaveThatIsShorterThanItTells)
{
    WaveData wave = LevelWave(10, 1);
    wave.Length = 11;
    EXPECT_EQ(Write(wave), kSilentFailure);
    ASSERT_EQ(fake.messages.shown.size(), 1U);
    EXPECT_EQ(fake.messages.shown[0].title, "Wav file Write error");
    ExpectOldFile();
}

TEST_F(WavExport, TellsASampleThatDoesNotFit)
{
    SampleList samples(100000, 1);
    samples.back() = 128;
    EXPECT_EQ(Write(MonoWave(samples, 44100, 8)), kSilentFailure);
    ASSERT_EQ(fake.messages.shown.size(), 1U);
    EXPECT_EQ(fake.messages.shown[0].title, "Wav file Write error");
    ExpectOldFile();
}

TEST_F(WavExport, TellsAFullDisk)
{
    FullDisk disk;
    TheServices().files = &disk;
    EXPECT_EQ(Write(), kSilentFailure);
    ASSERT_EQ(fake.messages.shown.size(), 1U);
    EXPECT_EQ(fake.messages.shown[0].title, "Wav file Write error");
    EXPECT_THAT(fake.messages.shown[0].text, HasSubstr("No space left on device"));
    ExpectOldFile();
}

TEST_F(WavExport, TellsATargetThatStaysInTheWay)
{
    fs::remove(Path());
    fs::create_directory(Path());
    EXPECT_EQ(Write(), (ExportOutcome{.End = ExportEnd::NotReplaced}));
    EXPECT_THAT(Names(), ElementsAre("song"));
}

TEST_F(WavExport, LeavesTheOldFileWhereItIsStopped)
{
    for (const int progresses : {0, 1}) {
        fake.screen.progressesBeforeStop = progresses;
        EXPECT_THROW(static_cast<void>(Write(RampWave(70000))), WorkStopped);
        ExpectOldFile();
    }
}

TEST_F(WmaExport, AsksForAListOfAnyLength)
{
    fake.wma.listLength = 1;
    EXPECT_EQ(Write(), kWritten);
    EXPECT_EQ(fake.wma.lists, 1);
}

} // namespace
} // namespace sprout
