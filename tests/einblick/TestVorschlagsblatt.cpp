// The sheet of suggestions, used with mouse and keys.

#include "Vorschlagsblattprobe.h"

#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

Q_DECLARE_METATYPE(Speisenaenderung)

class TestVorschlagsblatt : public QObject, private Vorschlagsblattprobe
{
    Q_OBJECT

private Q_SLOTS:
    void init() { oeffne(); }
    void cleanup() { m_blatt.reset(); }

    void whatIsMissedComesFirst();
    void whatIsKnownInPartIsSaidSo();
    void suggestionsStandInTheirOrder();
    void anotherAimGivesOtherSuggestions();
    void tooMuchIsSwapped();
    void theEffectIsShownBeforeItIsTaken();
    void aSuggestionIsTakenWithTheButton();
    void aSuggestionIsTakenWithTheKeyboard();
    void aSuggestionIsTakenWithADoubleClick();
    void aKeyThatIsHeldDownActsOnce();
    void aSwapNamesTheRow();
    void aChosenRowIsSwapped();
    void allAimsNeedARow();
    void whereNothingIsLeftTheKeyboardIsAtTheAim_data();
    void whereNothingIsLeftTheKeyboardIsAtTheAim();
    void crossingOutAndTakingBack();
    void theContextMenuCrossesOut();
    void conditionsArePresetFromTheClient();
    void aGroupIsLeftOut();
    void choicesAreKeptByTheCaller();
};

void TestVorschlagsblatt::whatIsMissedComesFirst()
{
    // Sodium is as much too high as it may be, iron lacks 10 of 11.
    QCOMPARE(ziel().count(), 3);
    QCOMPARE(ziel().itemText(0), u"Natrium: 1000 mg zu viel"_s);
    QCOMPARE(ziel().itemText(1), u"Eisen: 10,0 mg zu wenig"_s);
    QCOMPARE(ziel().itemText(2), u"Alle Ziele zusammen"_s);
    QCOMPARE(ziel().currentIndex(), 0);
}

void TestVorschlagsblatt::whatIsKnownInPartIsSaidSo()
{
    Einblickstand stand = tag();
    Datenmodul eigenes = satz(proben[5]);
    eigenes.setfe(0);
    eigenes.setna(0); // both unknown
    stand.speisen << Speise{u"Mutters Eintopf"_s, eigenes, 100, 8};
    m_blatt->zeige(stand);
    QCOMPARE(ziel().itemText(0), u"Natrium: mindestens 1000 mg zu viel"_s);
    QCOMPARE(ziel().itemText(1), u"Eisen: bis zu 10,0 mg zu wenig"_s);
    stand.ziele = {{fe, 1, {}, {}}, {na, {}, 3000, {}}};
    m_blatt->zeige(stand);
    QCOMPARE(m_blatt->findChild<QLabel *>(u"leer"_s)->text(),
             u"Alles ist im Zielbereich, soweit es bekannt ist."_s);
    stand.speisen.removeLast();
    m_blatt->zeige(stand);
    QCOMPARE(m_blatt->findChild<QLabel *>(u"leer"_s)->text(), u"Alles ist im Zielbereich."_s);
}

void TestVorschlagsblatt::suggestionsStandInTheirOrder()
{
    m_blatt->waehleZiel(fe);
    // Of 10 mg that are missing: 4 mg (less 10 of 1000 mg of sodium), 3, 3 (less 100), and 2.4
    // (less 72, and unsuitable with gout). Half of a portion of bread would do more harm than good.
    QCOMPARE(namen(),
             (QStringList{u"Linsen, gekocht:1 Portion (100 g)"_s, u"Hirse, roh:1 Portion (60 g)"_s,
                          u"Mutters Eintopf:1 Teller (100 g)"_s,
                          u"Rindfleisch, gebraten:1 Stück (120 g)"_s}));
}

void TestVorschlagsblatt::anotherAimGivesOtherSuggestions()
{
    QCOMPARE(namen().size(), 1);
    QTest::keyClick(&ziel(), Qt::Key_Down);
    QCOMPARE(ziel().currentText(), u"Eisen: 10,0 mg zu wenig"_s);
    QCOMPARE(namen().size(), 4);
    QCOMPARE(zelle("vorschlaege", 0, Vorschlagsmodell::Bringt), u"+4,0 mg\nhilft zu 40\u00a0%"_s);
    QCOMPARE(zelle("vorschlaege", 0, Vorschlagsmodell::Wertungszeichen),
             u"0\u00a00\u00a00\u00a00"_s);
    QCOMPARE(zelle("vorschlaege", 1, Vorschlagsmodell::Wertungszeichen),
             u"0\u00a00\u00a0+\u00a00"_s);
}

void TestVorschlagsblatt::tooMuchIsSwapped()
{
    QCOMPARE(namen(), (QStringList{u"Bauernbrote:100 g statt Salzbrot"_s}));
    QCOMPARE(zelle("vorschlaege", 0, Vorschlagsmodell::Bringt), u"−1500 mg\nhilft zu 100\u00a0%"_s);
    QCOMPARE(teil<QPushButton>("nehmen").text(), u"Ersetze&n"_s);
}

void TestVorschlagsblatt::theEffectIsShownBeforeItIsTaken()
{
    m_blatt->waehleZiel(fe);
    QCOMPARE(wirkungen(), (QStringList{u"Eisen: 1,0 → 5,0 mg ✓ besser"_s,
                                       u"Natrium: 2000 → 2010 mg ✗ schlechter"_s}));
    QCOMPARE(teil<QLabel>("wirkungskopf").text(), u"Was „Linsen, gekocht“ ändert:"_s);
    liste().setFocus();
    QTest::keyClick(&liste(), Qt::Key_Down);
    QCOMPARE(wirkungen(),
             (QStringList{u"Eisen: 1,0 → 4,0 mg ✓ besser"_s, u"Natrium: 2000 → 2000 mg "_s}));
}

void TestVorschlagsblatt::aSuggestionIsTakenWithTheButton()
{
    m_blatt->waehleZiel(fe);
    const QSignalSpy gewuenscht(m_blatt.get(), &Einblickblatt::aenderungGewuenscht);
    QCOMPARE(teil<QPushButton>("nehmen").text(), u"Hi&nzufügen"_s);
    QTest::mouseClick(&teil<QPushButton>("nehmen"), Qt::LeftButton);
    QCOMPARE(gewuenscht.size(), 1);
    QCOMPARE(gewuenscht[0][0].value<Speisenaenderung>(),
             (Speisenaenderung{-1, u"Linsen, gekocht"_s, 100, u"1 Portion"_s}));
}

void TestVorschlagsblatt::aSuggestionIsTakenWithTheKeyboard()
{
    m_blatt->waehleZiel(fe);
    const QSignalSpy gewuenscht(m_blatt.get(), &Einblickblatt::aenderungGewuenscht);
    liste().setFocus();
    QTest::keyClick(&liste(), Qt::Key_Down);
    QTest::keyClick(&liste(), Qt::Key_Return);
    QCOMPARE(gewuenscht.size(), 1);
    QCOMPARE(gewuenscht[0][0].value<Speisenaenderung>().schluessel, u"Hirse, roh"_s);
}

void TestVorschlagsblatt::aSuggestionIsTakenWithADoubleClick()
{
    m_blatt->waehleZiel(fe);
    const QSignalSpy gewuenscht(m_blatt.get(), &Einblickblatt::aenderungGewuenscht);
    const QPoint ort = liste().visualRect(liste().model()->index(1, 0)).center();
    QTest::mouseClick(liste().viewport(), Qt::LeftButton, {}, ort);
    QTest::mouseDClick(liste().viewport(), Qt::LeftButton, {}, ort);
    QCOMPARE(gewuenscht.size(), 1);
    QCOMPARE(gewuenscht[0][0].value<Speisenaenderung>().schluessel, u"Hirse, roh"_s);
}

void TestVorschlagsblatt::aKeyThatIsHeldDownActsOnce()
{
    m_blatt->waehleZiel(fe);
    const QSignalSpy gewuenscht(m_blatt.get(), &Einblickblatt::aenderungGewuenscht);
    for (const Qt::Key taste : {Qt::Key_Return, Qt::Key_Delete}) {
        QTest::keyPress(&liste(), taste);
        QKeyEvent gehalten(QEvent::KeyPress, taste, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(&liste(), &gehalten);
        QTest::keyRelease(&liste(), taste);
    }
    QCOMPARE(gewuenscht.size(), 1);
    QCOMPARE(m_blatt->gestrichene(), QStringList{u"Linsen, gekocht"_s});
}

void TestVorschlagsblatt::aSwapNamesTheRow()
{
    const QSignalSpy gewuenscht(m_blatt.get(), &Einblickblatt::aenderungGewuenscht);
    QTest::mouseClick(&teil<QPushButton>("nehmen"), Qt::LeftButton);
    QCOMPARE(gewuenscht.size(), 1);
    QCOMPARE(gewuenscht[0][0].value<Speisenaenderung>(),
             (Speisenaenderung{7, u"Bauernbrote"_s, 100, QString()}));
}

void TestVorschlagsblatt::aChosenRowIsSwapped()
{
    m_blatt->waehleZiel(fe);
    QComboBox &zeile = teil<QComboBox>("zeile");
    QCOMPARE(zeile.count(), 2);
    QCOMPARE(zeile.itemText(0), u"keine bestimmte Zeile"_s);
    QTest::keyClick(&zeile, Qt::Key_Down);
    QCOMPARE(zeile.currentText(), u"Salzbrot, 100 g"_s);
    QCOMPARE(namen(), (QStringList{u"Bauernbrote:100 g statt Salzbrot"_s}));
    QCOMPARE(zelle("vorschlaege", 0, Vorschlagsmodell::Bringt), u"+1,0 mg\nhilft zu 10\u00a0%"_s);
    m_blatt->waehleZeile(-1);
    QCOMPARE(namen().size(), 4);
    m_blatt->waehleZeile(7);
    QCOMPARE(namen().size(), 1);
    m_blatt->waehleZeile(8); // there is no such row
    QCOMPARE(zeile.currentIndex(), 0);
}

void TestVorschlagsblatt::allAimsNeedARow()
{
    ziel().setCurrentIndex(2);
    QCOMPARE(namen(), QStringList());
    QVERIFY(teil<QLabel>("leer").isVisible());
    QCOMPARE(teil<QLabel>("leer").text(),
             u"Für alle Ziele zusammen wählen Sie beim Tausch eine Zeile."_s);
    QVERIFY(!liste().isVisible());
    m_blatt->waehleZeile(7);
    QCOMPARE(namen(), (QStringList{u"Bauernbrote:100 g statt Salzbrot"_s}));
    QVERIFY(liste().isColumnHidden(Vorschlagsmodell::Bringt)); // there is no aim that it gives of
    QVERIFY(!teil<QLabel>("leer").isVisible());
}

void TestVorschlagsblatt::whereNothingIsLeftTheKeyboardIsAtTheAim_data()
{
    QTest::addColumn<QString>("wo");
    QTest::newRow("from the list") << u"vorschlaege"_s;
    QTest::newRow("from the effect") << u"wirkung"_s;
    QTest::newRow("from the button that takes") << u"nehmen"_s;
    QTest::newRow("from the button that crosses out") << u"streichen"_s;
}

void TestVorschlagsblatt::whereNothingIsLeftTheKeyboardIsAtTheAim()
{
    QFETCH(QString, wo);
    QPushButton zurueck(m_blatt.get()); // as on the notice of what was taken
    zurueck.show();
    m_blatt->findChild<QWidget *>(wo)->setFocus();
    QVERIFY(m_blatt->findChild<QWidget *>(wo)->hasFocus());
    ziel().setCurrentIndex(2); // all aims need a row
    QVERIFY(ziel().hasFocus());
}

void TestVorschlagsblatt::crossingOutAndTakingBack()
{
    const QSignalSpy geaendert(m_blatt.get(), &Vorschlagsblatt::auswahlGeaendert);
    m_blatt->waehleZiel(fe);
    QVERIFY(!teil<QPushButton>("aufnehmen").isVisible());
    liste().setFocus();
    QTest::keyClick(&liste(), Qt::Key_Down);
    QTest::keyClick(&liste(), Qt::Key_Delete);
    QCOMPARE(namen().size(), 3);
    QVERIFY(!namen().contains(u"Hirse, roh:1 Portion (60 g)"_s));
    QCOMPARE(liste().currentIndex().row(), 1); // the next one is chosen
    QCOMPARE(m_blatt->gestrichene(), (QStringList{u"Hirse, roh"_s}));
    QCOMPARE(ziel().currentText(), u"Eisen: 10,0 mg zu wenig"_s);
    QTest::mouseClick(&teil<QPushButton>("streichen"), Qt::LeftButton);
    QCOMPARE(namen().size(), 2);
    // The last one is taken back first.
    QCOMPARE(teil<QComboBox>("gestrichene").currentText(), u"Mutters Eintopf"_s);
    QTest::mouseClick(&teil<QPushButton>("aufnehmen"), Qt::LeftButton);
    QCOMPARE(namen().size(), 3);
    teil<QPushButton>("aufnehmen").setFocus();
    QTest::keyClick(&teil<QPushButton>("aufnehmen"), Qt::Key_Space);
    QCOMPARE(namen().size(), 4);
    QVERIFY(teil<QToolButton>("klappe").hasFocus()); // the button is gone
    QCOMPARE(m_blatt->gestrichene(), QStringList());
    QVERIFY(!teil<QPushButton>("aufnehmen").isVisible());
    QCOMPARE(geaendert.size(), 4);
}

void TestVorschlagsblatt::theContextMenuCrossesOut()
{
    m_blatt->waehleZiel(fe);
    const QPoint ort = liste().visualRect(liste().model()->index(0, 0)).center();
    Q_EMIT liste().customContextMenuRequested(ort);
    auto *menue = m_blatt->findChild<QMenu *>();
    QVERIFY(menue != nullptr);
    QCOMPARE(menue->actions().size(), 2);
    QCOMPARE(menue->actions().at(1)->text(), u"Nicht &vorschlagen"_s);
    menue->actions().at(1)->trigger();
    QCOMPARE(m_blatt->gestrichene(), (QStringList{u"Linsen, gekocht"_s}));
    menue->close();
}

void TestVorschlagsblatt::conditionsArePresetFromTheClient()
{
    m_blatt->waehleZiel(fe);
    QComboBox &gicht = teil<QComboBox>("wunsch_gicht");
    QCOMPARE(gicht.currentText(), u"beliebig"_s);
    Einblickstand stand = tag();
    stand.leiden[stelle(Wertung::gicht)] = true;
    m_blatt->zeige(stand);
    QCOMPARE(gicht.currentText(), u"nicht ungeeignet"_s);
    QCOMPARE(teil<QComboBox>("wunsch_hkk").currentText(), u"beliebig"_s);
    QCOMPARE(teil<QLabel>("auswahlworte").text(), u"Nicht ungeeignet: Gicht."_s);
    QCOMPARE(namen().size(), 3); // no meat
    gicht.setCurrentText(u"nur geeignet"_s);
    QCOMPARE(namen(), (QStringList{u"Hirse, roh:1 Portion (60 g)"_s}));
    m_blatt->zeige(stand); // the same client: what the user chose stays
    QCOMPARE(gicht.currentText(), u"nur geeignet"_s);
    m_blatt->zeige(tag());
    QCOMPARE(gicht.currentText(), u"beliebig"_s);
}

void TestVorschlagsblatt::aGroupIsLeftOut()
{
    m_blatt->waehleZiel(fe);
    QCheckBox &fleisch = teil<QCheckBox>("ohne_fleisch");
    QVERIFY(!fleisch.isVisible());
    QTest::keyClick(&teil<QToolButton>("klappe"), Qt::Key_Space);
    QVERIFY(fleisch.isVisible());
    QVERIFY(!teil<QLabel>("vorbehalt").isVisible());
    QTest::keyClick(&fleisch, Qt::Key_Space);
    QVERIFY(fleisch.isChecked());
    QVERIFY(teil<QLabel>("vorbehalt").isVisible());
    QCOMPARE(namen(), (QStringList{u"Linsen, gekocht:1 Portion (100 g)"_s,
                                   u"Hirse, roh:1 Portion (60 g)"_s}));
    QCOMPARE(m_blatt->weggelassene(), Weglassgruppen(Weglassgruppe::Fleisch));
    QTest::keyClick(&teil<QToolButton>("klappe"), Qt::Key_Space);
    QVERIFY(!fleisch.isVisible());
    QCOMPARE(teil<QLabel>("auswahlworte").text(), u"Ohne: Fleisch und Wurst."_s);
    QVERIFY(teil<QLabel>("auswahlworte").isVisible());
}

void TestVorschlagsblatt::choicesAreKeptByTheCaller()
{
    const QSignalSpy geaendert(m_blatt.get(), &Vorschlagsblatt::auswahlGeaendert);
    m_blatt->waehleZiel(fe);
    m_blatt->setzeWeggelassene(Weglassgruppe::Fleisch | Weglassgruppe::Nuesse);
    m_blatt->setzeGestrichene({u"Hirse, roh"_s, u"Hirse, roh"_s, u"Längst fort"_s});
    QCOMPARE(m_blatt->weggelassene(), Weglassgruppe::Fleisch | Weglassgruppe::Nuesse);
    QCOMPARE(m_blatt->gestrichene(), (QStringList{u"Hirse, roh"_s, u"Längst fort"_s}));
    QCOMPARE(namen(), (QStringList{u"Linsen, gekocht:1 Portion (100 g)"_s}));
    QVERIFY(teil<QCheckBox>("ohne_nuesse").isChecked());
    QCOMPARE(geaendert.size(), 0); // the caller knows
}

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const Probesprache deutsch(QLocale::German);
    TestVorschlagsblatt test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestVorschlagsblatt.moc"
