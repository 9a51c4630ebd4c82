// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "options.h"

#include "textencoding.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace convert {

const char *const helpText
    = "usage: wavorin-convert [OPTION...] INPUT... [-o FILE-OR-FOLDER]\n\n"
      "Converts COMTRADE recordings of 1991, 1999 and 2013 to ASCII pairs of 1999, or to tables.\n"
      "An INPUT is a .cfg file with its .dat file beside it, or a .cff file; the name may be a\n"
      "pattern with * and ?.\n\n"
      "  -o FILE-OR-FOLDER  where to write; beside the input if this is left out\n"
      "  --csv              writes a table: UTF-8, one column a channel, with units\n"
      "  --primary          values of the primary side of the instrument transformers\n"
      "  --secondary        values of their secondary side\n"
      "  --from MS          leaves out what is before so many milliseconds of the recording\n"
      "  --to MS            leaves out what is after so many milliseconds\n"
      "  --encoding NAME    encoding of the texts in the input, such as GBK or IBM866\n"
      "  --force            replaces files that exist\n"
      "  --help             prints this text\n"
      "  --version          prints the version\n\n"
      "Exit status: 0 all is converted, 1 an input is missing or breaks the standard, 2 the\n"
      "command line makes no sense, 3 an output exists already or cannot be written.\n";

namespace {

class ArgumentReader {
public:
    explicit ArgumentReader(const QStringList &arguments) : m_rest(arguments) { }

    Options read()
    {
        while (!m_rest.isEmpty())
            readNext(m_rest.takeFirst());
        return m_options;
    }

private:
    void readNext(QString argument)
    {
        if (!m_hasOptions || !argument.startsWith(QLatin1Char('-')) || argument.size() == 1) {
            addInput(argument);
            return;
        }
        // "--name=value" is "--name value".
        const int equals = argument.indexOf(QLatin1Char('='));
        if (argument.startsWith(QLatin1String("--")) && equals >= 0) {
            m_rest.prepend(argument.mid(equals + 1));
            argument.truncate(equals);
            if (!readValue(argument))
                throw BadUsage(argument.toStdString() + " takes no value");
        } else if (argument == QLatin1String("--")) {
            m_hasOptions = false;
        } else if (!readValue(argument) && !readSwitch(argument)) {
            throw BadUsage("there is no option " + argument.toStdString());
        }
    }

    bool readValue(const QString &name)
    {
        if (name == QLatin1String("-o"))
            m_options.output = value(name);
        else if (name == QLatin1String("--from"))
            m_options.from = nanoseconds(name);
        else if (name == QLatin1String("--to"))
            m_options.to = nanoseconds(name);
        else if (name == QLatin1String("--encoding"))
            m_options.encoding = encoding(value(name));
        else
            return false;
        return true;
    }

    bool readSwitch(const QString &name)
    {
        if (name == QLatin1String("--csv"))
            m_options.format = Format::Csv;
        else if (name == QLatin1String("--force"))
            m_options.mayReplace = true;
        else if (name == QLatin1String("--primary"))
            setSide(Side::Primary);
        else if (name == QLatin1String("--secondary"))
            setSide(Side::Secondary);
        else if (name == QLatin1String("--help"))
            m_options.wantsHelp = true;
        else if (name == QLatin1String("--version"))
            m_options.wantsVersion = true;
        else
            return false;
        return true;
    }

    void setSide(Side side)
    {
        if (m_options.side && m_options.side != side)
            throw BadUsage("--primary and --secondary exclude each other");
        m_options.side = side;
    }

    QString value(const QString &name)
    {
        if (m_rest.isEmpty() || m_rest.constFirst().isEmpty())
            throw BadUsage(name.toStdString() + " takes a value");
        return m_rest.takeFirst();
    }

    // Of milliseconds; rounded, since most decimals are no doubles.
    std::int64_t nanoseconds(const QString &name)
    {
        bool isNumber = false;
        const double milliseconds = value(name).toDouble(&isNumber);
        if (!isNumber || !std::isfinite(milliseconds))
            throw BadUsage(name.toStdString() + " takes a number of milliseconds");
        constexpr double beyondAllTimes = 9e18;
        return std::llround(std::clamp(milliseconds * 1e6, -beyondAllTimes, beyondAllTimes));
    }

    static QTextCodec *encoding(const QString &name)
    {
        QTextCodec *const codec = encodingNamed(name);
        if (!codec)
            throw BadUsage("--encoding does not know " + name.toStdString());
        return codec;
    }

    // Where the shell leaves patterns alone, they are resolved here.
    void addInput(const QString &path)
    {
        const QFileInfo input(path);
        const bool isPattern = input.fileName().contains(QLatin1Char('*'))
            || input.fileName().contains(QLatin1Char('?'));
        if (!isPattern || input.exists()) {
            m_options.inputs.append(path);
            return;
        }
        const QStringList names
            = input.dir().entryList({input.fileName()}, QDir::Files, QDir::Name);
        for (const QString &name : names)
            m_options.inputs.append(path.chopped(input.fileName().size()) + name);
        if (names.isEmpty())
            throw BadUsage("no file is named like " + path.toStdString());
    }

    QStringList m_rest;
    bool m_hasOptions = true; // until "--"
    Options m_options;
};

} // namespace

Options toOptions(const QStringList &arguments)
{
    Options options = ArgumentReader(arguments).read();
    if (options.wantsHelp || options.wantsVersion)
        return options;
    if (options.inputs.isEmpty())
        throw BadUsage("there is no input");
    if (options.from && options.to && *options.from > *options.to)
        throw BadUsage("--from is after --to");
    const bool isFolder = QFileInfo(options.output).isDir();
    if (!options.output.isEmpty() && options.inputs.size() > 1 && !isFolder)
        throw BadUsage("several inputs need a folder behind -o that exists");
    return options;
}

} // namespace convert
