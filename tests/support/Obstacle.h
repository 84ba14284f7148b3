// SPDX-License-Identifier: MIT
#pragma once

#include "support/FileFaults.h"
#include "support/ResourceLimit.h"
#include "support/ScratchFolder.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <vector>

// What is in the way of a file at the moment when it is written or read: the file lies there with its content, the
// obstacle strikes, and is lifted again. Most of them stop only an ordinary user.
class Obstacle final
{
public:
    enum class Effect {
        None,
        Refused, // the file cannot be opened
        Broken   // it is opened, but fails then
    };
    struct Kind
    {
        const char *name;
        Effect onWriting;
        Effect onReading;
        void (*strike)(Obstacle &);
        // The name that the file has for it; null: any.
        QString (*nameFor)(const QString &suffix);
    };
    static const std::vector<Kind> &kinds();

    // The file is made in the folder `there`, with the content if it can be.
    Obstacle(const ScratchFolder &folder, const Kind &kind, const QString &fileName, const QByteArray &content);
    ~Obstacle();
    Q_DISABLE_COPY_MOVE(Obstacle)

    QString path() const { return m_path; }
    Effect onWriting() const { return m_kind.onWriting; }
    Effect onReading() const { return m_kind.onReading; }
    void strike() { m_kind.strike(*this); }
    void lift();
    // Whether the file, if the obstacle left one, holds what it held.
    bool isContentKept() const;

private:
    static void strikeName(Obstacle &) {}
    static void makeReadOnly(Obstacle &o);
    static void takeRights(Obstacle &o);
    static void makeFolderReadOnly(Obstacle &o);
    static void takeRightsOfFolder(Obstacle &o);
    static void makeFolderOfThatName(Obstacle &o);
    static void removeFolder(Obstacle &o);
    static void linkToItself(Obstacle &o);
    static void giveOddName(Obstacle &o);
    static void takeOpenFiles(Obstacle &o);
    static void fillDisk(Obstacle &o);
    static void killDisk(Obstacle &o);

    const ScratchFolder &m_folder;
    Kind m_kind;
    QString m_there;
    QString m_path;
    QByteArray m_content;
    std::unique_ptr<ResourceLimit> m_limit;
    std::unique_ptr<FileFaults> m_faults;
};
