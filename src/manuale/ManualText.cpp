// SPDX-License-Identifier: MIT
#include "manuale/ManualText.h"

bool ManualText::shows(const QString &fileName) const
{
    return m_manual.name == fileName;
}

void ManualText::setManual(const ManualFile &manual)
{
    m_manual = manual;
    setSource(QUrl::fromLocalFile(manual.name));
    clearHistory();
}

QVariant ManualText::loadResource(int type, const QUrl &name)
{
    const bool isThePage = name.adjusted(QUrl::RemoveFragment) == QUrl::fromLocalFile(m_manual.name);
    return isThePage ? QVariant(m_manual.page) : QTextBrowser::loadResource(type, name);
}
