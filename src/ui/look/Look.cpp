// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/Look.h"

#include <QFontDatabase>

#include "ui/look/Palette.h"

namespace sprout {

namespace {

QFont OfSize(int pixels, QFont::Weight weight)
{
    QFont font(QStringLiteral("Andika"));
    font.setPixelSize(pixels);
    font.setWeight(weight);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QString StyleSheet()
{
    return QStringLiteral(R"(
QLineEdit, QComboBox, QListWidget {
    background: white; color: #4A2F22; border: 2px solid #6B655C; border-radius: 8px; padding: 1px 6px;
    selection-background-color: #1F6FA8; selection-color: white; }
QLineEdit:focus, QComboBox:focus, QListWidget:focus { border-color: #1F6FA8; }
QComboBox::drop-down { subcontrol-origin: padding; subcontrol-position: center right; width: 26px; border: none; }
QComboBox::down-arrow { image: url(:/art/pictures/DropArrow.svg); width: 14px; height: 14px; }
QComboBox QAbstractItemView { background: #FFF8E7; color: #4A2F22; border: 2px solid #4A2F22; outline: none; }
QListWidget { outline: none; padding: 3px 6px; }
QListWidget::item { padding: 2px 4px; border: none; border-radius: 6px; }
QListWidget::item:selected { background: #1F6FA8; color: white; }
QToolTip { background: #FFF8E7; color: #4A2F22; border: 1px solid #4A2F22; padding: 2px 6px; }
QMenu { background: #FFF8E7; color: #4A2F22; border: 2px solid #4A2F22; padding: 4px; }
QMenu::item { padding: 6px 24px 6px 16px; border-radius: 6px; }
QMenu::item:selected { background: #1F6B34; color: #FFF8E7; }
QMenu::item:disabled { color: #6B655C; }
QMenu::separator { height: 2px; background: #F1E3C4; margin: 4px 8px; }
QScrollBar:vertical { background: #F1E3C4; width: 18px; margin: 0; border-radius: 9px; }
QScrollBar:horizontal { background: #F1E3C4; height: 18px; margin: 0; border-radius: 9px; }
QScrollBar::handle { background: #3C9D4B; border: 2px solid #4A2F22; border-radius: 8px; }
QScrollBar::handle:vertical { min-height: 32px; }
QScrollBar::handle:horizontal { min-width: 32px; }
QScrollBar::handle:pressed { background: #1F6B34; }
QScrollBar::handle:disabled { background: #F1E3C4; border-color: #F1E3C4; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
)");
}

} // namespace

QFont HintFont()
{
    return OfSize(13, QFont::Normal);
}

QFont LabelFont()
{
    return OfSize(15, QFont::Normal);
}

QFont ButtonFont()
{
    return OfSize(15, QFont::Bold);
}

QFont TitleFont()
{
    return OfSize(20, QFont::Bold);
}

void ApplyLook(QApplication& application)
{
    QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/Andika-Regular.ttf"));
    QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/Andika-Bold.ttf"));
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(ProgramPalette());
    QApplication::setFont(LabelFont());
    QApplication::setLayoutDirection(Qt::LeftToRight); // like time on the tracks, in every system language
    application.setStyleSheet(StyleSheet());
}

} // namespace sprout
