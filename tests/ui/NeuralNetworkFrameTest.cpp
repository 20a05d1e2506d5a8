#include "ui/NeuralNetworkFrame.h"
#include "ui/LiteralNetworkDrawing.h"

#include <QRandomGenerator>
#include <QTest>

using namespace ardeo;

class NeuralNetworkFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void looksLikeTheLiteralDrawing_data()
    {
        QTest::addColumn<QSizeF>("size");
        QTest::addColumn<double>("time");
        QTest::addColumn<ColorScheme>("scheme");
        QTest::addColumn<double>("scale");
        QTest::newRow("window") << QSizeF(640, 680) << 8.0e8 << ColorScheme::dark << 1.0;
        QTest::newRow("fine screen") << QSizeF(640, 680) << 7.5e8 + 0.3 << ColorScheme::light << 2.0;
        QTest::newRow("odd, between scales") << QSizeF(251, 197) << 8.1e8 << ColorScheme::dark << 1.5;
        QTest::newRow("crowded") << QSizeF(60, 43.4) << 7.9e8 << ColorScheme::dark << 2.0;
        QTest::newRow("tiny") << QSizeF(7, 3) << 7.9e8 << ColorScheme::light << 1.0;
        QTest::newRow("one pixel") << QSizeF(1, 1) << 1.0e6 << ColorScheme::dark << 1.0;
        QRandomGenerator random(1);
        for (int i = 0; i < qEnvironmentVariableIntValue("ARDEO_FRAMES"); ++i)
            QTest::addRow("random %d", i)
                << QSizeF(300 + random.bounded(600), 300 + random.bounded(600)) << random.bounded(1e9)
                << ColorScheme(random.bounded(2)) << 1 + random.bounded(5) / 4.0;
    }
    void looksLikeTheLiteralDrawing()
    {
        QFETCH(QSizeF, size);
        QFETCH(double, time);
        QFETCH(ColorScheme, scheme);
        QFETCH(double, scale);
        const QColor ground = scheme == ColorScheme::dark ? QColor(26, 28, 33) : QColor(244, 246, 249);
        const QRect all(QPoint(), (size * scale).toSize());
        const QRect whole(QPoint(), size.toSize() + QSize(1, 1));
        const auto drawn = [&](NeuralNetworkRenderer& renderer) {
            renderer.compose(size, time, scale, whole);
            return renderer.picture(all, scheme, ground).copy();
        };
        const QImage image = drawn(m_renderer);
        const int difference = literalFrame(size, time, scheme, scale).differenceFrom(image, ground);
        QVERIFY2(difference <= 2, QByteArray::number(difference));
        // What was drawn before leaves no trace, and a part is as it is in the whole.
        const QSize step = (size / 12).toSize() * 4; // whole pixels at any scale
        const QRect left(QPoint(), step);
        const QRect right(QPoint(step.width(), step.height()), step);
        m_renderer.compose(size, time + 9, scale, right);
        m_renderer.compose(size, time, scale, QRegion(left) + right);
        for (const QRect part : {left, right}) {
            const QRect pixels = QRect(part.topLeft() * scale, part.size() * scale) & all;
            if (!pixels.isEmpty()) // which means everything to copy()
                QCOMPARE(m_renderer.picture(pixels, scheme, ground), image.copy(pixels));
        }
        m_renderer.compose(size, time - 1.0 / 30, scale, left);
        QCOMPARE(drawn(m_renderer), image);
        NeuralNetworkRenderer fresh(220, 0.25);
        QCOMPARE(drawn(fresh), image);
        // A pixel of the small picture is an average. In a tiny one the blur at the edges would count too
        // much.
        if (size.width() < 60)
            return;
        const QColor average =
            image.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0);
        const QColor small = fresh.reduced({1, 1}, scheme, ground).pixelColor(0, 0);
        QVERIFY(std::abs(average.red() - small.red()) <= 2);
        QVERIFY(std::abs(average.blue() - small.blue()) <= 2);
    }

private:
    NeuralNetworkRenderer m_renderer{220, 0.25};
};

QTEST_GUILESS_MAIN(NeuralNetworkFrameTest)
#include "NeuralNetworkFrameTest.moc"
