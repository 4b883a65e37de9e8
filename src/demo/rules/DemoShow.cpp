// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/rules/DemoShow.h"

namespace sprout {

namespace {

DemoOrders WithTimer(DemoOrders orders, const DemoSlide& slide)
{
    orders.Interval = DemoInterval(slide.Seconds);
    orders.Timer = orders.Interval > 0 ? DemoTimerChange::On : DemoTimerChange::Off;
    return orders;
}

} // namespace

DemoOrders DemoShow::ShowDemoSlide(std::int32_t index, const LoadPicture& load)
{
    slideIndex = index;
    isOver = index >= ImageCount();
    if (isOver)
        return End();
    slide = slides[static_cast<std::size_t>(index)];
    picture = load(slide);
    return picture ? Begin(index) : DemoOrders();
}

DemoOrders DemoShow::End()
{
    isLinkShown = true;
    DemoOrders orders;
    orders.StopPlayer = true;
    orders.Timer = DemoTimerChange::Off;
    return orders;
}

DemoOrders DemoShow::Begin(std::int32_t index)
{
    isLinkShown = index + 1 >= ImageCount();
    DemoOrders orders;
    orders.StopPlayer = slide.Action == DemoAction::Click || (slide.Action == DemoAction::Drag && !dragStarted);
    // A drag that was let go on its way moves on by time, without another sound.
    const bool isOnItsWay = orders.StopPlayer && slide.Action == DemoAction::Drag && dragSteps >= 2;
    orders.PlaySound = !isOnItsWay;
    return WithTimer(orders, slide);
}

const DemoSlide* DemoShow::NextSlide() const
{
    return isOver || slideIndex + 1 >= ImageCount() ? nullptr : &slides[static_cast<std::size_t>(slideIndex) + 1];
}

bool DemoShow::GoesOnAnywhere() const
{
    if (isOver)
        return false;
    return !picture || (!slide.Rectangle.Reaches(*picture) && DemoInterval(slide.Seconds) == 0);
}

bool DemoShow::IsRectangleAwaited() const
{
    return !isOver && picture && slide.Action != DemoAction::Wait && slide.Rectangle.Reaches(*picture);
}

bool DemoShow::GoOn()
{
    ++slideIndex;
    return true;
}

bool DemoShow::Press(DemoPoint point)
{
    if (isOver)
        return false;
    if (GoesOnAnywhere())
        return GoOn();
    if (!slide.Rectangle.Contains(point))
        return false;
    if (slide.Action != DemoAction::Drag)
        return GoOn();
    dragStarted = true;
    return false;
}

bool DemoShow::Move(DemoPoint point)
{
    if (isOver || !dragStarted || slide.Action != DemoAction::Drag || !slide.Rectangle.Contains(point))
        return false;
    ++dragSteps;
    return GoOn();
}

void DemoShow::Release()
{
    dragStarted = false;
}

bool DemoShow::PressKey()
{
    if (isOver)
        return false;
    if (GoesOnAnywhere() || slide.Action != DemoAction::Drag)
        return GoOn();
    dragStarted = true;
    ++dragSteps;
    return GoOn();
}

bool DemoShow::Tick()
{
    if (isOver)
        return false;
    if (slide.Action == DemoAction::Drag)
        ++dragSteps;
    else if (slide.Action == DemoAction::Click)
        dragSteps = 0;
    return GoOn();
}

bool DemoShow::StepBack()
{
    // The end still shows the last slide.
    const std::int32_t shown = isOver ? ImageCount() - 1 : slideIndex;
    return shown > 0 && StepTo(shown - 1);
}

bool DemoShow::StepForward()
{
    return !isOver && StepTo(slideIndex + 1);
}

bool DemoShow::StepTo(std::int32_t index)
{
    slideIndex = index;
    dragSteps = 1;
    dragStarted = false;
    return true;
}

} // namespace sprout
