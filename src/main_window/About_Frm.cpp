// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/About_Frm.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

#include "base/Product.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "ui/look/Artwork.h"
#include "ui/look/Look.h"
#include "ui/look/Palette.h"
#include "ui/words/QtText.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr int kAboutSproutSide = 132;
constexpr int kAboutSproutLeft = 18;
constexpr int kLinesLeft = kAboutSproutLeft + kAboutSproutSide + 18;
constexpr int kLinesTop = 18;
constexpr int kLinesApart = 6;
constexpr int kRightMargin = 24;
constexpr int kLinkInset = 6; ///< border and padding of the link

constexpr std::string_view kLinkStyle =
    "QPushButton { color: #1F6FA8; background: transparent; border: 2px solid transparent; border-radius: 6px;"
    " padding: 2px 4px; text-align: left; text-decoration: underline; }"
    "QPushButton:hover { color: #1F6B34; } QPushButton:focus { border-color: #1F6FA8; }";

/// Holding a key down opens the page only once.
class LinkButton : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (!event->isAutoRepeat())
            QPushButton::keyPressEvent(event);
    }
};

} // namespace

About_Frm::About_Frm(QWidget* parent) : BandedForm(parent)
{
    setObjectName(QStringLiteral("About_Frm"));
    SetCaption(Words::Text(" About"));
    AddLine("ProductLbl", TitleFont(), Words::AsIs(kProductName));
    AddLine("PurposeLbl", LabelFont(), Words::Text("Paint a song and hear it grow."));
    AddLine("VersionLbl", LabelFont(), Words::Text("Version %1, %2", SPROUT_VERSION, kAppVersionDate));
    MakeLink();
    AddLine("LicenceLbl", HintFont(),
            Words::Text("Free software: you may use it, share it and change it.\n"
                        "GNU General Public License, version 3 or later (GPL-3.0-or-later)."));
    AddAnswer({"OkBtn", Words::Later("OK"), LaterWords(), Plate::Word, kDeepLeaf}, 1).setFocus();
    PlaceLines();
}

QLabel& About_Frm::AddLine(const char* name, const QFont& font, const Words& text)
{
    QLabel& line = AddLabel(name);
    line.setFont(font);
    SetText(line, text);
    lines.push_back(&line);
    return line;
}

void About_Frm::MakeLink()
{
    auto* link = new LinkButton(QtText(kWebSite), this);
    link->setObjectName(QStringLiteral("WebSiteLbl"));
    SetSpokenName(*link, Words::Text("The makers' pages: %1", kWebSite));
    link->setStyleSheet(QtText(kLinkStyle));
    link->setCursor(Qt::PointingHandCursor);
    Watcher().Watch(*link, Words::Text("Click to see the makers' pages"));
    connect(link, &QPushButton::clicked, this, [] { OpenWithShell(kWebSite); });
    lines.push_back(link);
}

void About_Frm::PlaceLines()
{
    int top = kLinesTop;
    int widest = 0;
    for (QWidget* line : lines) {
        line->adjustSize();
        line->move(BodyPoint(qobject_cast<QPushButton*>(line) ? kLinesLeft - kLinkInset : kLinesLeft, top));
        top += line->height() + kLinesApart;
        widest = std::max(widest, line->width());
    }
    PlaceButtons(kLinesLeft + widest + kRightMargin, std::max(top, kLinesTop + kAboutSproutSide) + 10);
}

void About_Frm::paintEvent(QPaintEvent* event)
{
    BandedForm::paintEvent(event);
    QPainter painter(this);
    painter.drawPixmap(BodyPoint(kAboutSproutLeft, kLinesTop),
                       Artwork(QStringLiteral("pictures/AboutSprout"), QSize(kAboutSproutSide, kAboutSproutSide),
                               devicePixelRatioF()));
}

} // namespace sprout
