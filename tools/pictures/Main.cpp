// SPDX-License-Identifier: GPL-3.0-or-later
// Draws sheets of all buttons, artworks and dialogs as they look on a screen with a given scale.
#include <QApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QLabel>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string_view>

#include "BeatWindowSheets.h"
#include "EditorSheets.h"
#include "MainWindowSheets.h"
#include "RecordingSheets.h"
#include "SongWindowSheets.h"
#include "StepEditorSheets.h"
#include "TuneWindowSheets.h"
#include "ui/Artwork.h"
#include "ui/ButtonScheme.h"
#include "ui/Look.h"
#include "ui/MessageForms.h"
#include "ui/Palette.h"
#include "ui/ProcessPic.h"
#include "ui/WorkFrm.h"

namespace sprout {
namespace {

constexpr std::array kFaces{ButtonFace::Normal, ButtonFace::Raised, ButtonFace::Pressed, ButtonFace::PressedOn};
constexpr int kCellWidth = 76;
constexpr int kCellHeight = 72;
constexpr int kButtonsInARow = 4;

struct SheetButton {
    ButtonRow row;
    QSize size;
};

const std::vector<SheetButton>& SheetButtons()
{
    constexpr QSize tool{56, 56};
    constexpr QSize addTool{48, 48};
    constexpr QSize title{24, 24};
    static const std::vector<SheetButton> buttons{
        {{"PlayAllBtn", "", ""}, tool},
        {{"PlayStopBtn", "", ""}, tool},
        {{"BrushBtn", "", ""}, tool},
        {{"EraserBtn", "", ""}, tool},
        {{"PlayToolBtn", "", ""}, tool},
        {{"NewBtn", "", ""}, tool},
        {{"OpenBtn", "", ""}, tool},
        {{"SaveBtn", "", ""}, tool},
        {{"SongTitleChgBtn", "", ""}, tool},
        {{"EmailBtn", "", ""}, tool},
        {{"HelpBtn", "", ""}, tool},
        {{"AboutBtn", "", ""}, tool},
        {{"DemoBtn", "", ""}, tool},
        {{"VolumeUpBtn", "", ""}, tool},
        {{"VolumeDnBtn", "", ""}, tool},
        {{"DeleteBtn", "", ""}, tool},
        {{"ZoomInBtn", "", ""}, tool},
        {{"ZoomOutBtn", "", ""}, tool},
        {{"TrackAddBtn", "", ""}, addTool},
        {{"TrackAddRecBtn", "", ""}, addTool},
        {{"BrushBtn", "", ""}, {40, 40}},
        {{"TrackPlayBtn", "", ""}, {32, 32}},
        {{"TrackAudioBtn", "", ""}, {34, 34}},
        {{"CloseImgBtn", "", "", Plate::Title}, title},
        {{"MaximizeImgBtn", "", "", Plate::Title}, title},
        {{"MinimizeImgBtn", "", "", Plate::Title}, title},
        {{"RestoreImgBtn", "", "", Plate::Title}, title},
        {{"TrackDeleteBtn", "", "", Plate::Title}, {14, 16}},
    };
    return buttons;
}

void Save(QWidget& widget, const QString& folder, const QString& name)
{
    const QPixmap picture = widget.grab();
    const QString path = QStringLiteral("%1/%2.png").arg(folder, name);
    if (!picture.save(path))
        std::fprintf(stderr, "%s cannot be written.\n", qPrintable(path));
}

void DrawButtonSheet(const QString& folder)
{
    QWidget sheet;
    ButtonScheme scheme(sheet, AllOffTimer::OffAtFirst);
    int index = 0;
    for (const SheetButton& button : SheetButtons()) {
        const int column = index % kButtonsInARow * static_cast<int>(kFaces.size());
        const int row = index / kButtonsInARow;
        for (std::size_t face = 0; face < kFaces.size(); ++face) {
            ImageButton& made = scheme.AddButton(button.row, [] {});
            made.resize(button.size);
            made.SetFace(kFaces[face]);
            made.move((column + static_cast<int>(face)) * kCellWidth + 10, row * kCellHeight + 8);
        }
        ++index;
    }
    const int rows = (index + kButtonsInARow - 1) / kButtonsInARow;
    sheet.resize(kButtonsInARow * static_cast<int>(kFaces.size()) * kCellWidth, rows * kCellHeight);
    Save(sheet, folder, QStringLiteral("buttons"));
}

void DrawWordSheet(const QString& folder)
{
    const std::array rows{ButtonRow{"OkBtn", "OK", "", Plate::Word, kDeepLeaf},
                          ButtonRow{"CancelBtn", "Cancel", "", Plate::Word, kStone},
                          ButtonRow{"StartRecordingBtn", "Recording", "", Plate::Word, kCoral, "WordRecord"}};
    QWidget sheet;
    ButtonScheme scheme(sheet, AllOffTimer::OffAtFirst);
    int top = 8;
    for (const ButtonRow& row : rows) {
        int left = 10;
        for (const ButtonFace face : kFaces) {
            ImageButton& made = scheme.AddButton(row, [] {});
            made.SetFace(face);
            made.move(left, top);
            left += made.width() + 16;
        }
        top += 60;
    }
    sheet.resize(700, top);
    Save(sheet, folder, QStringLiteral("words"));
}

class ArtSheet : public QWidget {
public:
    ArtSheet() { resize(900, 560); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), kPaper);
        for (int tile = 0; tile <= 10; ++tile) {
            const QPixmap pixmap =
                Artwork(QStringLiteral("tiles/Tile%1").arg(tile), QSize(64, 32), devicePixelRatioF());
            const int top = 8 + tile * 46;
            for (int x = 0; x < 3; ++x)
                painter.drawPixmap(10 + x * 64, top, pixmap);
            painter.fillRect(10, top, 192, 1, Qt::black);
            painter.fillRect(10, top + 32, 192, 1, Qt::black);
            painter.fillRect(58, top, 1, 5, Qt::black);
            painter.fillRect(58, top + 28, 1, 5, Qt::black);
            painter.fillRect(10, top, 1, 33, Qt::black);
        }
        DrawPictures(painter);
    }

private:
    void DrawPictures(QPainter& painter) const
    {
        int x = 230;
        int y = 8;
        QDirIterator files(QStringLiteral(":/art/pictures"));
        while (files.hasNext()) {
            const QString name = QFileInfo(files.next()).completeBaseName();
            const QSize size = SizeOf(name);
            if (x + size.width() > width() - 10) {
                x = 230;
                y += 90;
            }
            painter.drawPixmap(x, y, Artwork(QStringLiteral("pictures/") + name, size, devicePixelRatioF()));
            painter.setPen(kBark);
            painter.setFont(HintFont());
            painter.drawText(x, y + 84, name.left(15));
            x += std::max(size.width() + 14, 120);
        }
    }

    static QSize SizeOf(const QString& name)
    {
        if (name == QStringLiteral("TempoPrtImg"))
            return {30, 35};
        if (name == QStringLiteral("TimeSlide"))
            return {200, 15};
        if (name.startsWith(QStringLiteral("BusyMark")))
            return {3, 17};
        if (name == QStringLiteral("PlayPosImg"))
            return {3, 32};
        if (name == QStringLiteral("DeleteButtonPic"))
            return {14, 16};
        if (name.startsWith(QStringLiteral("TrackBlankPic")) || name.startsWith(QStringLiteral("TrackPlainPic")))
            return {64, 42};
        const bool small = name == QStringLiteral("PlayPic") || name == QStringLiteral("RecordButtonPic") ||
                           name.startsWith(QStringLiteral("Blank")) || name.endsWith(QStringLiteral("TunePicture"));
        return small ? QSize(32, 32) : QSize(64, 64);
    }
};

/// Lays pictures in rows on one sheet.
class FormSheet {
public:
    /// Shows the widget first to give it its focus.
    void Add(QWidget& widget)
    {
        widget.show();
        QApplication::processEvents();
        pictures.push_back(widget.grab());
    }

    void SaveTo(const QString& folder)
    {
        QLabel sheet;
        sheet.resize(kSheetWidth, Lay(nullptr));
        QPixmap paper(sheet.size() * pictures.front().devicePixelRatio());
        paper.setDevicePixelRatio(pictures.front().devicePixelRatio());
        paper.fill(kStone);
        QPainter painter(&paper);
        Lay(&painter);
        painter.end();
        sheet.setPixmap(paper);
        Save(sheet, folder, QStringLiteral("forms"));
    }

private:
    static constexpr int kSheetWidth = 1000;
    static constexpr int kGap = 12;

    /// Draws the pictures, if there is a painter, and returns the height of all rows.
    int Lay(QPainter* painter) const
    {
        int x = kGap;
        int y = kGap;
        int rowHeight = 0;
        for (const QPixmap& picture : pictures) {
            const QSize size = picture.deviceIndependentSize().toSize();
            if (x + size.width() > kSheetWidth) {
                x = kGap;
                y += rowHeight + kGap;
                rowHeight = 0;
            }
            if (painter)
                painter->drawPixmap(x, y, picture);
            x += size.width() + kGap;
            rowHeight = std::max(rowHeight, size.height());
        }
        return y + rowHeight + kGap;
    }

    std::vector<QPixmap> pictures;
};

void DrawMessages(FormSheet& sheet)
{
    const auto draw = [&sheet](BandedForm& form, const char* caption) {
        form.SetCaption(caption);
        sheet.Add(form);
    };
    Msg1BtnFrm one(nullptr, "Please enter a song name.");
    draw(one, " Tonquill Sprout Painter");
    Msg1Btn2NoteFrm two(nullptr, "Please paint on the track.", "Use the paint button and draw on the track.");
    draw(two, " Tonquill Sprout Painter");
    MsgYesNoFrm question(nullptr, "Are you sure to delete this Track?", "Track No: 3");
    draw(question, " Confirm Delete Track");
    Msg3BtnFrm three(nullptr, "Choose Audio Type to add:");
    draw(three, " Add Audio Track");
    SaveConfirmFrm save(nullptr, "Rain on the roof");
    draw(save, " Tonquill Sprout Painter");
    PlainBoxFrm plain(nullptr, "Could not Play Sound\nDriver busy or not ready\nCheck whether sound driver is ON",
                      MessageIcon::Exclamation);
    draw(plain, " Play Failed");
    const std::string words = "This is a very long line of a message that does not fit on the screen of a small "
                              "computer and therefore has to go on in another line, word by word. ";
    Msg1BtnFrm wide(nullptr, words + words);
    draw(wide, " A title that is much longer than the form is wide has to end somewhere, or else it would stick out of "
               "the form, far behind the close box");
}

void DrawInputs(FormSheet& sheet)
{
    InputBoxFrm input(nullptr, "Zumi", "Enter the new name:", "");
    input.SetCaption(" Rename");
    sheet.Add(input);
    InputBoxFrm longInput(nullptr, "Zumi", "Enter the new name:", "It may hold letters and numbers.");
    longInput.SetCaption(" Rename");
    sheet.Add(longInput);
    SongTitleFrm title(nullptr, "Zumi", "Your name here");
    title.SetCaption(" Change Song Title");
    sheet.Add(title);
}

void DrawForms(const QString& folder)
{
    FormSheet sheet;
    DrawMessages(sheet);
    DrawInputs(sheet);
    QWidget window;
    window.resize(240, 180);
    ProcessPic sign(&window);
    sign.Appear();
    window.show();
    sign.ShowProgress(12, 20);
    sheet.Add(window);
    WorkFrm work(nullptr, "Writing the wav file");
    work.ShowShare(3, 5);
    sheet.Add(work);
    sheet.SaveTo(folder);
}

} // namespace
} // namespace sprout

namespace {

constexpr const char* kUsage = "usage: sprout-pictures SCALE FOLDER [SONG]\n"
                               "       sprout-pictures --window PICTURE SONG\n"
                               "       sprout-pictures --pixels PICTURE...\n"
                               "Draws buttons, artworks, dialogs and, with a song, the main window, for example at the "
                               "scale 2; or the\nmain window alone; or tells a hash of each picture's pixels, its size "
                               "and its name.\n";

/// Prints a line about the picture; returns false if it cannot be read.
bool TellPixels(const QString& path)
{
    const QImage image = QImage(path).convertToFormat(QImage::Format_ARGB32);
    if (image.isNull()) {
        std::fprintf(stderr, "%s is no picture.\n", qPrintable(path));
        return false;
    }
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (int y = 0; y < image.height(); ++y)
        hash.addData(QByteArrayView(image.constScanLine(y), qsizetype{image.width()} * 4));
    std::printf("%s %dx%d %s\n", hash.result().toHex().constData(), image.width(), image.height(), qPrintable(path));
    return true;
}

void StartOffscreen(const char* scale)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", scale);
}

void DrawAllSheets(const QString& folder)
{
    sprout::DrawButtonSheet(folder);
    sprout::DrawWordSheet(folder);
    sprout::ArtSheet sheet;
    sprout::Save(sheet, folder, QStringLiteral("art"));
    sprout::DrawForms(folder);
    sprout::DrawSongWindowSheets(folder);
    sprout::DrawTuneWindowSheets(folder);
    sprout::DrawStepEditorSheets(folder);
    sprout::DrawBeatWindowSheets(folder);
    sprout::DrawEditorSheets(folder);
    sprout::DrawRecordingSheets(folder);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 2 && std::string_view(argv[1]) == "--pixels")
        return std::all_of(argv + 2, argv + argc, [](const char* path) { return TellPixels(QFile::decodeName(path)); })
                   ? 0
                   : 1;
    const bool windowAlone = argc == 4 && std::string_view(argv[1]) == "--window";
    if (argc != 3 && argc != 4) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    StartOffscreen(windowAlone ? "1" : argv[1]);
    QApplication application(argc, argv);
    sprout::ApplyLook(application);
    try {
        if (windowAlone)
            return sprout::DrawMainWindow(QFile::decodeName(argv[3]), QFile::decodeName(argv[2])) ? 0 : 1;
        const QString folder = QFile::decodeName(argv[2]);
        if (!QDir().mkpath(folder))
            throw std::runtime_error("The folder " + folder.toStdString() + " cannot be made.");
        DrawAllSheets(folder);
        if (argc == 4)
            sprout::DrawMainWindowSheets(QFile::decodeName(argv[3]), folder);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
