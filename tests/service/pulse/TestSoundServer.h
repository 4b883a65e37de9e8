// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/types.h>

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "service/SoundOutput.h"
#include "support/TestFolder.h"

namespace sprout {

using Bytes = std::vector<std::byte>;

enum class Rewinds { No, Yes };

/// A private sound server with one silent device. While it lives, the environment names it.
class TestSoundServer {
public:
    /// rewinds: whether the device gives back what it has not played yet, as most cards do.
    explicit TestSoundServer(const SoundFormat& deviceFormat = {}, Rewinds rewinds = Rewinds::No);
    TestSoundServer(const TestSoundServer&) = delete;
    TestSoundServer& operator=(const TestSoundServer&) = delete;
    ~TestSoundServer();

    /// Returns false if it does not listen in time.
    [[nodiscard]] bool Start();
    void Kill();
    /// The server stays but does nothing any more.
    void Freeze() const;
    void Thaw() const;
    /// Whether the device stands still as well. PipeWire's belongs to another process.
    [[nodiscard]] bool FreezesWithItsDevice() const;

    [[nodiscard]] const SoundFormat& Format() const { return format; }
    /// What plays on the device, even if it is silence, as the server lists it.
    [[nodiscard]] std::string Inputs() const;
    /// Whether something is ready to play that the device does not get.
    [[nodiscard]] bool HasStoppedInput() const;

    /// Runs a program to its end and returns its output, or "no answer" if it fails. Several threads may call it.
    [[nodiscard]] std::string Told(const std::vector<std::string>& question) const;
    /// Runs pactl in the same way and returns whether it succeeded.
    [[nodiscard]] bool Does(std::vector<std::string> command) const;

    /// Adds a microphone NAME-mic that hears what is played on the sink NAME. Returns false if that fails.
    [[nodiscard]] bool AddMicrophone(const std::string& name);
    [[nodiscard]] const TestFolder& Folder() const { return folder; }
    /// Plays the samples of a file, in the program's own format, on a sink until they are heard. "" means success.
    [[nodiscard]] std::string Play(const std::string& sink, const std::string& file) const;
    /// Removes a microphone or puts it back; its sink stays.
    [[nodiscard]] bool PullOut(const std::string& name);
    [[nodiscard]] bool PutBack(const std::string& name);

private:
    [[nodiscard]] bool Listens() const;
    const SoundFormat format;
    const Rewinds deviceRewinds;
    TestFolder folder;
    const std::string socket = folder.Path() / "native";
    pid_t process = 0;
    std::map<std::string, std::string> microphones; // the server's number for each
    mutable std::atomic<int> questions = 0;
};

/// What a server's device plays from the start of the recording on.
class TestRecording {
public:
    explicit TestRecording(const TestSoundServer& soundServer);
    TestRecording(const TestRecording&) = delete;
    TestRecording& operator=(const TestRecording&) = delete;
    ~TestRecording();

    /// Waits until `condition` holds for the recording so far. Returns false if it does not in time.
    [[nodiscard]] bool Comes(const std::function<bool(const Bytes&)>& condition);
    /// Waits until something is heard.
    [[nodiscard]] bool Sounds();
    /// Waits until all of `sound` is heard, without a gap.
    [[nodiscard]] bool Holds(const Bytes& sound);
    /// Waits until everything is recorded that was heard before this call. For the program's own format; nothing may
    /// sound meanwhile.
    [[nodiscard]] bool CatchesUp();
    /// Waits until `bytes` more bytes are recorded.
    [[nodiscard]] bool Grows(std::size_t bytes);
    /// The recording so far, without the silence before and after it.
    [[nodiscard]] Bytes Sounded();

    /// Called with each piece of the recording, in a separate thread.
    using Listener = std::function<void(const Bytes& piece)>;
    /// Call this before the recording sounds.
    void SetListener(Listener newListener);

private:
    void Read();

    const TestSoundServer& server;
    const std::byte silence;
    int output = -1;
    pid_t process = 0;
    std::mutex mutex;
    std::condition_variable arrived;
    Bytes recorded;
    Listener listener;
    std::thread reader;
};

} // namespace sprout
