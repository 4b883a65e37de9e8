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
#include "ui/FormAnswers.h"
#include "ui/ModalSteps.h"
#include "ui/widgets/Hints.h"

namespace sprout {

/// The beat window on the test's own folder of beats.
class BeatWindowTest : public PlayTest {
protected:
    BeatWindowTest()
    {
        SetStatusLbl(&statusLbl);
        BeatLibraryCommands::AddHelpShown = false;
    }
    ~BeatWindowTest() override { SetStatusLbl(nullptr); }

    /// Opens the window as its caller does, but returns at once. name: a copy, since it may be the old window's.
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

    /// The middle of a picture in the grid.
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
