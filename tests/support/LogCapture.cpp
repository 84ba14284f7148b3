// SPDX-License-Identifier: MIT
#include "support/LogCapture.h"

namespace {
QStringList collected;

void collect(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtWarningMsg) {
        collected.append(message);
    }
}
} // namespace

LogCapture::LogCapture()
    : m_before(qInstallMessageHandler(collect))
{
    collected.clear();
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(m_before);
}

QStringList LogCapture::warnings() const
{
    return collected;
}
