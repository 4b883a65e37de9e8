// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/ChangeAllPart.h"

#include <QCoreApplication>
#include <QLabel>

#include <algorithm>

#include "tune_window/rules/StepLayout.h"
#include "ui/look/Look.h"
#include "ui/look/Palette.h"
#include "ui/widgets/ButtonScheme.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr QPoint kNoteInstrPlace{8, 57};
constexpr QPoint kNotePianoPlace{8, 118};
constexpr int kMostChangeAllWidth = 130; ///< fits beside the last step in the smallest window

constexpr ButtonRow kChangeAllRow{"ChangeAllBtn", Words::Later("Change All"),
                                  Words::Later("Change All button, use it to choose one instrument for all steps"),
                                  Plate::Word, kDeepLeaf};

QLabel* MakeNote(const char* name, const Words& text, QPoint place, QWidget* surface)
{
    auto* note = new QLabel(surface);
    SetText(*note, text);
    note->setObjectName(QString::fromLatin1(name));
    note->setFont(HintFont());
    note->setAttribute(Qt::WA_TransparentForMouseEvents);
    note->move(place);
    note->adjustSize();
    return note;
}

} // namespace

ChangeAllPart::ChangeAllPart(QWidget* surface) : QObject(surface)
{
    auto* buttons = new ButtonScheme(*surface, AllOffTimer::OffAtFirst);
    buttons->setParent(this);
    button = &buttons->AddButton(kChangeAllRow, [this] { Q_EMIT Clicked(); });
    button->resize(std::min(button->width(), kMostChangeAllWidth), button->height());
    NoteInstrLbl = MakeNote("NoteInstrLbl", Words::Text("Instruments: click on a picture to choose another"),
                            kNoteInstrPlace, surface);
    NotePianoLbl =
        MakeNote("NotePianoLbl", Words::Text("Pianos: click on a key to change the pitch"), kNotePianoPlace, surface);
}

void ChangeAllPart::ShowTune(const Tune& tune, std::int32_t stepsLeft)
{
    const auto first = tune.Steps.begin() + 1;
    const bool anyOn = std::any_of(first, first + tune.StepCount, [](const TuneStep& step) { return step.IsOn(); });
    button->move(ChangeAllLeft(tune.StepCount, stepsLeft), kChangeAllTop);
    for (QWidget* const shown : {button, static_cast<QWidget*>(NoteInstrLbl), static_cast<QWidget*>(NotePianoLbl)})
        shown->setVisible(anyOn);
}

} // namespace sprout
