// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/DemoSheets.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QKeyEvent>
#include <QPainter>
#include <QTemporaryDir>
#include <QTimer>
#include <QTimerEvent>

#include "base/FilePaths.h"
#include "core/Shared.h"
#include "demo/Demo_frm.h"
#include "pictures/SheetPicture.h"
#include "service/Services.h"
#include "service/qt/QtPictureFiles.h"
#include "ui/look/Palette.h"

namespace sprout {

namespace {

constexpr int kTicksToTheStrongest = 16;

constexpr const char* kDemos = "[Section]\r\n"
                               "SectionCount=2\r\n"
                               "Section1=Paint your first song\r\n"
                               "ImageCount1=2\r\n"
                               "Image11=slide.png,300,200,60,60,click,0\r\n"
                               "Image12=slide.png,300,200,60,60,click,0\r\n"
                               "Section2=A picture that is larger than the screen\r\n"
                               "ImageCount2=1\r\n"
                               "Image21=large.png,300,200,60,60,click,0\r\n";

void MakeSlide(const QString& path, QSize size)
{
    QImage slide(size, QImage::Format_RGB32);
    slide.fill(kPaper);
    QPainter painter(&slide);
    painter.fillRect(QRect(300, 200, 61, 61), kLeaf);
    painter.setPen(kBark);
    painter.drawRect(QRect(QPoint(0, 0), size).adjusted(0, 0, -1, -1));
    painter.end();
    slide.save(path);
}

void MakeDemos(const QString& folder)
{
    MakeSlide(folder + QStringLiteral("/slide.png"), {780, 540});
    MakeSlide(folder + QStringLiteral("/large.png"), {2000, 1500});
    QFile file(folder + QStringLiteral("/TqDemoImages.ini"));
    if (file.open(QIODevice::WriteOnly))
        file.write(kDemos);
}

/// Lets the active rectangle shine as strongly as it does.
void Pulse(const Demo_frm& form)
{
    auto* timer = form.findChild<QTimer*>(QStringLiteral("DemoPulseTimer"));
    for (int tick = 0; tick < kTicksToTheStrongest; ++tick) {
        QTimerEvent event(timer->timerId());
        QApplication::sendEvent(timer, &event);
    }
}

} // namespace

void DrawDemoSheets(const QString& folder)
{
    QtPictureFiles pictures;
    const Services before = TheServices();
    TheServices().pictures = &pictures;
    const QTemporaryDir demos;
    MakeDemos(demos.path());
    Shared().DemoImages = AsFolder(demos.path().toStdString());

    Demo_frm form(nullptr, "Paint your first song");
    form.show();
    Pulse(form);
    SaveSheet(form, folder, QStringLiteral("demo-pulse"));
    QKeyEvent next(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
    QApplication::sendEvent(&form, &next);
    SaveSheet(form, folder, QStringLiteral("demo-last"));
    Demo_frm large(nullptr, "A picture that is larger than the screen");
    ShowAndSaveSheet(large, folder, QStringLiteral("demo-large"));
    TheServices() = before;
}

} // namespace sprout
