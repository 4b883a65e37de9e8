// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <condition_variable>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

#include "service/Stretch.h"
#include "sound/AheadThreads.h"
#include "sound/SongTest.h"
#include "sound/StepSound.h"

namespace sprout {

/// A gate for threads other than the one that made it; open at first.
class Gate {
public:
    void Close()
    {
        const std::lock_guard lock(mutex);
        isOpen = false;
    }
    void Open()
    {
        const std::lock_guard lock(mutex);
        isOpen = true;
        changed.notify_all();
    }
    void Pass()
    {
        if (std::this_thread::get_id() == owner)
            return;
        std::unique_lock lock(mutex);
        ++came;
        changed.notify_all();
        changed.wait(lock, [this] { return isOpen; });
    }
    /// Waits until `count` threads came here, those included that have passed.
    void WaitFor(int count)
    {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this, count] { return came >= count; });
    }
    [[nodiscard]] int Came()
    {
        const std::lock_guard lock(mutex);
        return came;
    }

private:
    const std::thread::id owner = std::this_thread::get_id();
    std::mutex mutex;
    std::condition_variable changed;
    bool isOpen = true;
    int came = 0;
};

/// Counts the calls of threads that have something to give, and waits for them.
class Bell {
public:
    void Ring()
    {
        const std::lock_guard lock(mutex);
        ++rings;
        changed.notify_all();
    }
    void WaitForNext()
    {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return rings > heard; });
        heard = rings;
    }

private:
    std::mutex mutex;
    std::condition_variable changed;
    int rings = 0;
    int heard = 0;
};

/// The fake stretch behind a gate.
class GatedStretch : public Stretch {
public:
    explicit GatedStretch(const Stretch& realOne) : real(realOne) {}

    [[nodiscard]] std::vector<std::int16_t> Change(std::span<const std::int16_t> samples, std::int32_t rate,
                                                   float pitchFactor, float durationFactor) const override
    {
        gate.Pass();
        return real.Change(samples, rate, pitchFactor, durationFactor);
    }

    mutable Gate gate;

private:
    const Stretch& real;
};

/// Songs and threads that render ahead.
class AheadTest : public SongTest {
protected:
    AheadTest()
    {
        TheServices().stretch = &stretch;
        services.machine.memory.AvailableBytes = std::uint64_t{4} << 30;
    }

    [[nodiscard]] AheadThreads Threads()
    {
        return {[this] { begun.Pass(); }, [this] { bell.Ring(); }};
    }

    /// A mono beat of which a step needs one call of the stretch service.
    static std::int32_t AddToneBeat(std::int16_t level, std::int32_t frames = kBeatFrames)
    {
        return AddBeat(MonoWave(SampleList(static_cast<std::size_t>(frames), level)));
    }

    /// A track with one step of each pitch, painted from `first` to `last`.
    static std::int32_t AddPitchTrack(std::int32_t beat, const std::vector<std::int32_t>& pitches, std::int32_t first,
                                      std::int32_t last)
    {
        Tune tune = MakeTune(static_cast<std::int32_t>(pitches.size()));
        for (std::size_t i = 0; i < pitches.size(); ++i)
            SetStep(tune, static_cast<std::int32_t>(i) + 1, beat).PitchShift = pitches[i];
        const std::int32_t track = AddTuneTrack(tune);
        Paint(track, first, last);
        return track;
    }

    static StepKey KeyOf(std::int32_t beat, std::int32_t pitch)
    {
        TuneStep step;
        step.PitchShift = pitch;
        return KeyOfStep(step, At(Shared().Song.SongBeats, beat).Sound);
    }

    GatedStretch stretch{services.stretch};
    Gate begun; ///< at the beginning of each thread
    Bell bell;
};

} // namespace sprout
