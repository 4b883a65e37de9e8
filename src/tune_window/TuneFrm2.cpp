// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TuneFrm2.h"

#include <QKeyEvent>

#include <array>
#include <optional>
#include <utility>

#include "beats/BeatFiles.h"
#include "core/Shared.h"
#include "sound/PlayMod.h"
#include "tune_window/StepEditor.h"
#include "tune_window/TuneChooser.h"
#include "tune_window/TuneFileCommands.h"
#include "tune_window/TuneGrid.h"
#include "tune_window/TunePicture.h"
#include "tune_window/rules/TuneWindowPlan.h"
#include "tunes/ChosenTune.h"
#include "tunes/RandomTune.h"
#include "tunes/TuneNames.h"
#include "ui/Windows.h"
#include "ui/forms/Guarded.h"
#include "ui/look/Palette.h"
#include "ui/widgets/FreeRoom.h"
#include "ui/widgets/PutAt.h"

namespace sprout {

namespace {

/// In the order of `TuneWindowPlan::tools`.
constexpr std::array kTools{"TestPlayBtn", "RndTuneBtn",    "NewTuneBtn", "ChangePicBtn",
                            "SaveTuneBtn", "DeleteTuneBtn", "HelpBtn"};

} // namespace

TuneFrm2::TuneFrm2(QWidget* parent) : BandedForm(parent)
{
    setObjectName(QStringLiteral("TuneFrm2"));
    SetCaption(Words::Text(" Choose a Tune"));
    ShowHintsInBand();
    MakeChooser();
    MakeButtons();
    MakeEditor();
    SetTabOrders();
}

void TuneFrm2::MakeChooser()
{
    chooser = new TuneChooser(this);
    chooser->ShowAllPic().installEventFilter(this);
    connect(chooser, &TuneChooser::TuneAccepted, this, [this] { Guarded([this] { OkBtn(); }); });
    connect(chooser, &TuneChooser::EditorsTunePlayWanted, this, [this] { Guarded([this] { TestPlayBtn(); }); });
}

void TuneFrm2::MakeButtons()
{
    const auto add = [this](const ButtonRow& row, void (TuneFrm2::*command)()) {
        AddWordButton(row, [this, command] { Guarded([this, command] { (this->*command)(); }); });
    };
    // Enter presses the first one.
    add({"OkBtn", Words::Later("OK"), Words::Later("Click Ok after choosing and/or editing a tune"), Plate::Word,
         kDeepLeaf},
        &TuneFrm2::OkBtn);
    add({"TestPlayBtn", Words::Later("Play"), Words::Later("Play button, use it to hear this tune")},
        &TuneFrm2::TestPlayBtn);
    add({"RndTuneBtn", Words::Later("Random tune"), Words::Later("Random button, use it to make up a surprise tune")},
        &TuneFrm2::RndTuneBtn);
    add({"NewTuneBtn", Words::Later("New tune"), Words::Later("New button, use it to start making your own new tune")},
        &TuneFrm2::NewTuneBtn);
    add({"ChangePicBtn", Words::Later("Change picture"),
         Words::Later("Picture button, use it to choose a picture for this tune")},
        &TuneFrm2::ChangePicBtn);
    add({"SaveTuneBtn", Words::Later("Save tune"),
         Words::Later("Save button, use it to keep this tune among your tunes")},
        &TuneFrm2::SaveTuneBtn);
    add({"DeleteTuneBtn", Words::Later("Delete tune"), kDeleteTuneHint, Plate::Tool, {}, "TrackDeleteBtn"},
        &TuneFrm2::DeleteTuneBtn);
    connect(chooser, &TuneChooser::DeletionOffered, findChild<QWidget*>(QStringLiteral("DeleteTuneBtn")),
            &QWidget::setVisible);
    add({"HelpBtn", Words::Later("Help"), Words::Later("Help button, use it to see help")}, &TuneFrm2::HelpBtn);
    add({"CancelBtn", Words::Later("Cancel"), Words::Later("Cancel button, use it to leave the track's tune as it was"),
         Plate::Word, kStone},
        &TuneFrm2::CancelBtn);
}

void TuneFrm2::MakeEditor()
{
    editor = new StepEditor(this);
    connect(editor, &StepEditor::TuneEdited, this, [this] { TuneChanged = true; });
}

void TuneFrm2::SetTabOrders()
{
    QWidget* before = &chooser->ShowAllPic();
    const auto reach = [this, &before](const char* name) {
        auto* next = findChild<QWidget*>(QString::fromLatin1(name));
        setTabOrder(before, next);
        before = next;
    };
    reach("TunePic");
    for (const char* tool : kTools)
        reach(tool);
    reach("OkBtn");
    reach("CancelBtn");
    setTabOrder(before, editor);
}

void TuneFrm2::FitTo(QSize room)
{
    const QSize gridFrame = PictureGridPic::FrameSize(kTuneColumns, 0);
    const TuneWindowPlan plan =
        PlanTuneWindow({room.width(), room.height(), kBandHeight, gridFrame.width(), gridFrame.height(),
                        editor->sizeHint().height(), Shared().TuneTableCount});
    resize(plan.width, plan.height);
    chooser->PlaceAt(plan);
    for (std::size_t i = 0; i < kTools.size(); ++i)
        PutAt(*findChild<QWidget*>(QString::fromLatin1(kTools[i])), plan.tools[i]);
    PutAt(*findChild<QWidget*>(QStringLiteral("OkBtn")), plan.okBtn);
    PutAt(*findChild<QWidget*>(QStringLiteral("CancelBtn")), plan.cancelBtn);
    PutAt(*editor, plan.editor);
}

void TuneFrm2::Open()
{
    FitTo(FreeRoom(*this));
    chooser->BeginWithEditorsTune();
    editor->UpdateThisTune(); // no tune of the table may replace it
    Guarded([this] { FindChosenTune(); });
    chooser->BringIntoView();
    chooser->ShowAllPic().setFocus();
    ShowModal();
    editor->HidePlayMarks();
}

void TuneFrm2::FindChosenTune()
{
    chooser->FindTune(ChosenTuneName);
    RefreshShowAllPic();
}

void TuneFrm2::RefreshShowAllPic()
{
    if (std::exchange(NewTuneMode, false))
        chooser->ChooseNothing();
    chooser->RefreshShowAllPic();
}

void TuneFrm2::UpdateThisTune()
{
    chooser->ShowEditorsTune();
    editor->UpdateThisTune();
}

void TuneFrm2::reject()
{
    Guarded([this] { CancelBtn(); });
}

void TuneFrm2::HearByKey(const QKeyEvent& event)
{
    if (!event.isAutoRepeat()) // holding the key must not restart the tune again and again
        Guarded([this] { TestPlayBtn(); });
}

void TuneFrm2::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space)
        HearByKey(*event);
    else
        BandedForm::keyPressEvent(event);
}

bool TuneFrm2::eventFilter(QObject* watched, QEvent* event)
{
    // In the grid, Space plays the current tune including its edits.
    if (watched == &chooser->ShowAllPic() && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
        HearByKey(static_cast<QKeyEvent&>(*event));
        return true;
    }
    return BandedForm::eventFilter(watched, event);
}

void TuneFrm2::TestPlayBtn()
{
    editor->PlayCurrentTune(0);
}

void TuneFrm2::NewTuneBtn()
{
    Player().StopPlay();
    Tune& tune = Shared().CurrentTune;
    MakeNewTune(tune);
    NewTuneMode = true;
    UpdateThisTune();
    RefreshShowAllPic();
    if (OkPressed && TuneChanged)
        MergeTuneBeats(Shared().Song, tune);
    ShowHint(Words::Text("Click a lamp to switch a step on"));
}

void TuneFrm2::RndTuneBtn()
{
    Player().StopPlay();
    editor->HidePlayMarks();
    const RandomSequence next = RandomSequence::FromClock();
    chooser->ChooseNothing();
    RefreshShowAllPic();
    MakeRandomTune(Shared().CurrentTune, next);
    TuneChanged = true;
    UpdateThisTune();
    editor->PlayCurrentTune(0);
}

void TuneFrm2::SaveTuneBtn()
{
    ShowHint({});
    const std::optional<TuneNames> names = AskTuneNames(this);
    if (!names)
        return;
    SaveCurrentTune(*names);
    chooser->ShowSavedTune();
}

void TuneFrm2::DeleteTuneBtn()
{
    chooser->DeleteTune();
}

void TuneFrm2::ChangePicBtn()
{
    ChooseTunePicture([this](const Picture& picture) {
        Shared().CurrentTune.Picture = picture;
        chooser->Shown().TunePic->SetPicture(picture);
        TuneChanged = true;
    });
}

void TuneFrm2::HelpBtn()
{
    TheWindows().ShowHelp();
}

void TuneFrm2::OkBtn()
{
    ShowHint({});
    OkPressed = true;
    TuneChanged = true;
    chooser->ShowAllPic().BlinkSelectedTimer().stop();
    Answer(1);
}

void TuneFrm2::CancelBtn()
{
    ChosenTuneName = OriginalTuneName;
    Player().StopPlay();
    ShowHint({});
    chooser->Leave();
    OkPressed = false;
    BandedForm::reject();
}

} // namespace sprout
