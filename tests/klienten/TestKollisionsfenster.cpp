// What two desks have made of one record stands side by side, and what is chosen counts.

#include "Kollisionsfenster.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

class TestKollisionsfenster : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void onlyWhatDiffersIsShown();
    void whatOneDeskChangedIsProposedAsItHasIt();
    void ofWhatBothChangedOnesOwnIsProposed();
    void whatIsChosenCounts();
    void withoutTheGroundOnesOwnIsProposed();
    void aPlanIsShownRowByRow();
    void aRecordIsShownDayByDay();
    void absentAndEmptyAreTold();
    void escapeChoosesNothing();
    void droppingIsToldApartFromSaving();

private:
    QStringList texte(const Kollisionsfenster &fenster) const;

    Person m_alt;
    Person m_meine;
    Person m_andere;
};

void TestKollisionsfenster::init()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    m_alt = Person();
    m_alt.kennung = QStringLiteral("k");
    m_alt.fassung = 3;
    m_alt.name = QStringLiteral("Anna");
    m_alt.nummer = QStringLiteral("17");
    m_meine = m_alt;
    m_meine.name = QStringLiteral("Anna Meine");
    m_andere = m_alt;
    m_andere.fassung = 4;
    m_andere.name = QStringLiteral("Anna Andere");
    m_andere.geburt = QDate(1980, 12, 31);
}

QStringList TestKollisionsfenster::texte(const Kollisionsfenster &fenster) const
{
    QStringList alle;
    for (const QLabel *label : fenster.findChildren<QLabel *>()) {
        alle << label->text();
    }
    return alle;
}

void TestKollisionsfenster::onlyWhatDiffersIsShown()
{
    const Kollisionsfenster fenster({{m_alt.kennung, m_meine, Satz(m_alt)}, m_andere},
                                    QStringLiteral("Anna"), nullptr);
    const QStringList alle = texte(fenster);
    QVERIFY(alle.contains(QStringLiteral("Name")));
    QVERIFY(alle.contains(QStringLiteral("Anna Meine")));
    QVERIFY(alle.contains(QStringLiteral("Anna Andere")));
    QVERIFY(alle.contains(QStringLiteral("Geburtsdatum")));
    QVERIFY(alle.contains(QStringLiteral("31.12.1980")));
    QVERIFY(!alle.contains(QStringLiteral("Nummer")));
    QCOMPARE(fenster.findChildren<QRadioButton *>().size(), 4);
}

void TestKollisionsfenster::whatOneDeskChangedIsProposedAsItHasIt()
{
    const Kollisionsfenster fenster({{m_alt.kennung, m_meine, Satz(m_alt)}, m_andere},
                                    QStringLiteral("Anna"), nullptr);
    QCOMPARE(std::get<Person>(fenster.entschieden()).geburt, QDate(1980, 12, 31));
}

void TestKollisionsfenster::ofWhatBothChangedOnesOwnIsProposed()
{
    const Kollisionsfenster fenster({{m_alt.kennung, m_meine, Satz(m_alt)}, m_andere},
                                    QStringLiteral("Anna"), nullptr);
    QCOMPARE(std::get<Person>(fenster.entschieden()).name, QStringLiteral("Anna Meine"));
    QCOMPARE(std::get<Person>(fenster.entschieden()).fassung, 4);
}

void TestKollisionsfenster::whatIsChosenCounts()
{
    Kollisionsfenster fenster({{m_alt.kennung, m_meine, Satz(m_alt)}, m_andere},
                              QStringLiteral("Anna"), nullptr);
    fenster.show();
    QList<QRadioButton *> andere = fenster.findChildren<QRadioButton *>();
    andere.removeIf([](const QRadioButton *knopf) { return knopf->isChecked(); });
    for (QRadioButton *knopf : std::as_const(andere)) {
        QTest::mouseClick(knopf, Qt::LeftButton, {}, QPoint(8, knopf->height() / 2));
    }
    const Person entschieden = std::get<Person>(fenster.entschieden());
    QCOMPARE(entschieden.name, QStringLiteral("Anna Andere"));
    QVERIFY(entschieden.geburt.isNull());
}

void TestKollisionsfenster::withoutTheGroundOnesOwnIsProposed()
{
    const Kollisionsfenster fenster({{m_alt.kennung, m_meine, {}}, m_andere},
                                    QStringLiteral("Anna"), nullptr);
    const Person entschieden = std::get<Person>(fenster.entschieden());
    QCOMPARE(entschieden.name, QStringLiteral("Anna Meine"));
    QVERIFY(entschieden.geburt.isNull());
}

void TestKollisionsfenster::aPlanIsShownRowByRow()
{
    Planablage alt;
    alt.kennung = QStringLiteral("p");
    alt.titel = QStringLiteral("Woche 1");
    Planablage meiner = alt;
    meiner.posten = {{QStringLiteral("Apfel"), 100, {}}, {QStringLiteral("Brot"), 80, {}}};
    Planablage anderer = alt;
    anderer.posten = {{QStringLiteral("Birne"), 50, {}}};
    const Kollisionsfenster fenster({{QStringLiteral("k"), meiner, Satz(alt)}, anderer},
                                    QStringLiteral("Anna"), nullptr);
    QVERIFY(texte(fenster).contains(QStringLiteral("Apfel, 100 g\nBrot, 80 g")));
    QVERIFY(texte(fenster).contains(QStringLiteral("Birne, 50 g")));
    QCOMPARE(std::get<Planablage>(fenster.entschieden()).posten.size(), 2);
}

void TestKollisionsfenster::aRecordIsShownDayByDay()
{
    Aufzeichnung alt = neueAufzeichnung(Aufzeichnungsart::Protokoll, QDate(2026, 11, 23), 2);
    alt.kennung = QStringLiteral("t");
    alt.titel = QStringLiteral("Woche");
    Aufzeichnung meine = alt;
    meine.tage[0].mahlzeiten[0].zeilen = {
        {.schluessel = QStringLiteral("Apfel"), .angabe = QStringLiteral("2 Stück")},
        {.text = QStringLiteral("Auflauf"), .angabe = QStringLiteral("1 Teller")}};
    meine.tage[0].mahlzeiten[0].notiz = QStringLiteral("kalt");
    meine.tage[1].notiz = QStringLiteral("Geburtstag");
    Aufzeichnung andere = alt;
    andere.titel = QStringLiteral("Erste Woche");
    const Kollisionsfenster fenster({{QStringLiteral("k"), meine, Satz(alt)}, andere},
                                    QStringLiteral("Anna"), nullptr);
    QVERIFY(texte(fenster).contains(
        QStringLiteral("Mo. 23.11.26\nFrühstück: Apfel, 2 Stück; Auflauf, 1 Teller; kalt\n"
                       "Di. 24.11.26\nGeburtstag")));
    QVERIFY(texte(fenster).contains(QStringLiteral("Mo. 23.11.26\nDi. 24.11.26")));
    const Aufzeichnung entschieden = std::get<Aufzeichnung>(fenster.entschieden());
    QCOMPARE(entschieden.titel, QStringLiteral("Erste Woche")); // what only the other one changed
    QVERIFY(entschieden.tage == meine.tage);
}

void TestKollisionsfenster::absentAndEmptyAreTold()
{
    Besuch alt;
    alt.kennung = QStringLiteral("b");
    alt.datum = QDate(2026, 11, 23);
    alt.gewicht = 80;
    Besuch meiner = alt;
    meiner.gewicht.reset();
    Besuch anderer = alt;
    anderer.gewicht = 79;
    const Kollisionsfenster fenster({{QStringLiteral("k"), meiner, Satz(alt)}, anderer},
                                    QStringLiteral("Anna"), nullptr);
    QVERIFY(texte(fenster).contains(QStringLiteral("(keine Angabe)")));
    QVERIFY(texte(fenster).contains(QStringLiteral("79,0 kg")));
    QVERIFY(!std::get<Besuch>(fenster.entschieden()).gewicht);
}

void TestKollisionsfenster::escapeChoosesNothing()
{
    Kollisionsfenster fenster({{m_alt.kennung, m_meine, Satz(m_alt)}, m_andere},
                              QStringLiteral("Anna"), nullptr);
    const QSignalSpy zu(&fenster, &QDialog::finished);
    fenster.show();
    QTest::keyClick(&fenster, Qt::Key_Escape);
    fenster.close();
    QCOMPARE(zu.count(), 0);
    QVERIFY(fenster.isVisible());
}

void TestKollisionsfenster::droppingIsToldApartFromSaving()
{
    Kollisionsfenster fenster({{m_alt.kennung, m_meine, Satz(m_alt)}, m_andere},
                              QStringLiteral("Anna"), nullptr);
    const QSignalSpy zu(&fenster, &QDialog::finished);
    fenster.show();
    for (QPushButton *knopf : fenster.findChildren<QPushButton *>()) {
        if (knopf->text() == QStringLiteral("Meine Änderung &verwerfen")) {
            QTest::mouseClick(knopf, Qt::LeftButton);
        }
    }
    QCOMPARE(zu.count(), 1);
    QCOMPARE(zu.constFirst().constFirst().toInt(), static_cast<int>(QDialog::Rejected));
}

QTEST_MAIN(TestKollisionsfenster)
#include "TestKollisionsfenster.moc"
