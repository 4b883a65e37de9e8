// SPDX-License-Identifier: GPL-3.0-or-later
#include <QFile>
#include <QImage>

#include <sys/stat.h>

#include <optional>

#include "base/FilePaths.h"
#include "beat_window/BeatWindowTest.h"
#include "beats/BeatFiles.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "service/qt/QtPictureFiles.h"
#include "sound/ChosenSound.h"
#include "ui/FileDialogs.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kAddHint = "Choose a wav file and small (32x32) bmp picture file";

/// Beats that can be changed: the index protects only "original".
class LibraryCommandsTest : public BeatWindowTest {
protected:
    LibraryCommandsTest()
    {
        WriteBytes(Shared().UserBeats / "TqBeats.ini",
                   "[General]\r\nProtectedNos=1\r\nProtected=1\r\n[Protected]\r\nFile1=original\r\n");
        MakeBeat("original", 10);
        SaveWaveFile(QuietWave(100), Chosen("Bell.wav"));
        WriteBytes(Chosen("Picture.bmp"), "12345");
        Shared().InstallStars = "/install/Stars/";
    }

    fs::path Chosen(const std::string& name) const { return services.folder.Path() / name; }

    /// All other sound formats are converted to this wave.
    void ConvertTo(const WaveData& wave)
    {
        SaveWaveFile(wave, Chosen("converted.wav"));
        services.soundReader.wave = ReadBytes(Chosen("converted.wav"));
        services.soundReader.outcome = Conversion::Done;
    }

    /// Clicks Add and answers its two dialogs.
    void Add(const std::optional<fs::path>& wave, const std::optional<fs::path>& picture)
    {
        questions.clear();
        FormAnswers answers(statusLbl, {});
        const FileChooserStandIn chooser([&](const FileQuestion& question) {
            questions.push_back(question);
            return questions.size() == 1 ? wave : picture;
        });
        statusLbl.clear();
        Click(*window, "AddBtn");
        told = answers.seen;
    }

    /// Clicks Rename and types a name.
    void Rename(const QString& name)
    {
        FormAnswers answers(statusLbl, {});
        answers.typed = name;
        Click(*window, "RenameBtn");
        told = answers.seen;
    }

    /// Clicks Delete and answers the question.
    void Delete(const char* button)
    {
        FormAnswers answers(statusLbl, {button});
        Click(*window, "DeleteBtn");
        told = answers.seen;
        caption = answers.caption;
    }

    std::vector<FileQuestion> questions;
    std::vector<std::string> told;
    QString caption;
};

class AddBeatTest : public LibraryCommandsTest {};
class RenameBeatTest : public LibraryCommandsTest {};
class DeleteBeatTest : public LibraryCommandsTest {};

TEST_F(AddBeatTest, AddsAPairAndSelectsIt)
{
    Open();
    Add(Chosen("Bell.wav"), Chosen("Picture.bmp"));
    EXPECT_THAT(told,
                ElementsAre(std::string("Select a .wav file to add as a new beat.|") + kAddHint,
                            std::string("Now select a picture (32x32) file to use for this new beat.|") + kAddHint));
    EXPECT_EQ(FilesOfUserBeats(), "Bell.bmp Bell.wav original.bmp original.wav ");
    EXPECT_EQ(ReadBytes(Shared().UserBeats / "Bell.wav"), ReadBytes(Chosen("Bell.wav")));
    EXPECT_EQ(ListedNames(), "original Bell ");
    EXPECT_EQ(TextOf("NmLbl"), "Bell");
    EXPECT_THAT(services.messages.shown, IsEmpty());
    EXPECT_THAT(IndexText(), testing::HasSubstr("original=1\r\n")) << "the order was written";
}

TEST_F(AddBeatTest, AsksForTheTwoFilesInTheirFolders)
{
    PutSetting("General", "WavFileSelPath", "/waves/");
    Open();
    Add(Chosen("Bell.wav"), Chosen("Picture.bmp"));
    ASSERT_EQ(questions.size(), 2U);
    EXPECT_EQ(questions[0].Title, "Please select a .wav file to use");
    EXPECT_EQ(questions[0].Folder, "/waves/");
    EXPECT_EQ(questions[0].FileName, "");
    EXPECT_EQ(questions[0].DefaultExtension, "wav");
    EXPECT_EQ(questions[0].Filter, "Wave files(*.wav)|*.wav|All files|*.*|" + std::string(kOtherSoundsFilter));
    EXPECT_EQ(questions[0].FilterIndex, 3) << "every sound is shown at first, .wav among them";
    EXPECT_EQ(questions[1].Title, "Please select a picture file (32x32) to use");
    EXPECT_EQ(questions[1].Folder, "/install/Stars/");
    EXPECT_EQ(questions[1].DefaultExtension, "bmp");
    EXPECT_EQ(questions[1].Filter, "Picture files(*.bmp;*.jpg;*.gif;*.png)|*.bmp;*.jpg;*.gif;*.png|All files|*.*");
    const std::string folder = services.folder.Path().native() + "/";
    EXPECT_EQ(GetSetting("General", "WavFileSelPath", ""), folder);
    EXPECT_EQ(GetSetting("General", "PictureSelectPath", ""), folder);
}

TEST_F(AddBeatTest, GuidesOnlyUntilOneBeatWasAdded)
{
    Open();
    Add(Chosen("Bell.wav"), std::nullopt);
    Add(Chosen("Bell.wav"), Chosen("Picture.bmp"));
    EXPECT_EQ(told.size(), 2U) << "nothing was added the first time";
    SaveWaveFile(QuietWave(5), Chosen("Other.wav"));
    Open();
    Add(Chosen("Other.wav"), Chosen("Picture.bmp"));
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(AddBeatTest, TellsOfTheTrimmingAndStoresTheWholeWave)
{
    SaveWaveFile(QuietWave(10 * 11025), Chosen("Long.wav"));
    Open();
    Add(Chosen("Long.wav"), Chosen("Picture.bmp"));
    ASSERT_EQ(told.size(), 3U);
    EXPECT_EQ(told[1],
              std::string("The duration of this file is 10 seconds,|This will be trimmed to 3 seconds.|") + kAddHint);
    EXPECT_EQ(LoadWaveFile(Shared().UserBeats / "Long.wav").Length, 10 * 11025);
    EXPECT_EQ(TextOf("DurLbl"), "3.0 Sec");
    Click(*window, "TestPlayBtn");
    EXPECT_EQ(play.PlayLength, 3 * 11025);
    Beat inTune;
    LoadBeatFile(inTune, "long");
    EXPECT_EQ(inTune.Sound.Length, 5 * 11025);
}

TEST_F(AddBeatTest, DoesNotTellOfThreeSeconds)
{
    SaveWaveFile(QuietWave(3 * 11025), Chosen("Three.wav"));
    Open();
    Add(Chosen("Three.wav"), Chosen("Picture.bmp"));
    EXPECT_EQ(told.size(), 2U);
}

TEST_F(AddBeatTest, TellsTheNewNameWhereTheOldOneIsTaken)
{
    MakeBeat("bell", 10);
    BeatWindow::AddHelpShown = true;
    Open();
    Add(Chosen("Bell.wav"), Chosen("Picture.bmp"));
    EXPECT_THAT(told, ElementsAre("\"bell\" already exists|New beat is added as New1Bell|"));
    EXPECT_EQ(TextOf("NmLbl"), "New1Bell");
    Add(Chosen("Bell.wav"), Chosen("Picture.bmp"));
    EXPECT_THAT(told, ElementsAre("\"bell\" already exists|New beat is added as New2Bell|"));
    EXPECT_EQ(FilesOfUserBeats(), "New1Bell.bmp New1Bell.wav New2Bell.bmp New2Bell.wav bell.bmp bell.wav original.bmp "
                                  "original.wav ");
}

TEST_F(AddBeatTest, EndsSilentlyWhenTheFirstDialogIsCancelled)
{
    Open();
    Add(std::nullopt, std::nullopt);
    EXPECT_EQ(questions.size(), 1U);
    EXPECT_EQ(told.size(), 1U);
    EXPECT_EQ(GetSetting("General", "WavFileSelPath", "none"), "none");
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
    EXPECT_THAT(services.messages.shown, IsEmpty());
}

TEST_F(AddBeatTest, LeavesTheFolderAsItWasWhenThePictureIsCancelledButKeepsTheWavesFolder)
{
    Open();
    const std::string index = IndexText();
    Add(Chosen("Bell.wav"), std::nullopt);
    EXPECT_EQ(questions.size(), 2U);
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
    EXPECT_EQ(IndexText(), index);
    EXPECT_EQ(GetSetting("General", "WavFileSelPath", ""), services.folder.Path().native() + "/");
    EXPECT_EQ(GetSetting("General", "PictureSelectPath", "none"), "none");
    EXPECT_THAT(services.messages.shown, IsEmpty());
}

TEST_F(AddBeatTest, RefusesAFileWithoutSound)
{
    WriteBytes(Chosen("Noise.wav"), std::string(200, 'x'));
    BeatWindow::AddHelpShown = true;
    Open();
    Add(Chosen("Noise.wav"), Chosen("Picture.bmp"));
    EXPECT_EQ(questions.size(), 1U);
    EXPECT_THAT(told, ElementsAre("Failed to load wav file.|"));
    EXPECT_EQ(services.messages.shown.size(), 1U) << "the reader of waves tells why";
    EXPECT_EQ(GetSetting("General", "WavFileSelPath", "none"), "none");
}

TEST_F(AddBeatTest, MakesABeatOfASoundOfAnotherKind)
{
    ConvertTo(QuietWave(200));
    WriteBytes(Chosen("Bell.mp3"), "a song");
    BeatWindow::AddHelpShown = true;
    Open();
    Add(Chosen("Bell.mp3"), Chosen("Picture.bmp"));
    EXPECT_THAT(told, IsEmpty());
    EXPECT_THAT(services.messages.shown, IsEmpty());
    EXPECT_THAT(services.soundReader.calls,
                ElementsAre(FakeSoundReader::Call{Chosen("Bell.mp3"), kLongestBeatSeconds, TooLong::Cut}));
    EXPECT_EQ(FilesOfUserBeats(), "Bell.bmp Bell.wav original.bmp original.wav ");
    EXPECT_EQ(ReadBytes(Shared().UserBeats / "Bell.wav"), services.soundReader.wave);
    EXPECT_EQ(TextOf("NmLbl"), "Bell");
    EXPECT_TRUE(fs::is_empty(Shared().TempFolder));
    EXPECT_EQ(GetSetting("General", "WavFileSelPath", ""), services.folder.Path().native() + "/");
}

TEST_F(AddBeatTest, GivesASoundOfAnotherKindAFreeName)
{
    MakeBeat("bell", 10);
    ConvertTo(QuietWave(200));
    WriteBytes(Chosen("Bell.ogg"), "a song");
    BeatWindow::AddHelpShown = true;
    Open();
    Add(Chosen("Bell.ogg"), Chosen("Picture.bmp"));
    EXPECT_THAT(told, ElementsAre("\"bell\" already exists|New beat is added as New1Bell|"));
    EXPECT_EQ(FilesOfUserBeats(), "New1Bell.bmp New1Bell.wav bell.bmp bell.wav original.bmp original.wav ");
}

TEST_F(AddBeatTest, TellsOfTheTrimmingOfASoundOfAnotherKind)
{
    ConvertTo(QuietWave(5 * 11025));
    WriteBytes(Chosen("Long.mp3"), "a song of an hour");
    BeatWindow::AddHelpShown = true;
    Open();
    Add(Chosen("Long.mp3"), Chosen("Picture.bmp"));
    EXPECT_THAT(told,
                ElementsAre(std::string("The duration of this file is 5 seconds,|This will be trimmed to 3 seconds.|") +
                            kAddHint));
}

TEST_F(AddBeatTest, TellsOfASoundThatCannotBeRead)
{
    WriteBytes(Chosen("Bell.mp3"), "damaged");
    BeatWindow::AddHelpShown = true;
    Open();
    Add(Chosen("Bell.mp3"), Chosen("Picture.bmp"));
    EXPECT_EQ(services.soundReader.calls.size(), 1U);
    EXPECT_THAT(told, ElementsAre("Failed to load wav file.|"));
    ASSERT_EQ(services.messages.shown.size(), 1U) << "the reader of waves tells why";
    EXPECT_EQ(services.messages.shown[0].title, "Error Loading " + Chosen("Bell.mp3").native());
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
    EXPECT_TRUE(fs::is_empty(Shared().TempFolder));
}

TEST_F(AddBeatTest, EndsSilentlyWhenTheUserStopsTheReading)
{
    ConvertTo(QuietWave(200));
    services.screen.progressesBeforeStop = 0;
    WriteBytes(Chosen("Bell.mp3"), "a song");
    BeatWindow::AddHelpShown = true;
    Open();
    Add(Chosen("Bell.mp3"), Chosen("Picture.bmp"));
    EXPECT_EQ(questions.size(), 1U);
    EXPECT_THAT(told, IsEmpty());
    EXPECT_THAT(services.messages.shown, IsEmpty());
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
    EXPECT_EQ(GetSetting("General", "WavFileSelPath", "none"), "none");
}

TEST_F(AddBeatTest, DeletesTheConvertedSoundWhenThePictureIsCancelled)
{
    ConvertTo(QuietWave(200));
    WriteBytes(Chosen("Bell.mp3"), "a song");
    Open();
    Add(Chosen("Bell.mp3"), std::nullopt);
    EXPECT_EQ(questions.size(), 2U);
    EXPECT_TRUE(fs::is_empty(Shared().TempFolder));
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
}

TEST_F(AddBeatTest, WaitsForNoPipeAndNoDevice)
{
    BeatWindow::AddHelpShown = true;
    ASSERT_EQ(::mkfifo(Chosen("pipe.mp3").c_str(), 0600), 0);
    Open();
    for (const fs::path& file : {Chosen("pipe.mp3"), fs::path("/dev/zero"), services.folder.Path()}) {
        Add(file, Chosen("Picture.bmp"));
        EXPECT_THAT(told, ElementsAre("Failed to load wav file.|"));
    }
    EXPECT_THAT(services.soundReader.calls, IsEmpty());
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
}

TEST_F(AddBeatTest, TellsOfADamagedPictureAndAddsNothing)
{
    WriteBytes(Chosen("Picture.bmp"), "bad");
    Open();
    Add(Chosen("Bell.wav"), Chosen("Picture.bmp"));
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].title, "");
    EXPECT_EQ(services.messages.shown[0].text,
              "Error adding beat\r\nThe picture " + Chosen("Picture.bmp").native() + " cannot be read.");
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
    EXPECT_TRUE(window->isVisible());
    ClickBeat(1);
    EXPECT_EQ(play.PlayLength, 10);
}

TEST_F(AddBeatTest, NeverProtectsANewBeat)
{
    Open();
    Add(Chosen("Bell.wav"), Chosen("Picture.bmp"));
    EXPECT_FALSE(Grid().Entry(2).Original);
    EXPECT_TRUE(Grid().Entry(1).Original);
}

/// A .gif of one red pixel.
const QByteArray& GifBytes()
{
    static const QByteArray bytes =
        QByteArray::fromHex("47494638396101000100800000ff0000ffffff2c00000000010001000002024401003b");
    return bytes;
}

TEST_F(AddBeatTest, StoresEveryKindAndSizeOfPictureAsASmallBmp)
{
    QtPictureFiles pictures;
    TheServices().pictures = &pictures;
    QImage photo(200, 100, QImage::Format_RGB32);
    photo.fill(Qt::green);
    ASSERT_TRUE(photo.save(QFile::decodeName(Chosen("photo.jpg").c_str()), "JPG"));
    WriteBytes(Chosen("dot.GIF"), GifBytes().toStdString());
    ASSERT_TRUE(photo.save(QFile::decodeName(Chosen("flag.png").c_str()), "PNG"));
    fs::remove(Shared().UserBeats / "original.bmp");
    Open();
    BeatWindow::AddHelpShown = true;
    Add(Chosen("Bell.wav"), Chosen("photo.jpg"));
    Add(Chosen("Bell.wav"), Chosen("dot.GIF"));
    Add(Chosen("Bell.wav"), Chosen("flag.png"));
    EXPECT_THAT(services.messages.shown, IsEmpty());
    const QImage fromPng(QFile::decodeName((Shared().UserBeats / "New2Bell.bmp").c_str()), "BMP");
    EXPECT_EQ(fromPng.size(), QSize(32, 32));
    EXPECT_EQ(fromPng.pixelColor(0, 8), QColor(Qt::green));
    EXPECT_EQ(fromPng.pixelColor(0, 7), QColor(Qt::white)) << "it is twice as wide as high";
    const QImage fromJpg(QFile::decodeName((Shared().UserBeats / "Bell.bmp").c_str()), "BMP");
    EXPECT_EQ(fromJpg.size(), QSize(32, 32));
    EXPECT_GT(fromJpg.pixelColor(16, 16).green(), 250);
    const QImage fromGif(QFile::decodeName((Shared().UserBeats / "New1Bell.bmp").c_str()), "BMP");
    EXPECT_EQ(fromGif.size(), QSize(32, 32));
    EXPECT_EQ(fromGif.pixelColor(0, 0), QColor(Qt::red));
    const QImage grid = Grid().grab().toImage();
    EXPECT_GT(grid.pixelColor(20, 20).green(), 250);
    EXPECT_LT(grid.pixelColor(20, 20).red(), 5);
    EXPECT_EQ(grid.pixelColor(60, 20), QColor(Qt::red));
}

TEST_F(RenameBeatTest, RenamesThePairKeepsItsPlaceAndSelectsIt)
{
    MakeBeat("a", 10);
    MakeBeat("b", 10);
    Open("a");
    Rename(QStringLiteral("Zimbel"));
    EXPECT_THAT(told, ElementsAre("Enter the new name||Enter a new name for this beat"));
    EXPECT_EQ(FilesOfUserBeats(), "Zimbel.bmp Zimbel.wav b.bmp b.wav original.bmp original.wav ");
    EXPECT_EQ(ListedNames(), "Zimbel b original ");
    EXPECT_EQ(TextOf("NmLbl"), "Zimbel");
}

TEST_F(RenameBeatTest, PutsUnderlinesForForbiddenCharactersButNotForTheBar)
{
    MakeBeat("a", 10);
    Open("a");
    Rename(QStringLiteral("./\\:*?\"<>|x"));
    EXPECT_EQ(FilesOfUserBeats(), "_________|x.bmp _________|x.wav original.bmp original.wav ");
    EXPECT_EQ(TextOf("NmLbl"), "_________|x");
}

TEST_F(RenameBeatTest, TakesNamesOfOtherAlphabets)
{
    MakeBeat("a", 10);
    Open("a");
    Rename(QString::fromUtf8("Тамбурин 太鼓"));
    EXPECT_EQ(TextOf("NmLbl"), "Тамбурин 太鼓");
    Click(*window, "OkBtn");
    EXPECT_EQ(window->ChosenBeatName, "тамбурин 太鼓");
    EXPECT_TRUE(FileExists(NamedFile(Shared().UserBeats, window->ChosenBeatName, ".wav")));
    Open(window->ChosenBeatName);
    EXPECT_EQ(TextOf("NmLbl"), "Тамбурин 太鼓");
}

TEST_F(RenameBeatTest, EndsForAnEmptyAnswerAndForTheOldName)
{
    MakeBeat("a", 10);
    Open("a");
    const std::string index = IndexText();
    Rename(QString());
    Rename(QStringLiteral("a"));
    EXPECT_EQ(FilesOfUserBeats(), "a.bmp a.wav original.bmp original.wav ");
    EXPECT_EQ(IndexText(), index);
    EXPECT_THAT(services.messages.shown, IsEmpty());
}

TEST_F(RenameBeatTest, TellsWhereTheNameIsTaken)
{
    MakeBeat("a", 10);
    MakeBeat("B", 20);
    Open("a");
    Rename(QStringLiteral("b"));
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].text, "Error renaming beat\r\nThe file B.wav already exists.");
    EXPECT_EQ(FilesOfUserBeats(), "B.bmp B.wav a.bmp a.wav original.bmp original.wav ");
    EXPECT_EQ(TextOf("NmLbl"), "a");
}

TEST_F(RenameBeatTest, LosesABeatWhosePictureCouldNotFollow)
{
    MakeBeat("a", 10);
    WriteBytes(Shared().UserBeats / "b.bmp", "another");
    fs::remove(Shared().UserBeats / "original.wav");
    Open("a");
    fs::remove(Shared().UserBeats / "a.bmp");
    Rename(QStringLiteral("c"));
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].text, "Error renaming beat\r\nThe file a.bmp was not found.");
    EXPECT_EQ(ListedNames(), "");
    EXPECT_EQ(TextOf("NoteLbl"), "No beat file found");
}

TEST_F(RenameBeatTest, RefusesOriginals)
{
    Open();
    Rename(QStringLiteral("x"));
    EXPECT_THAT(told, ElementsAre("\"original\" is an original Beat from Tonquill|Renaming is not possible.|"
                                  "Can not rename"));
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
}

TEST_F(RenameBeatTest, RefusesOriginalsAlsoWhereTunesMayBeEdited)
{
    Shared().AllowEditOriginal = true;
    Open();
    Rename(QStringLiteral("x"));
    Delete("OkBtn");
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
}

TEST_F(RenameBeatTest, NeedsABeat)
{
    fs::remove(Shared().UserBeats / "original.wav");
    Open();
    Rename(QStringLiteral("x"));
    EXPECT_THAT(told, ElementsAre("Select a beat to rename.|Click on a picture to select a beat"));
    EXPECT_EQ(statusLbl.text(), QString());
}

TEST_F(DeleteBeatTest, DeletesThePairAfterAQuestionAndSelectsTheBeatBehind)
{
    MakeBeat("a", 10);
    MakeBeat("b", 10);
    Open("a");
    Delete("YesBtn");
    EXPECT_THAT(told, ElementsAre("Are you sure to delete this Beat?|Beat name: a|Click Yes to delete, No to keep"));
    EXPECT_EQ(caption, QStringLiteral("  Confirm Delete Beat"));
    EXPECT_EQ(FilesOfUserBeats(), "b.bmp b.wav original.bmp original.wav ");
    EXPECT_EQ(ListedNames(), "b original ");
    EXPECT_EQ(TextOf("NmLbl"), "b");
    EXPECT_THAT(IndexText(), testing::HasSubstr("b=2\r\noriginal=3\r\n")) << "the order was written";
    EXPECT_EQ(statusLbl.text(), QString());
}

TEST_F(DeleteBeatTest, SelectsTheOneBeforeWhenTheLastWasDeleted)
{
    MakeBeat("a", 10);
    MakeBeat("z", 10);
    Open("z");
    Delete("YesBtn");
    EXPECT_EQ(ListedNames(), "a original ");
    EXPECT_EQ(TextOf("NmLbl"), "original");
}

TEST_F(DeleteBeatTest, LeavesAnEmptyWindowWhenTheOnlyBeatWasDeleted)
{
    fs::remove(Shared().UserBeats / "original.wav");
    MakeBeat("a", 10);
    Open();
    Delete("YesBtn");
    EXPECT_EQ(TextOf("NoteLbl"), "No beat file found");
    Delete("OkBtn");
    EXPECT_THAT(told, ElementsAre("Select a beat to delete.|Click on a picture to select a beat"));
}

TEST_F(DeleteBeatTest, KeepsTheBeatOnNo)
{
    MakeBeat("a", 10);
    Open("a");
    Delete("NoBtn");
    EXPECT_EQ(FilesOfUserBeats(), "a.bmp a.wav original.bmp original.wav ");
    EXPECT_EQ(TextOf("NmLbl"), "a");
}

TEST_F(DeleteBeatTest, RefusesOriginals)
{
    Open();
    Delete("OkBtn");
    EXPECT_THAT(told, ElementsAre("This an original Beat from Tonquill|It can not be deleted.|Blue bordered are "
                                  "originals, red bordered are your new beats"));
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
}

} // namespace
} // namespace sprout
