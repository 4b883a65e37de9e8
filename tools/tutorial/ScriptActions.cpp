// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/ScriptActions.h"

#include <cstddef>
#include <cstdlib>
#include <exception>

#include "base/Errors.h"
#include "tutorial/DemoProgram.h"
#include "tutorial/HeldTimers.h"
#include "tutorial/Places.h"
#include "tutorial/StepLoop.h"

namespace sprout {

namespace {

constexpr int kDragMoves = 8;

std::string Joined(const std::vector<std::string>& words)
{
    std::string all;
    for (const std::string& word : words)
        all += (all.empty() ? "" : " ") + word;
    return all;
}

} // namespace

QRect ScriptActions::PointAt(const std::vector<std::string>& target)
{
    const QPoint middle = FindPlace(target).center();
    hand.MoveTo(middle - QPoint(2, 2));
    hand.MoveTo(middle);
    StepLoop::Settle();
    HeldTimers::Tick(QStringLiteral("ButtonAllOffTimer"));
    StepLoop::Settle();
    return FindPlace(target);
}

void ScriptActions::Click()
{
    hand.Press();
    hand.Release();
}

void ScriptActions::BeginDrag(const QRect& begin)
{
    hand.Press();
    hand.MoveTo(begin.center());
    StepLoop::Settle();
}

void ScriptActions::EndDrag(const QRect& begin, const QRect& end)
{
    for (int i = 1; i <= kDragMoves; ++i)
        hand.MoveTo(begin.center() + (end.center() - begin.center()) * i / kDragMoves);
    hand.Release();
}

void ScriptActions::Prepare(const ScriptStep& step)
{
    switch (step.Verb) {
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
    case ScriptVerb::Click:
    case ScriptVerb::Drag:
    case ScriptVerb::Look:
    case ScriptVerb::Keep:
        break;
    }
}

void ScriptActions::Tick(const std::string& name, int times)
{
    for (int i = 0; i < times; ++i) {
        if (HeldTimers::Tick(QString::fromStdString(name), {&program.Transport()}) == 0)
            throw RunTimeError(Words::AsIs("No timer " + name + " runs."));
        StepLoop::Settle();
    }
}

void DoSteps(const std::string& name, const std::vector<ScriptStep>& steps,
             const std::function<void(const ScriptStep&)>& doStep)
{
    std::size_t place = 0;
    StepLoop([&] {
        if (place == steps.size())
            return false;
        const ScriptStep& step = steps[place++];
        try {
            doStep(step);
        } catch (const std::exception& error) {
            throw RunTimeError(Words::AsIs(name + ", line " + std::to_string(step.Line) + ": " + error.what()));
        }
        return true;
    }).Run();
}

} // namespace sprout
