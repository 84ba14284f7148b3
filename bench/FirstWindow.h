// SPDX-License-Identifier: MIT
#pragma once

// Ends the process as soon as the first window of its application is on the screen. To be called before there is one.
void endAtFirstWindow();
