// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/FileHead.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <ctime>
#include <span>
#include <vector>

#include "base/Numbers.h"
#include "base/Product.h"
#include "base/Text.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "service/Services.h"

namespace sprout {

namespace {

constexpr std::uint64_t kHeadBytes = 1000;
constexpr std::string_view kLineEnd = "\r\n";

/// The current time, or SOURCE_DATE_EPOCH if set, so that every build makes the same files.
std::time_t PresentTime()
{
    const char* text = std::getenv("SOURCE_DATE_EPOCH");
    std::time_t time = 0;
    const char* end = text ? text + std::char_traits<char>::length(text) : nullptr;
    if (!text || std::from_chars(text, end, time).ptr != end || text == end)
        time = std::time(nullptr);
    return time;
}

std::string Now()
{
    const std::time_t time = PresentTime();
    const std::tm* local = std::localtime(&time);
    std::array<char, 32> clock{};
    // Month names are in the C locale, whatever the desktop's language.
    constexpr std::array months = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    if (!local || std::strftime(clock.data(), clock.size(), "%Y/%H:%M:%S", local) == 0)
        return {};
    const std::string day = std::to_string(local->tm_mday);
    return (day.size() < 2 ? "0" + day : day) + "-" + months[static_cast<std::size_t>(local->tm_mon)] + "-" +
           clock.data();
}

/// Position after CR LF + key + "=" in the searched bytes; npos if it is not found.
std::size_t FindBehindKey(std::string_view head, std::string_view key)
{
    const std::string pattern = LowerCase(std::string(kLineEnd) + std::string(key) + "=");
    std::string lower(head);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    const auto found = lower.find(pattern);
    return found == std::string::npos ? found : found + pattern.size();
}

std::string ReadHead(ByteSource& source, std::string_view key)
{
    const std::uint64_t patternBytes = kLineEnd.size() + key.size() + 1;
    const std::uint64_t available = source.Size() - std::min(source.Size(), patternBytes);
    std::string head(static_cast<std::size_t>(std::min(kHeadBytes, available)), '\0');
    source.Read(0, std::as_writable_bytes(std::span(head)));
    return head;
}

/// The pieces of a whole file: head, array and tail.
std::vector<std::span<const std::byte>> PiecesOfFile(std::string_view head, const LongsWriter& data)
{
    const std::string_view tail = FileTail();
    std::vector<std::span<const std::byte>> pieces = data.Pieces();
    pieces.insert(pieces.begin(), std::as_bytes(std::span(head)));
    pieces.push_back(std::as_bytes(std::span(tail)));
    return pieces;
}

} // namespace

std::string FileHead(std::string_view marker, std::string_view description)
{
    std::string head;
    const auto line = [&head](std::string_view name, std::string_view value) {
        head += std::string(name) + std::string(value) + std::string(kLineEnd);
    };
    line(marker, "");
    line("File Description=", std::string(kProductFamily) + std::string(description));
    line("Saved By=", kProductName);
    line("Version=", kAppVersionDate);
    line("Web Site=", kWebSite);
    line("File Version=", "2");
    line("Time=", Now());
    return head + "Data=";
}

std::string_view FileTail()
{
    constexpr std::string_view tail("\0\0\0\0EOF\r\n", 9);
    return tail;
}

void ReplaceDataFile(const std::filesystem::path& path, std::string_view head, const LongsWriter& data, Flush flush)
{
    PrepareToReplace(path);
    TheServices().files->ReplaceFile(path, PiecesOfFile(head, data), flush);
}

bool WriteNewDataFile(const std::filesystem::path& path, std::string_view head, const LongsWriter& data)
{
    PrepareToReplace(path);
    return TheServices().files->WriteNewFile(path, PiecesOfFile(head, data));
}

std::string HeadValue(ByteSource& source, std::string_view key, std::string_view fallback)
{
    const std::string head = ReadHead(source, key);
    const auto begin = FindBehindKey(head, key);
    if (begin == std::string::npos)
        return std::string(fallback);
    const auto end = head.find(kLineEnd, begin);
    return end == std::string::npos ? std::string(fallback) : head.substr(begin, end - begin);
}

float FileVersion(ByteSource& source)
{
    return static_cast<float>(NumberPrefix(HeadValue(source, "File Version", "0")));
}

std::optional<std::uint64_t> FindHeadData(ByteSource& source)
{
    const auto place = FindBehindKey(ReadHead(source, "Data"), "Data");
    return place == std::string::npos ? std::nullopt : std::optional<std::uint64_t>(place);
}

} // namespace sprout
