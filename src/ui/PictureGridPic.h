// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFrame>
#include <QImage>
#include <QScrollBar>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <string>
#include <vector>

#include "base/Picture.h"
#include "ui/rules/PictureGrid.h"

namespace sprout {

/// Border colours of the pictures that came with the program and of the user's own.
inline constexpr QColor kOriginalBorder{0x00, 0x00, 0xFF};
inline constexpr QColor kUserBorder{0xC0, 0x00, 0x00};

/// One picture of a grid.
struct GridEntry {
    sprout::Picture Picture; ///< of any size; shown at 32 x 32
    std::string Name;        ///< for the tool tip and the screen reader
    bool Original = false;
};

/// The frame around the chosen picture (`BlinkSelectImg`), alternating between two artworks.
class SelectionFrame : public QWidget {
    Q_OBJECT

public:
    explicit SelectionFrame(QWidget* parent);

    /// Shows artwork 0 or 1 of `BlinkSelectBakImg`.
    void ShowPhase(int phase);
    [[nodiscard]] int Phase() const { return phase; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int phase = 0;
};

/// A grid of pictures to choose from, with the scroll bar `VScroll1` on its right. It draws its entries and reports
/// what the user does; the window makes the choice.
class PictureGridPic : public QWidget {
    Q_OBJECT

public:
    /// parent: the window, which also holds the scroll bar and the frame around both.
    PictureGridPic(int columns, QWidget* parent);

    /// Lays out the grid, its scroll bar and the frame around both, with the top left of the frame at `frameAt`. rows:
    /// visible rows. Returns the occupied area.
    QRect PlaceAt(QPoint frameAt, int rows);

    /// Size of the frame around a grid with its scroll bar.
    [[nodiscard]] static QSize FrameSize(int columns, int rows);

    /// Replaces the pictures; the first one has index 1. The top row and the choice stay as they are.
    void SetEntries(const std::vector<GridEntry>& newEntries);
    [[nodiscard]] int Count() const { return static_cast<int>(entries.size()); }
    /// index: 1 to the count.
    [[nodiscard]] const GridEntry& Entry(int index) const { return entries[static_cast<std::size_t>(index - 1)].entry; }

    /// Sets the chosen picture; an index outside 1 to the count means none.
    void SetSelected(int index);
    [[nodiscard]] int Selected() const { return selected; }

    /// The first row shown, from 1.
    void SetTopRow(int row);
    [[nodiscard]] int TopRow() const { return topRow; }

    /// Scrolls as little as needed to show the whole picture. index: 1 to the count; others do nothing.
    void BringIntoView(int index);

    /// Sets the text of an empty grid.
    void SetLines(const QStringList& lines);

    /// Puts the blinking selection frame around the chosen picture or hides it, and sets the scroll bar's range. Call
    /// it after changing any of the above.
    void RefreshShowAllPic();

    /// The grid's numbers, as input for the rules.
    [[nodiscard]] PictureGrid Grid() const;

    [[nodiscard]] SelectionFrame& BlinkSelectImg() { return *blinkSelectImg; }
    [[nodiscard]] QScrollBar& VScroll1() { return *vScroll1; }
    [[nodiscard]] QTimer& BlinkSelectedTimer() { return *blinkSelectedTimer; }

public Q_SLOTS:
    /// A tick of `BlinkSelectedTimer`.
    void Blink();

Q_SIGNALS:
    /// A mouse button was pressed on a picture, or on none (index 0). Arrow keys and Space count as the left button,
    /// the menu key as the right one. at: on the screen, where a menu should open.
    void Pressed(int index, Qt::MouseButton button, QPoint at);
    /// A picture was double-clicked with the left button.
    void DoubleClicked();
    /// The Delete key was pressed while a picture is chosen.
    void DeleteWanted();
    /// The pointer moved over a picture, or over none (index 0).
    void Hovered(int index);
    /// The user scrolled.
    void Scrolled(int topRow);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Shown {
        GridEntry entry;
        QImage image; ///< created when first drawn
    };

    void MakeFrameAround();
    void PaintEntry(QPainter& painter, int index);
    void PaintLines(QPainter& painter) const;
    void ShowFocus(bool focused);
    void PlaceFrame();
    void SetScrollRange();
    void ScrollTo(int row);
    void StepTo(GridStep step);
    void PressSelected(Qt::MouseButton button);
    [[nodiscard]] bool HasChoice() const;
    [[nodiscard]] QPoint MiddleOf(int index) const;

    int columns;
    std::vector<Shown> entries;
    int selected = 0;
    int topRow = 1;
    int blinkPhase = 0;
    bool scrollGuard = false; ///< the program is setting `VScroll1`
    QStringList lines;
    QFrame* frame;
    QScrollBar* vScroll1;
    SelectionFrame* blinkSelectImg;
    QTimer* blinkSelectedTimer;
};

} // namespace sprout
