// The VOR2 demo.
//
//   vor2_demo [--tour] [--render FILE.png] [--scale S] [--pdf FILE.pdf] [--show]
//
// --tour prints a tour of the scene spine (the default without options);
// --render writes the gallery, every primitive node kind at several styles,
// as a PNG at S pixels per unit (default 2); --pdf prints it to a PDF file;
// --show opens a window with the picture when a display is there.

#include "DemoGallery.h"
#include "DemoTour.h"

#include <VOR2>

#include <QApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QPixmap>
#include <QPrinter>
#include <QScrollArea>
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
        else if (!std::strcmp(a, "--scale")) {
            char const *v = value(a);
            if (!v || !(std::atof(v) > 0)) { std::fprintf(stderr, "--scale needs a positive number\n"); return false; }
            o.scale = std::atof(v);
        } else {
            std::fprintf(stderr, "unknown option %s\n", a);
            return false;
        }
    }
    if (o.png.empty() && o.pdf.empty()) o.tour = true;
    return true;
}
} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    Options options;
    if (!parse(argc, argv, options)) return 2;
    if (options.tour) demo::runTour();
    if (options.png.empty() && options.pdf.empty()) return 0;

    GLOX::Holder<VOR2::Scene> scene = VOR2::Scene::createScene();
    demo::buildGallery(*scene);
    QImage picture = demo::renderAtScale(*scene, options.scale, 10);
    if (!options.png.empty()) {
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
    QScrollArea window;
    QLabel *label = new QLabel;
    label->setPixmap(QPixmap::fromImage(picture));
    window.setWidget(label);
    window.setWindowTitle("VOR2 gallery");
    window.resize(std::min(picture.width() + 20, 1400), std::min(picture.height() + 20, 900));
    window.show();
    return app.exec();
}
