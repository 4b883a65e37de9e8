// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMenu>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace sprout {

/// A popup menu of names that come from a file.
class NamesMenu : public QMenu {
    Q_OBJECT

public:
    /// entries: what its entries are called; each adds its number, from 1.
    NamesMenu(const char* name, const char* entries, QWidget* parent);

    /// Opens with these names at a point of the screen and waits. Returns the place of the chosen name, from 0; nothing
    /// if the menu was left.
    [[nodiscard]] std::optional<std::size_t> Choose(const std::vector<std::string>& names, QPoint at);

private:
    QString entryName;
};

} // namespace sprout
