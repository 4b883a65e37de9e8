// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/MainFrm.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QIcon>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QShortcut>
#include <QTimer>

#include <exception>
#include <string>
#include <utility>
#include <vector>

#include "base/Product.h"
#include "core/Settings.h"
#include "core/Shared.h"
#include "main_window/About_Frm.h"
#include "main_window/ControlBar.h"
#include "main_window/EdgeGrip.h"
#include "main_window/StatusBar.h"
#include "main_window/TitleBand.h"
#include "main_window/TrackCanvas.h"
#include "main_window/TrackCommands.h"
#include "main_window/TrackPictures.h"
#include "main_window/TransportCommands.h"
#include "main_window/rules/WindowPlace.h"
#include "sound/PlayMod.h"
#include "ui/Artwork.h"
#include "ui/Dialogs.h"
#include "ui/HelpFrm.h"
#include "ui/LaterCommands.h"
#include "ui/Palette.h"
#include "ui/QtText.h"
#include "ui/SpokenRoles.h"
#include "ui/Windows.h"

namespace sprout {

namespace {

constexpr int kFrameWidth = 6;
constexpr int kWindowIconSide = 64;
constexpr std::string_view kPlaceSection = "MainWindow";

/// A vine in a lower corner.
class CornerVine : public QWidget {
public:
    CornerVine(QWidget* parent, const char* name) : QWidget(parent) { setObjectName(QString::fromLatin1(name)); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.drawPixmap(0, 0, Artwork(QStringLiteral("pictures/") + objectName(), size(), devicePixelRatioF()));
    }
};

/// A button row with the hint from the table.
ButtonRow WithHint(const char* name, const char* spokenName, Plate plate = Plate::Tool)
{
    const std::string_view hint = MainWindowHint(name);
    return {name, spokenName, hint.empty() ? "" : hint.data(), plate};
}

void ShutSound()
{
    try {
        SetSoundDriver(false);
    } catch (const std::exception&) {
        // A driver that cannot be closed ends with the program.
    }
    ReleasePlayer();
}

} // namespace

/// A button of the window, in table order; the canvas adds its own after them.
struct MainFrm::Row {
    const char* name;
    const char* spokenName;
    Plate plate;
    void (*click)(MainFrm&);
};

const std::array<MainFrm::Row, 17>& MainFrm::Rows()
{
    static constexpr std::array<Row, 17> rows{{
        {"PlayAllBtn", "Play all", Plate::Tool, [](MainFrm& frm) { frm.transportCommands.PlayAllBtn(); }},
        {"PlayStopBtn", "Stop", Plate::Tool, [](MainFrm& frm) { frm.transportCommands.PlayStopBtn(); }},
        {"BrushBtn", "Paint brush", Plate::Tool, [](MainFrm& frm) { frm.ChooseTool(Tool::Brush); }},
        {"EraserBtn", "Eraser", Plate::Tool, [](MainFrm& frm) { frm.ChooseTool(Tool::Eraser); }},
        {"PlayToolBtn", "Play tool", Plate::Tool, [](MainFrm& frm) { frm.ChooseTool(Tool::PlayTool); }},
        {"NewBtn", "New", Plate::Tool, [](MainFrm& frm) { frm.songCommands.NewBtn(); }},
        {"OpenBtn", "Open", Plate::Tool, [](MainFrm& frm) { frm.songCommands.OpenBtn(); }},
        {"SaveBtn", "Save", Plate::Tool, [](MainFrm& frm) { frm.songCommands.SaveBtn(); }},
        {"SongTitleChgBtn", "Change", Plate::Tool, [](MainFrm& frm) { frm.songCommands.SongTitleChgBtn(); }},
        {"EmailBtn", "Email song", Plate::Tool, [](MainFrm& /*frm*/) { TheWindows().EmailSong(); }},
        {"HelpBtn", "Help", Plate::Tool, [](MainFrm&) { ShowHelp(); }},
        {"AboutBtn", "About", Plate::Tool, [](MainFrm& frm) { frm.AboutBtn(); }},
        {"DemoBtn", "Demo", Plate::Tool, [](MainFrm&) { ShowLaterCommand("DemoBtn"); }},
        {"CloseImgBtn", "Close", Plate::Title, [](MainFrm& frm) { frm.close(); }},
        {"MaximizeImgBtn", "Maximize", Plate::Title, [](MainFrm& frm) { frm.showMaximized(); }},
        {"MinimizeImgBtn", "Minimize", Plate::Title, [](MainFrm& frm) { frm.showMinimized(); }},
        {"RestoreImgBtn", "Restore", Plate::Title, [](MainFrm& frm) { frm.showNormal(); }},
    }};
    return rows;
}

MainFrm::MainFrm(TransportCommands& transport)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint),
      transportCommands(transport),
      buttons(*this, AllOffTimer::OffAtFirst),
      watcher(this),
      songCommands(*this, {[this] { ShowNewSong(); }, [this] { UpdateSongTitle(); },
                           [this](bool opening) { trackCommands->SetOpening(opening); }})
{
    setObjectName(QStringLiteral("MainFrm"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    SetSpokenRole(*this, QAccessible::Window);
    setWindowIcon(QIcon(Artwork(QStringLiteral("pictures/Sprout"), QSize(kWindowIconSide, kWindowIconSide), 1)));
    setMinimumSize(kLeastWindowWidth, kLeastWindowHeight);
    setAcceptDrops(true);
    MakeButtons();
    MakeTitleBand();
    MakeControlBar();
    MakeStatusBar();
    MakeCanvas();
    MakeCorners();
    MakeGrips();
    MakeShortcuts();
    WatchBackground();
    SetTabOrder();
    processPic = new ProcessPic(this);
    ChooseTool(Tool::Brush);
    // Space plays and the arrows scroll until another control gets the focus.
    findChild<QWidget*>(QStringLiteral("TrackPic"))->setFocus();
    TakePlaceFromSettings();
    ShowWindowButtons();
}

void MainFrm::MakeButtons()
{
    for (const Row& row : Rows())
        buttons.AddButton(WithHint(row.name, row.spokenName, row.plate), [this, click = row.click] {
            ShowHint({});
            click(*this);
        });
    DrawPicturesAhead();
}

/// Draws the pictures for the first paint while the rest of the window is built.
void MainFrm::DrawPicturesAhead()
{
    std::vector<WantedArtwork> wanted;
    for (const Row& row : Rows())
        for (WantedArtwork& artwork : buttons.Button(row.name).Artworks())
            wanted.push_back(std::move(artwork));
    for (WantedArtwork& artwork : CanvasArtworks(devicePixelRatioF()))
        wanted.push_back(std::move(artwork));
    DrawArtworkAhead(wanted);
}

void MainFrm::MakeTitleBand()
{
    titleBand = new TitleBand(this);
    for (const char* name : {"CloseImgBtn", "MaximizeImgBtn", "RestoreImgBtn", "MinimizeImgBtn"})
        titleBand->AddWindowButton(buttons.Button(name));
    watcher.Watch(*titleBand, "");
}

void MainFrm::MakeControlBar()
{
    // A school may not want its machines to send mail.
    const EmailTool email = IsSetToOne("HideEmail") ? EmailTool::Hidden : EmailTool::Shown;
    controlBar = new ControlBar(this, watcher, email);
    for (std::size_t tool = 0; tool < kBarTools; ++tool)
        controlBar->AddTool(static_cast<BarTool>(tool), buttons.Button(Rows()[tool].name));
    if (email == EmailTool::Hidden)
        buttons.Button("EmailBtn").hide();
    connect(controlBar, &ControlBar::SongTitleDoubleClicked, this, [this] { songCommands.SongTitleChgBtn(); });
    connect(controlBar, &ControlBar::TempoChanged, this, [this] { canvas->DrawTrackTop(); });
}

void MainFrm::MakeCanvas()
{
    TransportCommands& transport = transportCommands;
    TrackCanvasCalls calls;
    calls.PlaySongFrom = [&transport](std::int32_t cell) { transport.PlaySongFrom(cell); };
    calls.PlayTrackFrom = [&transport](std::int32_t track, std::int32_t cell) { transport.PlayTrackFrom(track, cell); };
    calls.EnableTrackTitlePlayTimer = [&transport] { transport.EnableTrackTitlePlayTimer(); };
    calls.PlayOrStop = [&transport] { transport.PlayOrStop(); };
    calls.ShowCell = [this](std::string_view cell) { statusBar->ShowCell(cell); };
    calls.TrackPlayBtn = [&transport] { transport.TrackPlayBtn(); };
    calls.TrackDeleteBtn = [this] { trackCommands->TrackDeleteBtn(); };
    calls.TrackTuneBtn = [this] { trackCommands->TrackTuneBtn(); };
    calls.TrackAddBtn = [this] { trackCommands->TrackAddBtn(); };
    calls.TrackAudioBtn = [this] { audioTrackCommands->TrackAudioBtn(); };
    calls.TrackAddRecBtn = [this] { audioTrackCommands->TrackAddRecBtn(); };
    canvas = new TrackCanvas(this, buttons, std::move(calls));
    trackCommands = new TrackCommands(*canvas, this);
    audioTrackCommands = std::make_unique<AudioTrackCommands>(
        *canvas, AudioWindows{[] { return TheWindows().RecordSound(); },
                              [](std::int32_t track) { return TheWindows().EditTrack(track); }});
    transport.SetWindow(*canvas, statusBar->SoundStatusLbl());
}

void MainFrm::MakeStatusBar()
{
    statusBar = new StatusBar(this, watcher);
}

void MainFrm::MakeCorners()
{
    corners = {new CornerVine(this, "Corner3Pic"), new CornerVine(this, "Corner4Pic")};
    for (QWidget* corner : corners)
        watcher.Watch(*corner, "");
}

void MainFrm::MakeGrips()
{
    for (std::size_t i = 0; i < grips.size(); ++i) {
        grips[i] = new EdgeGrip(this, kWindowGrips[i]);
        watcher.Watch(*grips[i], "");
        grips[i]->installEventFilter(this);
    }
}

void MainFrm::MakeShortcuts()
{
    const auto add = [this](const QKeySequence& keys, const char* button) {
        connect(new QShortcut(keys, this), &QShortcut::activated, &buttons.Button(button), &QAbstractButton::click);
    };
    add(Qt::CTRL | Qt::Key_N, "NewBtn");
    add(Qt::CTRL | Qt::Key_O, "OpenBtn");
    add(Qt::CTRL | Qt::Key_S, "SaveBtn");
    add(Qt::Key_F1, "HelpBtn");
}

void MainFrm::SetTabOrder()
{
    // The buttons were created in table order. The song's controls follow in the order of the window, from the bar's
    // tools to the tracks' titles; then the window's own buttons. The tracks, which have the initial focus, are last:
    // the first Tab leads to the first button.
    const char* before = "DemoBtn";
    for (const char* name : {"TempoPrtImg", "Label5", "Label1", "TrackTitlePic", "TrackAddBtn", "TrackAddRecBtn",
                             "CloseImgBtn", "MaximizeImgBtn", "MinimizeImgBtn", "RestoreImgBtn", "TrackPic"}) {
        setTabOrder(findChild<QWidget*>(QString::fromLatin1(before)), findChild<QWidget*>(QString::fromLatin1(name)));
        before = name;
    }
}

void MainFrm::WatchBackground()
{
    watcher.Watch(*this, "");
    for (QWidget* ground : {static_cast<QWidget*>(this), static_cast<QWidget*>(controlBar), corners[0]})
        ground->installEventFilter(this);
}

bool MainFrm::eventFilter(QObject* watched, QEvent* event)
{
    // Qt passes on moves that a child ignores; only a move over the background itself counts.
    if (event->type() == QEvent::MouseMove &&
        !static_cast<QWidget*>(watched)->childAt(static_cast<QMouseEvent*>(event)->position().toPoint()))
        canvas->HideTrackButtons();
    return QWidget::eventFilter(watched, event);
}

void MainFrm::TakePlaceFromSettings()
{
    const QSize screenSize = screen()->size();
    const WindowPlace place =
        PlaceFromSettings(GetSetting(kPlaceSection, "Size", "-1,-1"), GetSetting(kPlaceSection, "Position", "-1,-1"),
                          screenSize.width(), screenSize.height());
    setGeometry(place.left, place.top, place.width, place.height);
    if (IsMaximizedSetting(GetSetting(kPlaceSection, "WindowState", "2")))
        setWindowState(Qt::WindowMaximized);
}

void MainFrm::WritePlaceToSettings() const
{
    PutSetting(kPlaceSection, "WindowState", isMinimized() ? "1" : isMaximized() ? "2" : "0");
    if (isMinimized() || isMaximized())
        return;
    PutSettings(kPlaceSection, {{"Position", PairOfTwips(x(), y())}, {"Size", PairOfTwips(width(), height())}});
}

void MainFrm::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls() && !QApplication::activeModalWidget())
        event->acceptProposedAction();
}

void MainFrm::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    // The drag source waits for the end of this event; a message would block it.
    QTimer::singleShot(0, this, [this, places = event->mimeData()->urls()] { audioTrackCommands->AddDropped(places); });
}

void MainFrm::ChooseTool(Tool tool)
{
    struct ToolButton {
        Tool tool;
        const char* name;
    };
    for (const ToolButton& row : {ToolButton{Tool::Brush, "BrushBtn"}, ToolButton{Tool::Eraser, "EraserBtn"},
                                  ToolButton{Tool::PlayTool, "PlayToolBtn"}}) {
        SetSpokenChoice(buttons.Button(row.name), row.tool == tool);
        if (row.tool == tool)
            buttons.ButtonSetOn(buttons.Button(row.name));
        else
            buttons.ButtonSetNormal(buttons.Button(row.name));
    }
    canvas->SetCurrentTool(tool);
}

void MainFrm::DrawTracksAll()
{
    canvas->DrawTracksAll();
}

void MainFrm::UpdateTempoSliderValue()
{
    controlBar->UpdateTempoSliderValue();
}

void MainFrm::UpdateSongTitle()
{
    const SongState& song = Shared().Song;
    const QString caption = QtText(std::string(kProductName) + " - [" + song.SongTitle + "]");
    setWindowTitle(caption);
    titleBand->SetCaption(caption);
    controlBar->ShowSong(song.SongTitle, song.SongCreatedBy);
}

void MainFrm::ShowNewSong()
{
    canvas->ShowFromStart();
    UpdateTempoSliderValue();
    UpdateSongTitle();
}

void MainFrm::ShowSoundDevices(int count)
{
    statusBar->ShowSoundDevices(count);
}

void MainFrm::EnableTuneNotFilledTimer()
{
    trackCommands->EnableTuneNotFilledTimer();
}

void MainFrm::AboutBtn()
{
    About_Frm about(this);
    about.ShowModal();
}

void MainFrm::ShowWindowButtons()
{
    buttons.Button("MaximizeImgBtn").setVisible(!isMaximized());
    buttons.Button("RestoreImgBtn").setVisible(isMaximized());
    titleBand->PlaceParts();
    for (EdgeGrip* grip : grips)
        grip->setVisible(!isMaximized());
}

void MainFrm::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), kPaper);
    if (isMaximized())
        return;
    painter.setPen(QPen(kBark, 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin)); // the default join clips corners
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void MainFrm::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int inner = width() - 2 * kFrameWidth;
    const int barTop = kTitleBandHeight;
    const int barHeight = controlBar->HeightFor(inner);
    const int statusTop = height() - kFrameWidth - kStatusBarHeight;
    const int canvasTop = barTop + barHeight;
    const int cornerSide = kFrameWidth + kStatusBarHeight;
    const bool hasStatus = CanvasShowsARow(statusTop - kFrameWidth - canvasTop);
    for (QWidget* part : {static_cast<QWidget*>(statusBar), corners[0], corners[1]})
        part->setVisible(hasStatus);
    titleBand->setGeometry(0, 0, width(), kTitleBandHeight);
    controlBar->setGeometry(kFrameWidth, barTop, inner, barHeight);
    // The canvas redraws itself at its new size.
    const int canvasBottom = hasStatus ? statusTop - kFrameWidth : height() - kFrameWidth;
    canvas->setGeometry(kFrameWidth, canvasTop, inner, canvasBottom - canvasTop);
    statusBar->setGeometry(cornerSide + kFrameWidth, statusTop, width() - 2 * (cornerSide + kFrameWidth),
                           kStatusBarHeight);
    corners[0]->setGeometry(2, height() - cornerSide, cornerSide - 2, cornerSide - 2);
    corners[1]->setGeometry(width() - cornerSide, height() - cornerSide, cornerSide - 2, cornerSide - 2);
    for (EdgeGrip* grip : grips)
        grip->Place();
}

void MainFrm::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        ShowWindowButtons();
}

void MainFrm::closeEvent(QCloseEvent* event)
{
    // A minimized window's question would be invisible.
    if (isMinimized() && Shared().Song.SongChanged)
        setWindowState(windowState() & ~Qt::WindowMinimized);
    if (!songCommands.ConfirmSongSave()) {
        event->ignore();
        return;
    }
    Unload();
    event->accept();
    Q_EMIT Unloaded();
}

void MainFrm::Unload()
{
    ShowHint({});
    TheWindows().StopEmailSong();
    WritePlaceToSettings();
    ShutSound();
}

} // namespace sprout
