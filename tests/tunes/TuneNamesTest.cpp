// SPDX-License-Identifier: GPL-3.0-or-later
#include "tunes/TuneNames.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/Errors.h"
#include "core/Shared.h"
#include "support/FakeServices.h"
#include "tune_window/Tunes.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

class TuneNamesTest : public testing::Test {
protected:
    [[nodiscard]] static fs::path File(const char* name) { return Shared().UserTunes / name; }

    FakeServices services;
};

TEST_F(TuneNamesTest, AChangedOriginalCannotPassAsTheMakers)
{
    EXPECT_EQ(NamesToOffer(PlainTune("Lumo", "TONQUILL studio"), false), (TuneNames{"", ""}));
    EXPECT_EQ(NamesToOffer(PlainTune("Lumo", "Tonquill"), true), (TuneNames{"Lumo", "Tonquill"}));
    EXPECT_EQ(NamesToOffer(PlainTune("Rain", "Ann Tonquill"), false), (TuneNames{"Rain", "Ann Tonquill"}));
}

TEST_F(TuneNamesTest, ANameOfBlanksCountsAsEmpty)
{
    EXPECT_EQ(WhatIsMissing(Trimmed({"  ", "Ann"})).English(), "Enter a Tune Name.");
    EXPECT_EQ(WhatIsMissing(Trimmed({" Rain ", "   "})).English(), "Enter a your name in \"Created By\" box.");
    EXPECT_EQ(WhatIsMissing(Trimmed({" Rain ", " Ann "})).English(), "");
    EXPECT_EQ(Trimmed({" Rain ", " Ann "}), (TuneNames{"Rain", "Ann"}));
}

TEST_F(TuneNamesTest, KnowsTheNamesOfOriginals)
{
    MakeTuneFile(PlainTune("Lumo", "tonquill"));
    MakeTuneFile(PlainTune("Rain", "Ann"));
    EXPECT_TRUE(IsNameOfOriginal("lumo"));
    EXPECT_FALSE(IsNameOfOriginal("Rain"));
    EXPECT_FALSE(IsNameOfOriginal("Snow"));
}

TEST_F(TuneNamesTest, SavesATuneUnderItsName)
{
    SaveTuneFile(PlainTune("Rain", "Ann"));
    TunOpnSavClass().Load_Tune(File("Rain.TqTun"));
    EXPECT_EQ(Shared().TuneClipboard.Name, "Rain");
    EXPECT_EQ(Shared().TuneClipboard.TuneWave.Length, 4);
}

TEST_F(TuneNamesTest, AFileWhoseNameDiffersInCaseAloneIsReplaced)
{
    MakeTuneFile(PlainTune("rain", "Ann"));
    SaveTuneFile(PlainTune("Rain", "Bob"));
    EXPECT_FALSE(fs::exists(File("rain.TqTun")));
    TunOpnSavClass().Load_Tune(File("Rain.TqTun"));
    EXPECT_EQ(Shared().TuneClipboard.CreatedBy, "Bob");
}

TEST_F(TuneNamesTest, WhatCannotBeSavedLeavesTheOldFile)
{
    MakeTuneFile(PlainTune("rain", "Ann"));
    const std::string before = ReadBytes(File("rain.TqTun"));
    fs::create_directory(File("Rain.TqTun"));
    EXPECT_THROW(SaveTuneFile(PlainTune("Rain", "Bob")), RunTimeError);
    EXPECT_EQ(ReadBytes(File("rain.TqTun")), before);
}

TEST_F(TuneNamesTest, ANameThatIsTooLongForAFileIsAnErrorWithWords)
{
    EXPECT_THROW(SaveTuneFile(PlainTune(std::string(300, 'a'), "Ann")), RunTimeError);
}

TEST_F(TuneNamesTest, DeletesTuneAndPictureAndLeavesTheCache)
{
    for (const char* name : {"Rain.TqTun", "Rain.bmp", "Rain.TqTunCache", "Sun.TqTun"})
        WriteBytes(File(name), "x");
    DeleteTuneFiles("Rain");
    EXPECT_FALSE(fs::exists(File("Rain.TqTun")));
    EXPECT_FALSE(fs::exists(File("Rain.bmp")));
    EXPECT_TRUE(fs::exists(File("Rain.TqTunCache")));
    EXPECT_TRUE(fs::exists(File("Sun.TqTun")));
}

TEST_F(TuneNamesTest, DeletesNothingByANameThatLeadsOutOfTheFolder)
{
    WriteBytes(Shared().UserRoot / "Rain.TqTun", "x");
    DeleteTuneFiles("../Rain");
    DeleteTuneFiles("");
    EXPECT_TRUE(fs::exists(Shared().UserRoot / "Rain.TqTun"));
}

} // namespace
} // namespace sprout
