// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/SlidePicture.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QFile>

#include "base/Errors.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

QImage WhiteSlide()
{
    QImage slide(780, 540, QImage::Format_RGB32);
    slide.fill(Qt::white);
    return slide;
}

/// The rectangle of all pixels that are not white.
QRect Drawn(const QImage& slide)
{
    QRect drawn;
    for (int y = 0; y < slide.height(); ++y)
        for (int x = 0; x < slide.width(); ++x)
            if (slide.pixelColor(x, y) != Qt::white)
                drawn |= QRect(x, y, 1, 1);
    return drawn;
}

QWidget& Coloured(QWidget& window, const QRect& place, const QColor& colour)
{
    window.setWindowFlag(Qt::FramelessWindowHint);
    window.setPalette(QPalette(colour));
    window.setStyleSheet(QStringLiteral("background: %1").arg(colour.name()));
    window.setGeometry(place);
    window.show();
    return window;
}

TEST(GrabScreen, ShowsAllWindowsWhereTheyStand)
{
    QDialog front; // created first, and still in front
    front.setModal(true);
    QWidget back;
    Coloured(back, {0, 0, 400, 300}, Qt::red);
    Coloured(front, {200, 100, 300, 300}, Qt::blue);
    QApplication::processEvents();
    const QImage screen = GrabScreen();
    EXPECT_EQ(screen.size(), QSize(780, 540));
    EXPECT_EQ(screen.pixelColor(100, 50), QColor(Qt::red));
    EXPECT_EQ(screen.pixelColor(300, 200), QColor(Qt::blue));
    EXPECT_EQ(screen.pixelColor(450, 350), QColor(Qt::blue));
    front.hide();
    EXPECT_EQ(GrabScreen().pixelColor(300, 200), QColor(Qt::red));
}

TEST(GrabScreen, ShowsTheLaterOneOfTwoWindowsBehind)
{
    QWidget main;
    QDialog editor;
    QDialog question;
    editor.setModal(true);
    question.setModal(true);
    Coloured(main, {0, 0, 780, 540}, Qt::red);
    Coloured(editor, {0, 0, 400, 300}, Qt::blue);
    Coloured(question, {0, 0, 20, 20}, Qt::green);
    QApplication::processEvents();
    EXPECT_EQ(GrabScreen().pixelColor(10, 10), QColor(Qt::green));
    EXPECT_EQ(GrabScreen().pixelColor(300, 200), QColor(Qt::blue));
    EXPECT_EQ(GrabScreen().pixelColor(500, 400), QColor(Qt::red));
}

TEST(DrawMarks, DrawsABubbleBesideWhatItIsAbout)
{
    QImage slide = WhiteSlide();
    SlideMarks marks;
    marks.Text = QStringLiteral("Click here.");
    marks.PointsAt = {300, 200, 60, 40};
    DrawMarks(slide, marks);
    EXPECT_FALSE(Drawn(slide).isEmpty());
    EXPECT_EQ(Drawn(slide.copy(marks.PointsAt.adjusted(16, 11, -16, -12))), QRect()) << "its middle stays free";
}

TEST(DrawMarks, PointsWithAHandAndAnArrow)
{
    SlideMarks marks;
    marks.Text = QStringLiteral("Paint up to here.");
    QImage bubbleAlone = WhiteSlide();
    DrawMarks(bubbleAlone, marks);
    marks.PointsAt = {300, 200, 60, 40};
    marks.Finger = QPoint(330, 220);
    QImage slide = WhiteSlide();
    DrawMarks(slide, marks);
    EXPECT_NE(slide.copy(320, 216, 40, 60), WhiteSlide().copy(320, 216, 40, 60)) << "the hand";
    EXPECT_EQ(Drawn(slide.copy(500, 210, 50, 20)), QRect());
    marks.ArrowTo = QPoint(560, 220);
    DrawMarks(slide, marks);
    EXPECT_NE(Drawn(slide.copy(500, 210, 50, 20)), QRect()) << "the arrow";
}

TEST(SaveSlide, WritesASmallPicture)
{
    const TestFolder folder;
    const QString path = QString::fromStdString((folder.Path() / "slide.png").string());
    SaveSlide(WhiteSlide(), path);
    EXPECT_EQ(QImage(path).convertToFormat(QImage::Format_RGB32), WhiteSlide());
    EXPECT_LT(QFile(path).size(), 4000);
    EXPECT_THROW(SaveSlide(WhiteSlide(), path + QStringLiteral("/nowhere.png")), RunTimeError);
}

} // namespace
} // namespace sprout
