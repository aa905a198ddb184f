#pragma once
// GLOX::Color: one 32-bit value holding, from the low byte up, alpha, blue,
// green and red. Components are given and read either as bytes or as
// doubles from 0.0 to 1.0 (rounded to the nearest byte, clamped).

#include <QColor>
#include <cstdint>

namespace GLOX {

class Color {
public:
    // Opaque black.
    constexpr Color() : m_value(0x000000ffu) {}
    Color(double red, double green, double blue, double alpha = 1.0)
        : m_value(pack(toByte(red), toByte(green), toByte(blue), toByte(alpha)))
    {
    }
    static constexpr Color fromBytes(uint8_t r, uint8_t g, uint8_t b, uint8_t a = 255)
    {
        return Color(pack(r, g, b, a), RawTag{});
    }
    static constexpr Color fromValue(uint32_t value) { return Color(value, RawTag{}); }

    uint32_t value() const { return m_value; }
    uint8_t redByte() const { return uint8_t(m_value >> 24); }
    uint8_t greenByte() const { return uint8_t(m_value >> 16); }
    uint8_t blueByte() const { return uint8_t(m_value >> 8); }
    uint8_t alphaByte() const { return uint8_t(m_value); }
    double red() const { return redByte() / 255.0; }
    double green() const { return greenByte() / 255.0; }
    double blue() const { return blueByte() / 255.0; }
    double alpha() const { return alphaByte() / 255.0; }

    bool operator==(Color const &o) const { return m_value == o.m_value; }
    bool operator!=(Color const &o) const { return m_value != o.m_value; }

private:
    struct RawTag {};
    constexpr Color(uint32_t v, RawTag) : m_value(v) {}
    static constexpr uint32_t pack(uint8_t r, uint8_t g, uint8_t b, uint8_t a)
    {
        return (uint32_t(r) << 24) | (uint32_t(g) << 16) | (uint32_t(b) << 8) | uint32_t(a);
    }
    static uint8_t toByte(double v)
    {
        if (!(v > 0.0)) return 0; // NaN and negatives
        if (v >= 1.0) return 255;
        return uint8_t(v * 255.0 + 0.5);
    }

    uint32_t m_value;
};

inline QColor toQColor(Color const &c)
{
    return QColor(c.redByte(), c.greenByte(), c.blueByte(), c.alphaByte());
}
inline Color fromQColor(QColor const &c)
{
    return Color::fromBytes(uint8_t(c.red()), uint8_t(c.green()), uint8_t(c.blue()), uint8_t(c.alpha()));
}

} // namespace GLOX
