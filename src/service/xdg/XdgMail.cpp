// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/xdg/XdgMail.h"

#include <sys/mman.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <system_error>

#include "base/Text.h"
#include "service/xdg/ChildProcess.h"
#include "service/xdg/DesktopFile.h"
#include "service/xdg/Environment.h"
#include "service/xdg/MailCommand.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

/// A file in memory, which no child inherits by accident. Null if none can be created.
File MemoryFile()
{
    const int descriptor = ::memfd_create("answer", MFD_CLOEXEC);
    File file(descriptor < 0 ? nullptr : ::fdopen(descriptor, "r+"));
    if (!file && descriptor >= 0)
        ::close(descriptor);
    return file;
}

/// The start of what was written to a file.
std::string Written(std::FILE& file)
{
    std::array<char, 4096> bytes{};
    std::rewind(&file);
    const std::size_t count = std::fread(bytes.data(), 1, bytes.size(), &file);
    return {bytes.data(), count};
}

/// The id of the program that opens mail addresses; empty if there is none or the desktop does not answer in time.
std::string AskForMailProgram(std::chrono::milliseconds limit, const std::stop_token& stop)
{
    const File answer = MemoryFile();
    if (!answer)
        return {};
    std::optional<ChildProcess> question =
        ChildProcess::Start({"xdg-mime", "query", "default", "x-scheme-handler/mailto"}, ::fileno(answer.get()));
    if (!question)
        return {};
    if (!question->EndsWithin(limit, stop)) {
        question->Kill();
        return {};
    }
    // Some desktops name several; the first one counts.
    const std::string text = Written(*answer);
    return std::string(Trim(text.substr(0, text.find_first_of(";\r\n"))));
}

/// Looks for `rest` of an id in a folder of .desktop files and its subfolders.
fs::path FindBelow(const fs::path& folder, std::string_view rest)
{
    std::error_code error;
    if (fs::path file = folder / rest; fs::is_regular_file(file, error))
        return file;
    for (auto dash = rest.find('-'); dash != std::string_view::npos; dash = rest.find('-', dash + 1)) {
        const fs::path below = folder / rest.substr(0, dash);
        if (dash == 0 || !fs::is_directory(below, error))
            continue;
        if (fs::path file = FindBelow(below, rest.substr(dash + 1)); !file.empty())
            return file;
    }
    return {};
}

} // namespace

fs::path FindDesktopFile(std::string_view id, std::span<const fs::path> dataFolders)
{
    if (!id.ends_with(".desktop") || id.find('/') != std::string_view::npos)
        return {};
    for (const fs::path& folder : dataFolders)
        if (fs::path file = FindBelow(folder / "applications", id); !file.empty())
            return file;
    return {};
}

bool XdgMail::HandOver(const MailMessage& message, std::stop_token stop)
{
    const std::string id = AskForMailProgram(limits.Answer, stop);
    const fs::path file = FindDesktopFile(id, DataFolders());
    if (file.empty() || stop.stop_requested())
        return false;
    const DesktopFile program = ParseDesktopFile(FileText(file));
    if (IsWebBrowser(program))
        return false;
    std::optional<ChildProcess> child = ChildProcess::Start(MailCommand(id, program, message));
    return child && (!child->EndsWithin(limits.Failure, stop) || child->Succeeded());
}

} // namespace sprout
