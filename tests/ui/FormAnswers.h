// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include <string>
#include <utility>
#include <vector>

#include "ui/ModalSteps.h"
#include "ui/forms/MessageForms.h"

namespace sprout {

/// Answers successive messages and questions with one button each, and keeps their lines and the hint shown then,
/// joined by bars.
class FormAnswers : public QObject {
public:
    FormAnswers(QLabel& hints, std::vector<std::string> names) : statusLbl(hints), buttons(std::move(names))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* form = qobject_cast<BandedForm*>(watched);
        if (event->type() == QEvent::Show && form && IsQuestion(*form)) {
            // The pointer may move over the form as soon as it is shown.
            hint = statusLbl.text().toStdString();
            QTimer::singleShot(0, form, [this, form] { Answer(*form); });
        }
        return false;
    }

    std::vector<std::string> seen;
    QString caption; ///< of the last form, as its band shows it
    QString typed;   ///< typed into a box before its button is clicked

private:
    static bool IsQuestion(BandedForm& form)
    {
        return qobject_cast<NotesForm*>(&form) || qobject_cast<InputBoxFrm*>(&form);
    }

    void Answer(BandedForm& form)
    {
        std::string lines;
        for (const char* name : {"NoteLbl", "NoteLbl1", "NoteLbl2"})
            if (const auto* label = form.findChild<QLabel*>(QString::fromLatin1(name)))
                lines += label->text().toStdString() + "|";
        seen.push_back(lines + hint);
        caption = form.findChild<QLabel*>(QStringLiteral("CaptionLbl"))->text();
        if (auto* box = form.findChild<QLineEdit*>(QStringLiteral("InputTxt")))
            box->setText(typed);
        const std::string button = seen.size() <= buttons.size() ? buttons[seen.size() - 1] : "OkBtn";
        Click(form, button.c_str());
    }

    QLabel& statusLbl;
    std::string hint;
    std::vector<std::string> buttons;
};

} // namespace sprout
