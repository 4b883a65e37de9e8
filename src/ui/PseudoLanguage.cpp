// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/PseudoLanguage.h"

#include "ui/QtText.h"
#include "ui/rules/PseudoText.h"

namespace sprout {

QString PseudoLanguage::translate(const char* context, const char* text, const char* /*comment*/, int /*number*/) const
{
    return std::string_view(context) == kWordsContext ? QtText(PseudoText(text)) : QString();
}

} // namespace sprout
