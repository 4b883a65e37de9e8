// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <future>
#include <memory>
#include <span>
#include <utility>

#include "app/AheadOfPlay.h"
#include "app/OpenMainWindow.h"
#include "app/ProgramWindows.h"
#include "app/SystemEnd.h"
#include "app/sound/LimitedSound.h"
#include "app/sound/MachineCapture.h"
#include "app/sound/MachineSound.h"
#include "app/start/GivenSong.h"
#include "app/start/StartUp.h"
#include "base/Guarded.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "main_window/MainFrm.h"
#include "main_window/TransportCommands.h"
#include "service/Services.h"
#include "service/ffmpeg/FfmpegWmaEncoder.h"
#include "service/ffmpeg/SoundChild.h"
#include "service/fontconfig/FontList.h"
#include "service/posix/LargePages.h"
#include "service/posix/PosixFiles.h"
#include "service/posix/PosixFolderCopies.h"
#include "service/posix/PosixMachine.h"
#include "service/posix/PosixPrivateFolders.h"
#include "service/posix/ThreadPriority.h"
#include "service/qt/QtPictureFiles.h"
#include "service/xdg/XdgDesktop.h"
#include "service/xdg/XdgMail.h"
#include "sound/PlayMod.h"
#include "sound/RenderAhead.h"
#include "stretch/StretchService.h"
#include "ui/forms/QtMessages.h"
#include "ui/forms/QtScreen.h"
#include "ui/look/Look.h"
#include "ui/look/ProgramPictures.h"
#include "ui/words/PseudoLanguage.h"

namespace sprout {
namespace {

/// If Qt finds no display, it ends the program with a long text and an abort; this tells the user what is missing.
void TellNoDisplay(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*text*/)
{
    if (type != QtFatalMsg)
        return;
    std::fputs("Sprout Painter needs a display: start it from a desktop, or set DISPLAY.\n", stderr);
    std::_Exit(EXIT_FAILURE);
}

/// The services of the machine. The player, which holds a sound device, is released before them.
class ProgramServices {
public:
    ProgramServices()
    {
        LargePages::UseFromNowOn();
        TheServices() = {&messages, &screen,       &files,   &machine,  &desktop,
                         &pictures, stretch.get(), &limited, &transport};
        TheServices().wma = &wma;
        TheServices().mail = &mail;
        TheServices().privateFolders = &privateFolders;
        TheServices().folderCopies = &folderCopies;
        TheServices().soundReader = &soundReader;
        TheServices().capture = &capture;
    }
    ProgramServices(const ProgramServices&) = delete;
    ProgramServices& operator=(const ProgramServices&) = delete;
    ~ProgramServices() { ReleasePlayer(); }

    void CountSoundDevicesAhead() { sound.CountAhead(); }

    QtScreen screen;
    TransportCommands transport{nullptr};

private:
    QtMessages messages;
    PosixFiles files;
    PosixFolderCopies folderCopies;
    PosixMachine machine;
    XdgDesktop desktop;
    QtPictureFiles pictures;
    std::unique_ptr<Stretch> stretch = MakeStretch();
    MachineSound sound;
    LimitedSound limited{sound};
    MachineCapture capture;
    FfmpegWmaEncoder wma;
    XdgMail mail;
    PosixPrivateFolders privateFolders;
    SoundChild soundReader{machine.ExecutablePath().parent_path() / "sprout-read-sound",
                           [] { return NewTempFileName("wav"); }};
};

std::unique_ptr<AheadWork> MakeRenderAhead(std::function<void()> tellResult)
{
    return std::make_unique<RenderAhead>(AheadThreads{LowerThreadPriority, std::move(tellResult)});
}

int RunProgram(QApplication& application, const std::filesystem::path& song)
{
    ProgramServices services;
    std::future<void> pictures = std::async(MakeProgramPictures);
    ApplyLook(application);
    pictures.get();
    services.CountSoundDevicesAhead(); // after the pictures: many machines have two cores
    ProgramWindows windows;
    const ProvidedWindows provided(windows);
    RunStartUp();
    PseudoLanguage pseudoLanguage;
    if (IsSetToOne("PseudoLanguage"))
        QCoreApplication::installTranslator(&pseudoLanguage);
    const AheadOfPlay ahead(MakeRenderAhead); // its threads end after the window is gone
    MainFrm window(services.transport);
    services.screen.SetProcessPic(&window.WorkingSign());
    services.screen.SetTuneNotFilledTimer([&window] { window.EnableTuneNotFilledTimer(); });
    QObject::connect(
        &window, &MainFrm::Unloaded, qApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
    const SystemEnd systemEnd(application);
    OpenMainWindow(window, song);
    // If the end came while the window appeared, there was no loop to end.
    const bool runs = window.isVisible() && !systemEnd.HasCome();
    const int status = runs ? QApplication::exec() : EXIT_SUCCESS;
    if (systemEnd.HasCome())
        window.Unload();
    return status;
}

} // namespace
} // namespace sprout

int main(int argc, char** argv)
{
    const std::future<void> fonts = sprout::ReadFontListAhead();
    const QtMessageHandler handler = qInstallMessageHandler(sprout::TellNoDisplay);
    QApplication application(argc, argv);
    qInstallMessageHandler(handler);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationName(QStringLiteral("sprout-painter"));
    // By this name of its entry, a Wayland desktop finds the icon for the windows.
    QApplication::setDesktopFileName(QStringLiteral("example.tonquill.sprout_painter"));
    // Qt has taken its own options out.
    const std::span<const char* const> arguments(argv, static_cast<std::size_t>(argc));
    return sprout::RunProgram(application, sprout::GivenSong(arguments));
}
