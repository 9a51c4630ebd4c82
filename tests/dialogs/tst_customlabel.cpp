// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "customlabel.h"
#include "mousemovereceiver.h"

#include <QMouseEvent>
#include <QtTest>

namespace {

// Stands for a plot: keeps what it is passed.
class Receiver : public QWidget, public MouseMoveReceiver {
    Q_OBJECT
    Q_INTERFACES(MouseMoveReceiver)

public:
    void receiveMouseMove(QMouseEvent *event) override
    {
        ++moves;
        type = event->type();
        position = event->localPos();
        button = event->button();
        buttons = event->buttons();
        modifiers = event->modifiers();
    }

    int moves = 0;
    int ownMoves = 0;
    QEvent::Type type = QEvent::None;
    QPointF position;
    Qt::MouseButton button = Qt::MiddleButton;
    Qt::MouseButtons buttons = Qt::MiddleButton;
    Qt::KeyboardModifiers modifiers = Qt::MetaModifier;

protected:
    void mouseMoveEvent(QMouseEvent *) override { ++ownMoves; }
};

void sendMove(QWidget &label, const QPointF &position)
{
    QMouseEvent event(QEvent::MouseMove, position, Qt::LeftButton, Qt::LeftButton | Qt::RightButton,
        Qt::ShiftModifier);
    QCoreApplication::sendEvent(&label, &event);
}

} // namespace

class TestCustomLabel : public QObject {
    Q_OBJECT

private slots:
    void forwardsThePositionInThePlot_data();
    void forwardsThePositionInThePlot();
    void forwardsAPlainMove();
    void survivesAMissingPlotter();
    void followsAPersonsMouse();
    void isAPlainLabel();
};

void TestCustomLabel::forwardsThePositionInThePlot_data()
{
    QTest::addColumn<QPoint>("labelPosition");
    QTest::addColumn<QPointF>("local");
    QTest::addColumn<QPointF>("expected");

    QTest::newRow("each coordinate is rounded")
        << QPoint(100, 40) << QPointF(5.6, 2.4) << QPointF(106, 42);
    QTest::newRow("a half is rounded up")
        << QPoint(100, 40) << QPointF(5.5, 2.5) << QPointF(106, 43);
    QTest::newRow("whole positions stay") << QPoint(0, 0) << QPointF(7, 3) << QPointF(7, 3);
    QTest::newRow("a drag may leave the label")
        << QPoint(10, 20) << QPointF(-30.2, 200) << QPointF(-20, 220);
}

void TestCustomLabel::forwardsThePositionInThePlot()
{
    QFETCH(QPoint, labelPosition);
    QFETCH(QPointF, local);
    Receiver receiver;
    CustomLabel label(&receiver);
    label.setPlotter(&receiver);
    label.move(labelPosition);

    sendMove(label, local);

    QCOMPARE(receiver.moves, 1);
    QTEST(receiver.position, "expected");
}

void TestCustomLabel::forwardsAPlainMove()
{
    Receiver receiver;
    CustomLabel label(&receiver);
    label.setPlotter(&receiver);

    sendMove(label, QPointF(1, 1));

    QCOMPARE(receiver.type, QEvent::MouseMove);
    QCOMPARE(receiver.button, Qt::NoButton);
    QCOMPARE(receiver.buttons, Qt::MouseButtons(Qt::NoButton));
    QCOMPARE(receiver.modifiers, Qt::KeyboardModifiers(Qt::NoModifier));
    QCOMPARE(receiver.ownMoves, 0); // the move is not handed on to the parent a second time
}

void TestCustomLabel::survivesAMissingPlotter()
{
    Receiver receiver;
    CustomLabel label(&receiver);
    sendMove(label, QPointF(1, 1));

    QObject stranger;
    label.setPlotter(&stranger);
    sendMove(label, QPointF(1, 1));

    label.setPlotter(&receiver);
    label.setPlotter(nullptr);
    sendMove(label, QPointF(1, 1));

    QCOMPARE(receiver.moves, 0);
}

void TestCustomLabel::followsAPersonsMouse()
{
    Receiver receiver;
    receiver.resize(300, 200);
    CustomLabel label(&receiver);
    label.setGeometry(100, 40, 60, 20);
    label.setPlotter(&receiver);
    receiver.show();
    QVERIFY(QTest::qWaitForWindowExposed(&receiver));

    QTest::mouseMove(&label, QPoint(10, 5));

    QTRY_COMPARE(receiver.position, QPointF(110, 45));
}

void TestCustomLabel::isAPlainLabel()
{
    QWidget parent;
    const CustomLabel label(&parent);
    QCOMPARE(label.parentWidget(), &parent);
    QCOMPARE(label.windowFlags(), QLabel(&parent).windowFlags());
    QVERIFY(!label.isWindow());
    QVERIFY(label.hasMouseTracking());
}

QTEST_MAIN(TestCustomLabel)
#include "tst_customlabel.moc"
