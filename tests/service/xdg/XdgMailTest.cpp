// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/xdg/XdgMail.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <string>
#include <thread>
#include <vector>

#include "base/Text.h"
#include "service/xdg/XdgHome.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

using Words = std::vector<std::string>;
using std::chrono::milliseconds;

TEST(FindDesktopFile, TakesTheFirstFolderThatHasIt)
{
    const TestFolder folder;
    const std::array<fs::path, 3> data{folder.Path() / "none", folder.Path() / "user", folder.Path() / "machine"};
    for (const fs::path& share : {data[1], data[2]})
        fs::create_directories(share / "applications");
    WriteBytes(data[2] / "applications/mail.desktop", "");
    EXPECT_EQ(FindDesktopFile("mail.desktop", data), data[2] / "applications/mail.desktop");
    WriteBytes(data[1] / "applications/mail.desktop", "");
    EXPECT_EQ(FindDesktopFile("mail.desktop", data), data[1] / "applications/mail.desktop");
}

TEST(FindDesktopFile, LooksBelowFoldersWhoseNamesAreInTheId)
{
    const TestFolder folder;
    const std::array<fs::path, 1> data{folder.Path()};
    const fs::path programs = folder.Path() / "applications";
    fs::create_directories(programs / "kde/my-own");
    WriteBytes(programs / "kde/my-own/mail.desktop", "");
    EXPECT_EQ(FindDesktopFile("kde-my-own-mail.desktop", data), programs / "kde/my-own/mail.desktop");
    WriteBytes(programs / "kde-my-own-mail.desktop", "");
    EXPECT_EQ(FindDesktopFile("kde-my-own-mail.desktop", data), programs / "kde-my-own-mail.desktop");
}

TEST(FindDesktopFile, FindsNoOtherFiles)
{
    const TestFolder folder;
    const std::array<fs::path, 1> data{folder.Path()};
    fs::create_directories(folder.Path() / "applications/kde/folder.desktop");
    WriteBytes(folder.Path() / "outside.desktop", "");
    WriteBytes(folder.Path() / "applications/mail", "");
    for (const char* id : {"", ".desktop", "mail", "../outside.desktop", "kde-folder.desktop", "-mail.desktop", "-",
                           "missing.desktop", "kde-.desktop"})
        EXPECT_EQ(FindDesktopFile(id, data), fs::path()) << id;
}

/// A desktop of stub programs, each of which notes its arguments.
class XdgMailTest : public XdgHome {
protected:
    XdgMailTest()
    {
        for (const char* name : {"bin", "empty", "data/applications"})
            fs::create_directories(folder.Path() / name);
        Set("PATH", (folder.Path() / "bin").native() + ":/usr/bin:/bin");
        Set("XDG_DATA_HOME", "");
        Set("XDG_DATA_DIRS", (folder.Path() / "data").native());
        message.Attachment = folder.Path() / "song.wma";
        WriteBytes(message.Attachment, "song");
    }

    /// A program of the desktop that notes its arguments in NAME.words, each followed by a zero byte, and then runs
    /// `script`.
    void Stub(const std::string& name, const std::string& script = "") const
    {
        const fs::path file = folder.Path() / "bin" / name;
        WriteBytes(file, "#!/bin/sh\nprintf '%s\\0' \"$@\" > '" + Noted(name).native() +
                             "'\necho noise\necho noise >&2\n" + script + "\n");
        fs::permissions(file, fs::perms(0700));
    }
    [[nodiscard]] fs::path Noted(const std::string& name) const { return folder.Path() / (name + ".words"); }
    [[nodiscard]] Words WordsOf(const std::string& name) const
    {
        Words words = Split(ReadBytes(Noted(name)), '\0');
        words.pop_back();
        return words;
    }

    /// Makes a program the default for mail addresses.
    void Choose(const std::string& id, const std::string& entry) const
    {
        WriteBytes(folder.Path() / "bin/xdg-mime",
                   "#!/bin/sh\n[ \"$*\" = 'query default x-scheme-handler/mailto' ] && echo '" + id +
                       "'\necho noise >&2\n");
        fs::permissions(folder.Path() / "bin/xdg-mime", fs::perms(0700));
        WriteBytes(folder.Path() / "data/applications" / id, "[Desktop Entry]\n" + entry);
    }
    void ChooseThunderbird() const { Choose("thunderbird.desktop", "Exec=thunderbird %u\nCategories=Email;\n"); }
    void ChooseOther() const { Choose("other.desktop", "Exec=other %u\n"); }

    /// A stub that reports its process number through one pipe and waits for a line from the other.
    void WaitingStub(const std::string& name)
    {
        for (const fs::path& pipe : {started, goOn})
            ::mkfifo(pipe.c_str(), 0600);
        Stub(name, "echo $$ > '" + started.native() + "'\nread x < '" + goOn.native() + "'");
    }
    void LetGoOn() const
    {
        const int writer = ::open(goOn.c_str(), O_WRONLY | O_CLOEXEC);
        EXPECT_EQ(::write(writer, "x\n", 2), 2);
        ::close(writer);
    }

    /// Waits until a child is completely gone, not even a zombie.
    static bool IsForgotten(pid_t id)
    {
        const auto end = std::chrono::steady_clock::now() + milliseconds(60000);
        while (::kill(id, 0) == 0 && std::chrono::steady_clock::now() < end)
            std::this_thread::yield();
        return ::kill(id, 0) != 0 && errno == ESRCH;
    }

    [[nodiscard]] bool HandOver(XdgMailLimits limits = {milliseconds(60000), milliseconds(60000)}) const
    {
        return XdgMail(limits).HandOver(message, {});
    }

    static bool HasChildren()
    {
        siginfo_t facts{};
        return ::waitid(P_ALL, 0, &facts, WEXITED | WNOHANG | WNOWAIT) == 0;
    }

    const fs::path started = folder.Path() / "started";
    const fs::path goOn = folder.Path() / "go-on";
    MailMessage message{"", "Song - Zumi", "Hi \r\n\r\nbye", {}};
};

TEST_F(XdgMailTest, HandsThunderbirdTheMessageItself)
{
    Stub("thunderbird");
    Stub("xdg-email");
    ChooseThunderbird();
    EXPECT_TRUE(HandOver());
    EXPECT_EQ(WordsOf("thunderbird"),
              (Words{"-compose", "subject=Song%20-%20Zumi,body=Hi%20%0A%0Abye,attachment='file://" +
                                     message.Attachment.native() + "'"}));
    EXPECT_FALSE(fs::exists(Noted("xdg-email")));
}

TEST_F(XdgMailTest, HandsOtherProgramsTheMessageThroughTheDesktop)
{
    Stub("xdg-email");
    ChooseOther();
    EXPECT_TRUE(HandOver());
    EXPECT_EQ(WordsOf("xdg-email"), (Words{"--utf8", "--subject", "Song - Zumi", "--body", "Hi \n\nbye", "--attach",
                                           message.Attachment.native()}));
}

/// The bytes that a percent-encoded text stands for.
std::string Decoded(std::string_view text)
{
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%') {
            bytes.push_back(static_cast<char>(std::stoi(std::string(text.substr(i + 1, 2)), nullptr, 16)));
            i += 2;
        } else {
            bytes.push_back(text[i]);
        }
    }
    return bytes;
}

constexpr std::array kOddTitles{"It's \"quoted\", 'twice'",
                                "100 % of it, a=b&c",
                                "one\ntwo\r\nthree",
                                "$(touch x)`touch y`; touch z | \\",
                                "أغنية للأطفال",
                                "-rf",
                                "--help me",
                                "@@ %u %25 {} * ? ~ #"};

TEST_F(XdgMailTest, KeepsEveryByteOfOddTitlesForTheDesktop)
{
    Stub("xdg-email");
    ChooseOther();
    for (const char* title : kOddTitles) {
        message.Subject = title;
        message.Body = std::string("\"") + title + "\"";
        message.Attachment = folder.Path() / "a'b\"c, $(touch q) 5%é.wma";
        ASSERT_TRUE(HandOver());
        const Words words = WordsOf("xdg-email");
        ASSERT_EQ(words.size(), 7U);
        std::string plain = title;
        std::erase(plain, '\r');
        EXPECT_EQ(words[2], plain);
        EXPECT_EQ(words[4], "\"" + plain + "\"");
        EXPECT_EQ(words[6], message.Attachment.native());
    }
}

TEST_F(XdgMailTest, KeepsEveryByteOfOddTitlesForThunderbird)
{
    Stub("thunderbird");
    ChooseThunderbird();
    for (const char* title : kOddTitles) {
        message.Subject = title;
        message.Body = std::string("\"") + title + "\"";
        message.Attachment = folder.Path() / "a'b\"c, $(touch q) 5%é.wma";
        ASSERT_TRUE(HandOver());
        const Words parts = Split(WordsOf("thunderbird").at(1), ',');
        ASSERT_EQ(parts.size(), 3U) << title;
        std::string plain = title;
        std::erase(plain, '\r');
        EXPECT_EQ(Decoded(parts[0]), "subject=" + plain);
        EXPECT_EQ(Decoded(parts[1]), "body=\"" + plain + "\"");
        EXPECT_EQ(Decoded(parts[2]), "attachment='file://" + message.Attachment.native() + "'");
    }
}

TEST_F(XdgMailTest, TakesAWebBrowserForNoMailProgram)
{
    Stub("browser");
    Stub("xdg-email");
    Choose("browser.desktop", "Exec=browser %u\nCategories=Network;WebBrowser;\n");
    EXPECT_FALSE(HandOver());
    EXPECT_FALSE(fs::exists(Noted("browser")));
    EXPECT_FALSE(fs::exists(Noted("xdg-email")));
}

TEST_F(XdgMailTest, FailsWhereNoProgramIsChosen)
{
    Stub("xdg-email");
    Stub("xdg-mime");
    EXPECT_FALSE(HandOver()); // the stub's noise is not the name of a program
    WriteBytes(folder.Path() / "bin/xdg-mime", "#!/bin/sh\n");
    EXPECT_FALSE(HandOver());
    EXPECT_FALSE(fs::exists(Noted("xdg-email")));
}

TEST_F(XdgMailTest, FailsWhereTheChosenProgramIsGone)
{
    Stub("xdg-email");
    ChooseOther();
    fs::remove(folder.Path() / "data/applications/other.desktop");
    EXPECT_FALSE(HandOver());
    ChooseThunderbird();
    EXPECT_FALSE(HandOver()); // there is no program of that name
    EXPECT_FALSE(fs::exists(Noted("xdg-email")));
}

TEST_F(XdgMailTest, FailsWhereTheDesktopHasNoPrograms)
{
    Set("PATH", folder.Path() / "empty");
    EXPECT_FALSE(HandOver());
}

TEST_F(XdgMailTest, FailsWhereTheProgramComplainsAtOnce)
{
    Stub("xdg-email", "exit 1");
    Stub("thunderbird", "kill -9 $$");
    ChooseOther();
    EXPECT_FALSE(HandOver());
    EXPECT_TRUE(fs::exists(Noted("xdg-email")));
    ChooseThunderbird();
    EXPECT_FALSE(HandOver());
    EXPECT_TRUE(fs::exists(Noted("thunderbird")));
}

TEST_F(XdgMailTest, FailsWithAMessageThatNoProgramCanTake)
{
    Stub("xdg-email");
    ChooseOther();
    message.Subject = std::string(1U << 22, 'a');
    EXPECT_FALSE(HandOver());
}

TEST_F(XdgMailTest, TakesAProgramThatRunsOnForStartedAndLeavesNoZombie)
{
    WaitingStub("thunderbird");
    ChooseThunderbird();
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_TRUE(HandOver({milliseconds(60000), milliseconds(500)}));
    EXPECT_GE(std::chrono::steady_clock::now() - begin, milliseconds(500));
    const pid_t id = std::stoi(ReadBytes(started));
    EXPECT_EQ(::kill(id, 0), 0);
    EXPECT_EQ(::getsid(id), id);
    LetGoOn();
    EXPECT_TRUE(IsForgotten(id));
}

TEST_F(XdgMailTest, LeavesNoZombieOfWhatHasEnded)
{
    Stub("xdg-email");
    ChooseOther();
    EXPECT_TRUE(HandOver());
    EXPECT_FALSE(HasChildren());
}

TEST_F(XdgMailTest, EndsADesktopThatDoesNotAnswer)
{
    Stub("xdg-email");
    WaitingStub("xdg-mime");
    EXPECT_FALSE(HandOver({milliseconds(500), milliseconds(60000)}));
    EXPECT_FALSE(HasChildren());
    EXPECT_FALSE(fs::exists(Noted("xdg-email")));
}

TEST_F(XdgMailTest, StopsWaitingWhenItIsAskedTo)
{
    WaitingStub("xdg-mime");
    WaitingStub("thunderbird");
    pid_t id = 0;
    for (const bool inAnswer : {true, false}) {
        if (!inAnswer)
            ChooseThunderbird();
        const auto begin = std::chrono::steady_clock::now();
        {
            const std::jthread handOver([this](const std::stop_token& stop) {
                static_cast<void>(XdgMail({milliseconds(60000), milliseconds(60000)}).HandOver(message, stop));
            });
            id = std::stoi(ReadBytes(started));
        }
        EXPECT_LT(std::chrono::steady_clock::now() - begin, milliseconds(30000));
    }
    LetGoOn(); // the mail program was not ended
    EXPECT_TRUE(IsForgotten(id));
}

TEST_F(XdgMailTest, StartsNothingOnceItIsAskedToStop)
{
    Stub("thunderbird");
    ChooseThunderbird();
    std::stop_source stop;
    stop.request_stop();
    EXPECT_FALSE(XdgMail().HandOver(message, stop.get_token()));
    EXPECT_FALSE(fs::exists(Noted("thunderbird")));
}

TEST_F(XdgMailTest, LetsNoFileAndNoNoiseThrough)
{
    // Kept open on purpose, as a careless library would do.
    const int ours = ::open(message.Attachment.c_str(), O_RDONLY);
    Stub("xdg-email", "ls -l /proc/$$/fd > '" + (folder.Path() / "files").native() + "'");
    ChooseOther();
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    EXPECT_TRUE(HandOver());
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    ::close(ours);
    const std::string files = ReadBytes(folder.Path() / "files");
    EXPECT_EQ(files.find("song.wma"), std::string::npos) << files;
    EXPECT_NE(files.find(" 0 -> /dev/null"), std::string::npos) << files;
    EXPECT_NE(files.find(" 2 -> /dev/null"), std::string::npos) << files;
}

} // namespace
} // namespace sprout
