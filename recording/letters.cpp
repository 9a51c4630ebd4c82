// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "letters.h"

#include <QByteArray>
#include <QTextCodec>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace {

const std::array<const char *, letterKinds> codecNames{
    "", "UTF-8", "windows-1251", "IBM866", "GBK", "windows-1252"};
const std::array<const char *, letterKinds> shownNames{
    "", "UTF-8", "Windows-1251", "IBM 866", "GBK", "Windows-1252"};

// Empty where a letter has no byte in Latin-1.
std::optional<QByteArray> latin1Bytes(const QString &text)
{
    constexpr ushort last = 0xff;
    const bool fits = std::all_of(
        text.cbegin(), text.cend(), [](QChar letter) { return letter.unicode() <= last; });
    return fits ? std::optional<QByteArray>(text.toLatin1()) : std::nullopt;
}

bool isBetween(uchar byte, int first, int last)
{
    return byte >= first && byte <= last;
}

bool isAsciiLetter(uchar byte)
{
    return isBetween(byte | 0x20, 'a', 'z');
}

// Of Latin-1.
bool isSign(uchar byte)
{
    constexpr std::string_view signs("\xa0\xa7\xaa\xb0\xb1\xb2\xb3\xb5\xb7\xb9\xba\xbc\xbd\xbe");
    return signs.find(static_cast<char>(byte)) != std::string_view::npos;
}

bool isWestern(uchar byte)
{
    return (byte >= 0xc0 && byte != 0xd7 && byte != 0xf7) || isSign(byte);
}

// Of those that Windows-1252 has besides.
bool isAddedSign(uchar byte)
{
    constexpr std::string_view none("\x81\x8d\x8f\x90\x9d");
    return isBetween(byte, 0x80, 0x9f)
        && none.find(static_cast<char>(byte)) == std::string_view::npos;
}

bool isRussian1251(uchar byte)
{
    return byte >= 0xc0 || byte == 0xa8 || byte == 0xb8;
}

bool isRussian866(uchar byte)
{
    return isBetween(byte, 0x80, 0xaf) || isBetween(byte, 0xe0, 0xf1);
}

// Bytes beyond ASCII, and those of them that make sense in each kind of letters.
class Tally {
public:
    void add(const QByteArray &bytes)
    {
        for (int i = 0, end = 0; i < bytes.size(); i = end + 1) {
            end = i;
            while (end < bytes.size() && static_cast<uchar>(bytes.at(end)) >= 0x80)
                ++end;
            if (end == i)
                continue;
            const bool isAfter = i > 0 && isAsciiLetter(static_cast<uchar>(bytes.at(i - 1)));
            const bool isBefore
                = end < bytes.size() && isAsciiLetter(static_cast<uchar>(bytes.at(end)));
            addRun(bytes.mid(i, end - i), isAfter || isBefore, isAfter && isBefore);
        }
    }

    Letters best() const
    {
        constexpr double most = 0.75;
        constexpr double few = 0.5;
        if (m_all == 0 || m_latin1 >= few * m_all)
            return Letters::AsRead;
        // What is Russian in capitals may be Chinese, too, but hardly the other way round.
        const std::array<std::pair<Letters, int>, 4> counts{{
            {Letters::Windows1251, m_hasWords ? m_windows1251 : 0},
            {Letters::Ibm866, m_hasWords ? m_ibm866 : 0},
            {Letters::Gbk, m_gbk},
            {Letters::Windows1252, m_windows1252},
        }};
        const auto best = std::max_element(counts.cbegin(), counts.cend(),
            [](const auto &a, const auto &b) { return a.second < b.second; });
        return best->second >= most * m_all ? best->first : Letters::AsRead;
    }

private:
    void addRun(const QByteArray &run, bool touchesAscii, bool isWithinAscii)
    {
        const auto count = [&](bool (*isGood)(uchar)) {
            return static_cast<int>(std::count_if(run.cbegin(), run.cend(),
                [=](char byte) { return isGood(static_cast<uchar>(byte)); }));
        };
        m_all += run.size();
        int pairs = 0; // of the more common half of the Chinese characters, or of the signs
        for (int i = 0; i + 1 < run.size(); i += 2) {
            const auto lead = static_cast<uchar>(run.at(i));
            const bool isPair = (isBetween(lead, 0xb0, 0xd7) || isBetween(lead, 0xa1, 0xa3))
                && static_cast<uchar>(run.at(i + 1)) >= 0xa1;
            pairs += isPair ? 1 : 0;
        }
        m_gbk += 2 * pairs;
        // Western words are of ASCII letters for the most part; only signs stand alone.
        const bool isDouble = run.size() == 2 && touchesAscii && (pairs == 0 || isWithinAscii);
        if (run.size() == 1 || isDouble) {
            m_latin1 += count(touchesAscii ? isWestern : isSign);
            m_windows1252 += count(touchesAscii ? isWestern : isSign) + count(isAddedSign);
        }
        // Russian words are of none, and some letters stand alone.
        if (!touchesAscii) {
            m_windows1251 += count(isRussian1251);
            m_ibm866 += count(isRussian866);
            m_hasWords = m_hasWords || run.size() > 1;
        }
    }

    bool m_hasWords = false; // that may be Russian
    int m_all = 0;
    int m_latin1 = 0;
    int m_windows1251 = 0;
    int m_ibm866 = 0;
    int m_gbk = 0;
    int m_windows1252 = 0;
};

} // namespace

QString codecName(Letters letters)
{
    return QString::fromLatin1(codecNames.at(static_cast<size_t>(letters)));
}

QString lettersName(Letters letters)
{
    return QString::fromLatin1(shownNames.at(static_cast<size_t>(letters)));
}

bool isPlain(const QString &text)
{
    constexpr ushort end = 0x80;
    return std::all_of(
        text.cbegin(), text.cend(), [](QChar letter) { return letter.unicode() < end; });
}

QString inLetters(const QString &read, Letters letters, bool isBeginning)
{
    if (letters == Letters::AsRead || isPlain(read))
        return read;
    const std::optional<QByteArray> bytes = latin1Bytes(read);
    const QTextCodec *codec = QTextCodec::codecForName(codecName(letters).toLatin1());
    if (!bytes || !codec)
        return read;
    QTextCodec::ConverterState state;
    QString text = codec->toUnicode(bytes->constData(), bytes->size(), &state);
    bool isRight = state.invalidChars == 0 && !text.contains(QChar::ReplacementCharacter);
    if (letters == Letters::Utf8) { // which may begin with a mark that is no letter
        isRight = isRight && (state.remainingChars == 0 || isBeginning);
    } else {
        const QByteArray back = codec->fromUnicode(text);
        isRight = isRight && (isBeginning ? bytes->startsWith(back) : *bytes == back);
    }
    return isRight ? text : read;
}

Letters likelyLetters(const QStringList &texts)
{
    constexpr int mostBytes = 100'000;
    Tally tally;
    int seen = 0;
    bool isUtf8 = true;
    for (const QString &text : texts) {
        const QString part = text.left(mostBytes);
        const std::optional<QByteArray> bytes = latin1Bytes(part);
        if (!bytes || isPlain(part))
            continue;
        seen += bytes->size();
        isUtf8 = isUtf8 && inLetters(part, Letters::Utf8, part.size() < text.size()) != part;
        tally.add(*bytes);
        if (seen > mostBytes)
            break;
    }
    if (seen == 0)
        return Letters::AsRead;
    return isUtf8 ? Letters::Utf8 : tally.best();
}
