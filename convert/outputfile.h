// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "textoutput.h"

#include <QFile>
#include <QString>

namespace convert {

// A file that is written beside its place and takes it when it is complete. One that was there is
// replaced only where that is allowed. Calls throw a Failure that names the file.
class OutputFile : public TextOutput {
public:
    enum class Existing { Keep, Replace };

    OutputFile(const QString &path, Existing existing);
    // Removes what has not been put in place.
    ~OutputFile() override;

    // No more is written.
    void complete();
    // While this object lives, takeBack() brings back what was there before.
    void putInPlace();
    void takeBack();

protected:
    void take(std::string_view text) override;

private:
    [[noreturn]] void fail(const QString &reason) const;

    const QString m_path;
    const Existing m_existing;
    QFile m_file; // beside the place
    QString m_former; // another name of the file that was there
};

// Puts two files in place that belong together, or neither.
void putInPlace(OutputFile &first, OutputFile &second);

} // namespace convert
