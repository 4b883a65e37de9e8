// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/PictureGridAccessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QPointer>

#include <unordered_map>

#include "ui/widgets/PictureGridPic.h"
#include "ui/words/QtText.h"

namespace sprout {

namespace {

/// One picture. It knows only its index, so it survives changes of the grid.
class PictureAccessible : public QAccessibleInterface {
public:
    PictureAccessible(PictureGridPic& owner, int ordinal) : grid(&owner), index(ordinal) {}

    bool isValid() const override { return grid && index <= grid->Count(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(grid); }
    QAccessibleInterface* child(int /*child*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid())
            return {};
        if (kind == QAccessible::Name)
            return QtText(grid->Entry(index).Name);
        if (kind == QAccessible::Description)
            return QtText(grid->Entry(index).Original ? Words::Text("original") : Words::Text("your own"));
        return {};
    }

    QRect rect() const override
    {
        if (!isValid())
            return {};
        const GridPlace place = PlaceInGrid(grid->Grid(), index);
        return {grid->mapToGlobal(QPoint(place.x, place.y)), QSize(kPictureSide, kPictureSide)};
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invalid = !isValid();
        if (!isValid())
            return state;
        state.selectable = true;
        state.focusable = true;
        state.selected = grid->Selected() == index;
        state.focused = state.selected && grid->hasFocus();
        state.offscreen = !IsInGridView(grid->Grid(), index);
        return state;
    }

    [[nodiscard]] int Index() const { return index; }

private:
    QPointer<PictureGridPic> grid;
    int index;
};

class GridAccessible : public QAccessibleWidget {
public:
    explicit GridAccessible(PictureGridPic& owner) : QAccessibleWidget(&owner, QAccessible::List) {}
    GridAccessible(const GridAccessible&) = delete;
    GridAccessible& operator=(const GridAccessible&) = delete;

    int childCount() const override { return Grid().Count(); }

    QAccessibleInterface* child(int place) const override
    {
        if (place < 0 || place >= childCount())
            return nullptr;
        auto known = items.find(place);
        if (known == items.end()) {
            auto* item = new PictureAccessible(Grid(), place + 1); // owned by the registry
            known = items.emplace(place, QAccessible::registerAccessibleInterface(item)).first;
        }
        return QAccessible::accessibleInterface(known->second);
    }

    QAccessibleInterface* childAt(int x, int y) const override
    {
        const QPoint at = Grid().mapFromGlobal(QPoint(x, y));
        return Grid().rect().contains(at) ? child(HitTestGrid(Grid().Grid(), at.x(), at.y()) - 1) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface* item) const override
    {
        const auto* picture = dynamic_cast<const PictureAccessible*>(item);
        return picture ? picture->Index() - 1 : -1;
    }

    QAccessibleInterface* focusChild() const override { return child(Grid().Selected() - 1); }

protected:
    ~GridAccessible() override
    {
        for (const auto& [place, id] : items)
            QAccessible::deleteAccessibleInterface(id);
    }

private:
    [[nodiscard]] PictureGridPic& Grid() const { return *static_cast<PictureGridPic*>(widget()); }

    mutable std::unordered_map<int, QAccessible::Id> items; ///< by place from 0; created on request
};

QAccessibleInterface* MakeGridAccessible(const QString& /*className*/, QObject* object)
{
    auto* grid = qobject_cast<PictureGridPic*>(object);
    return grid ? new GridAccessible(*grid) : nullptr;
}

} // namespace

void InstallPictureGridAccessible()
{
    QAccessible::installFactory(MakeGridAccessible); // installing it again has no effect
}

void TellChosenPicture(PictureGridPic& grid)
{
    if (!QAccessible::isActive() || !grid.hasFocus() || grid.Selected() < 1 || grid.Selected() > grid.Count())
        return;
    QAccessibleEvent focus(&grid, QAccessible::Focus);
    focus.setChild(grid.Selected() - 1);
    QAccessible::updateAccessibility(&focus);
}

} // namespace sprout
