// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/ButtonScheme.h"

#include <QEvent>

#include <cassert>
#include <chrono>
#include <utility>

#include "ui/widgets/Hints.h"
#include "ui/words/QtText.h"

namespace sprout {

namespace {

constexpr std::chrono::milliseconds kAllOffAfter{5000};

} // namespace

ButtonScheme::ButtonScheme(QWidget& owner, AllOffTimer timer) : QObject(&owner), window(owner)
{
    allOffTimer.setObjectName(QStringLiteral("ButtonAllOffTimer"));
    allOffTimer.setParent(this);
    allOffTimer.setInterval(kAllOffAfter);
    allOffTimer.setSingleShot(true);
    connect(&allOffTimer, &QTimer::timeout, this, &ButtonScheme::ButtonsOff);
    if (timer == AllOffTimer::OnAtOnce)
        allOffTimer.start();
    window.installEventFilter(this);
}

ImageButton& ButtonScheme::AddButton(const ButtonRow& row, std::function<void()> onClick)
{
    const int number = states.AddButton(row.name);
    auto* button = new ImageButton(row, *this, number, &window);
    buttons.push_back(button);
    connect(button, &QAbstractButton::clicked, this, std::move(onClick));
    RefreshButtons();
    return *button;
}

ImageButton& ButtonScheme::Button(std::string_view name) const
{
    for (ImageButton* button : buttons)
        if (button && states.State(button->Number()).Name == name)
            return *button;
    assert(!"no button of this name");
    return *buttons.front();
}

void ButtonScheme::InitButtons()
{
    states.InitButtons();
    RefreshButtons();
}

void ButtonScheme::ButtonHover(const ImageButton& button)
{
    if (MouseMovedSinceHint())
        ShowHintOf(button);
    if (states.ButtonDown())
        return;
    states.ButtonHover(button.Number());
    RefreshButtons();
    allOffTimer.start();
}

void ButtonScheme::ButtonsOff()
{
    states.ButtonsOff();
    RefreshButtons();
}

void ButtonScheme::ButtonPress(const ImageButton& button)
{
    states.ButtonPress(button.Number());
    RefreshButtons();
}

void ButtonScheme::ButtonRelease(const ImageButton& button)
{
    states.ButtonRelease(button.Number());
    RefreshButtons();
    allOffTimer.start();
}

void ButtonScheme::ButtonSetOn(const ImageButton& button)
{
    states.SetWanted(button.Number(), ButtonFace::PressedOn);
    RefreshButtons();
}

void ButtonScheme::ButtonSetNormal(const ImageButton& button)
{
    states.SetWanted(button.Number(), ButtonFace::Normal);
    RefreshButtons();
}

void ButtonScheme::RefreshButtons()
{
    for (const int number : states.RefreshButtons()) {
        ImageButton& button = *buttons[static_cast<std::size_t>(number)];
        button.SetFace(states.State(number).Shown);
    }
}

bool ButtonScheme::eventFilter(QObject* watched, QEvent* event)
{
    // A key can open a form while a mouse button is held; the held button would then miss its release.
    if (event->type() == QEvent::WindowBlocked)
        LetGo();
    return QObject::eventFilter(watched, event);
}

void ButtonScheme::LetGo()
{
    for (ImageButton* button : buttons)
        if (button && button->isDown()) {
            button->setDown(false);
            ButtonRelease(*button);
        }
}

} // namespace sprout
