// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/forms/MessageForms.h"

#include <QScreen>

#include <algorithm>

#include "base/Text.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "ui/forms/Dialogs.h"
#include "ui/look/Artwork.h"
#include "ui/look/Look.h"
#include "ui/look/Palette.h"
#include "ui/words/QtText.h"

namespace sprout {

namespace {

constexpr int kSideMargin = 8;
constexpr int kFirstNoteTop = 14;
constexpr int kNotesApart = 2;
constexpr int kAboveButtons = 14;
constexpr int kLeastMessageWidth = 230;
constexpr int kLeastQuestionWidth = 250;
constexpr int kLeastThreeButtonsWidth = 300; // the form is 316 wide
constexpr int kNotePadding = 8;              // with the margin it keeps the text away from the form's edge
constexpr double kWidestShareOfScreen = 0.8;
constexpr int kWidestNote = 816; // fits a small screen; longer lines are hard to read

constexpr int kIconSide = 40;
constexpr int kInputFormWidth = 320;
constexpr int kBoxHeight = 34;

ButtonRow GoOn(const char* name, const LaterWords& word)
{
    return {name, word, {}, Plate::Word, kDeepLeaf};
}

ButtonRow GoBack(const char* name, const LaterWords& word)
{
    return {name, word, {}, Plate::Word, kStone};
}

QString Utf8Name(const char* name)
{
    return QString::fromLatin1(name);
}

} // namespace

NotesForm::NotesForm(QWidget* parent, int leastWidth) : BandedForm(parent), leastNoteWidth(leastWidth) {}

void NotesForm::AddNote(const char* name, const Words& text)
{
    QLabel& note = AddLabel(name);
    note.setText(QtText(text));
    note.setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    note.setContentsMargins(kNotePadding, 0, kNotePadding, 0);
    notes.push_back(&note);
}

void NotesForm::AddPicture(const char* artwork)
{
    QLabel& picture = AddLabel("IconImg");
    picture.setPixmap(Artwork(QString::fromLatin1(artwork), QSize(kIconSide, kIconSide), devicePixelRatioF()));
    picture.setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    notes.push_back(&picture);
}

int WidestNote(int screenWidth)
{
    return std::min(static_cast<int>(screenWidth * kWidestShareOfScreen), kWidestNote);
}

void NotesForm::SizeToNotes()
{
    const int widest = WidestNote(screen()->availableGeometry().width());
    int noteWidth = leastNoteWidth;
    for (QLabel* note : notes) {
        note->adjustSize();
        noteWidth = std::max(noteWidth, std::min(note->width(), widest));
    }
    int top = kFirstNoteTop;
    for (QLabel* note : notes) {
        if (note->width() > noteWidth) {
            note->setWordWrap(true);
            note->setFixedSize(noteWidth, note->heightForWidth(noteWidth));
        }
        note->setGeometry({BodyPoint(kSideMargin, top), QSize(noteWidth, note->height())});
        top += note->height() + kNotesApart;
    }
    PlaceButtons(noteWidth + 2 * kSideMargin, top - kNotesApart + kAboveButtons);
    for (QLabel* note : notes)
        note->move((width() - note->width()) / 2, note->y());
}

Msg1BtnFrm::Msg1BtnFrm(QWidget* parent, const Words& note) : NotesForm(parent, kLeastMessageWidth)
{
    setObjectName(QStringLiteral("Msg1BtnFrm"));
    AddNote("NoteLbl", note);
    AddAnswer(GoOn("OkBtn", Words::Later("OK")), 1).setFocus();
    SizeToNotes();
}

Msg1Btn2NoteFrm::Msg1Btn2NoteFrm(QWidget* parent, const Words& note1, const Words& note2)
    : NotesForm(parent, kLeastMessageWidth)
{
    setObjectName(QStringLiteral("Msg1Btn2NoteFrm"));
    AddNote("NoteLbl1", note1);
    AddNote("NoteLbl2", note2);
    AddAnswer(GoOn("OkBtn", Words::Later("OK")), 1).setFocus();
    SizeToNotes();
}

MsgYesNoFrm::MsgYesNoFrm(QWidget* parent, const Words& note1, const Words& note2)
    : NotesForm(parent, kLeastQuestionWidth)
{
    setObjectName(QStringLiteral("MsgYesNoFrm"));
    AddNote("NoteLbl1", note1);
    AddNote("NoteLbl2", note2);
    AddAnswer(GoOn("YesBtn", Words::Later("Yes")), 1);
    AddAnswer(GoBack("NoBtn", Words::Later("No")), 0).setFocus();
    SizeToNotes();
}

Msg3BtnFrm::Msg3BtnFrm(QWidget* parent, const Words& note) : NotesForm(parent, kLeastThreeButtonsWidth)
{
    setObjectName(QStringLiteral("Msg3BtnFrm"));
    AddNote("NoteLbl", note);
    AddAnswer({"StartRecordingBtn", Words::Later("Recording"), LaterWords(), Plate::Word, kCoral, "WordRecord"}, 1)
        .setFocus();
    AddAnswer({"ChooseWavFileBtn", Words::Later("Wav file"), LaterWords(), Plate::Word, kDeepLeaf, "WordWave"}, 2);
    AddAnswer(GoBack("CancelBtn", Words::Later("Cancel")), 0);
    SizeToNotes();
}

SaveConfirmFrm::SaveConfirmFrm(QWidget* parent, std::string_view songName) : NotesForm(parent, kLeastThreeButtonsWidth)
{
    setObjectName(QStringLiteral("SaveConfirmFrm"));
    AddNote("NoteLbl", Words::Text("Do you want to save this song?"));
    AddNote("SongNameLbl", Words::AsIs(songName));
    findChild<QLabel*>(QStringLiteral("SongNameLbl"))->setFont(TitleFont());
    AddAnswer(GoOn("YesBtn", Words::Later("Yes")), 2).setFocus();
    AddAnswer(GoBack("NoBtn", Words::Later("No")), 1);
    AddAnswer(GoBack("Cancel_Btn", Words::Later("Cancel")), 0);
    SizeToNotes();
}

PlainBoxFrm::PlainBoxFrm(QWidget* parent, const Words& text, MessageIcon icon) : NotesForm(parent, kLeastMessageWidth)
{
    setObjectName(QStringLiteral("PlainBoxFrm"));
    if (icon == MessageIcon::Exclamation)
        AddPicture("pictures/Exclamation");
    AddNote("NoteLbl", text);
    AddAnswer(GoOn("OkBtn", Words::Later("OK")), 1).setFocus();
    SizeToNotes();
}

InputBoxFrm::InputBoxFrm(QWidget* parent, std::string_view defaultText, const Words& note1, const Words& note2)
    : BandedForm(parent), InputTxt(new QLineEdit(this))
{
    const bool oneNote = note2.IsBlank();
    const int boxTop = oneNote ? 32 : 56;
    const int buttonsTop = oneNote ? 74 : 98;
    const int formHeight = oneNote ? 151 : 176;

    setObjectName(QStringLiteral("InputBoxFrm"));
    QLabel& first = AddLabel("NoteLbl1");
    QLabel& second = AddLabel("NoteLbl2");
    first.setText(QtText(note1));
    second.setText(oneNote ? QString() : QtText(note2));
    AddAnswer(GoOn("OkBtn", Words::Later("OK")), 1);
    AddAnswer(GoBack("CancelBtn", Words::Later("Cancel")), 0);

    const int noteWidth = std::max(first.sizeHint().width(), second.sizeHint().width());
    PlaceButtons(std::max(kInputFormWidth, noteWidth + 4 * kSideMargin), buttonsTop);
    resize(width(), formHeight);
    const int innerWidth = width() - 4 * kSideMargin;
    first.setGeometry({BodyPoint(2 * kSideMargin, 5), QSize(innerWidth, 25)});
    second.setGeometry({BodyPoint(2 * kSideMargin, 29), QSize(innerWidth, 25)});
    second.setVisible(!oneNote);

    InputTxt->setObjectName(QStringLiteral("InputTxt"));
    InputTxt->setAccessibleName(first.text());
    InputTxt->setText(QtText(defaultText));
    InputTxt->setGeometry({BodyPoint(2 * kSideMargin, boxTop), QSize(innerWidth, kBoxHeight)});
    InputTxt->selectAll();
    InputTxt->setFocus();
}

std::string InputBoxFrm::Text() const
{
    return InputTxt->text().toStdString();
}

SongTitleFrm::SongTitleFrm(QWidget* parent, std::string_view title, std::string_view author) : BandedForm(parent)
{
    setObjectName(QStringLiteral("SongTitleFrm"));
    NameTxt = &AddBox("Label1", Words::Text("Song name"), "NameTxt", title, 8);
    CreatedTxt = &AddBox("Label2", Words::Text("Created by"), "CreatedTxt", author, 74);
    Watcher().Watch(*NameTxt, Words::Text("You can change the name of this song here"));
    Watcher().Watch(*CreatedTxt, Words::Text("You can type your name here"));
    ForbidCharacters(*NameTxt, QStringLiteral("./\\:*?<>|\""));
    AddWordButton(GoOn("OkBtn", Words::Later("OK")), [this] { ClickOk(); });
    AddAnswer(GoBack("CancelBtn", Words::Later("Cancel")), 0);
    PlaceButtons(kInputFormWidth + 2 * kSideMargin, 148);
    NameTxt->selectAll();
    NameTxt->setFocus();
}

QLineEdit& SongTitleFrm::AddBox(const char* labelName, const Words& labelText, const char* boxName,
                                std::string_view text, int top)
{
    QLabel& label = AddLabel(labelName);
    label.setText(QtText(labelText));
    label.setGeometry({BodyPoint(2 * kSideMargin, top), QSize(kInputFormWidth - 2 * kSideMargin, 25)});
    auto* box = new QLineEdit(QtText(text), this);
    box->setObjectName(Utf8Name(boxName));
    box->setAccessibleName(label.text());
    box->setGeometry({BodyPoint(2 * kSideMargin, top + 26), QSize(kInputFormWidth - 2 * kSideMargin, kBoxHeight)});
    return *box;
}

std::string SongTitleFrm::Name() const
{
    return NameTxt->text().toStdString();
}

std::string SongTitleFrm::CreatedBy() const
{
    return CreatedTxt->text().toStdString();
}

void SongTitleFrm::ClickOk()
{
    ShowHint({});
    const std::string name = Name();
    if (Trim(name).empty()) {
        ShowMessage(Words::Text("Please enter the Song Title."));
        return;
    }
    // The name of an existing file is only allowed if it is the open song's own title in another case.
    if (!EqualIgnoringCase(name, Shared().Song.SongTitle) && FileExists(SongPath(name))) {
        ShowMessage(Words::Text("A song with this name already exists."), Words::Text("Please type another name."));
        return;
    }
    Answer(1);
}

void ForbidCharacters(QLineEdit& box, const QString& forbidden)
{
    const auto keepClean = [&box, forbidden](const QString& text) {
        QString clean = text;
        for (QChar& character : clean)
            if (forbidden.contains(character))
                character = QLatin1Char('_');
        if (clean == text)
            return;
        const int caret = box.cursorPosition();
        box.setText(clean);
        box.setCursorPosition(caret);
    };
    keepClean(box.text());
    QObject::connect(&box, &QLineEdit::textChanged, &box, keepClean);
}

} // namespace sprout
