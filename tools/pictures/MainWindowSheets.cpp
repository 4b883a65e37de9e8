// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/MainWindowSheets.h"

#include <QApplication>
#include <QCursor>
#include <QFileInfo>
#include <QMouseEvent>
#include <QTemporaryDir>

#include <array>
#include <stdexcept>
#include <string>

#include "core/Paths.h"
#include "core/Settings.h"
#include "core/Shared.h"
#include "core/SongModel.h"
#include "main_window/MainFrm.h"
#include "main_window/TrackCanvas.h"
#include "main_window/TransportCommands.h"
#include "pictures/SheetPicture.h"
#include "service/Messages.h"
#include "service/Services.h"
#include "service/posix/PosixFiles.h"
#include "service/qt/QtPictureFiles.h"
#include "songs/OpenSaveClass.h"
#include "ui/forms/QtScreen.h"
#include "ui/look/ProgramPictures.h"

namespace sprout {

namespace {

constexpr QSize kUsualSize{800, 600};
constexpr QSize kWholeScreen{1280, 800};

/// Keeps each message instead of showing it because nobody could read or close it.
class KeptMessages : public Messages {
public:
    void MessageBox(const Words& /*title*/, const Words& text, MessageIcon /*icon*/) override { kept = text.English(); }
    [[nodiscard]] const std::string& Last() const { return kept; }

private:
    std::string kept;
};

/// A main window without a sound device, in its own folder.
class ShownWindow {
public:
    /// Throws if the song cannot be read completely.
    explicit ShownWindow(const QString& songPath)
    {
        Services& services = TheServices();
        services.messages = &messages;
        services.screen = &screen;
        services.files = &files;
        services.pictures = &pictures;
        services.playDisplay = &transport;
        Shared().SettingsFile = folder.filePath(QStringLiteral("settings.ini")).toStdString();
        SetUserRoot(folder.path().toStdString());
        PutSetting("MainWindow", "WindowState", "0");
        MakeProgramPictures();
        NewSong();
        OpenSaveClass().Load_Song(songPath.toStdString());
        if (!messages.Last().empty())
            throw std::runtime_error(songPath.toStdString() + ": " + messages.Last());
        Shared().Song.SongTitle = QFileInfo(songPath).completeBaseName().toStdString();
        window = std::make_unique<MainFrm>(transport);
        window->ShowSoundDevices(1);
        ShowHint(Words::Text("Ready"));
        ShowSong();
        window->show();
    }

    ~ShownWindow()
    {
        window.reset();
        TheServices() = Services();
    }

    ShownWindow(const ShownWindow&) = delete;
    ShownWindow& operator=(const ShownWindow&) = delete;

    void ShowSong()
    {
        window->DrawTracksAll();
        window->UpdateTempoSliderValue();
        window->UpdateSongTitle();
    }

    /// Resizes the window and draws it.
    bool Draw(const QString& picturePath, QSize size = kUsualSize)
    {
        window->resize(size);
        QApplication::processEvents();
        return SavePicture(*window, picturePath);
    }

    [[nodiscard]] ImageButton& Button(const char* name) const
    {
        return *window->findChild<ImageButton*>(QString::fromLatin1(name));
    }

    /// Moves the pointer to a point of a control.
    void Point(const char* name, QPoint at) const
    {
        auto* control = window->findChild<QWidget*>(QString::fromLatin1(name));
        QMouseEvent move(QEvent::MouseMove, at, control->mapToGlobal(QPointF(at)), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QCursor::setPos(control->mapToGlobal(at));
        QApplication::sendEvent(control, &move);
    }

    [[nodiscard]] MainFrm& Window() const { return *window; }

    TransportCommands transport{nullptr};

private:
    QTemporaryDir folder;
    KeptMessages messages;
    QtScreen screen;
    PosixFiles files;
    QtPictureFiles pictures;
    std::unique_ptr<MainFrm> window;
};

/// Gives the shared song this many tracks by repeating its own.
void SetTrackCount(std::int32_t count)
{
    SongState& song = Shared().Song;
    const std::vector<Track> own = song.Tracks;
    song.Tracks.resize(static_cast<std::size_t>(count) + 1);
    for (std::size_t track = own.size(); track < song.Tracks.size(); ++track)
        song.Tracks[track] = own[(track - 1) % (own.size() - 1) + 1];
    song.TrackCount = count;
}

void DrawSizes(const QString& songPath, const QString& folder)
{
    ShownWindow shown(songPath);
    for (const QSize size : {QSize(533, 200), QSize(600, 400), kUsualSize, QSize(1000, 640), QSize(1024, 768),
                             QSize(1280, 720), QSize(1366, 768), QSize(1920, 1080)})
        shown.Draw(QStringLiteral("%1/main-%2x%3.png").arg(folder).arg(size.width()).arg(size.height()), size);
    for (const std::int32_t count : {40, 8, 1}) {
        SetTrackCount(count);
        shown.ShowSong();
        shown.Draw(QStringLiteral("%1/main-tracks-%2.png").arg(folder).arg(count));
        shown.Draw(QStringLiteral("%1/main-tracks-%2-1366x768.png").arg(folder).arg(count), QSize(1366, 768));
    }
}

void DrawFaces(const QString& songPath, const QString& folder)
{
    ShownWindow shown(songPath);
    shown.Point("OpenBtn", QPoint(20, 20));
    shown.Draw(folder + QStringLiteral("/main-hover.png"));
    shown.Button("SaveBtn").SetFace(ButtonFace::Pressed);
    shown.Draw(folder + QStringLiteral("/main-pressed.png"));
    shown.Button("SaveBtn").SetFace(ButtonFace::Normal);
    shown.Button("EraserBtn").click();
    shown.Point("TrackPic", QPoint(200, 100));
    shown.Draw(folder + QStringLiteral("/main-eraser.png"));
    for (const QPoint at : {QPoint(35, 40), QPoint(76, 80), QPoint(115, 130)}) {
        shown.Point("TrackTitlePic", at);
        shown.Draw(QStringLiteral("%1/main-strip-%2.png").arg(folder).arg(at.x()));
    }
    ShowHintOf(shown.Button("TrackAddRecBtn"));
    shown.Draw(folder + QStringLiteral("/main-long-hint.png"), QSize(700, 500));
}

void DrawStates(const QString& songPath, const QString& folder)
{
    ShownWindow shown(songPath);
    auto* canvas = shown.Window().findChild<TrackCanvas*>();
    PlayIndicator playing;
    playing.songLeft = 250;
    canvas->ShowPlayIndicator(playing);
    shown.transport.ShowSoundStatus(Words::Text("Playing All"));
    shown.Draw(folder + QStringLiteral("/main-playing.png"));
    canvas->ShowPlayIndicator({});
    shown.Window().ShowSoundDevices(0);
    shown.Draw(folder + QStringLiteral("/main-no-sound.png"));
    shown.Window().ShowSoundDevices(1);
    NewSong();
    At(Shared().Song.Tracks, 1).TrackTune.Picture = Shared().BlankStarPic;
    Shared().Song.SongCreatedBy = "A name that is a good deal longer than any label of this window can be wide";
    Shared().Song.SongTitle = "A title that is a good deal longer than any label of this window can be wide";
    shown.ShowSong();
    shown.Draw(folder + QStringLiteral("/main-blinking.png"));
    Shared().Song.TrackCount = 0;
    shown.ShowSong();
    shown.Draw(folder + QStringLiteral("/main-no-tracks.png"));
}

/// The card of the very first start.
void DrawWelcome(const QString& songPath, const QString& folder)
{
    ShownWindow shown(songPath);
    shown.Window().ShowWelcome();
    for (const QSize size : {QSize(533, 400), QSize(600, 400), kUsualSize, QSize(1000, 640), kWholeScreen})
        shown.Draw(QStringLiteral("%1/main-welcome-%2x%3.png").arg(folder).arg(size.width()).arg(size.height()), size);
}

/// Shows every hint on the status line of a small window.
void TellCutHints(const QString& songPath)
{
    const ShownWindow shown(songPath);
    shown.Window().resize(800, 600);
    for (const QWidget* control : shown.Window().findChildren<QWidget*>())
        if (control->property(kHintProperty).isValid()) {
            ShowHintOf(*control);
            static_cast<void>(PictureOf(shown.Window(), QStringLiteral("hint-") + control->objectName()));
        }
}

} // namespace

bool DrawMainWindow(const QString& songPath, const QString& picturePath)
{
    ShownWindow shown(songPath);
    return shown.Draw(picturePath, kWholeScreen);
}

void DrawMainWindowSheets(const QString& songPath, const QString& folder)
{
    DrawSizes(songPath, folder);
    DrawFaces(songPath, folder);
    DrawStates(songPath, folder);
    DrawWelcome(songPath, folder);
    if (AreTextsWatched())
        TellCutHints(songPath);
}

} // namespace sprout
