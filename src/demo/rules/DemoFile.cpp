// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/rules/DemoFile.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/Numbers.h"
#include "base/Text.h"

namespace sprout {

namespace {

constexpr std::string_view kDemoSection = "Section";
constexpr std::string_view kMissing = "0";
constexpr std::size_t kSlideFields = 7;
constexpr std::size_t kRectangleFields = 5; ///< the picture and the rectangle behind it
/// So many missing keys in a row end a list, whatever number it promises.
constexpr std::int32_t kMostMissingKeys = 100;

constexpr std::int32_t kMostNumber = std::numeric_limits<std::int32_t>::max();

std::string NumberedKey(std::string_view name, std::int32_t number)
{
    return std::string(name) + std::to_string(number);
}

/// A damaged number is held to what 32 bits can hold.
std::int32_t WholeNumber(std::string_view text)
{
    const double number = NumberPrefix(text);
    if (std::isnan(number))
        return 0;
    constexpr double least = std::numeric_limits<std::int32_t>::min();
    return RoundHalfEven(std::clamp(number, least, static_cast<double>(kMostNumber)));
}

/// The last number from 1 to `promised` that has a key; a list may have gaps, but a promise costs nothing.
std::int32_t LastKey(const IniFile& file, std::string_view name, std::int32_t promised)
{
    std::int32_t last = 0;
    for (std::int32_t number = 1; number <= promised && number <= last + kMostMissingKeys; ++number)
        if (file.Has(kDemoSection, NumberedKey(name, number)))
            last = number;
    return last;
}

std::int32_t PromisedNumber(const IniFile& file, std::string_view key)
{
    return WholeNumber(file.Value(kDemoSection, key, kMissing));
}

/// Empty if a field is missing or a side is negative: no point lies in it.
DemoRectangle RectangleOf(const std::vector<std::string>& fields, bool hasAll)
{
    const std::int64_t left = WholeNumber(fields[1]);
    const std::int64_t top = WholeNumber(fields[2]);
    const std::int64_t width = WholeNumber(fields[3]);
    const std::int64_t height = WholeNumber(fields[4]);
    if (!hasAll || width < 0 || height < 0)
        return {};
    return {left, top, left + width, top + height};
}

DemoAction ActionOf(std::string_view word)
{
    if (word == "click")
        return DemoAction::Click;
    return word == "drag" ? DemoAction::Drag : DemoAction::Wait;
}

DemoSlide SlideOf(std::string_view line)
{
    std::vector<std::string> fields = Split(line, ',');
    const bool hasRectangle = fields.size() >= kRectangleFields;
    fields.resize(std::max(fields.size(), kSlideFields));
    DemoSlide slide;
    slide.Picture = Trim(fields[0]);
    slide.Rectangle = RectangleOf(fields, hasRectangle);
    slide.Action = ActionOf(Trim(fields[5]));
    slide.Seconds = NumberPrefix(fields[6]);
    return slide;
}

} // namespace

std::vector<DemoName> ReadDemoNames(const IniFile& demos)
{
    std::vector<DemoName> names;
    const std::int32_t last = LastKey(demos, "Section", PromisedNumber(demos, "SectionCount"));
    for (std::int32_t number = 1; number <= last; ++number) {
        std::string name = demos.Value(kDemoSection, NumberedKey("Section", number), {});
        if (!Trim(name).empty())
            names.push_back({number, std::move(name)});
    }
    return names;
}

std::optional<std::int32_t> FindDemo(std::span<const DemoName> names, std::string_view name)
{
    const std::string wanted = LowerCase(name);
    const auto found = std::find_if(names.begin(), names.end(),
                                    [&wanted](const DemoName& demo) { return LowerCase(demo.Name) == wanted; });
    return found == names.end() ? std::nullopt : std::optional(found->Number);
}

std::vector<DemoSlide> ReadDemoSlides(const IniFile& demos, const IniFile& texts, std::int32_t number)
{
    const std::string image = NumberedKey("Image", number);
    const std::int32_t last = LastKey(demos, image, PromisedNumber(demos, NumberedKey("ImageCount", number)));
    std::vector<DemoSlide> slides;
    for (std::int32_t slide = 1; slide <= last; ++slide) {
        const std::string key = NumberedKey(image, slide);
        slides.push_back(SlideOf(demos.Value(kDemoSection, key, kMissing)));
        slides.back().Text = texts.Value(kDemoSection, key, {});
    }
    return slides;
}

std::int32_t DemoInterval(double seconds)
{
    const double milliseconds = seconds * 1000;
    // Written so that NaN gives 0.
    if (!(milliseconds > 0))
        return 0;
    return RoundHalfEven(std::min(milliseconds, static_cast<double>(kMostNumber)));
}

} // namespace sprout
