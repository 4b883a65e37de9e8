// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/MainFrm.h"

#include <QCloseEvent>
#include <QIcon>

#include <string>
#include <utility>

#include "base/Product.h"
#include "core/Settings.h"
#include "core/Shared.h"
#include "main_window/About_Frm.h"
#include "main_window/ControlBar.h"
#include "main_window/DemoCommands.h"
#include "main_window/GroundWatch.h"
#include "main_window/MainTabOrder.h"
#include "main_window/SoundDrop.h"
#include "main_window/StatusBar.h"
#include "main_window/TitleBand.h"
#include "main_window/TrackCanvas.h"
#include "main_window/TrackCommands.h"
#include "main_window/TransportCommands.h"
#include "main_window/WelcomeCard.h"
#include "main_window/WindowFrame.h"
#include "main_window/WindowSettings.h"
#include "main_window/rules/MainWindowHints.h"
#include "main_window/rules/MainWindowPlaces.h"
#include "ui/Windows.h"
#include "ui/look/Artwork.h"
#include "ui/widgets/PutAt.h"
#include "ui/widgets/SpokenRoles.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr int kWindowIconSide = 64;

} // namespace

MainFrm::MainFrm(TransportCommands& transport)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint),
      transportCommands(transport),
      scheme(*this, AllOffTimer::OffAtFirst),
      buttons(*this, scheme, Clicks()),
      watcher(this),
      songCommands(*this, {[this] { ShowNewSong(); }, [this] { UpdateSongTitle(); },
                           [this](bool opening) { trackCommands->SetOpening(opening); }}),
      groundWatch(new GroundWatch(this))
{
    setObjectName(QStringLiteral("MainFrm"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    SetSpokenRole(*this, QAccessible::Window);
    setWindowIcon(QIcon(Artwork(QStringLiteral("pictures/Sprout"), QSize(kWindowIconSide, kWindowIconSide), 1)));
    setMinimumSize(kLeastWindowWidth, kLeastWindowHeight);
    MakeTitleBand();
    MakeControlBar();
    statusBar = new StatusBar(this, watcher);
    MakeCanvas();
    frame = std::make_unique<WindowFrame>(*this, watcher, *groundWatch);
    buttons.MakeShortcuts(*this);
    WatchBackground();
    SetMainTabOrder(*this);
    processPic = new ProcessPic(this);
    ChooseTool(Tool::Brush);
    // Space plays and the arrows scroll until another control gets the focus.
    findChild<QWidget*>(QStringLiteral("TrackPic"))->setFocus();
    TakePlaceFromSettings(*this);
    ShowWindowButtons();
}

MainFrm::~MainFrm() = default;

MainButtonClicks MainFrm::Clicks()
{
    MainButtonClicks clicks;
    clicks.PlayAllBtn = [this] { transportCommands.PlayAllBtn(); };
    clicks.PlayStopBtn = [this] { transportCommands.PlayStopBtn(); };
    clicks.BrushBtn = [this] { ChooseTool(Tool::Brush); };
    clicks.EraserBtn = [this] { ChooseTool(Tool::Eraser); };
    clicks.PlayToolBtn = [this] { ChooseTool(Tool::PlayTool); };
    clicks.NewBtn = [this] { songCommands.NewBtn(); };
    clicks.OpenBtn = [this] { songCommands.OpenBtn(); };
    clicks.SaveBtn = [this] { songCommands.SaveBtn(); };
    clicks.SongTitleChgBtn = [this] { songCommands.SongTitleChgBtn(); };
    clicks.EmailBtn = [] { TheWindows().EmailSong(); };
    clicks.HelpBtn = [] { TheWindows().ShowHelp(); };
    clicks.AboutBtn = [this] { About_Frm(this).ShowModal(); };
    clicks.DemoBtn = [this] { DemoCommands(transportCommands, *trackCommands).DemoBtn(buttons.Button("DemoBtn")); };
    clicks.CloseImgBtn = [this] { close(); };
    clicks.MaximizeImgBtn = [this] { showMaximized(); };
    clicks.MinimizeImgBtn = [this] { showMinimized(); };
    clicks.RestoreImgBtn = [this] { showNormal(); };
    return clicks;
}

void MainFrm::MakeTitleBand()
{
    titleBand = new TitleBand(this);
    for (const char* name : {"CloseImgBtn", "MaximizeImgBtn", "RestoreImgBtn", "MinimizeImgBtn"})
        titleBand->AddWindowButton(buttons.Button(name));
    watcher.Watch(*titleBand, {});
}

void MainFrm::MakeControlBar()
{
    // A school may not want its machines to send mail.
    const EmailTool email = IsSetToOne("HideEmail") ? EmailTool::Hidden : EmailTool::Shown;
    controlBar = new ControlBar(this, watcher, email);
    for (std::size_t tool = 0; tool < kBarTools; ++tool)
        controlBar->AddTool(static_cast<BarTool>(tool), buttons.Button(static_cast<BarTool>(tool)));
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
    canvas = new TrackCanvas(this, scheme, std::move(calls));
    trackCommands = new TrackCommands(*canvas, this);
    audioTrackCommands = std::make_unique<AudioTrackCommands>(*canvas);
    connect(new SoundDrop(this), &SoundDrop::Dropped, this,
            [this](const QList<QUrl>& places) { audioTrackCommands->AddDropped(places); });
    transport.SetWindow(*canvas, statusBar->SoundStatusLbl());
}

void MainFrm::WatchBackground()
{
    watcher.Watch(*this, {});
    groundWatch->Watch(*this);
    groundWatch->Watch(*controlBar);
    connect(groundWatch, &GroundWatch::MovedOver, canvas, &TrackCanvas::HideTrackButtons);
}

void MainFrm::ChooseTool(Tool tool)
{
    buttons.ShowTool(tool);
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
    const Words caption = Words::Text("%1 - [%2]", kProductName, song.SongTitle);
    SetTitle(*this, caption);
    titleBand->SetCaption(caption);
    controlBar->ShowSong(song.SongTitle, song.SongCreatedBy);
}

void MainFrm::ShowNewSong()
{
    canvas->ShowFromStart();
    UpdateTempoSliderValue();
    UpdateSongTitle();
}

void MainFrm::OpenSong(const std::filesystem::path& file)
{
    songCommands.OpenSong(file);
}

void MainFrm::ShowWelcome()
{
    welcome = new WelcomeCard(this, watcher);
    welcome->PointTo(buttons.Button("PlayAllBtn"));
    welcome->PointTo(buttons.Button("DemoBtn"));
    connect(welcome, &WelcomeCard::PutAway, this, &MainFrm::PutWelcomeAway, Qt::SingleShotConnection);
    // The tracks have the focus: the first Tab leads to the card.
    setTabOrder(findChild<QWidget*>(QStringLiteral("TrackPic")), &welcome->CloseButton());
    PlaceParts();
    ShowHint(kWelcomeHint);
}

void MainFrm::PutWelcomeAway()
{
    ShowHint({});
    if (welcome->CloseButton().hasFocus())
        findChild<QWidget*>(QStringLiteral("TrackPic"))->setFocus();
    std::exchange(welcome, nullptr)->Delete();
    PlaceParts();
}

void MainFrm::ShowSoundDevices(int count)
{
    statusBar->ShowSoundDevices(count);
}

void MainFrm::EnableTuneNotFilledTimer()
{
    trackCommands->EnableTuneNotFilledTimer();
}

void MainFrm::ShowWindowButtons()
{
    buttons.ShowMaximized(isMaximized());
    titleBand->PlaceParts();
    frame->ShowMaximized(isMaximized());
}

void MainFrm::paintEvent(QPaintEvent* /*event*/)
{
    WindowFrame::Paint(*this);
}

void MainFrm::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    PlaceParts();
}

void MainFrm::PlaceParts()
{
    const MainWindowPlaces places = PlaceMainWindow(width(), height(), controlBar->HeightFor(ControlBarWidth(width())),
                                                    welcome ? WelcomeStrip::Shown : WelcomeStrip::Hidden);
    statusBar->setVisible(places.hasStatus);
    PutAt(*titleBand, places.titleBand);
    PutAt(*controlBar, places.controlBar);
    PutAt(*canvas, places.canvas); // it redraws itself at its new size
    PutAt(*statusBar, places.statusBar);
    if (welcome)
        welcome->PlaceIn(places.welcome);
    frame->Place(places);
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
    WritePlaceToSettings(*this);
    TransportCommands::ShutSound();
}

} // namespace sprout
