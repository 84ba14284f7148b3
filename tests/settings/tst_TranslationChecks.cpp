// SPDX-License-Identifier: MIT
#include "settings/TranslationChecks.h"
#include "support/ScratchFolder.h"

#include <QtTest>

using TranslationChecks::Entry;

namespace {
// The content of a file of this language with one text.
QByteArray fileOf(const char *language, const char *source, const QByteArray &translation)
{
    return QByteArray("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<TS version=\"2.1\" language=\"") + language +
           "\"><context><name>Window</name><message><source>" + source + "</source><translation>" + translation +
           "</translation></message></context></TS>";
}

Entry entry(const QString &source, const QString &translation, const QString &context = QStringLiteral("Window"))
{
    Entry made;
    made.context = context;
    made.source = source;
    made.translation = translation;
    return made;
}

QByteArray file(const QByteArray &messages)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n<TS version=\"2.1\" language=\"de_DE\">\n"
           "<context>\n<name>Window</name>\n" +
           messages + "</context>\n</TS>\n";
}
} // namespace

class tst_TranslationChecks final : public QObject
{
    Q_OBJECT

private slots:
    void everyEntryIsRead();
    void unfinishedAndEmptyEntriesAreFound_data();
    void unfinishedAndEmptyEntriesAreFound();
    void textsThatTheCodeNoLongerHasAreLeftOut();
    void everyPluralFormIsAnEntry();
    void aFileThatIsNotWellFormedIsAnError();

    void placeholdersMustAgree_data();
    void placeholdersMustAgree();
    void theLastCharacterMustKeepTheColour_data();
    void theLastCharacterMustKeepTheColour();
    void lineBreaksMustAgree_data();
    void lineBreaksMustAgree();
    void textsStayInLatin1_data();
    void textsStayInLatin1();
    void theWordingOfAFileIsChecked_data();
    void theWordingOfAFileIsChecked();

    void everyProblemIsALine();
    void textsWithoutAnEntryAreFound();
    void theTextsOfCodeAndFormsAreFound();
};

void tst_TranslationChecks::everyEntryIsRead()
{
    const auto read = TranslationChecks::read(file(
        "<message><source>L&apos;uno\ndue</source><comment>why</comment><translation>Eins &amp;\nzwei</translation>"
        "</message><message><location filename=\"a.cpp\" line=\"3\"/><source>tre</source>"
        "<translation>drei</translation></message>"));
    QCOMPARE(read.error, QString());
    QCOMPARE(read.language, QStringLiteral("de_DE"));
    QCOMPARE(read.entries[1].language, QStringLiteral("de_DE"));
    QCOMPARE(read.entries.size(), 2);
    QCOMPARE(read.entries[0].context, QStringLiteral("Window"));
    QCOMPARE(read.entries[0].source, QStringLiteral("L'uno\ndue"));
    QCOMPARE(read.entries[0].comment, QStringLiteral("why"));
    QCOMPARE(read.entries[0].translation, QStringLiteral("Eins &\nzwei"));
    QCOMPARE(read.entries[1].source, QStringLiteral("tre"));
    QCOMPARE(read.entries[1].translation, QStringLiteral("drei"));
    QCOMPARE(TranslationChecks::problems(read.entries), QStringList());
}

void tst_TranslationChecks::unfinishedAndEmptyEntriesAreFound_data()
{
    QTest::addColumn<QByteArray>("translation");
    QTest::addColumn<bool>("incomplete");
    QTest::newRow("finished") << QByteArray("<translation>x</translation>") << false;
    QTest::newRow("unfinished") << QByteArray("<translation type=\"unfinished\">x</translation>") << true;
    QTest::newRow("unfinished and empty") << QByteArray("<translation type=\"unfinished\"></translation>") << true;
    QTest::newRow("empty") << QByteArray("<translation></translation>") << true;
    QTest::newRow("without translation") << QByteArray() << true;
}

void tst_TranslationChecks::unfinishedAndEmptyEntriesAreFound()
{
    QFETCH(QByteArray, translation);
    QFETCH(bool, incomplete);
    const auto read = TranslationChecks::read(file("<message><source>x</source>" + translation + "</message>"));
    QCOMPARE(read.entries.size(), 1);
    QCOMPARE(TranslationChecks::isIncomplete(read.entries.first()), incomplete);
}

void tst_TranslationChecks::textsThatTheCodeNoLongerHasAreLeftOut()
{
    const auto read = TranslationChecks::read(
        file("<message><source>a</source><translation type=\"vanished\">x</translation><extra>y</extra></message>"
             "<message><source>b</source><translation type=\"obsolete\">x</translation></message>"
             "<message><source>c</source><translation>x</translation></message>"));
    QCOMPARE(read.error, QString());
    QCOMPARE(read.entries.size(), 1);
    QCOMPARE(read.entries.first().source, QStringLiteral("c"));
}

void tst_TranslationChecks::everyPluralFormIsAnEntry()
{
    const auto read = TranslationChecks::read(
        file("<message numerus=\"yes\"><source>%n a</source><translation><numerusform>%n b</numerusform>"
             "<numerusform></numerusform></translation></message>"));
    QCOMPARE(read.entries.size(), 2);
    QVERIFY(!TranslationChecks::isIncomplete(read.entries[0]));
    QCOMPARE(read.entries[0].translation, QStringLiteral("%n b"));
    QVERIFY(TranslationChecks::isIncomplete(read.entries[1]));
}

void tst_TranslationChecks::aFileThatIsNotWellFormedIsAnError()
{
    QVERIFY(!TranslationChecks::read("<TS><context>").error.isEmpty());
    QVERIFY(!TranslationChecks::read("").error.isEmpty());
}

void tst_TranslationChecks::placeholdersMustAgree_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<bool>("fails");
    const QString source = QStringLiteral("Pag %1 di %2 (%3%)");
    QTest::newRow("the same") << source << QStringLiteral("Page %1 of %2 (%3%)") << false;
    QTest::newRow("in another order") << source << QStringLiteral("%2: page %1 (%3 %)") << false;
    QTest::newRow("one lost") << source << QStringLiteral("Page %1 of %2") << true;
    QTest::newRow("one twice") << source << QStringLiteral("Page %1 of %1 %2 (%3%)") << true;
    QTest::newRow("another number") << source << QStringLiteral("Page %1 of %2 (%4%)") << true;
    QTest::newRow("a letter kept") << QStringLiteral("pagina %i.") << QStringLiteral("page %i.") << false;
    QTest::newRow("a letter lost") << QStringLiteral("pagina %i.") << QStringLiteral("page.") << true;
    QTest::newRow("a letter made a number") << QStringLiteral("pagina %i.") << QStringLiteral("page %1.") << true;
    QTest::newRow("a count lost") << QStringLiteral("%n pagine") << QStringLiteral("pages") << true;
}

void tst_TranslationChecks::placeholdersMustAgree()
{
    QFETCH(QString, source);
    QFETCH(QString, translation);
    QFETCH(bool, fails);
    QCOMPARE(TranslationChecks::changesPlaceholders(entry(source, translation)), fails);
}

void tst_TranslationChecks::theLastCharacterMustKeepTheColour_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<bool>("fails");
    const QStringList ends = {QStringLiteral("!"), QStringLiteral("."), QStringLiteral("?"), QString()};
    for (const QString &sourceEnd : ends) {
        for (const QString &end : ends) {
            QTest::addRow("x%s to y%s", qPrintable(sourceEnd), qPrintable(end))
                << QStringLiteral("x") + sourceEnd << QStringLiteral("y") + end << (sourceEnd != end);
        }
    }
    QTest::newRow("other ends are all black") << QStringLiteral("x: ") << QStringLiteral("y)") << false;
    QTest::newRow("a blank after the sign") << QStringLiteral("x!") << QStringLiteral("y! ") << true;
    QTest::newRow("nothing") << QStringLiteral("x!") << QString() << true;
}

void tst_TranslationChecks::theLastCharacterMustKeepTheColour()
{
    QFETCH(QString, source);
    QFETCH(QString, translation);
    QFETCH(bool, fails);
    QCOMPARE(TranslationChecks::changesColour(entry(source, translation)), fails);
}

void tst_TranslationChecks::lineBreaksMustAgree_data()
{
    QTest::addColumn<QString>("translation");
    QTest::addColumn<bool>("fails");
    QTest::newRow("the same") << QStringLiteral("x\ny\n\nz") << false;
    QTest::newRow("one lost") << QStringLiteral("x\ny\nz") << true;
    QTest::newRow("one more") << QStringLiteral("x\ny\n\nz\n") << true;
    QTest::newRow("all lost") << QStringLiteral("x y z") << true;
}

void tst_TranslationChecks::lineBreaksMustAgree()
{
    QFETCH(QString, translation);
    QFETCH(bool, fails);
    QCOMPARE(TranslationChecks::changesLineBreaks(entry(QStringLiteral("a\nb\n\nc"), translation)), fails);
}

void tst_TranslationChecks::textsStayInLatin1_data()
{
    QTest::addColumn<QString>("translation");
    QTest::addColumn<bool>("fails");
    QTest::newRow("Latin-1") << QStringLiteral("Größe «\u00a0ÿ\u00a0»") << false;
    QTest::newRow("a euro sign") << QStringLiteral("10 €") << true;
    QTest::newRow("a typographic apostrophe") << QStringLiteral("l’un") << true;
    QTest::newRow("an ellipsis") << QStringLiteral("warten…") << true;
}

void tst_TranslationChecks::textsStayInLatin1()
{
    QFETCH(QString, translation);
    QFETCH(bool, fails);
    QCOMPARE(TranslationChecks::leavesLatin1(entry(QStringLiteral("x"), translation)), fails);
}

void tst_TranslationChecks::theWordingOfAFileIsChecked_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("problem"); // the start of the only one
    const QString counted = QStringLiteral("a number before what it counts: ");
    const char *pages = "%1 pagine";
    QTest::newRow("a counted word") << fileOf("en_GB", pages, "%1 pages") << counted;
    QTest::newRow("a counted word of German") << fileOf("de_DE", pages, "Satz: %1 Seiten") << counted;
    QTest::newRow("a counted word of French") << fileOf("fr_FR", pages, "%1&#xa0;pages") << counted;
    QTest::newRow("a counted word of Spanish") << fileOf("es_ES", pages, "%1 páginas") << counted;
    QTest::newRow("a number that counts no word") << fileOf("es_ES", pages, "páginas (%1)") << QString();
    QTest::newRow("Italian as the source has it") << fileOf("it_IT", pages, pages) << QString();
    QTest::newRow("a page of pages") << fileOf("de_DE", "%1 di %2", "Seite %1 von %2") << QString();

    const QString percent = QStringLiteral("spacing of a percent sign: ");
    const char *share = "%1 di %2 (%3%)";
    QTest::newRow("German, no space") << fileOf("de_DE", share, "%1 von %2 (%3%)") << percent;
    QTest::newRow("French, a breaking space") << fileOf("fr_FR", share, "%1 sur %2 (%3 %)") << percent;
    QTest::newRow("Spanish, no space") << fileOf("es_ES", share, "%1 de %2 (%3%)") << percent;
    QTest::newRow("Spanish, a no-break space") << fileOf("es_ES", share, "%1 de %2 (%3&#xa0;%)") << QString();
    QTest::newRow("English, a space") << fileOf("en_GB", share, "%1 of %2 (%3 %)") << percent;
    QTest::newRow("English, a no-break space") << fileOf("en_GB", share, "%1 of %2 (%3&#xa0;%)") << percent;
    QTest::newRow("English, no space") << fileOf("en_GB", share, "%1 of %2 (%3%)") << QString();

    const QString french = QStringLiteral("spacing of a French sign: ");
    QTest::newRow("French, no space") << fileOf("fr_FR", "Uscire?", "Quitter?") << french;
    QTest::newRow("French, a space that breaks") << fileOf("fr_FR", "Nome: x", "Nom : x") << french;
    QTest::newRow("French, a space that does not") << fileOf("fr_FR", "Nome: x", "Nom&#xa0;: x") << QString();
    QTest::newRow("French, filters") << fileOf("fr_FR", "(*.a);; (*.b)", "(*.a);; (*.b)") << QString();
    const QByteArray nouvelle("Nouvelle");
    QTest::newRow("French, quotes") << fileOf("fr_FR", "Nuova", "«&#xa0;" + nouvelle + "&#xa0;»") << QString();
    QTest::newRow("French, an open quote alone") << fileOf("fr_FR", "Nuova", "«" + nouvelle + "&#xa0;»") << french;
    QTest::newRow("French, a closed quote alone") << fileOf("fr_FR", "Nuova", "«&#xa0;" + nouvelle + " »") << french;
    QTest::newRow("German signs") << fileOf("de_DE", "Uscire?", "Beenden?") << QString();

    const QString spanish = QStringLiteral("a Spanish sign not opened: ");
    QTest::newRow("Spanish, a question not opened") << fileOf("es_ES", "Uscire?", "Salir?") << spanish;
    QTest::newRow("Spanish, a call not opened") << fileOf("es_ES", "Vuota!", "Vacía!") << spanish;
    QTest::newRow("Spanish, both opened") << fileOf("es_ES", "No! Uscire?", "¡No! ¿Salir?") << QString();

    const QString foreign = QStringLiteral("a word that players do not use: ");
    QTest::newRow("a German cell") << fileOf("de_DE", "Celle", "Leere Zellen") << foreign;
    QTest::newRow("a French block") << fileOf("fr_FR", "Blocchi", "Blocs") << foreign;
    QTest::newRow("a Spanish cell") << fileOf("es_ES", "Celle", "Las celdas") << foreign;
    QTest::newRow("an English block") << fileOf("en_GB", "Blocchi", "Compare blocks") << foreign;
    QTest::newRow("an Italian block") << fileOf("it_IT", "Blocco", "Blocco") << QString();
    QTest::newRow("a German cell of players") << fileOf("de_DE", "Celle", "Leere Felder") << QString();
}

void tst_TranslationChecks::theWordingOfAFileIsChecked()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, problem);
    const auto read = TranslationChecks::read(content);
    QCOMPARE(read.error, QString());
    const QStringList problems = TranslationChecks::problems(read.entries);
    QCOMPARE(problems.size(), problem.isEmpty() ? 0 : 1);
    QVERIFY2(problem.isEmpty() || problems.first().startsWith(problem), qPrintable(problems.join(QLatin1Char('\n'))));
}

void tst_TranslationChecks::everyProblemIsALine()
{
    const QString dialog = QStringLiteral("FormatSelection");
    const QVector<Entry> entries = {
        entry(QStringLiteral("good %1!"), QStringLiteral("gut %1!")),
        entry(QStringLiteral("uno\n"), QStringLiteral("eins")),
        entry(QStringLiteral("due %1"), QStringLiteral("zwei")),
        entry(QStringLiteral("tre"), QStringLiteral("drei!")),
        entry(QStringLiteral("Lingua di default"), QStringLiteral("€"), dialog),
        entry(QStringLiteral("quattro"), QString()),
    };
    QCOMPARE(TranslationChecks::problems(entries),
             QStringList({QStringLiteral("other line breaks: Window/uno\n/ -> eins"),
                          QStringLiteral("other placeholders: Window/due %1/ -> zwei"),
                          QStringLiteral("other colour of the status bar: Window/tre/ -> drei!"),
                          QStringLiteral("not Latin-1: FormatSelection/Lingua di default/ -> €"),
                          QStringLiteral("unfinished or empty: Window/quattro/ -> ")}));
}

void tst_TranslationChecks::textsWithoutAnEntryAreFound()
{
    const QVector<Entry> entries = {entry(QStringLiteral("a"), QStringLiteral("x"))};
    const QVector<Entry> code = {entry(QStringLiteral("a"), QString()), entry(QStringLiteral("b"), QString()),
                                 entry(QStringLiteral("a"), QString(), QStringLiteral("Other"))};
    QCOMPARE(TranslationChecks::missing(entries, code),
             QStringList({QStringLiteral("Window/b/"), QStringLiteral("Other/a/")}));
    QCOMPARE(TranslationChecks::missing(entries, {}), QStringList());
}

void tst_TranslationChecks::theTextsOfCodeAndFormsAreFound()
{
    const ScratchFolder folder;
    folder.write(QStringLiteral("code/a.cpp"),
                 "void Window::f() { show(tr(\"uno\"), tr(\"perch\xc3\xa9\\ndue\")); }\n");
    folder.write(QStringLiteral("code/form/a.ui"),
                 "<ui version=\"4.0\"><class>Form</class><widget class=\"QDialog\" name=\"Form\"><property "
                 "name=\"windowTitle\"><string>tre</string></property></widget></ui>");
    const auto code = TranslationChecks::readCode(folder.path(QStringLiteral("code")));
    QCOMPARE(code.error, QString());
    QStringList keys;
    for (const Entry &found : code.entries) {
        keys.append(found.key());
    }
    keys.sort();
    QCOMPARE(keys, QStringList({QStringLiteral("Form/tre/"), QStringLiteral("Window/perché\ndue/"),
                                QStringLiteral("Window/uno/")}));
    QVERIFY(!TranslationChecks::readCode(folder.path(QStringLiteral("missing"))).error.isEmpty());
}

QTEST_GUILESS_MAIN(tst_TranslationChecks)
#include "tst_TranslationChecks.moc"
