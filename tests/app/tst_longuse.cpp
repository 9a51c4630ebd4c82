// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "analogchannel.h"
#include "cfgproperties.h"
#include "digitalchannel.h"
#include "plotswindow.h"
#include "smallrecording.h"
#include "vectordialog.h"

#include <QDir>
#include <QLoggingCategory>
#include <QMouseEvent>
#include <QSet>

#include <malloc.h>

namespace {

// What this process has taken so far. Bytes of the heap; none are counted under the sanitizers,
// which have a heap of their own.
struct Taken {
    qint64 bytes = 0;
    int handles = 0;
    int threads = 0;

    static Taken now()
    {
        const struct mallinfo2 info = mallinfo2();
        const auto entries = [](const char *folder) {
            return QDir(QLatin1String(folder))
                .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System)
                .size();
        };
        return {qint64(info.uordblks) + qint64(info.hblkhd), entries("/proc/self/fd"),
            entries("/proc/self/task")};
    }
};

bool isLong()
{
    return qEnvironmentVariableIsSet("WAVORIN_LONG_TESTS");
}

// What the C library takes for a block.
qint64 heapBytes(qint64 bytes)
{
    return (bytes + 8 + 15) / 16 * 16;
}

// What the records of a recording take. Blocks that several of them share are counted once.
class RecordBytes {
public:
    explicit RecordBytes(const CFGProperties &recording)
    {
        for (const AnalogChannel *channel : recording.analogChannels) {
            m_bytes += heapBytes(sizeof *channel) + qint64(sizeof channel);
            for (const QVector<float> &series :
                {channel->rawValues, channel->values, channel->fftAngles, channel->fftMagnitudes})
                addBlock(series);
            addBlock(channel->times);
            addBlock(channel->id);
            addBlock(channel->ps);
        }
        for (const DigitalChannel *channel : recording.digitalChannels) {
            m_bytes += heapBytes(sizeof *channel) + qint64(sizeof channel);
            addBlock(channel->values);
            addBlock(channel->times);
            addBlock(channel->id);
        }
    }
    qint64 count() const { return m_bytes; }

private:
    template <typename Series> void addBlock(const Series &series)
    {
        if (series.capacity() == 0 || m_seen.contains(series.constData()))
            return;
        m_seen.insert(series.constData());
        constexpr qint64 header = sizeof(QArrayData);
        m_bytes += heapBytes(header + qint64(sizeof *series.constData()) * series.capacity());
    }

    QSet<const void *> m_seen;
    qint64 m_bytes = 0;
};

} // namespace

// What a window that stands open for days may take: memory for the records of all that it has
// loaded, and little else. Where WAVORIN_LONG_TESTS is set, 2,000 recordings and a day, which take
// minutes.
class TestLongUse : public PlotsWindow {
    Q_OBJECT

    std::unique_ptr<BoxReader> boxes;
    QByteArray searchPath;

    // Two that are alike in nothing, a text export, one that cannot be loaded, and a package for a
    // script in the archiver's place.
    QStringList writeFiles()
    {
        const QByteArray good = QFile::encodeName(path("small"));
        const bool isWritten = writeTextFile(path("bad.cfg"), "x")
            && writeTextFile(path("some.zip"), "PK")
            && writeTextFile(path("7z.exe"),
                "#!/bin/sh\ncp \"" + good + ".cfg\" \"" + good + ".dat\" \"${4#-o}\"\n")
            && writeTextFile(path("export.txt"),
                "#Ua[kV],Ub[kV]\n01/02/2020-10:00:00:000,1,2\n01/02/2020-10:00:00:020,3,4\n");
        QFile::setPermissions(path("7z.exe"), QFile::ReadOwner | QFile::ExeOwner);
        qputenv("PATH", QFile::encodeName(folder->path()) + ':' + searchPath);
        return !isWritten
            ? QStringList()
            : QStringList{writeSmallRecording(folder->path(), QStringLiteral("small")),
                writeRecording(folder->path(),
                    {QStringLiteral("IL1"), QStringLiteral("IL2"), QStringLiteral("MEAS1")},
                    {QStringLiteral("TRIP"), QStringLiteral("START0")}),
                path("export.txt"), path("bad.cfg"), path("some.zip")};
    }

    // One after the other, with a plot, cursors and a zoom in each.
    qint64 use(const QStringList &files, int loads)
    {
        qint64 bytes = 0; // of the records
        for (int load = 0; load < loads; ++load) {
            window->open(files.at(load % files.size()));
            if (const CFGProperties *recording = window->recording()) {
                bytes += RecordBytes(*recording).count();
                window->addPlotter({recording->analogIds.constFirst()});
                plots().constFirst()->customZoomIn();
                QTest::mouseDClick(plots().constFirst(), Qt::LeftButton, {}, {300, 100});
                QTest::mouseDClick(plots().constFirst(), Qt::LeftButton, {}, {400, 100});
            }
            QCoreApplication::processEvents();
        }
        window->open(files.constFirst()); // what is on screen is the same before and after
        bytes += RecordBytes(*window->recording()).count();
        settle();
        return bytes;
    }

    // Over the window from end to end, once a second of a day.
    void point(int moves)
    {
        for (int move = 0; move < moves; ++move) {
            Plotter *plot = plots().at(move / 500 % plots().size());
            const QPoint at(90 + move * 7 % (plot->width() - 90), 50 + move % 100);
            QMouseEvent event(QEvent::MouseMove, at, plot->mapToGlobal(at), Qt::NoButton,
                Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(plot, &event);
            QCoreApplication::processEvents();
        }
        settle();
    }

    static void settle()
    {
        QTest::qWait(2500); // until the message in the status bar is gone
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // Beyond what has to stay, the toolkit's own lists and caches may take some; a plot or a dialog
    // that was left behind by each load would take more.
    static void expectNoMore(const Taken &before, const Taken &after, qint64 bytes, int loads = 0)
    {
        const qint64 beyond = after.bytes - before.bytes - bytes;
        qInfo("%lld bytes more, %lld of records; %d handles, %d threads",
            after.bytes - before.bytes, bytes, after.handles, after.threads);
        QVERIFY2(beyond < (256 + 4 * loads) * 1024, qPrintable(QString::number(beyond)));
        // Those of an archiver that has just ended may still have been there before.
        QVERIFY2(after.handles <= before.handles, qPrintable(QString::number(after.handles)));
        QVERIFY2(after.threads <= before.threads, qPrintable(QString::number(after.threads)));
    }

private slots:
    void initTestCase()
    {
        // The platform without a display warns whenever a plot grabs the keyboard.
        QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
        searchPath = qgetenv("PATH");
        startAsMaker();
        boxes = std::make_unique<BoxReader>();
        openWindow();
    }

    void cleanupTestCase()
    {
        qputenv("PATH", searchPath);
        closeWindow();
        boxes.reset();
    }

    void reloads()
    {
        const QStringList files = writeFiles();
        QVERIFY(!files.isEmpty());
        use(files, 4 * files.size()); // for what is made once and kept
        const Taken before = Taken::now();
        const int loads = isLong() ? 2000 : 40;
        const qint64 bytes = use(files, loads);
        expectNoMore(before, Taken::now(), bytes, loads);
    }

    void pointerMoves()
    {
        QVERIFY(window->recording());
        trigger("&Show Vectors");
        point(2000);
        const Taken before = Taken::now();
        point(isLong() ? 24 * 60 * 60 : 2000);
        expectNoMore(before, Taken::now(), 0);
    }
};

QTEST_MAIN(TestLongUse)
#include "tst_longuse.moc"
