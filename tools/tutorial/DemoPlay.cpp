// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/DemoPlay.h"

#include <QLabel>
#include <QLineEdit>

#include <cstdlib>
#include <exception>
#include <utility>

#include "base/Errors.h"
#include "tutorial/DemoProgram.h"
#include "tutorial/HeldTimers.h"
#include "tutorial/Places.h"
#include "tutorial/SlideLayout.h"
#include "tutorial/SlidePicture.h"
#include "tutorial/StepLoop.h"
#include "ui/widgets/ImageButton.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace {

constexpr int kDragMoves = 8;

/// What the child may want to see of the window in front, besides what a slide is about.
std::vector<QRect> OtherPlaces()
{
    std::vector<QRect> places;
    for (const QWidget* control : FrontWindow().findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(control);
        const bool isRead = label ? !label->text().isEmpty() : qobject_cast<const QLineEdit*>(control) != nullptr;
        if (control->isVisible() && (isRead || qobject_cast<const ImageButton*>(control)))
            places.emplace_back(control->mapToGlobal(QPoint(0, 0)), control->size());
    }
    return places;
}

std::string Joined(const std::vector<std::string>& words)
{
    std::string all;
    for (const std::string& word : words)
        all += (all.empty() ? "" : " ") + word;
    return all;
}

} // namespace

DemoPlay::DemoPlay(DemoProgram& demoProgram, DemoScript demoScript, std::int32_t demoNumber,
                   std::filesystem::path outFolder)
    : program(demoProgram), script(std::move(demoScript)), number(demoNumber), folder(std::move(outFolder))
{
}

std::vector<MadeSlide> DemoPlay::Play()
{
    StepLoop([this] { return DoStep(); }).Run();
    return slides;
}

bool DemoPlay::DoStep()
{
    if (place == script.Steps.size())
        return false;
    const ScriptStep& step = script.Steps[place++];
    try {
        Do(step);
    } catch (const std::exception& error) {
        throw RunTimeError(Words::AsIs(script.Name + ", line " + std::to_string(step.Line) + ": " + error.what()));
    }
    return true;
}

void DemoPlay::Do(const ScriptStep& step)
{
    switch (step.Verb) {
    case ScriptVerb::Click:
        return Click(step);
    case ScriptVerb::Drag:
        return Drag(step);
    case ScriptVerb::Look:
        return Look(step);
    case ScriptVerb::Point:
        static_cast<void>(PointAt(step.Target));
        return;
    case ScriptVerb::Press:
        return Hand::PressKey(QString::fromStdString(step.Target.front()));
    case ScriptVerb::Type:
        return Hand::Type(QString::fromStdString(Joined(step.Target)));
    case ScriptVerb::Tick:
        return Tick(step.Target.front(), step.Target.size() > 1 ? std::atoi(step.Target[1].c_str()) : 1);
    case ScriptVerb::Sing:
        program.Voice().Sing(step.Seconds);
        return Tick("CaptureTimer", 1);
    }
}

void DemoPlay::Tick(const std::string& name, int times)
{
    for (int i = 0; i < times; ++i) {
        if (HeldTimers::Tick(QString::fromStdString(name), {&program.Transport()}) == 0)
            throw RunTimeError(Words::AsIs("No timer " + name + " runs."));
        StepLoop::Settle();
    }
}

void DemoPlay::Click(const ScriptStep& step)
{
    const QRect target = PointAt(step.Target);
    SlideMarks marks;
    marks.Text = QString::fromStdString(step.Text);
    marks.PointsAt = target;
    marks.Finger = target.center();
    Shoot(step, target, "click", marks);
    hand.Press();
    hand.Release();
}

void DemoPlay::Drag(const ScriptStep& step)
{
    const QRect end = FindPlace(step.EndOfDrag);
    const QRect begin = PointAt(step.Target);
    SlideMarks marks;
    marks.Text = QString::fromStdString(step.Text);
    marks.PointsAt = begin;
    marks.Finger = begin.center();
    marks.ArrowTo = end.center();
    Shoot(step, begin, "drag", marks);
    hand.Press();
    hand.MoveTo(begin.center());
    StepLoop::Settle();
    marks.Text = QString::fromStdString(step.EndText);
    marks.PointsAt = end;
    Shoot(step, end, "drag", marks);
    for (int i = 1; i <= kDragMoves; ++i)
        hand.MoveTo(begin.center() + (end.center() - begin.center()) * i / kDragMoves);
    hand.Release();
}

void DemoPlay::Look(const ScriptStep& step)
{
    SlideMarks marks;
    marks.Text = QString::fromStdString(step.Text);
    if (!step.Target.empty())
        marks.PointsAt = FindPlace(step.Target);
    Shoot(step, QRect(0, 0, kSlideSize.width, kSlideSize.height), "wait", marks);
}

/// Moves the pointer over a place. Things can appear below it, so the place is looked up again.
QRect DemoPlay::PointAt(const std::vector<std::string>& target)
{
    const QPoint middle = FindPlace(target).center();
    hand.MoveTo(middle - QPoint(2, 2));
    hand.MoveTo(middle);
    StepLoop::Settle();
    HeldTimers::Tick(QStringLiteral("ButtonAllOffTimer"));
    StepLoop::Settle();
    return FindPlace(target);
}

void DemoPlay::Shoot(const ScriptStep& step, const QRect& active, const char* action, SlideMarks marks)
{
    MadeSlide slide;
    slide.Action = action;
    slide.Rectangle = {active.x(), active.y(), active.width(), active.height()};
    slide.Seconds = step.Seconds;
    slide.Text = marks.Text.toStdString();
    slides.push_back(slide);
    slides.back().Picture = NameOf(".png");
    if (step.HeardFor > 0)
        KeepSound(step.HeardFor);
    HeldTimers::Tick(QStringLiteral("PlayPosTimer"), {&program.Transport()});
    StepLoop::Settle();
    marks.Others = OtherPlaces();
    QImage picture = GrabScreen();
    DrawMarks(picture, marks);
    SaveSlide(picture, QString::fromStdString((folder / slides.back().Picture).string()));
}

void DemoPlay::KeepSound(double seconds)
{
    const WaveData heard = program.Sound().Hear(seconds);
    if (heard.Length == 0)
        throw RunTimeError(Words::AsIs("Nothing is to be heard."));
    SaveWaveFile(SoundOfSlide(heard), folder / NameOf(".wav"));
}

std::string DemoPlay::NameOf(const char* extension) const
{
    const std::size_t slide = slides.size();
    return "Demo" + std::to_string(number) + (slide < 10 ? "-0" : "-") + std::to_string(slide) + extension;
}

} // namespace sprout
