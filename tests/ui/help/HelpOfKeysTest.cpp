// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <string>

#include "support/TestFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

const fs::path kSource = (fs::path(SPROUT_TEST_SUPPORT) / ".." / "..").lexically_normal();
const std::string kInGeneral = "<h1>Keys</h1>";

/// The heading of the page that explains the keys of a source file, if it is not the first one.
const std::map<std::string, std::string> kHeadings{
    {"src/main_window/CellKeys.cpp", "<h2>On the tracks</h2>"},
    {"src/main_window/TrackCanvas.cpp", "<h2>On the tracks</h2>"},
    {"src/main_window/TrackScroll.cpp", "<h2>On the tracks</h2>"},
    {"src/main_window/TrackTitlePic.cpp", "<h2>At the names of the tracks</h2>"},
    {"src/ui/widgets/GridKeys.cpp", "<h2>Where you choose a tune or an instrument</h2>"},
    {"src/tune_window/TuneFrm2.cpp", "<h2>Where you choose a tune or an instrument</h2>"},
    {"src/tune_window/StepKeys.cpp", "<h2>On the steps of a tune</h2>"},
    {"src/song_window/SongList.cpp", "<h2>In the list of songs</h2>"},
    {"src/song_window/SongSelFrm.cpp", "<h2>In the list of songs</h2>"},
    {"src/demo/Demo_frm.cpp", "<h2>While you watch a demo</h2>"},
    {"src/recording/AudioEditFrm.cpp", "<h2>Where you edit your recording</h2>"},
    {"src/recording/WavePic.cpp", "<h2>Where you edit your recording</h2>"},
    {"src/ui/help/HelpFrm.cpp", "<h2>In this help</h2>"},
};

/// What the page calls the key of that name.
std::string WordOf(const std::string& key)
{
    static const std::map<std::string, std::string> words{
        {"Up", "arrow key"},  {"Down", "arrow key"},       {"Left", "arrow key"}, {"Right", "arrow key"},
        {"Return", "Enter"},  {"PageUp", "Page Up"},       {"Control", "Ctrl"},   {"PageDown", "Page Down"},
        {"Plus", "<b>+</b>"}, {"Minus", "<b>-</b>"},       {"N", "Ctrl and N"},   {"O", "Ctrl and O"},
        {"S", "Ctrl and S"},  {"SelectAll", "Ctrl and A"}, {"F", "Ctrl and F"}};
    const auto word = words.find(key);
    return word == words.end() ? "<b>" + key + "</b>" : word->second;
}

/// Each key named in a source file.
std::set<std::string> KeysOf(const fs::path& source)
{
    static const std::regex name("Qt::Key_(\\w+)|QKeySequence::(\\w+)");
    std::set<std::string> keys;
    const std::string text = ReadBytes(source);
    for (std::sregex_iterator match(text.begin(), text.end(), name), end; match != end; ++match)
        keys.insert((*match)[1].matched ? (*match)[1] : (*match)[2]);
    return keys;
}

std::string Under(const std::string& page, const std::string& heading)
{
    const std::size_t begin = page.find(heading);
    return begin == std::string::npos ? "" : page.substr(begin, page.find("<h2>", begin + 1) - begin);
}

TEST(HelpOfKeys, TellsEveryKeyThatAWindowTakes)
{
    const std::string page = ReadBytes(kSource / "help" / "keys.html");
    const std::set<std::string> everywhere{"F1", "Return", "Enter"};
    std::size_t checked = 0;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(kSource / "src")) {
        const std::string file = entry.path().lexically_relative(kSource).string();
        // The keys that close an open list belong to the toolkit.
        if (entry.path().extension() != ".cpp" || file == "src/ui/widgets/PopupKeys.cpp")
            continue;
        const auto heading = kHeadings.find(file);
        for (const std::string& key : KeysOf(entry.path())) {
            const bool isGeneral = heading == kHeadings.end() || everywhere.count(key) > 0;
            const std::string text = Under(page, isGeneral ? kInGeneral : heading->second);
            EXPECT_NE(text.find(WordOf(key)), std::string::npos) << key << " of " << file;
            ++checked;
        }
    }
    EXPECT_GE(checked, 80U);
}

} // namespace
} // namespace sprout
