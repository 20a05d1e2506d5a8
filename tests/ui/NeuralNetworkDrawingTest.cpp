#include "ui/background/NeuralNetworkDrawing.h"
#include "ui/LiteralNetworkDrawing.h"

#include <QTest>

using namespace ardeo;

class NeuralNetworkDrawingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void looksLikeTheLiteralDrawing()
    {
        for (const auto& [size, time, scheme, scale] :
             {std::tuple(QSizeF(640, 680), 8.0e8, ColorScheme::dark, 1.0), // as a window has it
              {QSizeF(640, 680), 7.5e8 + 0.3, ColorScheme::light, 2.0},
              {QSizeF(640, 681), 8.1e8, ColorScheme::dark, 1.5}}) {
            const QColor ground = scheme == ColorScheme::dark ? QColor(26, 28, 33) : QColor(244, 246, 249);
            const QImage small =
                drawNetwork(size, QRectF(QPointF(), size).toAlignedRect(), time, 220, 0.25, scheme, ground);
            QImage image((size * scale).toSize(), QImage::Format_RGB32);
            QPainter painter(&image);
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            painter.scale(scale * networkCell, scale * networkCell);
            painter.drawImage(0, 0, small);
            painter.end();
            const Differences found = literalFrame(size, time, scheme, scale).differencesFrom(image, ground);
            const QByteArray all = QByteArray::number(found.mean) + " on average, " +
                                   QByteArray::number(found.beyondThree * 100) + " % beyond 3, " +
                                   QByteArray::number(found.largest) + " at most";
            QVERIFY2(found.mean <= 0.5 && found.beyondThree <= 0.005 && found.largest <= 20, all.constData());
        }
    }

    void whatIsSeenLooksLikeTheWhole()
    {
        const auto draw = [](const QRegion& seen) {
            return drawNetwork({640, 680}, seen, 8e8, 220, 0.25, ColorScheme::light, Qt::white);
        };
        const QImage whole = draw(QRect(0, 0, 640, 680));
        const QImage part = draw(QRegion(0, 0, 640, 680) - QRegion(20, 60, 600, 300));
        int drawn = 0;
        for (int y = 0; y < whole.height(); ++y) {
            for (int x = 0; x < whole.width(); ++x) {
                const bool isSeen = !QRect(8, 22, 198, 97).contains(x, y);
                const QColor seen = part.pixelColor(x, y);
                drawn += seen != Qt::white;
                QVERIFY(!isSeen || std::abs(seen.red() - whole.pixelColor(x, y).red()) <= 1);
            }
        }
        QVERIFY(drawn > 1000 && part.pixelColor(100, 70) == Qt::white);
    }
    void ofAnEmptyCanvasThereIsNothing()
    {
        QVERIFY(drawNetwork({0, 0}, {}, 1, 220, 0.25, ColorScheme::light, Qt::white).isNull());
        QCOMPARE(drawNetwork({1, 1}, QRect(0, 0, 1, 1), 1, 220, 0.25, ColorScheme::light, Qt::white).size(),
                 QSize(1, 1));
    }
};

QTEST_GUILESS_MAIN(NeuralNetworkDrawingTest)
#include "NeuralNetworkDrawingTest.moc"
