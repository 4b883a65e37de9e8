// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ffmpeg/SoundChild.h"

#include <gmock/gmock.h>

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <random>
#include <string>

#include "service/ffmpeg/SoundChildDesk.h"

namespace sprout {
namespace {

TEST_F(SoundChildTest, LivesWithFilesThatBreakOff)
{
    for (const char* name : {"a.mp3", "a.ogg", "a.m4a", "a.flac", "a.wav"}) {
        const std::string whole = ReadBytes(MakeFrom(ToneBehind(0, 48000), name, ""));
        for (const std::size_t size : {std::size_t{1}, std::size_t{40}, whole.size() / 3, whole.size() - 1}) {
            WriteBytes(In("cut"), whole.substr(0, size));
            const Converted converted = Convert(In("cut"));
            ASSERT_NE(converted.Outcome, Conversion::TooLong);
            if (converted.Outcome == Conversion::Done) {
                EXPECT_GT(size, 40U) << name;
                EXPECT_LE(Hear(converted.Wave->Path()).left.size(), 44100U + 1200) << name << size;
            }
        }
    }
    ExpectNothingLeft();
}

TEST_F(SoundChildTest, FindsNoSoundInNoiseOrText)
{
    std::mt19937 random(1);
    std::string noise(100'000, '\0');
    std::generate(noise.begin(), noise.end(), [&] { return static_cast<char>(random() % 200); });
    for (const std::string& bytes :
         {noise, std::string(), std::string("A letter."), std::string(100'000, '\0'),
          std::string("#EXTM3U\n#EXTINF:1,\n/etc/passwd\n"), std::string("ffconcat version 1.0\nfile /etc/passwd\n")}) {
        WriteBytes(In("noise.mp3"), bytes);
        EXPECT_EQ(Convert(In("noise.mp3")).Outcome, Conversion::Unreadable);
    }
    ExpectNothingLeft();
}

TEST_F(SoundChildTest, WaitsForNoPipeFolderOrDevice)
{
    ASSERT_EQ(::mkfifo(In("pipe").c_str(), 0600), 0);
    const fs::path content = Script("exit 0"); // whatever it contains
    for (const fs::path& path : {In("pipe"), services.folder.Path(), fs::path("/dev/zero"), In("missing")})
        EXPECT_EQ(ConvertBy(content, path).Outcome, Conversion::Unreadable) << path;
    ExpectNothingLeft();
}

TEST_F(SoundChildTest, HoldsItsTemporaryFileForItsOwnerAlone)
{
    WriteBytes(In("precious"), "mine");
    fs::create_symlink(In("precious"), Shared().TempFolder / "TqkTmp1.wav");
    {
        const Converted converted = Convert(MakeFrom(ToneBehind(0, 4800), "a.flac", ""));
        ASSERT_EQ(converted.Outcome, Conversion::Done);
        EXPECT_EQ(fs::status(converted.Wave->Path()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
        EXPECT_NE(NewTempFileName("wav"), converted.Wave->Path()) << "as another running program asks";
        EXPECT_TRUE(fs::exists(converted.Wave->Path()));
    }
    EXPECT_EQ(ReadBytes(In("precious")), "mine");
    fs::remove(Shared().TempFolder / "TqkTmp1.wav");
    ExpectNothingLeft();
}

TEST_F(SoundChildTest, HandsTheChildTheSoundAndTheLimitAndNoOtherFile)
{
    WriteBytes(In("sound"), "the sound ");
    const int open = ::dup(STDIN_FILENO); // as a library has it, not closed on exec
    const std::string program =
        "cat; echo \"$@\"; for n in 3 4 5 6 7 8 9; do [ -e /proc/self/fd/$n ] || echo -n $n; done";
    const Converted converted = ConvertBy(Script(program), In("sound"));
    ::close(open);
    ASSERT_EQ(converted.Outcome, Conversion::Done);
    EXPECT_EQ(ReadBytes(converted.Wave->Path()), "the sound 220500 cut\n3456789");
}

TEST_F(SoundChildTest, TakesEveryEndOfTheChildForWhatItIs)
{
    WriteBytes(In("sound"), "x");
    EXPECT_EQ(ConvertBy(In("missing"), In("sound")).Outcome, Conversion::Unreadable);
    EXPECT_EQ(ConvertBy(Script("exit 2"), In("sound")).Outcome, Conversion::Unreadable);
    EXPECT_EQ(ConvertBy(Script("exit 3"), In("sound")).Outcome, Conversion::TooLong);
    EXPECT_EQ(ConvertBy(Script("exit 4"), In("sound")).Outcome, Conversion::Unreadable);
    EXPECT_EQ(ConvertBy(Script("exit 5"), In("sound")).Outcome, Conversion::Unreadable);
    EXPECT_THROW(static_cast<void>(ConvertBy(Script("exit 6"), In("sound"))), RunTimeError);
    EXPECT_EQ(ConvertBy(Script("exit 77"), In("sound")).Outcome, Conversion::Unreadable);
    EXPECT_EQ(ConvertBy(Script("kill -SEGV $$"), In("sound")).Outcome, Conversion::Unreadable);
    ExpectNothingLeft();
}

TEST_F(SoundChildTest, EndsAChildThatTakesTooLong)
{
    WriteBytes(In("sound"), "x");
    SoundChild patient(Script("exec sleep 1000"), NewFile, std::chrono::milliseconds(50));
    EXPECT_EQ(patient.Convert(In("sound"), 5, TooLong::Cut, [](std::size_t, std::size_t) {}).Outcome,
              Conversion::Unreadable);
    ExpectNothingLeft();
}

TEST_F(SoundChildTest, TellsHowFarItIsAndEndsTheChildWhenTheUserStops)
{
    WriteBytes(In("sound"), "x");
    SoundChild slow(Script("head -c 1000 /dev/zero; exec sleep 1000"), NewFile);
    const auto stop = [](std::size_t done, std::size_t total) {
        EXPECT_EQ(total, 44U + 5 * 44100 * 4);
        if (done == 1000)
            throw WorkStopped();
    };
    EXPECT_THROW(static_cast<void>(slow.Convert(In("sound"), 5, TooLong::Cut, stop)), WorkStopped);
    ExpectNothingLeft();
}

TEST_F(SoundChildTest, TellsWhereTheTemporaryFileCannotBeMade)
{
    WriteBytes(In("sound"), "x");
    fs::remove(Shared().TempFolder);
    EXPECT_THROW(static_cast<void>(Convert(In("sound"))), RunTimeError);
}

TEST_F(SoundChildTest, TellsOfAFullDisk)
{
    const fs::path sound = MakeFrom(ToneBehind(0, 48000), "a.flac", "");
    const std::string line = "'" + Program().native() + "' 44100 cut <'" + sound.native() + "' >/dev/full";
    EXPECT_EQ(WEXITSTATUS(std::system(line.c_str())), 6);
    if (::mount("none", Shared().TempFolder.c_str(), "tmpfs", 0, "size=32k") != 0)
        GTEST_SKIP() << "Only the superuser can mount a small disk.";
    EXPECT_THROW(static_cast<void>(Convert(sound)), RunTimeError);
    ExpectNothingLeft();
    ::umount(Shared().TempFolder.c_str());
}

TEST_F(SoundChildTest, SaysWhereTheLibrariesAreMissing)
{
    const fs::path sound = MakeFrom(ToneBehind(0, 4800), "a.flac", "");
    fs::create_directory(In("libraries")); // the files that are found first are not libraries
    for (int version = 50; version < 80; ++version)
        WriteBytes(In("libraries") / ("libavcodec.so." + std::to_string(version)), "");
    const std::string line = "LD_LIBRARY_PATH='" + In("libraries").native() + "' '" + Program().native() +
                             "' 44100 cut <'" + sound.native() + "' >/dev/null";
    EXPECT_EQ(WEXITSTATUS(std::system(line.c_str())), 5);
}

TEST_F(SoundChildTest, RefusesWrongWords)
{
    for (const char* words : {"", "44100", "44100 trim", "0 cut", "x cut", "99999999999 cut", "44100 cut more"}) {
        const std::string line = "'" + Program().native() + "' " + words + " </dev/null >/dev/null";
        EXPECT_EQ(WEXITSTATUS(std::system(line.c_str())), 2) << words;
    }
}

} // namespace
} // namespace sprout
