// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmock/gmock.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "beat_window/BeatFolderMaker.h"
#include "beat_window/BeatWindow.h"
#include "sound/PlayTest.h"
#include "support/FakeServices.h"
#include "ui/Hints.h"
#include "ui/ModalSteps.h"

namespace sprout {

/// Answers the forms that come one after the other with a button each, and notes their lines and the hint that stood
/// then, joined by bars.
class FormAnswers : public QObject {
public:
    FormAnswers(QLabel& hints, std::vector<std::string> names) : statusLbl(hints), buttons(std::move(names))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* form = qobject_cast<BandedForm*>(watched);
        if (event->type() == QEvent::Show && form && form->objectName() != QStringLiteral("BeatWindow")) {
            // The pointer may move over the form as soon as it stands.
            hint = statusLbl.text().toStdString();
            QTimer::singleShot(0, form, [this, form] { Answer(*form); });
        }
        return false;
    }

    std::vector<std::string> seen;
    QString caption; ///< of the last form
    QString typed;   ///< into a box, before its button is clicked

private:
    void Answer(BandedForm& form)
    {
        std::string lines;
        for (const char* name : {"NoteLbl", "NoteLbl1", "NoteLbl2"})
            if (const auto* label = form.findChild<QLabel*>(QString::fromLatin1(name)))
                lines += label->text().toStdString() + "|";
        seen.push_back(lines + hint);
        caption = form.windowTitle();
        if (auto* box = form.findChild<QLineEdit*>(QStringLiteral("InputTxt")))
            box->setText(typed);
        const std::string button = seen.size() <= buttons.size() ? buttons[seen.size() - 1] : "OkBtn";
        Click(form, button.c_str());
    }

    QLabel& statusLbl;
    std::string hint;
    std::vector<std::string> buttons;
};

/// The beat window on a folder of beats of the test's own.
class BeatWindowTest : public PlayTest {
protected:
    BeatWindowTest()
    {
        SetStatusLbl(&statusLbl);
        BeatWindow::AddHelpShown = false;
    }
    ~BeatWindowTest() override { SetStatusLbl(nullptr); }

    /// Opens the window as its caller does, but goes on. name: a copy, since it may be that of the window that goes.
    BeatWindow& Open(std::string name = "")
    {
        window = std::make_unique<BeatWindow>(nullptr);
        window->ChosenBeatName = std::move(name);
        window->LoadBeatFiles();
        window->show();
        return *window;
    }

    template <class Kind = QWidget>
    Kind& Control(const char* name) const
    {
        return *window->findChild<Kind*>(QString::fromLatin1(name));
    }

    PictureGridPic& Grid() const { return Control<PictureGridPic>("ShowAllPic"); }
    std::string TextOf(const char* label) const { return Control<QLabel>(label).text().toStdString(); }

    /// The middle of a picture of the grid.
    QPoint PlaceOf(int index) const
    {
        const GridPlace place = PlaceInGrid(Grid().Grid(), index);
        return {place.x + 16, place.y + 16};
    }

    void ClickBeat(int index, Qt::MouseButton button = Qt::LeftButton) const
    {
        QWidget* under = Grid().childAt(PlaceOf(index));
        QWidget& target = under ? *under : Grid();
        QTest::mouseClick(&target, button, {}, target.mapFrom(&Grid(), PlaceOf(index)));
    }

    std::string ListedNames() const
    {
        std::string names;
        for (int i = 1; i <= Grid().Count(); ++i)
            names += Grid().Entry(i).Name + " ";
        return names;
    }

    bool SoundPlayed() const { return sound.objects > 0 && !sound.pcm.empty(); }

    QLabel statusLbl;
    std::unique_ptr<BeatWindow> window;
};

} // namespace sprout
