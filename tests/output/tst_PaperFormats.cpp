// SPDX-License-Identifier: MIT
#include "generation/GUtils.h"

#include <QPageSize>
#include <QPagedPaintDevice>
#include <QtTest>

class tst_PaperFormats final : public QObject
{
    Q_OBJECT

private slots:
    void everyFormatHasItsFixedName_data();
    void everyFormatHasItsFixedName();
    void otherNumbersAreUnknown_data();
    void otherNumbersAreUnknown();
    void namesTellTheSizesOfTheToolkit_data();
    void namesTellTheSizesOfTheToolkit();
    void theOfferedFormatsAreThoseBeforeTabloid();
};

void tst_PaperFormats::everyFormatHasItsFixedName_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("name");
    const QStringList names = {
        QStringLiteral("A4 (210x297mm)"),        QStringLiteral("B5 (182x257mm)"),
        QStringLiteral("Letter (216x279mm)"),    QStringLiteral("Legal (216x356mm)"),
        QStringLiteral("Executive (191x254mm)"), QStringLiteral("A0 (1189x841mm)"),
        QStringLiteral("A1 (594x841mm)"),        QStringLiteral("A2 (420x594mm)"),
        QStringLiteral("A3 (297x420mm)"),        QStringLiteral("A5 (148x210mm)"),
        QStringLiteral("A6 (105x148mm)"),        QStringLiteral("A7 (74x105mm)"),
        QStringLiteral("A8 (52x74mm)"),          QStringLiteral("A9 (37x52mm)"),
        QStringLiteral("B0 (1030x1456mm)"),      QStringLiteral("B1 (728x1030mm)"),
        QStringLiteral("B10 (32x45mm)"),         QStringLiteral("B2 (515x728mm)"),
        QStringLiteral("B3 (364x515mm)"),        QStringLiteral("B4 (257x364mm)"),
        QStringLiteral("B6 (128x182mm)"),        QStringLiteral("B7 (91x128mm)"),
        QStringLiteral("B8 (64x91mm)"),          QStringLiteral("B9 (45x64mm)"),
        QStringLiteral("C5E (163x229mm)"),       QStringLiteral("Comm10E (105x241mm)"),
        QStringLiteral("DLE (110x220mm)"),       QStringLiteral("Folio (210x330mm)"),
        QStringLiteral("Ledger (432x279mm)"),    QStringLiteral("Tabloid (279x432mm)"),
        QStringLiteral("User defined size."),
    };
    for (int format = 0; format < names.size(); ++format) {
        QTest::addRow("%d", format) << format << names.at(format);
    }
}

void tst_PaperFormats::everyFormatHasItsFixedName()
{
    QFETCH(int, format);
    QFETCH(QString, name);
    QCOMPARE(GUtils::paperFormatName(format), name);
}

void tst_PaperFormats::otherNumbersAreUnknown_data()
{
    QTest::addColumn<int>("format");
    QTest::newRow("below") << -1;
    QTest::newRow("above") << 31;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
    QTest::newRow("largest") << std::numeric_limits<int>::max();
}

void tst_PaperFormats::otherNumbersAreUnknown()
{
    QFETCH(int, format);
    QCOMPARE(GUtils::paperFormatName(format), QStringLiteral("Unknown!"));
}

void tst_PaperFormats::namesTellTheSizesOfTheToolkit_data()
{
    QTest::addColumn<int>("format");
    for (int format = 0; format < QPagedPaintDevice::Custom; ++format) {
        const QString name = GUtils::paperFormatName(format);
        // The names of the B formats tell the Japanese sizes, those of A0 and Ledger are swapped.
        if (format != QPagedPaintDevice::A0 && format != QPagedPaintDevice::Ledger &&
            !name.startsWith(QLatin1Char('B'))) {
            QTest::addRow("%s", qPrintable(name)) << format;
        }
    }
}

// The order of the names is that of the toolkit's numbers.
void tst_PaperFormats::namesTellTheSizesOfTheToolkit()
{
    QFETCH(int, format);
    const QSizeF size = QPageSize(static_cast<QPageSize::PageSizeId>(format)).size(QPageSize::Millimeter);
    const QRegularExpression pattern(QStringLiteral("\\((\\d+)x(\\d+)mm\\)$"));
    const QRegularExpressionMatch match = pattern.match(GUtils::paperFormatName(format));
    QVERIFY(match.hasMatch());
    QVERIFY2(qAbs(match.captured(1).toDouble() - size.width()) <= 1.0, qPrintable(match.captured(0)));
    QVERIFY2(qAbs(match.captured(2).toDouble() - size.height()) <= 1.0, qPrintable(match.captured(0)));
}

void tst_PaperFormats::theOfferedFormatsAreThoseBeforeTabloid()
{
    QCOMPARE(GUtils::selectablePaperFormats, 29);
    QVERIFY(GUtils::paperFormatName(GUtils::selectablePaperFormats - 1).startsWith(QLatin1String("Ledger")));
}

QTEST_GUILESS_MAIN(tst_PaperFormats)
#include "tst_PaperFormats.moc"
