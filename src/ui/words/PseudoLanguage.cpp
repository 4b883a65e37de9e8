// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/words/PseudoLanguage.h"

#include "ui/rules/PseudoText.h"
#include "ui/words/QtText.h"

namespace sprout {

QString PseudoLanguage::translate(const char* context, const char* text, const char* /*comment*/, int /*number*/) const
{
    return std::string_view(context) == kWordsContext ? QtText(PseudoText(text)) : QString();
}

} // namespace sprout
