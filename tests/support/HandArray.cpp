// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/HandArray.h"

#include <array>
#include <cstring>

namespace sprout {

HandArray& HandArray::Add(std::initializer_list<std::int32_t> values)
{
    elements.insert(elements.end(), values);
    return *this;
}

HandArray& HandArray::Add(const std::vector<std::int32_t>& values)
{
    elements.insert(elements.end(), values.begin(), values.end());
    return *this;
}

HandArray& HandArray::Many(std::int32_t value, int count)
{
    elements.insert(elements.end(), static_cast<std::size_t>(count), value);
    return *this;
}

HandArray& HandArray::Text(std::string_view bytes)
{
    if (bytes.empty())
        return Add({1, 0});
    // length / 4 + 2, rounded half to even: the remainder and the quotient's parity give what is added to the quotient
    const auto length = static_cast<std::int32_t>(bytes.size());
    const std::int32_t quotient = length / 4;
    const bool up = length % 4 == 3 || (length % 4 == 2 && quotient % 2 == 1);
    const std::int32_t last = quotient + (up ? 3 : 2);
    Add({last, length});
    std::string padded(bytes);
    padded.resize(static_cast<std::size_t>(last - 1) * 4);
    return Add(ElementsOf(padded));
}

std::vector<std::int32_t> HandArray::Elements() const
{
    std::vector<std::int32_t> finished = elements;
    finished.front() = static_cast<std::int32_t>(finished.size()) - 1;
    return finished;
}

std::string BytesOf(const std::vector<std::int32_t>& elements)
{
    std::string bytes;
    for (const std::int32_t element : elements)
        for (int shift = 0; shift < 32; shift += 8)
            bytes.push_back(static_cast<char>((static_cast<std::uint32_t>(element) >> shift) & 0xFF));
    return bytes;
}

std::vector<std::int32_t> ElementsOf(std::string_view bytes)
{
    std::vector<std::int32_t> elements;
    for (; bytes.size() >= 4; bytes.remove_prefix(4)) {
        std::uint32_t element = 0;
        for (std::size_t i = 4; i-- > 0;)
            element = (element << 8) | static_cast<unsigned char>(bytes[i]);
        elements.push_back(static_cast<std::int32_t>(element));
    }
    return elements;
}

std::string FileOf(std::string_view marker, std::string_view version, const std::vector<std::int32_t>& elements)
{
    return std::string(marker) + "\r\nSaved By=somebody\r\nFile Version=" + std::string(version) +
           "\r\nData=" + BytesOf(elements) + std::string("\0\0\0\0EOF\r\n", 9);
}

std::vector<std::int32_t> ArrayOf(std::string_view fileBytes)
{
    fileBytes.remove_prefix(fileBytes.find("\r\nData=") + 7);
    std::vector<std::int32_t> elements = ElementsOf(fileBytes);
    elements.resize(static_cast<std::size_t>(elements.front()) + 1);
    return elements;
}

Picture PlainPicture(std::uint32_t colour)
{
    return {kPictureSide, kPictureSide, std::vector<std::uint32_t>(kPicturePixels, colour)};
}

WaveData WaveOf(std::vector<std::int16_t> left, std::vector<std::int16_t> right)
{
    WaveData wave;
    wave.Channels = right.empty() ? 1 : 2;
    wave.Length = static_cast<std::int32_t>(left.size());
    wave.WavL = Channel::FromSamples(left);
    wave.WavR = Channel::FromSamples(right);
    return wave;
}

} // namespace sprout
