// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/DemoPlay.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>

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

constexpr const char* kSharpExtension = "@2x.png"; ///< beside the slide, for screens with small pixels
constexpr int kColoursOfSharp = 32;                ///< its small pixels need fewer shades at the edges

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

} // namespace

DemoPlay::DemoPlay(DemoProgram& demoProgram, DemoScript demoScript, std::int32_t demoNumber,
                   std::filesystem::path outFolder)
    : program(demoProgram),
      script(std::move(demoScript)),
      number(demoNumber),
      folder(std::move(outFolder)),
      actions(demoProgram)
{
}

std::vector<MadeSlide> DemoPlay::Play()
{
    DoSteps(script.Name, script.Steps, [this](const ScriptStep& step) { Do(step); });
    return slides;
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
    default:
        return actions.Prepare(step);
    }
}

void DemoPlay::Click(const ScriptStep& step)
{
    const QRect target = actions.PointAt(step.Target);
    SlideMarks marks;
    marks.Text = QString::fromStdString(step.Text);
    marks.PointsAt = target;
    marks.Finger = target.center();
    Shoot(step, target, "click", marks);
    actions.Click();
}

void DemoPlay::Drag(const ScriptStep& step)
{
    const QRect end = FindPlace(step.EndOfDrag);
    const QRect begin = actions.PointAt(step.Target);
    SlideMarks marks;
    marks.Text = QString::fromStdString(step.Text);
    marks.PointsAt = begin;
    marks.Finger = begin.center();
    marks.ArrowTo = end.center();
    Shoot(step, begin, "drag", marks);
    actions.BeginDrag(begin);
    marks.Text = QString::fromStdString(step.EndText);
    marks.PointsAt = end;
    Shoot(step, end, "drag", marks);
    actions.EndDrag(begin, end);
}

void DemoPlay::Look(const ScriptStep& step)
{
    SlideMarks marks;
    marks.Text = QString::fromStdString(step.Text);
    if (!step.Target.empty())
        marks.PointsAt = FindPlace(step.Target);
    Shoot(step, QRect(0, 0, kSlideSize.width, kSlideSize.height), "wait", marks);
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
    if (qApp->devicePixelRatio() > 1)
        SaveSlide(picture, QString::fromStdString((folder / NameOf(kSharpExtension)).string()), kColoursOfSharp);
    else
        SaveSlide(picture, QString::fromStdString((folder / slides.back().Picture).string()));
}

void DemoPlay::KeepSound(double seconds)
{
    const WaveData heard = program.Sound().Hear(seconds);
    if (heard.Length == 0)
        throw RunTimeError(Words::AsIs("Nothing is to be heard."));
    if (qApp->devicePixelRatio() == 1)
        SaveWaveFile(SoundOfSlide(heard), folder / NameOf(".wav"));
}

std::string DemoPlay::NameOf(const char* extension) const
{
    const std::size_t slide = slides.size();
    return "Demo" + std::to_string(number) + (slide < 10 ? "-0" : "-") + std::to_string(slide) + extension;
}

} // namespace sprout
