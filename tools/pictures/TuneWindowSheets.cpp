// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/TuneWindowSheets.h"

#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QPixmap>
#include <QTimer>

#include <functional>
#include <string>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "pictures/SheetPicture.h"
#include "service/Files.h"
#include "service/PlayDisplay.h"
#include "service/Services.h"
#include "service/qt/QtPictureFiles.h"
#include "stretch/StretchService.h"
#include "tune_window/OpenTuneWindow.h"
#include "tune_window/TuneFrm2.h"
#include "tune_window/TuneNameFrm.h"
#include "ui/forms/Dialogs.h"
#include "ui/forms/MessageForms.h"
#include "ui/forms/QtMessages.h"
#include "ui/forms/QtScreen.h"
#include "ui/look/ProgramPictures.h"

namespace sprout {
namespace {

/// Nothing is written while pictures are drawn.
class NoFiles : public Files {
public:
    void ReplaceFile(const std::filesystem::path& target, std::span<const std::span<const std::byte>> /*pieces*/,
                     Flush /*flush*/) override
    {
        throw RunTimeError(Words::Text("The file %1 could not be written.", PathText(target)));
    }
    void DeleteStaleFile(const std::filesystem::path& /*path*/) override {}
    [[nodiscard]] bool WriteNewFile(const std::filesystem::path& /*path*/,
                                    std::span<const std::span<const std::byte>> /*pieces*/) override
    {
        return false;
    }
    [[nodiscard]] std::unique_ptr<Replacement> BeginReplacement(const std::filesystem::path& /*target*/) override
    {
        return nullptr;
    }
    [[nodiscard]] bool MayBeReplaced(const std::filesystem::path& /*target*/) const override { return false; }
};

/// Stands in for the main window, which does not exist here; the tune window shows its tune.
class TuneDisplay : public PlayDisplay {
public:
    [[nodiscard]] std::int32_t MainWindowHandle() const override { return 1; }
    void ShowSoundStatus(const Words& /*text*/) override {}
    void EnablePlayPosTimer() override {}
    void UpdateThisTune() override { sprout::UpdateThisTune(); }
};

void FillTuneTable(std::int32_t count)
{
    SharedState& shared = Shared();
    shared.TuneTable.assign(static_cast<std::size_t>(count) + 1, Tune());
    shared.TuneTableCount = count;
    for (std::int32_t i = 1; i <= count; ++i) {
        Tune& tune = At(shared.TuneTable, i);
        tune.Name = "Tune " + std::to_string(i);
        tune.CreatedBy = i % 3 == 0 ? "Ann" : "Tonquill";
        tune.Picture = i % 2 == 0 ? shared.NewTunePicture : shared.DefaultTunePicture;
    }
}

/// Opens the window with the content of `TuneTable` and draws it.
void DrawOpened(const std::function<void(TuneFrm2&)>& draw)
{
    QTimer::singleShot(0, qApp, [&draw] {
        auto* window = qobject_cast<TuneFrm2*>(QApplication::activeModalWidget());
        if (!window)
            return;
        draw(*window);
        window->reject();
    });
    Tune tune;
    bool newFlag = false;
    static_cast<void>(OpenTuneWindow(tune, newFlag));
}

void DrawMenu(TuneFrm2& window, const QString& folder)
{
    auto& menu = *window.findChild<QMenu*>(QStringLiteral("PopPosiMnu"));
    menu.popup(window.pos());
    menu.setActiveAction(menu.actions().front());
    SaveSheet(menu, folder, QStringLiteral("tune-menu"));
    menu.hide();
}

void DrawLibrary(const QString& folder)
{
    Shared().TuneTableCount = 0;
    LoadTuneFiles();
    DrawOpened([&folder](TuneFrm2& window) {
        for (const QSize size :
             {QSize(800, 600), QSize(1024, 768), QSize(1280, 720), QSize(1366, 768), QSize(1920, 1080)}) {
            window.FitTo(size);
            SaveSheet(window, folder, QStringLiteral("tune-library-%1x%2").arg(size.width()).arg(size.height()));
        }
        DrawMenu(window, folder);
    });
}

} // namespace

void DrawTuneWindowSheets(const QString& folder)
{
    NoFiles files;
    QtMessages messages;
    QtScreen screen;
    QtPictureFiles pictures;
    TuneDisplay display;
    const auto stretch = MakeStretch(); // the window begins with a tune of the library, which is rendered then
    TheServices() = {.messages = &messages,
                     .screen = &screen,
                     .files = &files,
                     .pictures = &pictures,
                     .stretch = stretch.get(),
                     .playDisplay = &display};
    MakeProgramPictures();
    const QDir library(QCoreApplication::applicationDirPath() + QStringLiteral("/Sprout"));
    SetUserRoot(library.path().toStdString());

    DrawLibrary(folder);
    FillTuneTable(200);
    DrawOpened([&folder](TuneFrm2& window) {
        window.FitTo({1366, 740});
        SaveSheet(window, folder, QStringLiteral("tune-200-1366x768"));
    });
    SetUserRoot("/home/child/Documents/Tonquill Sprout Painter");
    FillTuneTable(0);
    DrawOpened([&folder](TuneFrm2& window) {
        window.FitTo({800, 600});
        SaveSheet(window, folder, QStringLiteral("tune-none-800x600"));
    });
    TuneNameFrm form(nullptr, {"Rain dance", "Ann"});
    form.show();
    SaveSheet(form, folder, QStringLiteral("tune-name"));
    Msg1Btn2NoteFrm refusal(nullptr, Words::AsIs("An Original Tonquill Tune is there with this name \"Lumo\"\r\n"),
                            Words::Text("Please enter another name for this Tune and save."));
    refusal.SetCaption(CaptionOf({}));
    refusal.show();
    SaveSheet(refusal, folder, QStringLiteral("tune-refusal"));
    TheServices() = Services();
}

} // namespace sprout
