// SPDX-License-Identifier: GPL-3.0-or-later
#include "song_window/SongList.h"

#include <QKeyEvent>
#include <QSignalBlocker>

#include "ui/look/Look.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

bool MovesSelection(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown ||
           key == Qt::Key_Home || key == Qt::Key_End || key == Qt::Key_Left || key == Qt::Key_Right;
}

} // namespace

SongList::SongList(QWidget* parent) : QListWidget(parent)
{
    setFont(LabelFont());
    setTextElideMode(Qt::ElideMiddle); // names of copies differ at the end
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
}

void SongList::LoadSongNames()
{
    songs = ListOwnAndClassSongs();
    const QSignalBlocker quiet(this);
    clear();
    for (const SongFile& song : songs) {
        const Words name = Words::AsIs(song.Name);
        SetLongToolTip(*AddLine(*this, name), name);
    }
    if (songs.empty())
        AddLine(*this, nothingFound)->setFlags(Qt::NoItemFlags);
}

int SongList::SelectedRow() const
{
    const QList<QListWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? -1 : row(selected.front());
}

const SongFile* SongList::SelectedSong() const
{
    const int selected = SelectedRow();
    return selected < 0 || songs.empty() ? nullptr : &songs[static_cast<std::size_t>(selected)];
}

void SongList::SelectRow(int row)
{
    const QSignalBlocker quiet(this);
    setCurrentRow(row);
}

void SongList::updateGeometries()
{
    const int line = sizeHintForRow(0);
    const int room = viewport()->height() + viewportMargins().bottom();
    const int below = line > 0 && line <= room ? room % line : 0;
    if (below != viewportMargins().bottom())
        setViewportMargins(0, 0, 0, below);
    QListWidget::updateGeometries();
}

void SongList::keyPressEvent(QKeyEvent* event)
{
    if (!SelectFirst(event->key()))
        QListWidget::keyPressEvent(event);
    if (MovesSelection(event->key()))
        event->accept();
}

/// A list that gets the focus makes its first line current without selecting it; the first key then selects that line
/// and does not move on from it.
bool SongList::SelectFirst(int key)
{
    const bool fromNothing = selectedItems().isEmpty() && count() > 0 && item(0)->flags() != Qt::NoItemFlags;
    if (!fromNothing || (key != Qt::Key_Down && key != Qt::Key_Up && key != Qt::Key_PageDown && key != Qt::Key_PageUp))
        return false;
    setCurrentRow(0);
    return true;
}

} // namespace sprout
