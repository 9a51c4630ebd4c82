// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotcapture.h"

#include <QPainter>
#include <QTranslator>
#include <QtTest>

Q_DECLARE_METATYPE(CaptureTarget)

class TestPlotCapture : public QObject {
    Q_OBJECT

private slots:
    void recoloursAPixel_data();
    void recoloursAPixel();
    void recoloursEveryPixel();
    void judgesTranslucentColoursUnmultiplied();
    void premultipliedPixels_data();
    void premultipliedPixels();
    void recolouringKeepsThePixelRatio();
    void emptyImageStaysEmpty();
    void captionGivesTheStartTwice_data();
    void captionGivesTheStartTwice();
    void captionKnowsNoClockChanges();
    void captionIsTranslated();
    void whiteTraceComesOutBlackOnWhite_data();
    void whiteTraceComesOutBlackOnWhite();
    void whiteShowsBehindWhatIsTransparent_data();
    void whiteShowsBehindWhatIsTransparent();
    void opaqueCaptureKeepsItsColours();
    void captionStandsOnItsBaseLine_data();
    void captionStandsOnItsBaseLine();
    void captionLiesOverTheTraces();
    void emptyCaptureGivesAnEmptyPicture();
};

namespace {

constexpr QRgb black = 0xff000000;
constexpr QRgb white = 0xffffffff;

QPixmap filled(QSize size, const QColor &colour, qreal ratio = 1)
{
    QPixmap pixmap(size);
    pixmap.fill(colour);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

QRgb pixelOf(const QPixmap &picture, QPoint at)
{
    return picture.toImage().pixel(at);
}

QString hex(QRgb pixel)
{
    return QString::number(pixel, 16);
}

// Smallest rectangle that holds all pixels darker than middle grey, in device pixels.
QRect darkRect(const QPixmap &picture)
{
    const QImage image = picture.toImage();
    QRect dark;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) < 128)
                dark |= QRect(x, y, 1, 1);
        }
    }
    return dark;
}

} // namespace

void TestPlotCapture::recoloursAPixel_data()
{
    QTest::addColumn<QRgb>("before");
    QTest::addColumn<QRgb>("inFile");
    QTest::addColumn<QRgb>("onClipboard");
    const auto turnsBlack
        = [](const char *name, QRgb pixel) { QTest::newRow(name) << pixel << black << black; };
    const auto stays
        = [](const char *name, QRgb pixel) { QTest::newRow(name) << pixel << pixel << pixel; };
    turnsBlack("white turns black", white);
    stays("black stays black", black);
    turnsBlack("a pure light grey turns black", qRgb(150, 150, 150));
    turnsBlack("the darkest light grey turns black", qRgb(101, 101, 101));
    stays("the lightest dark grey stays", qRgb(100, 100, 100));
    stays("red alone below 101 stays", qRgb(100, 101, 101));
    stays("green alone below 101 stays", qRgb(101, 100, 101));
    stays("blue alone below 101 stays", qRgb(101, 101, 100));
    turnsBlack("red 9 above green turns black", qRgb(159, 150, 150));
    stays("red 10 above green stays", qRgb(160, 150, 150));
    turnsBlack("red 9 below green turns black", qRgb(141, 150, 150));
    stays("red 10 below green stays", qRgb(140, 150, 150));
    turnsBlack("blue 9 above green turns black", qRgb(150, 150, 159));
    stays("blue 10 above green stays", qRgb(150, 150, 160));
    turnsBlack("blue 9 below green turns black", qRgb(150, 150, 141));
    stays("blue 10 below green stays", qRgb(150, 150, 140));
    turnsBlack("red and blue are compared with green alone", qRgb(159, 150, 141));
    turnsBlack("near white, green may be 255", qRgb(246, 255, 246));
    stays("light blue stays", qRgb(121, 215, 255));
    stays("a full colour stays", qRgb(255, 255, 0));
    stays("the plot's panel stays", qRgb(0x31, 0x30, 0x34));
    turnsBlack("translucent white turns opaque black", qRgba(255, 255, 255, 128));
    turnsBlack("nearly transparent light grey turns black before it could turn white",
        qRgba(150, 150, 150, 19));
    stays("a dark colour of alpha 20 stays", qRgba(50, 60, 70, 20));
    QTest::newRow("a dark colour of alpha 19 turns white for the clipboard only")
        << qRgba(50, 60, 70, 19) << qRgba(50, 60, 70, 19) << white;
    QTest::newRow("nothing at all turns white for the clipboard only")
        << qRgba(0, 0, 0, 0) << qRgba(0, 0, 0, 0) << white;
}

void TestPlotCapture::recoloursAPixel()
{
    QFETCH(QRgb, before);
    QFETCH(QRgb, inFile);
    QFETCH(QRgb, onClipboard);
    QImage image(1, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, before);
    QImage copied = image;
    recolour(image, CaptureTarget::File);
    QCOMPARE(hex(image.pixel(0, 0)), hex(inFile));
    recolour(copied, CaptureTarget::Clipboard);
    QCOMPARE(hex(copied.pixel(0, 0)), hex(onClipboard));
}

void TestPlotCapture::recoloursEveryPixel()
{
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(qRgb(200, 200, 200));
    image.setPixel(1, 1, qRgb(255, 0, 0));
    recolour(image, CaptureTarget::File);
    QCOMPARE(image.size(), QSize(3, 2));
    QCOMPARE(image.format(), QImage::Format_ARGB32);
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 3; ++x) {
            const bool red = x == 1 && y == 1;
            QCOMPARE(hex(image.pixel(x, y)), red ? QStringLiteral("ffff0000") : hex(black));
        }
    }
}

void TestPlotCapture::judgesTranslucentColoursUnmultiplied()
{
    QImage image(2, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    *reinterpret_cast<QRgb *>(image.scanLine(0)) = 0x64323232; // (127, 127, 127) of alpha 100
    recolour(image, CaptureTarget::File);
    QCOMPARE(hex(image.pixel(0, 0)), hex(black));
    QCOMPARE(qAlpha(image.pixel(1, 0)), 0);
}

void TestPlotCapture::premultipliedPixels_data()
{
    QTest::addColumn<QRgb>("before"); // premultiplied, as are the others
    QTest::addColumn<QRgb>("inFile");
    QTest::addColumn<QRgb>("onClipboard");
    QTest::newRow("white") << white << black << black;
    QTest::newRow("grey of alpha 128") << 0x80404040U << black << black; // (128, 128, 128)
    QTest::newRow("darker grey of alpha 128") << 0x80303030U << 0x80303030U << 0x80303030U;
    QTest::newRow("red of alpha 19") << 0x13130000U << 0x13130000U << white;
    QTest::newRow("red of alpha 20") << 0x14140000U << 0x14140000U << 0x14140000U;
    QTest::newRow("nothing") << 0U << 0U << white;
}

void TestPlotCapture::premultipliedPixels()
{
    QFETCH(QRgb, before);
    QFETCH(QRgb, inFile);
    QFETCH(QRgb, onClipboard);
    for (const CaptureTarget target : {CaptureTarget::File, CaptureTarget::Clipboard}) {
        QImage image(3, 1, QImage::Format_ARGB32_Premultiplied);
        auto *const pixels = reinterpret_cast<QRgb *>(image.bits());
        pixels[0] = pixels[1] = before;
        pixels[2] = 0xff0000ff;
        recolour(image, target);
        QCOMPARE(image.format(), QImage::Format_ARGB32_Premultiplied);
        const QRgb after = target == CaptureTarget::File ? inFile : onClipboard;
        const auto *const changed = reinterpret_cast<const QRgb *>(image.constBits());
        QCOMPARE(hex(changed[0]), hex(after));
        QCOMPARE(hex(changed[1]), hex(after));
        QCOMPARE(hex(changed[2]), QStringLiteral("ff0000ff"));
    }
}

void TestPlotCapture::recolouringKeepsThePixelRatio()
{
    QImage image(4, 4, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    image.setDevicePixelRatio(2);
    recolour(image, CaptureTarget::Clipboard);
    QCOMPARE(image.devicePixelRatio(), 2.0);
    QCOMPARE(hex(image.pixel(3, 3)), hex(black));
}

void TestPlotCapture::emptyImageStaysEmpty()
{
    QImage image;
    recolour(image, CaptureTarget::Clipboard);
    QVERIFY(image.isNull());
}

void TestPlotCapture::captionGivesTheStartTwice_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("caption");
    const QString goodDate = QStringLiteral("15/03/2024");
    const QString goodTime = QStringLiteral("10:00:00.000");
    const QString empty = QStringLiteral("Start:     Trigger: ");
    QTest::newRow("a start that reads well")
        << goodDate << QStringLiteral("09:08:07.065")
        << QStringLiteral("Start: 15/03/2024 09:08:07.065    Trigger: 15/03/2024 09:08:07.065");
    QTest::newRow("the last millisecond of a year")
        << QStringLiteral("31/12/2023") << QStringLiteral("23:59:59.999")
        << QStringLiteral("Start: 31/12/2023 23:59:59.999    Trigger: 31/12/2023 23:59:59.999");
    QTest::newRow("the 29th of February in a leap year")
        << QStringLiteral("29/02/2024") << goodTime
        << QStringLiteral("Start: 29/02/2024 10:00:00.000    Trigger: 29/02/2024 10:00:00.000");
    QTest::newRow("the 29th of February in another year")
        << QStringLiteral("29/02/2023") << goodTime << empty;
    QTest::newRow("month first") << QStringLiteral("12/31/2023") << goodTime << empty;
    QTest::newRow("a year of two digits") << QStringLiteral("15/03/24") << goodTime << empty;
    QTest::newRow("a blank before the date") << QStringLiteral(" 15/03/2024") << goodTime << empty;
    QTest::newRow("no date") << QString() << goodTime << empty;
    QTest::newRow("no time") << goodDate << QString() << empty;
    QTest::newRow("neither, as without a recording") << QString() << QString() << empty;
    QTest::newRow("the 25th hour") << goodDate << QStringLiteral("24:00:00.000") << empty;
    QTest::newRow("microseconds") << goodDate << QStringLiteral("10:00:00.000000") << empty;
    QTest::newRow("no milliseconds") << goodDate << QStringLiteral("10:00:00") << empty;
    QTest::newRow("a colon before the milliseconds, as in text exports")
        << goodDate << QStringLiteral("10:00:00:000") << empty;
    QTest::newRow("words") << QStringLiteral("today %1") << QStringLiteral("now %2") << empty;
}

void TestPlotCapture::captionGivesTheStartTwice()
{
    QFETCH(QString, date);
    QFETCH(QString, time);
    QTEST(captureCaption(date, time), "caption");
}

void TestPlotCapture::captionKnowsNoClockChanges()
{
    const QByteArray zone = qgetenv("TZ");
    qputenv("TZ", "Europe/Helsinki");
    tzset();
    const QString caption
        = captureCaption(QStringLiteral("31/03/2024"), QStringLiteral("03:30:00.000"));
    qputenv("TZ", zone);
    tzset();
    QCOMPARE(caption,
        QStringLiteral("Start: 31/03/2024 03:30:00.000    Trigger: 31/03/2024 03:30:00.000"));
}

void TestPlotCapture::captionIsTranslated()
{
    class Translator : public QTranslator {
    public:
        QString translate(const char *context, const char *source, const char *, int) const override
        {
            const bool known = qstrcmp(context, "MainWindow") == 0
                && qstrcmp(source, "Start: %1    Trigger: %2") == 0;
            return known ? QStringLiteral("Alku: %1, liipaisu: %2") : QString();
        }
        bool isEmpty() const override { return false; }
    };
    Translator translator;
    QCoreApplication::installTranslator(&translator);
    QCOMPARE(captureCaption(QStringLiteral("15/03/2024"), QStringLiteral("10:00:00.000")),
        QStringLiteral("Alku: 15/03/2024 10:00:00.000, liipaisu: 15/03/2024 10:00:00.000"));
}

void TestPlotCapture::whiteTraceComesOutBlackOnWhite_data()
{
    QTest::addColumn<CaptureTarget>("target");
    QTest::newRow("in a file") << CaptureTarget::File;
    QTest::newRow("on the clipboard") << CaptureTarget::Clipboard;
}

void TestPlotCapture::whiteTraceComesOutBlackOnWhite()
{
    QFETCH(CaptureTarget, target);
    QPixmap capture = filled(QSize(60, 50), Qt::transparent);
    {
        QPainter painter(&capture);
        painter.fillRect(0, 40, 60, 1, Qt::white);
        painter.fillRect(0, 45, 60, 1, QColor(121, 215, 255));
    }
    const QPixmap picture = printableCapture(capture, target, QString());
    QCOMPARE(picture.size(), QSize(60, 50));
    QCOMPARE(darkRect(picture), QRect(0, 40, 60, 1));
    QCOMPARE(hex(pixelOf(picture, {30, 40})), hex(black));
    QCOMPARE(hex(pixelOf(picture, {59, 45})), QStringLiteral("ff79d7ff"));
    for (const QPoint corner : {QPoint(0, 0), QPoint(59, 0), QPoint(0, 49), QPoint(59, 49)})
        QCOMPARE(hex(pixelOf(picture, corner)), hex(white));
}

void TestPlotCapture::whiteShowsBehindWhatIsTransparent_data()
{
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<CaptureTarget>("target");
    QTest::addColumn<QColor>("shown");
    // 255 * (1 - a) + c * a with a = alpha / 255
    QTest::newRow("half transparent red mixes with white")
        << QColor(200, 0, 0, 128) << CaptureTarget::File << QColor(227, 127, 127);
    QTest::newRow("half transparent red mixes with white on the clipboard")
        << QColor(200, 0, 0, 128) << CaptureTarget::Clipboard << QColor(227, 127, 127);
    QTest::newRow("a breath of a colour shows in a file")
        << QColor(0, 0, 0, 19) << CaptureTarget::File << QColor(236, 236, 236);
    QTest::newRow("a breath of a colour is white on the clipboard")
        << QColor(0, 0, 0, 19) << CaptureTarget::Clipboard << QColor(255, 255, 255);
    QTest::newRow("a little more of it shows on the clipboard, too")
        << QColor(0, 0, 0, 20) << CaptureTarget::Clipboard << QColor(235, 235, 235);
}

void TestPlotCapture::whiteShowsBehindWhatIsTransparent()
{
    QFETCH(QColor, colour);
    QFETCH(CaptureTarget, target);
    QFETCH(QColor, shown);
    const QPixmap picture = printableCapture(filled(QSize(8, 8), colour), target, QString());
    const QRgb pixel = pixelOf(picture, {4, 4});
    QCOMPARE(qAlpha(pixel), 255);
    QVERIFY2(qAbs(qRed(pixel) - shown.red()) <= 2 && qAbs(qGreen(pixel) - shown.green()) <= 2
            && qAbs(qBlue(pixel) - shown.blue()) <= 2,
        qPrintable(hex(pixel)));
}

void TestPlotCapture::opaqueCaptureKeepsItsColours()
{
    const QPixmap picture = printableCapture(
        filled(QSize(8, 8), QColor(0x31, 0x30, 0x34)), CaptureTarget::File, QString());
    QCOMPARE(hex(pixelOf(picture, {7, 7})), QStringLiteral("ff313034"));
}

void TestPlotCapture::captionStandsOnItsBaseLine_data()
{
    QTest::addColumn<int>("ratio");
    QTest::newRow("on an ordinary screen") << 1;
    QTest::newRow("on a screen of twice the pixels") << 2;
}

// The letter H fills the room from its left bearing to the base line and has no descender.
void TestPlotCapture::captionStandsOnItsBaseLine()
{
    QFETCH(int, ratio);
    const QPixmap capture = filled(QSize(100, 50) * ratio, Qt::transparent, ratio);
    const QPixmap picture = printableCapture(capture, CaptureTarget::File, QStringLiteral("H"));
    QCOMPARE(picture.size(), QSize(100, 50) * ratio);
    QCOMPARE(picture.devicePixelRatio(), qreal(ratio));
    const QRect letter = darkRect(picture);
    QVERIFY(!letter.isEmpty());
    const int base = letter.bottom() + 1;
    QVERIFY2(qAbs(base - 20 * ratio) <= 1, qPrintable(QString::number(base)));
    QVERIFY2(letter.left() >= 10 * ratio && letter.left() <= 13 * ratio,
        qPrintable(QString::number(letter.left())));
    QVERIFY2(letter.height() >= 5 * ratio, qPrintable(QString::number(letter.height())));
    QCOMPARE(hex(pixelOf(picture, {100 * ratio - 1, 50 * ratio - 1})), hex(white));
}

void TestPlotCapture::captionLiesOverTheTraces()
{
    const QPixmap picture = printableCapture(
        filled(QSize(100, 50), QColor(255, 255, 0)), CaptureTarget::Clipboard, QStringLiteral("H"));
    const QRect letter = darkRect(picture);
    QVERIFY(QRect(10, 5, 20, 15).contains(letter));
    QCOMPARE(hex(pixelOf(picture, {5, 15})), QStringLiteral("ffffff00"));
}

void TestPlotCapture::emptyCaptureGivesAnEmptyPicture()
{
    for (const CaptureTarget target : {CaptureTarget::File, CaptureTarget::Clipboard})
        QVERIFY(printableCapture(QPixmap(), target, QStringLiteral("Start")).isNull());
}

QTEST_MAIN(TestPlotCapture)
#include "tst_plotcapture.moc"
