// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "addplotterdialog.h"
#include "ctvtdialog.h"
#include "eventsdialog.h"
#include "measurementsdialog.h"
#include "savedialog.h"
#include "vectordialog.h"

#include <QtTest>

namespace {

QStringList messages;

void keepMessage(QtMsgType, const QMessageLogContext &, const QString &message)
{
    messages.append(message);
}

} // namespace

// Form slots are connected by name; a name without its signal only shows as a warning.
class TestFormSlots : public QObject {
    Q_OBJECT

private slots:
    void allHaveTheirSignals();
};

void TestFormSlots::allHaveTheirSignals()
{
    const QtMessageHandler before = qInstallMessageHandler(keepMessage);
    QObject host;
    AddPlotterDialog addPlotter;
    CTVTDialog ctvt;
    EventsDialog events;
    MeasurementsDialog measurements;
    SaveDialog save;
    VectorDialog vectors;
    vectors.setMainWindow(&host);
    qInstallMessageHandler(before);
    QCOMPARE(messages, QStringList());
}

QTEST_MAIN(TestFormSlots)
#include "tst_formslots.moc"
