// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QWidget>

#include <vector>

#include "base/Words.h"
#include "ui/rules/PictureGrid.h"
#include "ui/widgets/GridFrame.h"
#include "ui/widgets/GridPictures.h"
#include "ui/widgets/GridScrollBar.h"
#include "ui/widgets/SelectionFrame.h"

namespace sprout {

/// A grid of pictures to choose from, with the scroll bar `VScroll1` on its right. It shows its entries and reports
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
    [[nodiscard]] static QSize FrameSize(int columns, int rows) { return GridPlacesAt({}, columns, rows).frame.size(); }

    /// Replaces the pictures; the first one has index 1. The top row and the choice stay as they are.
    void SetEntries(const std::vector<GridEntry>& newEntries);
    [[nodiscard]] int Count() const { return entries.Count(); }
    /// index: 1 to the count.
    [[nodiscard]] const GridEntry& Entry(int index) const { return entries.Entry(index); }

    /// Sets the chosen picture; an index outside 1 to the count means none.
    void SetSelected(int index);
    [[nodiscard]] int Selected() const { return selected; }

    /// The first row shown, from 1.
    void SetTopRow(int row);
    [[nodiscard]] int TopRow() const { return topRow; }

    /// Scrolls as little as needed to show the whole picture. index: 1 to the count; others do nothing.
    void BringIntoView(int index);

    /// Sets the text of an empty grid.
    void SetLines(const std::vector<Words>& lines);

    /// Puts the blinking selection frame around the chosen picture or hides it, and sets the scroll bar's range. Call
    /// it after changing any of the above.
    void RefreshShowAllPic();

    /// The grid's numbers, as input for the rules.
    [[nodiscard]] PictureGrid Grid() const;

    [[nodiscard]] SelectionFrame& BlinkSelectImg() { return *blinkSelectImg; }
    [[nodiscard]] GridScrollBar& VScroll1() { return *vScroll1; }
    [[nodiscard]] QTimer& BlinkSelectedTimer() { return blinkSelectImg->BlinkSelectedTimer(); }

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
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void PlaceFrame();
    void ScrollTo(int row);
    void StepTo(GridStep step);
    void PressSelected(Qt::MouseButton button);
    [[nodiscard]] bool HasChoice() const;
    [[nodiscard]] int IndexAt(QPoint point) const;
    [[nodiscard]] QPoint MiddleOf(int index) const;

    int columns;
    GridPictures entries;
    int selected = 0;
    int topRow = 1;
    QStringList lines;
    GridFrame* frame;
    GridScrollBar* vScroll1;
    SelectionFrame* blinkSelectImg;
};

} // namespace sprout
