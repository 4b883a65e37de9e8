// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

#include <string>
#include <string_view>
#include <vector>

#include "base/Words.h"
#include "service/Messages.h"
#include "ui/forms/BandedForm.h"

namespace sprout {

/// A form with one to three notes above a row of buttons, as wide as its widest note but not below a minimum width.
class NotesForm : public BandedForm {
    Q_OBJECT

protected:
    NotesForm(QWidget* parent, int leastNoteWidth);

    /// Adds a note below the existing ones.
    void AddNote(const char* name, const Words& text);
    /// Adds an artwork instead of a note.
    void AddPicture(const char* artwork);
    /// Sizes the form to its notes and places its buttons.
    void SizeToNotes();

private:
    int leastNoteWidth;
    std::vector<QLabel*> notes;
};

/// The maximum width of a note on a screen of this width; longer notes wrap.
[[nodiscard]] int WidestNote(int screenWidth);

/// A one-line message. `Result` is 1 for OK.
class Msg1BtnFrm : public NotesForm {
    Q_OBJECT

public:
    Msg1BtnFrm(QWidget* parent, const Words& note);
};

/// A two-line message. `Result` is 1 for OK.
class Msg1Btn2NoteFrm : public NotesForm {
    Q_OBJECT

public:
    Msg1Btn2NoteFrm(QWidget* parent, const Words& note1, const Words& note2);
};

/// A question. `Result` is 1 for yes, 0 for no.
class MsgYesNoFrm : public NotesForm {
    Q_OBJECT

public:
    MsgYesNoFrm(QWidget* parent, const Words& note1, const Words& note2);
};

/// Asks where an audio track comes from. `Result` is 1 for recording, 2 for wave file, 0 for cancel.
class Msg3BtnFrm : public NotesForm {
    Q_OBJECT

public:
    Msg3BtnFrm(QWidget* parent, const Words& note);
};

/// Asks about unsaved changes. `Result` is 2 for yes, 1 for no, 0 for cancel.
class SaveConfirmFrm : public NotesForm {
    Q_OBJECT

public:
    SaveConfirmFrm(QWidget* parent, std::string_view songName);
};

/// The plain message box: with or without a title, text of any number of lines. `Result` is 1 for OK.
class PlainBoxFrm : public NotesForm {
    Q_OBJECT

public:
    PlainBoxFrm(QWidget* parent, const Words& text, MessageIcon icon);
};

/// Asks for a text. `Result` is 1 for OK, 0 for cancel.
class InputBoxFrm : public BandedForm {
    Q_OBJECT

public:
    InputBoxFrm(QWidget* parent, std::string_view defaultText, const Words& note1, const Words& note2);

    [[nodiscard]] std::string Text() const;

private:
    QLineEdit* InputTxt;
};

/// Asks for the song's title and author. The title is always a valid file name. `Result` is 1 for OK, 0 for cancel.
class SongTitleFrm : public BandedForm {
    Q_OBJECT

public:
    SongTitleFrm(QWidget* parent, std::string_view title, std::string_view author);

    [[nodiscard]] std::string Name() const;
    [[nodiscard]] std::string CreatedBy() const;

private:
    QLineEdit& AddBox(const char* labelName, const Words& label, const char* boxName, std::string_view text, int top);
    void ClickOk();

    QLineEdit* NameTxt;
    QLineEdit* CreatedTxt;
};

/// Replaces each `forbidden` character in a box with "_", in the current text and in later input; the caret stays.
void ForbidCharacters(QLineEdit& box, const QString& forbidden);

} // namespace sprout
