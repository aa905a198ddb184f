#include "GLOX/Font.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <cmath>

namespace GLOX {

QFont toQFont(Font const &font, double dpi)
{
    QFont f(QString::fromStdString(font.family()));
    double const pixels = font.pointSize() * dpi / 72.0;
    f.setPixelSize(std::isfinite(pixels) && pixels >= 1.0 ? int(std::lround(pixels)) : 1);
    f.setBold(font.bold());
    f.setItalic(font.italic());
    return f;
}

Font toFont(QFont const &font, double dpi)
{
    double const points = font.pixelSize() > 0 ? font.pixelSize() * 72.0 / dpi : font.pointSizeF();
    return Font(font.family().toStdString(), points, font.bold(), font.italic());
}

std::string getClosestScaleableFontName(std::string const &family, int)
{
    QString const name = QString::fromStdString(family);
    QFontDatabase db;
    if (db.families().contains(name, Qt::CaseInsensitive) && db.isScalable(name)) return family;
    return QFontInfo(QFont(name)).family().toStdString();
}

} // namespace GLOX
