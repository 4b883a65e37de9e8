// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/CaptureFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <string_view>
#include <system_error>
#include <utility>

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr int kTries = 3;
constexpr std::int64_t kFramesBetweenLooks = 8820; // at the free disk space

/// "TqkTmp12.WavL" and the like.
bool IsCaptureFile(std::string_view name)
{
    constexpr std::string_view front = "TqkTmp";
    if (!name.starts_with(front) || !(name.ends_with(".WavL") || name.ends_with(".WavR")))
        return false;
    const std::string_view number = name.substr(front.size(), name.rfind('.') - front.size());
    return !number.empty() && std::all_of(number.begin(), number.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool IsOwnPlainFile(int file)
{
    struct stat facts {};
    return ::fstat(file, &facts) == 0 && S_ISREG(facts.st_mode) && facts.st_uid == ::geteuid();
}

void DeleteIfLeft(const fs::path& path)
{
    const Descriptor file(
        Uninterrupted([&] { return ::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC); }));
    if (file.Number() >= 0 && IsOwnPlainFile(file.Number()) && TakeLock(file.Number()) == Lock::Taken &&
        Names(path, file.Number()))
        ::unlink(path.c_str());
}

} // namespace

CaptureFiles::OneFile CaptureFiles::MakeFile(const fs::path& path)
{
    for (int tries = 0; tries < kTries; ++tries) {
        Descriptor file(Uninterrupted(
            [&] { return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kOwnerOnly); }));
        if (file.Number() < 0)
            break;
        if (TakeLock(file.Number()) != Lock::Held && Names(path, file.Number()))
            return {path, std::move(file), {}};
        // Another program that is starting took it for a leftover just before the lock.
    }
    return {path, Descriptor(-1), {}};
}

std::unique_ptr<CaptureFiles> CaptureFiles::Make(const fs::path& left, const fs::path& right,
                                                 const CaptureLimits& limits)
{
    OneFile leftFile = MakeFile(left);
    if (leftFile.file.Number() < 0)
        return nullptr;
    OneFile rightFile = MakeFile(right);
    if (rightFile.file.Number() < 0) {
        DeleteFile(leftFile);
        return nullptr;
    }
    std::unique_ptr<CaptureFiles> files(new CaptureFiles(std::move(leftFile), std::move(rightFile), limits));
    if (!files->DiskIsFull())
        return files;
    files->Delete();
    return nullptr;
}

CaptureFiles::CaptureFiles(OneFile leftFile, OneFile rightFile, const CaptureLimits& captureLimits)
    : left(std::move(leftFile)), right(std::move(rightFile)), limits(captureLimits)
{
}

CaptureEnd CaptureFiles::Write(std::span<const std::int16_t> samples)
{
    const auto room = static_cast<std::size_t>(limits.mostFrames - frames);
    const std::size_t count = std::min(samples.size() / 2, room);
    left.samples.resize(count);
    right.samples.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        left.samples[i] = samples[2 * i];
        right.samples[i] = samples[2 * i + 1];
    }
    if (!WriteAll(left) || !WriteAll(right)) {
        CutToWholeFrames();
        return CaptureEnd::DiskFull;
    }
    frames += static_cast<std::int64_t>(count);
    if (frames == limits.mostFrames)
        return CaptureEnd::TooLong;
    if (frames < nextLookAtDisk)
        return CaptureEnd::None;
    nextLookAtDisk = frames + kFramesBetweenLooks;
    return DiskIsFull() ? CaptureEnd::DiskFull : CaptureEnd::None;
}

bool CaptureFiles::WriteAll(const OneFile& file)
{
    const auto* bytes = reinterpret_cast<const std::byte*>(file.samples.data());
    std::size_t count = file.samples.size() * sizeof(std::int16_t);
    while (count > 0) {
        const ssize_t written = ::write(file.file.Number(), bytes, count);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes += written;
        count -= static_cast<std::size_t>(written);
    }
    return true;
}

bool CaptureFiles::DiskIsFull() const
{
    struct statvfs disk {};
    if (::fstatvfs(left.file.Number(), &disk) != 0)
        return false; // the next write will tell
    return static_cast<std::uint64_t>(disk.f_bavail) * disk.f_frsize < limits.leastFreeBytes;
}

void CaptureFiles::CutToWholeFrames() const
{
    // Even if cutting fails, a reader still finds equal channels: it reads the shorter length.
    const auto bytes = static_cast<off_t>(frames) * static_cast<off_t>(sizeof(std::int16_t));
    static_cast<void>(::ftruncate(left.file.Number(), bytes) + ::ftruncate(right.file.Number(), bytes));
}

void CaptureFiles::DeleteFile(const OneFile& file)
{
    if (Names(file.path, file.file.Number()))
        ::unlink(file.path.c_str());
}

void CaptureFiles::Delete()
{
    DeleteFile(left);
    DeleteFile(right);
}

void DeleteLeftCaptureFiles(const fs::path& folder, const std::stop_token& stop)
{
    std::error_code error;
    fs::directory_iterator entry(folder, fs::directory_options::skip_permission_denied, error);
    for (; !error && entry != fs::directory_iterator() && !stop.stop_requested(); entry.increment(error))
        if (IsCaptureFile(entry->path().filename().native()))
            DeleteIfLeft(entry->path());
}

} // namespace sprout
