// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace sprout {

/// What a step of a script does. In a demo `Click`, `Drag` and `Look` make slides; in the script of the help's pictures
/// `Keep` makes them. The others only prepare the next one.
enum class ScriptVerb { Click, Drag, Look, Point, Press, Type, Tick, Sing, Keep };

/// A step: a verb, what it is done to, and the words of the slide's bubble.
struct ScriptStep {
    ScriptVerb Verb = ScriptVerb::Look;
    std::vector<std::string> Target; ///< a control of the window in front, a place in it, or what to type
    std::vector<std::string> EndOfDrag;
    double Seconds = 0;    ///< of a slide that only shows something
    double HeardFor = 0;   ///< of the sound that the steps before have started; 0 for none
    std::string Text;      ///< of the bubble
    std::string EndText;   ///< of the bubble at the end of a drag
    std::int32_t Line = 0; ///< in the file, from 1
    friend bool operator==(const ScriptStep&, const ScriptStep&) = default;
};

/// A demo: its name and the steps that make it.
struct DemoScript {
    std::string Name;
    std::vector<ScriptStep> Steps;
    friend bool operator==(const DemoScript&, const DemoScript&) = default;
};

/// Limits for the demos: children read slowly, and stop early.
inline constexpr std::int32_t kFewestSlides = 6;
inline constexpr std::int32_t kMostSlides = 15;
inline constexpr std::int32_t kMostWords = 12;

/// True if the step makes slides.
[[nodiscard]] bool MakesSlides(const ScriptStep& step);

/// The slides that a script makes: a drag makes two, one for its beginning and one for its end.
[[nodiscard]] std::int32_t SlideCount(const DemoScript& script);

/// Reads a script. Throws `RunTimeError`, naming the line, if it is not understood or breaks one of the limits.
///
/// The first line is "demo NAME". A step begins with its verb; indented lines below it hold the bubble's words and,
/// before them, "hear SECONDS"; the words of a drag's second slide follow a line "then". Names with blanks stand in
/// quotes. Lines that begin with "#" say nothing.
[[nodiscard]] DemoScript ReadDemoScript(std::string_view text);

/// Reads the script of the help's pictures: steps without words. "keep NAME WINDOW" takes a picture of a window, "keep
/// NAME CONTROL LEFT TOP WIDTH HEIGHT" of a part of a control. Throws `RunTimeError` like `ReadDemoScript`.
[[nodiscard]] std::vector<ScriptStep> ReadPictureScript(std::string_view text);

} // namespace sprout
