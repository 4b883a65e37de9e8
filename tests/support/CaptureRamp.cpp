// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/CaptureRamp.h"

namespace sprout {

namespace {

std::vector<std::int16_t> ReadSamples(const std::filesystem::path& path)
{
    const std::string bytes = ReadBytes(path);
    std::vector<std::int16_t> samples(bytes.size() / sizeof(std::int16_t));
    std::copy_n(bytes.data(), samples.size() * sizeof(std::int16_t), reinterpret_cast<char*>(samples.data()));
    return samples;
}

} // namespace

std::string RampBytes(int frames, int firstLap)
{
    std::vector<std::int16_t> samples;
    samples.reserve(2 * static_cast<std::size_t>(frames));
    for (int n = 0; n < frames; ++n) {
        samples.push_back(static_cast<std::int16_t>(1 + n % kRampLap));
        samples.push_back(static_cast<std::int16_t>(firstLap + n / kRampLap));
    }
    return {reinterpret_cast<const char*>(samples.data()), samples.size() * sizeof(std::int16_t)};
}

std::vector<int> CapturedRamp::Numbers(int firstLap) const
{
    std::vector<int> numbers;
    for (std::size_t i = 0; i < std::min(left.size(), right.size()); ++i) {
        const bool isSilent = left[i] == 0 && right[i] == 0;
        const bool isOfRamp = left[i] >= 1 && left[i] <= kRampLap && right[i] >= firstLap;
        numbers.push_back(isSilent ? -1 : isOfRamp ? (right[i] - firstLap) * kRampLap + left[i] - 1 : -2);
    }
    return numbers;
}

CapturedRamp ReadCaptured(const std::filesystem::path& left, const std::filesystem::path& right)
{
    return {ReadSamples(left), ReadSamples(right)};
}

std::vector<int> Sounded(const std::vector<int>& numbers)
{
    const auto sounds = [](int number) { return number != -1; };
    const auto last = std::find_if(numbers.rbegin(), numbers.rend(), sounds).base();
    return {std::find_if(numbers.begin(), last, sounds), last};
}

std::string GapsOf(const std::vector<int>& numbers)
{
    std::string gaps;
    for (std::size_t i = 1; i < numbers.size(); ++i) {
        const int before = numbers[i - 1];
        const bool isMoreOfGap = numbers[i] < 0 && numbers[i] == before;
        if (numbers[i] != before + 1 && !isMoreOfGap)
            gaps += std::to_string(i) + ": " + std::to_string(before) + ", " + std::to_string(numbers[i]) + "; ";
    }
    return gaps;
}

} // namespace sprout
