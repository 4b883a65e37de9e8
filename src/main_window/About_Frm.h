// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Words.h"
#include "ui/forms/BandedForm.h"

namespace sprout {

/// Shows what the program is, its date and where to find its makers.
class About_Frm : public BandedForm {
    Q_OBJECT

public:
    explicit About_Frm(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel& AddLine(const char* name, const QFont& font, const Words& text);
    void MakeLink();
    void PlaceLines();

    std::vector<QWidget*> lines; ///< from top to bottom
};

} // namespace sprout
