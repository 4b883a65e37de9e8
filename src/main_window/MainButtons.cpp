// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/MainButtons.h"

#include <QShortcut>

#include <array>
#include <utility>
#include <vector>

#include "main_window/TrackPictures.h"
#include "main_window/rules/MainWindowHints.h"
#include "ui/look/Artwork.h"
#include "ui/widgets/Hints.h"
#include "ui/widgets/SpokenRoles.h"

namespace sprout {

namespace {

/// A button of the window; the canvas adds its own after them.
struct MainButtonRow {
    const char* name;
    LaterWords spokenName;
    Plate plate;
    std::function<void()> MainButtonClicks::*click;
};

constexpr std::array<MainButtonRow, 17> kMainButtons{{
    {"PlayAllBtn", Words::Later("Play all"), Plate::Tool, &MainButtonClicks::PlayAllBtn},
    {"PlayStopBtn", Words::Later("Stop"), Plate::Tool, &MainButtonClicks::PlayStopBtn},
    {"BrushBtn", Words::Later("Paint brush"), Plate::Tool, &MainButtonClicks::BrushBtn},
    {"EraserBtn", Words::Later("Eraser"), Plate::Tool, &MainButtonClicks::EraserBtn},
    {"PlayToolBtn", Words::Later("Play tool"), Plate::Tool, &MainButtonClicks::PlayToolBtn},
    {"NewBtn", Words::Later("New"), Plate::Tool, &MainButtonClicks::NewBtn},
    {"OpenBtn", Words::Later("Open"), Plate::Tool, &MainButtonClicks::OpenBtn},
    {"SaveBtn", Words::Later("Save"), Plate::Tool, &MainButtonClicks::SaveBtn},
    {"SongTitleChgBtn", Words::Later("Change"), Plate::Tool, &MainButtonClicks::SongTitleChgBtn},
    {"EmailBtn", Words::Later("Email song"), Plate::Tool, &MainButtonClicks::EmailBtn},
    {"HelpBtn", Words::Later("Help"), Plate::Tool, &MainButtonClicks::HelpBtn},
    {"AboutBtn", Words::Later("About"), Plate::Tool, &MainButtonClicks::AboutBtn},
    {"DemoBtn", Words::Later("Demo"), Plate::Tool, &MainButtonClicks::DemoBtn},
    {"CloseImgBtn", Words::Later("Close"), Plate::Title, &MainButtonClicks::CloseImgBtn},
    {"MaximizeImgBtn", Words::Later("Maximize"), Plate::Title, &MainButtonClicks::MaximizeImgBtn},
    {"MinimizeImgBtn", Words::Later("Minimize"), Plate::Title, &MainButtonClicks::MinimizeImgBtn},
    {"RestoreImgBtn", Words::Later("Restore"), Plate::Title, &MainButtonClicks::RestoreImgBtn},
}};

/// A row of the scheme with the hint from the table.
ButtonRow WithHint(const MainButtonRow& row)
{
    return {row.name, row.spokenName, MainWindowHint(row.name), row.plate};
}

struct ToolButton {
    Tool tool;
    const char* name;
};

constexpr std::array kToolButtons{ToolButton{Tool::Brush, "BrushBtn"}, ToolButton{Tool::Eraser, "EraserBtn"},
                                  ToolButton{Tool::PlayTool, "PlayToolBtn"}};

} // namespace

MainButtons::MainButtons(QWidget& window, ButtonScheme& buttons, MainButtonClicks clicks) : scheme(buttons)
{
    for (const MainButtonRow& row : kMainButtons)
        scheme.AddButton(WithHint(row), [click = std::move(clicks.*row.click)] {
            ShowHint({});
            click();
        });
    DrawPicturesAhead(window.devicePixelRatioF());
}

void MainButtons::DrawPicturesAhead(qreal pixelRatio) const
{
    std::vector<WantedArtwork> wanted;
    for (const MainButtonRow& row : kMainButtons)
        for (WantedArtwork& artwork : scheme.Button(row.name).Artworks())
            wanted.push_back(std::move(artwork));
    for (WantedArtwork& artwork : CanvasArtworks(pixelRatio))
        wanted.push_back(std::move(artwork));
    DrawArtworkAhead(wanted);
}

ImageButton& MainButtons::Button(BarTool tool) const
{
    return scheme.Button(kMainButtons[static_cast<std::size_t>(tool)].name);
}

void MainButtons::MakeShortcuts(QWidget& window) const
{
    const auto add = [this, &window](const QKeySequence& keys, const char* button) {
        QObject::connect(new QShortcut(keys, &window), &QShortcut::activated, &Button(button), &QAbstractButton::click);
    };
    add(Qt::CTRL | Qt::Key_N, "NewBtn");
    add(Qt::CTRL | Qt::Key_O, "OpenBtn");
    add(Qt::CTRL | Qt::Key_S, "SaveBtn");
    add(Qt::Key_F1, "HelpBtn");
}

void MainButtons::ShowTool(Tool tool) const
{
    for (const ToolButton& row : kToolButtons) {
        ImageButton& button = Button(row.name);
        SetSpokenChoice(button, row.tool == tool);
        if (row.tool == tool)
            scheme.ButtonSetOn(button);
        else
            scheme.ButtonSetNormal(button);
    }
}

void MainButtons::ShowMaximized(bool maximized) const
{
    Button("MaximizeImgBtn").setVisible(!maximized);
    Button("RestoreImgBtn").setVisible(maximized);
}

} // namespace sprout
