// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "applicationidentity.h"

namespace {

struct Identity {
    int brand = 0;
    QString organisationName;
    QString applicationName;
};

Identity &identity()
{
    static Identity value;
    return value;
}

} // namespace

int ApplicationIdentity::brand()
{
    return identity().brand;
}

void ApplicationIdentity::setBrand(int brand)
{
    identity().brand = brand;
}

QString ApplicationIdentity::organisationName()
{
    return identity().organisationName;
}

void ApplicationIdentity::setOrganisationName(const QString &name)
{
    identity().organisationName = name;
}

QString ApplicationIdentity::applicationName()
{
    return identity().applicationName;
}

void ApplicationIdentity::setApplicationName(const QString &name)
{
    identity().applicationName = name;
}
