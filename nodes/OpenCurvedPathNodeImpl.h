#pragma once
// OpenCurvedPathNodeImpl: a smooth curve through the vertices, stroked and
// never filled, with a decoration at either end. The start decoration
// points along the first vertex's backward tangent, the end one along the
// last vertex's forward tangent: the two tangents the curve itself does
// not use. Each end of the curve stops short by its decoration's backoff,
// before the interior tangents are worked out. The decorations' nodes are
// children of this node and not part of its bounds.
//
// The curved mutators do not move the decorations (see
// CurvedPathNodeImpl); updateDecorations does, and reports the change.
// Outline and hit area are those of a line (see LineOutline.h); a fill is
// not drawn, for the reason OpenLinearPathNodeImpl gives.

#include "nodes/CurvedPathNodeImpl.h"
#include "nodes/LineEnds.h"

namespace VOR2 {

class OpenCurvedPathNodeImpl : public CurvedPathNodeImpl {
public:
    static char const *const TYPE_NAME;

    char const *getFullyQualifiedTcosTypeName() const override { return TYPE_NAME; }
    bool isa(char const *typeName) const override;

    LineEndDecoration const &startDecoration() const { return m_ends.decoration(LineEnds::Start); }
    LineEndDecoration const &endDecoration() const { return m_ends.decoration(LineEnds::Finish); }
    // Removes the present decoration's node from the tree, hangs the new
    // one under this node, then pathChanged.
    void setStartDecoration(LineEndDecoration const &decoration);
    void setEndDecoration(LineEndDecoration const &decoration);

    // Places both decorations at the end vertices, then reports the
    // geometry change.
    virtual void pathChanged();
    void updateDecorations() { pathChanged(); }

    Bounds computeBounds() override;
    IndexExtent getIndexExtent() override;
    Bounds computeStrokedOutline(double scale) override;
    Bounds computeHitBounds(double scale) override;
    void paintContents(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget) override;
    // The effect's renderOpenCurvedPath method, else its generic one.
    void renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                      QWidget *widget) override;

    int handlesHeldOnChild(NodeImpl const *child) const override { return m_ends.handlesOn(child); }

private:
    QPainterPath geometricPath() const;
    double hitTolerance() const;

    LineEnds m_ends;
};

} // namespace VOR2
