// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

class ScratchFolder;

// For as long as it lives a process of root is one of a user to whom rights are denied, and the folder is his; any
// other process stays what it is.
class OrdinaryUser final
{
public:
    explicit OrdinaryUser(const ScratchFolder &folder);
    ~OrdinaryUser();
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

private:
    bool m_wasRoot;
};
