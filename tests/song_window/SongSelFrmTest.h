// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmock/gmock.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <filesystem>
#include <initializer_list>
#include <ostream>
#include <string>

#include "core/Shared.h"
#include "song_window/SongList.h"
#include "song_window/SongSelFrm.h"
#include "support/FakeServices.h"
#include "support/TestFolder.h"
#include "ui/ModalSteps.h"
#include "ui/widgets/Hints.h"

namespace sprout {

/// What a message or a question showed.
struct Told {
    QString caption, line1, line2, hint;
    friend bool operator==(const Told&, const Told&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Told& told)
    {
        return out << QStringList{told.caption, told.line1, told.line2, told.hint}.join(QLatin1Char('/')).toStdString();
    }
};

/// Songs in their own folder, with "Zumi" open, and a status line.
class SongSelFrmTest : public testing::Test {
protected:
    SongSelFrmTest()
    {
        std::filesystem::create_directory(songFolder);
        Shared().UserSongs = songFolder / "";
        Shared().Song.SongTitle = "Zumi";
        SetStatusLbl(&statusLbl);
    }

    void Put(std::initializer_list<const char*> names)
    {
        for (const char* name : names)
            WriteBytes(songFolder / (std::string(name) + ".TqSng"), name);
    }

    void Open(SongSelMode mode)
    {
        form.InitilizeThisWindow(mode);
        form.Ok = false;
        if (mode == SongSelMode::Save)
            form.SetSongName(Shared().Song.SongTitle);
        form.show();
        QApplication::setActiveWindow(&form);
    }

    template <class Control = QWidget>
    Control& Part(const char* name)
    {
        return *form.findChild<Control*>(QString::fromLatin1(name));
    }

    QListWidget& List() { return Part<QListWidget>("SngNmLst"); }
    QLineEdit& NameBox() { return Part<QLineEdit>("SongNameTxt"); }
    QString LabelText(const char* name) { return Part<QLabel>(name).text(); }

    QStringList Lines()
    {
        QStringList lines;
        for (int row = 0; row < List().count(); ++row)
            lines.push_back(List().item(row)->text());
        return lines;
    }

    QPoint MiddleOf(int row) { return List().visualItemRect(List().item(row)).center(); }
    void ClickRow(int row) { QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, MiddleOf(row)); }

    QString Selected()
    {
        const QList<QListWidgetItem*> selected = List().selectedItems();
        return selected.isEmpty() ? QString() : selected.front()->text();
    }

    /// Clicks a button of the window, and another one of the message or question that follows.
    Told ClickAndAnswer(const char* button, const char* answer)
    {
        Told told;
        WithNextForm([&told, answer, this](BandedForm& box) {
            const auto text = [&box](const char* label) {
                const auto* found = box.findChild<QLabel*>(QString::fromLatin1(label));
                return found ? found->text() : QString();
            };
            told = {text("CaptionLbl"), text("NoteLbl1").isEmpty() ? text("NoteLbl") : text("NoteLbl1"),
                    text("NoteLbl2"), statusLbl.text()};
            sprout::Click(box, answer);
        });
        sprout::Click(form, button);
        return told;
    }

    /// Clicks `RenameBtn` and types a name into the question.
    void Rename(const QString& newName)
    {
        WithNextForm([newName](BandedForm& box) {
            auto* input = box.findChild<QLineEdit*>(QStringLiteral("InputTxt"));
            input->clear();
            QTest::keyClicks(input, newName);
            sprout::Click(box, "OkBtn");
        });
        sprout::Click(form, "RenameBtn");
    }

    [[nodiscard]] bool HasSong(const char* name) const
    {
        return std::filesystem::exists(songFolder / (std::string(name) + ".TqSng"));
    }

    FakeServices services;
    std::filesystem::path songFolder = services.folder.Path() / "Songs";
    QLabel statusLbl;
    SongSelFrm form{nullptr};
};

inline const QString kTitle = QStringLiteral(" Tonquill Sprout Painter");
inline const QString kSelectOne = QStringLiteral("Click on the song name in the list to select one");

} // namespace sprout
