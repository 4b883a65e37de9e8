// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>

namespace sprout::stretch {

/// Four numbers that are computed at once by the operators of the language: one
/// in each of four lanes.
///
/// Each lane gets the result of the same operation on a single float, to the
/// bit. Comparisons give an Int4 with -1 in the lanes where they hold, and 0
/// elsewhere.
using Float4 = float __attribute__((vector_size(16)));
using Int4 = std::int32_t __attribute__((vector_size(16)));

inline constexpr int kLanes = 4;

/// Complex numbers in four lanes, or two consecutive samples of four sounds.
struct Complex4 {
    Float4 re;
    Float4 im;
};

/// Four consecutive numbers, which need no alignment.
[[nodiscard]] inline Float4 LoadFour(const float* from)
{
    Float4 four;
    std::memcpy(&four, from, sizeof four);
    return four;
}

inline void StoreFour(Float4 four, float* to)
{
    std::memcpy(to, &four, sizeof four);
}

/// Takes each lane from `yes` or `no`, as `where` says with -1 or 0.
[[nodiscard]] inline Float4 Choose(Int4 where, Float4 yes, Float4 no)
{
    return where ? yes : no;
}

[[nodiscard]] inline Int4 Choose(Int4 where, Int4 yes, Int4 no)
{
    return where ? yes : no;
}

/// One bit for each lane of a comparison's result, lane 0 in the lowest.
[[nodiscard]] inline unsigned LaneBits(Int4 where)
{
#ifdef __SSE2__
    Float4 lanes;
    std::memcpy(&lanes, &where, sizeof lanes);
    return static_cast<unsigned>(__builtin_ia32_movmskps(lanes));
#else
    unsigned bits = 0;
    for (int lane = 0; lane < kLanes; ++lane)
        bits |= where[lane] != 0 ? 1U << lane : 0U;
    return bits;
#endif
}

/// The square root of each lane.
[[nodiscard]] inline Float4 Root(Float4 four)
{
#ifdef __SSE2__
    return __builtin_ia32_sqrtps(four);
#else
    return {std::sqrt(four[0]), std::sqrt(four[1]), std::sqrt(four[2]), std::sqrt(four[3])};
#endif
}

/// Exchanges rows and columns: lane j of the i-th becomes lane i of the j-th.
template <typename Four>
inline void Transpose(Four& a, Four& b, Four& c, Four& d)
{
    const Four lowAb = __builtin_shufflevector(a, b, 0, 4, 1, 5);
    const Four highAb = __builtin_shufflevector(a, b, 2, 6, 3, 7);
    const Four lowCd = __builtin_shufflevector(c, d, 0, 4, 1, 5);
    const Four highCd = __builtin_shufflevector(c, d, 2, 6, 3, 7);
    a = __builtin_shufflevector(lowAb, lowCd, 0, 1, 4, 5);
    b = __builtin_shufflevector(lowAb, lowCd, 2, 3, 6, 7);
    c = __builtin_shufflevector(highAb, highCd, 0, 1, 4, 5);
    d = __builtin_shufflevector(highAb, highCd, 2, 3, 6, 7);
}

} // namespace sprout::stretch
