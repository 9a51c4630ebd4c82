// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// What the archiver prints, and how it comes: the first text is the package's path, the others are
// the pieces.

#include "archiveroutput.h"
#include "fuzzing.h"

#include <QByteArrayList>

#include <array>
#include <cstring>

namespace {

struct Seen {
    bool isError = false;
    bool isQuestion = false;
};

bool beginsWith(const char *at, const char *end, const QByteArray &word)
{
    return end - at >= word.size()
        && std::memcmp(at, word.constData(), static_cast<size_t>(word.size())) == 0;
}

// The words of an output outside of the path, from left to right.
Seen wordsOf(const QByteArray &output, const QByteArray &path)
{
    static const std::array<QByteArray, 3> errors{"error", "Error", "ERROR"};
    static const std::array<QByteArray, 2> questions{"Overwrite", "password"};
    Seen seen;
    const char *const end = output.constData() + output.size();
    const auto taken = [end](const char *at, const auto &words) {
        for (const QByteArray &word : words) {
            if (beginsWith(at, end, word))
                return word.size();
        }
        return 0;
    };
    for (const char *at = output.constData(); at != end;) {
        int length = 0;
        if (beginsWith(at, end, path)) {
            length = path.size();
        } else if ((length = taken(at, errors)) > 0) {
            seen.isError = true;
        } else if ((length = taken(at, questions)) > 0) {
            seen.isQuestion = true;
        }
        at += length > 0 ? length : 1;
    }
    return seen;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    QByteArrayList pieces = inputOf(bytes, size).split('\x1c');
    const QByteArray path = pieces.takeFirst() + ".zip";
    // Other letters look different in the output than in the path.
    for (const char letter : path) {
        if (letter <= 0)
            return -1;
    }
    pieces.append("\xff"); // what may be the beginning of the path is none
    ArchiverOutput output(QString::fromLatin1(path));
    int errors = 0;
    bool isAnswered = false;
    for (const QByteArray &piece : qAsConst(pieces)) {
        const ArchiverOutput::Reaction reaction = output.read(piece);
        errors += reaction.error ? 1 : 0;
        isAnswered = isAnswered || !reaction.answer.isEmpty();
        require(reaction.answer.size() <= 4, "more than one answer to each question");
    }
    const Seen seen = wordsOf(pieces.join(), path);
    require(errors == (seen.isError ? 1 : 0), "an error overlooked, made up or told twice");
    require(isAnswered == seen.isQuestion, "a question overlooked or made up");
    return 0;
}
