// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/SourceList.h"

#include <QSignalBlocker>
#include <QWheelEvent>

#include "ui/look/Look.h"
#include "ui/widgets/PopupKeys.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr int kBesideSource = 56; ///< frame, arrow and padding

} // namespace

SourceList::SourceList(QWidget* parent) : QComboBox(parent)
{
    setObjectName(QStringLiteral("MixerRecSrcCmb"));
    SetSpokenName(*this, Words::Text("Microphone"));
    setFont(HintFont());
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    KeepClosingKeys(*this);
    connect(this, &QComboBox::currentIndexChanged, this, &SourceList::Choose);
}

void SourceList::ShowLines(const SourceLines& sources)
{
    const QSignalBlocker filling(this);
    if (sources.Lines != lines || lines.empty()) {
        lines = sources.Lines;
        hidePopup();
        clear();
        for (const SourceLine& line : lines)
            AddCutItem(*this, Words::AsIs(line.Name), width() - kBesideSource);
    }
    if (lines.empty())
        AddItem(*this, Words::Text("Failed"));
    setCurrentIndex(lines.empty() ? 0 : sources.Selected);
    setEnabled(!lines.empty());
}

void SourceList::Choose(int row)
{
    if (row >= 0 && static_cast<std::size_t>(row) < lines.size())
        Q_EMIT SourceChosen(lines[static_cast<std::size_t>(row)].Index);
}

void SourceList::wheelEvent(QWheelEvent* event)
{
    // An accidental turn of the wheel must not change the source.
    event->ignore();
}

} // namespace sprout
