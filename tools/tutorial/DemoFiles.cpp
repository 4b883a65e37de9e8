// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/DemoFiles.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace sprout {

namespace {

constexpr std::string_view kSection = "Section";
constexpr const char* kDemoFile = "TqDemoImages.ini";
constexpr const char* kTextFile = "TqDemoTexts.ini";

std::string LineOf(const MadeSlide& slide)
{
    // The rectangle's right and lower edge belong to it.
    std::array<char, 160> fields{};
    std::snprintf(fields.data(), fields.size(), ",%d,%d,%d,%d,%s,%g", slide.Rectangle.left, slide.Rectangle.top,
                  slide.Rectangle.width - 1, slide.Rectangle.height - 1, slide.Action.c_str(), slide.Seconds);
    return slide.Picture + fields.data();
}

} // namespace

void DemoFiles::Add(std::int32_t number, std::string_view name, std::span<const MadeSlide> slides)
{
    const std::string demo = std::to_string(number);
    count = std::max(count, number);
    demos.SetValue(kSection, "SectionCount", std::to_string(count));
    demos.SetValue(kSection, "Section" + demo, name);
    demos.SetValue(kSection, "ImageCount" + demo, std::to_string(slides.size()));
    for (std::size_t i = 0; i < slides.size(); ++i) {
        const std::string key = "Image" + demo + std::to_string(i + 1);
        demos.SetValue(kSection, key, LineOf(slides[i]));
        texts.SetValue(kSection, key, slides[i].Text);
    }
}

void DemoFiles::Write(const std::filesystem::path& folder) const
{
    demos.Write(folder / kDemoFile);
    texts.Write(folder / kTextFile);
}

void DemoFiles::Read(const std::filesystem::path& folder, std::int32_t number)
{
    const IniFile otherDemos = IniFile::Read(folder / kDemoFile);
    const IniFile otherTexts = IniFile::Read(folder / kTextFile);
    const std::string demo = std::to_string(number);
    count = std::max(count, number);
    demos.SetValue(kSection, "SectionCount", std::to_string(count));
    const auto take = [](const IniFile& from, IniFile& to, const std::string& key) {
        to.SetValue(kSection, key, from.Value(kSection, key, {}));
    };
    take(otherDemos, demos, "Section" + demo);
    take(otherDemos, demos, "ImageCount" + demo);
    const int slides = std::atoi(otherDemos.Value(kSection, "ImageCount" + demo, "0").c_str());
    for (int i = 1; i <= slides; ++i) {
        take(otherDemos, demos, "Image" + demo + std::to_string(i));
        take(otherTexts, texts, "Image" + demo + std::to_string(i));
    }
}

} // namespace sprout
