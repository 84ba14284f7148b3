// SPDX-License-Identifier: MIT
#include "resources/Resources.h"

#include <QDir>
#include <QtGlobal>

void initQuintraResources()
{
    Q_INIT_RESOURCE(Quintra);
}
