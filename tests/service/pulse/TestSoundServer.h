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

/// A sound server of the test's own, with one device that nobody hears; the environment names it as long as it lives.
class TestSoundServer {
public:
    /// rewinds: whether the device gives back what it has not played yet, as most cards do.
    explicit TestSoundServer(const SoundFormat& deviceFormat = {}, Rewinds rewinds = Rewinds::No);
    TestSoundServer(const TestSoundServer&) = delete;
    TestSoundServer& operator=(const TestSoundServer&) = delete;
    ~TestSoundServer();

    /// False if it does not listen in time.
    [[nodiscard]] bool Start();
    void Kill();
    /// It stays and does nothing any more.
    void Freeze() const;
    void Thaw() const;

    [[nodiscard]] const SoundFormat& Format() const { return format; }
    /// What plays on the device, be it silence, as the server lists it.
    [[nodiscard]] std::string Inputs() const;
    /// Whether something is there to be played that the device is not given.
    [[nodiscard]] bool HasStoppedInput() const;

    /// Runs a program to its end; what it prints, or "no answer" if it fails. May be called from several threads.
    [[nodiscard]] std::string Told(const std::vector<std::string>& question) const;
    /// The same of pactl, of which nothing but success is expected.
    [[nodiscard]] bool Does(std::vector<std::string> command) const;

    /// Adds a microphone, which hears what is played on the sink NAME and is called NAME-mic. False if it fails.
    [[nodiscard]] bool AddMicrophone(const std::string& name);
    /// Plays the samples of a file, in the program's own format, on a sink until they are heard. "" if that succeeds.
    [[nodiscard]] std::string Play(const std::string& sink, const std::string& file) const;
    /// Takes a microphone away, or puts it back; its sink stays.
    [[nodiscard]] bool PullOut(const std::string& name);
    [[nodiscard]] bool PutBack(const std::string& name);

private:
    [[nodiscard]] bool Listens() const;
    const SoundFormat format;
    const Rewinds deviceRewinds;
    TestFolder folder;
    const std::string socket = folder.Path() / "native";
    pid_t process = 0;
    std::map<std::string, std::string> microphones; // the server's number of each
    mutable std::atomic<int> questions = 0;
};

/// What a server's device plays from the making on.
class TestRecording {
public:
    explicit TestRecording(const TestSoundServer& server);
    TestRecording(const TestRecording&) = delete;
    TestRecording& operator=(const TestRecording&) = delete;
    ~TestRecording();

    /// Waits until `condition` holds for what was recorded so far. False if it does not in time.
    [[nodiscard]] bool Comes(const std::function<bool(const Bytes&)>& condition);
    /// Waits until something is heard.
    [[nodiscard]] bool Sounds();
    /// Waits until `sound` is heard whole, without a gap.
    [[nodiscard]] bool Holds(const Bytes& sound);
    /// Waits until that many bytes more are recorded.
    [[nodiscard]] bool Grows(std::size_t bytes);
    /// What was recorded so far, without the silence ahead and behind.
    [[nodiscard]] Bytes Sounded();

    /// Called with each piece of the recording, in a thread of its own.
    using Listener = std::function<void(const Bytes& piece)>;
    /// Before the recording sounds.
    void SetListener(Listener newListener);

private:
    void Read();

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
