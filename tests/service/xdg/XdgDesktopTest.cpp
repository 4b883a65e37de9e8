// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/xdg/XdgDesktop.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "service/xdg/XdgHome.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

TEST(DocumentsOfUserDirs, TakesTheLastLineThatNamesThem)
{
    EXPECT_EQ(
        DocumentsOfUserDirs("# XDG_DOCUMENTS_DIR=\"/no\"\nXDG_MUSIC_DIR=\"/m\"\nXDG_DOCUMENTS_DIR=\"$HOME/Papers\"\n",
                            "/home/child"),
        "/home/child/Papers");
    EXPECT_EQ(DocumentsOfUserDirs("XDG_DOCUMENTS_DIR=\"/a\"\n  XDG_DOCUMENTS_DIR=\"/b \\\"c\\\"/\"", "/home/child"),
              "/b \"c\"");
}

TEST(DocumentsOfUserDirs, IsEmptyWhereTheyAreSwitchedOffOrNotAbsolute)
{
    for (const char* value : {"$HOME", "$HOME/", "/home/child", "Papers", "", "$HOMEX/a"})
        EXPECT_EQ(DocumentsOfUserDirs("XDG_DOCUMENTS_DIR=\"" + std::string(value) + "\"", "/home/child"), fs::path())
            << value;
    EXPECT_EQ(DocumentsOfUserDirs("", "/home/child"), fs::path());
    EXPECT_EQ(DocumentsOfUserDirs("XDG_DOCUMENTS_DIR=/x", "/home/child"), fs::path());
}

TEST_F(XdgHome, MakesDocumentsInTheHomeFolder)
{
    EXPECT_EQ(XdgDesktop().DocumentsFolder(), folder.Path() / "home/Documents");
    EXPECT_TRUE(fs::is_directory(folder.Path() / "home/Documents"));
}

TEST_F(XdgHome, TakesTheFolderThatTheUserNamed)
{
    WriteBytes(folder.Path() / "home/.config/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"$HOME/Mine\"\n");
    EXPECT_EQ(XdgDesktop().DocumentsFolder(), folder.Path() / "home/Mine");
    fs::create_directories(folder.Path() / "config");
    WriteBytes(folder.Path() / "config/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"$HOME/Other\"\n");
    Set("XDG_CONFIG_HOME", folder.Path() / "config");
    EXPECT_EQ(XdgDesktop().DocumentsFolder(), folder.Path() / "home/Other");
}

TEST_F(XdgHome, KeepsSettingsInTheHomeFolderUnlessTheUserNamesAnother)
{
    EXPECT_EQ(XdgDesktop().ConfigFolder(), folder.Path() / "home/.config");
    Set("XDG_CONFIG_HOME", "relative");
    EXPECT_EQ(XdgDesktop().ConfigFolder(), folder.Path() / "home/.config");
    Set("XDG_CONFIG_HOME", "/some/where");
    EXPECT_EQ(XdgDesktop().ConfigFolder(), "/some/where");
}

TEST_F(XdgHome, PassesOverAFolderInPlaceOfTheList)
{
    fs::create_directories(folder.Path() / "home/.config/user-dirs.dirs");
    EXPECT_EQ(XdgDesktop().DocumentsFolder(), folder.Path() / "home/Documents");
}

TEST_F(XdgHome, HasNoDocumentsWhereNoneCanBeMade)
{
    WriteBytes(folder.Path() / "home/Documents", "a file in the way");
    EXPECT_EQ(XdgDesktop().DocumentsFolder(), fs::path());
}

/// Stubs of the desktop's programs that write into a pipe, so tests wait for them without sleeping.
class DesktopPrograms : public XdgHome {
protected:
    DesktopPrograms()
    {
        ::mkfifo(Pipe().c_str(), 0600);
        reader = ::open(Pipe().c_str(), O_RDWR | O_CLOEXEC);
        MakeStub("xdg-open");
        Set("PATH", folder.Path().native() + ":/usr/bin:/bin");
    }
    ~DesktopPrograms() override { ::close(reader); }

    [[nodiscard]] fs::path Pipe() const { return folder.Path() / "pipe"; }

    /// Makes a program that writes its arguments into the pipe.
    void MakeStub(const std::string& name) const
    {
        WriteBytes(folder.Path() / name, "#!/bin/sh\nprintf '%s' \"$*\" > '" + Pipe().native() + "'\n");
        fs::permissions(folder.Path() / name, fs::perms(0700));
    }

    [[nodiscard]] std::string Opened(int waitMilliseconds) const
    {
        pollfd waiting = {reader, POLLIN, 0};
        std::array<char, 256> text{};
        if (::poll(&waiting, 1, waitMilliseconds) != 1)
            return {};
        const ssize_t count = ::read(reader, text.data(), text.size());
        return {text.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0))};
    }

    int reader = -1;
};

using OpenWithShell = DesktopPrograms;

TEST_F(OpenWithShell, HandsTheTargetOverAsItIs)
{
    const std::string target = "/a b/$(touch x)'\";&.html";
    XdgDesktop().OpenWithShell(target);
    EXPECT_EQ(Opened(10000), target);
}

TEST_F(OpenWithShell, HandsOverNothingThatWouldBeAnOption)
{
    XdgDesktop().OpenWithShell("");
    XdgDesktop().OpenWithShell("--manual");
    XdgDesktop().OpenWithShell("https://tonquill.example/");
    EXPECT_EQ(Opened(10000), "https://tonquill.example/");
}

/// Only the stubs are found.
class OpenSoundControl : public DesktopPrograms {
protected:
    OpenSoundControl()
    {
        Set("PATH", folder.Path());
        Set("XDG_CURRENT_DESKTOP", "");
    }

    using Names = std::vector<std::string>;
};

TEST_F(OpenSoundControl, ShowsTheTabOfTheSideThatIsAskedFor)
{
    MakeStub("pavucontrol");
    MakeStub("pavucontrol-qt");
    EXPECT_EQ(XdgDesktop().OpenSoundControl(SoundControl::Play), Names());
    EXPECT_EQ(Opened(10000), "--tab 3");
    EXPECT_EQ(XdgDesktop().OpenSoundControl(SoundControl::Record), Names());
    EXPECT_EQ(Opened(10000), "--tab 4");
}

TEST_F(OpenSoundControl, OpensTheSoundSettingsOfTheDesktopThatRuns)
{
    MakeStub("gnome-control-center");
    MakeStub("systemsettings");
    Set("XDG_CURRENT_DESKTOP", "ubuntu:GNOME");
    EXPECT_EQ(XdgDesktop().OpenSoundControl(SoundControl::Record), Names());
    EXPECT_EQ(Opened(10000), "sound");
    Set("XDG_CURRENT_DESKTOP", "KDE");
    EXPECT_EQ(XdgDesktop().OpenSoundControl(SoundControl::Record), Names());
    EXPECT_EQ(Opened(10000), "kcm_pulseaudio");
}

TEST_F(OpenSoundControl, NamesWhatWasLookedForWhereNothingIsThere)
{
    MakeStub("systemsettings"); // belongs to another desktop
    EXPECT_EQ(XdgDesktop().OpenSoundControl(SoundControl::Play), (Names{"pavucontrol", "pavucontrol-qt"}));
    Set("XDG_CURRENT_DESKTOP", "GNOME");
    EXPECT_EQ(XdgDesktop().OpenSoundControl(SoundControl::Play),
              (Names{"pavucontrol", "pavucontrol-qt", "gnome-control-center"}));
}

} // namespace
} // namespace sprout
