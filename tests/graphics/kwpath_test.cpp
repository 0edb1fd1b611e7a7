// Paths: their geometry, and the forms they are written in.
#include "kwpath.h"
#include <QDataStream>
#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

double anyNumber()
{
    return *rc::gen::inRange(-20000, 20000) / 100.0;
}

QPointF anyPoint()
{
    const double x = anyNumber();
    return QPointF(x, anyNumber());
}

KWPath anyPath()
{
    KWPath path;
    const int count = *rc::gen::inRange(0, 12);
    for (int i = 0; i < count; ++i) {
        switch (*rc::gen::inRange(0, 8)) {
        case 0:
            path.moveTo(anyPoint());
            break;
        case 1:
            path.lineTo(anyPoint());
            break;
        case 2:
            path.curveTo(anyPoint(), anyPoint(), anyPoint());
            break;
        case 3:
            path.quadTo(anyPoint(), anyPoint());
            break;
        case 4:
            path.close();
            break;
        case 5:
            path.addRoundRect(QRectF(anyPoint(), anyPoint()), std::fabs(anyNumber()));
            break;
        case 6:
            path.addEllipse(QRectF(anyPoint(), anyPoint()));
            break;
        default:
            path.addPolygon(QVector<QPointF>{anyPoint(), anyPoint(), anyPoint()});
        }
    }
    return path;
}

std::string shown(const KWPath &path)
{
    return path.toSvg().toStdString();
}

KWPath readBack(const QByteArray &bytes)
{
    KWPath path;
    path.lineTo({1, 1});
    QDataStream reader(bytes);
    reader >> path;
    return path;
}

RC_GTEST_PROP(Path, comesBackFromEveryForm, ())
{
    const KWPath path = anyPath();
    RC_LOG(shown(path));
    QByteArray bytes;
    QDataStream writer(&bytes, QIODevice::WriteOnly);
    writer << path;
    RC_ASSERT(readBack(bytes) == path);
    KWPath fromSvg;
    RC_ASSERT(fromSvg.addSvg(path.toSvg()));
    RC_ASSERT(shown(fromSvg) == shown(path));
    const QRectF bounds = path.boundingRect(), expected = path.toPainterPath().boundingRect();
    RC_ASSERT((bounds.topLeft() - expected.topLeft()).manhattanLength() < 1e-6);
    RC_ASSERT((bounds.bottomRight() - expected.bottomRight()).manhattanLength() < 1e-6);
    // Qt's path knows no closes, only lines back to the start.
    const QPainterPath painted = path.toPainterPath();
    RC_ASSERT(KWPath::fromPainterPath(painted).toPainterPath() == painted);
    for (int size = 0; size < bytes.size(); ++size) {
        RC_ASSERT(readBack(bytes.left(size)).isEmpty());
    }
}

TEST(Path, knowsItsGeometry)
{
    KWPath circle;
    circle.addEllipse(QRectF(10, 10, 20, 20));
    EXPECT_NEAR(circle.length(), 20 * M_PI, 0.2);
    EXPECT_TRUE(circle.contains({20, 20}));
    EXPECT_FALSE(circle.contains({11, 11}));
    EXPECT_EQ(circle.boundingRect(), QRectF(10, 10, 20, 20));
    circle.addRect(QRectF(15, 15, 10, 10));
    EXPECT_FALSE(circle.contains({20, 20}, Qt::OddEvenFill));
    KWPath line;
    line.lineTo({30, 0});
    line.lineTo({30, 10});
    EXPECT_EQ(line.pointAt(0.5), QPointF(20, 0));
    EXPECT_EQ(line.pointAt(7), QPointF(30, 10));
    EXPECT_EQ(line.transformed(QTransform().rotate(90)).boundingRect(), QRectF(-10, 0, 10, 30));
    // The curve goes up to three quarters of its controls' height.
    KWPath arch;
    arch.curveTo({0, -40}, {40, -40}, {40, 0});
    EXPECT_EQ(arch.boundingRect(), QRectF(0, -30, 40, 30));
    KWPath odd;
    odd.lineTo({qQNaN(), 1});
    odd.close();
    EXPECT_TRUE(odd.isEmpty());
    EXPECT_EQ(shown(line.transformed(QTransform::fromScale(1e308, 1))), "M0 0");
}

struct SvgCase
{
    const char *data, *shown; // no shown: no path data
};

TEST(Path, readsSvg)
{
    const SvgCase cases[] = {
        {"", ""},
        {"M1 2 3,4-5.5.5", "M1 2L3 4L-5.5 0.5"},
        {" m1 1 1 1z l5 0", "M1 1L2 2ZM1 1L6 1"},
        {"M0,0h10V-1e1H0v2.5E+0", "M0 0L10 0L10 -10L0 -10L0 -7.5"},
        {"M0 0Q3 3 6 0t6 0", "M0 0C2 2 4 2 6 0C8 -2 10 -2 12 0"},
        {"M0 0c0 5 5 5 5 0s5-5 5 0S3 3 4 4", "M0 0C0 5 5 5 5 0C5 -5 10 -5 10 0C10 5 3 3 4 4"},
        {"M0 0S1 1 2 0", "M0 0C0 0 1 1 2 0"},
        {"M0 0A5 5 0 0110 0", "M0 0C0 -2.761 2.239 -5 5 -5C7.761 -5 10 -2.761 10 0"},
        {"M0 0A1 2 30 1 0 0 0A0 1 0 0 0 4 4", "M0 0L4 4"},
        {"L1 1", nullptr},
        {"M1", nullptr},
        {"M1 1X", nullptr},
        {"M1 1 2", nullptr},
        {"M1e999 1", nullptr},
        {"M0 0A1 1 0 2 0 1 1", nullptr},
        {"M0 0Z5 5", nullptr}};
    for (const SvgCase &row : cases) {
        SCOPED_TRACE(row.data);
        KWPath path;
        EXPECT_EQ(path.addSvg(QString::fromLatin1(row.data)), row.shown != nullptr);
        EXPECT_EQ(shown(path), row.shown ? row.shown : "");
    }
}
}
