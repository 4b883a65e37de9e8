// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTranslator>

namespace sprout {

/// Translates the program's texts into `PseudoText`, to see which of them a translation would not reach or not fit.
class PseudoLanguage : public QTranslator {
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* comment, int number) const override;
};

} // namespace sprout
