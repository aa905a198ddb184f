// Rendering a region of the scene into an image, as a view redraws it:
//   render_dirty_200     a 200 by 200 region at scale 1 in the middle;
//   render_view_in       a 1920 by 1080 view at scale 1 in the middle;
//   render_view_out      a 1920 by 1080 view of the whole scene.
// Each system clears the target and draws what the source shows.

#include "Alternating.h"
#include "BenchRegistry.h"
#include "Fixture.h"

#include <QImage>

namespace bench {

namespace {
struct Region {
    char const *metric;
    QSize size;
    QRectF source;
};

Region region(int which)
{
    double const c = SCENE_SIZE / 2;
    switch (which) {
    case 0: return {"render_dirty_200", QSize(200, 200), QRectF(c - 100, c - 100, 200, 200)};
    case 1: return {"render_view_in", QSize(1920, 1080), QRectF(c - 960, c - 540, 1920, 1080)};
    default: {
        double w = SCENE_SIZE * 1920.0 / 1080.0;
        return {"render_view_out", QSize(1920, 1080), QRectF(c - w / 2, 0, w, SCENE_SIZE)};
    }
    }
}

void render(benchmark::State &state, Workload w, int n, int which)
{
    Fixture &f = Fixture::get(w, n);
    Region const reg = region(which);
    QImage image(reg.size, QImage::Format_ARGB32_Premultiplied);
    static int const viewKey = 0;
    runAlternating(state, ALL_SYSTEMS, [&](System s, Recorder &r) {
        r.time(reg.metric, timed([&] { renderRegion(f.scene(s), image, image.rect(), reg.source, &viewKey); }));
    });
}
} // namespace

void registerRenders(Workload w, int n, int iterations, int repetitions)
{
    for (int which = 0; which < 3; ++which)
        registerBench(region(which).metric, w, n, which == 0 ? iterations * 4 : iterations, repetitions,
                      [=](benchmark::State &s) { render(s, w, n, which); });
}

} // namespace bench
