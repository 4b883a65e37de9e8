// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QColor>

#include <vector>

#include "base/Words.h"
#include "ui/look/Artwork.h"
#include "ui/widgets/ButtonStates.h"

namespace sprout {

class ButtonScheme;

/// The background of a button's picture.
enum class Plate { Tool, Word, Title };

/// A row of a window's button table.
struct ButtonRow {
    const char* name = "";   ///< name of the control and of its picture
    LaterWords spokenName{}; ///< what a screen reader says; on a word plate the word itself
    LaterWords hint{};       ///< for the status line
    Plate plate = Plate::Tool;
    QColor plateColour{}; ///< of a word plate
    const char* glyph =
        nullptr; ///< a word plate's picture before the word; elsewhere replaces the picture named after the button
};

/// A button that is a picture: a plate in one of four faces with a glyph or a word on it.
class ImageButton : public QAbstractButton {
    Q_OBJECT

public:
    ImageButton(const ButtonRow& row, ButtonScheme& scheme, int number, QWidget* parent);

    [[nodiscard]] ButtonFace Face() const { return face; }
    void SetFace(ButtonFace newFace);
    /// The button's number in its scheme's table.
    [[nodiscard]] int Number() const { return number; }
    void SetHint(const Words& hint);

    /// The artworks needed to paint the button in its current state.
    [[nodiscard]] std::vector<WantedArtwork> Artworks() const;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void PaintPlate(QPainter& painter) const;
    void PaintGlyph(QPainter& painter) const;
    void PaintWord(QPainter& painter) const;
    void PaintFocus(QPainter& painter) const;
    [[nodiscard]] WantedArtwork PlateArtwork() const;
    [[nodiscard]] WantedArtwork GlyphArtwork() const;
    [[nodiscard]] int Lift() const;
    [[nodiscard]] int GlyphRoom() const;

    ButtonScheme& scheme;
    int number;
    Plate plate;
    QColor plateColour;
    QString glyph;
    ButtonFace face = ButtonFace::Normal;
};

} // namespace sprout
