// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/help/HelpPages.h"

#include <gmock/gmock.h>

#include <QWidget>

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "support/TestFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

const fs::path kSource = (fs::path(SPROUT_TEST_SUPPORT) / ".." / "..").lexically_normal();

std::vector<fs::path> FilesBelow(const fs::path& folder, const std::string& ending)
{
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder))
        if (entry.path().extension() == ending)
            files.push_back(entry.path());
    return files;
}

/// What the first group of `pattern` matches in `text`.
std::set<std::string> Matches(const std::string& text, const std::regex& pattern)
{
    std::set<std::string> found;
    for (std::sregex_iterator match(text.begin(), text.end(), pattern), end; match != end; ++match)
        found.insert((*match)[1]);
    return found;
}

/// The same where `start` stands, which is faster.
std::set<std::string> MatchesFrom(const std::string& text, const std::string& start, const std::regex& pattern)
{
    std::set<std::string> found;
    std::smatch match;
    for (std::size_t at = text.find(start); at != std::string::npos; at = text.find(start, at + 1))
        if (std::regex_search(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(), match, pattern,
                              std::regex_constants::match_continuous))
            found.insert(match[1]);
    return found;
}

std::string Lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char letter) { return static_cast<char>(std::tolower(static_cast<unsigned char>(letter))); });
    return text;
}

std::string InOneLine(const std::string& text)
{
    std::string line;
    for (const char letter : text) {
        const bool isBlank = std::isspace(static_cast<unsigned char>(letter)) != 0;
        if (!isBlank || line.empty() || line.back() != ' ')
            line += isBlank ? ' ' : letter;
    }
    return line;
}

/// Every page, by its file's name.
std::map<std::string, std::string> Pages()
{
    std::map<std::string, std::string> pages;
    for (const fs::path& file : FilesBelow(kSource / "help", ".html"))
        pages[file.stem().string()] = ReadBytes(file);
    return pages;
}

TEST(HelpPages, AreTheFilesOfTheBook)
{
    std::set<std::string> listed;
    for (const HelpPage& page : HelpPages())
        listed.insert(page.file);
    EXPECT_EQ(listed.size(), HelpPages().size());
    std::set<std::string> files;
    for (const auto& [name, text] : Pages())
        files.insert(name);
    EXPECT_EQ(listed, files);
}

TEST(HelpPages, HaveOneForEveryWindow)
{
    static const std::regex form("class (\\w+)(?: final)? : public (?:BandedForm|NotesForm)");
    std::set<std::string> windows{"MainFrm"};
    for (const fs::path& file : FilesBelow(kSource / "src", ".h"))
        windows.merge(Matches(ReadBytes(file), form));
    windows.erase("NotesForm"); // what the message forms have in common
    EXPECT_GE(windows.size(), 19U);
    for (const std::string& name : windows) {
        QWidget window;
        window.setObjectName(QString::fromStdString(name));
        EXPECT_GE(PageAbout(&window), 0) << name;
    }
}

TEST(HelpPages, AreFoundByThePartsOfAWindow)
{
    QWidget window;
    window.setObjectName(QStringLiteral("TuneFrm2"));
    QWidget button(&window);
    EXPECT_EQ(PageAbout(&button), PageAbout(&window));
    QWidget steps(&window);
    steps.setObjectName(QStringLiteral("TunFramPic"));
    const QWidget step(&steps);
    EXPECT_EQ(PageAbout(&step), PageAbout(&steps));
    EXPECT_NE(PageAbout(&step), PageAbout(&window));
    const QWidget unknown;
    EXPECT_EQ(PageAbout(&unknown), -1);
    EXPECT_EQ(PageAbout(nullptr), -1);
}

TEST(HelpPages, KnowOnlyWindowsAndPagesThatAreThere)
{
    std::string sources;
    for (const fs::path& file : FilesBelow(kSource / "src", ".cpp"))
        sources += ReadBytes(file);
    for (const HelpOfWindow& about : HelpOfWindows()) {
        EXPECT_NE(sources.find("setObjectName(QStringLiteral(\"" + std::string(about.window) + "\"))"),
                  std::string::npos)
            << about.window;
        QWidget window;
        window.setObjectName(QString::fromLatin1(about.window));
        const int page = PageAbout(&window);
        ASSERT_GE(page, 0) << about.window;
        EXPECT_STREQ(HelpPages()[static_cast<std::size_t>(page)].file, about.file);
    }
}

TEST(HelpPages, NameEveryControlInBold)
{
    static const std::regex bold("<b>([^<]+)</b>");
    static const std::string words = "Words::(?:Later|Text)\\(\"([^\"%]+)\"\\)";
    static const std::vector<std::pair<std::string, std::regex>> controls{
        // each with words to look for first
        {"Btn\", ", std::regex("Btn\", " + words)},
        {"SetSpokenName(", std::regex("SetSpokenName\\([^;\"]*?" + words)},
        {"setAccessibleName(", std::regex("setAccessibleName\\([^;\"]*?" + words)},
        {"AddPicture<", std::regex("AddPicture<\\w+>\\([^;]*?" + words)},
        {"MoveMnu::", std::regex("MoveMnu::\\w+, " + words)},
        {"StepNosRow{", std::regex("StepNosRow\\{" + words)}};
    std::set<std::string> written;
    for (const auto& [name, text] : Pages())
        for (const std::string& marked : Matches(InOneLine(text), bold)) {
            written.insert(Lower(marked));
            if (marked.back() == '.')
                written.insert(Lower(marked.substr(0, marked.size() - 1)));
        }
    std::size_t checked = 0;
    for (const char* ending : {".cpp", ".h"})
        for (const fs::path& file : FilesBelow(kSource / "src", ending)) {
            if (file.filename() == "MainWindowHints.cpp") // hints, but no names
                continue;
            const std::string source = InOneLine(ReadBytes(file));
            for (const auto& [start, control] : controls)
                for (const std::string& name : MatchesFrom(source, start, control)) {
                    EXPECT_EQ(written.count(Lower(name)), 1U) << name << " of " << file;
                    ++checked;
                }
        }
    EXPECT_GE(checked, 100U);
}

TEST(HelpPages, AreEachLinkedFromAnother)
{
    static const std::regex link("href=[\"'](\\w+)\\.html");
    std::map<std::string, int> links;
    for (const auto& [name, text] : Pages())
        for (const std::string& target : Matches(text, link))
            links[target] += target == name ? 0 : 1;
    for (const auto& [name, text] : Pages())
        EXPECT_TRUE(name == "welcome" || links[name] > 0) << name;
}

TEST(HelpPages, LeadNowhereElse)
{
    static const std::regex reference("href=[\"']([^\"']+)");
    const std::map<std::string, std::string> pages = Pages();
    std::size_t links = 0;
    for (const auto& [name, text] : pages)
        for (const std::string& target : Matches(text, reference)) {
            const std::size_t mark = target.find('#');
            const std::string file = mark == 0 ? name + ".html" : target.substr(0, mark);
            const auto page = pages.find(fs::path(file).stem().string());
            ASSERT_NE(page, pages.end()) << target << " on " << name;
            EXPECT_EQ(fs::path(file).extension(), ".html") << target;
            if (mark != std::string::npos) {
                EXPECT_NE(page->second.find("<a name=\"" + target.substr(mark + 1) + "\">"), std::string::npos)
                    << target << " on " << name;
            }
            ++links;
        }
    EXPECT_GE(links, 40U);
}

TEST(HelpPages, ShowTheWindowThatTheyAreAbout)
{
    static const std::regex picture("<img src=\"window:(\\w+)\"");
    std::map<std::string, std::string> pages = Pages();
    for (const HelpOfWindow& about : HelpOfWindows())
        EXPECT_THAT(pages[about.file], testing::HasSubstr("<img src=\"window:" + std::string(about.file) + "\""));
    std::set<std::string> shown;
    for (const auto& [name, text] : pages)
        shown.merge(Matches(text, picture));
    std::set<std::string> kept;
    std::istringstream script(ReadBytes(kSource / "help" / "pictures.txt"));
    for (std::string line; std::getline(script, line);)
        kept.merge(Matches(line, std::regex("^keep (\\w+) ")));
    EXPECT_EQ(shown, kept);
}

TEST(HelpPages, TellInWordsWhatTheirPicturesOfWindowsShow)
{
    static const std::regex told("<img src=\"window:(\\w+)\" alt=\"[^\"<>]{60,300}[.]\">");
    static const std::regex any("src=\"window:(\\w+)\"");
    for (const auto& [name, text] : Pages())
        EXPECT_EQ(Matches(InOneLine(text), told), Matches(text, any)) << name;
}

TEST(HelpPages, TellTeachersEverySettingForSchools)
{
    const std::string settings = ReadBytes(kSource / "docs" / "settings.md");
    const std::size_t begin = settings.find("## For schools");
    const std::set<std::string> keys =
        Matches(settings.substr(begin, settings.find("\n## ", begin + 1) - begin), std::regex("General \\| `(\\w+)`"));
    EXPECT_GE(keys.size(), 7U);
    for (const std::string& key : keys)
        EXPECT_THAT(Pages()["teachers"], testing::HasSubstr("<b>" + key + "=")) << key;
}

} // namespace
} // namespace sprout
