// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/StripControls.h"

#include "base/Words.h"
#include "core/Settings.h"
#include "main_window/TrackPictures.h"
#include "main_window/rules/MainWindowHints.h"
#include "main_window/rules/TitleStrip.h"
#include "ui/forms/Dialogs.h"
#include "ui/look/Look.h"
#include "ui/widgets/Hints.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr LaterWords kLabel1Message = Words::Later("Click on the Play button below this.");
constexpr LaterWords kLabel5Message = Words::Later("Click on the Tune button below this.");

constexpr QRect kLabel5Place{16, 0, 48, 19};
constexpr QRect kLabel1Place{96, 0, 44, 19};

constexpr QSize kPictureButtonSize{34, 34};
constexpr QSize kAddButtonSize{kAddButtonSide, kAddButtonSide};
constexpr int kAddButtonLeft = (kTitleStripWidth - kAddButtonsApart - kAddButtonSize.width()) / 2;
constexpr int kLoneAddButtonLeft = (kTitleStripWidth - kAddButtonSize.width()) / 2;
constexpr int kTopLblGap = 2;
constexpr int kTopLblHeight = 22;

TrackLabel* AddHeading(QWidget& strip, const char* name, const Words& text, const LaterWords& message,
                       const QRect& place)
{
    auto* label = new TrackLabel(
        name, text, [message] { ShowMessage(message); }, &strip);
    label->setGeometry(place);
    SetFittingText(*label, text);
    SetSpokenDescription(*label, message);
    return label;
}

TrackTuneBtn* AddTuneBtn(QWidget& strip, const std::function<void()>& onClick)
{
    auto* button = new TrackTuneBtn(&strip);
    QObject::connect(button, &QAbstractButton::clicked, &strip, [&onClick] {
        ShowHint({});
        Ask(onClick);
    });
    return button;
}

ImageButton* AddStripButton(QWidget& strip, ButtonScheme& buttons, const ButtonRow& row, QSize size,
                            const std::function<void()>& onClick)
{
    ImageButton& button = buttons.AddButton(row, [&onClick] {
        ShowHint({});
        Ask(onClick);
    });
    button.setParent(&strip);
    button.resize(size);
    return &button;
}

/// A row of the scheme with the hint from the table.
ButtonRow WithHint(const char* name, const LaterWords& spokenName, Plate plate = Plate::Tool)
{
    return {name, spokenName, MainWindowHint(name), plate};
}

QLabel* AddTopLbl(QWidget& strip)
{
    auto* label = new QLabel(&strip);
    label->setObjectName(QStringLiteral("TrackTopLbl"));
    label->setFont(HintFont());
    label->setAlignment(Qt::AlignCenter);
    label->resize(kAddButtonsApart + kAddButtonSize.width(), kTopLblHeight);
    SetFittingText(*label, Words::Text("Add a track"));
    return label;
}

} // namespace

StripControls::StripControls(QWidget& strip, ButtonScheme& buttons, const TrackCanvasCalls& calls)
    : headings{AddHeading(strip, "Label5", Words::Text("Tune"), kLabel5Message, kLabel5Place),
               AddHeading(strip, "Label1", Words::Text("Play"), kLabel1Message, kLabel1Place)},
      tuneBtn(AddTuneBtn(strip, calls.TrackTuneBtn)),
      playBtn(AddStripButton(strip, buttons, WithHint("TrackPlayBtn", Words::Later("Play track")), kPlayPicSize,
                             calls.TrackPlayBtn)),
      audioBtn(AddStripButton(strip, buttons, WithHint("TrackAudioBtn", Words::Later("Recording")), kPictureButtonSize,
                              calls.TrackAudioBtn)),
      addRecBtn(AddStripButton(strip, buttons, WithHint("TrackAddRecBtn", Words::Later("Add audio track")),
                               kAddButtonSize, calls.TrackAddRecBtn)),
      addBtn(AddStripButton(strip, buttons, WithHint("TrackAddBtn", Words::Later("Add music track")), kAddButtonSize,
                            calls.TrackAddBtn)),
      deleteBtn(AddStripButton(strip, buttons, WithHint("TrackDeleteBtn", Words::Later("Delete track"), Plate::Title),
                               kDeleteButtonPicSize, calls.TrackDeleteBtn)),
      topLbl(AddTopLbl(strip))
{
    // The keyboard reaches them through the strip.
    for (ImageButton* button : {audioBtn, deleteBtn, playBtn}) {
        button->setFocusPolicy(Qt::NoFocus);
        button->hide();
    }
    QWidget::setTabOrder(addBtn, addRecBtn);
    addBtn->show();
    // A school may not want voices of children on its machines. A sound can still be dropped on the window.
    addRecBtn->setVisible(!IsSetToOne("HideRecord"));
}

void StripControls::PlaceAddButtons(const TrackView& view, std::int32_t trackCount) const
{
    const int top = AddButtonsTop(view, trackCount);
    addBtn->move(addRecBtn->isHidden() ? kLoneAddButtonLeft : kAddButtonLeft, top);
    addRecBtn->move(kAddButtonLeft + kAddButtonsApart, top);
    topLbl->move(kAddButtonLeft, top + kAddButtonSize.height() + kTopLblGap);
}

} // namespace sprout
