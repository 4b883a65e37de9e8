// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>

#include <cstdint>

#include "main_window/TrackCanvasCalls.h"
#include "main_window/rules/Stroke.h"
#include "main_window/rules/TrackGeometry.h"
#include "main_window/rules/TrackPointer.h"

namespace sprout {

class TrackPic;

/// The tool on the painting surface: what a press, a move and a release of the mouse do to the shared song, and what
/// the surface shows for the pointer.
class TrackTool : public QObject {
    Q_OBJECT

public:
    /// Takes the mouse events of the surface. All three outlive this object or die with it.
    TrackTool(TrackPic& surface, const TrackView& view, const TrackCanvasCalls& calls);

    /// Sets the tool for future presses and drags, and the mouse pointer for it.
    void SetCurrentTool(Tool newTool);
    [[nodiscard]] Tool CurrentTool() const { return tool; }

    /// A stroke has begun and not ended.
    [[nodiscard]] bool IsDrawing() const { return stroke.Dragging(); }
    /// The track that is being painted with the brush, 0 for none.
    [[nodiscard]] std::int32_t BrushedTrack() const;

    void Press(QPoint at);
    void Move(QPoint at);
    void EndStroke() { stroke.End(); }

Q_SIGNALS:
    /// The user draws; the cell below the press comes after this.
    void StrokeBegun();
    /// Cells of a track have changed.
    void Painted(int track);

private:
    void Leave();
    [[nodiscard]] TrackHit HitTest(QPoint at) const;
    void BeginStroke(const TrackHit& hit, QPoint at);
    void ShowPointer(const TrackPointer& pointer);
    void ShowPointerImage(PointerImage image);

    TrackPic& trackPic;
    const TrackView& view;
    const TrackCanvasCalls& calls;
    Tool tool = Tool::Brush;
    Stroke stroke;
    PointerImage pointerImage = PointerImage::Default;
};

} // namespace sprout
