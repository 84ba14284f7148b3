// SPDX-License-Identifier: MIT
#pragma once

#include "manuale/ManualFile.h"

#include <QTextBrowser>

// The text of the manual. Its file is not read again: whatever becomes of that, the text stays.
class ManualText final : public QTextBrowser
{
    Q_OBJECT

public:
    using QTextBrowser::QTextBrowser;

    bool shows(const QString &fileName) const;
    // From its beginning, and with no way back to what was shown before.
    void setManual(const ManualFile &manual);

protected:
    QVariant loadResource(int type, const QUrl &name) override;

private:
    ManualFile m_manual;
};
