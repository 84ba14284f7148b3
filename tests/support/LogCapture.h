// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

// Collects the warnings of the debug log for as long as it lives. One at a time.
class LogCapture final
{
public:
    LogCapture();
    ~LogCapture();
    Q_DISABLE_COPY_MOVE(LogCapture)

    // The texts of the warnings until now, in order.
    QStringList warnings() const;

private:
    QtMessageHandler m_before;
};
