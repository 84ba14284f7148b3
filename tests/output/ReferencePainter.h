// SPDX-License-Identifier: MIT
#pragma once

class Cartella;
class QString;

// Prints a set in the plainest way: every call of the painter made one by one in the order of the cells, nothing kept
// from one cell to the next, all arithmetic of its own. What the program prints must look and read the same. False when
// the file cannot be written.
bool printReference(const Cartella &set, const QString &fileName);
