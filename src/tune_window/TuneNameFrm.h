// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

#include "tunes/TuneNames.h"
#include "ui/BandedForm.h"

namespace sprout {

/// Asks what a tune is to be saved under. The name can always be that of a file.
class TuneNameFrm : public BandedForm {
    Q_OBJECT

public:
    TuneNameFrm(QWidget* parent, const TuneNames& names);

    /// The form was left with `OkBtn`.
    bool NameOk = false;

    /// The texts of the boxes as they stand.
    [[nodiscard]] TuneNames Names() const;

private:
    QLineEdit& AddBox(const char* labelName, const char* label, const char* boxName, std::string_view text, int top);
    void ClickOk();

    QLineEdit* NameTxt;
    QLineEdit* CreatedTxt;
};

} // namespace sprout
