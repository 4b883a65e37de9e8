// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace sprout {

/// A thin shape on top of the painting surface that moves without redrawing it. It ignores the mouse and is hidden at
/// first.
class TrackMarker : public QWidget {
    Q_OBJECT

public:
    TrackMarker(const char* name, QWidget* parent);

    /// Fills the shape with one colour.
    void SetColour(const QColor& newColour);
    /// Fills the shape with an artwork that can be stretched upwards. name: path below art/.
    void SetPicture(const QString& name);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor colour;
    QString picture;
};

} // namespace sprout
