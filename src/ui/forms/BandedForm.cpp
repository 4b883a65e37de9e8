// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/forms/BandedForm.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>

#include <algorithm>
#include <iterator>

#include "ui/Windows.h"
#include "ui/look/Look.h"
#include "ui/words/FittingFont.h"
#include "ui/words/QtText.h"

namespace sprout {

namespace {

constexpr int kCloseBoxSide = 22;
constexpr int kCloseBoxFromRight = 8;
constexpr int kBeforeCloseBox = 4;
constexpr int kBeforeHint = 16;
constexpr int kBelowButtons = 12;
constexpr int kButtonsApart = 12;

} // namespace

BandedForm::BandedForm(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint),
      scheme(*this, AllOffTimer::OnAtOnce),
      watcher(this),
      captionLbl(new QLabel(this))
{
    if (!FormCornersNeedMask())
        setAttribute(Qt::WA_TranslucentBackground);
    captionLbl->setObjectName(QStringLiteral("CaptionLbl"));
    captionLbl->setFont(ButtonFont());
    captionLbl->setTextFormat(Qt::PlainText);
    captionLbl->setStyleSheet(QStringLiteral("color: #FFF8E7"));
    captionLbl->setAttribute(Qt::WA_TransparentForMouseEvents);
    closeBox = &scheme.AddButton({"CloseImgBtn", Words::Later("Close"), Words::Later("Close button"), Plate::Title},
                                 [this] { reject(); });
    closeBox->setFocusPolicy(Qt::NoFocus);
    closeBox->resize(kCloseBoxSide, kCloseBoxSide);
    watcher.Watch(*this, {});
}

void BandedForm::SetCaption(const Words& caption)
{
    captionText = QtText(caption);
    setWindowTitle(captionText.trimmed());
    FitCaption();
}

void BandedForm::FitCaption()
{
    captionLbl->setFont(FittingFont(ButtonFont(), captionText, captionLbl->width()));
    captionLbl->setText(captionLbl->fontMetrics().elidedText(captionText, Qt::ElideRight, captionLbl->width()));
    if (!hintLbl)
        return;
    const int left = captionLbl->x() + captionLbl->sizeHint().width() + kBeforeHint;
    hintLbl->setGeometry(left, 0, std::max(captionLbl->geometry().right() + 1 - left, 0), captionLbl->height());
}

void BandedForm::ShowHintsInBand()
{
    hintLbl = new QLabel(this);
    hintLbl->setObjectName(QStringLiteral("BandHintLbl"));
    hintLbl->setFont(HintFont());
    hintLbl->setTextFormat(Qt::PlainText);
    hintLbl->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    hintLbl->setStyleSheet(captionLbl->styleSheet());
    hintLbl->setAttribute(Qt::WA_TransparentForMouseEvents);
    AddHintStrip(*hintLbl);
}

int BandedForm::ShowModal()
{
    Centre();
    exec();
    return Result;
}

void BandedForm::Appear()
{
    Centre();
    setWindowModality(Qt::ApplicationModal);
    show();
}

void BandedForm::Centre()
{
    const QPoint middle = screen()->availableGeometry().center();
    move(middle - QPoint(width() / 2, height() / 2));
}

void BandedForm::Answer(int result)
{
    Result = result;
    done(result);
}

void BandedForm::reject()
{
    Result = 0;
    QDialog::reject();
}

QLabel& BandedForm::AddLabel(const char* name)
{
    auto* label = new QLabel(this);
    label->setObjectName(QString::fromLatin1(name));
    label->setFont(LabelFont());
    label->setTextFormat(Qt::PlainText);
    watcher.Watch(*label, {});
    return *label;
}

ImageButton& BandedForm::AddAnswer(const ButtonRow& row, int result)
{
    return AddWordButton(row, [this, result] { Answer(result); });
}

ImageButton& BandedForm::AddWordButton(const ButtonRow& row, std::function<void()> onClick)
{
    ImageButton& button = scheme.AddButton(row, std::move(onClick));
    wordButtons.push_back(&button);
    return button;
}

void BandedForm::PlaceButtons(int width, int top)
{
    int rowWidth = kButtonsApart * (static_cast<int>(wordButtons.size()) - 1);
    int rowHeight = 0;
    for (const ImageButton* button : wordButtons) {
        rowWidth += button->width();
        rowHeight = std::max(rowHeight, button->height());
    }
    const int formWidth = std::max(width, rowWidth + 2 * kFormCorner);
    resize(formWidth, kBandHeight + top + rowHeight + kBelowButtons);
    int left = (formWidth - rowWidth) / 2;
    for (ImageButton* button : wordButtons) {
        button->move(BodyPoint(left, top));
        left += button->width() + kButtonsApart;
    }
}

void BandedForm::paintEvent(QPaintEvent* /*event*/)
{
    PaintBandedForm(*this);
}

void BandedForm::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    if (FormCornersNeedMask())
        setMask(FormMask(rect()));
    closeBox->move(width() - kCloseBoxSide - kCloseBoxFromRight, 1);
    captionLbl->setGeometry(CaptionLeft(), 0, closeBox->x() - CaptionLeft() - kBeforeCloseBox, kBandHeight - 2);
    FitCaption();
}

void BandedForm::mousePressEvent(QMouseEvent* event)
{
    if (event->position().y() < kBandHeight)
        mover.Press(*this, *event);
}

void BandedForm::mouseMoveEvent(QMouseEvent* event)
{
    mover.Move(*this, *event);
}

void BandedForm::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    mover.Release();
}

void BandedForm::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!wordButtons.empty() && !event->isAutoRepeat())
            wordButtons.front()->click();
        break;
    case Qt::Key_Left:
    case Qt::Key_Up:
        FocusNeighbour(-1);
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        FocusNeighbour(1);
        break;
    case Qt::Key_F1:
        TheWindows().ShowHelp();
        break;
    default:
        QDialog::keyPressEvent(event);
    }
}

void BandedForm::FocusNeighbour(int step)
{
    std::vector<ImageButton*> usable;
    std::copy_if(wordButtons.begin(), wordButtons.end(), std::back_inserter(usable),
                 [](const ImageButton* button) { return button->isVisible() && button->isEnabled(); });
    const auto count = static_cast<int>(usable.size());
    const auto focused = std::find(usable.begin(), usable.end(), focusWidget());
    if (count == 0)
        return;
    const auto at = focused == usable.end() ? (step > 0 ? -1 : 0) : static_cast<int>(focused - usable.begin());
    usable[static_cast<std::size_t>((at + step + count) % count)]->setFocus(Qt::TabFocusReason);
}

} // namespace sprout
