#include "support/ReferenceImage.h"

#include <QDir>
#include <cstdlib>

namespace VOR2::test {

namespace {
int channelDistance(QRgb a, QRgb b)
{
    int d = std::abs(qRed(a) - qRed(b));
    d = std::max(d, std::abs(qGreen(a) - qGreen(b)));
    d = std::max(d, std::abs(qBlue(a) - qBlue(b)));
    return std::max(d, std::abs(qAlpha(a) - qAlpha(b)));
}
} // namespace

::testing::AssertionResult matchesReference(QImage const &image, std::string const &name, int tolerance)
{
    std::string const path = std::string(VOR2_TEST_DATA_DIR) + "/" + name + ".png";
    QImage actual = image.convertToFormat(QImage::Format_ARGB32);
    if (qEnvironmentVariableIntValue("VOR2_UPDATE_REFERENCES") == 1) {
        if (!actual.save(QString::fromStdString(path))) return ::testing::AssertionFailure() << "cannot write " << path;
        return ::testing::AssertionSuccess() << "wrote " << path;
    }
    QImage reference = QImage(QString::fromStdString(path)).convertToFormat(QImage::Format_ARGB32);
    if (reference.isNull())
        return ::testing::AssertionFailure() << "no reference " << path
                                             << " (run with VOR2_UPDATE_REFERENCES=1 and review it)";
    ::testing::AssertionResult failure = ::testing::AssertionFailure() << name << ": ";
    if (reference.size() != actual.size()) {
        failure << "size " << actual.width() << "x" << actual.height() << ", reference " << reference.width() << "x"
                << reference.height();
    } else {
        int differing = 0, worst = 0, firstX = -1, firstY = -1;
        for (int y = 0; y < actual.height(); ++y)
            for (int x = 0; x < actual.width(); ++x) {
                int d = channelDistance(actual.pixel(x, y), reference.pixel(x, y));
                if (d <= tolerance) continue;
                if (differing++ == 0) firstX = x, firstY = y;
                worst = std::max(worst, d);
            }
        if (differing == 0) return ::testing::AssertionSuccess();
        failure << differing << " pixels differ by more than " << tolerance << " (worst " << worst << ", first at "
                << firstX << "," << firstY << ")";
    }
    actual.save(QString::fromStdString(name + ".actual.png"));
    return failure << "; actual written to " << name << ".actual.png";
}

} // namespace VOR2::test
