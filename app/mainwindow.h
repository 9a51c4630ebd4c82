// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "dialoghost.h"
#include "plothost.h"
#include "windowactions.h"

#include <QList>
#include <QMainWindow>
#include <QModelIndex>

#include <memory>
#include <optional>

class AddPlotterDialog;
class CTVTDialog;
class ElidingComboBox;
class LoadingProgress;
class OtherRecordings;
class PackageUnpacker;
class Plotter;
class QCheckBox;
class QLabel;
class QMenu;
class QTranslator;
class QVBoxLayout;
class RecordingWriter;
class SaveDialog;
class SideWindows;
class StatusField;
class VectorDialog;
class plotterDg;
enum class CaptureTarget;
struct UnitPlot;

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
    // meanwhile. While another one loads, it returns at once: that one is given up, as it is for
    // Escape, and the last path asked for is opened next. Failures are shown to the user.
    void open(const QString &path);
    void sayNotOpened(const QString &path); // in the status bar, until a recording is opened

    // The recording, from the end of a successful load to the beginning of the next load.
    CFGProperties *recording() const override;
    QScrollBar *horizontalScrollBar() const override;
    int valueMode() const override;
    int referenceIndex() const override;
    bool showsAngles() const override;
    void refreshVectors() override;
    void pointAt(const Plotter *plot, const QPoint &point) override;
    void fillPlotMenu(QMenu &menu, Plotter &plot, const QPoint &point, int cursor) override;
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
    bool loadRecording(const QString &path, const QString &asked); // false where it cannot be
    bool parse(const QString &path); // on the loader thread
    void showInvalidPackage(const QString &package);
    void showWarning(const QString &text, const QString &details = {});
    void clearView();
    void showRecording();
    void showNames(); // of the recording on screen, in the letters chosen
    void setCurrentFile(const QString &path);

    QPixmap capture(CaptureTarget target, const QString &caption);
    QString caption() const;
    bool saveByDialog(const QPixmap &picture); // false where it was cancelled
    QPixmap report(); // of a recording on screen
    void addOutputs(QMenu &menu, Plotter &plot); // to the plot's context menu
    QList<Plotter *> plots() const; // all that exist
    RecordingWriter recordingWriter() const; // with the ratings of the CT/VT dialog
    void reportSaving(const QString &failedFile, const QString &error); // empty: none failed

    void createPlots(); // for the recording just loaded
    void retranslatePlots(); // their names and the entries of the value modes
    void disposePlots();
    bool hasPhasors() const; // of the recording on screen; spectra are offered then
    void equip(Plotter *plot); // a new one, with what it needs of the window
    // A plot of the channels named; of several of one name, their 0-based numbers tell which. It is
    // named by number where it has no name, and as one of those by unit where it is one.
    void addPlot(const QStringList &names, const QList<int> &channels);
    void addPlot(const QString &name, const QList<int> &numbers, const UnitPlot *unit = nullptr);
    void addUnitPlots();
    void linkPlots();
    void setRequiredDigitalChannels(); // as setRequiredAnChannels()
    void showChosenChannels();
    void setColumnHeight();
    void refreshSpectra();

    std::unique_ptr<Ui::MainWindow> ui;
    AddPlotterDialog *m_addPlotterDialog = nullptr;
    VectorDialog *m_vectorDialog = nullptr;
    SaveDialog *m_saveDialog = nullptr;
    CTVTDialog *m_ctvtDialog = nullptr;
    SideWindows *m_sideWindows = nullptr;
    StatusField *m_statusField = nullptr;
    OtherRecordings *m_otherRecordings = nullptr;
    LoadingProgress *m_loadingProgress = nullptr;
    QTranslator *m_translator = nullptr;
    PackageUnpacker *m_unpacker = nullptr;
    QThread *m_loaderThread = nullptr;
    CFGProperties *m_cfgProperties = nullptr; // lives on m_loaderThread; null once that has stopped
    bool m_opening = false;
    std::optional<QString> m_queuedPath; // to be opened next
    bool m_hasRecording = false;
    bool m_localTimes = false;
    QString m_drFilesPath; // recordings folder
    QString m_languageFileName;
    QList<QAction *> languageActions; // English, Suomi, 中文
    WindowActions m_actions;
    QMenu *m_fileMenu = nullptr;
    QMenu *m_editMenu = nullptr;
    QMenu *m_toolsMenu = nullptr;
    QMenu *m_helpMenu = nullptr;
    QMenu *m_languageMenu = nullptr;
    QCheckBox *m_showAnglesCheckBox = nullptr;
    ElidingComboBox *m_referenceCombo = nullptr;
    QLabel *m_primSecLabel = nullptr;
    ElidingComboBox *m_primSecCombo = nullptr;
    QScrollBar *m_horizontalScroll = nullptr;
    Plotter *m_analogPlotter = nullptr;
    plotterDg *m_digitalPlotter = nullptr;
    QList<Plotter *> m_addedPlotters; // in the order of adding
    QVBoxLayout *m_plotLayout = nullptr; // of scrollWidget
    int m_firstPlotChannels = 6; // at most so many in the first analog plot
    int m_mode = 0; // value mode: 0 primary, 1 secondary, 2 per unit
    int m_graphCount = 0; // plots named by number so far
    bool m_anglesShown = false;
    // Agreed, though nothing reads them.
    bool m_isComtrade = false; // whether the latest recording was no text export
    QString m_currentFile;
    Plotter *m_spectrumPlotter = nullptr; // there is none
};
