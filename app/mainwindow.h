// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "dialoghost.h"
#include "plothost.h"

#include <QList>
#include <QMainWindow>
#include <QModelIndex>

#include <memory>
#include <optional>

class AddPlotterDialog;
class CTVTDialog;
class ElidingComboBox;
class PackageUnpacker;
class Plotter;
class QCheckBox;
class QLabel;
class QMenu;
class QTranslator;
class QVBoxLayout;
class RecordingWriter;
class SaveDialog;
class VectorDialog;
class plotterDg;
enum class CaptureTarget;

namespace Ui {
class MainWindow;
}

// The program's one top-level window. It owns the recording on screen, the thread that loads
// recordings, the plots and the dialogs. The identity must be set before it is made.
class MainWindow : public QMainWindow, public PlotHost, public DialogHost {
    Q_OBJECT
    Q_INTERFACES(PlotHost DialogHost)

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    // Loads a recording or a package and returns when it is on screen, events being processed
    // meanwhile. While another one loads, it returns at once and the last path asked for is opened
    // afterwards. Failures are shown to the user.
    void open(const QString &path);

    // The recording, from the end of a successful load to the beginning of the next load.
    CFGProperties *recording() const override;
    QScrollBar *horizontalScrollBar() const override;
    int valueMode() const override;
    int referenceIndex() const override;
    bool showsAngles() const override;
    void refreshVectors() override;
    void refreshPlots() override;
    void saveRecording(const QString &path, double start, double end) override;
    QString recordingsFolder() const override;

signals:
    void initProperties(); // asks the recording, on the loader thread, to load its filePath

public slots:
    void on_listWidget2_clicked(const QModelIndex &index);
    void on_listWidget_clicked(const QModelIndex &index);
    void setAnalogChannels();
    void setRequiredAnChannels();
    void saveScreenShot();
    void copyToClipboard();
    void showAnglesSlot(bool on);
    void referenceChanged(int index);
    void primSecChanged(int index);
    void slotLanguageChanged(QAction *action);
    void processZip();
    void endZip(int exitcode);
    void saveAsPrimary();
    void showSaveDialog();
    void showCTVTDialog();
    void showLocalTimes(bool on);
    void open();
    void about();
    void addPlotter(const QList<QString> &AnCheckedChannels);
    void removePlotter();
    void removeCursors();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    static constexpr int messageDuration = 2000; // in the status bar, ms

    struct ActionEntry; // all that creation and retranslation need
    static const QList<ActionEntry> &actionEntries();

    void createActions();
    void createToolBarWidgets();
    void createLanguageMenu();
    void createMenus();
    void createToolBars();
    void retranslateTexts(); // of actions, menus and the check box in the tool bar
    void enableRecordingActions(bool enabled); // those on phasors only where there are any

    void readSettings();
    void createLoader();
    void stopLoader(); // waits without limit; the recording is gone afterwards

    // Steps of open(); after false the window may be closed or gone, and nothing of it is touched.
    void load(QString path);
    bool unpack(QString &path); // path becomes that of the configuration file found
    bool loadRecording(const QString &path); // false, too, where it cannot be loaded
    bool parse(const QString &path); // on the loader thread
    void showInvalidPackage();
    void showWarning(const QString &text);
    void showFileWarning(const QString &text, const QString &path, const QString &error);
    void clearView();
    void showRecording();
    void setCurrentFile(const QString &path);

    QPixmap capture(CaptureTarget target);
    void smoothLetters(bool smooth); // of the plots
    void stylePlots(const QString &styleSheet);
    QList<Plotter *> plots() const; // all that exist
    bool mayReplace(QStringList files); // asks where some exist
    RecordingWriter recordingWriter() const; // with the ratings of the CT/VT dialog
    void reportSaving(const QString &failedFile, const QString &error); // empty: none failed

    void createPlots(); // for the recording just loaded
    void retranslatePlots(); // their names and the entries of the value modes
    void disposePlots();
    QStringList analogNames() const;
    bool hasPhasors() const; // of the recording on screen; spectra are offered then
    void equip(Plotter *plot); // a new one, with what it needs of the window
    // A plot of the channels named; of several of one name, their 0-based numbers tell which.
    void addPlot(const QStringList &names, const QList<int> &channels);
    void linkPlots();
    void setRequiredDigitalChannels(); // as setRequiredAnChannels()
    void showChosenChannels();
    void setColumnHeight();
    void refreshSpectra();

    std::unique_ptr<Ui::MainWindow> ui;
    AddPlotterDialog *addPlotterDialog = nullptr;
    VectorDialog *vectorDialog = nullptr;
    SaveDialog *saveDialog = nullptr;
    CTVTDialog *ctvtDialog = nullptr;
    QTranslator *translator = nullptr;

    PackageUnpacker *unpacker = nullptr;
    QThread *loaderThread = nullptr;
    CFGProperties *cfgProperties = nullptr; // lives on loaderThread; null once that has stopped
    bool opening = false;
    std::optional<QString> queuedPath; // to be opened next
    bool isComtrade = false;
    bool hasRecording = false;
    bool localTimes = false;
    QString currentFile;
    QString drFilesPath; // recordings folder
    QString languageFileName;
    QList<QAction *> languageActions; // English, Suomi, 中文

    QAction *openAct = nullptr;
    QAction *saveAsAct = nullptr;
    QAction *saveAsPrimaryAct = nullptr;
    QAction *addPlotterAct = nullptr;
    QAction *removePlotterAct = nullptr;
    QAction *removeCursorsAct = nullptr;
    QAction *showVectorsAct = nullptr;
    QAction *rescaleAct = nullptr;
    QAction *screenshotAct = nullptr;
    QAction *clipboardAct = nullptr;
    QAction *zoomInAct = nullptr;
    QAction *zoomOutAct = nullptr;
    QAction *zoomResetAct = nullptr;
    QAction *vZoomInAct = nullptr;
    QAction *vZoomOutAct = nullptr;
    QAction *exitAct = nullptr;
    QAction *aboutAct = nullptr;
    QMenu *fileMenu = nullptr;
    QMenu *editMenu = nullptr;
    QMenu *toolsMenu = nullptr;
    QMenu *helpMenu = nullptr;
    QMenu *languageMenu = nullptr;
    QCheckBox *showAnglesCheckBox = nullptr;
    ElidingComboBox *referenceCombo = nullptr;
    QLabel *primSecLabel = nullptr;
    ElidingComboBox *primSecCombo = nullptr;

    QScrollBar *horizontalScroll = nullptr;
    Plotter *analogPlotter = nullptr;
    plotterDg *digitalPlotter = nullptr;
    Plotter *spectrumPlotter = nullptr; // there is none
    QList<Plotter *> addedPlotters; // in the order of adding
    QVBoxLayout *plotLayout = nullptr; // of scrollWidget
    int firstPlotChannels = 6; // at most so many in the first analog plot
    int mode = 0; // value mode: 0 primary, 1 secondary, 2 per unit
    int graphCount = 0; // plots named by number so far
    bool anglesShown = false;
};
