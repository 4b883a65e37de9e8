// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/IniFile.h"

#include <algorithm>
#include <memory>
#include <span>
#include <stdexcept>

#include "base/ByteCursor.h"
#include "base/Errors.h"
#include "base/FilePaths.h"
#include "base/Log.h"
#include "base/Text.h"
#include "core/Paths.h"
#include "service/Files.h"
#include "service/Services.h"

namespace sprout {

namespace {

constexpr std::string_view kBlanks = " \t";

std::string_view TrimBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string_view Unquoted(std::string_view value)
{
    const bool quoted =
        value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

/// A line break or a zero byte inside a value would create other lines.
std::string OneLine(std::string_view text)
{
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n' || c == '\0'; }, ' ');
    return line;
}

/// Quotes a value that would otherwise lose blanks or quotes at its ends.
std::string ValueText(std::string_view value)
{
    std::string line = OneLine(value);
    return Unquoted(TrimBlanks(line)) == line ? line : '"' + line + '"';
}

std::string Place(std::string_view lowerSection, std::string_view lowerKey)
{
    return std::string(lowerSection) + '\0' + std::string(lowerKey);
}

} // namespace

IniFile::IniFile(std::string_view bytes)
{
    std::string section;
    while (!bytes.empty()) {
        const auto end = std::min(bytes.find('\n'), bytes.size());
        std::string_view raw = bytes.substr(0, end);
        bytes.remove_prefix(std::min(end + 1, bytes.size()));
        if (!raw.empty() && raw.back() == '\r')
            raw.remove_suffix(1);

        Line line;
        line.bytes = raw;
        const std::string text = TextFromStored(raw);
        const std::string_view content = TrimBlanks(text);
        const auto equals = content.find('=');
        if (!content.empty() && content.front() == '[') {
            const auto close = std::min(content.find(']'), content.size());
            section = LowerCase(TrimBlanks(content.substr(1, close - 1)));
            line.heading = true;
        } else if (!content.empty() && content.front() != ';' && equals != std::string_view::npos) {
            line.key = LowerCase(TrimBlanks(content.substr(0, equals)));
        }
        line.section = section;
        lines.push_back(std::move(line));
    }
    Index();
}

void IniFile::Index()
{
    places.clear();
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (!lines[i].key.empty())
            places.emplace(Place(lines[i].section, lines[i].key), i);
}

IniFile IniFile::Read(const std::filesystem::path& path)
{
    const std::filesystem::path file = FindFile(path);
    if (file.empty())
        return {};
    IniFile unread;
    unread.unreadable = true;
    try {
        FileSource source(file);
        if (source.Size() > kMostIniBytes)
            return unread;
        std::string bytes(static_cast<std::size_t>(source.Size()), '\0');
        source.Read(0, std::as_writable_bytes(std::span(bytes)));
        return IniFile(bytes);
    } catch (const std::runtime_error& error) {
        LogFailure("Reading an ini file", error);
        return unread;
    }
}

bool IniFile::Has(std::string_view section, std::string_view key) const
{
    return places.contains(Place(LowerCase(section), LowerCase(TrimBlanks(key))));
}

std::string IniFile::Value(std::string_view section, std::string_view key, std::string_view fallback) const
{
    const auto found = places.find(Place(LowerCase(section), LowerCase(TrimBlanks(key))));
    if (found == places.end())
        return std::string(fallback);
    const std::string text = TextFromStored(lines[found->second].bytes);
    return std::string(Unquoted(TrimBlanks(std::string_view(text).substr(text.find('=') + 1))));
}

void IniFile::SetValue(std::string_view section, std::string_view key, std::string_view value)
{
    const std::string name = OneLine(TrimBlanks(key));
    const std::string lowerSection = LowerCase(section);
    Line line{StoredBytes(name + "=" + ValueText(value)), lowerSection, LowerCase(name), false};
    const auto found = places.find(Place(lowerSection, line.key));
    if (found != places.end()) {
        lines[found->second].bytes = std::move(line.bytes);
        return;
    }
    // After the last non-blank line of the first section with that name.
    const auto heading = std::find_if(lines.begin(), lines.end(), [&](const Line& candidate) {
        return candidate.heading && candidate.section == lowerSection;
    });
    if (heading == lines.end()) {
        lines.push_back({StoredBytes("[" + OneLine(section) + "]"), lowerSection, "", true});
        places.emplace(Place(lowerSection, line.key), lines.size());
        lines.push_back(std::move(line));
        return;
    }
    auto end = std::find_if(heading + 1, lines.end(), [](const Line& candidate) { return candidate.heading; });
    while (end - 1 != heading && TrimBlanks((end - 1)->bytes).empty())
        --end;
    const bool last = end == lines.end();
    lines.insert(end, line);
    if (last)
        places.emplace(Place(lowerSection, line.key), lines.size() - 1);
    else
        Index();
}

void IniFile::RemoveSection(std::string_view section)
{
    const std::string lowerSection = LowerCase(section);
    // Lines before the first heading belong to no section, not to one with an empty name.
    const auto first = std::find_if(lines.begin(), lines.end(), [](const Line& line) { return line.heading; });
    lines.erase(std::remove_if(first, lines.end(), [&](const Line& line) { return line.section == lowerSection; }),
                lines.end());
    Index();
}

std::string IniFile::Bytes() const
{
    std::string bytes;
    for (const Line& line : lines)
        bytes += line.bytes + "\r\n";
    return bytes;
}

void IniFile::Write(const std::filesystem::path& path) const
{
    if (unreadable)
        throw RunTimeError(Words::Text("The file %1 could not be read and stays as it is.", PathText(path)));
    const std::string bytes = Bytes();
    const std::span<const std::byte> piece = std::as_bytes(std::span(bytes));
    const std::filesystem::path file = FindFile(path);
    const std::filesystem::path& target = file.empty() ? path : file;
    PrepareToReplace(target);
    TheServices().files->ReplaceFile(target, {&piece, 1}, Flush::Yes);
}

std::string GetIniValue(std::string_view section, std::string_view key, std::string_view fallback,
                        const std::filesystem::path& file)
{
    return IniFile::Read(file).Value(section, key, fallback);
}

void PutIniValues(std::string_view section, std::span<const IniValue> values, const std::filesystem::path& file)
{
    const std::string_view named = Trim(section).empty() ? kGeneralSection : section;
    const std::unique_ptr<FileHold> hold = TheServices().files->HoldForChange(file);
    IniFile ini = IniFile::Read(file);
    const std::string before = ini.Bytes();
    for (const IniValue& value : values) {
        if (Trim(value.key).empty())
            ini.RemoveSection(named);
        else
            ini.SetValue(named, value.key, value.value);
    }
    try {
        if (ini.Bytes() != before)
            ini.Write(file);
    } catch (const RunTimeError& error) {
        LogFailure("Writing an ini file", error);
        // If the file cannot be written, the program continues without it.
        return;
    }
}

void PutIniValue(std::string_view section, std::string_view key, std::string_view value,
                 const std::filesystem::path& file)
{
    const IniValue one{key, std::string(value)};
    PutIniValues(section, {&one, 1}, file);
}

} // namespace sprout
