// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/xdg/MailCommand.h"

#include <algorithm>
#include <array>

#include "base/Text.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

bool IsUnreserved(char c)
{
    const auto isIn = [c](char first, char last) { return c >= first && c <= last; };
    return isIn('a', 'z') || isIn('A', 'Z') || isIn('0', '9') || std::string_view("-._~").find(c) != std::string::npos;
}

std::string Encoded(std::string_view text, std::string_view kept)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string encoded;
    for (const char c : text) {
        if (IsUnreserved(c) || kept.find(c) != std::string_view::npos) {
            encoded.push_back(c);
        } else {
            const auto byte = static_cast<unsigned char>(c);
            encoded += {'%', digits[byte >> 4U], digits[byte & 0x0FU]};
        }
    }
    return encoded;
}

/// Turns CR LF into LF and drops zero bytes, which would end an argument.
std::string PlainText(std::string_view text)
{
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] != '\0' && text.substr(i, 2) != "\r\n")
            plain.push_back(text[i]);
    return plain;
}

bool NamesThunderbird(std::string_view name)
{
    constexpr std::array<std::string_view, 3> kin{"thunderbird", "betterbird", "icedove"};
    const std::string lower = LowerCase(name);
    return std::any_of(kin.begin(), kin.end(), [&](std::string_view one) { return lower.find(one) != lower.npos; });
}

/// True for a word that names Thunderbird as a program, even after Flatpak's or env's own words.
bool IsThunderbirdWord(std::string_view word)
{
    const bool isProgram = !word.starts_with('-') && word.find('=') == std::string_view::npos;
    return isProgram && NamesThunderbird(fs::path(word).filename().native());
}

} // namespace

std::string PercentEncoded(std::string_view text)
{
    return Encoded(text, "");
}

std::string FileUri(const fs::path& path)
{
    return "file://" + Encoded(path.native(), "/");
}

std::string ComposeArgument(const MailMessage& message)
{
    const std::string to = message.Recipient.empty() ? "" : "to=" + PercentEncoded(PlainText(message.Recipient)) + ",";
    return to + "subject=" + PercentEncoded(PlainText(message.Subject)) +
           ",body=" + PercentEncoded(PlainText(message.Body)) + ",attachment='" + FileUri(message.Attachment) + "'";
}

std::vector<std::string> MailCommand(std::string_view id, const DesktopFile& program, const MailMessage& message)
{
    std::vector<std::string> words = ExecWords(program.Exec);
    if (!words.empty() && (NamesThunderbird(id) || std::any_of(words.begin(), words.end(), IsThunderbirdWord))) {
        words.insert(words.end(), {"-compose", ComposeArgument(message)});
        return words;
    }
    words = {"xdg-email", "--utf8"};
    if (!message.Recipient.empty())
        words.insert(words.end(), {"--to", PlainText(message.Recipient)});
    words.insert(words.end(), {"--subject", PlainText(message.Subject), "--body", PlainText(message.Body), "--attach",
                               message.Attachment.native()});
    return words;
}

} // namespace sprout
