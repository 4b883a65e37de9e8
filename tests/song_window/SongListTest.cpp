// SPDX-License-Identifier: GPL-3.0-or-later
#include "song_window/SongList.h"

#include "song_window/SongSelFrmTest.h"

namespace sprout {
namespace {

using testing::ElementsAre;

using SongListTest = SongSelFrmTest;

TEST_F(SongListTest, ShowsOnlyWholeLinesOfALongList)
{
    for (int i = 0; i < 60; ++i)
        Put({("Song " + std::to_string(i)).c_str()});
    Open(SongSelMode::Open);
    const int line = List().visualItemRect(List().item(0)).height();
    EXPECT_GT(List().viewport()->height(), 2 * line);
    EXPECT_EQ(List().viewport()->height() % line, 0);
    List().scrollToBottom();
    EXPECT_EQ(List().visualItemRect(List().item(59)).bottom() + 1, List().viewport()->height());
}

TEST_F(SongListTest, WithoutSongsTellsSoAndOpensNothing)
{
    Open(SongSelMode::Open);
    EXPECT_THAT(Lines(), ElementsAre(QStringLiteral("No song found")));
    ClickRow(0);
    EXPECT_EQ(Selected(), QString());
    EXPECT_EQ(ClickAndAnswer("OkBtn", "OkBtn"), (Told{kTitle, QStringLiteral("Song not selected."), {}, kSelectOne}));
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(form.Ok);
}

TEST_F(SongListTest, WithoutSongsShowsABlankLineToSaveOrToNameOne)
{
    for (const SongSelMode mode : {SongSelMode::Save, SongSelMode::New}) {
        Open(mode);
        EXPECT_THAT(Lines(), ElementsAre(QStringLiteral(" ")));
        const QString name = NameBox().text();
        ClickRow(0);
        QTest::keyClick(&List(), Qt::Key_Down);
        EXPECT_EQ(Selected(), QString());
        EXPECT_EQ(NameBox().text(), name);
    }
}

TEST_F(SongListTest, OpensTheSelectedSongOnly)
{
    Put({"Rain", "Zumi"});
    Open(SongSelMode::Open);
    EXPECT_EQ(ClickAndAnswer("OkBtn", "OkBtn").line1, QStringLiteral("Song not selected."));
    ClickRow(1);
    ShowHint(Words::AsIs("A hint"));
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(form.Ok);
    EXPECT_EQ(form.ChosenName, "Zumi");
}

TEST_F(SongListTest, ADoubleClickOpensTheSong)
{
    Put({"Rain", "Zumi"});
    Open(SongSelMode::Open);
    ClickRow(0);
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, MiddleOf(0));
    EXPECT_TRUE(form.Ok);
    EXPECT_EQ(form.ChosenName, "Rain");
}

TEST_F(SongListTest, ArrowsTypingAndEnterOpenASong)
{
    Put({"Apple", "Rain", "Zumi"});
    Open(SongSelMode::Open);
    ASSERT_TRUE(List().hasFocus());
    QTest::keyClick(&List(), Qt::Key_Down);
    EXPECT_EQ(Selected(), QStringLiteral("Apple"));
    QTest::keyClick(&List(), Qt::Key_Down);
    EXPECT_EQ(Selected(), QStringLiteral("Rain"));
    QTest::keyClicks(&List(), QStringLiteral("zu"));
    EXPECT_EQ(Selected(), QStringLiteral("Zumi"));
    QTest::keyClick(&List(), Qt::Key_Down); // the last line keeps the selection and the focus
    EXPECT_EQ(Selected(), QStringLiteral("Zumi"));
    EXPECT_TRUE(List().hasFocus());
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_TRUE(form.Ok);
    EXPECT_EQ(form.ChosenName, "Zumi");
}

TEST_F(SongListTest, KeepsTheBytesOfANameThatIsNoUtf8)
{
    WriteBytes(songFolder / "caf\xE9.TqSng", "x");
    Open(SongSelMode::Open);
    ClickRow(0);
    Click(form, "OkBtn");
    EXPECT_EQ(form.ChosenName, "caf\xE9");
}

TEST_F(SongListTest, ShowsTheHintOfTheListByItsMode)
{
    for (const auto& [mode, hint] : {std::pair{SongSelMode::Open, "Click on a song name to select"},
                                     std::pair{SongSelMode::Save, "List of available songs"},
                                     std::pair{SongSelMode::New, "List of available songs"}}) {
        Open(mode);
        QTest::mouseMove(List().viewport(), QPoint(30, 40));
        EXPECT_EQ(statusLbl.text(), QString::fromLatin1(hint));
        EXPECT_EQ(List().accessibleDescription(), QString::fromLatin1(hint));
    }
}

TEST_F(SongListTest, SelectsByTheProgramWithoutASignal)
{
    Put({"Rain", "Zumi"});
    SongList list(nullptr);
    int signalled = 0;
    QObject::connect(&list, &QListWidget::itemSelectionChanged, &list, [&signalled] { ++signalled; });
    list.LoadSongNames();
    EXPECT_EQ(list.SelectedSong(), nullptr);
    EXPECT_EQ(list.SelectedRow(), -1);
    list.SelectRow(1);
    ASSERT_TRUE(list.SelectedSong());
    EXPECT_EQ(list.SelectedSong()->Name, "Zumi");
    list.SelectRow(-1);
    EXPECT_EQ(list.SelectedSong(), nullptr);
    EXPECT_EQ(signalled, 0);
}

TEST_F(SongListTest, ListsTheFolderAnewWithNothingSelected)
{
    Put({"Rain"});
    SongList list(nullptr);
    list.SetNothingFound(Words::AsIs("Nothing here"));
    list.LoadSongNames();
    list.SelectRow(0);
    Put({"Apple"});
    list.LoadSongNames();
    EXPECT_EQ(list.SelectedRow(), -1);
    ASSERT_EQ(list.Songs().size(), 2U);
    EXPECT_EQ(list.Songs()[0].Name, "Apple");
    std::filesystem::remove_all(songFolder);
    list.LoadSongNames();
    EXPECT_TRUE(list.Songs().empty());
    EXPECT_EQ(list.item(0)->text(), QStringLiteral("Nothing here"));
    list.SelectRow(0);
    EXPECT_EQ(list.SelectedSong(), nullptr);
}

} // namespace
} // namespace sprout
