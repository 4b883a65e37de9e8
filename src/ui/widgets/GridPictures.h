// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QStringList>

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

/// The pictures of a grid, and how they are drawn. The first one has index 1.
class GridPictures {
public:
    void Set(const std::vector<GridEntry>& entries);
    [[nodiscard]] int Count() const { return static_cast<int>(pictures.size()); }
    /// index: 1 to the count.
    [[nodiscard]] const GridEntry& Entry(int index) const
    {
        return pictures[static_cast<std::size_t>(index - 1)].entry;
    }

    /// Draws the pictures in view that touch `exposed`, with their borders; the selected one has none.
    void Paint(QPainter& painter, const PictureGrid& grid, int selected, const QRect& exposed);

private:
    struct Shown {
        GridEntry entry;
        QImage image; ///< created when first drawn
    };

    void PaintOne(QPainter& painter, int index, const QRect& place, bool hasBorder);

    std::vector<Shown> pictures;
};

/// Draws the text of an empty grid: long lines lose their middle, many lines move together.
void PaintEmptyGrid(QPainter& painter, QSize grid, const QStringList& lines);

} // namespace sprout
