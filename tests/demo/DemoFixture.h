// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmock/gmock.h>

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTimerEvent>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "demo/Demo_frm.h"
#include "service/qt/QtPictureFiles.h"
#include "sound/PlayMod.h"
#include "sound/PlayTest.h"
#include "support/FakeServices.h"
#include "support/FakeWindows.h"
#include "waves/WavOperations.h"

namespace sprout {

/// Windows that count how often the help is opened.
class HelpWindows : public FakeWindows {
public:
    void ShowHelp() override { ++helpsOpened; }
    int helpsOpened = 0;
};

/// Demos in a folder of their own, with pictures of 200 x 100 pixels in one colour each.
class DemoFixture : public testing::Test {
protected:
    static constexpr QPoint kInside{25, 25}; ///< of the rectangle 20,20,10,10
    static constexpr QPoint kOutside{60, 60};

    DemoFixture()
    {
        PlayShared() = PlayModState();
        SetSoundDriver(true);
        Shared().DemoImages = folder;
        std::filesystem::create_directory(folder);
        TheServices().pictures = &pictures;
        for (const char* name : {"red", "green", "blue"})
            PutPicture(std::string(name) + ".bmp", QColor(QString::fromLatin1(name)));
    }
    ~DemoFixture() override
    {
        form.reset();
        ReleasePlayer();
        PlayShared() = PlayModState();
    }

    void PutPicture(const std::string& name, const QColor& colour, QSize size = {200, 100}) const
    {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(colour);
        ASSERT_TRUE(picture.save(QFile::decodeName((folder / name).c_str())));
    }

    /// Writes demos, each a name and its slides.
    void PutDemos(const std::vector<std::pair<std::string, std::vector<std::string>>>& demos) const
    {
        std::string ini = "[Section]\r\nSectionCount=" + std::to_string(demos.size()) + "\r\n";
        for (std::size_t i = 0; i < demos.size(); ++i) {
            const std::string number = std::to_string(i + 1);
            const std::vector<std::string>& slides = demos[i].second;
            ini += "Section" + number + "=" + demos[i].first + "\r\n";
            ini += "ImageCount" + number + "=" + std::to_string(slides.size()) + "\r\n";
            for (std::size_t slide = 0; slide < slides.size(); ++slide)
                ini += "Image" + number + std::to_string(slide + 1) + "=" + slides[slide] + "\r\n";
        }
        WriteBytes(folder / "TqDemoImages.ini", ini);
    }

    void PutSound(const std::string& name, std::int32_t frames) const
    {
        SaveWaveFile(CountingWave(frames), folder / name);
    }

    /// Opens the window with one demo of these slides.
    void Open(const std::vector<std::string>& slides)
    {
        PutDemos({{"Paint", slides}});
        OpenDemo("Paint");
    }
    void OpenDemo(std::string_view name)
    {
        form = std::make_unique<Demo_frm>(nullptr, name);
        form->show();
        QApplication::setActiveWindow(form.get());
        QApplication::processEvents();
    }

    template <class Kind>
    [[nodiscard]] Kind& Part(const char* name) const
    {
        return *form->findChild<Kind*>(QString::fromLatin1(name));
    }
    [[nodiscard]] QWidget& Pic() const { return Part<QWidget>("DemoImages"); }
    [[nodiscard]] QPushButton& Link() const { return Part<QPushButton>("DemoPopUpLinkLbl"); }
    [[nodiscard]] QTimer& Timer() const { return Part<QTimer>("DemoTimer"); }
    [[nodiscard]] QTimer& AheadTimer() const { return Part<QTimer>("DemoAheadTimer"); }
    [[nodiscard]] QTimer& PulseTimer() const { return Part<QTimer>("DemoPulseTimer"); }
    [[nodiscard]] std::string Spoken() const { return Pic().accessibleName().toStdString(); }

    /// The name of the colour that is shown.
    [[nodiscard]] std::string Shown() const
    {
        const QColor colour = Pic().grab().toImage().pixelColor(Pic().width() / 2, Pic().height() / 2);
        for (const char* name : {"red", "green", "blue"})
            if (colour == QColor(QString::fromLatin1(name)))
                return name;
        return colour.name().toStdString();
    }

    void Send(QEvent::Type type, QPoint at, Qt::MouseButtons held) const
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, at, Pic().mapToGlobal(QPointF(at)), button, held, Qt::NoModifier);
        QApplication::sendEvent(&Pic(), &event);
    }
    void Press(QPoint at) const { Send(QEvent::MouseButtonPress, at, Qt::LeftButton); }
    void Drag(QPoint to) const { Send(QEvent::MouseMove, to, Qt::LeftButton); }
    void Release(QPoint at) const { Send(QEvent::MouseButtonRelease, at, Qt::NoButton); }
    void ClickAt(QPoint at) const { QTest::mouseClick(&Pic(), Qt::LeftButton, {}, at); }

    static void Tick(QTimer& timer)
    {
        ASSERT_TRUE(timer.isActive()) << timer.objectName().toStdString();
        QTimerEvent tick(timer.timerId());
        QApplication::sendEvent(&timer, &tick);
    }

    /// Runs `steps` with the menu that opens next, and then closes it.
    static void WithNextMenu(const std::function<void(QMenu&)>& steps)
    {
        QTimer::singleShot(0, qApp, [steps] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            steps(*menu);
            menu->close();
        });
    }
    static void Pick(QMenu& menu, int entry)
    {
        menu.setActiveAction(menu.actions().at(entry));
        QTest::keyClick(&menu, Qt::Key_Return);
    }

    /// Lets a sound play as if the song played.
    static void StartToPlay()
    {
        PlayWaveStatus(CountingWave(1000), Words::Text("Playing"), Loop::No);
        ASSERT_EQ(PlayShared().PlayState, PlayState::Playing);
    }

    FakeServices services;
    QtPictureFiles pictures;
    HelpWindows windows;
    ProvidedWindows provided{windows};
    PlayModState& play = PlayShared();
    std::filesystem::path folder = services.folder.Path() / "DemoImages" / "";
    std::unique_ptr<Demo_frm> form;
};

} // namespace sprout
