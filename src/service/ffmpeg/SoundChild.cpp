// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ffmpeg/SoundChild.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "base/Errors.h"
#include "posix/Descriptor.h"
#include "posix/StartProgram.h"
#include "service/ffmpeg/SoundDecoder.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr int kMostTries = 100; // if other programs create files of the same names at the same time
constexpr int kPollMs = 20;

[[noreturn]] void FailToWrite(int error)
{
    throw RunTimeError(Words::Text("The sound could not be converted: %1.", std::generic_category().message(error)));
}

/// Reading a pipe or a device could block.
bool IsPlainFile(const Descriptor& file)
{
    struct stat facts {};
    return file.Number() >= 0 && ::fstat(file.Number(), &facts) == 0 && S_ISREG(facts.st_mode);
}

/// A new temporary file. It stays locked while it exists, so no other running program takes it for a stale one.
class TemporaryWave : public ConvertedWave {
public:
    explicit TemporaryWave(const SoundChild::NewFile& newFile) : file(Create(newFile)) {}
    TemporaryWave(const TemporaryWave&) = delete;
    TemporaryWave& operator=(const TemporaryWave&) = delete;
    ~TemporaryWave() override { ::unlink(path.c_str()); }

    [[nodiscard]] const fs::path& Path() const override { return path; }
    [[nodiscard]] int Number() const { return file.Number(); }

private:
    int Create(const SoundChild::NewFile& newFile);

    fs::path path;
    Descriptor file;
};

int TemporaryWave::Create(const SoundChild::NewFile& newFile)
{
    for (int n = 1; n <= kMostTries; ++n) {
        path = newFile();
        const int opened = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kOwnerOnly);
        if (opened < 0 && errno != EEXIST)
            FailToWrite(errno);
        if (opened < 0)
            continue;
        struct stat facts {};
        if (TakeLock(opened) != Lock::Held && ::fstat(opened, &facts) == 0 && facts.st_nlink > 0)
            return opened;
        ::close(opened); // just before the lock another program took it for a stale one
    }
    FailToWrite(EEXIST);
}

pid_t Spawn(const fs::path& program, int from, int to, std::int64_t mostFrames, TooLong tooLong)
{
    ProgramStart how{from, to};
    how.TellsErrors = true;
    return StartProgram({program, std::to_string(mostFrames), tooLong == TooLong::Cut ? "cut" : "refuse"}, how);
}

/// A running child, which ends with this object at the latest.
class Child {
public:
    explicit Child(pid_t spawned) : pid(spawned), end(static_cast<int>(::syscall(SYS_pidfd_open, spawned, 0))) {}
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child()
    {
        if (isRunning) {
            ::kill(pid, SIGKILL);
            Reap(0);
        }
    }

    /// Waits a moment for the end. Returns the child's exit status; nothing while it runs, below 0 if it was killed.
    std::optional<int> WaitAMoment()
    {
        pollfd watched = {end.Number(), POLLIN, 0}; // without a descriptor this just pauses
        ::poll(&watched, 1, kPollMs);
        return Reap(WNOHANG);
    }

private:
    std::optional<int> Reap(int options)
    {
        int status = 0;
        const pid_t reaped = WaitForProgram(pid, status, options);
        if (reaped == 0)
            return std::nullopt;
        isRunning = false;
        return reaped == pid && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    pid_t pid;
    Descriptor end;
    bool isRunning = true;
};

void TellProgress(const TemporaryWave& wave, std::uint64_t mostBytes, const SoundReader::Progress& progress)
{
    struct stat facts {};
    if (::fstat(wave.Number(), &facts) == 0)
        progress(static_cast<std::size_t>(std::min(static_cast<std::uint64_t>(facts.st_size), mostBytes)), mostBytes);
}

Converted Result(int status, std::unique_ptr<TemporaryWave> wave)
{
    switch (static_cast<DecodeStatus>(status)) {
    case DecodeStatus::Done:
        return {Conversion::Done, std::move(wave)};
    case DecodeStatus::TooLong:
        return {Conversion::TooLong, nullptr};
    case DecodeStatus::NotWritten:
        throw RunTimeError(Words::Text("The sound could not be converted: the disk may be full."));
    default:
        return {};
    }
}

} // namespace

SoundChild::SoundChild(fs::path programFile, NewFile newFileName, std::chrono::milliseconds longestWait)
    : program(std::move(programFile)), newFile(std::move(newFileName)), longest(longestWait)
{
}

Converted SoundChild::Convert(const fs::path& sound, std::int32_t mostSeconds, TooLong tooLong,
                              const Progress& progress)
{
    const Descriptor from(::open(sound.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!IsPlainFile(from))
        return {};
    const std::int64_t mostFrames = std::int64_t{mostSeconds} * kDecodedRate;
    auto wave = std::make_unique<TemporaryWave>(newFile);
    const auto last = std::chrono::steady_clock::now() + longest;
    const pid_t pid = Spawn(program, from.Number(), wave->Number(), mostFrames, tooLong);
    if (pid == 0)
        return {};
    Child child(pid);
    std::optional<int> status = child.WaitAMoment();
    while (!status && std::chrono::steady_clock::now() < last) {
        TellProgress(*wave, MostDecodedBytes(mostFrames), progress);
        status = child.WaitAMoment();
    }
    return status ? Result(*status, std::move(wave)) : Converted();
}

} // namespace sprout
