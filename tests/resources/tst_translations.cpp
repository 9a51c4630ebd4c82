// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "translationfile.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include <cerrno>
#include <cstring>

namespace {

QStringList keysOf(const QList<TranslatedText> &messages)
{
    QStringList keys;
    for (const TranslatedText &message : messages)
        keys.append(message.context + QStringLiteral(": ") + message.source);
    keys.sort();
    return keys;
}

QStringList allMatches(const QString &text, const char *pattern)
{
    QStringList found;
    auto matches = QRegularExpression(QString::fromUtf8(pattern)).globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured());
    found.sort();
    return found;
}

int blanksBefore(const QString &text)
{
    return allMatches(text, "^ +").value(0).size();
}

int blanksAfter(const QString &text)
{
    return allMatches(text, " +$").value(0).size();
}

// The marks that a text ends in, full-width ones as their plain sisters.
QString ending(const QString &text)
{
    QString end = allMatches(text.trimmed(), "[.:?。：？]+$").value(0);
    const QString wide = QStringLiteral("。：？");
    const QString plain = QStringLiteral(".:?");
    for (int i = 0; i < wide.size(); ++i)
        end.replace(wide.at(i), plain.at(i));
    return end;
}

// What a translation has lost of its source text; empty where nothing is.
QString faultOf(const QString &source, const QString &translation)
{
    if (translation.trimmed().isEmpty())
        return QStringLiteral("text");
    if (allMatches(source, "%\\d") != allMatches(translation, "%\\d"))
        return QStringLiteral("placeholders");
    // A full-width colon brings its own room.
    const int after = translation.trimmed().endsWith(QChar(0xff1a)) ? 0 : blanksAfter(source);
    if (blanksBefore(source) != blanksBefore(translation) || after != blanksAfter(translation))
        return QStringLiteral("blanks");
    if (!ending(source).isEmpty() && ending(source) != ending(translation))
        return QStringLiteral("ending");
    if (source.count(QLatin1Char('\n')) != translation.count(QLatin1Char('\n')))
        return QStringLiteral("lines");
    if (allMatches(source, "\\(\\*.*?\\)|;;") != allMatches(translation, "\\(\\*.*?\\)|;;"))
        return QStringLiteral("file patterns");
    if (allMatches(source, "</?[a-z]+>") != allMatches(translation, "</?[a-z]+>"))
        return QStringLiteral("tags");
    if (allMatches(source, "&\\w").size() != allMatches(translation, "&[\\wäöÄÖ]").size()
        || translation.count(QLatin1Char('&')) != source.count(QLatin1Char('&')))
        return QStringLiteral("mnemonic");
    return QString();
}

} // namespace

class TestTranslations : public QObject {
    Q_OBJECT

private slots:
    void faultsAreNoticed_data();
    void faultsAreNoticed();
    void filesHoldTheTextsOfTheProgram_data() { languages(); }
    void filesHoldTheTextsOfTheProgram();
    void everyTextIsTranslated_data() { languages(); }
    void everyTextIsTranslated();
    void nothingOfATextIsLost_data() { languages(); }
    void nothingOfATextIsLost();
    void noTextIsLeftInEnglish_data();
    void noTextIsLeftInEnglish();
#ifdef Q_OS_UNIX
    void reasonsOfTheSystemAreTranslated_data();
    void reasonsOfTheSystemAreTranslated();
#endif
    void menusOfTheToolkitHaveNoClashes_data();
    void menusOfTheToolkitHaveNoClashes();
    void englishHoldsTheSourceTexts();
    void everyBrandFindsItsFiles_data();
    void everyBrandFindsItsFiles();

private:
    static void languages();
};

void TestTranslations::languages()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << QStringLiteral("en");
    QTest::newRow("Finnish") << QStringLiteral("fi");
    QTest::newRow("Chinese") << QStringLiteral("zh");
}

void TestTranslations::faultsAreNoticed_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<QString>("fault");
    const auto row = [](const char *name, const char *source, const char *text, const char *fault) {
        QTest::newRow(name) << QString::fromUtf8(source) << QString::fromUtf8(text)
                            << QString::fromUtf8(fault);
    };
    row("no translation", "Ready", " ", "text");
    row("a placeholder is missing", "%1: %2", "%1: ", "placeholders");
    row("a placeholder stands twice", "%1: %2", "%1: %1", "placeholders");
    row("placeholders may change places", "%1 of %2", "%2 / %1", "");
    row("the trailing blank is missing", "Reference: ", "Vertailu:", "blanks");
    row("a trailing blank too many", "Device:", "Laite: ", "blanks");
    row("a full-width colon needs no blank", "Reference: ", "参考通道：", "");
    row("a blank after a full-width colon", "Reference: ", "参考通道： ", "blanks");
    row("the colon is missing", "Device:", "Laite", "ending");
    row("a full-width colon is one", "Device:", "装置：", "");
    row("the full stop is missing", "File saved.", "Tiedosto tallennettu", "ending");
    row("dots are missing", "&Open...", "&Avaa", "ending");
    row("a line is missing", "%1:\n%2", "%1: %2", "lines");
    row("a file pattern is missing", "DR (*.zip *.cfg)", "DR (*.zip)", "file patterns");
    row("the mark between filters is missing", "A (*.a);;All (*)", "A (*.a) Kaikki (*)",
        "file patterns");
    row("a tag is missing", "<b>A</b>", "<b>A", "tags");
    row("arrows are no tags", ">>", ">>", "");
    row("the mnemonic is missing", "&File", "Tiedosto", "mnemonic");
    row("a mnemonic without a letter", "&File", "Tiedosto& ohje", "mnemonic");
    row("a Finnish mnemonic", "&Later", "My&öhemmin", "");
    row("a mnemonic in brackets", "&File", "文件(&F)", "");
    row("a mnemonic too many", "Language", "&Kieli", "mnemonic");
}

void TestTranslations::faultsAreNoticed()
{
    QFETCH(QString, source);
    QFETCH(QString, translation);
    QTEST(faultOf(source, translation), "fault");
}

void TestTranslations::filesHoldTheTextsOfTheProgram()
{
    QFETCH(QString, language);
    const QTemporaryDir folder;
    const QString fresh = folder.filePath(QStringLiteral("fresh.ts"));
    QProcess lupdate;
    lupdate.setWorkingDirectory(QStringLiteral(SOURCE_DIR));
    lupdate.start(QStringLiteral(LUPDATE),
        {QStringLiteral("-silent"), QStringLiteral("app"), QStringLiteral("dialogs"),
            QStringLiteral("plot"), QStringLiteral("recording"), QStringLiteral("resources"),
            QStringLiteral("-ts"), fresh});
    QVERIFY(lupdate.waitForFinished());
    QCOMPARE(lupdate.exitCode(), 0);
    const QStringList wanted = keysOf(readTranslations(fresh));
    QVERIFY(wanted.contains(QStringLiteral("MainWindow: &Open...")));
    QCOMPARE(keysOf(translationsInto(language)), wanted);
}

void TestTranslations::everyTextIsTranslated()
{
    QFETCH(QString, language);
    const QList<TranslatedText> messages = translationsInto(language);
    QVERIFY(!messages.isEmpty());
    for (const TranslatedText &message : messages)
        QVERIFY2(message.type.isEmpty(), qPrintable(message.context + message.source));
}

void TestTranslations::nothingOfATextIsLost()
{
    QFETCH(QString, language);
    const QList<TranslatedText> messages = translationsInto(language);
    for (const TranslatedText &message : messages) {
        const QString fault = faultOf(message.source, message.translation);
        QVERIFY2(fault.isEmpty(),
            qPrintable(QStringLiteral("%1: %2: %3").arg(message.context, message.source, fault)));
    }
}

void TestTranslations::noTextIsLeftInEnglish_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("same"); // texts that are the same in both languages
    const QStringList marks{QStringLiteral(">>"), QStringLiteral("<<"), QStringLiteral("FFT")};
    QTest::newRow("Finnish") << QStringLiteral("fi")
                             << marks + QStringList{QStringLiteral("OK"), QStringLiteral("&HTML:")};
    QTest::newRow("Chinese") << QStringLiteral("zh") << marks;
}

void TestTranslations::noTextIsLeftInEnglish()
{
    QFETCH(QString, language);
    QFETCH(QStringList, same);
    const QList<TranslatedText> messages = translationsInto(language);
    for (const TranslatedText &message : messages)
        QVERIFY2((message.source != message.translation) != same.contains(message.source),
            qPrintable(message.source));
}

#ifdef Q_OS_UNIX
// For which a file of this program cannot be opened, read, written or put in place.
void TestTranslations::reasonsOfTheSystemAreTranslated_data()
{
    QTest::addColumn<int>("error");
    for (const int error : {EACCES, EBUSY, EDQUOT, EFBIG, EIO, EISDIR, ELOOP, EMFILE, ENAMETOOLONG,
             ENOENT, ENOSPC, ENOTDIR, EPERM, EROFS, ESTALE, ETXTBSY})
        QTest::newRow(strerror(error)) << error;
}

void TestTranslations::reasonsOfTheSystemAreTranslated()
{
    QFETCH(int, error);
    const QString key = QStringLiteral("QIODevice: ") + QString::fromLocal8Bit(strerror(error));
    QVERIFY2(keysOf(translationsInto(QStringLiteral("fi"))).contains(key), qPrintable(key));
}
#endif

void TestTranslations::menusOfTheToolkitHaveNoClashes_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("entries");
    const QStringList editing{QStringLiteral("&Undo"), QStringLiteral("&Redo"),
        QStringLiteral("Cu&t"), QStringLiteral("&Copy"), QStringLiteral("&Paste")};
    const QStringList files{QStringLiteral("&Rename"), QStringLiteral("&Delete"),
        QStringLiteral("Show &hidden files"), QStringLiteral("&New Folder")};
    const QStringList stepping{
        QStringLiteral("&Select All"), QStringLiteral("&Step up"), QStringLiteral("Step &down")};
    for (const char *language : {"fi", "zh"}) {
        const QString code = QLatin1String(language);
        QTest::addRow("files, %s", language) << code << files;
        QTest::addRow("a number, %s", language) << code << editing + stepping;
        QTest::addRow("a text with links, %s", language)
            << code << editing + QStringList{QStringLiteral("Copy &Link Location")};
    }
}

void TestTranslations::menusOfTheToolkitHaveNoClashes()
{
    QFETCH(QString, language);
    QFETCH(QStringList, entries);
    QMap<QString, QString> mnemonics; // by source; the contexts that share a text agree in it
    const QList<TranslatedText> messages = translationsInto(language);
    for (const TranslatedText &message : messages) {
        if (message.context.startsWith(QLatin1Char('Q')) && entries.contains(message.source))
            mnemonics.insert(
                message.source, allMatches(message.translation, "&\\w").value(0).toUpper());
    }
    QCOMPARE(mnemonics.size(), entries.size());
    QStringList letters = mnemonics.values();
    QCOMPARE(letters.removeDuplicates(), 0);
}

void TestTranslations::englishHoldsTheSourceTexts()
{
    const QList<TranslatedText> messages = translationsInto(QStringLiteral("en"));
    for (const TranslatedText &message : messages)
        QCOMPARE(message.translation, message.source);
}

void TestTranslations::everyBrandFindsItsFiles_data()
{
    QTest::addColumn<QString>("open"); // how the entry of the File menu reads
    const QString english = QStringLiteral("&Open...");
    const QString chinese = QStringLiteral("打开(&O)...");
    QTest::newRow("drv_en") << english;
    QTest::newRow("drv_fi") << QStringLiteral("&Avaa...");
    QTest::newRow("drv_zh") << chinese;
    QTest::newRow("drv_vanta_en") << english;
    QTest::newRow("drv_vanta_zh") << chinese;
    QTest::newRow("drv_orlo_en") << english;
    QTest::newRow("drv_orlo_zh") << chinese;
    QTest::newRow("drv_quill_en") << english;
    QTest::newRow("drv_mervic_en") << english;
}

void TestTranslations::everyBrandFindsItsFiles()
{
    QTranslator translator;
    QVERIFY(translator.load(
        QString::fromLatin1(QTest::currentDataTag()), QStringLiteral(":/translations")));
    QTEST(translator.translate("MainWindow", "&Open..."), "open");
}

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
