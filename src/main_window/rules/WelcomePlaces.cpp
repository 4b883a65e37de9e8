// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/WelcomePlaces.h"

#include <algorithm>

namespace sprout {

namespace {

constexpr std::int32_t kMargin = 12;
constexpr std::int32_t kSproutSide = 36;
constexpr std::int32_t kPictureSide = 36;
constexpr std::int32_t kBesidePicture = 6;
constexpr std::int32_t kPartsApart = 20;
constexpr std::int32_t kButtonSide = 22;
constexpr std::int32_t kAfterButton = (kWelcomeHeight - kButtonSide) / 2; // as far from the right edge as from the top
constexpr std::int32_t kHandInGap = 5;                                    // of the 6 pixels between two buttons

/// What a card without a title needs beside its two texts.
constexpr std::int32_t kBesideTexts =
    kMargin + 2 * (kPictureSide + kBesidePicture + kPartsApart) + kButtonSide + kAfterButton;
/// What the title needs beside its text.
constexpr std::int32_t kBesideTitle = kSproutSide + kBesidePicture + kPartsApart;

/// Places the parts of the card from left to right.
class PartsRow {
public:
    [[nodiscard]] Box Square(std::int32_t side, std::int32_t gap)
    {
        return Part(side, gap, (kWelcomeHeight - side) / 2, side);
    }
    [[nodiscard]] Box Text(std::int32_t width) { return Part(width, kPartsApart, 0, kWelcomeHeight); }
    [[nodiscard]] std::int32_t Right() const { return left; }

private:
    [[nodiscard]] Box Part(std::int32_t width, std::int32_t gap, std::int32_t top, std::int32_t height)
    {
        const Box part{left, top, width, height};
        left += width + gap;
        return part;
    }

    std::int32_t left = kMargin;
};

} // namespace

WelcomePlaces PlaceWelcome(const Box& strip, const WelcomeNeeds& needs)
{
    const std::int32_t room = strip.width - kBesideTexts;
    WelcomePlaces places;
    places.hasTitle = kBesideTitle + needs.title + needs.play + needs.demo <= room;
    const std::int32_t playWidth = std::min(needs.play, std::max(room / 2, room - needs.demo));
    const std::int32_t demoWidth = std::min(needs.demo, room - playWidth);

    PartsRow row;
    if (places.hasTitle) {
        places.sprout = row.Square(kSproutSide, kBesidePicture);
        places.title = row.Text(needs.title);
    }
    places.playPicture = row.Square(kPictureSide, kBesidePicture);
    places.play = row.Text(playWidth);
    places.demoPicture = row.Square(kPictureSide, kBesidePicture);
    places.demo = row.Text(demoWidth);
    places.closeButton = row.Square(kButtonSide, kAfterButton);
    places.card = {strip.left + (strip.width - row.Right()) / 2, strip.top, row.Right(), kWelcomeHeight};
    return places;
}

Box PlaceWelcomeHand(const Box& button)
{
    const std::int32_t side = button.width / 2;
    return {button.Right() + kHandInGap - side, button.Bottom() + kHandInGap - side, side, side};
}

} // namespace sprout
