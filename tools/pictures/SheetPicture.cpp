// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/SheetPicture.h"

#include <QApplication>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>

#include "pictures/CutTexts.h"

namespace sprout {

namespace {

bool areTextsWatched = false;

/// True for the program's own texts in the pseudo-language, whose letters have marks.
bool IsTranslated(const QString& text)
{
    constexpr QChar kLastOfAscii(0x7F);
    return std::any_of(text.begin(), text.end(),
                       [](QChar letter) { return letter > kLastOfAscii && letter.isLetter(); });
}

void TellCutTexts(QWidget& widget, const QString& name)
{
    for (const QString& text : CutTexts(widget))
        if (IsTranslated(text))
            std::printf("%s: %s\n", qPrintable(name), qUtf8Printable(text));
}

} // namespace

void WatchTexts()
{
    areTextsWatched = true;
}

bool AreTextsWatched()
{
    return areTextsWatched;
}

QPixmap PictureOf(QWidget& widget, const QString& name)
{
    if (areTextsWatched)
        TellCutTexts(widget, name);
    return widget.grab();
}

bool SavePicture(QWidget& widget, const QString& path)
{
    if (PictureOf(widget, QFileInfo(path).completeBaseName()).save(path))
        return true;
    std::fprintf(stderr, "%s cannot be written.\n", qPrintable(path));
    return false;
}

void SaveSheet(QWidget& widget, const QString& folder, const QString& name)
{
    QApplication::processEvents();
    SavePicture(widget, QStringLiteral("%1/%2.png").arg(folder, name));
}

void ShowAndSaveSheet(QWidget& widget, const QString& folder, const QString& name)
{
    widget.show();
    SaveSheet(widget, folder, name);
}

} // namespace sprout
