// The recording paint device: what other tests rely on when they compare its steps with numbers.

#include "support/recordingdevice.h"

#include <QtTest>

class TestRecordingDevice : public QObject
{
    Q_OBJECT

private slots:
    void listsPrimitivesInOrder();
    void keepsThePaintersState();
    void tellsRoundedRectsFromPaths();
};

void TestRecordingDevice::listsPrimitivesInOrder()
{
    RecordingDevice device({100, 50});
    {
        QPainter painter(&device);
        painter.drawLine(QPoint(1, 2), QPoint(3, 4));
        painter.drawPolyline(QPolygonF() << QPointF(0, 0) << QPointF(5, 5) << QPointF(9, 0));
        painter.drawRect(QRect(1, 2, 30, 40));
        painter.drawText(QPointF(7, 20), QStringLiteral("a <b>&c</b>"));
    }
    QCOMPARE(device.steps().size(), 4);
    QCOMPARE(device.steps()[0].points, QPolygonF() << QPointF(1, 2) << QPointF(3, 4));
    QCOMPARE(device.steps()[1].kind, PaintStep::Polyline);
    QCOMPARE(device.steps()[1].points.size(), 3);
    QCOMPARE(device.steps()[2].rect, QRectF(1, 2, 30, 40));
    QCOMPARE(device.texts(), QStringList{"a <b>&c</b>"});
    QCOMPARE(device.textsOf("a <b>&c</b>")[0].points[0], QPointF(7, 20));
    device.clear();
    QVERIFY(device.steps().isEmpty());
}

void TestRecordingDevice::keepsThePaintersState()
{
    RecordingDevice device({100, 50});
    QPen dashed(Qt::red, 3);
    dashed.setDashPattern({2, 1});
    dashed.setDashOffset(-4);
    {
        QPainter painter(&device);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(10, 20);
        painter.setPen(dashed);
        painter.setBrush(QColor(1, 2, 3));
        painter.save();
        painter.setClipRect(QRect(0, 0, 4, 4));
        painter.drawLine(0, 0, 8, 8);
        painter.restore();
        painter.rotate(90);
        painter.drawRect(QRectF(0, 0, 5, 5));
    }
    const PaintStep clipped = device.steps().at(0);
    QCOMPARE(clipped.pen, dashed);
    QCOMPARE(clipped.brush.color(), QColor(1, 2, 3));
    QCOMPARE(clipped.pointsOnDevice(), QPolygonF() << QPointF(10, 20) << QPointF(18, 28));
    QVERIFY(clipped.hints & QPainter::Antialiasing);
    QVERIFY(clipped.hasClip);
    QCOMPARE(clipped.clip, QRectF(0, 0, 4, 4));
    const PaintStep turned = device.steps().at(1);
    QVERIFY(!turned.hasClip);
    QCOMPARE(turned.rectOnDevice(), QRectF(5, 20, 5, 5));
}

void TestRecordingDevice::tellsRoundedRectsFromPaths()
{
    RecordingDevice device({100, 50});
    {
        QPainter painter(&device);
        painter.drawRoundedRect(QRectF(10, 10, 40, 20), 8, 6);
        painter.drawRoundedRect(QRectF(0, 0, 80, 40), 25, 25, Qt::RelativeSize);
        QPainterPath arrow;
        arrow.moveTo(0, 0);
        arrow.lineTo(10, 5);
        arrow.lineTo(0, 10);
        painter.drawPath(arrow);
    }
    const QVector<PaintStep> rounded = device.stepsOf(PaintStep::RoundedRect);
    QCOMPARE(rounded.size(), 2);
    QCOMPARE(rounded[0].rect, QRectF(10, 10, 40, 20));
    QCOMPARE(rounded[0].radii, QSizeF(8, 6));
    QCOMPARE(rounded[1].radii, QSizeF(10, 5)); // per cent of half the side
    QCOMPARE(device.stepsOf(PaintStep::Path).size(), 1);
}

QTEST_MAIN(TestRecordingDevice)
#include "tst_recordingdevice.moc"
