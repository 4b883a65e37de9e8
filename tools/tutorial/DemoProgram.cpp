// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/DemoProgram.h"

#include <string>

#include "app/OpenMainWindow.h"
#include "app/start/StartUp.h"
#include "core/Settings.h"
#include "core/Shared.h"
#include "service/Services.h"
#include "sound/PlayMod.h"
#include "stretch/StretchService.h"
#include "ui/look/ProgramPictures.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr std::uint64_t kMemoryBytes = 8'000'000'000;
constexpr std::uint64_t kFreeBytes = 100'000'000'000;
constexpr int kTwipsPerPixel = 15;
constexpr const char* kVoice = "V_Choir Aah High.wav";

} // namespace

MemoryStatus DemoMachine::GlobalMemoryStatus() const
{
    return {kMemoryBytes, kMemoryBytes / 2, 50};
}

std::uint64_t DemoMachine::FreeBytes(const fs::path& /*path*/) const
{
    return kFreeBytes;
}

DemoProgram::DemoProgram(const fs::path& installRoot, const fs::path& folder, Welcome welcome, const BoxSize& size)
    : machine(folder), desktop(folder / "documents"), stretch(MakeStretch())
{
    for (const char* part : {"program", "documents", "temp"})
        fs::create_directories(folder / part);
    fs::create_directory_symlink(fs::absolute(installRoot), folder / "program" / "Sprout");
    OfferServices();
    MakeProgramPictures();
    provided = std::make_unique<ProvidedWindows>(windows);
    RunStartUp();
    OpenWindow(welcome, size);
}

DemoProgram::~DemoProgram()
{
    window.reset();
    provided.reset();
    ReleasePlayer();
    TheServices() = Services();
}

void DemoProgram::OfferServices()
{
    TheServices() = {&messages, &screen, &files, &machine, &desktop, &pictures, stretch.get(), &sound, &transport};
    TheServices().privateFolders = &privateFolders;
    TheServices().folderCopies = &folderCopies;
    TheServices().capture = &voice;
}

/// The window stands in the corner of the screen; one of the usual size fills that of the slides.
void DemoProgram::OpenWindow(Welcome welcome, const BoxSize& size)
{
    const auto pair = [](int a, int b) {
        return std::to_string(a * kTwipsPerPixel) + "," + std::to_string(b * kTwipsPerPixel);
    };
    PutSetting("MainWindow", "WindowState", "0");
    PutSetting("MainWindow", "Position", pair(0, 0));
    PutSetting("MainWindow", "Size", pair(size.width, size.height));
    if (welcome == Welcome::LeftOut)
        PutSetting("General", "WelcomeShown", "1");
    window = std::make_unique<MainFrm>(transport);
    screen.SetProcessPic(&window->WorkingSign());
    screen.SetTuneNotFilledTimer([this] { window->EnableTuneNotFilledTimer(); });
    OpenMainWindow(*window);
    voice.SetVoice(LoadWaveFile(Shared().InstallBeats / kVoice));
}

} // namespace sprout
