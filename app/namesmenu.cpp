// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "namesmenu.h"

#include "cfgproperties.h"
#include "channelnames.h"
#include "memoryfile.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QJsonArray>
#include <QMenu>

#include <algorithm>

namespace {

const QString key = QStringLiteral("letters"); // pairs of a device and letters, the latest first
constexpr int mostDevices = 100;

struct NamesMenu {
    Q_DECLARE_TR_FUNCTIONS(NamesMenu)
};

// What a choice is kept for; empty where the recording names no device.
QString deviceOf(const CFGProperties &recording)
{
    constexpr int mostLetters = 256;
    return recording.recordingDeviceId.left(mostLetters).trimmed();
}

Letters rememberedLetters(const QString &device)
{
    const QJsonArray kept = remembered(key).toArray();
    for (const QJsonValue &pair : kept) {
        for (int kind = 1; kind < letterKinds; ++kind) {
            const auto letters = static_cast<Letters>(kind);
            if (pair[0] == device && pair[1] == codecName(letters))
                return letters;
        }
    }
    return Letters::AsRead;
}

// As they were read, there is nothing to remember.
void rememberLetters(const QString &device, Letters letters)
{
    if (device.isEmpty())
        return;
    QJsonArray pairs;
    if (letters != Letters::AsRead)
        pairs.append(QJsonArray{device, codecName(letters)});
    const QJsonArray kept = remembered(key).toArray();
    for (const QJsonValue &pair : kept) {
        if (pair[0] != device && pairs.size() < mostDevices)
            pairs.append(pair);
    }
    remember(key, pairs);
}

// The name of the letters that a note tells of; empty where there is none.
QString likelyLettersOf(const CFGProperties &recording)
{
    const auto note = std::find_if(recording.notes.cbegin(), recording.notes.cend(),
        [](const ReadingNote &each) { return each.kind == ReadingNote::Kind::OtherLetters; });
    return note == recording.notes.cend() ? QString() : note->word;
}

} // namespace

void addNamesMenu(QMenu &menu, const CFGProperties &recording)
{
    QMenu *choices = menu.addMenu(NamesMenu::tr("Names &As"));
    auto *group = new QActionGroup(choices);
    const Letters chosen = NameLetters::shared().letters();
    const QString likely = likelyLettersOf(recording);
    const QString advice = NamesMenu::tr("The names seem to be in %1").arg(likely);
    const bool isAdvised = !likely.isEmpty() && likely != lettersName(chosen);
    for (int kind = 0; kind < letterKinds; ++kind) {
        const auto letters = static_cast<Letters>(kind);
        const QString name = lettersName(letters);
        QAction *choice = group->addAction(name.isEmpty() ? NamesMenu::tr("As Read") : name);
        choice->setCheckable(true);
        choice->setChecked(letters == chosen);
        if (isAdvised && name == likely)
            choice->setToolTip(advice);
        choices->addAction(choice);
        QObject::connect(choice, &QAction::triggered, &NameLetters::shared(),
            [letters, device = deviceOf(recording)] {
                rememberLetters(device, letters);
                NameLetters::shared().choose(letters);
            });
    }
    if (isAdvised)
        choices->menuAction()->setToolTip(advice);
    choices->setToolTipsVisible(isAdvised);
}

void chooseLettersOf(const CFGProperties &recording)
{
    const QString device = deviceOf(recording);
    NameLetters::shared().choose(device.isEmpty() ? Letters::AsRead : rememberedLetters(device));
}
