// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/Places.h"

#include <QListWidget>
#include <QWidget>

#include <algorithm>
#include <cstdlib>

#include "base/Errors.h"
#include "main_window/TrackCanvas.h"
#include "main_window/rules/TitleStrip.h"
#include "main_window/rules/TrackGeometry.h"
#include "tune_window/StepScrollBar.h"
#include "tune_window/rules/KeyMap.h"
#include "tune_window/rules/StepLayout.h"
#include "tutorial/Hand.h"
#include "ui/widgets/PictureGridPic.h"

namespace sprout {

namespace {

constexpr int kBesideCell = 13; ///< a cell is too narrow to aim at
constexpr int kBesidePoint = 15;
constexpr int kBesideText = 10;
constexpr int kBesideKey = 13;
constexpr int kBesideKeyHeight = 6;

using PlaceWords = std::vector<std::string>;

[[noreturn]] void Refuse(const PlaceWords& words)
{
    std::string all;
    for (const std::string& word : words)
        all += " " + word;
    throw RunTimeError(Words::AsIs("In " + FrontWindow().objectName().toStdString() + " there is no" + all + "."));
}

std::int32_t NumberAt(const PlaceWords& words, std::size_t place)
{
    if (place >= words.size())
        Refuse(words);
    return std::atoi(words[place].c_str());
}

QWidget& ControlNamed(const std::string& name)
{
    for (QWidget* control : FrontWindow().findChildren<QWidget*>(QString::fromStdString(name)))
        if (control->isVisible())
            return *control;
    Refuse({name});
}

template <class Widget>
Widget& TheOne(const PlaceWords& words)
{
    auto* const widget = FrontWindow().findChild<Widget*>();
    if (!widget)
        Refuse(words);
    return *widget;
}

QRect OnScreen(const QWidget& control, const QRect& place)
{
    if (!control.rect().contains(place.center()))
        throw RunTimeError(Words::AsIs("That place of " + control.objectName().toStdString() + " is not in view."));
    return {control.mapToGlobal(place.topLeft()), place.size()};
}

/// Places in a row of the title strip: the picture of the tune, the delete button and the play button.
QRect RowPlace(const PlaceWords& words)
{
    const std::string& part = words.back();
    const std::int32_t top = RowTop(TheOne<TrackCanvas>(words).View(), NumberAt(words, 1));
    const QRect place = part == "tune"     ? QRect(kTrackPictureLeft, top + 6, 36, 36)
                        : part == "delete" ? QRect(kDeleteButtonLeft, top + kDeleteButtonTop, 26, 26)
                                           : QRect(kPlayPicLeft + 4, top + kPlayPicTop, 32, 32);
    return OnScreen(ControlNamed("TrackTitlePic"), place);
}

QRect CellPlace(const PlaceWords& words)
{
    const TrackView view = TheOne<TrackCanvas>(words).View();
    const int middle = CellLeft(view, NumberAt(words, 2)) + kCellWidth / 2;
    const int top = RowTop(view, NumberAt(words, 1)) + kPaintTop;
    return OnScreen(ControlNamed("TrackPic"), {middle - kBesideCell, top, 2 * kBesideCell + 1, kPaintHeight});
}

QRect PicturePlace(const PlaceWords& words)
{
    const auto& grid = TheOne<PictureGridPic>(words);
    for (int index = 1; index <= grid.Count(); ++index) {
        const bool isNumber = words.back() == std::to_string(index);
        if ((isNumber || grid.Entry(index).Name == words.back()) && IsInGridView(grid.Grid(), index)) {
            const GridPlace place = PlaceInGrid(grid.Grid(), index);
            return OnScreen(grid, {place.x + kGridInset, place.y + kGridInset, 32, 32});
        }
    }
    Refuse(words);
}

QRect KeyRect(std::int32_t left, std::int32_t semitones)
{
    const KeyPlace key = KeyOfPitch(semitones);
    const auto number = static_cast<std::size_t>(key.key);
    const std::int32_t top = key.octave == Octave::Upper ? kUpperOctaveTop : kLowerOctaveTop;
    const QPoint middle(left + KeyMarkX.at(number) + 2, top + KeyMarkY.at(number) + 2);
    return {middle.x() - kBesideKey, middle.y() - kBesideKeyHeight, 2 * kBesideKey + 1, 2 * kBesideKeyHeight + 1};
}

QRect StepPlace(const PlaceWords& words)
{
    const std::int32_t left = StepLeft(NumberAt(words, 1), TheOne<StepScrollBar>(words).StepsLeft());
    const std::string part = words.size() > 2 ? words[2] : "";
    const QRect place = part == "lamp"   ? QRect(left, kLampTop, kStepHitWidth, kNumberTop - kLampTop)
                        : part == "icon" ? QRect(left, kIconTop, kStepHitWidth, 32)
                                         : KeyRect(left, NumberAt(words, 3));
    return OnScreen(ControlNamed("TunFramPic"), place);
}

QRect LinePlace(const PlaceWords& words)
{
    const auto& list = TheOne<QListWidget>(words);
    const QList<QListWidgetItem*> found = list.findItems(QString::fromStdString(words.back()), Qt::MatchExactly);
    if (found.isEmpty())
        Refuse(words);
    QRect line = list.visualItemRect(found.front());
    line.setWidth(
        std::min(line.width(), list.fontMetrics().horizontalAdvance(found.front()->text()) + 2 * kBesideText));
    return OnScreen(*list.viewport(), line);
}

QRect PointPlace(const PlaceWords& words)
{
    const QRect control = FindPlace({words.at(1)});
    const QPoint middle = control.topLeft() + QPoint(control.width() * NumberAt(words, 2) / 100,
                                                     control.height() * NumberAt(words, 3) / 100);
    return {middle - QPoint(kBesidePoint, kBesidePoint), QSize(2 * kBesidePoint + 1, 2 * kBesidePoint + 1)};
}

} // namespace

QRect FindPlace(const std::vector<std::string>& words)
{
    if (words.size() == 1)
        return OnScreen(ControlNamed(words.front()), ControlNamed(words.front()).rect());
    const std::string& kind = words.front();
    if (kind == "row")
        return RowPlace(words);
    if (kind == "cell")
        return CellPlace(words);
    if (kind == "picture")
        return PicturePlace(words);
    if (kind == "step")
        return StepPlace(words);
    if (kind == "line")
        return LinePlace(words);
    if (kind == "at")
        return PointPlace(words);
    Refuse(words);
}

} // namespace sprout
