// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

#include "base/Words.h"
#include "tunes/TuneNames.h"
#include "ui/forms/BandedForm.h"

namespace sprout {

/// Asks for the names to save a tune under. The name is always a valid file name.
class TuneNameFrm : public BandedForm {
    Q_OBJECT

public:
    TuneNameFrm(QWidget* parent, const TuneNames& names);

    /// The user left the form with `OkBtn`.
    bool NameOk = false;

    /// The current texts of the boxes.
    [[nodiscard]] TuneNames Names() const;

private:
    QLineEdit& AddBox(const char* labelName, const Words& label, const char* boxName, std::string_view text, int top);
    void ClickOk();

    QLineEdit* NameTxt;
    QLineEdit* CreatedTxt;
};

} // namespace sprout
