#include "binding/Convert.h"

#include "Error"
#include "binding/ScriptError.h"

#include <cmath>

namespace VOR2::script {

void wrongType(char const *typeWord, Value const &v)
{
    raise("VOR2:WrongType", std::string("Expected ") + typeWord + ", got " + v.describe());
}

namespace {

double scalarOf(Value const &v, char const *typeWord)
{
    if (!v.isNumeric() || v.numel() != 1) wrongType(typeWord, v);
    return v.numbers()[0];
}

bool isDoubleVector(Value const &v)
{
    return v.type() == Value::Type::Double && (v.rows() == 1 || v.cols() == 1);
}

} // namespace

double toDouble(Value const &v) { return scalarOf(v, "double scalar"); }

bool toBool(Value const &v) { return scalarOf(v, "logical scalar") != 0.0; }

std::int32_t toInt32(Value const &v)
{
    double d = scalarOf(v, "int32 scalar");
    if (!(d >= -2147483648.0 && d <= 2147483647.0) || d != std::floor(d)) wrongType("int32 scalar", v);
    return std::int32_t(d);
}

std::uint32_t toUInt32(Value const &v)
{
    double d = scalarOf(v, "uint32 scalar");
    if (!(d >= 0.0 && d <= 4294967295.0) || d != std::floor(d)) wrongType("uint32 scalar", v);
    return std::uint32_t(d);
}

std::string toString(Value const &v)
{
    if (v.type() == Value::Type::Char) return v.text();
    if (v.isEmpty() && v.type() != Value::Type::Handle) return std::string();
    wrongType("char", v);
}

GLOX::StringID toStringID(Value const &v) { return GLOX::StringID(toString(v)); }

std::vector<double> toDoubles(Value const &v)
{
    if (!v.isNumeric()) wrongType("double vector", v);
    return v.numbers();
}

GLOX::Color toColor(Value const &v)
{
    if (!isDoubleVector(v) || (v.numel() != 3 && v.numel() != 4))
        raise("Color:InvalidValue", "Color requires three or four doubles between 0.0 and 1.0, "
                                    "[red,green,blue,(alpha)]. Example: color = [0 1 0 1]");
    for (double d : v.numbers())
        if (!(d >= 0.0 && d <= 1.0))
            raise("Color:InvalidValue", "Color requires values between 0.0 and 1.0, specified in a double "
                                        "vector as follows: [red green blue alpha]");
    auto const &n = v.numbers();
    return GLOX::Color(n[0], n[1], n[2], n.size() == 4 ? n[3] : 1.0);
}

Value fromColor(GLOX::Color const &c) { return Value::row({c.red(), c.green(), c.blue(), c.alpha()}); }

GLOX::GLRect<double> toRect(Value const &v)
{
    if (!isDoubleVector(v) || v.numel() != 4)
        raise("DRect:InvalidValue", "DRect requires exactly four doubles. Ex: rect = [1.0, 2.3, 3.5, -0.3]");
    auto const &n = v.numbers();
    return GLOX::GLRect<double>(n[0], n[1], n[2], n[3]);
}

Value fromRect(GLOX::GLRect<double> const &r) { return Value::row({r.x, r.y, r.width, r.height}); }

GLOX::GLPoint<double> toPoint(Value const &v)
{
    if (!isDoubleVector(v) || v.numel() != 2)
        raise("DPoint:InvalidValue", "DPoint requires exactly two doubles. Ex: rect = [1.0, 2.3]");
    return GLOX::GLPoint<double>(v.numbers()[0], v.numbers()[1]);
}

Value fromPoint(GLOX::GLPoint<double> const &p) { return Value::row({p.x, p.y}); }

GLOX::Size<double> toSize(Value const &v)
{
    if (!isDoubleVector(v) || v.numel() != 2)
        raise("DSize:InvalidValue", "DSize requires exactly two doubles. Ex: rect = [1.0, 2.3]");
    return GLOX::Size<double>(v.numbers()[0], v.numbers()[1]);
}

Value fromSize(GLOX::Size<double> const &s) { return Value::row({s.width, s.height}); }

GLOX::Transform toTransform(Value const &v)
{
    if (v.type() != Value::Type::Double || v.rows() != 3 || v.cols() != 3) throwError(VOR2_Expected3By3);
    // Column-major: n[c * 3 + r] is row r, column c of [m11 m21 dx; m12 m22 dy; m13 m23 m33].
    auto const &n = v.numbers();
    return GLOX::Transform(n[0], n[1], n[2], n[3], n[4], n[5], n[6], n[7], n[8]);
}

Value fromTransform(GLOX::Transform const &t)
{
    QTransform const &q = t.toQTransform();
    return Value::matrix(3, 3, {q.m11(), q.m12(), q.m13(), q.m21(), q.m22(), q.m23(), q.m31(), q.m32(), q.m33()});
}

GLOX::GList<GLOX::GLPoint<double>> toPoints(Value const &v)
{
    GLOX::GList<GLOX::GLPoint<double>> points;
    if (v.isEmpty() && v.type() != Value::Type::Char) return points;
    if (v.type() != Value::Type::Double) throwError(VOR2_Expected2By2);
    auto const &n = v.numbers();
    if (v.rows() == 2) {
        for (std::size_t c = 0; c < v.cols(); ++c) points.append(GLOX::GLPoint<double>(n[2 * c], n[2 * c + 1]));
    } else if (v.cols() == 2) {
        for (std::size_t r = 0; r < v.rows(); ++r) points.append(GLOX::GLPoint<double>(n[r], n[v.rows() + r]));
    } else {
        throwError(VOR2_Expected2By2);
    }
    return points;
}

Value fromPoints(GLOX::GList<GLOX::GLPoint<double>> const &points)
{
    std::vector<double> n;
    n.reserve(2 * points.size());
    for (auto const &p : points) {
        n.push_back(p.x);
        n.push_back(p.y);
    }
    return Value::matrix(points.isEmpty() ? 0 : 2, points.size(), std::move(n));
}

Value fromStrings(GLOX::GList<GLOX::StringID> const &strings)
{
    std::vector<Value> items;
    for (auto const &s : strings) items.push_back(Value::string(s.str()));
    return Value::cell(std::move(items));
}

} // namespace VOR2::script
