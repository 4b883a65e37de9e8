// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/SoundDrop.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "main_window/MainWindowTest.h"
#include "sound/PlayTest.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

class SoundDropTest : public MainWindowTest {};

TEST_F(SoundDropTest, TakesADroppedSound)
{
    const std::filesystem::path file = Shared().TempFolder / "Voice.wav";
    SaveWaveFile(CountingWave(100), file);
    const std::int32_t before = Song().TrackCount;
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(QString::fromStdString(file.native()))});
    QDragEnterEvent enter(QPoint(300, 300), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(300, 300), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &drop);
    EXPECT_EQ(Song().TrackCount, before) << "not within the event";
    QApplication::processEvents();
    ASSERT_EQ(Song().TrackCount, before + 1);
    EXPECT_EQ(At(Song().Tracks, before + 1).TrackAudio.Length, 100);

    QMimeData text;
    text.setText(QStringLiteral("no file"));
    QDragEnterEvent other(QPoint(300, 300), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    other.ignore();
    QApplication::sendEvent(window.get(), &other);
    EXPECT_FALSE(other.isAccepted());
}

TEST(SoundDrop, TellsOfADropOnceItsEventIsOver)
{
    QWidget window;
    SoundDrop drop(&window);
    EXPECT_TRUE(window.acceptDrops());
    QList<QUrl> dropped;
    QObject::connect(&drop, &SoundDrop::Dropped, [&dropped](const QList<QUrl>& places) { dropped = places; });
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(QStringLiteral("/a")), QUrl::fromLocalFile(QStringLiteral("/b"))});
    QDragEnterEvent enter(QPoint(3, 3), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter); // without it nothing can be dropped
    QDropEvent event(QPointF(3, 3), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &event);
    EXPECT_TRUE(dropped.isEmpty());
    QApplication::processEvents();
    EXPECT_EQ(dropped, dragged.urls());
}

} // namespace
} // namespace sprout
