// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>

namespace sprout {

/// A list of songs of which one can be selected. Its arrow keys stay inside it.
class SongList : public QListWidget {
    Q_OBJECT

public:
    explicit SongList(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// Leaves room below, so that no half line stands at the end.
    void updateGeometries() override;

private:
    [[nodiscard]] bool SelectFirst(int key);
};

} // namespace sprout
