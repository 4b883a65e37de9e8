// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/ProgramWindows.h"
#include "main_window/MainFrm.h"
#include "main_window/TransportCommands.h"
#include "service/Desktop.h"
#include "service/Machine.h"
#include "service/Stretch.h"
#include "service/posix/PosixFiles.h"
#include "service/posix/PosixFolderCopies.h"
#include "service/posix/PosixPrivateFolders.h"
#include "service/qt/QtPictureFiles.h"
#include "tutorial/HeardSound.h"
#include "tutorial/SlideLayout.h"
#include "tutorial/SungVoice.h"
#include "ui/forms/QtMessages.h"
#include "ui/forms/QtScreen.h"

namespace sprout {

/// A machine of its own: the same facts every time, and all folders below one.
class DemoMachine : public Machine {
public:
    explicit DemoMachine(std::filesystem::path folder) : own(std::move(folder)) {}

    [[nodiscard]] MemoryStatus GlobalMemoryStatus() const override;
    [[nodiscard]] std::filesystem::path TempPath() const override { return own / "temp"; }
    [[nodiscard]] std::filesystem::path CommonTempPath() const override { return own / "temp"; }
    [[nodiscard]] std::filesystem::path ConfigFolder() const override { return own / "all-users"; }
    [[nodiscard]] std::filesystem::path ExecutablePath() const override { return own / "program" / "sprout-painter"; }
    [[nodiscard]] std::uint64_t FreeBytes(const std::filesystem::path& path) const override;

private:
    std::filesystem::path own;
};

/// A desktop that has a folder for documents, and nothing else.
class DemoDesktop : public Desktop {
public:
    explicit DemoDesktop(std::filesystem::path folder) : documents(std::move(folder)) {}

    [[nodiscard]] std::filesystem::path DocumentsFolder() const override { return documents; }
    [[nodiscard]] std::filesystem::path ConfigFolder() const override { return documents.parent_path() / "config"; }
    void OpenWithShell(std::string_view /*target*/) override {}
    [[nodiscard]] std::vector<std::string> OpenSoundControl(SoundControl /*control*/) override { return {}; }

private:
    std::filesystem::path documents;
};

/// Whether the program welcomes the user. A card would be on every slide.
enum class Welcome { LeftOut, Shown };

/// The whole program as on its first start, in a folder of its own, with a loudspeaker and a microphone that do what
/// they are told. Needs the application object and its look.
class DemoProgram {
public:
    /// installRoot: the folder of the installed beats, tunes and songs. folder: an empty one.
    /// welcome: whether the card of the very first start is shown. size: of the main window.
    DemoProgram(const std::filesystem::path& installRoot, const std::filesystem::path& folder,
                Welcome welcome = Welcome::LeftOut, const BoxSize& size = kSlideSize);
    DemoProgram(const DemoProgram&) = delete;
    DemoProgram& operator=(const DemoProgram&) = delete;
    ~DemoProgram();

    [[nodiscard]] HeardSound& Sound() { return sound; }
    [[nodiscard]] SungVoice& Voice() { return voice; }
    [[nodiscard]] TransportCommands& Transport() { return transport; }

private:
    void OfferServices();
    void OpenWindow(Welcome welcome, const BoxSize& size);

    TransportCommands transport{nullptr};
    QtScreen screen;
    QtMessages messages;
    PosixFiles files;
    PosixFolderCopies folderCopies;
    DemoMachine machine;
    DemoDesktop desktop;
    QtPictureFiles pictures;
    std::unique_ptr<Stretch> stretch;
    HeardSound sound;
    SungVoice voice;
    PosixPrivateFolders privateFolders;
    ProgramWindows windows;
    std::unique_ptr<ProvidedWindows> provided;
    std::unique_ptr<MainFrm> window;
};

} // namespace sprout
