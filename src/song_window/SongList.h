// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>

namespace sprout {

/// A list of songs with single selection. Its arrow keys stay inside it.
class SongList : public QListWidget {
    Q_OBJECT

public:
    explicit SongList(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// Leaves room at the bottom to avoid half a line at the end.
    void updateGeometries() override;

private:
    [[nodiscard]] bool SelectFirst(int key);
};

} // namespace sprout
