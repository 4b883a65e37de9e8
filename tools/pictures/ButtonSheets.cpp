// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/ButtonSheets.h"

#include <QWidget>

#include <algorithm>
#include <array>
#include <vector>

#include "pictures/SheetPicture.h"
#include "ui/look/Palette.h"
#include "ui/widgets/ButtonScheme.h"

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
        {{"PlayAllBtn"}, tool},
        {{"PlayStopBtn"}, tool},
        {{"BrushBtn"}, tool},
        {{"EraserBtn"}, tool},
        {{"PlayToolBtn"}, tool},
        {{"NewBtn"}, tool},
        {{"OpenBtn"}, tool},
        {{"SaveBtn"}, tool},
        {{"SongTitleChgBtn"}, tool},
        {{"EmailBtn"}, tool},
        {{"HelpBtn"}, tool},
        {{"AboutBtn"}, tool},
        {{"DemoBtn"}, tool},
        {{"VolumeUpBtn"}, tool},
        {{"VolumeDnBtn"}, tool},
        {{"DeleteBtn"}, tool},
        {{"ZoomInBtn"}, tool},
        {{"ZoomOutBtn"}, tool},
        {{"TrackAddBtn"}, addTool},
        {{"TrackAddRecBtn"}, addTool},
        {{"BrushBtn"}, {40, 40}},
        {{"TrackPlayBtn"}, {32, 32}},
        {{"TrackAudioBtn"}, {34, 34}},
        {{"CloseImgBtn", {}, {}, Plate::Title}, title},
        {{"MaximizeImgBtn", {}, {}, Plate::Title}, title},
        {{"MinimizeImgBtn", {}, {}, Plate::Title}, title},
        {{"RestoreImgBtn", {}, {}, Plate::Title}, title},
        {{"TrackDeleteBtn", {}, {}, Plate::Title}, {14, 16}},
    };
    return buttons;
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
    SaveSheet(sheet, folder, QStringLiteral("buttons"));
}

void DrawWordSheet(const QString& folder)
{
    const std::array rows{
        ButtonRow{"OkBtn", Words::Later("OK"), {}, Plate::Word, kDeepLeaf},
        ButtonRow{"CancelBtn", Words::Later("Cancel"), {}, Plate::Word, kStone},
        ButtonRow{"StartRecordingBtn", Words::Later("Recording"), {}, Plate::Word, kCoral, "WordRecord"}};
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
    sheet.resize(std::max(700, sheet.childrenRect().right() + 10), top);
    SaveSheet(sheet, folder, QStringLiteral("words"));
}

} // namespace

void DrawButtonSheets(const QString& folder)
{
    DrawButtonSheet(folder);
    DrawWordSheet(folder);
}

} // namespace sprout
