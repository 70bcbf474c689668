#pragma once

#include "zkcore/base/export.h"

#include <QRectF>

class ElementImpl;
class QPainter;
class Resource;
class SpaceImpl;

/// Paints elements and whole spaces, on paper and on the screen. The painter's coordinates must be metres of the space:
/// scale it by the device's dots per metre first. The painter's state is the same after each call.
class ZKCORE_EXPORT ScenePainter
{
public:
    /// The painter is not owned and must be active.
    explicit ScenePainter(QPainter& painter);

    /// How strongly elements whose "visible" is false are painted, from 0 to 1. 0, as it is at first, leaves them out;
    /// an editor shows them faintly.
    void setHiddenOpacity(double opacity);
    /// Whether labels are written under the parts; true at first.
    void setLabelsShown(bool shown) { m_labelsShown = shown; }

    /// Paints an element with everything in it, where it stands in its space.
    void paintElement(const ElementImpl& element);
    /// Paints the space's background (and grid, if it shows one) and its parts, back to front. With an `area` that is
    /// not empty, parts outside it may be left out.
    void paintSpace(const SpaceImpl& space, const QRectF& area = QRectF());
    /// Only the background and the grid.
    void paintBackground(const SpaceImpl& space);

private:
    // These paint in millimetres.
    bool beginElement(const ElementImpl& element);
    void paintConnection(const ElementImpl& connection);
    void paintPart(const ElementImpl& part);
    void paintSubpart(const ElementImpl& subpart, bool reflected);
    void paintBody(const ElementImpl& element);
    void paintRunningState(const ElementImpl& element, const QRectF& rect);
    void paintPicture(const ElementImpl& element, const Resource& picture, QRectF rect);
    void paintText(const ElementImpl& element, const QRectF& rect);
    void paintLabel(const ElementImpl& element);

    QPainter& m_painter;
    double m_hiddenOpacity = 0.0;
    bool m_labelsShown = true;
};
