// SPDX-License-Identifier: MIT
#pragma once

// Registers the icons of the static library; every window calls it before its form is built. Repeating it is free.
void initQuintraResources();
