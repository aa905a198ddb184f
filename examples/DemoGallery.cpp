#include "DemoGallery.h"
#include "GalleryContainersRow.h"
#include "GalleryPathsRow.h"
#include "GalleryResizeRow.h"
#include "GalleryGlowRow.h"
#include "GalleryTextRow.h"

#include <VOR2>

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>
#include <cmath>

using namespace VOR2;

namespace demo {

namespace {
constexpr double CELL_W = 130, CELL_H = 100, BOX = 80;

GLOX::GLRect<double> cell(int column, int row)
{
    return {20 + column * CELL_W, 20 + row * CELL_H, BOX, BOX * 0.75};
}

DrawStyle style(Stroke stroke, Fill fill, bool antiAliased = true)
{
    return DrawStyle(stroke, fill, antiAliased);
}

GLOX::Shape star(GLOX::GLRect<double> const &r)
{
    QPainterPath path;
    QPointF c(r.x + r.width / 2, r.y + r.height / 2);
    double outer = std::min(r.width, r.height) / 2, inner = outer * 0.45;
    for (int i = 0; i < 10; ++i) {
        double a = -M_PI / 2 + i * M_PI / 5, radius = i % 2 ? inner : outer;
        QPointF p = c + QPointF(radius * std::cos(a), radius * std::sin(a));
        i ? path.lineTo(p) : path.moveTo(p);
    }
    path.closeSubpath();
    return GLOX::Shape(path);
}

// A small picture made in code, so the demo needs no files.
GLOX::Holder<Image> swatch()
{
    QImage image(64, 48, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgba(x * 4, y * 5, 255 - x * 2, 255));
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(Qt::white);
    p.drawEllipse(QPointF(32, 24), 12, 12);
    return Image::fromQImage(image);
}

// Every gallery node can be selected and dragged, and shows a pointing
// hand.
void add(Scene &scene, Node const &node, DrawStyle const &s)
{
    node.setDrawStyle(s);
    node.setSelectable(true);
    node.setMovable(true);
    node.setCursor(GLOX::Cursor(Qt::PointingHandCursor));
    scene.addNode(node);
}

void shapesRow(Scene &scene)
{
    Stroke hairline(GLOX::Color(0.1, 0.1, 0.3), 0.0);
    Fill blue(GLOX::Color(0.55, 0.7, 1.0));
    auto r = [](int c) { return cell(c, 0); };
    add(scene, RectNode(r(0)), style(hairline, blue));
    add(scene, RoundedRectNode(r(1), 12), style(hairline, blue));
    add(scene, EllipseNode(Ellipse(r(2))), style(hairline, blue));
    add(scene, ShapeNode(star(r(3))), style(hairline, blue));
    add(scene, LineNode({r(4).x, r(4).bottom()}, {r(4).right(), r(4).y}),
        style(Stroke(GLOX::Color(0.8, 0.1, 0.1), 3.0, SolidLine, RoundCap), Fill()));
}

void strokeStylesRow(Scene &scene)
{
    StrokeStyle styles[] = {SolidLine, DashLine, DotLine, DashDotLine, DashDotDotLine};
    StrokeJoinStyle joins[] = {MiterJoin, BevelJoin, RoundJoin, SvgMiterJoin, MiterJoin};
    for (int i = 0; i < 5; ++i) {
        Stroke stroke(GLOX::Color(0.15, 0.35, 0.15), 4.0, styles[i], FlatCap, joins[i]);
        add(scene, ShapeNode(star(cell(i, 1))), style(stroke, Fill(GLOX::Color(0.85, 1.0, 0.85))));
    }
}

void scaleFunctionsRow(Scene &scene)
{
    LodScale const *functions[] = {LodScale::instance(), ConstantLodScale::instance(),
                                   SplitLinearLodScale::instance(), ConstantOutLodScale::instance(),
                                   ConstantInLodScale::instance()};
    for (int i = 0; i < 5; ++i) {
        Stroke stroke(GLOX::Color(0.5, 0.2, 0.6), 4.0, SolidLine, FlatCap, MiterJoin, functions[i]);
        add(scene, RoundedRectNode(cell(i, 2), 8), style(stroke, Fill()));
    }
}

void fillsRow(Scene &scene)
{
    GLOX::GLRect<double> r0 = cell(0, 3), r1 = cell(1, 3);
    GLOX::Gradient linear = GLOX::Gradient::linear({r0.x, r0.y}, {r0.right(), r0.bottom()});
    linear.addStop(0, GLOX::Color(1.0, 0.8, 0.2));
    linear.addStop(1, GLOX::Color(0.9, 0.2, 0.3));
    add(scene, RectNode(r0), style(Stroke::NoStroke(), Fill(linear)));

    GLOX::Gradient radial = GLOX::Gradient::radial(r1.center(), r1.height / 2);
    radial.addStop(0, GLOX::Color(1, 1, 1));
    radial.addStop(1, GLOX::Color(0.2, 0.4, 0.9));
    add(scene, EllipseNode(Ellipse(r1)), style(Stroke(GLOX::Color(), 1.0), Fill(radial)));

    // Translucent over another shape; then the same circle aliased.
    RectNode under(cell(2, 3));
    add(scene, under, style(Stroke::NoStroke(), Fill(GLOX::Color(0.2, 0.2, 0.2))));
    add(scene, EllipseNode(Ellipse(cell(2, 3))), style(Stroke::NoStroke(), Fill(GLOX::Color(1, 0.5, 0, 0.6))));
    add(scene, EllipseNode(Ellipse(cell(3, 3))), style(Stroke(GLOX::Color(), 1.0), Fill(GLOX::Color(1, 0.5, 0)), false));

    ImageNode picture(swatch());
    picture.setPosition({cell(4, 3).x, cell(4, 3).y});
    picture.setSize(BOX, BOX * 0.75);
    picture.setSelectable(true);
    picture.setMovable(true);
    scene.addNode(picture);
}
// Outlines inside, on and outside the edge of a rectangle, a star and a
// circle, and a selected node showing the scene's selection outline.
void effectsRow(Scene &scene)
{
    Fill pale(GLOX::Color(0.95, 0.9, 0.75));
    Stroke thin(GLOX::Color(0.3, 0.3, 0.3), 1.0);
    StrokeInsetType insets[] = {Inner, Center, Outer};
    for (int i = 0; i < 3; ++i) {
        GLOX::GLRect<double> r = cell(i, 4);
        Node n = i == 1 ? Node(ShapeNode(star(r))) : i == 2 ? Node(EllipseNode(Ellipse(r))) : Node(RectNode(r));
        add(scene, n, style(thin, pale));
        GLOX::Holder<EffectStroke> outline(
            new EffectStroke(Stroke(GLOX::Color(0.85, 0.2, 0.1, 0.8), 6.0, SolidLine, FlatCap, RoundJoin), insets[i]));
        n.getEffects().add(outline.get());
    }
    // Two outlines on one node, in the order they were added.
    RoundedRectNode twice(cell(3, 4), 10);
    add(scene, twice, style(thin, pale));
    GLOX::Holder<EffectStroke> inner(new EffectStroke(Stroke(GLOX::Color(0.1, 0.4, 0.9), 4.0), Inner));
    GLOX::Holder<EffectStroke> outer(new EffectStroke(Stroke(GLOX::Color(0.1, 0.7, 0.3), 4.0), Outer));
    twice.getEffects().add(inner.get(), "inner");
    twice.getEffects().add(outer.get(), "outer");

    RectNode selected(cell(4, 4));
    add(scene, selected, style(thin, Fill(GLOX::Color(0.55, 0.7, 1.0))));
    selected.setSelected(true);
    installFocusIndicators(selected);
}
} // namespace

void buildGallery(Scene &scene)
{
    scene.setBackground(Background(GLOX::Color(1, 1, 1)));
    scene.useMoveSelectionTool(); // drags move the selection; arrows nudge it
    shapesRow(scene);
    strokeStylesRow(scene);
    scaleFunctionsRow(scene);
    fillsRow(scene);
    effectsRow(scene);
    addPathsRow(scene, {cell(0, 5).x, cell(0, 5).y}, CELL_W);
    addContainersRow(scene, cell(0, 6).y);
    addGlowRow(scene, 20 + 7 * CELL_H);
    galleryTextRow(scene, 20 + 8 * CELL_H);
    galleryResizeRow(scene, 20 + 9 * CELL_H);
}

QImage renderAtScale(Scene const &scene, double scale, int margin)
{
    GLOX::GLRect<double> bounds = scene.getBounds();
    GLOX::GLRect<double> source(bounds.x - margin, bounds.y - margin, bounds.width + 2 * margin,
                                bounds.height + 2 * margin);
    QImage image(int(std::ceil(source.width * scale)), int(std::ceil(source.height * scale)), QImage::Format_RGB32);
    scene.render(image, source, GLOX::GLRect<double>(0, 0, image.width(), image.height()));
    return image;
}

} // namespace demo
