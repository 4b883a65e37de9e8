// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/KnownTexts.h"

#include <gtest/gtest.h>

#include <array>

#include "support/TestFolder.h"

namespace sprout {

namespace {

struct Entity {
    std::string_view written;
    std::string_view meant;
};

constexpr std::array kEntities{Entity{"&lt;", "<"},   Entity{"&gt;", ">"},  Entity{"&quot;", "\""},
                               Entity{"&apos;", "'"}, Entity{"&amp;", "&"}, Entity{"<byte value=\"xd\"/>", "\r"}};

std::string Meant(std::string_view written)
{
    std::string meant;
    while (!written.empty()) {
        std::string_view next = written.substr(0, 1);
        std::size_t length = 1;
        for (const Entity& entity : kEntities)
            if (written.starts_with(entity.written)) {
                next = entity.meant;
                length = entity.written.size();
            }
        meant += next;
        written.remove_prefix(length);
    }
    return meant;
}

/// What stands in the next element `name` of `rest`, which loses everything up to its end; nothing if there is none.
std::string_view TakeElement(std::string_view& rest, std::string_view name)
{
    const std::string open = std::string("<").append(name) + ">";
    const std::string close = std::string("</").append(name) + ">";
    const std::size_t start = rest.find(open);
    const std::size_t end = rest.find(close, start);
    if (start == std::string_view::npos || end == std::string_view::npos) {
        rest = {};
        return {};
    }
    const std::string_view content = rest.substr(start + open.size(), end - start - open.size());
    rest.remove_prefix(end + close.size());
    return content;
}

} // namespace

KnownTexts::KnownTexts(std::string_view translationSource)
{
    while (!translationSource.empty()) {
        std::string_view messages = TakeElement(translationSource, "context");
        const std::string context = Meant(TakeElement(messages, "name"));
        while (messages.find("<source>") != std::string_view::npos)
            texts.emplace(context, Meant(TakeElement(messages, "source")));
    }
}

const KnownTexts& KnownTexts::OfProgram()
{
    static const KnownTexts texts(ReadBytes(SPROUT_TRANSLATION_SOURCE));
    return texts;
}

bool KnownTexts::Has(std::string_view context, std::string_view text) const
{
    return texts.contains(std::pair(std::string(context), std::string(text)));
}

void KnownTexts::Expect(std::string_view context, std::string_view text) const
{
    EXPECT_TRUE(Has(context, text)) << context << " lacks \"" << text << "\": run tools/scripts/update-texts.";
}

std::string ShownEnglish(const Words& words)
{
    return words.Filled([](const char* pattern) {
        KnownTexts::OfProgram().Expect("Words", pattern);
        return std::string(pattern);
    });
}

} // namespace sprout
