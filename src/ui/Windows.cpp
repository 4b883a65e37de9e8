// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Windows.h"

#include <utility>

namespace sprout {

namespace {

Windows*& Provided()
{
    static Windows none;
    static Windows* windows = &none;
    return windows;
}

} // namespace

Windows& TheWindows()
{
    return *Provided();
}

ProvidedWindows::ProvidedWindows(Windows& windows) : before(std::exchange(Provided(), &windows)) {}

ProvidedWindows::~ProvidedWindows()
{
    Provided() = before;
}

} // namespace sprout
