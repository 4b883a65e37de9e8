// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <benchmark/benchmark.h>

#include <filesystem>

namespace sprout {

/// Export the mix of the full song to a WAV file and to a WMA file, in the folder of `SPROUT_BENCH_SONG`.
void WavExport(benchmark::State& state);
void WmaExport(benchmark::State& state);

/// Writes the mix that those two export, as input for their peers.
int WriteMix(const std::filesystem::path& file);

/// Converts a WAV file of 44,100 Hz, 16 bits, stereo to a WMA file as an export does.
int EncodeWavFile(const std::filesystem::path& from, const std::filesystem::path& to);

/// Prints the peak bytes that an export needs above the mix; for a WMA file also those above the libraries.
int PrintWavMemory(const std::filesystem::path& file);
int PrintWmaMemory(const std::filesystem::path& file);

} // namespace sprout
