// SPDX-License-Identifier: MIT
#include "resources/Resources.h"

#include <QtGlobal>

void initQuintraResources()
{
    Q_INIT_RESOURCE(Quintra);
}

QString verdictIcon(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Error:
        return QStringLiteral(":/Images/resources/img/error.png");
    case Verdict::Warning:
        return QStringLiteral(":/Images/resources/img/warning.png");
    case Verdict::Correct:
        break;
    }
    return QStringLiteral(":/Images/resources/img/ok.png");
}
