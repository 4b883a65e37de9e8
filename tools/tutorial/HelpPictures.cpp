// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/HelpPictures.h"

#include <QApplication>
#include <QPainter>

#include <cstddef>
#include <cstdlib>
#include <string>
#include <utility>

#include "base/Errors.h"
#include "tutorial/Places.h"
#include "tutorial/SlidePicture.h"
#include "tutorial/StepLoop.h"

namespace sprout {

namespace {

constexpr int kPixelRatio = 2;
constexpr std::size_t kNumbersFrom = 2; ///< behind the picture's name and that of its control

/// A window, or a control of the window in front.
QWidget& WidgetNamed(const std::string& name)
{
    const QString wanted = QString::fromStdString(name);
    for (QWidget* control : FrontWindow().findChildren<QWidget*>(wanted))
        if (control->isVisible())
            return *control;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->objectName() == wanted)
            return *window;
    throw RunTimeError(Words::AsIs("There is no " + name + "."));
}

QRect PartOf(const QWidget& widget, const std::vector<std::string>& words)
{
    if (words.size() <= kNumbersFrom)
        return widget.rect();
    const auto number = [&words](std::size_t place) { return std::atoi(words[kNumbersFrom + place].c_str()); };
    const QRect part(number(0), number(1), number(2), number(3));
    if (part.isEmpty() || !widget.rect().contains(part))
        throw RunTimeError(Words::AsIs(words[1] + " has no such part."));
    return part;
}

} // namespace

QImage HelpPicture(QWidget& widget, const QRect& part)
{
    QImage grabbed = widget.grab(part).toImage();
    grabbed.setDevicePixelRatio(1);
    QImage picture(grabbed.size(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter(&picture).drawImage(0, 0, grabbed);
    const QSize most = QSize(kMostHelpPicture.width, kMostHelpPicture.height) * kPixelRatio;
    if (picture.width() <= most.width() && picture.height() <= most.height())
        return picture;
    return picture.scaled(most, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

HelpPictures::HelpPictures(DemoProgram& program, QString scriptName, std::filesystem::path outFolder)
    : name(std::move(scriptName)), folder(std::move(outFolder)), actions(program)
{
}

void HelpPictures::Make(const std::vector<ScriptStep>& steps)
{
    DoSteps(name.toStdString(), steps, [this](const ScriptStep& step) { Do(step); });
}

void HelpPictures::Do(const ScriptStep& step)
{
    switch (step.Verb) {
    case ScriptVerb::Click:
        static_cast<void>(actions.PointAt(step.Target));
        return actions.Click();
    case ScriptVerb::Drag: {
        const QRect end = FindPlace(step.EndOfDrag);
        const QRect begin = actions.PointAt(step.Target);
        actions.BeginDrag(begin);
        return actions.EndDrag(begin, end);
    }
    case ScriptVerb::Keep:
        return Keep(step);
    default:
        return actions.Prepare(step);
    }
}

void HelpPictures::Keep(const ScriptStep& step) const
{
    StepLoop::Settle();
    QWidget& widget = WidgetNamed(step.Target[1]);
    const std::filesystem::path file = folder / (step.Target[0] + ".png");
    SaveSlide(HelpPicture(widget, PartOf(widget, step.Target)), QString::fromStdString(file.string()));
}

} // namespace sprout
