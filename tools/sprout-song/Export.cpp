// SPDX-License-Identifier: GPL-3.0-or-later
// Turns songs into sound files, several at a time, each in its own process: the engine has only one open song, and a
// song that crashes its process does not affect the others.
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "core/Busy.h"
#include "core/Shared.h"
#include "songs/SongExport.h"
#include "sound/RenderThreads.h"
#include "sound/TrackRender.h"
#include "sprout-song/Commands.h"
#include "sprout-song/Loading.h"
#include "sprout-song/Printable.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr LaterWords kExportError = Words::Later("Error Exporting Song");

struct SoundKind {
    std::string extension;
    ExportOutcome (*write)(const WaveData&, const fs::path&);
};

SoundKind KindOf(const Arguments& arguments)
{
    const std::string name = arguments.Text("--to").value_or("wma");
    if (name == "wma")
        return {".wma", WriteWmaFile};
    if (name == "wav")
        return {".wav", WriteWavFile};
    throw UsageError("The option --to takes wma or wav.");
}

struct Job {
    fs::path song;
    fs::path target;
};

/// The target file of each song: beside it or in `folder`, under its name. Throws `UsageError` if two songs have the
/// same target.
std::vector<Job> PlanJobs(const std::vector<std::string>& songs, const fs::path& folder, const std::string& extension)
{
    std::vector<Job> jobs;
    std::map<fs::path, fs::path> taken;
    for (const fs::path song : songs) {
        const fs::path target = (folder.empty() ? song.parent_path() : folder) / (song.stem().native() + extension);
        const auto [other, isNew] = taken.emplace(fs::absolute(target).lexically_normal(), song);
        if (!isNew)
            throw UsageError(PathText(other->second) + " and " + PathText(song) + " would both become " +
                             PathText(target) + ".");
        jobs.push_back({song, target});
    }
    return jobs;
}

void TellOutcome(Session& session, const ExportOutcome& outcome, const Job& job, std::size_t before)
{
    if (!outcome.Line1.IsBlank())
        session.Fail({}, outcome.Line2.IsBlank() ? outcome.Line1 : Words::Text("%1. %2", outcome.Line1, outcome.Line2));
    else if (outcome.End == ExportEnd::NotReplaced)
        session.Fail(kExportError, Words::Text("The file %1 cannot be replaced.", PathText(job.target)));
    else if (outcome.End == ExportEnd::Failed && session.NoMessageSince(before))
        session.Fail(kExportError, Shared().Song.SongMix.Length == 0
                                       ? Words::Text("The song is silent.")
                                       : Words::Text("The file %1 could not be written.", PathText(job.target)));
}

/// Returns true if the song was exported.
bool ExportSong(Session& session, const Job& job, const SoundKind& kind)
{
    if (!LoadSong(session, job.song)) {
        if (session.messages.Shown().empty())
            session.Fail(kExportError, Words::Text("The song has no tracks."));
        return false;
    }
    if (!TheServices().files->MayBeReplaced(job.target)) {
        TellOutcome(session, {.End = ExportEnd::NotReplaced}, job, 0);
        return false;
    }
    Shared().Song.SongTitle = BaseName(job.song);
    MixSong();
    const std::size_t before = session.messages.Shown().size();
    const ExportOutcome outcome = kind.write(Shared().Song.SongMix, job.target);
    TellOutcome(session, outcome, job, before);
    return outcome.End == ExportEnd::Written;
}

/// The whole life of a process that exports one song. It writes its messages into the pipe.
[[noreturn]] void LiveAsChild(const Job& job, const SoundKind& kind, std::size_t threads, int pipe)
{
    bool done = false;
    std::ostringstream said;
    try {
        Session session(said, said, Shared().UserRoot, false, Watched::No);
        const RenderThreads most(threads);
        done = ExportSong(session, job, kind);
    } catch (const std::exception& error) {
        said << kExportError.English() << ": " << ErrorWords(error).English() << '\n';
    }
    const std::string text = said.str();
    for (std::size_t written = 0; written < text.size();) {
        const ssize_t count = ::write(pipe, text.data() + written, text.size() - written);
        if (count < 0 && errno != EINTR)
            break;
        written += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    ::_exit(done ? EXIT_SUCCESS : EXIT_FAILURE); // does not destroy the parent's objects
}

/// A song that is being exported.
struct Running {
    const Job* job;
    pid_t process;
    int pipe;
    std::string said;
};

Running Start(const Job& job, const SoundKind& kind, std::size_t threads)
{
    int ends[2];
    if (::pipe(ends) != 0)
        throw RunTimeError(Words::Text("No process could be started."));
    const pid_t process = ::fork();
    if (process == 0) {
        ::close(ends[0]);
        LiveAsChild(job, kind, threads, ends[1]);
    }
    ::close(ends[1]);
    if (process < 0) {
        ::close(ends[0]);
        throw RunTimeError(Words::Text("No process could be started."));
    }
    return {&job, process, ends[0], {}};
}

/// Reads the output of a process; returns false once it has ended.
bool Listen(Running& running)
{
    char piece[4096];
    const ssize_t count = ::read(running.pipe, piece, sizeof piece);
    if (count > 0)
        running.said.append(piece, static_cast<std::size_t>(count));
    return count > 0 || (count < 0 && errno == EINTR);
}

/// Returns true if the process succeeded. Reports its output and the signal that ended it, if any.
bool TakeLeave(Session& session, const Running& running)
{
    ::close(running.pipe);
    int status = 0;
    while (::waitpid(running.process, &status, 0) < 0 && errno == EINTR) {
    }
    std::istringstream lines(running.said);
    for (std::string line; std::getline(lines, line);)
        session.Fail(Words::AsIs(PathText(running.job->song)), Words::AsIs(line));
    if (WIFSIGNALED(status))
        session.Fail(Words::AsIs(PathText(running.job->song)),
                     Words::Text("The export ended by signal %1.", WTERMSIG(status)));
    return WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

/// Exports all songs, one per core at a time.
class Exports {
public:
    Exports(Session& ownSession, const std::vector<Job>& allJobs, const SoundKind& soundKind)
        : session(ownSession),
          jobs(allJobs),
          kind(soundKind),
          atATime(std::min<std::size_t>(jobs.size(), std::max(1U, std::thread::hardware_concurrency())))
    {
    }

    /// Returns the number of exported songs.
    std::size_t Run()
    {
        StoppableWork work(Words::Text("Exporting songs"));
        TheServices().screen->ShowProgress(0, jobs.size());
        while (next < jobs.size() || !running.empty()) {
            while (next < jobs.size() && running.size() < atATime)
                running.push_back(Start(jobs[next++], kind, atATime > 1 ? 1 : 0));
            ListenToAll();
        }
        return exported;
    }

private:
    void ListenToAll()
    {
        std::vector<pollfd> pipes;
        for (const Running& one : running)
            pipes.push_back({one.pipe, POLLIN, 0});
        if (::poll(pipes.data(), pipes.size(), -1) < 0)
            return; // interrupted
        for (std::size_t i = pipes.size(); i-- > 0;) {
            if (pipes[i].revents == 0 || Listen(running[i]))
                continue;
            const Running ended = std::move(running[i]);
            running.erase(running.begin() + static_cast<std::ptrdiff_t>(i));
            Count(ended);
        }
    }

    void Count(const Running& ended)
    {
        ++done;
        if (TakeLeave(session, ended)) {
            ++exported;
            session.out << Printable(PathText(ended.job->song)) << " -> " << Printable(PathText(ended.job->target))
                        << '\n';
        }
        TheServices().screen->ShowProgress(done, jobs.size());
    }

    Session& session;
    const std::vector<Job>& jobs;
    const SoundKind& kind;
    std::size_t atATime;
    std::size_t next = 0;
    std::size_t done = 0;
    std::size_t exported = 0;
    std::vector<Running> running;
};

bool MakeFolder(Session& session, const fs::path& folder)
{
    std::error_code error;
    fs::create_directories(folder, error);
    if (fs::is_directory(folder, error))
        return true;
    session.Fail(kExportError, Words::Text("The folder %1 could not be made.", PathText(folder)));
    return false;
}

} // namespace

bool RunExport(Session& session, const Arguments& arguments)
{
    if (arguments.Words().empty())
        throw UsageError("Expected: export SONG...");
    const SoundKind kind = KindOf(arguments);
    const fs::path folder = arguments.Text("--out").value_or("");
    const std::vector<Job> jobs = PlanJobs(arguments.Words(), folder, kind.extension);
    if (!folder.empty() && !MakeFolder(session, folder))
        return false;
    try {
        const std::size_t exported = Exports(session, jobs, kind).Run();
        session.out << exported << " exported, " << jobs.size() - exported << " failed.\n";
        return exported == jobs.size();
    } catch (const std::exception& error) {
        session.Fail(kExportError, ErrorWords(error));
        return false;
    }
}

} // namespace sprout
