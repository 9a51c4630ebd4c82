// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "asciilayout.h"

#include <QRegularExpression>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

using File = LayoutFault::File;
using Fields = std::vector<std::string>;

Fields split(const std::string &text, char separator)
{
    Fields parts(1);
    for (const char letter : text) {
        if (letter == separator)
            parts.emplace_back();
        else
            parts.back() += letter;
    }
    return parts;
}

Fields linesOf(const std::string &text)
{
    Fields lines = split(text, '\n');
    for (std::string &line : lines) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
    }
    if (lines.back().empty() || lines.back() == "\x1a") // the mark of the end
        lines.pop_back();
    return lines;
}

bool isWhole(const std::string &text)
{
    const size_t sign = text.find_first_of("+-") == 0 ? 1 : 0;
    const size_t digits = text.size() - sign;
    return digits >= 1 && digits <= 18
        && text.find_first_not_of("0123456789", sign) == std::string::npos;
}

bool isWholeWithin(const std::string &text, long long least, long long most)
{
    return isWhole(text) && std::atoll(text.c_str()) >= least && std::atoll(text.c_str()) <= most;
}

bool matches(const std::string &text, const QString &pattern)
{
    const QRegularExpression expression(QRegularExpression::anchoredPattern(pattern));
    return expression.match(QString::fromStdString(text)).hasMatch();
}

bool isReal(const std::string &text)
{
    return text.size() <= 32
        && matches(text, QStringLiteral("[+-]?([0-9]+(\\.[0-9]*)?|\\.[0-9]+)([eE][+-]?[0-9]+)?"));
}

bool isDate(const std::string &text)
{
    const Fields parts = split(text, '/');
    return matches(text, QStringLiteral("[0-9]{1,2}/[0-9]{1,2}/[0-9]{4}"))
        && isWholeWithin(parts[0], 1, 31) && isWholeWithin(parts[1], 1, 12);
}

bool isTime(const std::string &text)
{
    return matches(text, QStringLiteral("([01][0-9]|2[0-3]):[0-5][0-9]:[0-5][0-9]\\.[0-9]{3,6}"));
}

class PairCheck {
public:
    std::vector<LayoutFault> run(const std::string &configuration, const std::string &data)
    {
        m_file = File::Configuration;
        m_lines = linesOf(configuration);
        if (checkConfiguration()) {
            m_file = File::Data;
            m_lines = linesOf(data);
            m_line = 0;
            checkData();
        }
        return std::move(m_faults);
    }

private:
    bool expect(bool good, const char *what)
    {
        if (!good)
            m_faults.push_back({m_file, m_line, what});
        return good;
    }

    // The fields of the next line; one empty field behind the last line.
    Fields next()
    {
        const size_t at = static_cast<size_t>(m_line++);
        return split(at < m_lines.size() ? m_lines[at] : std::string(), ',');
    }

    bool checkConfiguration()
    {
        const Fields station = next();
        if (expect(station.size() == 3, "the first line has not three fields")) {
            expect(station[0].size() <= 64, "the station has more than 64 letters");
            expect(station[1].size() <= 64, "the device has more than 64 letters");
            expect(station[2] == "1999", "the revision year is not 1999");
        }
        if (!checkCounts())
            return false;
        for (int k = 1; k <= m_analog; ++k)
            checkAnalogChannel(k);
        for (int k = 1; k <= m_digital; ++k)
            checkDigitalChannel(k);
        const Fields frequency = next();
        expect(frequency.size() == 1 && isReal(frequency[0]), "the line frequency is no number");
        if (!checkRates())
            return false;
        checkMoment("the first sample has no date and time");
        checkMoment("the trigger has no date and time");
        expect(next() == Fields{"ASCII"}, "the file type is not ASCII");
        const Fields factor = next();
        expect(factor.size() == 1 && isReal(factor[0]), "the time factor is no number");
        return expect(m_lines.size() == static_cast<size_t>(m_line),
            "the configuration has not the lines that its counts promise");
    }

    bool checkCounts()
    {
        const Fields counts = next();
        if (!expect(counts.size() == 3 && isWholeWithin(counts[0], 0, 999999)
                    && matches(counts[1], QStringLiteral("[0-9]{1,7}A"))
                    && matches(counts[2], QStringLiteral("[0-9]{1,7}D")),
                "the second line does not count channels"))
            return false;
        m_analog = std::atoi(counts[1].c_str());
        m_digital = std::atoi(counts[2].c_str());
        return expect(std::atoi(counts[0].c_str()) == m_analog + m_digital,
            "the total is not the sum of the channels");
    }

    void checkAnalogChannel(int number)
    {
        const Fields fields = next();
        if (!expect(fields.size() == 13, "an analog channel has not 13 fields"))
            return;
        checkNames(fields, number);
        expect(!fields[4].empty() && fields[4].size() <= 32, "the unit has not 1 to 32 letters");
        expect(isReal(fields[5]) && isReal(fields[6]), "a or b is no number");
        expect(isReal(fields[7]), "the skew is no number");
        if (expect(
                isWholeWithin(fields[8], -99999, 99999) && isWholeWithin(fields[9], -99999, 99999),
                "min or max is no whole number of five digits"))
            expect(std::atoi(fields[8].c_str()) <= std::atoi(fields[9].c_str()),
                "min is larger than max");
        expect(isReal(fields[10]) && isReal(fields[11]), "a rating is no number");
        expect(fields[12].size() == 1 && std::strchr("PpSs", fields[12][0]) != nullptr,
            "the flag is neither P nor S");
    }

    void checkDigitalChannel(int number)
    {
        const Fields fields = next();
        if (!expect(fields.size() == 5, "a digital channel has not five fields"))
            return;
        checkNames(fields, number);
        expect(fields[4] == "0" || fields[4] == "1", "the normal state is neither 0 nor 1");
    }

    void checkNames(const Fields &fields, int number)
    {
        expect(fields[0] == std::to_string(number), "the channels are not counted from 1");
        expect(fields[1].size() <= 64, "the name has more than 64 letters");
        expect(fields[2].size() <= 2, "the phase has more than two letters");
        expect(fields[3].size() <= 64, "the circuit has more than 64 letters");
    }

    bool checkRates()
    {
        const Fields count = next();
        if (!expect(count.size() == 1 && isWholeWithin(count[0], 0, 999),
                "the number of rates is no number up to 999"))
            return false;
        // Without a fixed rate there is one line all the same.
        const int rates = std::max(1, std::atoi(count[0].c_str()));
        for (int i = 0; i < rates; ++i) {
            const Fields rate = next();
            if (!expect(rate.size() == 2 && isReal(rate[0])
                        && isWholeWithin(rate[1], m_samples, 9999999999),
                    "a rate has no number or no last sample"))
                return false;
            m_samples = std::atoll(rate[1].c_str());
        }
        return true;
    }

    void checkMoment(const char *what)
    {
        const Fields moment = next();
        expect(moment.size() == 2 && isDate(moment[0]) && isTime(moment[1]), what);
    }

    void checkData()
    {
        long long number = 0;
        long long time = -1;
        const auto values = static_cast<size_t>(m_analog) + static_cast<size_t>(m_digital);
        while (static_cast<size_t>(m_line) < m_lines.size()) {
            Fields fields = next();
            if (m_digital == 0 && fields.size() == values + 3 && fields.back().empty())
                fields.pop_back();
            if (!expect(fields.size() == values + 2, "a sample has not a field for each channel"))
                return;
            expect(number == 0 ? isWholeWithin(fields[0], 1, 9999999999)
                               : fields[0] == std::to_string(number + 1),
                "the samples are not counted");
            number = std::atoll(fields[0].c_str());
            if (expect(isWholeWithin(fields[1], 0, 9999999999), "a stamp is no number from 0 on"))
                expect(std::atoll(fields[1].c_str()) >= time, "the stamps run back");
            time = std::atoll(fields[1].c_str());
            for (size_t k = 2; k < fields.size(); ++k) {
                if (k < static_cast<size_t>(m_analog) + 2)
                    expect(isWholeWithin(fields[k], -99999, 99999),
                        "a value is no whole number of five digits");
                else
                    expect(fields[k] == "0" || fields[k] == "1", "a state is neither 0 nor 1");
            }
        }
        expect(m_line == m_samples, "the last rate does not end at the last sample");
    }

    File m_file = File::Configuration;
    Fields m_lines;
    int m_line = 0; // read last, counted from 1
    int m_analog = 0;
    int m_digital = 0;
    long long m_samples = 0;
    std::vector<LayoutFault> m_faults;
};

} // namespace

std::vector<LayoutFault> faultsOfPair(const std::string &configuration, const std::string &data)
{
    return PairCheck().run(configuration, data);
}
