// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/ChosenTuneView.h"

#include <QLabel>

#include "tune_window/TunePicture.h"
#include "ui/QtText.h"
#include "ui/QtTip.h"

namespace sprout {

namespace {

void SetFittingText(QLabel& label, const QString& text)
{
    label.setText(label.fontMetrics().elidedText(text, Qt::ElideRight, label.width()));
    label.setToolTip(label.text() == text ? QString() : QtTip(text.toStdString()));
    label.setAccessibleName(text);
}

} // namespace

void ChosenTuneView::ShowTune(const std::string& name, const std::string& author, const Picture& picture) const
{
    ShowNames(name, author);
    TunePic->SetPicture(picture);
    TunePic->setAccessibleName(QtText(name));
}

void ChosenTuneView::ShowNames(const std::string& name, const std::string& author) const
{
    SetFittingText(*TuneNameLbl, QtText(name));
    SetFittingText(*CreatedByLbl, QtText(author));
}

} // namespace sprout
