// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/rules/KeyMap.h"

#include <algorithm>
#include <cstddef>

namespace sprout {

namespace {

/// A block of rows of one key, both ends included.
struct KeyRows {
    std::int32_t key;
    std::int32_t firstRow;
    std::int32_t lastRow;
    std::int32_t firstColumn;
    std::int32_t lastColumn;
};

constexpr std::int32_t kFirstColumn = 1;
constexpr std::int32_t kLastColumn = 28;
constexpr std::int32_t kLastBlackColumn = 18;
constexpr std::int32_t kFirstFreeColumn = 20; ///< next to the black keys

constexpr KeyRows Wide(std::int32_t key, std::int32_t firstRow, std::int32_t lastRow)
{
    return {key, firstRow, lastRow, kFirstColumn, kLastColumn};
}

constexpr KeyRows BesideBlack(std::int32_t key, std::int32_t firstRow, std::int32_t lastRow)
{
    return {key, firstRow, lastRow, kFirstFreeColumn, kLastColumn};
}

constexpr KeyRows Black(std::int32_t key, std::int32_t firstRow, std::int32_t lastRow)
{
    return {key, firstRow, lastRow, kFirstColumn, kLastBlackColumn};
}

constexpr std::array kKeyRows{
    Wide(12, 1, 5),   BesideBlack(12, 6, 8),                            //
    Black(11, 7, 12),                                                   //
    Wide(10, 14, 17), BesideBlack(10, 10, 13), BesideBlack(10, 18, 20), //
    Black(9, 19, 24),                                                   //
    Wide(8, 26, 29),  BesideBlack(8, 22, 25),  BesideBlack(8, 30, 32),  //
    Black(7, 31, 36),                                                   //
    Wide(6, 38, 41),  BesideBlack(6, 34, 37),                           //
    Wide(5, 43, 47),  BesideBlack(5, 48, 50),                           //
    Black(4, 49, 54),                                                   //
    Wide(3, 56, 59),  BesideBlack(3, 52, 55),  BesideBlack(3, 60, 62),  //
    Black(2, 61, 66),                                                   //
    Wide(1, 68, 71),  BesideBlack(1, 64, 67),
};

using KeyRow = std::array<std::uint8_t, kOctaveWidth>;

constexpr std::array<KeyRow, kOctaveHeight> DrawKeyMap()
{
    std::array<KeyRow, kOctaveHeight> map{};
    for (KeyRow& row : map)
        for (std::uint8_t& key : row)
            key = kNoKey;
    for (const KeyRows& rows : kKeyRows)
        for (std::int32_t y = rows.firstRow; y <= rows.lastRow; ++y)
            for (std::int32_t x = rows.firstColumn; x <= rows.lastColumn; ++x)
                map[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = static_cast<std::uint8_t>(rows.key);
    return map;
}

constexpr std::array<KeyRow, kOctaveHeight> kKeyMap = DrawKeyMap();

} // namespace

std::int32_t KeyAt(std::int32_t dx, std::int32_t dy)
{
    if (dx < 0 || dx >= kOctaveWidth || dy < 0 || dy >= kOctaveHeight)
        return kNoKey;
    return kKeyMap[static_cast<std::size_t>(dy)][static_cast<std::size_t>(dx)];
}

std::int32_t PitchOfKey(Octave octave, std::int32_t key)
{
    return octave == Octave::Upper ? key - 1 : key - 1 - kOctaveKeys;
}

KeyPlace KeyOfPitch(std::int32_t pitchShift)
{
    const std::int32_t shown = std::clamp(pitchShift, kLowestKeyPitch, kHighestKeyPitch);
    if (shown >= 0)
        return {Octave::Upper, shown + 1};
    return {Octave::Lower, shown + 1 + kOctaveKeys};
}

} // namespace sprout
