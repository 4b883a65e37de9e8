// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

#include <string>
#include <string_view>
#include <vector>

#include "service/Messages.h"
#include "ui/BandedForm.h"

namespace sprout {

/// A form of one to three notes above a row of buttons, as wide as its widest note, and no narrower than a least width.
class NotesForm : public BandedForm {
    Q_OBJECT

protected:
    NotesForm(QWidget* parent, int leastNoteWidth);

    /// Adds a note below those that stand already.
    void AddNote(const char* name, std::string_view text);
    /// Adds an artwork in the place of a note.
    void AddPicture(const char* artwork);
    /// Sizes the form to its notes and places the buttons that were added.
    void SizeToNotes();

private:
    int leastNoteWidth;
    std::vector<QLabel*> notes;
};

/// How wide a note may be on a screen that leaves so much room; a longer one goes on in the next line.
[[nodiscard]] int WidestNote(int screenWidth);

/// A message of one line. `Result` 1 for OK.
class Msg1BtnFrm : public NotesForm {
    Q_OBJECT

public:
    Msg1BtnFrm(QWidget* parent, std::string_view note);
};

/// A message of two lines. `Result` 1 for OK.
class Msg1Btn2NoteFrm : public NotesForm {
    Q_OBJECT

public:
    Msg1Btn2NoteFrm(QWidget* parent, std::string_view note1, std::string_view note2);
};

/// A question. `Result` 1 yes, 0 no.
class MsgYesNoFrm : public NotesForm {
    Q_OBJECT

public:
    MsgYesNoFrm(QWidget* parent, std::string_view note1, std::string_view note2);
};

/// Asks where an audio track comes from. `Result` 1 recording, 2 wave file, 0 cancel.
class Msg3BtnFrm : public NotesForm {
    Q_OBJECT

public:
    Msg3BtnFrm(QWidget* parent, std::string_view note);
};

/// Asks about unsaved changes. `Result` 2 yes, 1 no, 0 cancel.
class SaveConfirmFrm : public NotesForm {
    Q_OBJECT

public:
    SaveConfirmFrm(QWidget* parent, std::string_view songName);
};

/// The plain message box: untitled or titled, text of any number of lines. `Result` 1 for OK.
class PlainBoxFrm : public NotesForm {
    Q_OBJECT

public:
    PlainBoxFrm(QWidget* parent, std::string_view text, MessageIcon icon);
};

/// Asks for a text. `Result` 1 OK, 0 cancel.
class InputBoxFrm : public BandedForm {
    Q_OBJECT

public:
    InputBoxFrm(QWidget* parent, std::string_view defaultText, std::string_view note1, std::string_view note2);

    [[nodiscard]] std::string Text() const;

private:
    QLineEdit* InputTxt;
};

/// Asks for the song's title and author. The title can always be a file name. `Result` 1 OK, 0 cancel.
class SongTitleFrm : public BandedForm {
    Q_OBJECT

public:
    SongTitleFrm(QWidget* parent, std::string_view title, std::string_view author);

    [[nodiscard]] std::string Name() const;
    [[nodiscard]] std::string CreatedBy() const;

private:
    QLineEdit& AddBox(const char* labelName, const char* label, const char* boxName, std::string_view text, int top);
    void ClickOk();

    QLineEdit* NameTxt;
    QLineEdit* CreatedTxt;
};

/// Puts "_" in place of each of `forbidden` in what stands in a box now and in what comes into it; the caret stays.
void ForbidCharacters(QLineEdit& box, const QString& forbidden);

} // namespace sprout
