// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulseSources.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sprout {
namespace {

using Volumes = std::vector<std::uint32_t>;

PulseSource Microphone(const std::string& name, const std::string& description = "Words")
{
    return {name, description, 0, false, false, {65536, 65536}};
}

PulseSource Monitor(const std::string& name)
{
    PulseSource monitor = Microphone(name);
    monitor.IsMonitor = true;
    return monitor;
}

std::vector<std::string> Names(const std::vector<PulseSource>& sources)
{
    std::vector<std::string> names;
    for (const PulseSource& source : sources)
        names.push_back(source.Name);
    return names;
}

TEST(SourceToRecord, IsTheWantedOneThenTheDefaultThenTheFirst)
{
    const PulseSources sources{{Monitor("m"), Microphone("a"), Microphone("b"), Microphone("c")}, "b", false};
    EXPECT_EQ(SourceToRecord(sources, "c"), "c");
    EXPECT_EQ(SourceToRecord(sources, "gone"), "b");
    EXPECT_EQ(SourceToRecord(sources, ""), "b");
    EXPECT_EQ(SourceToRecord({sources.Sources, "gone", false}, ""), "a");
}

TEST(SourceToRecord, IsNeverAMonitor)
{
    const PulseSources sources{{Monitor("m"), Microphone("a")}, "m", false};
    EXPECT_EQ(SourceToRecord(sources, ""), "a");
    EXPECT_EQ(SourceToRecord(sources, "m"), "a");
    EXPECT_EQ(SourceToRecord({{Monitor("m")}, "m", false}, "m"), "");
    EXPECT_EQ(SourceToRecord({}, ""), "");
}

TEST(ListedSources, LeaveMonitorsOut)
{
    const PulseSources sources{{Monitor("m"), Microphone("a"), Monitor("n"), Microphone("b")}, "", false};
    EXPECT_EQ(Names(ListedSources(sources, "m")), (std::vector<std::string>{"a", "b"}));
}

TEST(ListedSources, AreFiftyAtMostAndTheWantedOneIsAmongThem)
{
    PulseSources sources;
    for (int i = 0; i < 60; ++i)
        sources.Sources.push_back(Microphone(std::to_string(i)));
    std::vector<PulseSource> listed = ListedSources(sources, "55");
    EXPECT_EQ(listed.size(), 50U);
    EXPECT_EQ(listed[48].Name, "48");
    EXPECT_EQ(listed[49].Name, "55");
    EXPECT_EQ(ListedSources(sources, "").back().Name, "49");
    EXPECT_EQ(ListedSources(sources, "3").back().Name, "49");
}

TEST(ListedSources, HaveWholeNamesIn3200Bytes)
{
    PulseSources sources;
    for (int i = 0; i < 5; ++i)
        sources.Sources.push_back(Microphone(std::to_string(i), std::string(799, 'x')));
    EXPECT_EQ(Names(ListedSources(sources, "0")), (std::vector<std::string>{"0", "1", "2", "3"}));
    EXPECT_EQ(Names(ListedSources(sources, "4")), (std::vector<std::string>{"0", "1", "2", "4"}));
}

TEST(ShownSource, HasItsServersNameWhereItHasNoOther)
{
    EXPECT_EQ(ShownSource(Microphone("a", "Headset")).Name, "Headset");
    EXPECT_EQ(ShownSource(Microphone("a", "  ")).Name, "a");
}

TEST(ShownSource, TellsTheLoudestChannelAndZeroWhereItIsMuted)
{
    PulseSource source = Microphone("a");
    EXPECT_EQ(ShownSource(source).Volume, 65535);
    source.Volumes = {16384, 32768};
    EXPECT_EQ(ShownSource(source).Volume, 32768);
    source.Volumes = {98304};
    EXPECT_EQ(ShownSource(source).Volume, 65535);
    source.Volumes = {};
    EXPECT_EQ(ShownSource(source).Volume, 0);
    source = Microphone("a");
    source.IsMuted = true;
    EXPECT_EQ(ShownSource(source).Volume, 0);
}

TEST(VolumesAt, KeepTheBalance)
{
    PulseSource source = Microphone("a");
    source.Volumes = {65536, 32768};
    EXPECT_EQ(VolumesAt(source, 65535), (Volumes{65536, 32768}));
    EXPECT_EQ(VolumesAt(source, 0), (Volumes{0, 0}));
    source.Volumes = {98304, 49152};
    EXPECT_EQ(VolumesAt(source, 65535), (Volumes{65536, 32768}));
    source.Volumes = {0, 0};
    EXPECT_EQ(VolumesAt(source, 32768), (Volumes{32769, 32769}));
    EXPECT_EQ(VolumesAt(source, -5), (Volumes{0, 0}));
    EXPECT_EQ(VolumesAt(source, 99999), (Volumes{65536, 65536}));
}

} // namespace
} // namespace sprout
