// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextBrowser>

namespace sprout {

/// Shows pages of the help book, including the program's own pictures.
///
/// A page names an artwork as "art:buttons/OpenBtn?48", a tool button with its plate as "tool:OpenBtn?48", a word
/// button's glyph on a coloured plate as "word:WordCopy-1F6FA8?48". The number is both width and height in logical
/// pixels; "64x32" gives them separately. "window:tunes" is the picture of a window that was installed with the
/// program, in the folder `HelpImages`; it is blank if it is not there.
class HelpBook : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpBook(QWidget* parent);

    QVariant loadResource(int type, const QUrl& name) override;

    /// Marks a searched word and scrolls to it. Another page has no mark.
    void MarkWord(int position, int length);
    void RemoveMark() { setExtraSelections({}); }

private:
    [[nodiscard]] QPixmap PageArtwork(const QUrl& name) const;
    [[nodiscard]] QPixmap WindowPicture(const QString& name) const;
    void SpeakPictures();
};

} // namespace sprout
