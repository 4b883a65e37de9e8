// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QString>
#include <QWidget>

namespace sprout {

/// From now on each picture's texts that do not fit are printed, a line each: "NAME: TEXT".
void WatchTexts();
[[nodiscard]] bool AreTextsWatched();

/// A picture of a widget. name: of the sheet, for what is printed.
[[nodiscard]] QPixmap PictureOf(QWidget& widget, const QString& name);

/// Saves a picture of a widget as a file. Returns true if that worked; reports a failure on the error stream.
bool SavePicture(QWidget& widget, const QString& path);

/// Saves a picture of a widget as FOLDER/NAME.png, as it looks once all that waits has happened.
void SaveSheet(QWidget& widget, const QString& folder, const QString& name);

/// Shows the widget first.
void ShowAndSaveSheet(QWidget& widget, const QString& folder, const QString& name);

} // namespace sprout
