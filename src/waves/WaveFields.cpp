// SPDX-License-Identifier: GPL-3.0-or-later
#include "waves/WaveFields.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "base/Errors.h"

namespace sprout {

namespace {

constexpr std::uint64_t kTagByte = 20;
constexpr std::uint64_t kChannelsByte = 22;
constexpr std::uint64_t kRateByte = 24;
constexpr std::uint64_t kBitsByte = 34;
constexpr std::uint64_t kSearchByte = 35;

char UpperLetter(std::byte letter)
{
    const char c = static_cast<char>(letter);
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
}

std::int32_t ByteAt(ByteSource& source, std::uint64_t place)
{
    std::byte value{};
    source.Read(place, {&value, 1});
    return std::to_integer<std::int32_t>(value);
}

std::int32_t Int32At(ByteSource& source, std::uint64_t place)
{
    return ByteCursor(source, place, place + 4).ReadInt32();
}

} // namespace

WaveFields ReadWaveFields(ByteSource& source)
{
    WaveFields fields;
    fields.FormatTag = ByteAt(source, kTagByte) + ByteAt(source, kTagByte + 1) * 256;
    fields.Channels = ByteAt(source, kChannelsByte);
    fields.Rate = Int32At(source, kRateByte);
    fields.Bits = ByteAt(source, kBitsByte);
    return fields;
}

std::uint64_t FindWaveData(ByteSource& source)
{
    constexpr std::string_view name = "DATA";
    std::array<char, 4> window{};
    const std::uint64_t size = source.Size();
    ByteCursor cursor(source, kSearchByte, size);
    // A name is examined if at least one byte follows it.
    for (std::uint64_t read = kSearchByte; read + 1 < size; ++read) {
        std::byte letter{};
        cursor.Read({&letter, 1});
        std::shift_left(window.begin(), window.end(), 1);
        window.back() = UpperLetter(letter);
        if (std::string_view(window.data(), window.size()) == name)
            return read + 1 - name.size();
    }
    return 0;
}

std::int32_t ReadWaveDataSize(ByteSource& source, std::uint64_t place)
{
    if (place + 8 > source.Size())
        throw RunTimeError(Words::Text("The file ends before its sound."));
    return Int32At(source, place + 4);
}

} // namespace sprout
