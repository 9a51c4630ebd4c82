// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ownfilesystem.h"
#include "savedialogfixture.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>

// Where the save dialog saves to, and what it says of that.
class TestSaveDialogPath : public SaveDialogFixture {
    Q_OBJECT

private slots:
    void init() { make(); }
    void tellsOfAnExistingFile_data();
    void tellsOfAnExistingFile();
    void takesThePathFromTheFileDialog();
    void emptiesThePathWhenBrowsingIsCancelled();
    void asksBeforeOverwriting_data();
    void asksBeforeOverwriting();
    void doesNotAskForTheCfgVariant();
    void cancelsTheQuestionByReturn();
    void tellsWhatStandsInTheWay_data();
    void tellsWhatStandsInTheWay();
    void tellsOfPlacesThatTakeNothing();
    void forgetsWhatStoodInTheWay();
    void passesOnWhatIsTyped_data();
    void passesOnWhatIsTyped();
    void enterInThePathSaves();
};

void TestSaveDialogPath::tellsOfAnExistingFile_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("told");

    QTest::newRow("as typed") << QStringLiteral("a.cfg") << true;
    QTest::newRow("with .cfg appended") << QStringLiteral("a") << true;
    QTest::newRow("another file") << QStringLiteral("b.cfg") << false;
    QTest::newRow("another extension") << QStringLiteral("a.txt") << false;
    QTest::newRow("a folder") << QStringLiteral("sub") << false;
    QTest::newRow("a folder with .cfg appended") << QStringLiteral("odd") << false;
    QTest::newRow("a folder beside a .cfg of its name") << QStringLiteral("both") << false;
}

void TestSaveDialogPath::tellsOfAnExistingFile()
{
    QFETCH(QString, typed);
    makeFile(QStringLiteral("a.cfg"));
    makeFile(QStringLiteral("both.cfg"));
    QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("sub")));
    QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("both")));
    QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("odd.cfg")));
    open(threeTimes);

    type(folder->filePath(typed));

    QTEST(child<QLabel>("label_FileExists")->isVisible(), "told");
    type(folder->filePath(QStringLiteral("none")));
    QVERIFY(!child<QLabel>("label_FileExists")->isVisible());
}

void TestSaveDialogPath::takesThePathFromTheFileDialog()
{
    makeFile(QStringLiteral("old.cfg"));
    open(threeTimes);
    QString caption;
    QString start;
    whenOpened<QFileDialog>(dialog, [&](QFileDialog *files) {
        caption = files->windowTitle();
        start = files->directory().path();
        QCOMPARE(files->parentWidget(), dialog);
        QCOMPARE(files->nameFilters(), QStringList(QStringLiteral("All Files (*)")));
        QVERIFY(!files->testOption(QFileDialog::DontConfirmOverwrite));
        auto *name = files->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        QCOMPARE(name->text(), QString());
        name->setText(QStringLiteral("old"));
        files->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
    });

    click("toolButton_Browse");

    QCOMPARE(caption, QStringLiteral("Save recording"));
    QCOMPARE(start, folder->path());
    QCOMPARE(text("lineEdit_FilePath"), folder->filePath(QStringLiteral("old")));
    QVERIFY(child<QLabel>("label_FileExists")->isVisible());
    click("pushButton_Save");
    QCOMPARE(host->savings.at(0).path, folder->filePath(QStringLiteral("old")));
}

void TestSaveDialogPath::emptiesThePathWhenBrowsingIsCancelled()
{
    open(threeTimes);
    type(makeFile(QStringLiteral("a.cfg")));
    QVERIFY(child<QLabel>("label_FileExists")->isVisible());
    whenOpened<QFileDialog>(dialog, [](QFileDialog *files) { files->reject(); });

    click("toolButton_Browse");

    QCOMPARE(text("lineEdit_FilePath"), QString());
    QVERIFY(!child<QLabel>("label_FileExists")->isVisible());
    click("pushButton_Save");
    QCOMPARE(host->savings.at(0).path, QString());
}

void TestSaveDialogPath::asksBeforeOverwriting_data()
{
    QTest::addColumn<int>("button"); // -1: closes the box
    QTest::addColumn<int>("savings");

    QTest::newRow("Continue saves") << 0 << 1;
    QTest::newRow("Cancel leaves the dialog open") << 1 << 0;
    QTest::newRow("so does Escape") << -1 << 0;
}

void TestSaveDialogPath::asksBeforeOverwriting()
{
    QFETCH(int, button);
    QFETCH(int, savings);
    open(threeTimes);
    QSignalSpy cleared(dialog, &SaveDialog::clearPoints);
    type(makeFile(QStringLiteral("a.cfg")));
    bool asked = false;
    whenOpened<QMessageBox>(dialog, [&](QMessageBox *box) {
        asked = true;
        QCOMPARE(box->parentWidget(), dialog);
        QCOMPARE(box->styleSheet(), QStringLiteral("QLabel{color: #79D7FF;}"));
        QCOMPARE(box->windowTitle(), QStringLiteral("Save file"));
        QCOMPARE(box->text(),
            QStringLiteral("File already exists. Are you sure you want to overwrite it?"));
        const QList<QAbstractButton *> buttons = box->buttons();
        QStringList texts;
        for (const QAbstractButton *each : buttons)
            texts.append(each->text());
        QCOMPARE(texts, QStringList({QStringLiteral("Continue"), QStringLiteral("Cancel")}));
        QCOMPARE(box->buttonRole(buttons.at(0)), QMessageBox::AcceptRole);
        QCOMPARE(box->buttonRole(buttons.at(1)), QMessageBox::RejectRole);
        if (button < 0)
            QTest::keyClick(box, Qt::Key_Escape);
        else
            QTest::mouseClick(buttons.at(button), Qt::LeftButton);
    });

    click("pushButton_Save");

    QVERIFY(asked);
    QCOMPARE(host->savings.size(), savings);
    QCOMPARE(cleared.count(), savings);
    QCOMPARE(dialog->isVisible(), savings == 0);
}

void TestSaveDialogPath::doesNotAskForTheCfgVariant()
{
    makeFile(QStringLiteral("a.cfg"));
    open(threeTimes);
    type(folder->filePath(QStringLiteral("a")));
    QVERIFY(child<QLabel>("label_FileExists")->isVisible());

    click("pushButton_Save");

    QCOMPARE(host->savings.size(), 1);
    QCOMPARE(host->savings.at(0).path, folder->filePath(QStringLiteral("a")));
}

void TestSaveDialogPath::cancelsTheQuestionByReturn()
{
    open(threeTimes);
    type(makeFile(QStringLiteral("a.cfg")));
    whenOpened<QMessageBox>(
        dialog, [&](QMessageBox *box) { QTest::keyClick(box, Qt::Key_Return); });
    click("pushButton_Save");
    QVERIFY(host->savings.isEmpty());
    QVERIFY(dialog->isVisible());
}

void TestSaveDialogPath::tellsWhatStandsInTheWay_data()
{
    QTest::addColumn<QString>("typed"); // below the test's folder
    QTest::addColumn<QString>("tip");

    const QString noFolder = QStringLiteral("There is no such folder");
    QTest::newRow("a new file") << "new.cfg" << QString();
    QTest::newRow("a new file by its stem") << "new" << QString();
    QTest::newRow("a file that may be replaced") << "old.cfg" << QString();
    QTest::newRow("the folder above") << "sub/../new" << QString();
    QTest::newRow("a missing folder") << "nowhere/new.cfg" << noFolder;
    QTest::newRow("a file as folder") << "old.cfg/new.cfg" << noFolder;
}

void TestSaveDialogPath::tellsWhatStandsInTheWay()
{
    QFETCH(QString, typed);
    QFETCH(QString, tip);
    makeFile(QStringLiteral("old.cfg"));
    QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("sub")));
    open(threeTimes);
    type(folder->filePath(typed));
    QCOMPARE(child<QLineEdit>("lineEdit_FilePath")->toolTip(), tip);
    QCOMPARE(
        child<QLineEdit>("lineEdit_FilePath")->property("hasObstacle").toBool(), !tip.isEmpty());
}

void TestSaveDialogPath::tellsOfPlacesThatTakeNothing()
{
    const OwnFileSystem place(1'000'000);
    if (!place.isMounted())
        QSKIP("the system gives no file system of one's own");
    QVERIFY(QFile(place.path("old.cfg")).open(QIODevice::WriteOnly));
    QVERIFY(place.makeReadOnly());
    open(threeTimes);
    const auto *field = child<QLineEdit>("lineEdit_FilePath");
    type(place.path("new.cfg"));
    QCOMPARE(field->toolTip(), QStringLiteral("The folder may not be written to"));
    type(place.path("old"));
    QCOMPARE(field->toolTip(), QStringLiteral("The file that is there may not be replaced"));
}

void TestSaveDialogPath::forgetsWhatStoodInTheWay()
{
    open(threeTimes);
    const auto *field = child<QLineEdit>("lineEdit_FilePath");
    type(folder->filePath(QStringLiteral("nowhere/new.cfg")));
    QVERIFY(!field->toolTip().isEmpty());
    dialog->close();
    dialog->show();
    QCOMPARE(field->toolTip(), QString());
    type(folder->filePath(QStringLiteral("nowhere/new.cfg")));
    type(folder->filePath(QStringLiteral("new.cfg")));
    QCOMPARE(field->toolTip(), QString());
    QVERIFY(!field->property("hasObstacle").toBool());
}

void TestSaveDialogPath::passesOnWhatIsTyped_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("an empty path") << QString();
    QTest::newRow("letters of many scripts and blanks")
        << QString::fromUtf8("/nowhere/h\u00e4iri\u00f6 \u6545\u969c .cfg");
    QTest::newRow("a path to a folder") << QDir::tempPath();
    QTest::newRow("a folder that does not exist") << QStringLiteral("/nowhere/at/all/a.cfg");
}

void TestSaveDialogPath::passesOnWhatIsTyped()
{
    QFETCH(QString, path);
    open(threeTimes);
    type(path);
    click("pushButton_Save");
    QCOMPARE(host->savings.size(), 1);
    QCOMPARE(host->savings.at(0).path, path);
}

void TestSaveDialogPath::enterInThePathSaves()
{
    open(threeTimes);
    QSignalSpy cleared(dialog, &SaveDialog::clearPoints);
    type(folder->filePath(QStringLiteral("new")));
    QTest::keyClick(child<QLineEdit>("lineEdit_FilePath"), Qt::Key_Return);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(host->savings.size(), 1);
    QCOMPARE(cleared.count(), 1);
}

QTEST_MAIN(TestSaveDialogPath)
#include "tst_savedialog_path.moc"
