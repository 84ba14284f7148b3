// SPDX-License-Identifier: MIT
// Schemes are drawn: selection, ticks and types, the numbers counted meanwhile, the copy to other pages.
#include "EditorMemory.h"
#include "EditorUnderTest.h"
#include "support/FatalMessage.h"

#include <QPushButton>
#include <QSignalSpy>

class tst_EditPersonaleDrawing final : public QObject
{
    Q_OBJECT

private slots:
    void aRowStartAboveThePageIsTheLastRow();
    void aRowStartAboveTheEndRaisesTheEnd();
    void aRowEndAboveThePageIsTheLastRow();
    void aRowEndBelowTheStartLowersTheStart();
    void aColumnStartAboveThePageIsTheLastColumn();
    void aColumnStartAboveTheEndRaisesTheEnd();
    void aColumnEndAboveThePageIsTheLastColumn();
    void aColumnEndBelowTheStartLowersTheStart();

    void fillEmptyAndInvertWorkOnTheRectangle();
    void fillEmptyAndInvertWorkOnTheWholePage();
    void everyTickOfACommandIsReported();
    void theChosenTypeIsSetInScope_data();
    void theChosenTypeIsSetInScope();
    void withoutAChosenTypeCellsBecomeEmpty();

    void rightClicksCycleTheType();
    void theKeyTCyclesTheType();
    void theKeyTDoesNothingOnPagesOfAFile();
    void aDragTicksCells();
    void theWhatsThisNamesTheKey();
    void anUnknownTypeBecomesEmptyByRightClick();
    void anUnknownTypeStopsACopy();

    void tooManyNumbersForbidTheCreation();
    void textCellsAreNotCounted();
    void theCountIsKeptWhenThePageIsSwitched();
    void theCountIsShownWhileDrawing();
    void theCountShownIsKeptWhenThePageIsSwitched();
    void ticksOutsideThePageAreNotCounted();

    void theCopyRangeIsClamped();
    void theCopyRangeStaysInOrder();
    void anEndIsTypedDigitByDigit();
    void allPagesDisableTheCopyRange();
    void copyingTakesTickTypeAndFlag();
    void decliningTheCopyChangesNothing();
    void copyingAGoodSchemeToManyPagesLeavesTheCreationAllowed();
    void copyingToAPageOfAnotherSizeRebuildsIt();
    void aCopyThatDoesNotFitTheMemoryIsAskedAbout();
    void aCopyToPagesOfTheSameSizeTakesNoMemory();
    void aCopyThatFindsNoMemoryChangesNoPage();
    void ticksOfARebuiltPageAreCounted();
};

void tst_EditPersonaleDrawing::aRowStartAboveThePageIsTheLastRow()
{
    EditorUnderTest t(3, 9);
    t.spin("row_from_spinBox")->setValue(200);
    QCOMPARE(t.spin("row_from_spinBox")->value(), 3);
    QCOMPARE(t.spin("row_to_spinBox")->value(), 3);
}

void tst_EditPersonaleDrawing::aRowStartAboveTheEndRaisesTheEnd()
{
    EditorUnderTest t(5, 9);
    t.spin("row_to_spinBox")->setValue(2);
    t.spin("row_from_spinBox")->setValue(3);
    QCOMPARE(t.spin("row_from_spinBox")->value(), 3);
    QCOMPARE(t.spin("row_to_spinBox")->value(), 3);
}

void tst_EditPersonaleDrawing::aRowEndAboveThePageIsTheLastRow()
{
    EditorUnderTest t(3, 9);
    t.spin("row_to_spinBox")->setValue(4);
    QCOMPARE(t.spin("row_to_spinBox")->value(), 3);
    QCOMPARE(t.spin("row_from_spinBox")->value(), 1);
}

void tst_EditPersonaleDrawing::aRowEndBelowTheStartLowersTheStart()
{
    EditorUnderTest t(5, 9);
    t.spin("row_to_spinBox")->setValue(5);
    t.spin("row_from_spinBox")->setValue(4);
    t.spin("row_to_spinBox")->setValue(2);
    QCOMPARE(t.spin("row_from_spinBox")->value(), 2);
    QCOMPARE(t.spin("row_to_spinBox")->value(), 2);
}

void tst_EditPersonaleDrawing::aColumnStartAboveThePageIsTheLastColumn()
{
    EditorUnderTest t(3, 9);
    t.spin("col_from_spinBox")->setValue(200);
    QCOMPARE(t.spin("col_from_spinBox")->value(), 9);
    QCOMPARE(t.spin("col_to_spinBox")->value(), 9);
}

void tst_EditPersonaleDrawing::aColumnStartAboveTheEndRaisesTheEnd()
{
    EditorUnderTest t(3, 9);
    t.spin("col_to_spinBox")->setValue(2);
    t.spin("col_from_spinBox")->setValue(7);
    QCOMPARE(t.spin("col_to_spinBox")->value(), 7);
}

void tst_EditPersonaleDrawing::aColumnEndAboveThePageIsTheLastColumn()
{
    EditorUnderTest t(3, 9);
    t.spin("col_to_spinBox")->setValue(255);
    QCOMPARE(t.spin("col_to_spinBox")->value(), 9);
}

void tst_EditPersonaleDrawing::aColumnEndBelowTheStartLowersTheStart()
{
    EditorUnderTest t(3, 9);
    t.spin("col_from_spinBox")->setValue(6);
    t.spin("col_to_spinBox")->setValue(4);
    QCOMPARE(t.spin("col_from_spinBox")->value(), 4);
}

void tst_EditPersonaleDrawing::fillEmptyAndInvertWorkOnTheRectangle()
{
    EditorUnderTest t(4, 4);
    t.select(2, 3, 2, 4);
    t.click("riempiButton");
    QCOMPARE(t.drawn(), QStringLiteral("oooo oOOO oOOO oooo"));
    t.select(3, 4, 1, 2);
    t.click("invertiButton");
    QCOMPARE(t.drawn(), QStringLiteral("oooo oOOO OoOO OOoo"));
    t.select(1, 4, 3, 3);
    t.click("svuotaButton");
    QCOMPARE(t.drawn(), QStringLiteral("oooo oOoO OooO OOoo"));
}

void tst_EditPersonaleDrawing::fillEmptyAndInvertWorkOnTheWholePage()
{
    EditorUnderTest t(2, 3);
    t.select(1, 1, 1, 1);
    t.selectAll(true);
    for (const char *name : {"row_from_spinBox", "row_to_spinBox", "col_from_spinBox", "col_to_spinBox"}) {
        QVERIFY(!t.spin(name)->isEnabled());
    }
    t.click("riempiButton");
    QCOMPARE(t.drawn(), QStringLiteral("OOO OOO"));
    t.box(1, 1)->setChecked(false);
    t.click("invertiButton");
    QCOMPARE(t.drawn(), QStringLiteral("ooo oOo"));
    t.click("svuotaButton");
    QCOMPARE(t.drawn(), QStringLiteral("ooo ooo"));
    t.showPage(2);
    QCOMPARE(t.drawn(), QStringLiteral("ooo ooo"));
}

// Exactly as a click does.
void tst_EditPersonaleDrawing::everyTickOfACommandIsReported()
{
    EditorUnderTest t(1, 2, 2);
    t.showPage(2);
    QSignalSpy ticksOfTheOtherPage(t.box(0, 1), &PersonaleChkBox::schecked);
    t.showPage(1);
    QSignalSpy ticks(t.box(0, 1), &PersonaleChkBox::schecked);
    t.selectAll(true);
    t.click("riempiButton");
    t.click("riempiButton"); // no change
    t.click("invertiButton");
    t.click("invertiButton");
    t.copyTo(2, 2);
    t.click("svuotaButton");
    const QList<bool> reported{true, false, true, false};
    QCOMPARE(ticks.size(), reported.size());
    for (int i = 0; i < reported.size(); ++i) {
        QCOMPARE(ticks[i][1].value<U8>(), U8(1));
        QCOMPARE(ticks[i][2].toBool(), reported[i]);
    }
    QCOMPARE(ticksOfTheOtherPage.size(), 1);
    QCOMPARE(ticksOfTheOtherPage[0][2].toBool(), true);
}

void tst_EditPersonaleDrawing::theChosenTypeIsSetInScope_data()
{
    QTest::addColumn<QString>("radio");
    QTest::addColumn<QString>("drawn");
    QTest::addColumn<QString>("tip");
    QTest::newRow("number") << QStringLiteral("num_radioButton") << QStringLiteral("oo Nn") << QStringLiteral("Numero");
    QTest::newRow("text") << QStringLiteral("txt_radioButton") << QStringLiteral("oo Ss") << QStringLiteral("Testo");
    QTest::newRow("image") << QStringLiteral("img_radioButton") << QStringLiteral("oo Ii")
                           << QStringLiteral("Immagine");
}

void tst_EditPersonaleDrawing::theChosenTypeIsSetInScope()
{
    QFETCH(QString, radio);
    QFETCH(QString, drawn);
    QFETCH(QString, tip);
    EditorUnderTest t(2, 2);
    t.box(1, 0)->setChecked(true);
    t.select(2, 2, 1, 2);
    t.editor->findChild<QAbstractButton *>(radio)->click();
    t.click("setNumTxtImgButton");
    QCOMPARE(t.drawn(), drawn);
    QCOMPARE(t.box(1, 1)->statusTip(), tip);
    QCOMPARE(t.box(0, 0)->statusTip(), QStringLiteral("Vuota"));
}

void tst_EditPersonaleDrawing::withoutAChosenTypeCellsBecomeEmpty()
{
    EditorUnderTest t(1, 2);
    t.tick(0, 0, CELL_NUMERO);
    auto *radio = t.button("num_radioButton");
    radio->setAutoExclusive(false);
    radio->setChecked(false);
    t.selectAll(true);
    t.click("setNumTxtImgButton");
    QCOMPARE(t.drawn(), QStringLiteral("Oo"));
}

void tst_EditPersonaleDrawing::rightClicksCycleTheType()
{
    EditorUnderTest t(1, 2);
    t.tick(0, 1, CELL_NUMERO);
    const QStringList drawn{QStringLiteral("oS"), QStringLiteral("oI"), QStringLiteral("oO"), QStringLiteral("oN")};
    const QStringList names{QStringLiteral("testo"), QStringLiteral("immagine"), QStringLiteral("vuota"),
                            QStringLiteral("numero")};
    for (int i = 0; i < 4; ++i) {
        QTest::mouseClick(t.box(0, 1), Qt::RightButton);
        QCOMPARE(t.drawn(), drawn[i]);
        QCOMPARE(t.status(), QStringLiteral("Tipo cambiato in: ") + names[i]);
        QCOMPARE(t.box(0, 1)->statusTip().toLower(), names[i]);
    }
}

void tst_EditPersonaleDrawing::theKeyTCyclesTheType()
{
    EditorUnderTest t(1, 2);
    t.box(0, 1)->setChecked(true);
    t.box(0, 1)->setFocus();
    const QStringList drawn{QStringLiteral("oN"), QStringLiteral("oS"), QStringLiteral("oI"), QStringLiteral("oO")};
    const QStringList names{QStringLiteral("numero"), QStringLiteral("testo"), QStringLiteral("immagine"),
                            QStringLiteral("vuota")};
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(t.box(0, 1), Qt::Key_T);
        QCOMPARE(t.drawn(), drawn[i]);
        QCOMPARE(t.status(), QStringLiteral("Tipo cambiato in: %1").arg(names[i]));
    }
}

void tst_EditPersonaleDrawing::theKeyTDoesNothingOnPagesOfAFile()
{
    EditorUnderTest t;
    t.open("!Nn\n");
    const QString drawn = t.drawn();
    const QString status = t.status();
    QVERIFY(!drawn.isEmpty());
    QTest::keyClick(t.box(0, 0), Qt::Key_T);
    QTest::mouseClick(t.box(0, 0), Qt::RightButton);
    QCOMPARE(t.drawn(), drawn);
    QCOMPARE(t.status(), status);
}

void tst_EditPersonaleDrawing::aDragTicksCells()
{
    EditorUnderTest t(3, 9);
    QVERIFY(QTest::qWaitForWindowExposed(t.editor));
    const auto centre = [&t](int row, int column) {
        return t.box(row, column)->mapTo(t.editor, t.box(row, column)->rect().center());
    };
    QWindow *window = t.editor->windowHandle();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, centre(1, 2));
    QTest::mouseMove(window, centre(1, 5));
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, centre(1, 5));
    QCOMPARE(t.drawn(), QStringLiteral("ooooooooo ooOOOOooo ooooooooo"));
}

void tst_EditPersonaleDrawing::theWhatsThisNamesTheKey()
{
    EditorUnderTest t(1, 1);
    QVERIFY(t.box(0, 0)->parentWidget()->whatsThis().contains(QStringLiteral("il tasto T passa al tipo successivo")));
    QCOMPARE(t.box(0, 0)->toolTip(), QStringLiteral("1,1"));
    QCOMPARE(t.box(0, 0)->statusTip(), QStringLiteral("Vuota"));
}

void tst_EditPersonaleDrawing::anUnknownTypeBecomesEmptyByRightClick()
{
    EditorUnderTest t(1, 2);
    t.box(0, 0)->tipo = static_cast<CELL_VALUE>(7);
    QTest::mouseClick(t.box(0, 0), Qt::RightButton);
    QCOMPARE(t.box(0, 0)->tipo, CELL_VUOTA);
}

void tst_EditPersonaleDrawing::anUnknownTypeStopsACopy()
{
    EditorUnderTest t(1, 1, 2);
    t.box(0, 0)->tipo = static_cast<CELL_VALUE>(7);
    const QString text = fatalMessageOf([&t]() { t.copyTo(2, 2); });
    QCOMPARE(text, QStringLiteral("CELL_TYPE UNKNOWN"));
}

void tst_EditPersonaleDrawing::tooManyNumbersForbidTheCreation()
{
    EditorUnderTest t(10, 10, 1, 1, 90);
    t.select(1, 9, 1, 10);
    t.click("setNumTxtImgButton");
    t.click("riempiButton");
    QVERIFY(t.canCreate());
    QCOMPARE(t.verdict(), QStringLiteral("Impostazioni corrette"));
    t.tick(9, 0, CELL_NUMERO);
    QVERIFY(!t.canCreate());
    QCOMPARE(t.verdict(), QStringLiteral("I numeri da generare (91) sono maggiori di quelli disponibili (90)."));
    QCOMPARE(t.picture(), QStringLiteral("warning"));
    t.tick(9, 1, CELL_NUMERO);
    QCOMPARE(t.verdict(), QStringLiteral("I numeri da generare (92) sono maggiori di quelli disponibili (90)."));
    t.box(9, 0)->setChecked(false);
    QVERIFY(!t.canCreate());
    QTest::mouseClick(t.box(9, 1), Qt::RightButton); // a text now
    QVERIFY(t.canCreate());
    QCOMPARE(t.verdict(), QStringLiteral("Impostazioni corrette"));
    QCOMPARE(t.picture(), QStringLiteral("ok"));
}

void tst_EditPersonaleDrawing::textCellsAreNotCounted()
{
    EditorUnderTest t(1, 4, 1, 1, 2);
    t.selectAll(true);
    t.click("riempiButton");
    QVERIFY(t.canCreate()); // empty cells
    t.button("txt_radioButton")->click();
    t.click("setNumTxtImgButton");
    QVERIFY(t.canCreate());
    t.button("num_radioButton")->click();
    t.click("setNumTxtImgButton");
    QVERIFY(!t.canCreate());
    t.click("svuotaButton");
    QVERIFY(t.canCreate());
}

// The count belongs to no page for sure: it goes on from the page before until types are set again.
void tst_EditPersonaleDrawing::theCountIsKeptWhenThePageIsSwitched()
{
    EditorUnderTest t(1, 3, 2, 1, 2);
    for (int column = 0; column < 3; ++column) {
        t.tick(0, column, CELL_NUMERO);
    }
    QVERIFY(!t.canCreate());
    t.showPage(2);
    QVERIFY(!t.canCreate());
    QCOMPARE(t.verdict(), QStringLiteral("I numeri da generare (3) sono maggiori di quelli disponibili (2)."));
    t.tick(0, 0, CELL_NUMERO);
    QCOMPARE(t.verdict(), QStringLiteral("I numeri da generare (4) sono maggiori di quelli disponibili (2)."));
    t.select(1, 1, 2, 2);
    t.click("setNumTxtImgButton"); // counts anew
    QVERIFY(t.canCreate());
    t.showPage(1);
    QVERIFY(t.canCreate());
}

void tst_EditPersonaleDrawing::theCountIsShownWhileDrawing()
{
    EditorUnderTest t(1, 3, 1, 11, 12);
    const auto *count = t.find<QLabel>("numeri_text");
    QVERIFY(count->isVisible());
    QCOMPARE(count->text(), QStringLiteral("Numeri: 0 di 2"));
    t.tick(0, 0, CELL_NUMERO);
    QCOMPARE(count->text(), QStringLiteral("Numeri: 1 di 2"));
    t.tick(0, 1, CELL_TESTO);
    QCOMPARE(count->text(), QStringLiteral("Numeri: 1 di 2"));
    t.selectAll(true);
    t.click("setNumTxtImgButton");
    t.click("riempiButton");
    QCOMPARE(count->text(), QStringLiteral("Numeri: 3 di 2"));
    t.click("svuotaButton");
    QCOMPARE(count->text(), QStringLiteral("Numeri: 0 di 2"));
    t.open("!Nn\n#NNNooo\n");
    QCOMPARE(count->text(), QStringLiteral("Numeri: %1 di 2").arg(t.drawn().count(QLatin1Char('N'))));
}

void tst_EditPersonaleDrawing::theCountShownIsKeptWhenThePageIsSwitched()
{
    EditorUnderTest t(1, 3, 2, 1, 90);
    t.tick(0, 0, CELL_NUMERO);
    t.showPage(2);
    const auto *count = t.find<QLabel>("numeri_text");
    QCOMPARE(count->text(), QStringLiteral("Numeri: 1 di 90"));
    t.tick(0, 0, CELL_NUMERO);
    QCOMPARE(count->text(), QStringLiteral("Numeri: 2 di 90"));
    QTest::mouseClick(t.box(0, 1), Qt::RightButton); // counts anew
    QCOMPARE(count->text(), QStringLiteral("Numeri: 1 di 90"));
}

void tst_EditPersonaleDrawing::ticksOutsideThePageAreNotCounted()
{
    EditorUnderTest t(2, 1, 1, 1, 1);
    t.tick(0, 0, CELL_NUMERO);
    t.box(1, 0)->setTipo(CELL_NUMERO);
    t.editor->on_checkboxChecked(0, 1, true);
    t.editor->on_checkboxChecked(2, 0, true);
    t.editor->on_checkboxChecked(255, 255, true);
    QVERIFY(t.canCreate());
    t.editor->on_checkboxRClicked(0, 1);
    QCOMPARE(t.drawn(), QStringLiteral("N n"));
    t.editor->on_checkboxChecked(1, 0, true);
    QVERIFY(!t.canCreate());
}

void tst_EditPersonaleDrawing::theCopyRangeIsClamped()
{
    EditorUnderTest t(1, 1, 5);
    t.spin("impostaAspinBox")->setValue(65535);
    QCOMPARE(t.spin("impostaAspinBox")->value(), 5);
    t.spin("impostaDAspinBox")->setValue(65535);
    QCOMPARE(t.spin("impostaDAspinBox")->value(), 5);
}

void tst_EditPersonaleDrawing::theCopyRangeStaysInOrder()
{
    EditorUnderTest t(1, 1, 5);
    t.spin("impostaAspinBox")->setValue(3);
    t.spin("impostaDAspinBox")->setValue(4);
    QCOMPARE(t.spin("impostaDAspinBox")->value(), 3);
    t.spin("impostaAspinBox")->setValue(2);
    QCOMPARE(t.spin("impostaAspinBox")->value(), 3);
}

void tst_EditPersonaleDrawing::anEndIsTypedDigitByDigit()
{
    EditorUnderTest t(20, 20, 20);
    const auto type = [&](const char *box, const QString &digits) {
        t.spin(box)->selectAll();
        QTest::keyClicks(t.spin(box), digits);
        QTest::keyClick(t.spin(box), Qt::Key_Return);
    };
    // The first digit alone is below the start of the range.
    t.select(5, 20, 6, 20);
    type("row_to_spinBox", QStringLiteral("12"));
    QCOMPARE(t.spin("row_from_spinBox")->value(), 5);
    QCOMPARE(t.spin("row_to_spinBox")->value(), 12);
    type("col_to_spinBox", QStringLiteral("13"));
    QCOMPARE(t.spin("col_from_spinBox")->value(), 6);
    QCOMPARE(t.spin("col_to_spinBox")->value(), 13);
    t.spin("impostaAspinBox")->setValue(20);
    t.spin("impostaDAspinBox")->setValue(7);
    type("impostaAspinBox", QStringLiteral("14"));
    QCOMPARE(t.spin("impostaDAspinBox")->value(), 7);
    QCOMPARE(t.spin("impostaAspinBox")->value(), 14);
}

void tst_EditPersonaleDrawing::allPagesDisableTheCopyRange()
{
    EditorUnderTest t(1, 1, 5);
    t.spin("impostaAspinBox")->setValue(3);
    t.spin("impostaDAspinBox")->setValue(2);
    t.button("impostasuttute_checkBox")->click();
    QCOMPARE(t.spin("impostaDAspinBox")->value(), 1);
    QCOMPARE(t.spin("impostaAspinBox")->value(), 5);
    QVERIFY(!t.spin("impostaDAspinBox")->isEnabled());
    QVERIFY(!t.spin("impostaAspinBox")->isEnabled());
    t.button("impostasuttute_checkBox")->click();
    QVERIFY(t.spin("impostaDAspinBox")->isEnabled());
    QVERIFY(t.spin("impostaAspinBox")->isEnabled());
    QCOMPARE(t.spin("impostaAspinBox")->value(), 5);
}

void tst_EditPersonaleDrawing::copyingTakesTickTypeAndFlag()
{
    EditorUnderTest t(1, 3, 4);
    t.showPage(2);
    t.tick(0, 2, CELL_IMMAGINE);
    t.showPage(4);
    t.tick(0, 0, CELL_TESTO);
    t.showPage(1);
    t.tick(0, 0, CELL_NUMERO);
    t.box(0, 1)->setTipo(CELL_TESTO);
    t.click("checkBox_ordinaNumxColonne");
    t.copyTo(1, 3);
    QCOMPARE(t.status(), QStringLiteral("Copia schema effettuata!"));
    for (int number = 1; number <= 3; ++number) {
        t.showPage(number);
        QCOMPARE(t.drawn(), QStringLiteral("Nso"));
        QVERIFY(t.button("checkBox_ordinaNumxColonne")->isChecked());
        QCOMPARE(t.box(0, 1)->statusTip(), QStringLiteral("Testo"));
    }
    t.showPage(4);
    QCOMPARE(t.drawn(), QStringLiteral("Soo"));
    QVERIFY(!t.button("checkBox_ordinaNumxColonne")->isChecked());
}

void tst_EditPersonaleDrawing::decliningTheCopyChangesNothing()
{
    EditorUnderTest t(1, 2, 2);
    t.tick(0, 0, CELL_NUMERO);
    t.button("impostasuttute_checkBox")->click();
    t.boxes.expectBox(QStringLiteral("Quintra"),
                      QStringLiteral("Le pagine selezionate verranno sovrascritte con lo schema corrente. Proseguire?"),
                      QMessageBox::No, [](QMessageBox *box) {
                          QCOMPARE(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
                          QVERIFY(box->defaultButton() == box->button(QMessageBox::No));
                      });
    t.click("impostaschemacorrenteButton");
    QCOMPARE(t.status(), QString());
    t.showPage(2);
    QCOMPARE(t.drawn(), QStringLiteral("oo"));
}

void tst_EditPersonaleDrawing::copyingAGoodSchemeToManyPagesLeavesTheCreationAllowed()
{
    EditorUnderTest t(1, 3, 11, 1, 3);
    t.selectAll(true);
    t.click("setNumTxtImgButton");
    t.click("riempiButton");
    QVERIFY(t.canCreate());
    t.copyTo(1, 11);
    QVERIFY(t.canCreate());
    t.box(0, 0)->setChecked(false);
    t.copyTo(1, 11);
    t.tick(0, 0, CELL_NUMERO);
    QVERIFY(t.canCreate()); // 3 numbers, not more
}

void tst_EditPersonaleDrawing::copyingToAPageOfAnotherSizeRebuildsIt()
{
    EditorUnderTest t(1, 1, 1, 1, 6);
    t.open("\"NsIo\n!SSSSS\n\"nnnn\n");
    t.copyTo(1, 3);
    for (int number = 2; number <= 3; ++number) {
        t.showPage(number);
        QCOMPARE(t.grid()->count(), 4);
        QCOMPARE(t.drawn(), QStringLiteral("Ns Io"));
        QCOMPARE(t.box(1, 0)->toolTip(), QStringLiteral("2,1"));
        QCOMPARE(int(t.box(1, 0)->riga), 1);
        QCOMPARE(int(t.box(1, 0)->colonna), 0);
    }
    t.showPage(2);
    QTest::mouseClick(t.box(0, 1), Qt::RightButton); // its boxes were made by the editor
    QCOMPARE(t.drawn(), QStringLiteral("Ni Io"));
    t.showPage(3);
    QTest::mouseClick(t.box(0, 1), Qt::RightButton); // those of the same size are still the loaded ones
    QCOMPARE(t.drawn(), QStringLiteral("Ns Io"));

    t.showPage(2);
    t.selectAll(true);
    t.click("setNumTxtImgButton");
    t.click("riempiButton");
    QVERIFY(t.canCreate());
    t.open("!N\n!NNNNNNN\n");
    t.showPage(2);
    t.copyTo(1, 1);
    QVERIFY(!t.canCreate()); // counted anew: seven
    QTest::mouseClick(t.box(0, 0), Qt::LeftButton);
    QVERIFY(t.canCreate());
    t.showPage(1);
    QCOMPARE(t.drawn(), QStringLiteral("NNNNNNN"));
}

void tst_EditPersonaleDrawing::aCopyThatDoesNotFitTheMemoryIsAskedAbout()
{
    EditorUnderTest t(1, 2, 2);
    t.open("/" + QByteArray(255, 'N') + '\n' + QByteArray("!S\n").repeated(99) + '/' + QByteArray(255, 'S') + '\n');
    t.spin("impostaAspinBox")->setValue(101);
    t.expectCopyQuestion(QMessageBox::Yes);
    t.boxes.expectBox(editorTitle, QMessageBox::No, isMemoryQuestion);
    {
        const MemoryLimit limit(room);
        t.click("impostaschemacorrenteButton");
    }
    QCOMPARE(t.boxes.problems(), QStringList());
    QCOMPARE(t.status(), QStringLiteral("Copia schema annullata!"));
    QCOMPARE(t.editor->cursor().shape(), Qt::ArrowCursor);
    for (const int page : {2, 50, 100}) {
        t.showPage(page);
        QCOMPARE(t.drawn(), QStringLiteral("S"));
    }
    t.showPage(101); // nor one of the same size
    QCOMPARE(t.box(0, 0)->tipo, CELL_TESTO);
}

// Their boxes would not fit once more.
void tst_EditPersonaleDrawing::aCopyToPagesOfTheSameSizeTakesNoMemory()
{
    EditorUnderTest t(1, 2, 2);
    t.open("/" + QByteArray(255, 'N') + '\n' + ('/' + QByteArray(255, 'S') + '\n').repeated(50) + "!S\n");
    {
        const MemoryLimit limit(16 << 20);
        t.copyTo(1, 52);
    }
    QCOMPARE(t.boxes.problems(), QStringList());
    QCOMPARE(t.status(), QStringLiteral("Copia schema effettuata!"));
    for (const int page : {2, 51, 52}) {
        t.showPage(page);
        QCOMPARE(t.drawn().count(QLatin1Char('N')), 255);
    }
}

void tst_EditPersonaleDrawing::aCopyThatFindsNoMemoryChangesNoPage()
{
    if (!MemoryLimit::isSurvived()) {
        QSKIP("no allocation may fail");
    }
    EditorUnderTest t(1, 2, 2);
    t.open("/" + QByteArray(255, 'N') + '\n' + QByteArray("!S\n").repeated(300));
    {
        const MemoryLimit limit(room);
        t.spin("impostaAspinBox")->setValue(301);
        t.expectCopyQuestion(QMessageBox::Yes);
        t.boxes.expectBox(editorTitle, QMessageBox::Yes, isMemoryQuestion);
        t.boxes.expectBox(editorTitle, noMemory, QMessageBox::Ok, QMessageBox::Warning);
        t.click("impostaschemacorrenteButton");
    }
    QCOMPARE(t.boxes.problems(), QStringList());
    QCOMPARE(t.status(), QStringLiteral("Copia schema annullata!"));
    QCOMPARE(t.editor->cursor().shape(), Qt::ArrowCursor);
    for (const int page : {2, 150, 301}) {
        t.showPage(page);
        QCOMPARE(t.drawn(), QStringLiteral("S"));
    }
}

void tst_EditPersonaleDrawing::ticksOfARebuiltPageAreCounted()
{
    EditorUnderTest t(1, 1, 1, 1, 1);
    t.open("!Nn\n!SSS\n");
    t.copyTo(2, 2);
    t.showPage(2);
    QVERIFY(t.canCreate());
    QTest::mouseClick(t.box(0, 1), Qt::LeftButton);
    QCOMPARE(t.drawn(), QStringLiteral("NN"));
    QCOMPARE(t.verdict(), QStringLiteral("I numeri da generare (2) sono maggiori di quelli disponibili (1)."));
    QVERIFY(!t.canCreate());
}

QTEST_MAIN(tst_EditPersonaleDrawing)
#include "tst_EditPersonaleDrawing.moc"
