// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <benchmark/benchmark.h>

namespace sprout {

/// The audio editor's edits of 240 s of stereo: making all of it louder, later and for the first time, and cutting one
/// second off its front.
void Louder(benchmark::State& state);
void LouderAtFirst(benchmark::State& state);
void CutFront(benchmark::State& state);

/// Their peers: a copy of all bytes into memory that was used before, and copies of all or of the rest into new memory.
void CopyBytes(benchmark::State& state);
void CopyBytesAnew(benchmark::State& state);
void CopyTail(benchmark::State& state);

} // namespace sprout
