// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/StripControls.h"

#include "base/Words.h"
#include "main_window/TrackPictures.h"
#include "main_window/rules/TitleStrip.h"
#include "ui/Dialogs.h"
#include "ui/Hints.h"
#include "ui/Look.h"
#include "ui/QtText.h"

namespace sprout {

namespace {

constexpr LaterWords kLabel1Message = Words::Later("Click on the Play button below this.");
constexpr LaterWords kLabel5Message = Words::Later("Click on the Tune button below this.");

constexpr QRect kLabel5Place{16, 0, 48, 19};
constexpr QRect kLabel1Place{96, 0, 44, 19};

constexpr QSize kPictureButtonSize{34, 34};
constexpr QSize kAddButtonSize{kAddButtonSide, kAddButtonSide};
constexpr int kAddButtonLeft = (kTitleStripWidth - kAddButtonsApart - kAddButtonSize.width()) / 2;
constexpr int kTopLblGap = 2;
constexpr int kTopLblHeight = 22;

TrackLabel* AddHeading(QWidget& strip, const char* name, const QString& text, const LaterWords& message,
                       const QRect& place)
{
    auto* label = new TrackLabel(
        name, text, [message] { ShowMessage(message); }, &strip);
    label->setGeometry(place);
    label->setAccessibleDescription(QtText(Words(message)));
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

const char* HintOf(const char* name)
{
    return MainWindowHint(name).data();
}

} // namespace

StripControls::StripControls(QWidget& strip, ButtonScheme& buttons, const TrackCanvasCalls& calls)
    : headings{AddHeading(strip, "Label5", tr("Tune"), kLabel5Message, kLabel5Place),
               AddHeading(strip, "Label1", tr("Play"), kLabel1Message, kLabel1Place)},
      tuneBtn(AddTuneBtn(strip, calls.TrackTuneBtn)),
      playBtn(AddStripButton(strip, buttons, {"TrackPlayBtn", "Play track", HintOf("TrackPlayBtn")}, kPlayPicSize,
                             calls.TrackPlayBtn)),
      audioBtn(AddStripButton(strip, buttons, {"TrackAudioBtn", "Recording", HintOf("TrackAudioBtn")},
                              kPictureButtonSize, calls.TrackAudioBtn)),
      addRecBtn(AddStripButton(strip, buttons, {"TrackAddRecBtn", "Add audio track", HintOf("TrackAddRecBtn")},
                               kAddButtonSize, calls.TrackAddRecBtn)),
      addBtn(AddStripButton(strip, buttons, {"TrackAddBtn", "Add music track", HintOf("TrackAddBtn")}, kAddButtonSize,
                            calls.TrackAddBtn)),
      deleteBtn(AddStripButton(strip, buttons,
                               {"TrackDeleteBtn", "Delete track", HintOf("TrackDeleteBtn"), Plate::Title},
                               kDeleteButtonPicSize, calls.TrackDeleteBtn)),
      topLbl(new QLabel(tr("Add a track"), &strip))
{
    // The keyboard reaches them through the strip.
    for (ImageButton* button : {audioBtn, deleteBtn, playBtn}) {
        button->setFocusPolicy(Qt::NoFocus);
        button->hide();
    }
    QWidget::setTabOrder(addBtn, addRecBtn);
    addBtn->show();
    addRecBtn->show();
    topLbl->setObjectName(QStringLiteral("TrackTopLbl"));
    topLbl->setFont(HintFont());
    topLbl->setAlignment(Qt::AlignCenter);
    topLbl->resize(kAddButtonsApart + kAddButtonSize.width(), kTopLblHeight);
}

void StripControls::PlaceAddButtons(const TrackView& view, std::int32_t trackCount) const
{
    const int top = AddButtonsTop(view, trackCount);
    addBtn->move(kAddButtonLeft, top);
    addRecBtn->move(kAddButtonLeft + kAddButtonsApart, top);
    topLbl->move(kAddButtonLeft, top + kAddButtonSize.height() + kTopLblGap);
}

} // namespace sprout
