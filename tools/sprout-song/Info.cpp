// SPDX-License-Identifier: GPL-3.0-or-later
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

#include "core/Paths.h"
#include "core/Shared.h"
#include "sprout-song/Commands.h"
#include "sprout-song/Facts.h"
#include "sprout-song/Loading.h"
#include "sprout-song/Printable.h"

namespace sprout {

namespace {

/// The facts of a file of a known kind; null if it cannot be loaded.
Facts LoadFacts(Session& session, FileKind kind, const std::filesystem::path& path)
{
    switch (kind) {
    case FileKind::Song:
        return LoadSong(session, path) ? SongFacts(Shared().Song) : Facts();
    case FileKind::Tune:
        return LoadTune(session, path) ? TuneFacts(Shared().TuneClipboard) : Facts();
    case FileKind::Star: {
        const std::optional<Tune> star = LoadStar(session, path);
        return star ? TuneFacts(*star) : Facts();
    }
    case FileKind::Wave: {
        const std::optional<WaveData> wave = LoadWave(session, path, ReadSamples::HeaderOnly);
        return wave ? WaveFacts(*wave) : Facts();
    }
    case FileKind::Wma: {
        const std::optional<SoundFacts> sound = LoadSoundFacts(session, path);
        return sound ? EncodedFacts(*sound) : Facts();
    }
    }
    return {};
}

Facts MessageFacts(const Session& session, std::size_t first)
{
    Facts messages = Facts::array();
    for (std::size_t i = first; i < session.messages.Shown().size(); ++i)
        messages.push_back({{"title", session.messages.Shown()[i].title}, {"text", session.messages.Shown()[i].text}});
    return messages;
}

std::string Plain(const Facts& value)
{
    return value.is_string() ? Printable(value.get<std::string>())
                             : PrintableJson(value.dump(-1, ' ', false, Facts::error_handler_t::replace));
}

/// Facts for a person: one indented line per fact, short objects on one line.
void PrintFacts(std::ostream& out, const Facts& facts, const std::string& indent)
{
    for (const auto& [name, value] : facts.items()) {
        if (value.is_null())
            continue;
        const bool nested = value.is_object() || (value.is_array() && !value.empty() && value.front().is_object());
        out << indent << name << ':';
        if (!nested) {
            out << ' ' << Plain(value) << '\n';
            continue;
        }
        out << '\n';
        if (value.is_object()) {
            PrintFacts(out, value, indent + "  ");
            continue;
        }
        int number = 0;
        for (const Facts& row : value) {
            out << indent << "  " << ++number << '\n';
            PrintFacts(out, row, indent + "    ");
        }
    }
}

/// Why a path is of no known kind.
Words WhyUnknown(const std::string& path)
{
    std::error_code error;
    if (std::filesystem::is_directory(path, error))
        return Words::Text("%1 is a folder.", path);
    return FileExists(path) ? Words::Text("%1 is no song, tune, star or WAV file.", path)
                            : Words::Text("%1 was not found.", path);
}

bool PrintOne(Session& session, const std::string& path, bool json)
{
    const std::size_t before = session.messages.Shown().size();
    const std::optional<FileKind> kind = KindOfFile(path);
    if (!kind)
        session.Fail(Words::Text("Error Opening File"), WhyUnknown(path));
    const Facts facts = kind ? LoadFacts(session, *kind, path) : Facts();
    const std::string kindName(kind ? KindName(*kind) : "");
    if (json) {
        Facts object = {{"file", path}, {"kind", kind ? Facts(kindName) : Facts()}};
        object["messages"] = MessageFacts(session, before);
        if (kind)
            object[kindName] = facts;
        session.out << PrintableJson(object.dump(-1, ' ', false, Facts::error_handler_t::replace)) << '\n';
    } else if (!facts.is_null()) {
        session.out << Printable(path) << ": " << kindName << '\n';
        PrintFacts(session.out, facts, "  ");
    }
    return !facts.is_null();
}

} // namespace

bool RunInfo(Session& session, const Arguments& arguments)
{
    if (arguments.Words().empty())
        throw UsageError("Expected: info [--json] FILE...");
    bool allDone = true;
    for (const std::string& path : arguments.Words())
        allDone = PrintOne(session, path, arguments.Has("--json")) && allDone;
    return allDone;
}

} // namespace sprout
