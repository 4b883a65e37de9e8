// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/FftBatch.h"

#include <cassert>
#include <cmath>
#include <map>
#include <numbers>

namespace sprout::stretch {
namespace {

inline Complex4 operator+(Complex4 a, Complex4 b)
{
    return {a.re + b.re, a.im + b.im};
}

inline Complex4 operator-(Complex4 a, Complex4 b)
{
    return {a.re - b.re, a.im - b.im};
}

inline Complex4 Conjugate(Complex4 a)
{
    return {a.re, -a.im};
}

/// The sum and the difference of two numbers.
struct Pair {
    Complex4 sum;
    Complex4 difference;
};

// The last bit of a transform depends on the order in which these add. It is the one that all sounds of the library
// were made with, so it stays.

inline Complex4 Times(Complex4 a, Complex4 factor)
{
    return {a.re * factor.re - a.im * factor.im, a.re * factor.im + a.im * factor.re};
}

/// a and b x factor.
inline Pair AddTurned(Complex4 a, Complex4 b, Complex4 factor)
{
    const Float4 re = b.re * factor.re;
    const Float4 im = b.im * factor.im;
    const Float4 turnedIm = b.re * factor.im + b.im * factor.re;
    return {{(a.re + re) - im, a.im + turnedIm}, {(a.re + im) - re, a.im - turnedIm}};
}

/// The same, subtracting before it adds.
inline Pair AddTurnedLast(Complex4 a, Complex4 b, Complex4 factor)
{
    const Float4 re = b.re * factor.re;
    const Float4 im = b.im * factor.im;
    const Float4 turnedIm = b.re * factor.im + b.im * factor.re;
    return {{(a.re - im) + re, a.im + turnedIm}, {(a.re - re) + im, a.im - turnedIm}};
}

/// Writes a transform of four numbers, of which the even and the odd ones are already added and subtracted, to places
/// that are `length` apart. Without the last of them, the second result must be meant for it.
template <UsedPart Used>
inline void WriteFour(Pair even, Pair odd, Complex4* out, Index length, Index second)
{
    out[0] = even.sum + odd.sum;
    if constexpr (Used == UsedPart::Whole)
        out[second * length] = {even.difference.re + odd.difference.im, even.difference.im - odd.difference.re};
    out[2 * length] = even.sum - odd.sum;
    out[(4 - second) * length] = {even.difference.re - odd.difference.im, even.difference.im + odd.difference.re};
}

/// The sum and the difference of a number and one that may be known to be zero.
template <UsedPart Used>
inline Pair AddLast(Complex4 a, const Complex4* b)
{
    if constexpr (Used == UsedPart::Whole)
        return {a + *b, a - *b};
    else
        return {a, a};
}

} // namespace

FftBatch::FftBatch(Index size) : half(size / 2), forward(MakeTables(half, -1)), inverse(MakeTables(half, 1))
{
    assert(size >= 64 && (size & (size - 1)) == 0);
}

FftBatch::Tables FftBatch::MakeTables(Index half, double direction)
{
    const auto factor = [direction](double turn) {
        const double phase = direction * 2 * std::numbers::pi * turn;
        return Complex4{Float4{} + static_cast<float>(std::cos(phase)), Float4{} + static_cast<float>(std::sin(phase))};
    };
    const auto twiddles = [factor](double turn) { return Twiddles{factor(turn), factor(2 * turn), factor(3 * turn)}; };
    Tables tables;
    for (Index count = half; count > 8; count /= 4) {
        std::vector<Twiddles>& level = tables.levels.emplace_back();
        for (Index i = 0; i < count / 4; ++i)
            level.push_back(twiddles(static_cast<double>(i) / static_cast<double>(count)));
    }
    tables.eighths = twiddles(1.0 / 8);
    for (Index bin = 1; bin <= half / 2; ++bin)
        tables.real.push_back(factor((static_cast<double>(bin) / static_cast<double>(half) + 0.5) / 2));
    tables.second = direction < 0 ? 1 : 3;
    return tables;
}

template <UsedPart Used>
void FftBatch::TransformFour(const Complex4* in, Index step, Complex4* out, Index second)
{
    const Complex4 a = in[0];
    const Complex4 c = in[2 * step];
    WriteFour<UsedPart::Whole>({a + c, a - c}, AddLast<Used>(in[step], in + 3 * step), out, 1, second);
}

template <UsedPart Used>
void FftBatch::TransformEight(const Tables& tables, const Complex4* in, Index step, Complex4* out)
{
    const Pair a{in[0] + in[4 * step], in[0] - in[4 * step]};
    const Pair b{in[step] + in[5 * step], in[step] - in[5 * step]};
    const Pair c = AddLast<Used>(in[2 * step], in + 6 * step);
    const Pair d = AddLast<Used>(in[3 * step], in + 7 * step);
    const auto& [factorB, factorC, factorD] = tables.eighths;
    constexpr UsedPart all = UsedPart::Whole;
    WriteFour<all>({a.sum + c.sum, a.sum - c.sum}, {b.sum + d.sum, b.sum - d.sum}, out, 2, tables.second);
    WriteFour<all>(AddTurned(a.difference, c.difference, factorC),
                   AddTurnedLast(Times(b.difference, factorB), d.difference, factorD), out + 1, 2, tables.second);
}

/// Makes one spectrum of four, each as long as `level`, that lie one after the other.
template <UsedPart Used>
void FftBatch::Combine(const std::vector<Twiddles>& level, Complex4* parts, Index second)
{
    const auto length = static_cast<Index>(level.size());
    const Complex4 a = parts[0]; // the first have factors of 1
    const Complex4 b = parts[length];
    const Complex4 c = parts[2 * length];
    const Complex4 d = parts[3 * length];
    WriteFour<Used>({a + c, a - c}, {b + d, b - d}, parts, length, second);
    for (Index i = 1; i < length; ++i) {
        Complex4* const here = parts + i;
        const auto& [factorB, factorC, factorD] = level[static_cast<std::size_t>(i)];
        WriteFour<Used>(AddTurned(here[0], here[2 * length], factorC),
                        AddTurnedLast(Times(here[length], factorB), here[3 * length], factorD), here, length, second);
    }
}

/// Transforms four parts of the numbers at each `step`-th place of `in`. The parts of one quarter are whole before the
/// next begins, so they stay in the first-level cache.
template <UsedPart Used>
void FftBatch::TransformParts(const Tables& tables, std::size_t depth, const Complex4* in, Index step, Complex4* out)
{
    const auto length = static_cast<Index>(tables.levels[depth].size());
    for (Index part = 0; part < 4; ++part) {
        Complex4* const to = out + part * length;
        const Complex4* const from = in + part * step;
        if (length > 8) {
            TransformParts<Used>(tables, depth + 1, from, 4 * step, to);
            Combine<UsedPart::Whole>(tables.levels[depth + 1], to, tables.second);
        } else if (length == 8) {
            TransformEight<Used>(tables, from, 4 * step, to);
        } else {
            TransformFour<Used>(from, 4 * step, to, tables.second);
        }
    }
}

template <UsedPart In, UsedPart Out>
void FftBatch::Transform(const Tables& tables, const Complex4* in, Complex4* out)
{
    TransformParts<In>(tables, 0, in, 1, out);
    Combine<Out>(tables.levels.front(), out, tables.second);
}

void FftBatch::Forward(std::span<const Complex4> blocks, std::span<Complex4> spectra, UsedPart used) const
{
    using enum UsedPart;
    assert(std::ssize(blocks) == half && std::ssize(spectra) == Bins());
    if (used == Whole)
        Transform<Whole, Whole>(forward, blocks.data(), spectra.data());
    else
        Transform<ThreeQuarters, Whole>(forward, blocks.data(), spectra.data());
    const Complex4 first = spectra.front();
    spectra.front() = {first.re + first.im, Float4{}};
    spectra.back() = {first.re - first.im, Float4{}};
    Complex4* up = spectra.data();
    Complex4* down = spectra.data() + half;
    for (const Complex4& factor : forward.real) {
        ++up;
        --down;
        const Complex4 mirrored = Conjugate(*down);
        const auto [sum, difference] = AddTurned(*up + mirrored, *up - mirrored, factor);
        *up = {0.5F * sum.re, 0.5F * sum.im};
        *down = {0.5F * difference.re, -0.5F * difference.im};
    }
}

void FftBatch::Inverse(std::span<Complex4> spectra, std::span<Complex4> blocks, UsedPart used) const
{
    using enum UsedPart;
    assert(std::ssize(blocks) == half && std::ssize(spectra) == Bins());
    const Float4 first = spectra.front().re;
    const Float4 last = spectra.back().re;
    spectra.front() = {first + last, first - last};
    Complex4* up = spectra.data();
    Complex4* down = spectra.data() + half;
    for (const Complex4& factor : inverse.real) {
        ++up;
        --down;
        const Complex4 mirrored = Conjugate(*down);
        const auto [sum, difference] = AddTurned(*up + mirrored, *up - mirrored, factor);
        *up = sum;
        *down = Conjugate(difference);
    }
    if (used == Whole)
        Transform<Whole, Whole>(inverse, spectra.data(), blocks.data());
    else
        Transform<Whole, ThreeQuarters>(inverse, spectra.data(), blocks.data());
}

const FftBatch& FftBatchOfSize(Index size)
{
    thread_local std::map<Index, FftBatch> transforms;
    return transforms.try_emplace(size, size).first->second;
}

} // namespace sprout::stretch
