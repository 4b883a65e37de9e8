// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/SourceList.h"

#include <QAbstractItemView>
#include <QWheelEvent>

#include "recording/RecdFrmFixture.h"

namespace sprout {
namespace {

class SourceListTest : public RecdFrmFixture {};

TEST_F(SourceListTest, AWheelOverTheListSelectsNothing)
{
    Record([this] {
        QWheelEvent wheel(QPointF(5, 5), Sources().mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&Sources(), &wheel);
        EXPECT_EQ(Sources().currentText(), QStringLiteral("Microphone"));
        EXPECT_FALSE(wheel.isAccepted());
    });
}

TEST_F(SourceListTest, LeavesAnOpenListOpenWhereOnlyAVolumeChanges)
{
    Record([this] {
        Sources().showPopup();
        capture.sources->Sources[0].Volume = 0;
        ++capture.sourceChanges;
        Tick("CaptureTimer");
        EXPECT_TRUE(Sources().view()->isVisible());
        EXPECT_EQ(Text("VolumeLbl"), "0%");
        capture.sources->Sources.pop_back();
        ++capture.sourceChanges;
        Tick("CaptureTimer");
        EXPECT_FALSE(Sources().view()->isVisible());
    });
}

TEST_F(SourceListTest, ShowsTheBeginningOfALongNameAndTellsItWhole)
{
    const std::string name(300, 'n');
    capture.sources = SoundSources{{{"<b>" + name + "\n2", 65535}}, 0};
    form = std::make_unique<Recd_Frm>(nullptr);
    EXPECT_LT(Sources().fontMetrics().horizontalAdvance(Sources().currentText()), Sources().width());
    EXPECT_EQ(Sources().itemData(0, Qt::AccessibleTextRole).toString().toStdString(), "<b>" + name + " 2");
    EXPECT_EQ(Sources().itemData(0, Qt::ToolTipRole).toString().toStdString(), "<p>&lt;b&gt;" + name + " 2</p>");
}

} // namespace
} // namespace sprout
