// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "ui/rules/Box.h"

namespace sprout {

/// Height of the welcome card.
inline constexpr std::int32_t kWelcomeHeight = 44;

/// Widths that the texts of the welcome card need.
struct WelcomeNeeds {
    std::int32_t title = 0;
    std::int32_t play = 0;
    std::int32_t demo = 0;
};

/// The welcome card in its window and, from the card's top left, its parts.
struct WelcomePlaces {
    Box card;
    bool hasTitle = false; ///< sprout and title are shown
    Box sprout;
    Box title;
    Box playPicture;
    Box play; ///< the text beside its picture
    Box demoPicture;
    Box demo;
    Box closeButton;
};

/// Lays out the welcome card in the middle of a strip of the window, as wide as its texts need. A narrow strip drops
/// sprout and title; if that is not enough, the two texts share what is left.
[[nodiscard]] WelcomePlaces PlaceWelcome(const Box& strip, const WelcomeNeeds& needs);

/// The hand that points to a button: over its lower right corner and into the gap after it, but not over its
/// neighbours.
[[nodiscard]] Box PlaceWelcomeHand(const Box& button);

} // namespace sprout
