// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/Fft.h"

#include <kiss_fftr.h>

#include <cassert>
#include <map>
#include <new>
#include <type_traits>

namespace sprout {

struct Fft::Plans {
    struct Free {
        void operator()(kiss_fftr_cfg plan) const { kiss_fftr_free(plan); }
    };
    using Plan = std::unique_ptr<std::remove_pointer_t<kiss_fftr_cfg>, Free>;

    [[nodiscard]] static Plan Make(std::int64_t size, bool inverse)
    {
        Plan plan(kiss_fftr_alloc(static_cast<int>(size), inverse ? 1 : 0, nullptr, nullptr));
        if (!plan)
            throw std::bad_alloc();
        return plan;
    }

    Plan forward;
    Plan inverse;
};

// std::complex<float> is laid out as the library's pair of floats.
static_assert(sizeof(FftBin) == sizeof(kiss_fft_cpx));

Fft::Fft(std::int64_t size) : blockSize(size), plans(new Plans{Plans::Make(size, false), Plans::Make(size, true)}) {}

Fft::~Fft() = default;

void Fft::Forward(std::span<const float> block, std::span<FftBin> spectrum)
{
    assert(std::ssize(block) == Size() && std::ssize(spectrum) == Bins());
    kiss_fftr(plans->forward.get(), block.data(), reinterpret_cast<kiss_fft_cpx*>(spectrum.data()));
}

void Fft::Inverse(std::span<const FftBin> spectrum, std::span<float> block)
{
    assert(std::ssize(block) == Size() && std::ssize(spectrum) == Bins());
    kiss_fftri(plans->inverse.get(), reinterpret_cast<const kiss_fft_cpx*>(spectrum.data()), block.data());
}

Fft& FftOfSize(std::int64_t size)
{
    thread_local std::map<std::int64_t, Fft> transforms;
    return transforms.try_emplace(size, size).first->second;
}

} // namespace sprout
