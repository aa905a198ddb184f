// TextNodeImpl: alignment around the node's position, and the width rule.
// Both alignments live in the document's default text option, the
// horizontal one in the low five bits of its flags and the vertical one in
// the next three; the node keeps no copy.

#include "nodes/TextNodeImpl.h"

#include <Error>

#include <QTextOption>

namespace VOR2 {

namespace {
constexpr Qt::Alignment horizontalBits = Qt::Alignment(0x1f);
constexpr Qt::Alignment verticalBits = Qt::Alignment(0xe0);
} // namespace

void TextNodeImpl::setAlignmentFlags(Qt::Alignment keep, Qt::Alignment add)
{
    QTextOption option = document()->defaultTextOption();
    option.setAlignment((option.alignment() & keep) | add);
    {
        ProgrammaticChange change(this);
        document()->setDefaultTextOption(option);
        m_shadowDocument.setDefaultTextOption(option);
    }
    m_texBounds.reset();
    prepareItemGeometryChange();
    placeItem();
    notifyGeometryChanged(false);
}

GLOX::TextHAlign TextNodeImpl::getHorizontalAlignment() const
{
    Qt::Alignment const a = document()->defaultTextOption().alignment();
    if (a & Qt::AlignHCenter) return GLOX::TextHAlign::H_CENTER_TEXT;
    if (a & Qt::AlignRight) return GLOX::TextHAlign::RIGHT_TEXT;
    return GLOX::TextHAlign::LEFT_TEXT;
}

void TextNodeImpl::setHorizontalAlignment(GLOX::TextHAlign const &align)
{
    Qt::Alignment flag;
    switch (align.value()) {
    case GLOX::TextHAlign::LEFT_TEXT: flag = Qt::AlignLeft; break;
    case GLOX::TextHAlign::H_CENTER_TEXT: flag = Qt::AlignHCenter; break;
    case GLOX::TextHAlign::RIGHT_TEXT: flag = Qt::AlignRight; break;
    default: throwError(VOR2_InvalidConversion);
    }
    setAlignmentFlags(verticalBits, flag);
}

GLOX::TextVAlign TextNodeImpl::getVerticalAlignment() const
{
    int const bits = int(document()->defaultTextOption().alignment() & verticalBits);
    if (bits == Qt::AlignTop) return GLOX::TextVAlign::TOP_TEXT;
    if (bits == Qt::AlignVCenter) return GLOX::TextVAlign::V_CENTER_TEXT;
    return GLOX::TextVAlign::BOTTOM_TEXT;
}

// The baselines have no Qt flag, and are rejected like any unknown value.
void TextNodeImpl::setVerticalAlignment(GLOX::TextVAlign const &align)
{
    Qt::Alignment flag;
    switch (align.value()) {
    case GLOX::TextVAlign::TOP_TEXT: flag = Qt::AlignTop; break;
    case GLOX::TextVAlign::V_CENTER_TEXT: flag = Qt::AlignVCenter; break;
    case GLOX::TextVAlign::BOTTOM_TEXT: flag = Qt::AlignBottom; break;
    default: throwError(VOR2_InvalidConversion);
    }
    setAlignmentFlags(horizontalBits, flag);
}

// The anchor: the node's position is the left edge, the middle or the right
// edge of the text, and lies under it (TOP), in its middle or above it
// (BOTTOM, where the text hangs from the position).
void TextNodeImpl::placeItem()
{
    QSizeF const size = document()->size();
    double dx = 0.0;
    switch (getHorizontalAlignment().value()) {
    case GLOX::TextHAlign::H_CENTER_TEXT: dx = -0.5 * size.width(); break;
    case GLOX::TextHAlign::RIGHT_TEXT: dx = -size.width(); break;
    default: break;
    }
    double dy = 0.0;
    switch (getVerticalAlignment().value()) {
    case GLOX::TextVAlign::TOP_TEXT: dy = -size.height(); break;
    case GLOX::TextVAlign::V_CENTER_TEXT: dy = -0.5 * size.height(); break;
    default: break;
    }
    m_contentOffset = QPointF(dx, dy);
}

int TextNodeImpl::getTextDocumentWidth() const { return int(document()->idealWidth()); }

void TextNodeImpl::setTextDocumentWidth(int width)
{
    m_widthAutoSize = AutoSizeFixed;
    prepareItemGeometryChange();
    applyWidth(width);
    notifyGeometryChanged(false);
}

void TextNodeImpl::setWidthAutoSize(AutoSizeMode mode)
{
    m_widthAutoSize = mode;
    prepareItemGeometryChange();
    applyAutoWidth();
    notifyGeometryChanged(false);
}

// Expanding: as wide as the longest line laid out without a limit; Fixed:
// the width the document has now, made its limit. Any other mode keeps the
// width as it is.
void TextNodeImpl::applyAutoWidth()
{
    if (m_widthAutoSize == AutoSizeExpanding) {
        ProgrammaticChange change(this);
        document()->setTextWidth(-1.0);
        applyWidth(document()->idealWidth());
    } else if (m_widthAutoSize == AutoSizeFixed) {
        applyWidth(document()->idealWidth());
    }
}

void TextNodeImpl::applyWidth(double width)
{
    if (width == document()->textWidth()) return;
    {
        ProgrammaticChange change(this);
        document()->setTextWidth(width);
    }
    placeItem();
}

} // namespace VOR2
