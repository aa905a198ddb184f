#include "support/ReferenceImage.h"

#include <QDir>
#include <cstdlib>

namespace VOR2::test {

std::string referencePath(std::string const &name) { return std::string(VOR2_TEST_DATA_DIR) + "/" + name + ".png"; }

namespace {
int channelDistance(QRgb a, QRgb b)
{
    int d = std::abs(qRed(a) - qRed(b));
    d = std::max(d, std::abs(qGreen(a) - qGreen(b)));
    d = std::max(d, std::abs(qBlue(a) - qBlue(b)));
    return std::max(d, std::abs(qAlpha(a) - qAlpha(b)));
}
} // namespace

::testing::AssertionResult matchesReference(QImage const &image, std::string const &name, int tolerance,
                                            int allowedDifferentPixels)
{
    QString path = QString::fromStdString(referencePath(name));
    QImage actual = image.convertToFormat(QImage::Format_ARGB32);
    if (qEnvironmentVariableIntValue("VOR2_UPDATE_REFERENCES") == 1) {
        QDir().mkpath(QFileInfo(path).absolutePath());
        if (!actual.save(path)) return ::testing::AssertionFailure() << "cannot write " << path.toStdString();
        return ::testing::AssertionSuccess() << "wrote " << path.toStdString();
    }
    QImage reference(path);
    if (reference.isNull())
        return ::testing::AssertionFailure() << "no reference " << path.toStdString()
                                             << " (run with VOR2_UPDATE_REFERENCES=1 and review it)";
    reference = reference.convertToFormat(QImage::Format_ARGB32);
    auto saveActual = [&] {
        std::string out = name + ".actual.png";
        actual.save(QString::fromStdString(out));
        return out;
    };
    if (reference.size() != actual.size())
        return ::testing::AssertionFailure() << name << ": size " << actual.width() << "x" << actual.height()
                                             << ", reference " << reference.width() << "x" << reference.height()
                                             << "; actual written to " << saveActual();
    int differing = 0, worst = 0, firstX = -1, firstY = -1;
    for (int y = 0; y < actual.height(); ++y) {
        auto const *a = reinterpret_cast<QRgb const *>(actual.constScanLine(y));
        auto const *r = reinterpret_cast<QRgb const *>(reference.constScanLine(y));
        for (int x = 0; x < actual.width(); ++x) {
            int d = channelDistance(a[x], r[x]);
            if (d > tolerance) {
                if (differing++ == 0) { firstX = x; firstY = y; }
                worst = std::max(worst, d);
            }
        }
    }
    if (differing > allowedDifferentPixels)
        return ::testing::AssertionFailure() << name << ": " << differing << " pixels differ by more than "
                                             << tolerance << " (worst " << worst << ", first at " << firstX << ","
                                             << firstY << "); actual written to " << saveActual();
    return ::testing::AssertionSuccess();
}

} // namespace VOR2::test
