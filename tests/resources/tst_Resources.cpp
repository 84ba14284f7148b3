// SPDX-License-Identifier: MIT
#include "resources/Resources.h"

#include <QDirIterator>
#include <QImageReader>
#include <QtTest>

namespace {
const QString pictures = QStringLiteral(":/Images/resources/img");

QStringList pictureFiles()
{
    QStringList files;
    QDirIterator all(pictures, QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        files.append(all.next());
    }
    return files;
}
} // namespace

class tst_Resources final : public QObject
{
    Q_OBJECT

private slots:
    void thePicturesOfTheLibraryAreThereOnceRegistered();
    void everyPictureCanBeRead();
    void eachVerdictHasItsIcon();
};

void tst_Resources::thePicturesOfTheLibraryAreThereOnceRegistered()
{
    initQuintraResources();
    const int registered = pictureFiles().size();
    QVERIFY(registered > 0);
    initQuintraResources();
    QCOMPARE(pictureFiles().size(), registered);
    for (const char *name : {"Quintra.ico", "ok.png", "warning.png", "error.png"}) {
        QVERIFY2(QFile::exists(pictures + QLatin1Char('/') + QString::fromLatin1(name)), name);
    }
}

void tst_Resources::everyPictureCanBeRead()
{
    initQuintraResources();
    for (const QString &file : pictureFiles()) {
        QImageReader reader(file);
        QVERIFY2(!reader.read().isNull(), qPrintable(file + QLatin1Char(' ') + reader.errorString()));
    }
}

void tst_Resources::eachVerdictHasItsIcon()
{
    QCOMPARE(verdictIcon(Verdict::Correct), pictures + QStringLiteral("/ok.png"));
    QCOMPARE(verdictIcon(Verdict::Warning), pictures + QStringLiteral("/warning.png"));
    QCOMPARE(verdictIcon(Verdict::Error), pictures + QStringLiteral("/error.png"));
}

QTEST_GUILESS_MAIN(tst_Resources)
#include "tst_Resources.moc"
