// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// What it takes to open files that hold very much of something: processor time and memory, each in
// a process of its own, how late a load that is in the way of closing gives up, and for how long
// the window does not hear that it is to be closed. Prints a line for each and exits with 1 where a
// goal is missed.

#include "mainwindow.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <sys/resource.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <memory>

namespace {

struct Recording {
    QByteArray configuration; // empty: the data are a text export
    QByteArray data;
};

struct Case {
    const char *name;
    Recording (*recording)();
    double mostSeconds; // of processor time
    double mostMegabytes;
    bool ofWindow; // the seconds are those of the window's thread alone
};

QByteArray list(int count, const std::function<QByteArray(int)> &text)
{
    QByteArray result;
    for (int i = 0; i < count; ++i)
        result += (i == 0 ? "" : ",") + text(i);
    return result + '\n';
}

QByteArray configuration(int analog, int digital, int samplesPerCycle)
{
    QByteArray text = "S,D,1999\n" + QByteArray::number(analog + digital) + ','
        + QByteArray::number(analog) + "A," + QByteArray::number(digital) + "D\n";
    for (int i = 1; i <= analog; ++i)
        text += QByteArray::number(i) + ",A" + QByteArray::number(i) + ",,,V,1,0,0,-9,9,1,1,P\n";
    for (int i = 1; i <= digital; ++i)
        text += QByteArray::number(i) + ",D" + QByteArray::number(i) + ",,,0\n";
    return text + "50\n1\n" + QByteArray::number(50 * samplesPerCycle)
        + ",1000\n01/01/2026,00:00:00.000000\n01/01/2026,00:00:00.000000\nASCII\n1\n";
}

// So little of a channel that a hundred kilobytes define very many.
QByteArray shortConfiguration(int analog, int samplesPerCycle)
{
    return "S,D\n" + QByteArray::number(analog) + ',' + QByteArray::number(analog) + "A,0D\n"
        + QByteArray("x\n").repeated(analog) + "50\n1\n" + QByteArray::number(50 * samplesPerCycle)
        + ",9\n";
}

// A row of fives, then rows of missing fields.
QByteArray missingFields(int columns, int rows)
{
    return "1,1," + list(columns, [](int) { return "5"; }) + QByteArray("1,\n").repeated(rows);
}

Recording undefinedColumns(const QByteArray &counts)
{
    return {"S,D\n" + counts + '\n',
        "1,1," + list(49900, [](int i) { return i % 2 == 0 ? "0" : "1"; })};
}

Recording honest()
{
    constexpr int analog = 1000;
    constexpr int digital = 10000;
    QByteArray data;
    for (int row = 0; row < 1000; ++row) {
        data += QByteArray::number(row + 1) + ',' + QByteArray::number(row * 1000) + ','
            + list(analog + digital, [row](int i) {
                  return i < analog ? QByteArray::number((row * 37 + i * 7919) % 2000 - 1000)
                                    : QByteArray((row / 100 + i) % 5 == 0 ? "1" : "0");
              });
    }
    return {configuration(analog, digital, 20), data};
}

const Case cases[] = {
    {"1 kB, missing fields",
        [] {
            return Recording{shortConfiguration(150, 127), missingFields(150, 80)};
        },
        0.5, 300, false},
    {"1 kB, missing fields, a prime cycle",
        [] {
            return Recording{shortConfiguration(150, 4093), missingFields(150, 80)};
        },
        0.5, 300, false},
    {"100 kB, missing fields",
        [] {
            return Recording{shortConfiguration(10000, 127), missingFields(10000, 20000)};
        },
        10, 300, false},
    {"100 kB, a prime cycle",
        [] {
            return Recording{shortConfiguration(1, 4093), QByteArray("1,,5\n").repeated(20000)};
        },
        10, 300, false},
    {"100 kB, a longer prime cycle",
        [] {
            return Recording{shortConfiguration(1, 19997), QByteArray("1,,5\n").repeated(20000)};
        },
        10, 300, false},
    {"100 kB, undefined analog columns", [] { return undefinedColumns("99999,99999A,0D"); }, 10,
        300, false},
    {"100 kB, undefined digital columns", [] { return undefinedColumns("99999,0A,99999D"); }, 10,
        300, false},
    {"100 kB, empty lines",
        [] {
            return Recording{QByteArray(100000, '\n'), "1,1,1\n"};
        },
        10, 300, false},
    {"100 kB, a text of commas",
        [] {
            return Recording{{}, QByteArray(99000, ',') + '\n' + QByteArray(500, '\n') + "1\n"};
        },
        10, 300, false},
    {"200 kB, 10,000 digital channels",
        [] {
            return Recording{
                configuration(0, 10000, 20), "1,1," + list(10000, [](int) { return "1"; })};
        },
        10, 300, false},
    {"100,000 names",
        [] {
            constexpr int count = 100000;
            return Recording{{},
                list(count, [](int i) { return "Name " + QByteArray::number(i) + "[kV]"; })
                    + "01/01/2026-00:00:00:000," + list(count, [](int) { return "1"; })};
        },
        5, 500, false},
    {"1,000 analog, 10,000 digital channels, 1,000 samples, the window", honest, 2, 1000, true},
};

double secondsOf(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

void processEventsFor(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

std::unique_ptr<MainWindow> shownWindow()
{
    auto window = std::make_unique<MainWindow>();
    window->resize(1700, 950);
    window->show();
    processEventsFor(50);
    return window;
}

void open(const Case &opened, const QString &path)
{
    const std::unique_ptr<MainWindow> window = shownWindow();
    const clockid_t clock = opened.ofWindow ? CLOCK_THREAD_CPUTIME_ID : CLOCK_PROCESS_CPUTIME_ID;
    const double start = secondsOf(clock);
    window->open(path);
    processEventsFor(50);
    const double seconds = secondsOf(clock) - start;
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%.6f %.6f\n", seconds, static_cast<double>(usage.ru_maxrss) * 1024 / 1e6);
}

// Closes the window so long after a load has begun; the processor time that this takes.
double closing(const QString &path, int delay)
{
    const std::unique_ptr<MainWindow> window = shownWindow();
    double seconds = 0;
    QTimer::singleShot(delay, window.get(), [&] {
        const double start = secondsOf(CLOCK_PROCESS_CPUTIME_ID);
        window->close();
        seconds = secondsOf(CLOCK_PROCESS_CPUTIME_ID) - start;
    });
    window->open(path);
    return seconds;
}

void close(const QString &path)
{
    double longest = 0;
    for (const int delay : {20, 100, 300, 700, 1500})
        longest = std::max(longest, closing(path, delay));
    std::printf("%.6f 0\n", longest);
}

// The most processor time of the window's thread between two events, from the opening on.
void hear(const QString &path)
{
    const std::unique_ptr<MainWindow> window = shownWindow();
    double longest = 0;
    double last = secondsOf(CLOCK_THREAD_CPUTIME_ID);
    QTimer ticks;
    QObject::connect(&ticks, &QTimer::timeout, [&] {
        const double now = secondsOf(CLOCK_THREAD_CPUTIME_ID);
        longest = std::max(longest, now - last);
        last = now;
    });
    ticks.start(1);
    window->open(path);
    processEventsFor(100);
    std::printf("%.6f 0\n", longest);
}

QString write(const QString &folder, const Recording &recording)
{
    const auto writeFile = [&folder](const char *name, const QByteArray &bytes) {
        QFile file(folder + QLatin1Char('/') + QLatin1String(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write to %s", qPrintable(folder));
        return file.fileName();
    };
    if (recording.configuration.isEmpty())
        return writeFile("recording.txt", recording.data);
    writeFile("recording.dat", recording.data);
    return writeFile("recording.cfg", recording.configuration);
}

bool measure(const Case &opened, size_t number, const char *what)
{
    const QTemporaryDir folder;
    const QString path = write(folder.path(), opened.recording());
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(),
        {QLatin1String(what), QString::number(number), path});
    process.waitForFinished(-1);
    double seconds = 0;
    double megabytes = 0;
    if (std::sscanf(process.readAllStandardOutput().constData(), "%lf %lf", &seconds, &megabytes)
        != 2) {
        std::printf("%s: FAILED\n", opened.name);
        return false;
    }
    const bool opens = qstrcmp(what, "open") == 0;
    constexpr double mostToClose = 0.2;
    const double most = opens ? opened.mostSeconds : mostToClose;
    const bool isMet = seconds <= most && megabytes <= opened.mostMegabytes;
    if (!opens)
        std::printf("%s, %s: %.0f ms (goal at most 200%s)\n",
            qstrcmp(what, "close") == 0 ? "closing" : "deaf", opened.name, seconds * 1000,
            isMet ? "" : ", MISSED");
    else
        std::printf("opening, %s: %.2f s, %.0f MB (goal at most %g s, %g MB%s)\n", opened.name,
            seconds, megabytes, opened.mostSeconds, opened.mostMegabytes, isMet ? "" : ", MISSED");
    std::fflush(stdout);
    return isMet;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QTimer answers; // to every message
    QObject::connect(&answers, &QTimer::timeout, [] {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
            dialog->reject();
    });
    answers.start(10);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 4) { // a process of one measurement
        if (arguments.at(1) == QLatin1String("close"))
            close(arguments.at(3));
        else if (arguments.at(1) == QLatin1String("hear"))
            hear(arguments.at(3));
        else
            open(cases[arguments.at(2).toUInt()], arguments.at(3));
        return 0;
    }
    bool isEveryGoalMet = true;
    for (size_t i = 0; i < std::size(cases); ++i)
        isEveryGoalMet = measure(cases[i], i, "open") && isEveryGoalMet;
    for (const size_t i : {3U, 8U, 10U, 11U})
        isEveryGoalMet = measure(cases[i], i, "close") && isEveryGoalMet;
    for (const size_t i : {10U, 11U})
        isEveryGoalMet = measure(cases[i], i, "hear") && isEveryGoalMet;
    return isEveryGoalMet ? 0 : 1;
}
