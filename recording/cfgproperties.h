// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "loadprogress.h"
#include "recordingcontents.h"

#include <QObject>

class QFile;

// One disturbance recording in memory, loaded from a file that another thread may name.
class CFGProperties : public QObject, public RecordingContents {
    Q_OBJECT

public:
    explicit CFGProperties(QObject *parent = nullptr);
    ~CFGProperties() override;

    // These three survive clearConfig(), as does why the last init() failed.
    QString filePath; // file to load; names the ".dat" file after a COMTRADE load
    int loaded = 0; // result of the last init(): 1 loaded, 0 failed
    double timeMultiplier = 1.0; // read, not applied

    enum class Failure {
        None,
        NoDataFile,
        NoAccess,
        NotAscii,
        NoDataLine,
        ReadError,
        LittleMemory,
        GivenUp
    };
    Failure failure() const { return m_failure; }

    // Of init(); a cancelled load fails and leaves everything cleared.
    LoadProgress &progress() { return m_progress; }

    // Reads the ASCII data file beside the configuration (clause 6) and makes the channel records.
    // False, with everything cleared, when there is no data line. This and the two other readers
    // throw where a file cannot be read to its end or memory is wanting; init() tells by loaded.
    bool readDatFile();

    // Record by 1-based number. A number above the count has the count subtracted once; any number
    // that still has no record gives null.
    AnalogChannel *analogChannel(int number) const;
    // Record by 1-based number, null when there is none.
    DigitalChannel *digitalChannel(int number) const;

    // The largest maxValue (smallest minValue) of all analog channels, not below (above) 0. The
    // program asks for neither.
    float updateMaxValue();
    float updateMinValue();

signals:
    void initFinished(); // at the end of every init()
    void setChannelsPoints(); // never emitted

public slots:
    void readConfgFile();
    void readTxtFile();
    void init();
    void fftTransform();
    void clearConfig();

private:
    void load();
    void fail(Failure reason);
    LoadStage reading(const QFile &file); // by its bytes

    Failure m_failure = Failure::None;
    LoadProgress m_progress;
};
