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
        const QImage image = m_renderer.render(size, time, scheme, 220, 0.25, scale);
        QCOMPARE(image.size(), (size * scale).toSize());
        QCOMPARE(image.devicePixelRatio(), scale);
        const int difference = literalFrame(size, time, scheme, scale).differenceFrom(image);
        QVERIFY2(difference <= 2, QByteArray::number(difference));
        // What was drawn before leaves no trace, and a part is as it is in the whole.
        const QSize step = (size / 12).toSize() * 4; // whole pixels at any scale
        const QRect left(QPoint(), step);
        const QRect right(QPoint(step.width(), step.height()), step);
        m_renderer.render(size, time + 9, scheme, 220, 0.25, scale, right);
        const QImage parts = m_renderer.render(size, time, scheme, 220, 0.25, scale, QRegion(left) + right);
        for (const QRect part : {left, right}) {
            const QRect pixels = QRect(part.topLeft() * scale, part.size() * scale) & image.rect();
            if (!pixels.isEmpty()) // which means everything to copy()
                QCOMPARE(parts.copy(pixels), image.copy(pixels));
        }
        QCOMPARE(image, NeuralNetworkRenderer().render(size, time, scheme, 220, 0.25, scale));
    }

    void nothingToDraw()
    {
        for (const QSizeF size : {QSizeF(), QSizeF(0, 100), QSizeF(100, 0), QSizeF(0.2, 0.2)})
            QVERIFY(m_renderer.render(size, 8e8, ColorScheme::dark, 220, 0.25, 2).isNull());
    }

private:
    NeuralNetworkRenderer m_renderer;
};

QTEST_GUILESS_MAIN(NeuralNetworkFrameTest)
#include "NeuralNetworkFrameTest.moc"
