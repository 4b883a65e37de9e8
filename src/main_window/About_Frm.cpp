// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/About_Frm.h"

#include <QPainter>

#include <algorithm>

#include "base/Product.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "ui/look/Artwork.h"
#include "ui/look/Look.h"
#include "ui/look/Palette.h"
#include "ui/widgets/LinkButton.h"
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
    auto* link = new LinkButton("WebSiteLbl", Words::AsIs(kWebSite), this);
    SetSpokenName(*link, Words::Text("The makers' pages: %1", kWebSite));
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
