// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "service/Messages.h"
#include "service/Screen.h"
#include "service/Stretch.h"
#include "service/ffmpeg/FfmpegWmaEncoder.h"
#include "service/posix/PosixFiles.h"
#include "service/posix/PosixMachine.h"
#include "service/qt/QtPictureFiles.h"
#include "service/xdg/XdgDesktop.h"

namespace sprout {

/// Writes each message as a line "TITLE: TEXT" and keeps it.
class ToolMessages : public Messages {
public:
    struct Message {
        std::string title;
        std::string text;
    };

    explicit ToolMessages(std::ostream& stream) : err(stream) {}

    void MessageBox(const Words& title, const Words& text, MessageIcon icon = MessageIcon::None) override;

    [[nodiscard]] const std::vector<Message>& Shown() const { return shown; }

private:
    std::ostream& err;
    std::vector<Message> shown;
};

/// Whether a person watches a terminal.
enum class Watched { No, Yes };

/// The same for the standard error stream.
[[nodiscard]] Watched StandardErrorIsWatched();

/// Draws a progress line for long work if a person watches.
class ToolScreen : public Screen {
public:
    ToolScreen(std::ostream& stream, Watched isWatched) : err(stream), watched(isWatched) {}

    void ShowHourglass() override {}
    void RestorePointer() override {}
    void ShowProcessPic() override {}
    void HideProcessPic() override {}
    void EnableTuneNotFilledTimer() override {}
    void ShowProgress(std::size_t done, std::size_t total) override;
    void BeginStoppable(const Words& what) override { stage = what.English(); }

private:
    std::ostream& err;
    Watched watched;
    std::string stage = "Rendering sounds";
};

/// The services and the shared state of one command.
class Session {
public:
    /// userRoot: the folder with Beats, Tunes, Stars and Songs; empty for the user's own folder.
    Session(std::ostream& out, std::ostream& err, const std::filesystem::path& userRoot, bool beatsOutside,
            Watched watched);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session();

    std::ostream& out;
    ToolMessages messages;

    /// Reports a failure of the tool itself.
    void Fail(const Words& title, const Words& text) { messages.MessageBox(title, text); }
    /// True if no message was shown since the session, or the count, began.
    [[nodiscard]] bool NoMessageSince(std::size_t count) const { return messages.Shown().size() == count; }

private:
    ToolScreen screen;
    PosixFiles files;
    PosixMachine machine;
    XdgDesktop desktop;
    QtPictureFiles pictures;
    FfmpegWmaEncoder wma;
    std::unique_ptr<Stretch> stretch;
};

} // namespace sprout
