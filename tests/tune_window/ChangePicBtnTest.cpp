// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TuneFrm2Test.h"

#include <QFile>
#include <QImage>

#include "core/Settings.h"
#include "service/qt/QtPictureFiles.h"
#include "ui/forms/FileDialogs.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

class ChangePicBtnTest : public TuneFrm2Test {
protected:
    ChangePicBtnTest() { MakeTuneFiles(1); }

    /// Clicks the button; the desktop's dialog returns a file.
    void ChangePicture(std::optional<fs::path> answer, const std::function<void(TuneFrm2&)>& then)
    {
        const FileChooserStandIn standIn([this, answer](const FileQuestion& asked) {
            question = asked;
            hintOfMessage = statusLbl.text().toStdString();
            return answer;
        });
        Open([&then](TuneFrm2& window) {
            Click(window, "ChangePicBtn");
            then(window);
        });
    }

    FileQuestion question;
};

TEST_F(ChangePicBtnTest, TakesAPictureAndRemembersItsFolder)
{
    const fs::path file = services.folder.Path() / "cloud.bmp";
    WriteBytes(file, std::string(55, 'p'));
    ChangePicture(file, [](TuneFrm2& window) {
        EXPECT_EQ(Shared().CurrentTune.Picture.Pixel(0, 0), 55U);
        EXPECT_EQ(PartOf<TunePicture>(window, "TunePic").Picture().Pixel(0, 0), 55U);
        EXPECT_TRUE(window.TuneChanged);
    });
    EXPECT_EQ(hintOfMessage, "Choose a small (32x32) bmp picture file");
    EXPECT_EQ(question.Title.English(), "Please select a picture file (32x32) to use");
    EXPECT_EQ(question.DefaultExtension, "bmp");
    EXPECT_EQ(question.Filter.English(), "Picture files|*.bmp;*.jpg;*.gif;*.png|All files|*.*");
    EXPECT_EQ(question.Folder, Shared().InstallStars);
    EXPECT_EQ(GetSetting("General", "PictureSelectPath", ""), services.folder.Path().native() + "/");
    ChangePicture({}, [](TuneFrm2&) {});
    EXPECT_EQ(question.Folder, services.folder.Path() / "");
}

TEST_F(ChangePicBtnTest, ScalesAPictureOfAnotherSizeAsItIsFoundAfterSaving)
{
    QtPictureFiles pictures;
    TheServices().pictures = &pictures;
    QImage photo(200, 100, QImage::Format_RGB32);
    photo.fill(Qt::green);
    const fs::path file = services.folder.Path() / "photo.png";
    ASSERT_TRUE(photo.save(QFile::decodeName(file.c_str()), "PNG"));
    ChangePicture(file, [](TuneFrm2& window) {
        const Picture taken = Shared().CurrentTune.Picture;
        EXPECT_EQ(taken.Width(), 32);
        EXPECT_EQ(taken.Height(), 32);
        EXPECT_EQ(taken.Pixel(31, 23), 0x00FF00U);
        EXPECT_EQ(taken.Pixel(31, 24), 0xFFFFFFU);
        EXPECT_TRUE(SamePicture(PartOf<TunePicture>(window, "TunePic").Picture(), taken));
    });
}

TEST_F(ChangePicBtnTest, CancelChangesNothing)
{
    ChangePicture({}, [](TuneFrm2& window) {
        EXPECT_EQ(Shared().CurrentTune.Picture.Pixel(0, 0), 0x102030U);
        EXPECT_FALSE(window.TuneChanged);
    });
    EXPECT_TRUE(services.messages.shown.empty());
    EXPECT_EQ(GetSetting("General", "PictureSelectPath", "none"), "none");
}

TEST_F(ChangePicBtnTest, AFileThatIsNoPictureIsToldAndThePictureStays)
{
    const fs::path file = services.folder.Path() / "cloud.bmp";
    WriteBytes(file, "bad");
    ChangePicture(file, [](TuneFrm2& window) {
        EXPECT_EQ(Shared().CurrentTune.Picture.Pixel(0, 0), 0x102030U);
        EXPECT_FALSE(window.TuneChanged);
    });
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].text,
              "Error selecting picture file\r\nThe picture " + file.native() + " cannot be read.");
}

} // namespace
} // namespace sprout
