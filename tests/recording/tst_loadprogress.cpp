// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "interruption.h"
#include "loadprogress.h"
#include "recordingbuilder.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

using Stage = LoadProgress::Stage;

Q_DECLARE_METATYPE(Stage)

namespace {

// One analog channel of 20 samples a cycle.
QByteArray configuration()
{
    ConfigurationText text;
    text.addAnalog("I,A,,A,1,0,0,-9,9,1,1,P");
    return text.text();
}

void look()
{
    countWork(stepsBetweenLooks);
}

} // namespace

class TestLoadProgress : public QObject {
    Q_OBJECT

    static constexpr int samples = 100000;
    static constexpr unsigned long betweenPlaces = 1; // ms

    std::unique_ptr<QTemporaryDir> folder;

    // The paths of long ones, empty where they cannot be written.
    QString recordingOnDisk() const
    {
        const QByteArray lines = ("1,1,5" + QByteArray(300, ',') + '\n').repeated(samples);
        return writeTextFile(path("long.cfg"), configuration())
                && writeTextFile(path("long.dat"), lines)
            ? path("long.cfg")
            : QString();
    }
    QString exportOnDisk() const
    {
        const QByteArray lines = QByteArray("01/01/2020-00:00:00:000,1\n").repeated(samples);
        return writeTextFile(path("long.txt"), "Ua\n" + lines) ? path("long.txt") : QString();
    }
    QString path(const char *name) const { return folder->filePath(QLatin1String(name)); }

    // Loads in another thread, and calls the other function with each place seen meanwhile.
    static void load(CFGProperties &recording, const std::function<void(LoadProgress::Place)> &seen)
    {
        recording.progress().restart();
        const std::unique_ptr<QThread> thread(QThread::create([&] { recording.init(); }));
        thread->start();
        while (!thread->wait(betweenPlaces))
            seen(recording.progress().place());
    }

private slots:
    void init() { folder = std::make_unique<QTemporaryDir>(); }

    void aStageSaysHowFarItIs_data()
    {
        QTest::addColumn<qint64>("done");
        QTest::addColumn<qint64>("total");
        QTest::addColumn<float>("part");
        const auto row = [](const char *name, qint64 done, qint64 total, float part) {
            QTest::newRow(name) << done << total << part;
        };
        row("nothing", 0, 4, 0);
        row("a quarter", 1, 4, 0.25F);
        row("all", 4, 4, 1);
        row("more than there was, as of a file that grows", 5, 4, 1);
        row("of a file without a size", 5, 0, 0);
        row("of very much", qint64(3) << 60, qint64(1) << 62, 0.75F);
    }

    void aStageSaysHowFarItIs()
    {
        QFETCH(qint64, done);
        QFETCH(qint64, total);
        QFETCH(float, part);
        LoadProgress progress;
        const LoadStage stage(progress, Stage::Phasors, total, [=] { return done; });
        QCOMPARE(progress.place().stage, Stage::Phasors);
        QCOMPARE(progress.place().done, part);
    }

    void aStageIsAskedAtEachLook()
    {
        LoadProgress progress;
        int asked = 0;
        {
            const LoadStage stage(progress, Stage::Reading, 4, [&] { return asked++; });
            QCOMPARE(progress.place().done, 0.0F);
            countWork(stepsBetweenLooks / 2);
            const int before = asked;
            look();
            QCOMPARE(asked, before + 1);
            QCOMPARE(progress.place().done, static_cast<float>(before) / 4);
        }
        const int before = asked;
        look(); // at no stage
        QCOMPARE(asked, before);
    }

    void aStageIsOfItsThreadAlone()
    {
        LoadProgress progress;
        bool isAsked = false;
        const LoadStage stage(progress, Stage::Reading, 4, [&] {
            isAsked = true;
            return 0;
        });
        isAsked = false;
        progress.cancel();
        const std::unique_ptr<QThread> other(QThread::create(look));
        other->start();
        QVERIFY(other->wait());
        QVERIFY(!isAsked);
    }

    void aCancelledStageIsGivenUp()
    {
        LoadProgress progress;
        {
            const LoadStage stage(progress, Stage::Reading, 4, [] { return 0; });
            look();
            progress.cancel();
            QVERIFY_EXCEPTION_THROWN(look(), Interruption);
            QVERIFY(progress.isCancelled());
        }
        look(); // at no stage
        progress.setPlace({Stage::Phasors, 0.5F});
        progress.restart();
        QVERIFY(!progress.isCancelled());
        QCOMPARE(progress.place().stage, Stage::Reading);
        QCOMPARE(progress.place().done, 0.0F);
        const LoadStage stage(progress, Stage::Reading, 4, [] { return 0; });
        look();
    }

    // Both stages, each from less than a third to more than two, and never back.
    void aLoadGoesFromBytesToPhasors()
    {
        CFGProperties recording;
        recording.filePath = recordingOnDisk();
        std::vector<LoadProgress::Place> places{{Stage::Reading, 0}};
        bool isAscending = true;
        load(recording, [&](LoadProgress::Place place) {
            const LoadProgress::Place last = places.back();
            if (place.stage == last.stage && place.done == last.done)
                return;
            isAscending = isAscending
                && (place.stage == last.stage ? place.done > last.done
                                              : place.stage == Stage::Phasors);
            places.push_back(place);
        });
        QCOMPARE(recording.loaded, 1);
        QCOMPARE(recording.failure(), CFGProperties::Failure::None);
        QVERIFY(isAscending);
        for (const Stage stage : {Stage::Reading, Stage::Phasors}) {
            float least = 1;
            float most = 0;
            for (const LoadProgress::Place &place : places) {
                least = place.stage == stage ? std::min(least, place.done) : least;
                most = place.stage == stage ? std::max(most, place.done) : most;
            }
            QVERIFY2(least < 0.33F && most > 0.67F, qPrintable(QString::number(most)));
        }
    }

    void aLoadIsCancelled_data()
    {
        QTest::addColumn<bool>("isExport");
        QTest::addColumn<int>("stage");
        QTest::addColumn<float>("from"); // part of it that is done
        QTest::newRow("before it has begun") << false << -1 << 0.0F;
        QTest::newRow("while the data are read") << false << 0 << 0.0F;
        QTest::newRow("late while the data are read") << false << 0 << 0.5F;
        QTest::newRow("while the phasors are computed") << false << 1 << 0.0F;
        QTest::newRow("late while the phasors are computed") << false << 1 << 0.5F;
        QTest::newRow("an export before it has begun") << true << -1 << 0.0F;
        QTest::newRow("an export") << true << 0 << 0.0F;
        QTest::newRow("an export, late") << true << 0 << 0.5F;
    }

    void aLoadIsCancelled()
    {
        QFETCH(bool, isExport);
        QFETCH(int, stage);
        QFETCH(float, from);
        CFGProperties recording;
        const QString path = isExport ? exportOnDisk() : recordingOnDisk();
        recording.filePath = path;
        const QSignalSpy finished(&recording, &CFGProperties::initFinished);
        recording.progress().restart();
        const std::unique_ptr<QThread> thread(QThread::create([&] { recording.init(); }));
        if (stage < 0)
            recording.progress().cancel();
        thread->start();
        bool isReached = stage < 0;
        QElapsedTimer sinceCancelled;
        while (!thread->wait(betweenPlaces)) {
            const LoadProgress::Place place = recording.progress().place();
            if (isReached || int(place.stage) != stage || place.done <= from)
                continue;
            isReached = true;
            sinceCancelled.start();
            recording.progress().cancel();
        }
        QVERIFY(isReached);
        // It ends within 200 ms, but later on a busy machine and under sanitizers.
        QVERIFY(!sinceCancelled.isValid() || sinceCancelled.elapsed() < 2000);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(recording.loaded, 0);
        QCOMPARE(recording.failure(), CFGProperties::Failure::GivenUp);
        QCOMPARE(recording.stationName, QString());
        QCOMPARE(recording.sampleTimes.size(), 0);
        QVERIFY(recording.analogChannels.isEmpty());
        // The same file loads when nobody cancels it.
        recording.filePath = path;
        load(recording, [](LoadProgress::Place) {});
        QCOMPARE(recording.loaded, 1);
        QCOMPARE(recording.failure(), CFGProperties::Failure::None);
        QCOMPARE(recording.sampleCount, samples);
    }

    void aSmallLoadIsCancelled()
    {
        CFGProperties recording;
        recording.filePath = path("small.cfg");
        QVERIFY(writeTextFile(recording.filePath, configuration()));
        QVERIFY(writeTextFile(path("small.dat"), "1,1,5\n"));
        recording.progress().restart();
        recording.progress().cancel();
        recording.init();
        QCOMPARE(recording.loaded, 0);
        QCOMPARE(recording.failure(), CFGProperties::Failure::GivenUp);
        QVERIFY(recording.analogChannels.isEmpty());
    }

    void theEndIsSaidBeforeItsSignal_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<bool>("isCancelled");
        QTest::addColumn<int>("loaded");
        QTest::newRow("loaded") << QByteArray("1,1,5\n") << false << 1;
        QTest::newRow("failed") << QByteArray() << false << 0;
        QTest::newRow("cancelled") << QByteArray("1,1,5\n") << true << 0;
    }

    void theEndIsSaidBeforeItsSignal()
    {
        QFETCH(QByteArray, data);
        QFETCH(bool, isCancelled);
        QFETCH(int, loaded);
        CFGProperties recording;
        QVERIFY(writeTextFile(path("small.cfg"), configuration()));
        QVERIFY(writeTextFile(path("small.dat"), data));
        int ends = 0;
        connect(&recording, &CFGProperties::initFinished, this,
            [&] { ends += recording.progress().hasEnded() ? 1 : 0; });
        for (int time = 1; time <= 2; ++time) {
            recording.filePath = path("small.cfg");
            recording.progress().restart();
            if (isCancelled)
                recording.progress().cancel();
            QVERIFY(!recording.progress().hasEnded());
            recording.init();
            QCOMPARE(ends, time);
            QCOMPARE(recording.loaded, loaded);
        }
    }
};

QTEST_GUILESS_MAIN(TestLoadProgress)
#include "tst_loadprogress.moc"
