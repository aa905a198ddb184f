// The VOR2 demo.
//
//   vor2_demo [--tour] [--render FILE.png] [--scale S] [--pdf FILE.pdf] [--show]
//             [--screenshot FILE.png]
//
// --tour prints a tour of the scene spine (the default without options);
// --render writes the gallery, every primitive node kind at several styles,
// as a PNG at S pixels per unit (default 2); --pdf prints it to a PDF file;
// --show opens the gallery in a canvas window, zoomed to fit, when a
// display is there; --screenshot FILE.png does so, saves the window and ends.
//
// The program runs as the library runs in a host: this thread is the host
// thread and owns the scenes; the GUI thread owns the QApplication.

#include "DemoGallery.h"
#include "DemoInputTool.h"
#include "DemoTour.h"

#include <VOR2>

#include "GLBridge/Bridge.h"
#include "GLServices/HostRunLoop.h"
#include <HostRuntime>

#include <QEvent>
#include <QGuiApplication>
#include <QPrinter>
#include <QWidget>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <string>

namespace {
struct Options {
    bool tour = false;
    bool show = false;
    double scale = 2.0;
    std::string png;
    std::string pdf;
    std::string screenshot;
};

bool parse(int argc, char **argv, Options &o)
{
    for (int i = 1; i < argc; ++i) {
        auto value = [&](char const *name) -> char const * {
            if (i + 1 < argc) return argv[++i];
            std::fprintf(stderr, "%s needs a value\n", name);
            return nullptr;
        };
        char const *a = argv[i];
        if (!std::strcmp(a, "--tour")) o.tour = true;
        else if (!std::strcmp(a, "--show")) o.show = true;
        else if (!std::strcmp(a, "--render")) { char const *v = value(a); if (!v) return false; o.png = v; }
        else if (!std::strcmp(a, "--pdf")) { char const *v = value(a); if (!v) return false; o.pdf = v; }
        else if (!std::strcmp(a, "--screenshot")) {
            char const *v = value(a);
            if (!v) return false;
            o.screenshot = v;
            o.show = true;
        }
        else if (!std::strcmp(a, "--scale")) {
            char const *v = value(a);
            if (!v || !(std::atof(v) > 0)) { std::fprintf(stderr, "--scale needs a positive number\n"); return false; }
            o.scale = std::atof(v);
        } else {
            std::fprintf(stderr, "unknown option %s\n", a);
            return false;
        }
    }
    if (o.png.empty() && o.pdf.empty() && !o.show) o.tour = true;
    return true;
}

// Shows the scene in a canvas window and runs the host loop until the
// window is closed, or, with a screenshot path, until the fitted view is on
// screen and saved there.
void showInWindow(VOR2::Scene *scene, std::string const &screenshot)
{
    using namespace std::chrono_literals;
    VOR2::GLCanvas canvas;
    canvas.setScene(scene);
    QWidget *window = canvas.getWidget();
    VOR2::HostRuntime::showWindow(canvas, 900, 600, "VOR2 gallery");
    canvas.zoomToSceneRect();
    // Pointer position and node kind in the title; the scene's own tools do the rest.
    GLOX::Holder<demo::DemoInputTool> tool(new demo::DemoInputTool(scene, window));
    scene->addTool(tool.get());
    if (!screenshot.empty()) {
        VOR2::HostRuntime::loop().runFor(500ms); // the fitted view is rendered and published
        bool saved = false;
        VOR2::HostRuntime::bridge().runOnGui([&] {
            saved = window->grab().save(QString::fromStdString(screenshot));
            window->hide();
        }, true);
        std::printf(saved ? "Window captured to %s\n" : "Cannot write %s\n", screenshot.c_str());
        scene->removeTool(tool.get());
        return;
    }
    std::printf("A window shows the gallery: click selects (Shift adds), a drag on empty space draws a marquee, a "
                "drag on a selected node moves the selection (Escape puts it back, arrows nudge it), the middle "
                "button or Space with the left pans and coasts, the wheel zooms about the pointer, a tap of Space "
                "shows the whole scene. Close it to end.\n");
    VOR2::HostRuntime::runWhileWindowsShown();
    scene->removeTool(tool.get());
}
} // namespace

int run(Options const &options);

int main(int argc, char **argv)
{
    Options options;
    if (!parse(argc, argv, options)) return 2;
    VOR2::HostRuntime::start();
    int result = run(options);
    VOR2::HostRuntime::stop();
    return result;
}

int run(Options const &options)
{
    if (options.tour) demo::runTour();
    if (options.png.empty() && options.pdf.empty() && !options.show) return 0;

    GLOX::Holder<VOR2::Scene> scene = VOR2::Scene::createScene();
    demo::buildGallery(*scene);
    if (!options.png.empty()) {
        QImage picture = demo::renderAtScale(*scene, options.scale, 10);
        if (!picture.save(QString::fromStdString(options.png))) {
            std::fprintf(stderr, "cannot write %s\n", options.png.c_str());
            return 1;
        }
        std::printf("\nGallery written to %s (%dx%d pixels, %d nodes)\n", options.png.c_str(), picture.width(),
                    picture.height(), int(scene->getAllNodes().size()));
    }
    if (!options.pdf.empty()) {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QString::fromStdString(options.pdf));
        scene->render(printer, {}, {});
        std::printf("Gallery printed to %s\n", options.pdf.c_str());
    }
    if (!options.show) return 0;
    if (QGuiApplication::platformName() == "offscreen" || QGuiApplication::platformName() == "minimal") {
        std::printf("No display: open the PNG above to see the gallery.\n");
        return 0;
    }
    showInWindow(scene.get(), options.screenshot);
    return 0;
}
