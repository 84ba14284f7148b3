// SPDX-License-Identifier: MIT
#include "mainwindow/MainWindow.h"
#include "mainwindow/WholeProgram.h"
#include "settings/FormatSelection.h"
#include "support/ScratchFolder.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QTranslator>
#include <QtTest>

#include <cstdio>

using namespace WholeProgram;

// The language in which a user of a locale meets the program that is shipped, start after start. The locale of a
// process never changes, so each user is a process of its own: this program called with `asUser`.
namespace {
constexpr char asUser[] = "--as-user";
const QDir shipped(QStringLiteral(QUINTRA_LANGUAGE_FOLDER));

void print(const QStringList &words)
{
    std::printf("%s\n", words.join(QLatin1Char('|')).toUtf8().constData());
}

QStringList offeredBy(const FormatSelection *dialog)
{
    const auto *box = dialog->findChild<QComboBox *>(QStringLiteral("lang_selection"));
    QStringList languages;
    for (int i = 0; i < box->count(); ++i) {
        languages.append(box->itemText(i));
    }
    return languages;
}

void tellAndLeave(MainWindow *window)
{
    const auto *button = window->findChild<QPushButton *>(QStringLiteral("butt_stampa"));
    print({button->text(), translated("QPlatformTheme", "Cancel")});
    leave(window);
}

// Two starts in an empty folder with the shipped translations. Prints what is seen, a line a window.
int startTwice()
{
    run([]() {
        auto *dialog = shown<FormatSelection>();
        print(offeredBy(dialog));
        print({dialog->findChild<QPushButton *>(QStringLiteral("default_settings"))->toolTip()});
        pressOk(dialog);
        whenShown<MainWindow>(tellAndLeave);
    });
    return run([]() { tellAndLeave(shown<MainWindow>()); });
}

void installTranslations()
{
    QVERIFY(QDir().mkdir(QStringLiteral("language")));
    for (const QString &file : shipped.entryList(QDir::Files)) {
        QVERIFY(QFile::copy(shipped.filePath(file), QStringLiteral("language/") + file));
    }
}

// The lines that a user of this locale prints; none when the program fails.
QList<QStringList> seenByUserOf(const QString &locale)
{
    QProcess user;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), locale + QStringLiteral(".UTF-8"));
    user.setProcessEnvironment(environment);
    user.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    user.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(asUser)});
    QList<QStringList> seen;
    if (!user.waitForFinished() || user.exitStatus() != QProcess::NormalExit || user.exitCode() != 0) {
        return seen;
    }
    for (const QString &line : QString::fromUtf8(user.readAllStandardOutput()).split(QLatin1Char('\n'))) {
        seen.append(line.split(QLatin1Char('|')));
    }
    return seen;
}

// A text in the language of a shipped file.
QString inLanguage(const QString &locale, const char *context, const char *text)
{
    QTranslator file;
    return file.load(shipped.filePath(QStringLiteral("Quintra_%1.qm").arg(locale))) ? file.translate(context, text)
                                                                                    : QString();
}

// The toolkit's "Cancel" for users of this locale.
QString cancelFor(const QString &locale)
{
    static const QHash<QString, QString> texts = {{QStringLiteral("it"), QStringLiteral("Annulla")},
                                                  {QStringLiteral("de"), QStringLiteral("Abbrechen")},
                                                  {QStringLiteral("fr"), QStringLiteral("Annuler")},
                                                  {QStringLiteral("es"), QStringLiteral("Cancelar")}};
    return texts.value(locale.left(2), QStringLiteral("Cancel"));
}
} // namespace

class tst_StartLanguages final : public QObject
{
    Q_OBJECT

private slots:
    void theDialogOffersTheUsualPlaces();
    void everyUserIsMetInHisLanguage_data();
    void everyUserIsMetInHisLanguage();
};

void tst_StartLanguages::theDialogOffersTheUsualPlaces()
{
    const ScratchFolder folder;
    installTranslations();
    const QStringList offered = seenByUserOf(QStringLiteral("C")).value(0);
    QStringList places = QStringLiteral(QUINTRA_PLACES).split(QLatin1Char(','));
    places.sort();
    QCOMPARE(offered, places);
    const QString usual =
        QStringLiteral("de_AT de_CH de_DE en_GB en_US es_ES es_MX fr_BE fr_CA fr_CH fr_FR it_CH it_IT");
    for (const QString &place : usual.split(QLatin1Char(' '))) {
        QVERIFY2(offered.contains(place), qPrintable(place));
    }
}

// "first" is the language of the first start, in which the dialog opens; "later" that of every later start.
void tst_StartLanguages::everyUserIsMetInHisLanguage_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("later");
    const QString italian = QStringLiteral("it_IT");
    const QString english = QStringLiteral("en_GB");
    const QString german = QStringLiteral("de_DE");
    const QString french = QStringLiteral("fr_FR");
    const QString spanish = QStringLiteral("es_ES");
    QTest::newRow("it_IT") << italian << italian;
    QTest::newRow("it_CH") << italian << italian;
    QTest::newRow("en_GB") << english << english;
    QTest::newRow("en_US") << english << english;
    QTest::newRow("de_DE") << german << german;
    QTest::newRow("de_AT") << german << german;
    QTest::newRow("de_CH") << german << german;
    QTest::newRow("fr_FR") << french << french;
    QTest::newRow("fr_BE") << french << french;
    QTest::newRow("fr_CA") << french << french;
    QTest::newRow("fr_CH") << french << french;
    QTest::newRow("es_ES") << spanish << spanish;
    QTest::newRow("es_MX") << spanish << spanish;
    // The dialog opens in its first language where it does not offer the user's own.
    QTest::newRow("en_IE") << german << english;
    QTest::newRow("de_LU") << german << german;
    QTest::newRow("fr_LU") << german << french;
    QTest::newRow("es_AR") << german << spanish;
    QTest::newRow("it_SM") << german << italian;
    QTest::newRow("sq_AL") << german << italian;
    QTest::newRow("C") << german << italian;
}

void tst_StartLanguages::everyUserIsMetInHisLanguage()
{
    QFETCH(QString, first);
    QFETCH(QString, later);
    const QString locale = QString::fromLatin1(QTest::currentDataTag());
    const ScratchFolder folder;
    installTranslations();
    const auto seen = seenByUserOf(locale);
    QVERIFY(seen.size() >= 4);
    QCOMPARE(seen.at(1), QStringList(inLanguage(first, "FormatSelection", "Impostazioni di default")));
    QCOMPARE(seen.at(2), QStringList({inLanguage(first, "MainWindow", "STAMPA"), cancelFor(first)}));
    QCOMPARE(seen.at(3), QStringList({inLanguage(later, "MainWindow", "STAMPA"), cancelFor(locale)}));
}

int main(int argc, char **argv)
{
    if (argc > 1 && qstrcmp(argv[1], asUser) == 0) {
        return startTwice();
    }
    const QCoreApplication application(argc, argv); // for the user's process
    tst_StartLanguages test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_StartLanguages.moc"
