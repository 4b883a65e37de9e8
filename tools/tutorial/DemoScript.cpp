// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/DemoScript.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <numeric>
#include <utility>

#include "base/Errors.h"
#include "base/Numbers.h"
#include "base/Text.h"

namespace sprout {

namespace {

constexpr std::array<std::pair<std::string_view, ScriptVerb>, 9> kVerbs{{{"click", ScriptVerb::Click},
                                                                         {"drag", ScriptVerb::Drag},
                                                                         {"look", ScriptVerb::Look},
                                                                         {"point", ScriptVerb::Point},
                                                                         {"press", ScriptVerb::Press},
                                                                         {"type", ScriptVerb::Type},
                                                                         {"tick", ScriptVerb::Tick},
                                                                         {"sing", ScriptVerb::Sing},
                                                                         {"keep", ScriptVerb::Keep}}};
constexpr std::size_t kWordsOfWindow = 2; ///< behind "keep": the picture's name and the window
constexpr std::size_t kWordsOfPart = 6;   ///< and the part's place and size

[[noreturn]] void Refuse(std::int32_t line, const std::string& reason)
{
    throw RunTimeError(Words::AsIs("Line " + std::to_string(line) + ": " + reason));
}

/// The words of a line; what stands in quotes is one word.
std::vector<std::string> WordsOf(std::string_view line)
{
    std::vector<std::string> words;
    bool isQuoted = false;
    bool isOpen = false;
    for (const char letter : line) {
        if (letter == '"') {
            isQuoted = !isQuoted;
            if (isQuoted)
                words.emplace_back();
            isOpen = isQuoted;
        } else if (letter == ' ' && !isQuoted) {
            isOpen = false;
        } else {
            if (!isOpen)
                words.emplace_back();
            isOpen = true;
            words.back() += letter;
        }
    }
    return words;
}

ScriptVerb VerbOf(const std::string& word, std::int32_t line)
{
    const auto found =
        std::find_if(kVerbs.begin(), kVerbs.end(), [&word](const auto& verb) { return verb.first == word; });
    if (found == kVerbs.end())
        Refuse(line, "\"" + word + "\" is no verb.");
    return found->second;
}

/// Moves what stands behind "to" from the target to the end of the drag.
void SplitDrag(ScriptStep& step)
{
    const auto to = std::find(step.Target.begin(), step.Target.end(), "to");
    if (to == step.Target.end())
        Refuse(step.Line, "a drag goes from one place to another.");
    step.EndOfDrag.assign(to + 1, step.Target.end());
    step.Target.erase(to, step.Target.end());
}

ScriptStep StepOf(std::string_view text, std::int32_t line)
{
    std::vector<std::string> words = WordsOf(text);
    ScriptStep step;
    step.Line = line;
    step.Verb = VerbOf(words.front(), line);
    step.Target.assign(words.begin() + 1, words.end());
    if (step.Verb == ScriptVerb::Drag)
        SplitDrag(step);
    if (step.Target.empty())
        Refuse(line, "something is missing behind the verb.");
    if (step.Verb == ScriptVerb::Look || step.Verb == ScriptVerb::Sing) {
        step.Seconds = NumberPrefix(step.Target.front());
        step.Target.erase(step.Target.begin());
        if (!(step.Seconds > 0))
            Refuse(line, "the seconds are missing.");
    }
    return step;
}

/// A line below a step.
void AddTo(ScriptStep& step, std::string_view text, std::int32_t line)
{
    const std::vector<std::string> words = WordsOf(text);
    if (words.size() == 2 && words.front() == "hear") {
        step.HeardFor = NumberPrefix(words.back());
        return;
    }
    // Until the first word of the second bubble comes, it holds a blank.
    if (step.Verb == ScriptVerb::Drag && step.EndText.empty() && words.size() == 1 && words.front() == "then") {
        step.EndText = " ";
        return;
    }
    std::string& bubble = step.EndText.empty() ? step.Text : step.EndText;
    bubble = std::string(Trim(bubble + " " + std::string(text)));
    if (std::count(bubble.begin(), bubble.end(), ' ') >= kMostWords)
        Refuse(line, "a bubble has at most " + std::to_string(kMostWords) + " words.");
}

void CheckSlides(const DemoScript& script)
{
    for (std::size_t i = 0; i < script.Steps.size(); ++i) {
        const ScriptStep& step = script.Steps[i];
        const bool isDrag = step.Verb == ScriptVerb::Drag;
        if (step.Verb == ScriptVerb::Keep)
            Refuse(step.Line, "a demo keeps slides only.");
        if (MakesSlides(step) == step.Text.empty() || isDrag == Trim(step.EndText).empty())
            Refuse(step.Line, "slides have words, other steps have none.");
        // Two drags in a row could not be told from one.
        if (i > 0 && isDrag && script.Steps[i - 1].Verb == ScriptVerb::Drag)
            Refuse(step.Line, "a drag does not follow another.");
    }
    const std::int32_t count = SlideCount(script);
    if (count < kFewestSlides || count > kMostSlides)
        throw RunTimeError(Words::AsIs("The demo " + script.Name + " has " + std::to_string(count) + " slides."));
}

void CheckPictureStep(const ScriptStep& step)
{
    const std::size_t words = step.Target.size();
    if (step.Verb == ScriptVerb::Look)
        Refuse(step.Line, "here pictures are kept.");
    if (step.Verb == ScriptVerb::Keep && words != kWordsOfWindow && words != kWordsOfPart)
        Refuse(step.Line, "a picture has a name, a window and perhaps the place and the size of a part.");
}

/// True if the line says nothing.
bool IsIdle(std::string_view content)
{
    return content.empty() || content.front() == '#';
}

} // namespace

bool MakesSlides(const ScriptStep& step)
{
    return step.Verb == ScriptVerb::Click || step.Verb == ScriptVerb::Drag || step.Verb == ScriptVerb::Look;
}

std::int32_t SlideCount(const DemoScript& script)
{
    return std::accumulate(script.Steps.begin(), script.Steps.end(), 0, [](std::int32_t count, const ScriptStep& step) {
        return count + (step.Verb == ScriptVerb::Drag ? 2 : MakesSlides(step) ? 1 : 0);
    });
}

DemoScript ReadDemoScript(std::string_view text)
{
    DemoScript script;
    std::int32_t line = 0;
    for (const std::string& whole : Split(text, '\n')) {
        ++line;
        const std::string content(Trim(whole));
        if (IsIdle(content))
            continue;
        const bool isIndented = whole.front() == ' ';
        if (script.Name.empty() && content.rfind("demo ", 0) == 0)
            script.Name = Trim(content.substr(5));
        else if (script.Name.empty() || (isIndented && script.Steps.empty()))
            Refuse(line, "a script begins with the demo's name.");
        else if (isIndented)
            AddTo(script.Steps.back(), content, line);
        else
            script.Steps.push_back(StepOf(content, line));
    }
    CheckSlides(script);
    return script;
}

std::vector<ScriptStep> ReadPictureScript(std::string_view text)
{
    std::vector<ScriptStep> steps;
    std::int32_t line = 0;
    for (const std::string& whole : Split(text, '\n')) {
        ++line;
        if (IsIdle(Trim(whole)))
            continue;
        steps.push_back(StepOf(Trim(whole), line));
        CheckPictureStep(steps.back());
    }
    return steps;
}

} // namespace sprout
