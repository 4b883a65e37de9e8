// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/StepEditor.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <chrono>

#include "beats/BeatFiles.h"
#include "core/Shared.h"
#include "sound/PlayMod.h"
#include "sound/StepPlays.h"
#include "tune_window/StepFocus.h"
#include "tune_window/TunFramPic.h"
#include "ui/Artwork.h"
#include "ui/ButtonScheme.h"
#include "ui/Dialogs.h"
#include "ui/Guarded.h"
#include "ui/Look.h"
#include "ui/Palette.h"
#include "ui/PopupKeys.h"
#include "ui/QtText.h"
#include "ui/Windows.h"

namespace sprout {

namespace {

constexpr int kSurfaceHeight = 304;
constexpr int kUsualWidth = 740;
constexpr int kBottomRowGap = 6;
constexpr int kBottomRowHeight = 36;
constexpr QSize kEditorSize{kUsualWidth, kSurfaceHeight + kBottomRowGap + kBottomRowHeight};
constexpr int kComboWidth = 132;
constexpr int kScrollHeight = 18;
constexpr QSize kMarkSize{30, 16};
constexpr QPoint kNoteInstrPlace{8, 57};
constexpr QPoint kNotePianoPlace{8, 118};
constexpr QSize kPianoCursorSize{32, 32};
constexpr QPoint kPianoCursorTip{9, 3};
constexpr std::chrono::milliseconds kPlayMarksInterval{40};
constexpr std::int32_t kMostFocusSteps = 256; // the most that a user's tune can have; a foreign file may contain more

constexpr ButtonRow kChangeAllRow{"ChangeAllBtn", "Change All",
                                  "Change All button, use it to choose one instrument for all steps", Plate::Word,
                                  kDeepLeaf};

/// The step counts to pick from; -1 asks for another number.
struct StepNosRow {
    const char* caption;
    std::int32_t steps;
};

constexpr std::int32_t kOtherSteps = -1;
constexpr std::array kStepNos{
    StepNosRow{"8 Steps", 8},   StepNosRow{"16 Steps", 16},           StepNosRow{"32 Steps", 32},
    StepNosRow{"64 Steps", 64}, StepNosRow{"Other...!", kOtherSteps},
};

/// Turning the wheel over the box must not change the tune; closing its list must not close the window.
class StepNosBox : public QComboBox {
public:
    explicit StepNosBox(QWidget* parent) : QComboBox(parent) { KeepClosingKeys(*this); }

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

QLabel* MakeNote(const char* name, const char* text, QPoint place, QWidget* surface)
{
    auto* note = new QLabel(QCoreApplication::translate("StepEditor", text), surface);
    note->setObjectName(QString::fromLatin1(name));
    note->setFont(HintFont());
    note->setAttribute(Qt::WA_TransparentForMouseEvents);
    note->move(place);
    note->adjustSize();
    return note;
}

} // namespace

StepEditor::StepEditor(QWidget* parent)
    : QWidget(parent), chooseBeat([](std::string& name) { return TheWindows().ChooseBeat(name); })
{
    MakeStepNosCmb();
    MakeTunFramPic();
    MakeChangeAll();
    MakeDummyDuration();
    MakePlayMarks();
    MakeTunFramHScroll();
    MakeStepPopMnu();
    setFocusProxy(StepNosCmb);
    resize(kEditorSize);
}

QSize StepEditor::sizeHint() const
{
    return kEditorSize;
}

void StepEditor::MakeTunFramPic()
{
    surface = new TunFramPic(this);
    surface->setAccessibleName(tr("Steps of the tune"));
    pianoCursor = QCursor(Artwork(QStringLiteral("pictures/PianoCursorImg"), kPianoCursorSize, devicePixelRatioF()),
                          kPianoCursorTip.x(), kPianoCursorTip.y());
    connect(surface, &TunFramPic::Pressed, this,
            [this](QPoint place, Qt::MouseButton button) { Guarded([&] { PressSurface(place, button); }); });
    connect(surface, &TunFramPic::Released, this,
            [this](QPoint place, Qt::MouseButton button) { Guarded([&] { ReleaseSurface(place, button); }); });
    connect(surface, &TunFramPic::Moved, this,
            [this](QPoint place, Qt::MouseButtons held) { Guarded([&] { MoveOnSurface(place, held); }); });
    connect(surface, &TunFramPic::Wheeled, this,
            [this](int pixels) { TunFramHScroll->setValue(TunFramHScroll->value() + pixels); });
    connect(surface, &TunFramPic::Resized, this, [this] { Guarded([this] { UpdateThisTune(); }); });
}

void StepEditor::MakeDummyDuration()
{
    DummyDuration = new ArtImage("DummyDuration", QSize(kDurationRightWidth, kBarHeight), surface);
    DummyDuration->hide();
}

void StepEditor::MakePlayMarks()
{
    PlayingStepImg = new ArtImage("PlayingStepImg", kMarkSize, surface);
    PlayingOnStepImg = new ArtImage("PlayingOnStepImg", kMarkSize, surface);
    PlayPosTimer.setObjectName(QStringLiteral("PlayPosTimer"));
    PlayPosTimer.setParent(this);
    PlayPosTimer.setInterval(kPlayMarksInterval);
    connect(&PlayPosTimer, &QTimer::timeout, this, [this] { Guarded([this] { TickPlayPos(); }); });
    HidePlayMarks();
}

void StepEditor::MakeChangeAll()
{
    auto* buttons = new ButtonScheme(*surface, AllOffTimer::OffAtFirst);
    buttons->setParent(this);
    ChangeAllBtn = &buttons->AddButton(kChangeAllRow, [this] { Guarded([this] { ClickChangeAll(); }); });
    NoteInstrLbl = MakeNote("NoteInstrLbl", QT_TR_NOOP("Instruments: click on a picture to choose another"),
                            kNoteInstrPlace, surface);
    NotePianoLbl =
        MakeNote("NotePianoLbl", QT_TR_NOOP("Pianos: click on a key to change the pitch"), kNotePianoPlace, surface);
}

void StepEditor::MakeStepNosCmb()
{
    StepNosCmb = new StepNosBox(this);
    StepNosCmb->setObjectName(QStringLiteral("StepNosCmb"));
    StepNosCmb->setAccessibleName(tr("Number of steps"));
    for (const StepNosRow& row : kStepNos)
        StepNosCmb->addItem(tr(row.caption), row.steps);
    hints.Watch(*StepNosCmb, "Number of steps, use it to make the tune longer or shorter");
    connect(StepNosCmb, &QComboBox::activated, this, [this](int index) { Guarded([&] { ClickStepNos(index); }); });
}

void StepEditor::MakeTunFramHScroll()
{
    TunFramHScroll = new QScrollBar(Qt::Horizontal, this);
    TunFramHScroll->setObjectName(QStringLiteral("TunFramHScroll"));
    TunFramHScroll->setAccessibleName(tr("Scroll the steps"));
    TunFramHScroll->setMinimum(1);
    TunFramHScroll->setSingleStep(kStepPitch);
    hints.Watch(*TunFramHScroll, "Slide this to see the other steps");
    connect(TunFramHScroll, &QScrollBar::valueChanged, this, [this](int value) {
        if (ScrollGuard2)
            return;
        StepsLeft = StepsLeftAt(value);
        Guarded([this] { DrawTuneSteps(); });
    });
}

void StepEditor::MakeStepPopMnu()
{
    StepPopMnu = new QMenu(this);
    StepPopMnu->setObjectName(QStringLiteral("StepPopMnu"));
    for (const StepMenuRow& row : kStepMenu) {
        if (row.caption.empty())
            StepPopMnu->addSeparator();
        else
            StepPopMnu->addAction(QtText(row.caption))->setData(static_cast<int>(row.item));
    }
}

void StepEditor::resizeEvent(QResizeEvent* /*event*/)
{
    const int surfaceHeight = std::max(height() - kBottomRowGap - kBottomRowHeight, kSurfaceHeight);
    const int rowTop = surfaceHeight + kBottomRowGap;
    StepNosCmb->setGeometry(0, rowTop, kComboWidth, kBottomRowHeight);
    TunFramHScroll->setGeometry(kComboWidth + 2 * kBottomRowGap, rowTop + (kBottomRowHeight - kScrollHeight) / 2,
                                width() - kComboWidth - 2 * kBottomRowGap, kScrollHeight);
    surface->setGeometry(0, 0, width(), surfaceHeight);
}

void StepEditor::UpdateThisTune()
{
    namesForPeople.clear();
    SyncStepCombo();
    SetStepScroll();
    DrawTuneSteps();
}

const std::string& StepEditor::NameForPeople(const std::string& beat)
{
    const auto [found, isNew] = namesForPeople.try_emplace(beat);
    if (isNew)
        found->second = BeatNameForPeople(beat);
    return found->second;
}

void StepEditor::SyncStepCombo()
{
    // A count that is not in the list is shown above it while the tune has that count.
    if (StepNosCmb->count() > static_cast<int>(kStepNos.size()))
        StepNosCmb->removeItem(0);
    const std::int32_t count = Shared().CurrentTune.StepCount;
    if (StepNosCmb->findData(count) < 0)
        StepNosCmb->insertItem(0, tr("%1 Steps").arg(count), count);
    StepNosCmb->setCurrentIndex(StepNosCmb->findData(count));
}

void StepEditor::SetStepScroll()
{
    const StepScroll scroll = StepScrollRange(Shared().CurrentTune.StepCount, surface->width());
    ScrollGuard2 = true;
    TunFramHScroll->setMaximum(scroll.maximum);
    TunFramHScroll->setPageStep(scroll.largeChange);
    TunFramHScroll->setValue(TunFramHScroll->minimum());
    ScrollGuard2 = false;
    StepsLeft = kStepsLeftAtStart;
}

void StepEditor::DrawTuneSteps()
{
    surface->setToolTip(QString());
    surface->DrawTuneSteps(Shared().CurrentTune, StepsLeft);
    if (!DurationDragging)
        DummyDuration->hide();
    SyncStepFocus();
    PlaceChangeAll();
    PlacePlayMarks();
}

void StepEditor::SyncStepFocus()
{
    const Tune& tune = Shared().CurrentTune;
    const std::int32_t reached = std::min(tune.StepCount, kMostFocusSteps);
    const auto wanted = static_cast<std::size_t>(reached) + 1;
    for (; stepFocus.size() > wanted; stepFocus.pop_back())
        delete stepFocus.back();
    while (stepFocus.size() < wanted)
        stepFocus.push_back(MakeStepFocus(static_cast<std::int32_t>(stepFocus.size())));
    for (std::int32_t step = 1; step <= reached; ++step)
        At(stepFocus, step)
            ->ShowStep(At(tune.Steps, step), NameForPeople(At(tune.Steps, step).StepBeat.Name), StepsLeft);
    SetTabStep(std::clamp(tabStep, 1, std::max(reached, 1)));
}

void StepEditor::SetTabStep(std::int32_t step)
{
    tabStep = step;
    for (std::int32_t other = 1; other < static_cast<std::int32_t>(stepFocus.size()); ++other)
        At(stepFocus, other)->SetTabStop(other == step);
}

StepFocus* StepEditor::MakeStepFocus(std::int32_t step)
{
    auto* focus = new StepFocus(step, surface);
    connect(focus, &StepFocus::KeyPressed, this,
            [this, step](QKeyEvent* event) { RunOnStep(step, [&] { PressStepKey(step, *event); }); });
    connect(focus, &StepFocus::MenuWanted, this, [this, step] {
        RunOnStep(step, [&] { OpenStepMenu(step, QPoint(StepLeft(step, StepsLeft), kNumberTop)); });
    });
    connect(focus, &StepFocus::Reached, this, [this, step] {
        SetTabStep(step);
        BringIntoView(step);
    });
    connect(focus, &QAbstractButton::clicked, this, [this, step] { RunOnStep(step, [&] { ToggleLamp(step); }); });
    QWidget* const before = step == 1 ? static_cast<QWidget*>(StepNosCmb) : stepFocus.back();
    setTabOrder(before, focus);
    setTabOrder(focus, ChangeAllBtn);
    focus->show();
    return focus;
}

void StepEditor::RunOnStep(std::int32_t step, const std::function<void()>& command)
{
    // A tune that is not shown yet may have fewer steps than the visible one.
    if (step <= Shared().CurrentTune.StepCount)
        Guarded(command);
}

void StepEditor::PlaceChangeAll()
{
    const Tune& tune = Shared().CurrentTune;
    const auto first = tune.Steps.begin() + 1;
    const bool anyOn = std::any_of(first, first + tune.StepCount, [](const TuneStep& step) { return step.IsOn(); });
    ChangeAllBtn->move(ChangeAllLeft(tune.StepCount, StepsLeft), kChangeAllTop);
    for (QWidget* const shown :
         {ChangeAllBtn, static_cast<QWidget*>(NoteInstrLbl), static_cast<QWidget*>(NotePianoLbl)})
        shown->setVisible(anyOn);
}

void StepEditor::ShowEdited()
{
    Q_EMIT TuneEdited();
    DrawTuneSteps();
    // The sound may have to be rendered first; show the click before that.
    surface->repaint();
}

void StepEditor::BringIntoView(std::int32_t step)
{
    TunFramHScroll->setValue(ScrollToStep(step, TunFramHScroll->value(), surface->width()));
}

void StepEditor::ClickStepNos(int index)
{
    std::int32_t count = StepNosCmb->itemData(index).toInt();
    if (count == kOtherSteps)
        count = AskStepCount();
    if (count == 0)
        return SyncStepCombo();
    ChangeStepCount(Shared().CurrentTune, count);
    SetStepScroll();
    ShowEdited();
    PlayCurrentTune(kEditLeadIn);
}

std::int32_t StepEditor::AskStepCount()
{
    const std::string now = std::to_string(Shared().CurrentTune.StepCount);
    for (;;) {
        const std::string answer = AskText(now, "Enter the Number of Steps:", "(Enter between 2 to 64)");
        if (answer.empty())
            return 0;
        if (const std::optional<std::int32_t> typed = TypedStepCount(answer))
            return *typed;
        ShowMessage(answer + " is not valid,", "Enter a number between 2 to 64.");
    }
}

void StepEditor::ClickChangeAll()
{
    Tune& tune = Shared().CurrentTune;
    if (tune.StepCount < 1)
        return ShowMessage("Set the number of steps and try.");
    std::string name;
    if (!chooseBeat(name) || name.empty())
        return;
    ChangeAllBeats(tune, BeatOfFile(At(tune.Steps, 1).StepBeat, name));
    ShowEdited();
}

void StepEditor::PlayCurrentTune(float leadIn)
{
    PlayEditedTune(Shared().CurrentTune, leadIn);
    EnablePlayPosTimer();
}

void StepEditor::PlayStep(std::int32_t step)
{
    HidePlayMarks();
    PlayStepSound(At(Shared().CurrentTune.Steps, step));
}

void StepEditor::PlayBeat(std::int32_t step)
{
    HidePlayMarks();
    PlayStepBeat(At(Shared().CurrentTune.Steps, step));
}

void StepEditor::EnablePlayPosTimer()
{
    PlayPosTimer.start();
}

void StepEditor::HidePlayMarks()
{
    PlayPosTimer.stop();
    LastPlayStep = 1;
    PlayingStepImg->hide();
    PlayingOnStepImg->hide();
}

void StepEditor::TickPlayPos()
{
    Player().UpdatePlayPosition();
    const PlayModState& play = PlayShared();
    const Tune& tune = Shared().CurrentTune;
    const bool plays = play.PlayState == PlayState::Playing || play.PlayState == PlayState::PlayingLoop;
    if (!plays || tune.StepCount < 1)
        return HidePlayMarks();
    LastPlayStep = StepInPlay(play, Shared().Song.Tempo, tune.StepCount);
    PlayingStepImg->show();
    // The mark of an on-step stays until the next on-step plays.
    if (At(tune.Steps, LastPlayStep).IsOn()) {
        lastOnStep = LastPlayStep;
        PlayingOnStepImg->show();
    }
    PlacePlayMarks();
}

void StepEditor::PlacePlayMarks()
{
    PlayingStepImg->move(StepLeft(LastPlayStep, StepsLeft), kLampTop);
    PlayingOnStepImg->move(StepLeft(lastOnStep, StepsLeft), kLampTop);
}

} // namespace sprout
