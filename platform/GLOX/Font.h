#pragma once
// GLOX::Font: a font as the host describes it: a family name, a size in
// points, bold and italic. A plain value, compared field by field.
//
// toQFont gives the Qt font for a view of `dpi` dots per inch: the size in
// points becomes a pixel size (points * dpi / 72, at least 1), so the text
// measures the same on every screen and in every image.
// getClosestScaleableFontName answers `family` when the font database has
// it as a scalable font, else the family of the closest scalable match Qt
// finds for it. The second argument (how hard to look) is kept for the
// host's callers; every value looks the same way here.

#include <QFont>
#include <string>

namespace GLOX {

class Font {
public:
    Font() = default;
    Font(std::string family, double pointSize, bool bold = false, bool italic = false)
        : m_family(std::move(family)), m_pointSize(pointSize), m_bold(bold), m_italic(italic)
    {
    }

    std::string const &family() const { return m_family; }
    double pointSize() const { return m_pointSize; }
    bool bold() const { return m_bold; }
    bool italic() const { return m_italic; }

    bool operator==(Font const &o) const
    {
        return m_family == o.m_family && m_pointSize == o.m_pointSize && m_bold == o.m_bold && m_italic == o.m_italic;
    }
    bool operator!=(Font const &o) const { return !(*this == o); }

private:
    std::string m_family = "DejaVu Sans";
    double m_pointSize = 10.0;
    bool m_bold = false;
    bool m_italic = false;
};

QFont toQFont(Font const &font, double dpi);
// The host's description of a Qt font (pixel size back to points at `dpi`).
Font toFont(QFont const &font, double dpi);
std::string getClosestScaleableFontName(std::string const &family, int effort);

} // namespace GLOX
