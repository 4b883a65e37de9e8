// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <functional>
#include <string>
#include <vector>

#include "core/Shared.h"
#include "sound/PlayTest.h"
#include "support/FakeWindows.h"
#include "support/Flags.h"
#include "tune_window/StepEditor.h"
#include "tune_window/TunFramPic.h"
#include "ui/ModalSteps.h"
#include "ui/widgets/Hints.h"

namespace sprout {

/// Shows a tune in the editor as the tune window does.
class EditorDisplay : public FakePlayDisplay {
public:
    void UpdateThisTune() override
    {
        FakePlayDisplay::UpdateThisTune();
        if (editor)
            editor->UpdateThisTune();
    }

    StepEditor* editor = nullptr;
};

/// A step editor in a visible window, with a tune of 4 steps, of which 1, 2 and 4 are on.
class StepEditorTest : public PlayTest {
protected:
    StepEditorTest()
    {
        SetStatusLbl(&statusLbl);
        TheServices().playDisplay = &editorDisplay;
        MakeTune(4);
        At(tune.Steps, 3).OnPos = 0;
        window.resize(760, 380);
        editor.resize(740, 346);
        windows.beatWindow = [this](std::string& name) { return AnswerChooser(name); };
        QObject::connect(&editor, &StepEditor::TuneEdited, &editor, [this] { ++edits; });
        window.show();
        QApplication::setActiveWindow(&window); // only an active window gives away the focus
        editor.UpdateThisTune();
        editorDisplay.editor = &editor;
        edits = 0;
    }

    /// A cycle of steps that are all on and rendered: step i sounds for 600 + i frames.
    void MakeTune(std::int32_t steps)
    {
        tune = Tune();
        tune.StepCount = steps;
        tune.Steps.resize(static_cast<std::size_t>(steps) + 1);
        for (std::int32_t i = 1; i <= steps; ++i) {
            TuneStep& step = At(tune.Steps, i);
            step.OnPos = 1;
            step.StepBeat.Name = "B" + std::to_string(i);
            step.StepBeat.Sound = CountingWave(600 + i);
            step.StepBeat.Loaded = true;
            step.StepWave = CountingWave(600 + i);
            SetStepWaveValid(step, true);
        }
        tune.TuneWave = CountingWave(5000);
        SetTuneWaveValid(tune, true);
    }

    void ShowTuneOf(std::int32_t steps)
    {
        MakeTune(steps);
        editor.UpdateThisTune();
    }

    template <class Control>
    [[nodiscard]] Control& Find(const char* name) const
    {
        return *editor.findChild<Control*>(QString::fromLatin1(name));
    }
    [[nodiscard]] TunFramPic& Surface() const { return Find<TunFramPic>("TunFramPic"); }
    [[nodiscard]] QScrollBar& Scroll() const { return Find<QScrollBar>("TunFramHScroll"); }
    [[nodiscard]] QWidget& Handle() const { return Find<QWidget>("DummyDuration"); }
    [[nodiscard]] QWidget& StepButton(std::int32_t step) const
    {
        return Find<QWidget>(("Step" + std::to_string(step)).c_str());
    }
    [[nodiscard]] QComboBox& StepNos() const { return Find<QComboBox>("StepNosCmb"); }

    /// A point in a step's column of an unscrolled surface.
    [[nodiscard]] static QPoint In(std::int32_t step, std::int32_t y, std::int32_t dx = 15)
    {
        return {StepLeft(step, kStepsLeftAtStart) + dx, y};
    }
    void ClickAt(QPoint place, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mouseClick(&Surface(), button, Qt::NoModifier, place);
    }
    void MoveTo(QPoint place) const { QTest::mouseMove(&Surface(), place); }
    [[nodiscard]] std::string Hint() const { return statusLbl.text().toStdString(); }

    /// The frames of the last sound played, including its lead-in.
    [[nodiscard]] std::int32_t Played() const { return play.PlayLength; }
    [[nodiscard]] bool HasPlayed() const { return !sound.pcm.empty(); }

    [[nodiscard]] QImage Drawn() const { return Surface().grab().toImage(); }

    bool AnswerChooser(std::string& name)
    {
        chooserGot.push_back(name);
        if (whileChoosing)
            whileChoosing();
        if (!chosenBeat)
            return false;
        name = *chosenBeat;
        return true;
    }

    FakeWindows windows;
    ProvidedWindows provided{windows};
    QLabel statusLbl;
    EditorDisplay editorDisplay;
    Tune& tune = Shared().CurrentTune;
    QWidget window;
    StepEditor editor{&window};
    int edits = 0;
    std::vector<std::string> chooserGot;
    std::optional<std::string> chosenBeat; ///< what the chooser returns; nothing: it is cancelled
    std::function<void()> whileChoosing;
};

} // namespace sprout
