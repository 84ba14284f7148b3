// SPDX-License-Identifier: MIT
#include "msgarea/MsgArea.h"
