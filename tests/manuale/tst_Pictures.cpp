// SPDX-License-Identifier: MIT
// The windows in the pictures of the manual have the texts that they have in the program, in the language of the
// environment. Where that holds QUINTRA_TAKE_PICTURES, the name of a folder, the pictures are taken anew instead: for
// script/pictures, which finds a printed page in that folder.
#include "manuale/Pictures.h"

#include "manuale/PictureScene.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QStyleFactory>
#include <QtTest>

namespace {
const QString pages = QStringLiteral(QUINTRA_MANUAL_PAGES);

const QString folderForPages = qEnvironmentVariable("QUINTRA_TAKE_PICTURES");

QString language()
{
    return QLocale::system().name();
}

QString fileOf(const QString &name, const char *suffix)
{
    return QStringLiteral("%1/%2/images/%3.%4").arg(pages, language().left(2), name, QLatin1String(suffix));
}

QStringList linesOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split(QLatin1Char('\n')) : QStringList();
}

void save(const Shot &shot, const QString &name)
{
    QVERIFY(QDir().mkpath(QFileInfo(fileOf(name, "png")).path()));
    QVERIFY(shot.image.save(fileOf(name, "png")));
    QFile list(fileOf(name, "txt"));
    QVERIFY(list.open(QIODevice::WriteOnly));
    QVERIFY(list.write((shot.texts.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8()) > 0);
}

// What one list has and the other has not.
QString difference(const QStringList &seen, const QStringList &inThePicture)
{
    QString text;
    for (const QString &line : seen) {
        text += inThePicture.contains(line) ? QString() : QStringLiteral("only in the window: %1\n").arg(line);
    }
    for (const QString &line : inThePicture) {
        text += seen.contains(line) ? QString() : QStringLiteral("only in the picture: %1\n").arg(line);
    }
    return text;
}
} // namespace

class tst_Pictures final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theyShowTheWindowsAsTheyAre_data();
    void theyShowTheWindowsAsTheyAre();
    void everyPictureHasItsList();
    void aPageIsPrinted();
    void aTextThatIsNotInThePictureIsFound();
};

// The same on every desktop.
void tst_Pictures::initTestCase()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(QApplication::style()->standardPalette());
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
}

void tst_Pictures::theyShowTheWindowsAsTheyAre_data()
{
    QTest::addColumn<int>("picture");
    for (size_t i = 0; i < picturesOfTheManual().size(); ++i) {
        QTest::newRow(picturesOfTheManual()[i].name) << int(i);
    }
}

void tst_Pictures::theyShowTheWindowsAsTheyAre()
{
    QFETCH(int, picture);
    const Picture &wanted = picturesOfTheManual()[size_t(picture)];
    const QString name = QString::fromLatin1(wanted.name);
    PictureScene scene(language());
    wanted.take(scene);
    QVERIFY(!scene.shot().texts.isEmpty());
    if (!folderForPages.isEmpty()) {
        save(scene.shot(), name);
        return;
    }
    QVERIFY2(QFile::exists(fileOf(name, "png")), "script/pictures takes it");
    QStringList inThePicture = linesOf(fileOf(name, "txt"));
    inThePicture.removeAll(QString());
    QVERIFY2(scene.shot().texts == inThePicture, qPrintable(QStringLiteral("script/pictures takes it anew\n") +
                                                            difference(scene.shot().texts, inThePicture)));
}

void tst_Pictures::everyPictureHasItsList()
{
    const QDir folder(QFileInfo(fileOf(QString(), "txt")).path());
    QStringList names;
    for (const Picture &picture : picturesOfTheManual()) {
        names << QString::fromLatin1(picture.name) + QStringLiteral(".txt");
    }
    names.sort();
    QCOMPARE(folder.entryList({QStringLiteral("*.txt")}, QDir::Files, QDir::Name), names);
}

void tst_Pictures::aPageIsPrinted()
{
    PictureScene scene(language());
    const QString name =
        (folderForPages.isEmpty() ? QDir::currentPath() : folderForPages) + QStringLiteral("/page.pdf");
    printPage(scene, name);
    QVERIFY(QFileInfo(name).size() > 0);
}

void tst_Pictures::aTextThatIsNotInThePictureIsFound()
{
    PictureScene scene(QStringLiteral("it_IT")); // whatever the environment says
    const QStringList before = textsSeen(scene.mainWindow());
    auto *label = findIn<QAbstractButton>(scene.mainWindow(), "butt_stampa");
    label->setText(QStringLiteral("Stampa subito"));
    const QStringList after = textsSeen(scene.mainWindow());
    QCOMPARE(difference(after, before),
             QStringLiteral("only in the window: Stampa subito\nonly in the picture: STAMPA\n"));
}

QTEST_MAIN(tst_Pictures)
#include "tst_Pictures.moc"
