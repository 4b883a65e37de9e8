// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-song/SproutSong.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <fstream>
#include <new>
#include <sstream>
#include <streambuf>
#include <string>
#include <vector>

#include "tools/SproutSongRun.h"

namespace sprout {
namespace {

TEST_F(SproutSong, AnswersWrongUsageWithTwo)
{
    const std::vector<std::vector<std::string>> wrong = {{},
                                                         {"sing"},
                                                         {"render", "a"},
                                                         {"render", "a", "b", "--loud"},
                                                         {"render", "a", "b", "--track", "0"},
                                                         {"render", "a", "b", "--track", "x"},
                                                         {"render", "a", "b", "--from", "1281"},
                                                         {"cycle", "a", "b", "--tempo", "0"},
                                                         {"convert", "a", "b", "--rate", "48000"},
                                                         {"stretch", "a", "b", "--pitch", "1"},
                                                         {"stretch", "a", "b", "--pitch", "3", "--duration", "1"},
                                                         {"stretch", "a", "b", "--pitch", "nan", "--duration", "1"},
                                                         {"stretch", "a", "--list", "b"},
                                                         {"export"},
                                                         {"export", "a", "--to", "mp3"},
                                                         {"export", "x/a.TqSng", "y/a.TqSng", "--out", "z"},
                                                         {"export", "a.TqSng", "./a.TqSng"},
                                                         {"info"},
                                                         {"info", "--json=yes", "a"}};
    for (const auto& words : wrong) {
        EXPECT_EQ(Run(words), kWrongUsage) << testing::PrintToString(words);
        EXPECT_NE(err.str(), "");
    }
    EXPECT_EQ(RunSproutSong({"info", "a", "--user-root"}, out, err), kWrongUsage);
}

TEST_F(SproutSong, TellsItsHelpAndItsVersion)
{
    EXPECT_EQ(Run({"--help"}), kDone);
    for (const char* command : {"info", "render", "export", "cycle", "resave", "thumbnail", "convert", "stretch"})
        EXPECT_NE(out.str().find(command), std::string::npos) << command;
    EXPECT_EQ(Run({"render", "--help"}), kDone);
    EXPECT_EQ(Run({"--version"}), kDone);
    EXPECT_EQ(out.str(), std::string("sprout-song ") + SPROUT_VERSION + "\n");
}

TEST_F(SproutSong, TellsTheFactsOfASong)
{
    SaveAudioSong("a.TqSng");
    const json facts = Info(At("a.TqSng"));
    EXPECT_EQ(facts["file"], At("a.TqSng"));
    EXPECT_EQ(facts["kind"], "song");
    EXPECT_EQ(facts["messages"], json::array());
    const json& song = facts["song"];
    EXPECT_EQ(song["title"], "Stored title");
    EXPECT_EQ(song["created_by"], "Ada");
    EXPECT_EQ(song["tempo"], 320);
    EXPECT_EQ(song["cells"], 1280);
    EXPECT_EQ(song["beats"], json::array());
    const json track = {{"type", 1},
                        {"painted", {{5, 5}, {7, 7}}},
                        {"tune", nullptr},
                        {"audio", {{"bits", 16}, {"channels", 1}, {"rate", 44100}, {"length", kAudioFrames}}}};
    EXPECT_EQ(song["tracks"], json::array({track}));
}

TEST_F(SproutSong, TellsTheFactsOfAnOldTuneAndAStar)
{
    const std::string text = "[General]\r\nCreatedBy=Ada\r\n[StepCycle]\r\nNumberOfSteps=2\r\nOnPos=1,0\r\n"
                             "PitchShift=3,0\r\nDuration=50,100\r\nVolume=90,100\r\nInstruments=|\r\n";
    WriteBytes(At("Lumo.TqTun"), text);
    WriteBytes(At("Sol.TqSta"), text);
    for (const auto& [file, kind, name] : {std::tuple{"Lumo.TqTun", "tune", "Lumo"}, {"Sol.TqSta", "star", "Sol"}}) {
        const json facts = Info(At(file));
        EXPECT_EQ(facts["kind"], kind);
        EXPECT_EQ(facts[kind]["name"], name);
        EXPECT_EQ(facts[kind]["created_by"], "Ada");
        EXPECT_EQ(facts[kind]["step_count"], 2);
        const json steps = {{{"on", true}, {"beat_index", 0}, {"pitch_shift", 3}, {"volume", 90}, {"duration", 50}},
                            {{"on", false}, {"beat_index", 0}, {"pitch_shift", 0}, {"volume", 100}, {"duration", 100}}};
        EXPECT_EQ(facts[kind]["steps"], steps);
    }
}

TEST_F(SproutSong, TellsTheFactsOfAWaveAndInWordsForAPerson)
{
    SaveRamp("a.wav", 700);
    EXPECT_EQ(Info(At("a.wav"))["wave"], (json{{"bits", 16}, {"channels", 1}, {"rate", 44100}, {"length", 700}}));
    EXPECT_EQ(Run({"info", At("a.wav")}), kDone);
    EXPECT_NE(out.str().find("length: 700"), std::string::npos);
}

TEST_F(SproutSong, PutsTheMessageBesideANullWhereAFileFails)
{
    WriteBytes(At("bad.TqSng"), "TqSng\r\nFile Version=3\r\n");
    EXPECT_EQ(Run({"info", "--json", At("bad.TqSng")}), kFailed);
    EXPECT_EQ(err.str(), "Failed Loading\n");
    const json facts = json::parse(out.str());
    EXPECT_TRUE(facts["song"].is_null());
    EXPECT_EQ(facts["messages"], (json::array({{{"title", ""}, {"text", "Failed Loading"}}})));

    for (const char* missing : {"none.TqSng", "none.TqTun", "none.TqSta", "none.wav", "none"}) {
        EXPECT_EQ(Run({"info", "--json", At(missing)}), kFailed) << missing;
        EXPECT_NE(err.str().find("not found"), std::string::npos) << missing;
    }
    WriteBytes(At("short.wav"), std::string(44, 'x'));
    EXPECT_EQ(Run({"info", At("short.wav")}), kFailed);
    EXPECT_EQ(err.str(), "Error Loading " + At("short.wav") + ": No wave Data found in file\n");
}

TEST_F(SproutSong, GoesOnToTheNextFileAfterABadOne)
{
    SaveRamp("a.wav", 700);
    EXPECT_EQ(Run({"info", "--json", At("none.wav"), At("a.wav")}), kFailed);
    EXPECT_NE(out.str().find("700"), std::string::npos);
}

TEST_F(SproutSong, RendersTheMixFromTheFirstPaintedCell)
{
    SaveAudioSong("a.TqSng");
    EXPECT_EQ(Run({"render", At("a.TqSng"), At("mix.wav")}), kDone);
    EXPECT_EQ(err.str(), "");
    const WaveData mix = LoadWave("mix.wav");
    EXPECT_EQ(mix.Channels, 2);
    EXPECT_EQ(mix.Length, 16538 + kAudioFrames); // two cells of 8268.75 frames
    EXPECT_EQ(mix.WavL[1], 1);
    EXPECT_EQ(mix.WavR[kAudioFrames], kAudioFrames);
    EXPECT_EQ(mix.WavL[kAudioFrames + 1], 0);
    EXPECT_EQ(mix.WavL[16539], 1);
}

TEST_F(SproutSong, RendersTheSliceFromACell)
{
    SaveAudioSong("a.TqSng");
    EXPECT_EQ(Run({"render", At("a.TqSng"), At("late.wav"), "--from", "7"}), kDone);
    // The slice begins with the frame whose number is the offset, 16538: the last one before the second sound.
    const WaveData late = LoadWave("late.wav");
    EXPECT_EQ(late.Length, kAudioFrames + 1);
    EXPECT_EQ(late.WavL[2], 1);
    EXPECT_EQ(Run({"render", At("a.TqSng"), At("track.wav"), "--track", "1", "--from", "1"}), kDone);
    EXPECT_EQ(LoadWave("track.wav").Length, 16538 + kAudioFrames);
}

TEST_F(SproutSong, LeavesTheOutputUntouchedWhereNothingSounds)
{
    SaveAudioSong("a.TqSng");
    WriteBytes(At("out.wav"), "precious");
    EXPECT_EQ(Run({"render", At("a.TqSng"), At("out.wav"), "--from", "1280"}), kFailed);
    EXPECT_EQ(err.str(), "Writing wave error: Silent or Zero size wave found\n");
    EXPECT_EQ(Run({"render", At("a.TqSng"), At("out.wav"), "--track", "2"}), kFailed);
    EXPECT_EQ(ReadBytes(At("out.wav")), "precious");
}

TEST_F(SproutSong, RendersACycleAtATempo)
{
    WriteBytes(At("Lumo.TqTun"), "[StepCycle]\r\nNumberOfSteps=4\r\nOnPos=1,0,0,0\r\nVolume=100,100,100,100\r\n"
                                 "Instruments=|||\r\n");
    EXPECT_EQ(Run({"cycle", At("Lumo.TqTun"), At("cycle.wav")}), kDone);
    EXPECT_EQ(LoadWave("cycle.wav").Length, 4 * 33075 / 4 + 1); // four cells of 0.1875 s plus one frame
    EXPECT_EQ(Run({"cycle", At("Lumo.TqTun"), At("cycle.wav"), "--tempo", "160"}), kDone);
    EXPECT_EQ(LoadWave("cycle.wav").Length, 2 * 33075 + 1);
}

TEST_F(SproutSong, ResavesSongsAndTunes)
{
    SaveAudioSong("a.TqSng");
    EXPECT_EQ(Run({"resave", At("a.TqSng"), At("b.TqSng")}), kDone);
    EXPECT_EQ(Info(At("b.TqSng"))["song"], Info(At("a.TqSng"))["song"]);

    WriteBytes(At("Old.TqTun"), "[StepCycle]\r\nNumberOfSteps=2\r\nOnPos=1,0\r\nVolume=70,100\r\nInstruments=|\r\n");
    EXPECT_EQ(Run({"resave", At("Old.TqTun"), At("New.TqTun")}), kDone);
    EXPECT_EQ(ReadBytes(At("New.TqTun")).substr(0, 7), "TqTun\r\n");
    EXPECT_EQ(Info(At("New.TqTun"))["tune"]["steps"], Info(At("Old.TqTun"))["tune"]["steps"]);
    WithEngine([&] {
        TunOpnSavClass().Load_Tune(At("New.TqTun"));
        EXPECT_GT(Shared().TuneClipboard.TuneWave.Length, 0); // it can be played at once
    });
}

TEST_F(SproutSong, TellsWhereASaveFails)
{
    SaveAudioSong("a.TqSng");
    EXPECT_EQ(Run({"resave", At("a.TqSng"), At("no/such/folder.TqSng")}), kFailed);
    EXPECT_TRUE(err.str().starts_with("Error Saving File: ")) << err.str();
    SaveRamp("a.wav", 700);
    EXPECT_EQ(Run({"resave", At("a.wav"), At("b.wav")}), kFailed);
    EXPECT_EQ(Run({"convert", At("a.wav"), At("no/such/folder.wav")}), kFailed);
    EXPECT_TRUE(err.str().starts_with("Wav file Write error: ")) << err.str();
}

TEST_F(SproutSong, ConvertsWaves)
{
    SaveRamp("a.wav", 1000);
    EXPECT_EQ(Run({"convert", At("a.wav"), At("b.wav"), "--rate", "11025", "--bits", "8", "--channels", "2"}), kDone);
    const WaveData wave = LoadWave("b.wav");
    EXPECT_EQ(wave.Rate, 11025);
    EXPECT_EQ(wave.Bits, 8);
    EXPECT_EQ(wave.Channels, 2);
    EXPECT_EQ(wave.Length, 250);
    EXPECT_EQ(wave.WavL[250], 4); // 1000 / 256
}

TEST_F(SproutSong, StretchesOneWaveAndAList)
{
    SaveRamp("a.wav", 4000);
    EXPECT_EQ(Run({"stretch", At("a.wav"), At("b.wav"), "--pitch", "1", "--duration", "1.5"}), kDone);
    EXPECT_EQ(LoadWave("b.wav").Length, 6000);
    WriteBytes(At("list"),
               At("a.wav") + " 1 1 " + At("same.wav") + "\n\n" + At("a.wav") + " 2 0.5 " + At("c.wav") + "\n");
    EXPECT_EQ(Run({"stretch", "--list", At("list")}), kDone);
    EXPECT_EQ(ReadBytes(At("same.wav")), ReadBytes(At("a.wav")));
    EXPECT_EQ(LoadWave("c.wav").Length, 2000);
    WriteBytes(At("list"), At("a.wav") + " 1 " + At("same.wav") + "\n");
    EXPECT_EQ(Run({"stretch", "--list", At("list")}), kFailed);
    EXPECT_NE(err.str().find("line 1"), std::string::npos);
    EXPECT_EQ(Run({"stretch", "--list", At("none")}), kFailed);
}

TEST_F(SproutSong, FindsBeatsThatAFileDoesNotCarryUnderTheUserRoot)
{
    std::filesystem::create_directories(Folder() / "Beats");
    SaveRamp("user/Beats/Pling.wav", 900);
    WriteBytes(At("Lumo.TqTun"), "[StepCycle]\r\nNumberOfSteps=2\r\nOnPos=1,0\r\nVolume=100,100\r\n"
                                 "Instruments=Pling|\r\n");
    EXPECT_EQ(Run({"resave", At("Lumo.TqTun"), At("in.TqTun")}), kDone);
    EXPECT_EQ(Run({"resave", At("Lumo.TqTun"), At("out.TqTun"), "--beats-outside"}), kDone);
    EXPECT_LT(ReadBytes(At("out.TqTun")).size() + 1800, ReadBytes(At("in.TqTun")).size());
    EXPECT_EQ(Run({"cycle", At("out.TqTun"), At("out.wav")}), kDone);
    EXPECT_EQ(Run({"cycle", At("in.TqTun"), At("in.wav")}), kDone);
    EXPECT_EQ(ReadBytes(At("out.wav")), ReadBytes(At("in.wav")));
}

TEST(ToolScreen, DrawsALineWhereAPersonWatches)
{
    std::ostringstream quiet;
    ToolScreen(quiet, Watched::No).ShowProgress(1, 2);
    EXPECT_EQ(quiet.str(), "");
    std::ostringstream watched;
    ToolScreen screen(watched, Watched::Yes);
    screen.ShowProgress(1, 2);
    screen.BeginStoppable(Words::AsIs("Exporting songs"));
    screen.ShowProgress(1, 2);
    screen.ShowProgress(2, 2);
    EXPECT_EQ(watched.str(), "\rRendering sounds: 1 of 2\rExporting songs: 1 of 2\rExporting songs: 2 of 2\r\033[K");
}

TEST_F(SproutSong, TellsOfAWmaFileThatIsDamaged)
{
    WriteBytes(At("bad.wma"), "\x30\x26\xB2\x75 and nothing behind it");
    const json facts = Info(At("bad.wma"));
    EXPECT_EQ(facts["messages"].size(), 1U);
    EXPECT_EQ(Run({"info", At("bad.wma")}), kFailed);
}

/// Accepts nothing and reports that there is no memory.
class NoMemoryBuffer : public std::streambuf {
protected:
    int_type overflow(int_type) override { throw std::bad_alloc(); }
};

TEST_F(SproutSong, FailsWhereTheStandardOutputCannotBeWritten)
{
    std::ofstream full("/dev/full");
    EXPECT_EQ(RunSproutSong({"--version"}, full, err), 1);
    EXPECT_EQ(err.str(), "sprout-song: The standard output could not be written.\n");
}

TEST_F(SproutSong, SaysWhatFailedWhereMemoryIsShort)
{
    NoMemoryBuffer buffer;
    std::ostream noMemory(&buffer);
    noMemory.exceptions(std::ios::badbit);
    EXPECT_EQ(RunSproutSong({"--version", "--beats-outside"}, noMemory, err), 1);
    EXPECT_EQ(err.str(), "sprout-song: --version --beats-outside: There is not enough memory.\n");
}

TEST_F(SproutSong, ShowsControlCharactersAndSendsNoneToTheTerminal)
{
    EXPECT_EQ(Run({"info", At("red \x1b[31m \xc2\x9b \x9b.wav")}), 1);
    EXPECT_NE(err.str().find("red \\u001b[31m \\u009b \\x9b.wav was not found."), std::string::npos) << err.str();
    WithEngine([&] {
        Shared().Song.SongTitle = "a\x1b\x7f\xc2\x85\nb";
        Shared().Song.Tracks.resize(2);
        Shared().Song.TrackCount = 1;
        OpenSaveClass().Save_Song(At("Bad.TqSng"));
    });
    EXPECT_EQ(Run({"info", At("Bad.TqSng")}), 0);
    EXPECT_NE(out.str().find("title: a\\u001b\\u007f\\u0085\\u000ab\n"), std::string::npos) << out.str();
    EXPECT_EQ(Run({"info", "--json", At("Bad.TqSng")}), 0);
    EXPECT_NE(out.str().find("\"title\":\"a\\u001b\\u007f\\u0085\\nb\""), std::string::npos) << out.str();
    EXPECT_EQ(json::parse(out.str())["song"]["title"], "a\x1b\x7f\xc2\x85\nb");
}

TEST_F(SproutSong, ReplacesNoDeviceAndNoFileOfAnotherName)
{
    SaveAudioSong("Song.TqSng");
    MakeScratchDevice(At("device"));
    EXPECT_EQ(Run({"resave", At("Song.TqSng"), At("device")}), 1);
    EXPECT_EQ(Run({"render", At("Song.TqSng"), At("device")}), 1);
    EXPECT_TRUE(IsScratchDevice(At("device")));
    WriteBytes(At("mine.wav"), "mine");
    EXPECT_EQ(Run({"render", At("Song.TqSng"), At("Mine.wav")}), 0);
    EXPECT_EQ(ReadBytes(At("mine.wav")), "mine");
    EXPECT_GT(std::filesystem::file_size(At("Mine.wav")), 44U);
}

TEST_F(SproutSong, RefusesAnOldTuneAboveFourMegabytes)
{
    WriteBytes(At("Big.TqTun"), "[General]\r\nCreatedBy=Ada\r\n");
    EXPECT_EQ(Run({"info", At("Big.TqTun")}), 0);
    std::filesystem::resize_file(At("Big.TqTun"), 5'000'000'000); // a sparse file
    EXPECT_EQ(Run({"info", At("Big.TqTun")}), 1);
    EXPECT_NE(err.str().find("is too large for a tune."), std::string::npos) << err.str();
}

} // namespace
} // namespace sprout
