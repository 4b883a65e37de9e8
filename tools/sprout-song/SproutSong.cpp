// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-song/SproutSong.h"

#include <algorithm>
#include <exception>

#include "base/Errors.h"
#include "base/Product.h"
#include "core/Shared.h"
#include "sprout-song/Commands.h"
#include "sprout-song/Printable.h"

namespace sprout {

namespace {

const std::vector<OptionRule>& CommonOptions()
{
    static const std::vector<OptionRule> options = {
        {"--user-root", true}, {"--beats-outside"}, {"--help"}, {"--version"}};
    return options;
}

void PrintHelp(std::ostream& out)
{
    out << "sprout-song: songs, tunes and sounds of " << kProductName << " from the command line\n\n";
    for (const Command& command : AllCommands())
        out << "  sprout-song " << command.name << ' ' << command.words << "\n      " << command.help << '\n';
    out << "\nOptions of all commands:\n"
           "  --user-root DIR   where Beats, Tunes, Stars and Songs lie (default: the user's folder)\n"
           "  --beats-outside   files are written without their beats\n"
           "  --help, --version\n"
           "\nExit status: 0 done, 1 a file could not be read or written, 2 wrong usage.\n";
}

const Command& FindCommand(const std::string& name)
{
    const auto found = std::find_if(AllCommands().begin(), AllCommands().end(),
                                    [&](const Command& command) { return command.name == name; });
    if (found == AllCommands().end())
        throw UsageError("There is no command " + name + ".");
    return *found;
}

std::vector<OptionRule> KnownOptions(const Command* command)
{
    std::vector<OptionRule> options = CommonOptions();
    if (command)
        options.insert(options.end(), command->options.begin(), command->options.end());
    return options;
}

/// A summary of the failures, for someone who reads only that.
std::string JoinedWords(const std::vector<std::string>& words)
{
    std::string joined;
    for (const std::string& word : words)
        joined += (joined.empty() ? "" : " ") + word;
    return joined;
}

int Run(const std::vector<std::string>& words, std::ostream& out, std::ostream& err)
{
    // The command is the first word that is no option; options of all commands may precede it.
    auto place = words.begin();
    while (place != words.end() && place->starts_with("--"))
        place += *place == "--user-root" && place + 1 != words.end() ? 2 : 1;
    const Command* command = place == words.end() ? nullptr : &FindCommand(*place);
    std::vector<std::string> rest(words.begin(), place);
    if (command)
        rest.insert(rest.end(), place + 1, words.end());
    const Arguments arguments(rest, KnownOptions(command));
    if (arguments.Has("--help")) {
        PrintHelp(out);
        return kDone;
    }
    if (arguments.Has("--version")) {
        out << "sprout-song " << SPROUT_VERSION << '\n';
        return kDone;
    }
    if (!command)
        throw UsageError("A command is missing.");
    Session session(out, err, arguments.Text("--user-root").value_or(""), arguments.Has("--beats-outside"),
                    StandardErrorIsWatched());
    return command->run(session, arguments) ? kDone : kFailed;
}

} // namespace

const std::vector<Command>& AllCommands()
{
    static const std::vector<Command> commands = {
        {"info", "[--json] FILE...", "Facts of songs, tunes, stars, WAV and WMA files.", {{"--json"}}, RunInfo},
        {"render",
         "SONG OUT.wav [--track N] [--from CELL]",
         "The mix, one track alone, or the part from a cell, as the program plays it.",
         {{"--track", true}, {"--from", true}},
         RunRender},
        {"export",
         "SONG... [--to wma|wav] [--out FOLDER]",
         "Songs as sound files (default wma) under their names, beside them or in a folder.",
         {{"--to", true}, {"--out", true}},
         RunExport},
        {"cycle",
         "TUNE OUT.wav [--tempo CELLS_PER_MINUTE]",
         "One cycle of a tune, rendered anew (default 320).",
         {{"--tempo", true}},
         RunCycle},
        {"resave", "IN OUT", "Any version of a song or tune, written in the current one.", {}, RunResave},
        {"thumbnail",
         "SONG OUT.png [--size PIXELS]",
         "A picture of the song's tracks as they are painted, for file managers (default 256).",
         {{"--size", true}},
         RunThumbnail},
        {"convert",
         "IN.wav OUT.wav [--rate R] [--bits B] [--channels C]",
         "Another rate (11025, 22050, 44100), bits (8, 16), channels (1, 2).",
         {{"--rate", true}, {"--bits", true}, {"--channels", true}},
         RunConvert},
        {"stretch",
         "IN.wav OUT.wav --pitch FACTOR --duration FACTOR\n  sprout-song stretch --list FILE",
         "Pitch and duration changed by factors from 0.5 to 2; a list has lines: in pitch duration out.",
         {{"--pitch", true}, {"--duration", true}, {"--list", true}},
         RunStretch}};
    return commands;
}

int RunSproutSong(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err)
{
    try {
        const int code = Run(arguments, out, err);
        out.flush();
        if (out)
            return code;
        err << "sprout-song: The standard output could not be written.\n";
        return kFailed;
    } catch (const UsageError& error) {
        err << "sprout-song: " << Printable(error.what()) << "\nTry: sprout-song --help\n";
        return kWrongUsage;
    } catch (const std::exception& error) {
        err << "sprout-song: " << Printable(JoinedWords(arguments)) << ": " << ErrorWords(error).English() << '\n';
        return kFailed;
    }
}

} // namespace sprout
