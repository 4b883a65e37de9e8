// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-library/SoundFont.h"

#include <fluidsynth.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "base/Errors.h"
#include "sprout-library/Measure.h"

namespace sprout {

namespace {

constexpr int kChannel = 0;
// The synthesiser works in blocks of 64 frames; rendering only whole blocks lets every note begin at the start of one.
constexpr int kBlockFrames = 64;
constexpr int kBendCentre = 8192;
constexpr double kBendRangeCents = 200;

int BlocksOf(double seconds)
{
    return static_cast<int>(std::ceil(seconds * kRate / kBlockFrames));
}

} // namespace

struct SoundFont::Parts {
    struct Delete {
        void operator()(fluid_settings_t* settings) const { delete_fluid_settings(settings); }
        void operator()(fluid_synth_t* synth) const { delete_fluid_synth(synth); }
    };
    std::unique_ptr<fluid_settings_t, Delete> settings;
    std::unique_ptr<fluid_synth_t, Delete> synth;
    int font = 0;

    void Render(int blocks, std::vector<double>& sound) const
    {
        std::vector<float> left(static_cast<std::size_t>(blocks) * kBlockFrames);
        std::vector<float> right(left.size());
        if (left.empty())
            return;
        fluid_synth_write_float(synth.get(), static_cast<int>(left.size()), left.data(), 0, 1, right.data(), 0, 1);
        for (std::size_t i = 0; i < left.size(); ++i)
            sound.push_back((static_cast<double>(left[i]) + static_cast<double>(right[i])) / 2);
    }
};

SoundFont::SoundFont(const std::filesystem::path& file) : parts(std::make_unique<Parts>())
{
    fluid_set_log_function(FLUID_WARN, nullptr, nullptr);
    parts->settings.reset(new_fluid_settings());
    fluid_settings_t* settings = parts->settings.get();
    fluid_settings_setnum(settings, "synth.sample-rate", kRate);
    fluid_settings_setnum(settings, "synth.gain", 1.0);
    fluid_settings_setint(settings, "synth.reverb.active", 0);
    fluid_settings_setint(settings, "synth.chorus.active", 0);
    fluid_settings_setint(settings, "synth.cpu-cores", 1);
    parts->synth.reset(new_fluid_synth(settings));
    parts->font = parts->synth ? fluid_synth_sfload(parts->synth.get(), file.c_str(), 1) : FLUID_FAILED;
    if (parts->font == FLUID_FAILED)
        throw RunTimeError(Words::Text("The sound font %1 cannot be loaded.", file.native()));
    fluid_synth_set_interp_method(parts->synth.get(), -1, FLUID_INTERP_HIGHEST);
}

SoundFont::~SoundFont() = default;

std::vector<double> SoundFont::Play(const FontNote& note)
{
    fluid_synth_t* synth = parts->synth.get();
    fluid_synth_system_reset(synth);
    const auto font = static_cast<unsigned>(parts->font);
    fluid_synth_set_channel_type(synth, kChannel, note.Bank == 128 ? CHANNEL_TYPE_DRUM : CHANNEL_TYPE_MELODIC);
    if (fluid_synth_program_select(synth, kChannel, static_cast<int>(font), note.Bank, note.Program) != FLUID_OK)
        throw RunTimeError(Words::Text("The sound font has no program %1:%2.", note.Bank, note.Program));
    const double bend = note.Cents / kBendRangeCents * kBendCentre;
    fluid_synth_pitch_bend(synth, kChannel, kBendCentre + static_cast<int>(std::lround(bend)));
    const int held = BlocksOf(std::min(note.HeldSeconds, note.Seconds));
    std::vector<double> sound;
    fluid_synth_noteon(synth, kChannel, note.Key, note.Velocity);
    parts->Render(held, sound);
    fluid_synth_noteoff(synth, kChannel, note.Key);
    parts->Render(BlocksOf(note.Seconds) - held, sound);
    fluid_synth_all_sounds_off(synth, kChannel);
    return sound;
}

} // namespace sprout
