// SPDX-License-Identifier: MIT
#include "support/OrdinaryUser.h"

#include "support/ScratchFolder.h"

#include <QFile>

#include <unistd.h>

namespace {
constexpr uid_t nobody = 65534;

// The saved user stays: it is the way back. Files that are made belong to the effective one.
void become(uid_t user)
{
    if (setresuid(user, user, static_cast<uid_t>(-1)) != 0) {
        qFatal("OrdinaryUser: cannot become user %u", user);
    }
}
} // namespace

OrdinaryUser::OrdinaryUser(const ScratchFolder &folder)
    : m_wasRoot(geteuid() == 0)
{
    if (!m_wasRoot) {
        return;
    }
    if (chown(QFile::encodeName(folder.path(QString())).constData(), nobody, static_cast<gid_t>(-1)) != 0) {
        qFatal("OrdinaryUser: cannot give the folder away");
    }
    become(nobody);
}

OrdinaryUser::~OrdinaryUser()
{
    if (m_wasRoot) {
        become(0);
    }
}
