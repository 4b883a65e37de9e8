// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-library/Freshness.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "core/Paths.h"
#include "sprout-library/Table.h"

namespace sprout {

namespace {

constexpr std::string_view kMemoryName = ".sprout-library";

} // namespace

Fingerprint& Fingerprint::Add(std::string_view bytes)
{
    const auto mix = [this](unsigned char byte) { value = (value ^ byte) * 0x100000001B3; };
    for (const char byte : bytes)
        mix(static_cast<unsigned char>(byte));
    for (std::size_t length = bytes.size(), i = 0; i < sizeof length; ++i, length >>= 8)
        mix(static_cast<unsigned char>(length & 0xFF));
    return *this;
}

Fingerprint& Fingerprint::AddFile(const std::filesystem::path& file)
{
    return Add(ReadWholeFile(file));
}

std::string Fingerprint::Text() const
{
    std::array<char, 16> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, 16).ptr;
    return {digits.data(), end};
}

Freshness::Freshness(std::filesystem::path folder) : root(std::move(folder))
{
    std::ifstream memory(root / kMemoryName);
    std::string fingerprint, name;
    while (memory >> fingerprint && std::getline(memory >> std::ws, name))
        before[name] = fingerprint;
}

bool Freshness::IsFresh(const std::vector<std::filesystem::path>& files, const std::string& fingerprint)
{
    bool fresh = true;
    for (const std::filesystem::path& file : files) {
        const std::string name = PathText(file);
        if (!now.emplace(name, fingerprint).second)
            throw RunTimeError(Words::Text("The library would hold %1 twice.", name));
        const auto known = before.find(name);
        fresh = fresh && known != before.end() && known->second == fingerprint && FileExists(root / file);
    }
    // From here on the files differ from the saved list: a later run must not trust one that stopped half-way.
    if (!fresh)
        DeleteFile(root / kMemoryName);
    return fresh;
}

void Freshness::Finish() const
{
    for (const auto& [name, fingerprint] : before)
        if (!now.contains(name))
            DeleteFile(root / name);
    std::ofstream memory(root / kMemoryName, std::ios::trunc);
    for (const auto& [name, fingerprint] : now)
        memory << fingerprint << ' ' << name << '\n';
}

} // namespace sprout
