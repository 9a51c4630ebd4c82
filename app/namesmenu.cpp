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
    return recording.recordingDeviceId.left(mostLetters);
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

Letters likelyLettersOf(const CFGProperties &recording)
{
    QStringList texts{recording.stationName, recording.recordingDeviceId};
    texts += recording.analogIds + recording.analogPhases + recording.analogCircuits;
    texts += recording.analogUnits + recording.digitalIds;
    return likelyLetters(texts);
}

QString nameOf(Letters letters)
{
    switch (letters) {
    case Letters::AsRead:
        return NamesMenu::tr("As Read");
    case Letters::Windows1251:
        return QStringLiteral("Windows-1251");
    case Letters::Ibm866:
        return QStringLiteral("IBM 866");
    case Letters::Windows1252:
        return QStringLiteral("Windows-1252");
    case Letters::Utf8:
    case Letters::Gbk:
        break;
    }
    return codecName(letters);
}

} // namespace

void addNamesMenu(QMenu &menu, const CFGProperties &recording)
{
    QMenu *choices = menu.addMenu(NamesMenu::tr("Names &As"));
    auto *group = new QActionGroup(choices);
    const Letters chosen = NameLetters::shared().letters();
    const Letters likely = likelyLettersOf(recording);
    for (int kind = 0; kind < letterKinds; ++kind) {
        const auto letters = static_cast<Letters>(kind);
        QAction *choice = group->addAction(nameOf(letters));
        choice->setCheckable(true);
        choice->setChecked(letters == chosen);
        choices->addAction(choice);
        QObject::connect(choice, &QAction::triggered, &NameLetters::shared(),
            [letters, device = deviceOf(recording)] {
                rememberLetters(device, letters);
                NameLetters::shared().choose(letters);
            });
    }
    if (likely == Letters::AsRead || likely == chosen)
        return;
    const QString advice = NamesMenu::tr("The names seem to be in %1").arg(nameOf(likely));
    choices->menuAction()->setToolTip(advice);
    group->actions().at(static_cast<int>(likely))->setToolTip(advice);
    choices->setToolTipsVisible(true);
}

void chooseLettersOf(const CFGProperties &recording)
{
    const QString device = deviceOf(recording);
    NameLetters::shared().choose(device.isEmpty() ? Letters::AsRead : rememberedLetters(device));
}
