// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SystemEnd.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QSessionManager>

#include <csignal>
#include <cstdlib>
#include <string>
#include <vector>

#include "base/FolderFiles.h"
#include "core/Shared.h"
#include "core/SongModel.h"
#include "support/FakeServices.h"
#include "support/Flags.h"
#include "support/FullDisk.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// An unsaved song.
class SystemEndTest : public testing::Test {
protected:
    SystemEndTest()
    {
        NewSong();
        Shared().Song.SongTitle = "Rain";
        SetSongChanged(Shared().Song, true);
    }

    /// What Qt does when the session manager asks the program to save its data.
    static void EndSession() { Q_EMIT qApp->commitDataRequest(*qApp->findChild<QSessionManager*>()); }

    [[nodiscard]] static std::vector<std::string> Songs() { return NamesInFolder(Shared().UserSongs, ".TqSng"); }

    FakeServices services;
};

TEST_F(SystemEndTest, KeepsTheSongAtTheEndOfTheSessionAndGoesOn)
{
    const SystemEnd systemEnd(*qApp);
    EXPECT_THAT(Songs(), IsEmpty());
    EndSession();
    EXPECT_THAT(Songs(), ElementsAre("Rain kept")) << "before the session manager has its answer";
    EXPECT_FALSE(systemEnd.HasCome()) << "the user may still stay in the session";
    EXPECT_TRUE(Shared().Song.SongChanged);
    EndSession();
    EXPECT_THAT(Songs(), ElementsAre("Rain kept")) << "once";
}

TEST_F(SystemEndTest, KeepsNoSongThatIsSaved)
{
    SetSongChanged(Shared().Song, false);
    const SystemEnd systemEnd(*qApp);
    EndSession();
    EXPECT_THAT(Songs(), IsEmpty());
}

TEST_F(SystemEndTest, LetsTheSessionEndWhereTheSongCannotBeKept)
{
    FullDisk disk;
    TheServices().files = &disk;
    const SystemEnd systemEnd(*qApp);
    EXPECT_NO_THROW(EndSession());
    EXPECT_TRUE(services.messages.shown.empty());
    TheServices().files = &services.files;
    EXPECT_THAT(Songs(), IsEmpty());
}

TEST_F(SystemEndTest, KeepsTheSongAndEndsTheProgramOnASignal)
{
    const SystemEnd systemEnd(*qApp);
    ASSERT_EQ(::raise(SIGTERM), 0);
    EXPECT_FALSE(systemEnd.HasCome()) << "the signal interrupts anything";
    EXPECT_EQ(QApplication::exec(), EXIT_SUCCESS);
    EXPECT_TRUE(systemEnd.HasCome());
    EXPECT_THAT(Songs(), ElementsAre("Rain kept"));
}

TEST_F(SystemEndTest, ListensToNoSessionAfterwards)
{
    {
        const SystemEnd systemEnd(*qApp);
    }
    EndSession();
    EXPECT_THAT(Songs(), IsEmpty());
}

} // namespace
} // namespace sprout
