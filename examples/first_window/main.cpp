// The smallest native program with a window: the README's example. With
// `--close-after SECONDS` it closes its window itself after that time, as a
// user would, so that it can run unattended.

#include <VOR2>

#include <QTimer>
#include <QWidget>
#include <cstdlib>
#include <cstring>

int main(int argc, char **argv)
{
    using namespace VOR2;
    HostRuntime::start(); // the GUI thread and this thread's host loop
    {
        GLOX::Holder<Scene> scene = Scene::createScene();
        RectNode box(GLOX::GLRect<double>(0, 0, 100, 60));
        box.setFill(Fill(GLOX::Color(0.2, 0.4, 1.0)));
        scene->addNode(box);
        EllipseNode dot(Ellipse(GLOX::GLRect<double>(80, 40, 40, 40)));
        dot.setFill(Fill(GLOX::Color(1.0, 0.5, 0.0)));
        scene->addNode(dot);

        GLCanvas canvas;
        canvas.setScene(scene.get());
        HostRuntime::showWindow(canvas, 400, 300, "VOR2: a first window");
        canvas.zoomToSceneRect();

        if (argc == 3 && !std::strcmp(argv[1], "--close-after")) {
            int ms = int(std::atof(argv[2]) * 1000);
            QWidget *window = canvas.getWidget();
            HostRuntime::bridge().runOnGui([window, ms] { QTimer::singleShot(ms, window, &QWidget::close); }, true);
        }
        HostRuntime::runWhileWindowsShown(); // renders, serves input, until the window is closed
    }
    HostRuntime::stop();
    return 0;
}
