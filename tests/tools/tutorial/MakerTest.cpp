// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/Maker.h"

#include <gtest/gtest.h>

#include <QString>

#include <filesystem>
#include <string>

#include "base/Errors.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

QString QtPath(const fs::path& path)
{
    return QString::fromStdString(path.string());
}

TEST(Maker, MovesWhatWasMade)
{
    const TestFolder folder;
    const fs::path to = folder.Path() / "to";
    EmptyFolder(QtPath(to), {QStringLiteral("*.png")});
    ASSERT_TRUE(fs::is_directory(to));
    WriteBytes(folder.Path() / "a.png", "a");
    WriteBytes(folder.Path() / "b.txt", "b");
    MoveFiles(QStringLiteral("*.png"), QtPath(folder.Path()), QtPath(to));
    EXPECT_EQ(ReadBytes(to / "a.png"), "a");
    EXPECT_FALSE(fs::exists(to / "b.txt"));
    EXPECT_FALSE(fs::exists(folder.Path() / "a.png"));
}

TEST(Maker, RemovesWhatWasMadeBefore)
{
    const TestFolder folder;
    WriteBytes(folder.Path() / "old.png", "old");
    WriteBytes(folder.Path() / "other.txt", "other");
    EmptyFolder(QtPath(folder.Path()), {QStringLiteral("*.png")});
    EXPECT_FALSE(fs::exists(folder.Path() / "old.png"));
    EXPECT_TRUE(fs::exists(folder.Path() / "other.txt"));
}

TEST(Maker, ReadsScripts)
{
    const TestFolder folder;
    WriteBytes(folder.Path() / "script.txt", "demo Try\n");
    EXPECT_EQ(ScriptText(QtPath(folder.Path() / "script.txt")), "demo Try\n");
    EXPECT_THROW(static_cast<void>(ScriptText(QtPath(folder.Path() / "none.txt"))), RunTimeError);
}

} // namespace
} // namespace sprout
