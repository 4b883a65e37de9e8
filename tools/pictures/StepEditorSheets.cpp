// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/StepEditorSheets.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QMouseEvent>
#include <QPixmap>
#include <QScrollBar>

#include <array>
#include <string>

#include "core/Paths.h"
#include "core/Shared.h"
#include "pictures/SheetPicture.h"
#include "service/Services.h"
#include "tune_window/StepEditor.h"
#include "tune_window/TunFramPic.h"
#include "ui/forms/QtMessages.h"
#include "ui/forms/QtScreen.h"
#include "ui/look/Artwork.h"
#include "ui/look/Palette.h"
#include "ui/look/ProgramPictures.h"

namespace sprout {
namespace {

/// A tune with some steps off, all pitches and various lengths.
void FillCurrentTune(std::int32_t steps)
{
    constexpr std::array durations{100, 70, 0, 200, 150, 5};
    const std::array pictures{ArtworkPicture(QStringLiteral("pictures/NewTunePicture")), Picture(),
                              ArtworkPicture(QStringLiteral("pictures/RecordButtonPic"))};
    Tune& tune = Shared().CurrentTune;
    tune = Tune();
    tune.StepCount = steps;
    tune.Steps.resize(static_cast<std::size_t>(steps) + 1);
    for (std::int32_t i = 1; i <= steps; ++i) {
        TuneStep& step = At(tune.Steps, i);
        const auto number = static_cast<std::size_t>(i);
        step.SetOn(i % 3 != 2 || i == 8);
        step.PitchShift = (i * 5) % 24 - 12;
        step.Duration = durations[number % durations.size()];
        step.StepBeat.Name = "P_Piano High";
        step.StepBeat.Picture = pictures[number % pictures.size()];
    }
}

void PointAt(StepEditor& editor, QPoint place)
{
    auto& surface = *editor.findChild<TunFramPic*>(QStringLiteral("TunFramPic"));
    QMouseEvent move(QEvent::MouseMove, place, surface.mapToGlobal(place), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&surface, &move);
}

void DrawMarks(StepEditor& editor, const QString& folder)
{
    FillCurrentTune(8);
    Shared().SongBeatsInside = false;
    editor.UpdateThisTune();
    const DurationBar bar = BarOfStep(4, kStepsLeftAtStart, At(Shared().CurrentTune.Steps, 4).PitchShift, 150);
    PointAt(editor, QPoint(bar.left + 4, bar.top + 2));
    for (const char* name : {"PlayingStepImg", "PlayingOnStepImg"}) {
        auto& mark = *editor.findChild<QWidget*>(QString::fromLatin1(name));
        mark.move(StepLeft(name[7] == 'O' ? 4 : 5, kStepsLeftAtStart), kLampTop);
        mark.show();
    }
    editor.findChild<QWidget*>(QStringLiteral("Step7"))->setFocus(Qt::TabFocusReason);
    SaveSheet(editor, folder, QStringLiteral("steps-marks"));
    Shared().SongBeatsInside = true;
    editor.HidePlayMarks();
}

void DrawStepMenu(StepEditor& editor, const QString& folder)
{
    auto& menu = *editor.findChild<QMenu*>(QStringLiteral("StepPopMnu"));
    menu.popup(editor.pos());
    menu.setActiveAction(menu.actions().front());
    SaveSheet(menu, folder, QStringLiteral("steps-menu"));
    menu.hide();
}

void DrawStepNumbers(StepEditor& editor, const QString& folder)
{
    auto& combo = *editor.findChild<QComboBox*>(QStringLiteral("StepNosCmb"));
    combo.showPopup();
    SaveSheet(*combo.view()->window(), folder, QStringLiteral("steps-combo"));
    combo.hidePopup();
}

} // namespace

void DrawStepEditorSheets(const QString& folder)
{
    QtMessages messages;
    QtScreen screen;
    TheServices() = {.messages = &messages, .screen = &screen};
    MakeProgramPictures();
    SetUserRoot("/nowhere");
    QWidget window;
    StepEditor editor(&window);
    editor.move(8, 8);
    window.resize(editor.size() + QSize(16, 16));
    window.show();
    for (const std::int32_t steps : {2, 8, 16, 32, 64}) {
        FillCurrentTune(steps);
        editor.UpdateThisTune();
        SaveSheet(window, folder, QStringLiteral("steps-%1").arg(steps));
    }
    auto& scroll = *editor.findChild<QScrollBar*>(QStringLiteral("TunFramHScroll"));
    scroll.setValue(scroll.maximum() / 2);
    SaveSheet(window, folder, QStringLiteral("steps-64-middle"));
    scroll.setValue(scroll.maximum());
    SaveSheet(window, folder, QStringLiteral("steps-64-end"));
    DrawMarks(editor, folder);
    DrawStepMenu(editor, folder);
    DrawStepNumbers(editor, folder);
    Shared().CurrentTune = Tune();
    TheServices() = Services();
}

} // namespace sprout
