// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TuneNameFrm.h"

#include "base/Text.h"
#include "ui/forms/Dialogs.h"
#include "ui/forms/MessageForms.h"
#include "ui/look/Palette.h"
#include "ui/words/QtText.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr int kNameFormWidth = 336;
constexpr int kNameFormMargin = 16;
constexpr int kNameBoxHeight = 34;

} // namespace

TuneNameFrm::TuneNameFrm(QWidget* parent, const TuneNames& names) : BandedForm(parent)
{
    setObjectName(QStringLiteral("TuneNameFrm"));
    SetCaption(Words::Text(" Save Tune"));
    NameTxt = &AddBox("Label1", Words::Text("Tune name"), "NameTxt", names.Name, 8);
    CreatedTxt = &AddBox("Label2", Words::Text("Created By"), "CreatedTxt", names.CreatedBy, 74);
    Watcher().Watch(*NameTxt, Words::Text("Type the name of this Tune here"));
    Watcher().Watch(*CreatedTxt, Words::Text("You can type your name here"));
    ForbidCharacters(*NameTxt, QStringLiteral("./\\:*?<>|\""));
    AddWordButton({"OkBtn", Words::Later("OK"), LaterWords(), Plate::Word, kDeepLeaf}, [this] { ClickOk(); });
    AddAnswer({"CancelBtn", Words::Later("Cancel"), LaterWords(), Plate::Word, kStone}, 0);
    PlaceButtons(kNameFormWidth, 148);
    NameTxt->selectAll();
    NameTxt->setFocus();
}

QLineEdit& TuneNameFrm::AddBox(const char* labelName, const Words& labelText, const char* boxName,
                               std::string_view text, int top)
{
    constexpr int width = kNameFormWidth - 2 * kNameFormMargin;
    QLabel& label = AddLabel(labelName);
    SetText(label, labelText);
    label.setGeometry({BodyPoint(kNameFormMargin, top), QSize(width, 25)});
    auto* box = new QLineEdit(QtText(text), this);
    box->setObjectName(QString::fromLatin1(boxName));
    SetSpokenNameOf(*box, label);
    box->setGeometry({BodyPoint(kNameFormMargin, top + 26), QSize(width, kNameBoxHeight)});
    return *box;
}

TuneNames TuneNameFrm::Names() const
{
    return {NameTxt->text().toStdString(), CreatedTxt->text().toStdString()};
}

void TuneNameFrm::ClickOk()
{
    ShowHint({});
    if (Trim(Names().Name).empty())
        return ShowMessage(Words::Text("Please enter a Tune name."));
    NameOk = true;
    Answer(1);
}

} // namespace sprout
