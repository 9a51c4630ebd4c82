// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "converterrun.h"
#include "publishedforms.h"

#include <QtTest>

namespace {

using Form = PublishedRecording::Form;

// What a sample has, by its index from 0 on. It differs from those of all others nearby.
constexpr int samples = 30000;

qint64 microseconds(qint64 i)
{
    constexpr qint64 slowEnd = 20000; // later ones follow twice as fast
    return i < slowEnd ? i * 1000 : slowEnd * 1000 + (i - slowEnd) * 500;
}

qint64 count(qint64 i)
{
    return i * 7919 % 60001 - 30000;
}

bool isLater(int i)
{
    return i % 7 == 3;
}

double value(int i, const QByteArray &type)
{
    return type == "FLOAT32" ? static_cast<double>(count(i)) + 0.5
        : type == "BINARY32" ? static_cast<double>(count(i) * 30011)
                             : static_cast<double>(count(i));
}

QByteArray text(int i, const QByteArray &type)
{
    return QByteArray::number(value(i, type), 'f', type == "FLOAT32" ? 1 : 0);
}

// Every third sample has no stamp, and the rates say the same.
PublishedRecording recording(const QByteArray &type)
{
    PublishedRecording made;
    made.analog += "2,IL2,B,Bay,A,0.5,0.25,0,-32767,32767";
    made.digital = QByteArrayList{"Trip", "Start"};
    made.rates = QByteArrayList{"1000,20000", "2000,30000"};
    for (int i = 0; i < samples; ++i)
        made.samples.append({i % 3 == 1 ? -1 : microseconds(i),
            {value(i, type), value(samples - 1 - i, type)}, isLater(i) ? "01" : "10"});
    return made;
}

// The lines of the samples from one up to another.
QByteArray lines(int begin, int end, const QByteArray &type)
{
    QByteArray written;
    for (int i = begin; i < end; ++i)
        written += QByteArray::number(i - begin + 1) + ','
            + QByteArray::number(microseconds(i) - microseconds(begin)) + ',' + text(i, type) + ','
            + text(samples - 1 - i, type) + (isLater(i) ? ",0,1\r\n" : ",1,0\r\n");
    return written;
}

} // namespace

// Recordings of many times the bytes that are read at once.
class TestConverterBlocks : public QObject {
    Q_OBJECT

private slots:
    void everySampleIsInItsPlace_data();
    void everySampleIsInItsPlace();
};

void TestConverterBlocks::everySampleIsInItsPlace_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<bool>("isSingleFile");
    QTest::addColumn<QString>("options");
    QTest::addColumn<int>("begin"); // of the samples that are expected
    QTest::addColumn<int>("end");
    QTest::addColumn<QByteArray>("rates");
    for (const char *type : {"BINARY", "BINARY32", "FLOAT32"}) {
        for (const bool isSingleFile : {false, true}) {
            const char *const form = isSingleFile ? "single file" : "pair";
            const auto row = [&](const char *part, const char *options, int begin, int end,
                                 const char *rates) {
                QTest::addRow("%s, %s of %s", part, form, type)
                    << QByteArray(type) << isSingleFile << QString::fromLatin1(options) << begin
                    << end << QByteArray(rates);
            };
            row("all", "", 0, 30000, "\r\n2\r\n1000,20000\r\n2000,30000\r\n");
            row("over both rates", "--from 15000 --to 22000", 15000, 24001,
                "\r\n2\r\n1000,5000\r\n2000,9001\r\n");
            row("beginning", "--to 7000", 0, 7001, "\r\n1\r\n1000,7001\r\n");
            row("end", "--from 24999", 29998, 30000, "\r\n1\r\n2000,2\r\n");
        }
    }
}

void TestConverterBlocks::everySampleIsInItsPlace()
{
    QFETCH(QByteArray, type);
    QFETCH(bool, isSingleFile);
    QFETCH(QString, options);
    QFETCH(int, begin);
    QFETCH(int, end);
    QFETCH(QByteArray, rates);
    const ConverterFolder folder;
    const Form form{2013, type};
    const PublishedRecording made = recording(type);
    QVERIFY(folder.write("r.cfg", made.configuration(form)));
    QVERIFY(folder.write("r.dat", made.data(form)));
    // The heading says how many bytes are data.
    QVERIFY(folder.write("r.cff", made.singleFile(form) + "\r\nnone of them"));
    const QString input = isSingleFile ? QStringLiteral(" @r.cff") : QStringLiteral(" @r.cfg");
    QCOMPARE(folder.run(options + input + QStringLiteral(" -o @out")).errors, QByteArray());
    const QByteArrayList written = folder.read("out.dat").split('\n');
    const QByteArrayList expected = lines(begin, end, type).split('\n');
    for (int i = 0; i < qMin(written.size(), expected.size()); ++i)
        QCOMPARE(written.at(i), expected.at(i));
    QCOMPARE(written.size(), expected.size());
    QVERIFY2(folder.read("out.cfg").contains(rates), folder.read("out.cfg").constData());
}

QTEST_GUILESS_MAIN(TestConverterBlocks)
#include "tst_converterblocks.moc"
