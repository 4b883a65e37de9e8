// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/forms/WorkFrm.h"

#include <QKeyEvent>

#include "base/Product.h"
#include "core/Shared.h"
#include "ui/forms/Dialogs.h"
#include "ui/look/Artwork.h"
#include "ui/look/Palette.h"
#include "ui/words/QtText.h"

namespace sprout {

namespace {

constexpr int kWorkFormWidth = 340;
constexpr int kWorkMargin = 24;
constexpr int kSproutTop = 12;
constexpr int kWorkSproutSide = 64;
constexpr int kWorkLabelTop = 82;
constexpr int kWorkLabelHeight = 26;
constexpr int kWorkBarTop = 114;
constexpr int kWorkBarHeight = 18;
constexpr int kStopTop = 148;
constexpr int kWholeBar = 1000;

constexpr const char* kWorkBarStyle =
    "QProgressBar { background: #F1E3C4; border: 2px solid #4A2F22; border-radius: 9px; }"
    "QProgressBar::chunk { background: #3C9D4B; border-radius: 6px; }";

} // namespace

WorkFrm::WorkFrm(QWidget* parent, const Words& what)
    : BandedForm(parent), WorkLbl(&AddLabel("WorkLbl")), WorkBar(new QProgressBar(this))
{
    setObjectName(QStringLiteral("WorkFrm"));
    SetCaption(CaptionOf({}));
    QLabel& sprout = AddLabel("IconImg");
    sprout.setPixmap(
        Artwork(QStringLiteral("pictures/Sprout"), QSize(kWorkSproutSide, kWorkSproutSide), devicePixelRatioF()));
    sprout.setGeometry(
        {BodyPoint((kWorkFormWidth - kWorkSproutSide) / 2, kSproutTop), QSize(kWorkSproutSide, kWorkSproutSide)});
    WorkLbl->setAlignment(Qt::AlignCenter);
    WorkLbl->setGeometry({BodyPoint(0, kWorkLabelTop), QSize(kWorkFormWidth, kWorkLabelHeight)});
    WorkBar->setObjectName(QStringLiteral("WorkBar"));
    WorkBar->setAccessibleName(QtText(Words::Text("Progress")));
    WorkBar->setTextVisible(false);
    WorkBar->setRange(0, kWholeBar);
    WorkBar->setStyleSheet(QString::fromLatin1(kWorkBarStyle));
    WorkBar->setGeometry(
        {BodyPoint(kWorkMargin, kWorkBarTop), QSize(kWorkFormWidth - 2 * kWorkMargin, kWorkBarHeight)});
    StopBtn = &AddWordButton(
        {"StopBtn", Words::Later("Stop"), Words::Later("Stop button, nothing is saved then"), Plate::Word, kCoral},
        [this] { AskForEnd(); });
    PlaceButtons(kWorkFormWidth, kStopTop);
    setFocus(); // a key meant for the previous window must not stop anything
    ShowStage(what);
}

void WorkFrm::ShowStage(const Words& what)
{
    WorkLbl->setText(QtText(what));
    setAccessibleName(WorkLbl->text());
    WorkBar->setValue(0);
}

void WorkFrm::ShowShare(std::size_t done, std::size_t total)
{
    if (total > 0)
        WorkBar->setValue(static_cast<int>(done * kWholeBar / total));
}

void WorkFrm::reject()
{
    AskForEnd();
}

void WorkFrm::keyPressEvent(QKeyEvent* event)
{
    // Enter was pressed to start the work.
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        BandedForm::keyPressEvent(event);
}

void WorkFrm::AskForEnd()
{
    stopWanted = true;
}

} // namespace sprout
