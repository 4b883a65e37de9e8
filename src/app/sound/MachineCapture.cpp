// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sound/MachineCapture.h"

#include <algorithm>
#include <exception>
#include <system_error>

#include "app/sound/MachineSound.h"
#include "base/Guarded.h"
#include "base/Log.h"

namespace sprout {

namespace {

constexpr std::chrono::milliseconds kPause{500};
constexpr std::int64_t kBlockFrames = 8820; // 0.2 s

} // namespace

MachineCapture::~MachineCapture()
{
    MachineCapture::Release();
}

CaptureSource* MachineCapture::ChooseSource()
{
    if (UserChoseSdl())
        return &device;
    const ServerAnswer answer = server.AskServer();
    if (answer == ServerAnswer::Yes)
        return &server;
    // SDL would wait for a silent server without limit.
    return answer == ServerAnswer::No ? &device : nullptr;
}

CaptureOpening MachineCapture::Open()
{
    Release();
    source = ChooseSource();
    if (!source)
        return CaptureOpening::Failed;
    CaptureOpening opening = source->Open(intake);
    // A failure may be the first sign that the server is gone.
    if (opening == CaptureOpening::Failed && source == &server && server.AskServer() == ServerAnswer::No) {
        source = &device;
        opening = source->Open(intake);
    }
    return opening;
}

bool MachineCapture::Start(const std::filesystem::path& left, const std::filesystem::path& right)
{
    LetFilesGo();
    if (!source || source->State() == SourceState::Gone)
        return false;
    files = CaptureFiles::Make(left, right, limits);
    if (!files)
        return false;
    try {
        writer = std::make_unique<CaptureWriter>(*files);
    } catch (const std::system_error& error) { // no thread can be started
        LogFailure("Starting a recording", error);
        files->Delete();
        files.reset();
        return false;
    }
    isStopped = false;
    isGone = false;
    started = CaptureIntake::Clock::now();
    intake.KeepIn(writer.get());
    return true;
}

void MachineCapture::Stop()
{
    LookAtSource();
    intake.KeepIn(nullptr);
    if (writer)
        writer->Finish();
    isStopped = true;
}

void MachineCapture::Release()
{
    if (source)
        source->Close();
    LetFilesGo();
    intake.Reset();
}

void MachineCapture::LetFilesGo()
{
    intake.KeepIn(nullptr);
    writer.reset();
    if (files && !isStopped)
        files->Delete();
    CloseFiles();
    isStopped = true;
    isGone = false;
}

/// The disk reclaims the space of deleted files when they are closed; after a long take a child would wait for that.
void MachineCapture::CloseFiles()
{
    if (!files)
        return;
    // If no thread can be started, the files are already closed.
    GuardedQuietly("Closing a recording",
                   [this] { closer = std::jthread([closed = std::move(files)]() mutable { closed.reset(); }); });
}

SourceState MachineCapture::LookAtSource()
{
    const SourceState state = source ? source->State() : SourceState::Gone;
    if (!isStopped && state == SourceState::Gone) {
        isGone = true;
        intake.KeepIn(nullptr);
    }
    return state;
}

CaptureStatus MachineCapture::Status()
{
    const SourceState sourceState = LookAtSource();
    const CaptureIntake::Facts facts = intake.Counted();
    CaptureStatus status;
    status.Pieces = facts.Pieces;
    status.LostPieces = facts.LostPieces;
    status.SilentSeconds = std::chrono::duration<double>(CaptureIntake::Clock::now() - facts.LastSound).count();
    if (!writer)
        return status;
    status.Blocks = writer->Frames() / kBlockFrames;
    status.End = writer->End();
    if (status.End == CaptureEnd::None && isGone)
        status.End = CaptureEnd::MicrophoneGone;
    if (!isStopped && status.End == CaptureEnd::None)
        status.State = StateOf(sourceState, facts);
    return status;
}

CaptureState MachineCapture::StateOf(SourceState sourceState, const CaptureIntake::Facts& facts) const
{
    const auto lastFrame = std::max(started, facts.LastTaken);
    if (sourceState == SourceState::Suspended || CaptureIntake::Clock::now() - lastFrame >= kPause)
        return CaptureState::Paused;
    return writer->Frames() > 0 ? CaptureState::Recording : CaptureState::Stopped;
}

std::optional<SoundSources> MachineCapture::ListSources()
{
    if (!source || source->State() == SourceState::Gone)
        source = ChooseSource();
    return source ? source->ListSources() : std::nullopt;
}

std::uint64_t MachineCapture::SourceChanges()
{
    return source ? source->SourceChanges() : 0;
}

void MachineCapture::SelectSource(std::int32_t index)
{
    if (source)
        source->SelectSource(index);
}

void MachineCapture::SetVolume(std::int32_t index, std::int32_t volume)
{
    if (source)
        source->SetVolume(index, volume);
}

void MachineCapture::DeleteLeftFiles(const std::filesystem::path& folder)
{
    cleaner = std::jthread([folder](const std::stop_token& stop) {
        // After a failure the next start tries again.
        GuardedQuietly("Deleting old recordings", [&] { DeleteLeftCaptureFiles(folder, stop); });
    });
}

} // namespace sprout
