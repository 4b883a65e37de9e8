// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/SampleSong.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <exception>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "base/Extensions.h"
#include "base/FilePaths.h"
#include "base/Guarded.h"
#include "base/Log.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "core/ClassFolder.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/Shared.h"
#include "service/Files.h"
#include "service/Messages.h"
#include "service/Services.h"
#include "songs/OpenSaveClass.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kSampleSong = "Zumi";

fs::path StartCountFile()
{
    return Shared().UserRoot / ".SproutStarts";
}

/// Counts this start, as long as the count matters.
bool IsFirstStart()
{
    const int starts = StartsSoFar();
    if (starts >= kFirstStarts)
        return false;
    const std::string text = std::to_string(starts + 1);
    const std::array piece{std::as_bytes(std::span(text))};
    GuardedQuietly("Counting the starts",
                   [&piece] { TheServices().files->ReplaceFile(StartCountFile(), piece, Flush::No); });
    return true;
}

/// Replaces the message service during its lifetime; messages go to the log alone.
class NoMessages : public Messages {
public:
    NoMessages() : before(std::exchange(TheServices().messages, this)) {}
    NoMessages(const NoMessages&) = delete;
    NoMessages& operator=(const NoMessages&) = delete;
    ~NoMessages() override { TheServices().messages = before; }

    void MessageBox(const Words& title, const Words& text, MessageIcon /*icon*/) override
    {
        Log(title.English() + ": " + text.English());
    }

private:
    Messages* before;
};

/// False, with the song unchanged, if the file has no readable song.
bool LoadQuietly(const fs::path& file)
{
    SongState before = Shared().Song;
    const NoMessages quiet;
    OpenSaveClass().Load_Song(file);
    if (Shared().Song.TrackCount != 0)
        return true;
    Shared().Song = std::move(before);
    return false;
}

/// The song that a setting names, as a path or as one of the user's or the class's songs; else the sample song on a
/// first start.
fs::path SongOfThisStart(bool isFirstStart)
{
    const std::string named(Trim(GetSetting(kGeneralSection, "StartSong", "")));
    if (named.empty())
        return isFirstStart ? SongPath(kSampleSong) : fs::path();
    return fs::path(named).is_absolute() ? fs::path(named) : FindNamedFile(SongFolders(), named, kSongExtension);
}

} // namespace

int StartsSoFar()
{
    std::ifstream file(StartCountFile(), std::ios::binary);
    std::array<char, 8> text{};
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    const double starts = NumberPrefix(std::string_view(text.data(), static_cast<std::size_t>(file.gcount())));
    return static_cast<int>(std::clamp<double>(starts, 0, kFirstStarts));
}

bool OpenSampleSong()
{
    bool isOpen = false;
    GuardedQuietly("Opening the sample song", [&isOpen] {
        const bool isFirst = IsFirstStart();
        const fs::path file = SongOfThisStart(isFirst);
        if (!FileExists(file) || !LoadQuietly(file))
            return;
        Shared().Song.SongTitle = BaseName(file);
        isOpen = true;
    });
    return isOpen;
}

} // namespace sprout
