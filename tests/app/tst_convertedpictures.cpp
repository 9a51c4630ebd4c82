// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "converterrun.h"
#include "publishedforms.h"
#include "windowfixture.h"

#include <cmath>

namespace {

using Form = PublishedRecording::Form;

// A current and a voltage over ten cycles, the first with a step, and a signal that rises.
PublishedRecording recording(bool isFlat = false)
{
    constexpr int cycle = 24; // samples
    constexpr double turn = 2 * 3.14159265358979323846;
    PublishedRecording made;
    made.analog += "2,UL1,A,Bay,kV,0.001,-1.5,0,-32767,32767";
    made.ratio = "1,1,P"; // as 1991 has none
    made.rates = QByteArrayList{"1200,240"};
    for (int i = 0; i < 10 * cycle; ++i) {
        const double wave = isFlat ? 0 : std::sin(turn * i / cycle);
        const double height = i < 5 * cycle ? 1000 : 9000;
        made.samples.append({i * 2500 / 3, {std::round(height * wave), std::round(8000 * wave)},
            i < 6 * cycle ? "0" : "1"});
    }
    return made;
}

} // namespace

// From a file in each form to a picture by the commands of the manual.
class TestConvertedPictures : public WindowFixture {
    Q_OBJECT

    // What the plots show of a recording of the folder.
    QVector<QImage> pictures(const ConverterFolder &files, const char *name)
    {
        window->open(files.path(QLatin1String(name)));
        QVector<QImage> shown;
        for (Plotter *plot : window->findChildren<Plotter *>())
            shown.append(plot->grab().toImage());
        return shown;
    }

private slots:
    void initTestCase() { startAsMaker(); }
    void init() { openWindow(1000, 800); }
    void cleanup() { closeWindow(); }

    void everyFormGivesTheSamePicture_data()
    {
        QTest::addColumn<int>("revision");
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<bool>("isSingleFile");
        QTest::newRow("ASCII pair of 1991") << 1991 << QByteArray("ASCII") << false;
        QTest::newRow("BINARY pair of 1991") << 1991 << QByteArray("BINARY") << false;
        QTest::newRow("ASCII pair of 1999") << 1999 << QByteArray("ASCII") << false;
        QTest::newRow("BINARY pair of 1999") << 1999 << QByteArray("BINARY") << false;
        QTest::newRow("BINARY32 pair of 2013") << 2013 << QByteArray("BINARY32") << false;
        QTest::newRow("single file of ASCII") << 2013 << QByteArray("ASCII") << true;
        QTest::newRow("single file of BINARY") << 2013 << QByteArray("BINARY") << true;
        QTest::newRow("single file of BINARY32") << 2013 << QByteArray("BINARY32") << true;
        QTest::newRow("single file of FLOAT32") << 2013 << QByteArray("FLOAT32") << true;
    }

    void everyFormGivesTheSamePicture()
    {
        QFETCH(int, revision);
        QFETCH(QByteArray, type);
        QFETCH(bool, isSingleFile);
        const ConverterFolder files;
        const Form plain{1999, "ASCII"};
        files.write("plain.cfg", recording().configuration(plain));
        files.write("plain.dat", recording().data(plain));
        files.write("flat.cfg", recording(true).configuration(plain));
        files.write("flat.dat", recording(true).data(plain));
        const QVector<QImage> expected = pictures(files, "plain.cfg");
        QCOMPARE(expected.size(), 2);
        QVERIFY(pictures(files, "flat.cfg").constFirst() != expected.constFirst());

        const Form form{revision, type};
        QVERIFY(QDir(files.path(QString())).mkdir(QStringLiteral("other")));
        QByteArray errors;
        if (isSingleFile) {
            files.write("recording.cff", recording().singleFile(form));
            errors = files.run(QStringLiteral("@recording.cff")).errors;
        } else {
            files.write("other/recording.cfg", recording().configuration(form));
            files.write("other/recording.dat", recording().data(form));
            errors = files.run(QStringLiteral("@other/recording.cfg -o @recording")).errors;
        }
        QCOMPARE(errors, QByteArray());
        QCOMPARE(pictures(files, "recording.cfg"), expected);
    }
};

QTEST_MAIN(TestConvertedPictures)
#include "tst_convertedpictures.moc"
