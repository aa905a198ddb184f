// Image effects against Qt's own, in the same run:
//   glow_blur     blurring a 512 by 512 image with radius 8 and drawing it:
//                 VOR2's box blur of the alpha channel, tint and drawImage;
//                 Qt: a QGraphicsPixmapItem of that image with a
//                 QGraphicsBlurEffect of blur radius 8, drawn through
//                 QGraphicsScene::render (Qt's public route to its blur);
//   glow_view     a 1920 by 1080 view of 1000 rectangles, each with a glow
//                 of spread 6 (Qt: a QGraphicsDropShadowEffect of blur
//                 radius 6 and no offset on each item), drawn in full
//                 again (VOR2 redraws each node from its offscreen image);
//   glow_view_cold the same with the scale changed between renders, so
//                 that every glow is blurred anew;
//   glow_move_one one of those nodes moved and the view's image redrawn
//                 where it changed, through the server (Qt: setPos and the
//                 changed() rectangles redrawn).
// Qt's blur is its own recursive blur of all four channels, not a box;
// the radius is the same number of pixels.

#include "Alternating.h"
#include "BenchRegistry.h"
#include "LayerViews.h"

#include "effects/raster/BoxBlur.h"
#include "effects/raster/Tint.h"

#include "GLServices/HostRunLoop.h"
#include <EffectGlow>
#include <HostRuntime>
#include <NodeEffects>
#include <RectNode>

#include <QGraphicsBlurEffect>
#include <QGraphicsDropShadowEffect>
#include <QGraphicsPixmapItem>
#include <QGraphicsRectItem>
#include <cstdio>
#include <cstdlib>
#include <map>

namespace bench {

namespace {
int const BLUR_RADIUS = 8;
int const SPREAD = 6;
int const COUNT = 1000;
QSize const VIEW(1920, 1080);

// A 512 by 512 image: a filled disc on transparent.
QImage blurSource()
{
    QImage image(512, 512, QImage::Format_ARGB32_Premultiplied);
    image.fill(0);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(40, 90, 200));
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QRectF(64, 64, 384, 384));
    return image;
}

void blur(benchmark::State &state)
{
    QImage const source = blurSource();
    QImage target(source.size(), QImage::Format_ARGB32_Premultiplied);
    QImage work(source.size(), QImage::Format_ARGB32_Premultiplied);
    QGraphicsScene qt;
    auto *item = new QGraphicsPixmapItem(QPixmap::fromImage(source));
    auto *effect = new QGraphicsBlurEffect;
    effect->setBlurRadius(BLUR_RADIUS);
    item->setGraphicsEffect(effect);
    qt.addItem(item);
    std::vector<System> const systems{System::VOR2, System::QtBsp};
    runAlternating(state, systems, [&](System s, Recorder &r) {
        r.time("glow_blur", timed([&] {
            target.fill(0);
            QPainter painter(&target);
            if (s == System::VOR2) {
                std::copy(source.constBits(), source.constBits() + source.sizeInBytes(), work.bits());
                VOR2::boxBlurAlpha(work, work.size(), BLUR_RADIUS);
                VOR2::tintByAlpha(work, work.rect(), qRgb(40, 90, 200));
                painter.drawImage(0, 0, work);
            } else {
                qt.render(&painter, QRectF(target.rect()), QRectF(source.rect()));
            }
        }));
    });
}

// 1000 rectangles of 30 by 30 on a grid of 48, each with a glow.
void fill(BuiltScene &scene)
{
    for (int i = 0; i < COUNT; ++i) {
        QRectF const rect((i % 40) * 48.0 + 9, (i / 40) * 48.0 + 9, 30, 30);
        if (scene.system == System::VOR2) {
            VOR2::RectNode node(GLOX::toDRect(rect));
            GLOX::Holder<VOR2::EffectGlow> glow(new VOR2::EffectGlow);
            glow->setSpread(SPREAD);
            node.getEffects().add(glow.get());
            scene.vor2->addNode(node);
            if (!scene.firstNode.isValid()) scene.firstNode = node;
        } else {
            auto *item = new QGraphicsRectItem(rect);
            item->setBrush(QColor(200, 220, 240));
            auto *shadow = new QGraphicsDropShadowEffect;
            shadow->setBlurRadius(SPREAD);
            shadow->setOffset(0, 0);
            shadow->setColor(QColor(255, 255, 190, 191));
            item->setGraphicsEffect(shadow);
            scene.qt->addItem(item);
            if (!scene.firstItem) scene.firstItem = item;
        }
    }
}

std::vector<Shape> const &noShapes()
{
    static std::vector<Shape> const none;
    return none;
}

std::map<System, std::unique_ptr<BuiltScene>> glowScenes()
{
    std::map<System, std::unique_ptr<BuiltScene>> scenes;
    for (System s : {System::VOR2, System::QtBsp}) {
        scenes[s] = std::make_unique<BuiltScene>(s, noShapes(), false);
        fill(*scenes[s]);
    }
    return scenes;
}

// `cold`: the scale alternates between 1 and 0.999, so that no image
// drawn at one scale serves the next render.
void view(benchmark::State &state, bool cold)
{
    auto scenes = glowScenes();
    QImage image(VIEW, QImage::Format_ARGB32_Premultiplied);
    static int const viewKey = 0;
    std::map<System, int> steps;
    char const *metric = cold ? "glow_view_cold" : "glow_view";
    runAlternating(state, {System::VOR2, System::QtBsp}, [&](System s, Recorder &r) {
        double const zoom = cold && steps[s]++ % 2 ? 0.999 : 1.0;
        QRectF const source(QPointF(0, 0), QSizeF(VIEW) / zoom);
        r.time(metric, timed([&] { renderRegion(*scenes[s], image, image.rect(), source, &viewKey); }));
    });
}

void moveOne(benchmark::State &state)
{
    auto scenes = glowScenes();
    std::map<System, std::unique_ptr<LayerView>> views;
    for (auto &[s, scene] : scenes) views[s] = std::make_unique<LayerView>(*scene, VIEW, 1.0, QPointF(0, 0));
    VOR2::HostRuntime::loop().runUntilIdle();
    std::map<System, int> steps;
    runAlternating(state, {System::VOR2, System::QtBsp}, [&](System s, Recorder &r) {
        BuiltScene &scene = *scenes[s];
        QPointF to = steps[s]++ % 2 ? QPointF(0, 0) : QPointF(30, 20);
        r.time("glow_move_one", timed([&] {
            if (s == System::VOR2)
                scene.firstNode.setPosition({to.x(), to.y()});
            else
                scene.firstItem->setPos(to);
            VOR2::HostRuntime::loop().runUntilIdle();
        }));
        if (views[s]->takeRedrawn().isEmpty()) {
            std::fprintf(stderr, "glow_move_one: %s redrew nothing\n", systemKey(s));
            std::abort();
        }
    });
}
} // namespace

void registerGlows(int iterations, int repetitions)
{
    registerBench("glow_blur", Workload::W1, 1, iterations * 4, repetitions, blur);
    registerBench("glow_view", Workload::W1, COUNT, iterations, repetitions,
                  [](benchmark::State &s) { view(s, false); });
    registerBench("glow_view_cold", Workload::W1, COUNT, iterations, repetitions,
                  [](benchmark::State &s) { view(s, true); });
    registerBench("glow_move_one", Workload::W1, COUNT, iterations * 4, repetitions, moveOne);
}

} // namespace bench
