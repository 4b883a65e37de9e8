// SPDX-License-Identifier: GPL-3.0-or-later
// sprout_capture_bench [SECONDS [LOOPS]]: records from a microphone at its own sound server. Measures the frames lost
// in SECONDS (120) while LOOPS (4) busy loops run and the interface thread stalls for two seconds at a time;
// milliseconds from an opening to the first kept frame, from a play to the meter (including the play's own delay), and
// for the end of a take of three minutes compared with `cat` of its files; foreign frames in 50 takes whose microphone
// is pulled out.
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "app/sound/MachineCapture.h"
#include "recording/Recd_Mod.h"
#include "service/Services.h"
#include "service/posix/LargePages.h"
#include "service/posix/PosixFiles.h"
#include "service/posix/PosixMachine.h"
#include "service/pulse/PulseSoundOutput.h"
#include "service/pulse/TestSoundServer.h"
#include "support/CaptureRamp.h"
#include "support/Comes.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int kOpenings = 40;
constexpr int kPlays = 40;
constexpr int kTakes = 7;
constexpr int kPulls = 50;

double MillisecondsSince(Clock::time_point begun)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - begun).count();
}

/// Ends the program unless the condition holds: a benchmark that cannot record measures nothing.
void Need(bool condition)
{
    if (!condition)
        std::exit(1);
}

void Print(const char* name, std::vector<double> figures)
{
    std::sort(figures.begin(), figures.end());
    std::printf("%-30s %8.1f %8.1f %8.1f %8.1f\n", name, figures.front(), figures[figures.size() / 2],
                figures[figures.size() * 95 / 100], figures.back());
}

/// Threads that work as hard as they can.
class BusyLoops {
public:
    explicit BusyLoops(int count)
    {
        for (int i = 0; i < count; ++i)
            threads.emplace_back([this] {
                while (!ends)
                    ++turns;
            });
    }
    BusyLoops(const BusyLoops&) = delete;
    BusyLoops& operator=(const BusyLoops&) = delete;
    ~BusyLoops()
    {
        ends = true;
        for (std::thread& thread : threads)
            thread.join();
    }

private:
    std::atomic<bool> ends = false;
    std::atomic<std::uint64_t> turns = 0;
    std::vector<std::thread> threads;
};

class Bench {
public:
    Bench()
    {
        Need(server.Start() && server.AddMicrophone("mic1") && server.Does({"set-default-sink", "mic1"}) &&
             server.Does({"set-default-source", "mic1-mic"}));
    }

    void MeasureLoss(int seconds, int busyLoops);
    void MeasureOpenings();
    void MeasureMeter();
    void MeasureEnd();
    void MeasurePulls();

private:
    void Record()
    {
        Need(capture.Open() == CaptureOpening::Ready && capture.Start(left, right) &&
             Comes([this] { return capture.Status().State == CaptureState::Recording; }));
    }
    void Discard()
    {
        capture.Release();
        fs::remove(left);
        fs::remove(right);
    }
    /// Plays a ramp on a sink until it is heard.
    std::future<std::string> Play(const std::string& sink, int seconds, int firstLap)
    {
        const std::string file = folder.Path() / ("ramp" + sink);
        WriteBytes(file, RampBytes(seconds * 44100, firstLap));
        return std::async(std::launch::async, [this, sink, file] { return server.Play(sink, file); });
    }

    TestFolder folder;
    const fs::path left = folder.Path() / "TqkTmp1.WavL";
    const fs::path right = folder.Path() / "TqkTmp1.WavR";
    TestSoundServer server;
    MachineCapture capture;
};

void Bench::MeasureLoss(int seconds, int busyLoops)
{
    Record();
    std::future<std::string> played = Play("mic1", seconds, 1);
    {
        const BusyLoops loops(busyLoops);
        const auto end = Clock::now() + std::chrono::seconds(seconds) + std::chrono::seconds(2);
        while (Clock::now() < end) {
            std::this_thread::sleep_for(std::chrono::seconds(2)); // the interface thread is busy with something else
            static_cast<void>(capture.Status());
        }
    }
    Need(played.get().empty());
    capture.Stop();
    const std::vector<int> heard = Sounded(ReadCaptured(left, right).Numbers());
    const auto wanted = static_cast<std::size_t>(seconds) * 44100;
    std::size_t breaks = 0;
    for (std::size_t i = 1; i < heard.size(); ++i)
        breaks += heard[i] != heard[i - 1] + 1;
    std::printf("%-30s %zu of %zu frames, %zu breaks, %lld pieces told as lost\n", "captured", heard.size(), wanted,
                breaks, static_cast<long long>(capture.Status().LostPieces));
    Discard();
}

void Bench::MeasureOpenings()
{
    std::vector<double> figures;
    for (int i = 0; i < kOpenings; ++i) {
        const auto begun = Clock::now();
        Record();
        figures.push_back(MillisecondsSince(begun));
        Discard();
    }
    Print("opening to first kept frame", figures);
}

void Bench::MeasureMeter()
{
    Need(capture.Open() == CaptureOpening::Ready);
    const SoundFormat format;
    const std::string ramp = RampBytes(4410);
    const auto* const bytes = reinterpret_cast<const std::byte*>(ramp.data());
    PulseSoundOutput output;
    SoundHandle sound = output.Open(nullptr, 0, format, static_cast<std::int32_t>(ramp.size()));
    Need(sound != nullptr);
    sound->Load({bytes, ramp.size()});
    std::vector<double> figures;
    for (int i = 0; i < kPlays; ++i) {
        Need(Comes([this] { return capture.Peaks().Left == 0; }));
        const auto begun = Clock::now();
        sound->Start(StartFrom::Beginning, Loop::No);
        Need(Comes([this] { return capture.Peaks().Left > 0; }));
        figures.push_back(MillisecondsSince(begun));
        Need(Comes([&] { return !sound->Place().Playing; }));
    }
    capture.Release();
    Print("play to meter", figures);
}

void Bench::MeasureEnd()
{
    constexpr int kPieces = 180 * 50;
    const std::vector<std::int16_t> piece(1764, 1234);
    std::vector<double> ends;
    std::vector<double> loads;
    std::vector<double> cats;
    for (int i = 0; i < kTakes; ++i) {
        const std::unique_ptr<CaptureFiles> files = CaptureFiles::Make(left, right, {});
        Need(files != nullptr);
        CaptureWriter writer(*files);
        for (int n = 0; n < kPieces; ++n) {
            static_cast<void>(writer.Put(piece));
            std::this_thread::sleep_for(std::chrono::microseconds(100));
        }
        auto begun = Clock::now();
        writer.Finish();
        ends.push_back(MillisecondsSince(begun));
        begun = Clock::now();
        Need(std::system(("cat " + left.string() + " " + right.string() + " >/dev/null").c_str()) == 0);
        cats.push_back(MillisecondsSince(begun));
        begun = Clock::now();
        LoadRecordedFiles(left, right);
        const WaveData wave = TakeRecordedWave();
        loads.push_back(MillisecondsSince(begun));
        Need(wave.Length == kPieces * 882 - 1 && wave.WavL[wave.Length] == 1234 && wave.WavR[1] == 1234);
    }
    Print("end of 3 minutes", ends);
    Print("both files become a wave", loads);
    Print("cat of both files", cats);
}

void Bench::MeasurePulls()
{
    int foreign = 0;
    int untold = 0;
    constexpr int kForeignLap = 20000;
    std::future<std::string> computer = Play("out", kPulls, kForeignLap);
    for (int i = 0; i < kPulls; ++i) {
        Record();
        Need(Comes([this] { return capture.Status().Blocks >= 1; }) && server.PullOut("mic1"));
        Need(Comes([this] { return capture.Status().State == CaptureState::Stopped; }));
        untold += capture.Status().End != CaptureEnd::MicrophoneGone;
        Need(server.PutBack("mic1") && server.Does({"set-default-source", "mic1-mic"}));
        capture.Stop();
        const std::vector<int> numbers = ReadCaptured(left, right).Numbers();
        foreign += static_cast<int>(std::count_if(numbers.begin(), numbers.end(), [](int n) { return n != -1; }));
        Discard();
    }
    Need(computer.get().empty());
    std::printf("%-30s %d foreign frames in %d takes, %d of them without the reason\n", "pulls", foreign, kPulls,
                untold);
}

int Run(int seconds, int busyLoops)
{
    PosixFiles files;
    PosixMachine machine;
    LargePages::UseFromNowOn();
    TheServices().files = &files;
    TheServices().machine = &machine;
    Bench bench;
    bench.MeasureLoss(seconds, busyLoops);
    std::printf("%-30s %8s %8s %8s %8s\n", "ms", "least", "median", "95 of 100", "most");
    bench.MeasureOpenings();
    bench.MeasureMeter();
    bench.MeasureEnd();
    bench.MeasurePulls();
    return 0;
}

} // namespace
} // namespace sprout

int main(int argc, char** argv)
{
    return sprout::Run(argc > 1 ? std::atoi(argv[1]) : 120, argc > 2 ? std::atoi(argv[2]) : 4);
}
