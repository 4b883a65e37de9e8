// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-library/Freshness.h"

#include <gtest/gtest.h>

#include "base/Errors.h"
#include "core/Paths.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

TEST(Freshness, MakesAFileOnceAndAgainWhenWhatItIsMadeOfChanges)
{
    const TestFolder folder;
    Freshness first(folder.Path());
    EXPECT_FALSE(first.IsFresh({"a b.wav"}, "1"));
    WriteBytes(folder.Path() / "a b.wav", "sound");
    first.Finish();

    Freshness second(folder.Path());
    EXPECT_TRUE(second.IsFresh({"a b.wav"}, "1"));
    second.Finish();
    EXPECT_FALSE(Freshness(folder.Path()).IsFresh({"a b.wav"}, "2"));
}

TEST(Freshness, MakesAFileAgainThatSomebodyDeleted)
{
    const TestFolder folder;
    Freshness first(folder.Path());
    static_cast<void>(first.IsFresh({"a.wav"}, "1"));
    first.Finish();
    EXPECT_FALSE(Freshness(folder.Path()).IsFresh({"a.wav"}, "1"));
}

TEST(Freshness, TrustsNothingAfterARunThatStoppedHalfWay)
{
    const TestFolder folder;
    Freshness first(folder.Path());
    static_cast<void>(first.IsFresh({"a.wav"}, "1"));
    WriteBytes(folder.Path() / "a.wav", "sound 1");
    first.Finish();

    Freshness stopped(folder.Path());
    EXPECT_FALSE(stopped.IsFresh({"a.wav"}, "2"));
    WriteBytes(folder.Path() / "a.wav", "sound 2");
    EXPECT_FALSE(Freshness(folder.Path()).IsFresh({"a.wav"}, "1"));
}

TEST(Freshness, DeletesWhatIsWantedNoMoreAndNothingElse)
{
    const TestFolder folder;
    Freshness first(folder.Path());
    static_cast<void>(first.IsFresh({"old.wav"}, "1"));
    WriteBytes(folder.Path() / "old.wav", "sound");
    WriteBytes(folder.Path() / "mine.wav", "sound");
    first.Finish();

    Freshness second(folder.Path());
    static_cast<void>(second.IsFresh({"new.wav"}, "1"));
    second.Finish();
    EXPECT_FALSE(FileExists(folder.Path() / "old.wav"));
    EXPECT_TRUE(FileExists(folder.Path() / "mine.wav"));
}

TEST(Freshness, RefusesTwoThingsOfOneName)
{
    const TestFolder folder;
    Freshness freshness(folder.Path());
    static_cast<void>(freshness.IsFresh({"a.wav"}, "1"));
    EXPECT_THROW(static_cast<void>(freshness.IsFresh({"a.wav"}, "1")), RunTimeError);
}

TEST(Fingerprint, TellsTwoTextsFromOne)
{
    EXPECT_NE(Fingerprint().Add("ab").Add("c").Text(), Fingerprint().Add("a").Add("bc").Text());
    EXPECT_EQ(Fingerprint().Add("ab").Text(), Fingerprint().Add("ab").Text());
}

} // namespace
} // namespace sprout
