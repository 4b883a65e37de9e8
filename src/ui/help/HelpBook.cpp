// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/help/HelpBook.h"

#include <QFile>
#include <QPainter>
#include <QTextBlock>

#include <algorithm>
#include <filesystem>

#include "core/Shared.h"
#include "ui/look/Artwork.h"
#include "ui/look/Look.h"
#include "ui/words/QtText.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr qreal kGlyphShare = 0.86;
constexpr qreal kGlyphShareOfWord = 0.6;
constexpr int kPageMargin = 12;
constexpr int kBesidePicture = 52;     ///< frame, margins and a scroll bar
constexpr int kAboveAndBelow = 190;    ///< a heading and a few lines, which are read together with the picture
constexpr int kPixelRatioOfWindow = 2; ///< pictures of windows are installed so much larger than they are shown
constexpr QColor kMarked{0xFF, 0xE0, 0x66};

/// The one or two numbers after a picture's name.
QSize SizeOf(const QUrl& name)
{
    const QStringList sides = name.query().split(QLatin1Char('x'));
    return {sides.front().toInt(), sides.back().toInt()};
}

QString StyleOfPages()
{
    return QStringLiteral("body { color: #4A2F22; }"
                          "h1 { color: #1F6B34; font-size: 22px; font-weight: bold; margin: 4px 0px 8px 0px; }"
                          "h2 { color: #1F6B34; font-size: 17px; font-weight: bold; margin: 14px 0px 4px 0px; }"
                          "p { margin: 4px 0px 6px 0px; }"
                          "td { padding: 3px 8px 3px 0px; }"
                          "a { color: #1F6FA8; }");
}

QPixmap OnToolPlate(const QString& button, QSize size, qreal pixelRatio)
{
    QPixmap picture = Artwork(QStringLiteral("plates/ToolNormal"), size, pixelRatio);
    const QSize room = (QSizeF(size) * kGlyphShare).toSize();
    QPainter painter(&picture);
    painter.drawPixmap((size.width() - room.width()) / 2, (size.height() - room.height()) / 2,
                       Artwork(QStringLiteral("buttons/") + button, room, pixelRatio));
    return picture;
}

/// name: of the glyph and its plate's colour, e.g. "WordCopy-1F6FA8".
QPixmap OnWordPlate(const QString& name, QSize size, qreal pixelRatio)
{
    const QStringList parts = name.split(QLatin1Char('-'));
    QPixmap picture =
        Artwork(QStringLiteral("plates/WordNormal"), size, pixelRatio, QColor(QLatin1Char('#') + parts.back()));
    const QSize room = (QSizeF(size) * kGlyphShareOfWord).toSize();
    QPainter painter(&picture);
    painter.drawPixmap((size.width() - room.width()) / 2, (size.height() - room.height()) / 2,
                       Artwork(QStringLiteral("buttons/") + parts.front(), room, pixelRatio));
    return picture;
}

QImage InstalledPicture(const QString& name)
{
    const std::filesystem::path file = Shared().InstallRoot / "HelpImages" / (name.toStdString() + ".png");
    return QImage(QFile::decodeName(file.c_str()));
}

} // namespace

HelpBook::HelpBook(QWidget* parent) : QTextBrowser(parent)
{
    setFont(LabelFont());
    setOpenLinks(true);
    setOpenExternalLinks(false);
    document()->setDocumentMargin(kPageMargin);
    document()->setDefaultStyleSheet(StyleOfPages());
    setStyleSheet(QStringLiteral(
        "QTextBrowser { background: white; border: 2px solid #6B655C; border-radius: 8px; padding: 3px; }"
        "QTextBrowser:focus { border-color: #1F6FA8; }"));
    connect(this, &QTextBrowser::sourceChanged, this, &HelpBook::RemoveMark);
    connect(this, &QTextBrowser::sourceChanged, this, &HelpBook::SpeakPictures);
}

void HelpBook::MarkWord(int position, int length)
{
    QTextCursor cursor(document());
    cursor.setPosition(position);
    setTextCursor(cursor);
    ensureCursorVisible();
    QTextEdit::ExtraSelection mark;
    cursor.setPosition(position + length, QTextCursor::KeepAnchor);
    mark.cursor = cursor;
    mark.format.setBackground(kMarked);
    setExtraSelections({mark});
}

QVariant HelpBook::loadResource(int type, const QUrl& name)
{
    const QPixmap picture = PageArtwork(name);
    return picture.isNull() ? QTextBrowser::loadResource(type, name) : QVariant(picture);
}

QPixmap HelpBook::PageArtwork(const QUrl& name) const
{
    if (name.scheme() == QStringLiteral("art"))
        return Artwork(name.path(), SizeOf(name), devicePixelRatioF());
    if (name.scheme() == QStringLiteral("tool"))
        return OnToolPlate(name.path(), SizeOf(name), devicePixelRatioF());
    if (name.scheme() == QStringLiteral("word"))
        return OnWordPlate(name.path(), SizeOf(name), devicePixelRatioF());
    if (name.scheme() == QStringLiteral("window"))
        return WindowPicture(name.path());
    return {};
}

/// It is made smaller in a small book, and for a screen with large pixels.
QPixmap HelpBook::WindowPicture(const QString& name) const
{
    const QImage installed = InstalledPicture(name);
    if (installed.isNull()) {
        QPixmap blank(1, 1);
        blank.fill(Qt::transparent);
        return blank;
    }
    const QSize room(std::max(width() - kBesidePicture, 1), std::max(height() - kAboveAndBelow, 1));
    QSizeF shown = QSizeF(installed.size()) / kPixelRatioOfWindow;
    if (shown.width() > room.width() || shown.height() > room.height())
        shown.scale(room, Qt::KeepAspectRatio);
    const qreal pixelRatio = devicePixelRatioF();
    QPixmap picture = QPixmap::fromImage(
        installed.scaled((shown * pixelRatio).toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    picture.setDevicePixelRatio(pixelRatio);
    return picture;
}

/// Screen readers say what the page's pictures show, because they find no words in them.
void HelpBook::SpeakPictures()
{
    QStringList told;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part)
            told += part.fragment().charFormat().property(QTextFormat::ImageAltText).toString().simplified();
    told.removeAll(QString());
    SetSpokenDescription(*this, told.isEmpty() ? Words()
                                               : Words::Text("Picture: %1", told.join(QLatin1Char(' ')).toStdString()));
}

} // namespace sprout
