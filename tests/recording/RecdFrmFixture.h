// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QTimer>
#include <QTimerEvent>

#include <functional>
#include <memory>
#include <string>

#include "recording/Recd_Frm.h"
#include "recording/Recd_Mod.h"
#include "support/FakeServices.h"
#include "ui/ModalSteps.h"
#include "ui/widgets/Hints.h"

namespace sprout {

/// The recording window on a capture whose answers the tests set.
class RecdFrmFixture : public testing::Test {
protected:
    RecdFrmFixture()
    {
        SetStatusLbl(&statusLbl);
        Recd() = {};
        form = std::make_unique<Recd_Frm>(nullptr);
    }
    ~RecdFrmFixture() override { Recd() = {}; }

    /// Records, and runs `steps` once the window is open; if they leave it open, it is closed.
    void Record(const std::function<void()>& steps)
    {
        form->InitilizeForm();
        ASSERT_TRUE(form->InitilizeDriver());
        WithNextForm([this, &steps](BandedForm&) {
            steps();
            form->done(0);
        });
        form->CaptureStartRemote();
    }

    /// Lets a timer of the window tick.
    void Tick(const char* name) const
    {
        auto& timer = Control<QTimer>(name);
        ASSERT_TRUE(timer.isActive()) << name;
        QTimerEvent tick(timer.timerId());
        QApplication::sendEvent(&timer, &tick);
    }

    /// The capture reports this status, and the window checks it.
    void Tell(CaptureState state, std::int64_t blocks, CaptureEnd end = CaptureEnd::None)
    {
        capture.status.State = state;
        capture.status.Blocks = blocks;
        ++capture.status.Pieces;
        capture.status.End = end;
        Tick("CaptureTimer");
    }

    template <class Kind>
    [[nodiscard]] Kind& Control(const char* name) const
    {
        return *form->findChild<Kind*>(QString::fromLatin1(name));
    }
    [[nodiscard]] std::string Text(const char* name) const { return Control<QLabel>(name).text().toStdString(); }
    /// Where a part stands, counted from the band's lower edge.
    [[nodiscard]] QRect Place(const char* name) const
    {
        return Control<QWidget>(name).geometry().translated(0, -kBandHeight);
    }
    [[nodiscard]] QComboBox& Sources() const { return Control<QComboBox>("MixerRecSrcCmb"); }
    [[nodiscard]] QWidget& Pointer() const { return Control<QWidget>("VolumePrtImg"); }
    [[nodiscard]] QColor Pixel(const char* name, int x, int y) const
    {
        return Control<QWidget>(name).grab().toImage().pixelColor(x, y);
    }

    FakeServices services;
    FakeCapture& capture = services.capture;
    QLabel statusLbl;
    std::unique_ptr<Recd_Frm> form;
};

} // namespace sprout
