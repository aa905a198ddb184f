#include "nodes/MaskStyle.h"

#include "nodes/StylePainter.h"

#include <QPainter>

namespace VOR2 {

void applyMaskStyle(QPainter *painter, DrawStyle const &style, double scale)
{
    QColor const black(0, 0, 0, 255);
    QPen pen = penForStroke(style.stroke(), scale);
    pen.setColor(black);
    painter->setPen(pen);
    painter->setBrush(QBrush(black, Qt::SolidPattern));
    painter->setRenderHint(QPainter::Antialiasing, style.isAntiAliased());
}

} // namespace VOR2
