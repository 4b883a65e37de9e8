// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextBrowser>

namespace sprout {

/// Shows pages of the help book, with the program's own pictures in them.
///
/// A page names an artwork as "art:buttons/OpenBtn?48", a tool button with its plate as "tool:OpenBtn?48", a glyph of a
/// word button on a plate of some colour as "word:WordCopy-1F6FA8?48"; the number is the width and height in logical
/// pixels, "64x32" both.
class HelpBook : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpBook(QWidget* parent);

    QVariant loadResource(int type, const QUrl& name) override;

private:
    [[nodiscard]] QPixmap PageArtwork(const QUrl& name) const;
};

} // namespace sprout
