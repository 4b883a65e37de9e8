// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/xdg/XdgDesktop.h"

#include <spawn.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <system_error>

#include "base/Text.h"
#include "posix/StartProgram.h"
#include "service/xdg/ChildProcess.h"
#include "service/xdg/Environment.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

/// The value between the quotes of a line NAME="value", with its backslashes resolved.
std::string QuotedValue(std::string_view line)
{
    std::string value;
    const auto open = line.find('"');
    if (open == std::string_view::npos)
        return value;
    for (std::size_t i = open + 1; i < line.size() && line[i] != '"'; ++i) {
        if (line[i] == '\\' && i + 1 < line.size())
            ++i;
        value.push_back(line[i]);
    }
    return value;
}

/// A program that shows the desktop's volumes.
struct ControlProgram {
    std::string_view desktop; ///< as named by XDG_CURRENT_DESKTOP; empty: runs on any
    const char* program;
    const char* argument; ///< empty: it takes the number of the tab to show first
};

constexpr std::array kControlPrograms{
    ControlProgram{"", "pavucontrol", ""},
    ControlProgram{"", "pavucontrol-qt", ""},
    ControlProgram{"GNOME", "gnome-control-center", "sound"},
    ControlProgram{"Unity", "gnome-control-center", "sound"},
    ControlProgram{"KDE", "systemsettings", "kcm_pulseaudio"},
    ControlProgram{"KDE", "systemsettings5", "kcm_pulseaudio"},
    ControlProgram{"X-Cinnamon", "cinnamon-settings", "sound"},
};

/// The tab of output devices or input devices.
const char* TabOf(SoundControl control)
{
    return control == SoundControl::Play ? "3" : "4";
}

std::vector<std::string> WordsOf(const ControlProgram& program, SoundControl control)
{
    if (*program.argument != '\0')
        return {program.program, program.argument};
    return {program.program, "--tab", TabOf(control)};
}

} // namespace

fs::path DocumentsOfUserDirs(std::string_view lines, const fs::path& home)
{
    constexpr std::string_view name = "XDG_DOCUMENTS_DIR=";
    constexpr std::string_view homeWord = "$HOME";
    fs::path documents;
    while (!lines.empty()) {
        const auto end = std::min(lines.find('\n'), lines.size());
        std::string_view line = lines.substr(0, end);
        lines.remove_prefix(std::min(end + 1, lines.size()));
        line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
        if (!line.starts_with(name))
            continue;
        const std::string value = QuotedValue(line);
        const bool inHome =
            value.starts_with(homeWord) && (value.size() == homeWord.size() || value[homeWord.size()] == '/');
        documents = inHome ? fs::path(home.native() + value.substr(homeWord.size())) : fs::path(value);
    }
    if (!documents.is_absolute())
        return {};
    const fs::path plain = (documents / "").lexically_normal();
    return plain == (home / "").lexically_normal() ? fs::path() : plain.parent_path();
}

fs::path XdgDesktop::DocumentsFolder() const
{
    const fs::path home = HomeFolder();
    if (home.empty())
        return {};
    fs::path documents = DocumentsOfUserDirs(FileText(UserConfigFolder() / "user-dirs.dirs"), home);
    if (documents.empty())
        documents = home / "Documents";
    std::error_code error;
    fs::create_directories(documents, error);
    return fs::is_directory(documents, error) ? documents : fs::path();
}

fs::path XdgDesktop::ConfigFolder() const
{
    return UserConfigFolder();
}

void XdgDesktop::OpenWithShell(std::string_view target)
{
    std::string program = "xdg-open";
    std::string argument(target);
    if (argument.empty() || argument.front() == '-') // would be taken for an option
        return;
    // In the background of a shell that exits at once: the opened program is not our child, and nothing waits for it.
    std::string shell = "/bin/sh";
    std::string option = "-c";
    std::string script = "\"$0\" \"$1\" >/dev/null 2>&1 &";
    const std::array<char*, 6> words = {shell.data(),   option.data(),   script.data(),
                                        program.data(), argument.data(), nullptr};
    pid_t child = 0;
    int status = 0;
    if (::posix_spawn(&child, shell.c_str(), nullptr, nullptr, words.data(), environ) == 0)
        WaitForProgram(child, status);
}

std::vector<std::string> XdgDesktop::OpenSoundControl(SoundControl control)
{
    const std::vector<std::string> desktops = Split(FromEnvironment("XDG_CURRENT_DESKTOP").native(), ':');
    std::vector<std::string> lookedFor;
    for (const ControlProgram& program : kControlPrograms) {
        if (!program.desktop.empty() && std::find(desktops.begin(), desktops.end(), program.desktop) == desktops.end())
            continue;
        if (ChildProcess::Start(WordsOf(program, control)))
            return {};
        lookedFor.emplace_back(program.program);
    }
    return lookedFor;
}

} // namespace sprout
