// SPDX-License-Identifier: GPL-3.0-or-later
// sprout_heard_bench [SECONDS]: measures the milliseconds from a play to the first sound on the monitor of its own
// sound server, from a stop to the last sound, and between the play cursor and what is heard meanwhile. All of them
// include the recorder's own delay. Each play is stopped after SECONDS (1).
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "service/pulse/PulseSoundOutput.h"
#include "service/pulse/TestSoundServer.h"

namespace sprout {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kTries = 20;
constexpr std::chrono::milliseconds kUntilSilence{300};
constexpr double kAskedOfCursor = 15;

constexpr std::size_t kFrameBytes = 4;

/// The position of the cursor at a moment.
struct CursorMoment {
    Clock::time_point time;
    std::int32_t frame = 0;
};

/// A heard piece of the sound.
struct HeardMoment {
    Clock::time_point begins;
    Clock::time_point ends;
    std::int32_t firstFrame = 0;
};

double Milliseconds(Clock::duration time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

/// Frame n holds n + 1: its low 15 bits on the left, the rest on the right.
Bytes NumberedFrames(const SoundFormat& format, std::int32_t frames)
{
    Bytes bytes(static_cast<std::size_t>(frames * format.FrameBytes()));
    for (std::int32_t n = 0; n < frames; ++n) {
        const auto number = static_cast<std::uint32_t>(n + 1);
        const std::uint32_t frame = (number & 0x7FFFU) | (number >> 15U) << 16U;
        std::memcpy(bytes.data() + static_cast<std::size_t>(n) * sizeof frame, &frame, sizeof frame);
    }
    return bytes;
}

std::int32_t NumberOf(const std::byte* bytes)
{
    std::uint32_t frame = 0;
    std::memcpy(&frame, bytes, sizeof frame);
    return static_cast<std::int32_t>((frame & 0x7FFFU) | (frame >> 16U) << 15U) - 1;
}

/// Notes each piece of a recording in which the sound is heard.
class Ear {
public:
    void Hear(const Bytes& piece)
    {
        const auto now = Clock::now();
        const auto ends = now + std::chrono::microseconds(piece.size() / kFrameBytes * 1000000 / 44100);
        const std::lock_guard lock(mutex);
        for (std::size_t place = 0; place + kFrameBytes <= piece.size(); place += kFrameBytes)
            if (const std::int32_t frame = NumberOf(piece.data() + place); frame >= 0) {
                moments.push_back({now, ends, frame});
                return;
            }
    }

    [[nodiscard]] std::vector<HeardMoment> Take()
    {
        const std::lock_guard lock(mutex);
        return std::exchange(moments, {});
    }

private:
    std::mutex mutex;
    std::vector<HeardMoment> moments;
};

struct Figures {
    std::vector<double> untilFirst;
    std::vector<double> untilLast;
    std::vector<double> behind; // lag of the cursor behind what is heard
};

void AddBehind(const std::vector<CursorMoment>& cursors, const std::vector<HeardMoment>& heard, Figures& figures)
{
    for (const HeardMoment& moment : heard) {
        const auto later = std::find_if(cursors.begin(), cursors.end(),
                                        [&](const CursorMoment& cursor) { return cursor.time >= moment.begins; });
        if (later != cursors.end() && later->frame > 0)
            figures.behind.push_back((moment.firstFrame - later->frame) / 44.1);
    }
}

void PlayOnce(SoundObject& sound, Ear& ear, std::chrono::milliseconds length, Figures& figures)
{
    const auto played = Clock::now();
    sound.Start(StartFrom::Beginning, Loop::Yes);
    std::vector<CursorMoment> cursors;
    while (Clock::now() < played + length) {
        cursors.push_back({Clock::now(), sound.Place().Cursor});
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    const auto stopped = Clock::now();
    sound.Stop();
    std::this_thread::sleep_for(kUntilSilence);
    const std::vector<HeardMoment> heard = ear.Take();
    if (heard.empty())
        std::exit(1);
    figures.untilFirst.push_back(Milliseconds(heard.front().begins - played));
    figures.untilLast.push_back(Milliseconds(heard.back().ends - stopped));
    AddBehind(cursors, heard, figures);
}

void Print(const char* name, std::vector<double>& figures)
{
    std::sort(figures.begin(), figures.end());
    std::printf("%-24s %8.1f %8.1f %8.1f\n", name, figures.front(), figures[figures.size() / 2], figures.back());
}

int Run(std::chrono::milliseconds length)
{
    const SoundFormat format;
    TestSoundServer server(format);
    if (!server.Start())
        return 1;
    const Bytes samples = NumberedFrames(format, 10 * format.Rate);
    PulseSoundOutput output;
    const SoundHandle sound = output.Open(nullptr, 0, format, static_cast<std::int32_t>(samples.size()));
    if (!sound)
        return 1;
    sound->Load(samples);
    TestRecording recording(server);
    Ear ear;
    recording.SetListener([&ear](const Bytes& piece) { ear.Hear(piece); });
    Figures figures;
    for (int i = 0; i < kTries; ++i)
        PlayOnce(*sound, ear, length, figures);
    recording.SetListener(nullptr);
    std::printf("%-24s %8s %8s %8s\n", "ms", "least", "median", "most");
    Print("play to first sound", figures.untilFirst);
    Print("stop to last sound", figures.untilLast);
    Print("cursor behind heard", figures.behind);
    const auto near = std::count_if(figures.behind.begin(), figures.behind.end(),
                                    [](double behind) { return std::abs(behind) <= kAskedOfCursor; });
    std::printf("%-24s %8.1f %%\n", "cursor within 15 ms",
                100.0 * static_cast<double>(near) / static_cast<double>(figures.behind.size()));
    return 0;
}

} // namespace
} // namespace sprout

int main(int argc, char** argv)
{
    const double seconds = argc > 1 ? std::atof(argv[1]) : 1;
    return sprout::Run(std::chrono::milliseconds(static_cast<int>(1000 * seconds)));
}
