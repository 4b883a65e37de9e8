// SPDX-License-Identifier: GPL-3.0-or-later
#include "songs/WmaFormats.h"

#include "base/Numbers.h"

namespace sprout {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kCodecEnd = "\r\n\r\n";
constexpr std::size_t kFormatFields = 5;

std::vector<std::string_view> SplitAt(std::string_view text, std::string_view separator)
{
    std::vector<std::string_view> parts;
    for (auto end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + separator.size());
    }
    parts.push_back(text);
    return parts;
}

std::int32_t Number(std::string_view text)
{
    return RoundHalfEven(NumberPrefix(text));
}

WmaCodec ParseCodec(std::string_view text)
{
    const std::vector<std::string_view> lines = SplitAt(text, kLineEnd);
    WmaCodec codec;
    codec.Name = lines.front();
    codec.FormatCount = static_cast<std::int32_t>(lines.size()) - 1;
    codec.Descriptions.resize(lines.size());
    for (auto* numbers : {&codec.BitRates, &codec.SampleRates, &codec.Channels, &codec.BitsPerSample})
        numbers->resize(lines.size());
    for (std::size_t row = 1; row < lines.size(); ++row) {
        const std::vector<std::string_view> fields = SplitAt(lines[row], "\n");
        if (fields.size() != kFormatFields)
            continue;
        codec.Descriptions[row] = fields[0];
        codec.BitRates[row] = Number(fields[1]);
        codec.SampleRates[row] = Number(fields[2]);
        codec.Channels[row] = Number(fields[3]);
        codec.BitsPerSample[row] = Number(fields[4]);
    }
    return codec;
}

bool IsWanted(const WmaCodec& codec, std::size_t row)
{
    return RoundHalfEven(codec.BitRates[row] / 1000.0) == 64 && codec.SampleRates[row] == 44100 &&
           codec.Channels[row] == 2 && codec.BitsPerSample[row] == 16;
}

} // namespace

std::vector<WmaCodec> ParseWmaCodecs(std::string_view list)
{
    std::vector<WmaCodec> codecs;
    for (const std::string_view codec : SplitAt(list, kCodecEnd))
        codecs.push_back(ParseCodec(codec));
    return codecs;
}

std::optional<WmaFormatPlace> FindWmaFormat(std::span<const WmaCodec> codecs)
{
    for (std::size_t codec = 0; codec < codecs.size(); ++codec) {
        if (!codecs[codec].Name.starts_with("Windows Media Audio"))
            continue;
        for (std::size_t row = 1; row <= static_cast<std::size_t>(codecs[codec].FormatCount); ++row)
            if (IsWanted(codecs[codec], row))
                return WmaFormatPlace{static_cast<std::int32_t>(codec), static_cast<std::int32_t>(row) - 1};
    }
    return std::nullopt;
}

} // namespace sprout
