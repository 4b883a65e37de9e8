// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/xdg/DesktopFile.h"

#include <algorithm>
#include <map>
#include <utility>

#include "base/Text.h"

namespace sprout {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

std::string_view WithoutBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// A value from the file with its escapes resolved.
std::string Unescaped(std::string_view value)
{
    constexpr std::string_view escapes = "sntr\\";
    constexpr std::string_view meanings = " \n\t\r\\";
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        const auto escape = value[i] == '\\' && i + 1 < value.size() ? escapes.find(value[i + 1]) : escapes.npos;
        text.push_back(escape == escapes.npos ? value[i] : meanings[escape]);
        if (escape != escapes.npos)
            ++i;
    }
    return text;
}

/// The raw values of the group "Desktop Entry", by key.
std::map<std::string, std::string, std::less<>> EntryValues(std::string_view text)
{
    std::map<std::string, std::string, std::less<>> values;
    bool inEntry = false;
    for (const std::string& line : Split(text, '\n')) {
        const std::string_view content = WithoutBlanks(line);
        const auto equals = content.find('=');
        if (content.starts_with('['))
            inEntry = content == "[Desktop Entry]";
        else if (inEntry && !content.starts_with('#') && equals != std::string_view::npos)
            values.emplace(WithoutBlanks(content.substr(0, equals)), WithoutBlanks(content.substr(equals + 1)));
    }
    return values;
}

/// Splits a command line, character by character.
class ExecReader {
public:
    explicit ExecReader(std::string_view exec) : rest(exec) {}

    std::vector<std::string> Read()
    {
        while (!rest.empty()) {
            const char c = Take();
            if (c == '"') {
                isQuoted = true;
                ReadQuoted();
            } else if (kBlanks.find(c) != std::string_view::npos) {
                EndWord();
            } else {
                Add(c);
            }
        }
        EndWord();
        return std::move(words);
    }

private:
    char Take()
    {
        const char c = rest.front();
        rest.remove_prefix(1);
        return c;
    }

    void ReadQuoted()
    {
        while (!rest.empty()) {
            const char c = Take();
            if (c == '"')
                return;
            const bool isEscape =
                c == '\\' && !rest.empty() && std::string_view("\"`$\\").find(rest.front()) != std::string_view::npos;
            if (isEscape)
                word.push_back(Take());
            else
                Add(c);
        }
    }

    /// A percent sign and the letter after it are a code.
    void Add(char c)
    {
        if (c != '%')
            word.push_back(c);
        else if (!rest.empty() && Take() == '%')
            word.push_back('%');
    }

    void EndWord()
    {
        if (isQuoted || (!word.empty() && word != "@@" && word != "@@u"))
            words.push_back(word);
        word.clear();
        isQuoted = false;
    }

    std::string_view rest;
    std::vector<std::string> words;
    std::string word;
    bool isQuoted = false;
};

} // namespace

DesktopFile ParseDesktopFile(std::string_view text)
{
    const auto values = EntryValues(text);
    const auto value = [&values](std::string_view key) {
        const auto found = values.find(key);
        return found == values.end() ? std::string() : Unescaped(found->second);
    };
    return {value("Exec"), Split(value("Categories"), ';')};
}

bool IsWebBrowser(const DesktopFile& file)
{
    return std::find(file.Categories.begin(), file.Categories.end(), "WebBrowser") != file.Categories.end();
}

std::vector<std::string> ExecWords(std::string_view exec)
{
    return ExecReader(exec).Read();
}

} // namespace sprout
