// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

// Runs `action` in a child process. The text of the fatal log message that stopped it; null when it ended otherwise.
QString fatalMessageOf(const std::function<void()> &action);
