// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/Demo_frm.h"

#include <QCursor>
#include <QKeyEvent>
#include <QScreen>

#include <algorithm>
#include <chrono>
#include <string>
#include <utility>

#include "demo/DemoFolder.h"
#include "demo/DemoPic.h"
#include "demo/DemoPulse.h"
#include "demo/rules/DemoPlaces.h"
#include "sound/PlayMod.h"
#include "ui/forms/Guarded.h"
#include "ui/look/Look.h"
#include "ui/widgets/FreeRoom.h"
#include "ui/widgets/LinkButton.h"
#include "ui/widgets/NamesMenu.h"
#include "ui/widgets/PutAt.h"
#include "ui/words/Texts.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace {

constexpr std::chrono::milliseconds kFirstInterval{1000};
/// A slide has been drawn by then, and no child has gone on.
constexpr std::chrono::milliseconds kAheadInterval{100};
constexpr std::int32_t kMostSoundSeconds = 60;
constexpr BoxSize kSizeWithoutPicture{480, 320};

} // namespace

Demo_frm::Demo_frm(QWidget* parent, std::string_view name)
    : BandedForm(parent), demoFile(ReadDemoFile()), demoTexts(ReadDemoTexts()), demoNames(ReadDemoNames(demoFile))
{
    setObjectName(QStringLiteral("Demo_frm"));
    MakePicture();
    MakeLink();
    MakeTimer();
    demoPic->setFocus();
    Guarded([this, name] { StartDemo(name); });
}

void Demo_frm::MakePicture()
{
    demoPic = new DemoPic(this);
    pulse = new DemoPulse(demoPic);
    Watcher().Watch(*demoPic, {});
    SetSpokenDescription(*demoPic, Words::Text("Space does what the picture asks for. The left and the right arrow key "
                                               "show the picture before and the next one."));
    connect(demoPic, &DemoPic::Pressed, this, [this](DemoPoint point) { ShowNext(demoShow.Press(point)); });
    connect(demoPic, &DemoPic::Moved, this, [this](DemoPoint point) { ShowNext(demoShow.Move(point)); });
    connect(demoPic, &DemoPic::Released, this, [this] { demoShow.Release(); });
}

void Demo_frm::MakeLink()
{
    DemoPopUpLinkLbl = new LinkButton("DemoPopUpLinkLbl", Words::Text("Click to view other Demo"), this);
    DemoPopUpLinkLbl->setFont(LabelFont());
    DemoPopUpLinkLbl->adjustSize();
    DemoPopUpLinkLbl->hide();
    SetSpokenDescription(*DemoPopUpLinkLbl, Words::Text("Opens a menu of all demos"));
    Watcher().Watch(*DemoPopUpLinkLbl, {});
    MenuPop2 = new NamesMenu("MenuPop2", "MenuPop2_", this);
    connect(DemoPopUpLinkLbl, &QPushButton::clicked, this, [this] { Guarded([this] { ChooseOtherDemo(); }); });
}

void Demo_frm::MakeTimer()
{
    DemoTimer = new QTimer(this);
    DemoTimer->setObjectName(QStringLiteral("DemoTimer"));
    DemoTimer->setInterval(kFirstInterval);
    connect(DemoTimer, &QTimer::timeout, this, &Demo_frm::TickDemo);
    aheadTimer = new QTimer(this);
    aheadTimer->setObjectName(QStringLiteral("DemoAheadTimer"));
    aheadTimer->setSingleShot(true);
    aheadTimer->setInterval(kAheadInterval);
    connect(aheadTimer, &QTimer::timeout, this, [this] { Guarded([this] { LoadNextSlide(); }); });
}

void Demo_frm::StartDemo(std::string_view name)
{
    SetCaption(Words::Text(" Demo: %1", name));
    const std::optional<std::int32_t> number = FindDemo(demoNames, name);
    demoShow = number ? DemoShow(ReadDemoSlides(demoFile, demoTexts, *number)) : DemoShow();
    ShowDemoSlide(0);
}

void Demo_frm::ShowDemoSlide(std::int32_t index)
{
    const DemoOrders orders =
        demoShow.ShowDemoSlide(index, [this](const DemoSlide& slide) { return LoadSlide(slide); });
    PlaceParts();
    ShowState();
    CarryOut(orders);
    aheadTimer->start();
}

void Demo_frm::ShowNext(bool isWanted)
{
    if (isWanted)
        Guarded([this] { ShowDemoSlide(demoShow.SlideIndex()); });
}

std::optional<BoxSize> Demo_frm::LoadSlide(const DemoSlide& slide)
{
    const bool isAhead = ahead.name == slide.Picture && !ahead.plain.IsNothing();
    const SlidePictures pictures = isAhead ? std::exchange(ahead, {}) : LoadPictures(slide.Picture);
    if (pictures.plain.IsNothing())
        return std::nullopt;
    demoPic->Show(pictures.plain, pictures.sharp);
    return demoPic->PictureSize();
}

Demo_frm::SlidePictures Demo_frm::LoadPictures(const std::string& name) const
{
    return {name, LoadDemoPicture(name), devicePixelRatioF() > 1 ? LoadSharpDemoPicture(name) : Picture()};
}

void Demo_frm::LoadNextSlide()
{
    const DemoSlide* const next = demoShow.NextSlide();
    ahead = next ? LoadPictures(next->Picture) : SlidePictures();
}

void Demo_frm::CarryOut(const DemoOrders& orders)
{
    // A sound that cannot be loaded is told in a box, behind which no other slide must come.
    if (orders.Timer != DemoTimerChange::Stays)
        DemoTimer->stop();
    if (orders.StopPlayer)
        Player().StopPlay();
    if (orders.PlaySound)
        Guarded([this] { PlaySlideSound(); });
    if (orders.Timer == DemoTimerChange::On)
        DemoTimer->start(orders.Interval);
}

void Demo_frm::PlaySlideSound() const
{
    const std::filesystem::path sound = DemoSoundOf(demoShow.Slide().Picture);
    if (sound.empty())
        return;
    WaveData wave = LoadWaveFile(sound);
    const std::int32_t mostFrames = wave.Rate * kMostSoundSeconds;
    if (wave.Length > mostFrames)
        wave = CutWaveSlice(wave, 1, mostFrames);
    PlayShared().DemoPlaying = true;
    PlayWaveStatus(wave, Words::Text("Playing Tune"), Loop::No);
}

void Demo_frm::PlaceParts()
{
    const BoxSize picture = demoPic->PictureSize() == BoxSize() ? kSizeWithoutPicture : demoPic->PictureSize();
    const QSize room = FreeRoom(*this);
    const DemoPlaces places =
        PlaceDemo(picture, {room.width(), room.height() - kBandHeight}, SizeOf(*DemoPopUpLinkLbl));
    const QPoint middle = geometry().center();
    resize(places.body.width, kBandHeight + places.body.height);
    demoPic->setGeometry(RectOf(places.picture).translated(0, kBandHeight));
    DemoPopUpLinkLbl->setGeometry(RectOf(places.link).translated(0, kBandHeight));
    if (isVisible() && geometry().center() != middle)
        KeepOnScreen(middle);
}

/// A slide of another size keeps the middle of the form, as far as the screen has room.
void Demo_frm::KeepOnScreen(const QPoint& middle)
{
    const QRect room = screen()->availableGeometry();
    const int left = std::min(middle.x() - width() / 2, room.right() + 1 - width());
    const int top = std::min(middle.y() - height() / 2, room.bottom() + 1 - height());
    move(std::max(left, room.left()), std::max(top, room.top()));
}

void Demo_frm::ShowState()
{
    demoPic->Speak(Instruction());
    if (demoShow.IsRectangleAwaited())
        pulse->Await(RectOf(ShownRectangle(demoShow.Slide().Rectangle, demoPic->PictureSize(), SizeOf(*demoPic))));
    else
        pulse->Rest();
    DemoPopUpLinkLbl->setVisible(demoShow.IsLinkShown());
    if (demoShow.IsOver())
        DemoPopUpLinkLbl->setFocus();
    else if (!demoPic->hasFocus())
        demoPic->setFocus();
}

Words Demo_frm::Instruction() const
{
    if (demoShow.IsOver())
        return Words::Text("This is the end of the demo.");
    const std::string& text = demoShow.Slide().Text;
    Words instruction = Words::AsIs(text);
    if (demoShow.GoesOnAnywhere())
        instruction = Words::Text("Press Space to go on.");
    else if (text.empty() && demoShow.Slide().Action == DemoAction::Wait)
        instruction = Words::Text("Look what happens.");
    else if (text.empty())
        instruction = demoShow.Slide().Action == DemoAction::Drag ? Words::Text("Press Space to drag.")
                                                                  : Words::Text("Press Space to click.");
    return Words::Text("%1 Picture %2 of %3", instruction, demoShow.SlideIndex() + 1, demoShow.ImageCount());
}

void Demo_frm::TickDemo()
{
    if (!demoShow.TimerStaysOn())
        DemoTimer->stop();
    ShowNext(demoShow.Tick());
}

void Demo_frm::PressKey()
{
    ShowNext(demoShow.PressKey());
    demoShow.Release();
}

void Demo_frm::ChooseOtherDemo()
{
    std::vector<std::string> names;
    for (const DemoName& demo : demoNames)
        names.push_back(demo.Name);
    // A key opens the menu below the link, as there is no pointer on it.
    const QPoint pointer = QCursor::pos();
    const bool isPointed = DemoPopUpLinkLbl->rect().contains(DemoPopUpLinkLbl->mapFromGlobal(pointer));
    const QPoint below = DemoPopUpLinkLbl->mapToGlobal(QPoint(0, DemoPopUpLinkLbl->height()));
    if (const std::optional<std::size_t> chosen = MenuPop2->Choose(names, isPointed ? pointer : below))
        StartDemo(names[*chosen]);
}

void Demo_frm::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat())
            PressKey();
        break;
    case Qt::Key_Left:
        ShowNext(demoShow.StepBack());
        break;
    case Qt::Key_Right:
        ShowNext(demoShow.StepForward());
        break;
    default:
        BandedForm::keyPressEvent(event);
    }
}

void Demo_frm::done(int result)
{
    DemoTimer->stop();
    aheadTimer->stop();
    pulse->Rest();
    BandedForm::done(result);
}

} // namespace sprout
