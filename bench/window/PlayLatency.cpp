// SPDX-License-Identifier: GPL-3.0-or-later
// sprout_play_bench: measures the milliseconds from the call of `PlayAllBtn` until the device takes the first frame,
// and the processor time of the program at rest. It plays on the sound server that the environment names.
#include <sys/resource.h>

#include <QApplication>
#include <QTimer>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <thread>

#include "../BenchSounds.h"
#include "core/Shared.h"
#include "core/SongModel.h"
#include "main_window/TrackCanvas.h"
#include "main_window/TrackCommands.h"
#include "main_window/TransportCommands.h"
#include "service/Messages.h"
#include "service/Services.h"
#include "service/posix/LargePages.h"
#include "service/posix/PosixFiles.h"
#include "service/posix/PosixMachine.h"
#include "service/pulse/PulseSound.h"
#include "service/pulse/PulseSoundOutput.h"
#include "sound/PlayMod.h"
#include "sound/StepCache.h"
#include "stretch/StretchService.h"
#include "ui/forms/QtScreen.h"
#include "ui/look/Look.h"
#include "ui/look/ProgramPictures.h"

namespace sprout {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kRounds = 5;
constexpr std::chrono::seconds kPatience{20};
constexpr std::chrono::seconds kUntilRest{6};
constexpr std::chrono::seconds kRestMeasured{20};

class LoudMessages : public Messages {
public:
    void MessageBox(const Words& title, const Words& text, MessageIcon /*icon*/) override
    {
        std::fprintf(stderr, "%s: %s\n", title.English().c_str(), text.English().c_str());
        std::exit(1);
    }
};

/// The sound server's output; it gives access to the newest sound.
class WatchedOutput : public PulseSoundOutput {
public:
    [[nodiscard]] SoundHandle Open(SoundHandle old, std::int32_t window, const SoundFormat& format,
                                   std::int32_t bufferBytes) override
    {
        SoundHandle sound = PulseSoundOutput::Open(std::move(old), window, format, bufferBytes);
        newest = static_cast<PulseSound*>(sound.get());
        return sound;
    }

    PulseSound* newest = nullptr;
};

double Milliseconds(Clock::duration time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

double ProcessorSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void HandleEventsFor(std::chrono::milliseconds time)
{
    QTimer::singleShot(time, qApp, &QCoreApplication::quit);
    QApplication::exec();
}

/// The times of one click, in milliseconds.
struct Click {
    double untilFirstFrame = 0;
    double processorTime = 0; ///< of all threads, during the call

    friend bool operator<(const Click& a, const Click& b) { return a.untilFirstFrame < b.untilFirstFrame; }
};

Click ClickPlayAll(TransportCommands& transport, const WatchedOutput& sound)
{
    const double processor = ProcessorSeconds();
    const auto clicked = Clock::now();
    transport.PlayAllBtn();
    const double worked = 1000 * (ProcessorSeconds() - processor);
    while (!sound.newest || !sound.newest->FirstTaken()) {
        if (Clock::now() > clicked + kPatience)
            std::exit(1);
        std::this_thread::sleep_for(std::chrono::microseconds(100));
    }
    return {Milliseconds(*sound.newest->FirstTaken() - clicked), worked};
}

/// One track with twenty steps of one second, each with a different pitch.
void MakeTwentySteps()
{
    NewSong();
    SongState& song = Shared().Song;
    Beat beat;
    beat.Name = "Pluck";
    beat.Loaded = true;
    beat.Sound = PluckedSecond(1);
    song.SongBeats.push_back(beat);
    song.SongBeatCount = 1;
    Tune& tune = song.Tracks[1].TrackTune;
    tune.Name = "Twenty";
    tune.StepCount = 20;
    tune.Steps.resize(21);
    for (std::int32_t number = 1; number <= tune.StepCount; ++number) {
        TuneStep& step = At(tune.Steps, number);
        step.SetOn(true);
        step.BeatIndex = 1;
        step.PitchShift = number <= 10 ? number - 11 : number - 10;
        At(song.Tracks[1].Painted, number) = 1;
    }
    TheStepCache().Clear();
}

/// The parts of the window that play, and the services that they need.
class Bench {
public:
    Bench()
    {
        MakeProgramPictures();
        TheServices() = {&messages, &screen, &files, &machine, nullptr, nullptr, stretch.get(), &sound, &transport};
        // As at the start of the program.
        if (sound.SoundDeviceCount() == 0)
            messages.MessageBox({}, Words::Text("No sound device."), MessageIcon::None);
        NewSong();
        canvas.resize(1000, 600);
        canvas.show();
        SetSoundDriver(true);
        transport.SetWindow(canvas, statusLbl);
        tracks.EnableTuneNotFilledTimer();
    }
    Bench(const Bench&) = delete;
    Bench& operator=(const Bench&) = delete;
    ~Bench() { ReleasePlayer(); }

    void Run()
    {
        std::printf("%-32s %10s %10s %10s %10s\n", "", "best ms", "median ms", "work ms", "asked for");
        Report("cold-20-steps", 150, MakeTwentySteps);
        Report("unchanged", 60, [] {});
        Report("unchanged-after-rest", 60, [this] { LetDeviceRest(); });
        Report("cold-full-song", 1500, [] {
            MakeFullSong();
            TheStepCache().Clear();
        });
        Report("unchanged-full-song", 60, [] {});
        Report("unchanged-full-song-after-rest", 60, [this] { LetDeviceRest(); });
        LetDeviceRest();
        ReportRest();
    }

private:
    void LetDeviceRest()
    {
        transport.PlayStopBtn();
        HandleEventsFor(kUntilRest);
    }

    void Report(const char* name, double asked, const std::function<void()>& prepare)
    {
        std::array<Click, kRounds> clicks;
        for (Click& click : clicks) {
            prepare();
            click = ClickPlayAll(transport, sound);
            HandleEventsFor(std::chrono::milliseconds(500));
        }
        std::sort(clicks.begin(), clicks.end());
        const Click& median = clicks[kRounds / 2];
        std::printf("%-32s %10.1f %10.1f %10.1f %10.0f\n", name, clicks[0].untilFirstFrame, median.untilFirstFrame,
                    median.processorTime, asked);
        std::fflush(stdout);
    }

    static void ReportRest()
    {
        const double before = ProcessorSeconds();
        HandleEventsFor(kRestMeasured);
        const double share = (ProcessorSeconds() - before) / static_cast<double>(kRestMeasured.count());
        std::printf("%-32s %10s %10s %8.2f %% %8.0f %%\n", "at-rest", "", "", 100 * share, 1.0);
    }

    LoudMessages messages;
    QtScreen screen;
    PosixFiles files;
    PosixMachine machine;
    std::unique_ptr<Stretch> stretch = MakeStretch();
    WatchedOutput sound;
    TransportCommands transport{nullptr};
    QWidget window;
    ButtonScheme buttons{window, AllOffTimer::OffAtFirst};
    TrackCanvas canvas{nullptr, buttons, {}};
    TrackCommands tracks{canvas, nullptr};
    QLabel statusLbl;
};

} // namespace
} // namespace sprout

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    sprout::ApplyLook(application);
    sprout::LargePages::UseFromNowOn();
    sprout::Bench().Run();
    return 0;
}
