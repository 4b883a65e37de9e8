// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>
#include <string>

namespace sprout {

/// A hash of a picture file's pixels and its size: "HASH WIDTHxHEIGHT". Two files with the same pixels have the same.
/// Nothing if it cannot be read.
[[nodiscard]] std::optional<std::string> PixelsOf(const QString& path);

} // namespace sprout
