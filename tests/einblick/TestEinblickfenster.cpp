#include "Einblickfenster.h"

#include "Beitragsblatt.h"
#include "Probesprache.h"
#include "Referenzblatt.h"
#include "Vorschlagsblatt.h"
#include "Zahlenblatt.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;

class TestEinblickfenster : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_fenster.reset(); }

    void itAsksForWhatIsShown();
    void rowsThatDoNotCountAreSaid();
    void aTitleIsNoMarkup();
    void theGeneralNeedsAreTheDefault();
    void aChosenSetSetsTheAims();
    void anUnknownSetOfTheSettingsIsTheDefault();
    void withoutSettingsAChoiceHoldsForTheWindow();
    void anotherClientChangesThePerson();
    void theSheetsKnowTheClient();
    void theGeneralNeedsGoWithWhoIsKnown();
    void deedsCarryTheSubject_data();
    void deedsCarryTheSubject();
    void anotherSubjectCanBeChosen();
    void thereIsASheetForEachQuestion();
    void escapeClosesIt();
    void whatWasPutAsideComesBack();
    void returnInAFieldAnswersNoNotice();
    void itIsAWindowOfItsOwn();
    void theLetterLeadsToTheSubject();
    void theLanguageIsFollowed();

private:
    void baue();
    void waehleSatz(const QString &name) const;
    QString anmerkung() const
    {
        return m_fenster->zahlenblatt->findChild<QLabel *>(u"anmerkung"_s)->text();
    }
    QString titel() const { return m_fenster->findChild<QLabel *>(u"titel"_s)->text(); }

    QTemporaryDir m_ordner;
    std::unique_ptr<QSettings> m_einstellungen;
    QList<Gegenstand> m_gefragt;
    QString m_name;
    Speisen m_speisen;
    int m_ungezaehlt = 0;
    bool m_merkt = true;  ///< whether there are settings
    int m_allgemeine = 0; ///< how often the general needs were asked for
    Kandidaten m_kandidaten;
    std::unique_ptr<Einblickfenster> m_fenster;
};

namespace {

/// 850 mg for everybody, by one set alone.
Referenzzeilen calcium()
{
    Referenzzeilen alle;
    for (const Referenzgeschlecht wer : {Referenzgeschlecht::Mann, Referenzgeschlecht::Frau}) {
        Referenzzeile zeile;
        zeile.satz = Referenzsatz::Dach;
        zeile.wert = Naehrwert::ca;
        zeile.geschlecht = wer;
        zeile.von = 1;
        zeile.unten = 850;
        zeile.oben = 850;
        zeile.quellen = {u"X"_s};
        alle << zeile;
    }
    return alle;
}

/// 500 g with 120 mg of calcium in 100 g.
Speise milch()
{
    Datenmodul satz;
    satz.setName(u"Milch"_s);
    satz.setca(120);
    return {u"Milch"_s, satz, 500, 0};
}

Referenzperson frau()
{
    Referenzperson person;
    person.geschlecht = Referenzgeschlecht::Frau;
    person.alter = 40;
    return person;
}

} // namespace

void TestEinblickfenster::init()
{
    m_einstellungen =
        std::make_unique<QSettings>(m_ordner.filePath(u"a.conf"_s), QSettings::IniFormat);
    m_einstellungen->clear();
    QLocale::setDefault(QLocale::c());
    m_gefragt.clear();
    m_name = u"Titel"_s;
    m_speisen.clear();
    m_merkt = true;
    m_ungezaehlt = 0;
    m_allgemeine = 0;
    baue();
}

void TestEinblickfenster::baue()
{
    Einblicktueren tueren;
    tueren.stand = [this](Gegenstand was) {
        m_gefragt << was;
        Einblickstand stand;
        stand.gegenstand = was;
        stand.titel = m_name;
        stand.speisen = m_speisen;
        stand.ungezaehlt = m_ungezaehlt;
        return stand;
    };
    tueren.allgemeineZiele = [this] {
        ++m_allgemeine;
        return Zielbereiche{{Kenngroesse::ca, 700.0, 1100.0, {}}};
    };
    tueren.kandidaten = [this]() -> const Kandidaten & {
        return m_kandidaten;
    };
    tueren.referenz = calcium();
    tueren.einstellungen = m_merkt ? m_einstellungen.get() : nullptr;
    m_fenster = std::make_unique<Einblickfenster>(std::move(tueren), nullptr);
}

void TestEinblickfenster::waehleSatz(const QString &name) const
{
    auto *satz = m_fenster->personenwahl->findChild<QComboBox *>(u"satz"_s);
    satz->setCurrentIndex(satz->findText(name));
    Q_EMIT satz->activated(satz->currentIndex());
}

void TestEinblickfenster::itAsksForWhatIsShown()
{
    m_fenster->zeige(Gegenstand::Tag);
    QVERIFY(m_fenster->isVisible());
    QCOMPARE(m_gefragt, QList<Gegenstand>{Gegenstand::Tag});
    QCOMPARE(m_fenster->gegenstand(), Gegenstand::Tag);
    QCOMPARE(titel(), u"Titel"_s);
    m_fenster->frischeAuf();
    QCOMPARE(m_gefragt.size(), 2);
}

void TestEinblickfenster::rowsThatDoNotCountAreSaid()
{
    m_ungezaehlt = 3;
    m_fenster->zeige(Gegenstand::Tag);
    QCOMPARE(titel(), u"Titel\nZeilen, die nicht zählen, weil Lebensmittel oder Menge unbekannt "
                      "sind: 3."_s);
}

void TestEinblickfenster::aTitleIsNoMarkup()
{
    m_name = u"<b>Brot</b>"_s;
    m_fenster->zeige(Gegenstand::Lebensmittel);
    const auto *feld = m_fenster->findChild<QLabel *>(u"titel"_s);
    QCOMPARE(feld->text(), u"<b>Brot</b>"_s);
    QCOMPARE(feld->textFormat(), Qt::PlainText);
}

void TestEinblickfenster::theGeneralNeedsAreTheDefault()
{
    m_speisen = {milch()};
    m_fenster->zeige(Gegenstand::Plan);
    QCOMPARE(m_allgemeine, 1);
    QCOMPARE(m_fenster->personenwahl->satz(), std::nullopt);
    const Referenzposten &posten = m_fenster->referenzblatt->posten(Naehrwert::ca);
    QCOMPARE(posten.menge().text(), u"600 mg"_s);
    QCOMPARE(posten.worte().text(), u"zu wenig · 700–1100 mg"_s);
}

void TestEinblickfenster::aChosenSetSetsTheAims()
{
    m_fenster->setzeKlient(frau(), {});
    m_fenster->zeige(Gegenstand::Plan);
    const int bisher = m_allgemeine;
    waehleSatz(u"D-A-CH"_s);
    QCOMPARE(m_fenster->personenwahl->satz(), std::optional(Referenzsatz::Dach));
    QCOMPARE(m_allgemeine, bisher);
    const QLabel &worte = m_fenster->referenzblatt->posten(Naehrwert::ca).worte();
    QVERIFY2(worte.text().contains(u"850 mg"_s), qPrintable(worte.text()));
    QCOMPARE(m_einstellungen->value(u"Einblick/Satz"_s).toString(), u"D-A-CH"_s);
    // The choice outlasts the window.
    baue();
    QCOMPARE(m_fenster->personenwahl->satz(), std::optional(Referenzsatz::Dach));
}

void TestEinblickfenster::anUnknownSetOfTheSettingsIsTheDefault()
{
    m_einstellungen->setValue(u"Einblick/Satz"_s, u"XYZ"_s);
    baue();
    QCOMPARE(m_fenster->personenwahl->satz(), std::nullopt);
}

void TestEinblickfenster::withoutSettingsAChoiceHoldsForTheWindow()
{
    m_merkt = false;
    baue();
    m_fenster->zeige(Gegenstand::Plan);
    waehleSatz(u"D-A-CH"_s);
    QCOMPARE(m_fenster->personenwahl->satz(), std::optional(Referenzsatz::Dach));
    QVERIFY(m_einstellungen->allKeys().isEmpty());
}

void TestEinblickfenster::anotherClientChangesThePerson()
{
    m_fenster->zeige(Gegenstand::Plan);
    m_fenster->setzeKlient(frau(), {});
    QCOMPARE(m_fenster->personenwahl->person(), frau());
    QCOMPARE(m_gefragt.size(), 1); // what counts is the same
}

/// Somebody with an age and gout is measured by other limits at once.
void TestEinblickfenster::theSheetsKnowTheClient()
{
    m_speisen = {milch()};
    m_fenster->zeige(Gegenstand::Plan);
    QVERIFY(anmerkung().contains(u"Ohne Alter"_s));
    QVERIFY(anmerkung().contains(u"nur bei Gicht"_s));
    m_fenster->setzeKlient(frau(), {});
    QCOMPARE(anmerkung(), u"An den Grenzen für Purine wird nur bei Gicht gemessen."_s);
    std::array<bool, anzahlWertungen> leiden = {};
    leiden[stelle(Wertung::gicht)] = true;
    m_fenster->setzeKlient(frau(), leiden);
    QCOMPARE(anmerkung(), QString());
}

/// Beside the general needs nobody sees what was typed for a set.
void TestEinblickfenster::theGeneralNeedsGoWithWhoIsKnown()
{
    m_speisen = {milch()};
    m_fenster->zeige(Gegenstand::Plan);
    m_fenster->setzeKlient(frau(), {});
    waehleSatz(u"D-A-CH"_s);
    Referenzperson ohneAlter = frau();
    ohneAlter.alter.reset();
    m_fenster->folgePerson(frau(), ohneAlter);
    QVERIFY(anmerkung().contains(u"Ohne Alter"_s));
    waehleSatz(u"Allgemeiner Tagesbedarf"_s);
    QVERIFY(!anmerkung().contains(u"Ohne Alter"_s));
    waehleSatz(u"D-A-CH"_s);
    QVERIFY(anmerkung().contains(u"Ohne Alter"_s));
}

void TestEinblickfenster::deedsCarryTheSubject_data()
{
    QTest::addColumn<int>("blatt");
    QTest::newRow("reference values") << 0;
    QTest::newRow("contributions") << 1;
    QTest::newRow("suggestions") << 2;
    QTest::newRow("further figures") << 3;
}

void TestEinblickfenster::deedsCarryTheSubject()
{
    QFETCH(const int, blatt);
    m_fenster->zeige(Gegenstand::Mittel);
    const QSignalSpy wege(m_fenster.get(), &Einblickfenster::zeileGewuenscht);
    const QSignalSpy taten(m_fenster.get(), &Einblickfenster::aenderungGewuenscht);
    auto *eines = qobject_cast<Einblickblatt *>(m_fenster->blaetter->widget(blatt));
    QVERIFY(eines != nullptr);
    Q_EMIT eines->zeileGewuenscht(7);
    Q_EMIT eines->aenderungGewuenscht({.schluessel = u"Brot"_s});
    QCOMPARE(wege.count(), 1);
    QCOMPARE(wege[0][0].value<Gegenstand>(), Gegenstand::Mittel);
    QCOMPARE(wege[0][1].toInt(), 7);
    QCOMPARE(taten.count(), 1);
    QCOMPARE(taten[0][0].value<Gegenstand>(), Gegenstand::Mittel);
    QCOMPARE(taten[0][1].value<Speisenaenderung>().schluessel, u"Brot"_s);
}

void TestEinblickfenster::anotherSubjectCanBeChosen()
{
    m_fenster->zeige(Gegenstand::Plan);
    auto *wahl = m_fenster->findChild<QComboBox *>(u"gegenstand"_s);
    wahl->setFocus();
    QTest::keyClick(wahl, Qt::Key_Down);
    QCOMPARE(m_gefragt, (QList<Gegenstand>{Gegenstand::Plan, Gegenstand::Tag}));
}

void TestEinblickfenster::thereIsASheetForEachQuestion()
{
    QStringList reiter;
    for (int i = 0; i < m_fenster->blaetter->count(); ++i) {
        reiter << m_fenster->blaetter->tabText(i).remove(u'&');
    }
    QCOMPARE(reiter,
             (QStringList{u"Referenzwerte"_s, u"Beiträge"_s, u"Was hilft"_s, u"Weitere Werte"_s}));
}

void TestEinblickfenster::escapeClosesIt()
{
    m_fenster->zeige(Gegenstand::Plan);
    QTest::keyClick(m_fenster.get(), Qt::Key_Escape);
    QVERIFY(!m_fenster->isVisible());
}

void TestEinblickfenster::whatWasPutAsideComesBack()
{
    m_fenster->zeige(Gegenstand::Plan);
    m_fenster->showMinimized();
    m_fenster->zeige(Gegenstand::Tag);
    QVERIFY(!m_fenster->isMinimized());
    QVERIFY(m_fenster->isVisible());
    QVERIFY(QTest::qWaitForWindowActive(m_fenster.get()));
}

/// A notice may still stand there when the window is opened again.
void TestEinblickfenster::returnInAFieldAnswersNoNotice()
{
    bool zurueckgenommen = false;
    m_fenster->hinweise->zeige({.kennung = u"tat"_s,
                                .text = u"Getan."_s,
                                .knopf = u"Rückgängig"_s,
                                .aktion = [&zurueckgenommen] {
                                    zurueckgenommen = true;
                                }});
    m_fenster->zeige(Gegenstand::Plan);
    QVERIFY(QTest::qWaitForWindowActive(m_fenster.get()));
    waehleSatz(u"D-A-CH"_s);
    m_fenster->personenwahl->findChild<QToolButton *>(u"oeffner"_s)->click();
    auto *gewicht = m_fenster->personenwahl->findChild<QLineEdit *>(u"gewicht"_s);
    gewicht->setFocus();
    QVERIFY(gewicht->hasFocus());
    QTest::keyClick(gewicht, Qt::Key_Return);
    QVERIFY(!zurueckgenommen);
    QVERIFY(m_fenster->isVisible());
}

void TestEinblickfenster::itIsAWindowOfItsOwn()
{
    QCOMPARE(m_fenster->windowType(), Qt::Window);
    QCOMPARE(m_fenster->windowTitle(), u"Einblick"_s);
}

void TestEinblickfenster::theLetterLeadsToTheSubject()
{
    m_fenster->zeige(Gegenstand::Plan);
    QVERIFY(QTest::qWaitForWindowActive(m_fenster.get()));
    m_fenster->blaetter->setFocus();
    QTest::keyClick(m_fenster.get(), Qt::Key_L, Qt::AltModifier); // Einb&lick in:
    QVERIFY(m_fenster->findChild<QComboBox *>(u"gegenstand"_s)->hasFocus());
}

void TestEinblickfenster::theLanguageIsFollowed()
{
    m_fenster->zeige(Gegenstand::Plan);
    const Probesprache englisch(QLocale::English);
    m_name = u"Title"_s;
    m_fenster->folgeSprache();
    QCOMPARE(m_fenster->windowTitle(), u"Insight"_s);
    QCOMPARE(m_fenster->blaetter->tabText(1), u"&Contributions"_s);
    QCOMPARE(m_fenster->gegenstand(), Gegenstand::Plan);
    const auto *wahl = m_fenster->findChild<QComboBox *>(u"gegenstand"_s);
    QCOMPARE(wahl->itemText(3), u"Mean of the days"_s);
    QCOMPARE(m_fenster->personenwahl->findChild<QToolButton *>(u"oeffner"_s)->text(), u"Change"_s);
    QCOMPARE(m_fenster->beitragsblatt->findChild<QComboBox *>(u"wovon"_s)->currentText(),
             u"Energy"_s);
    QCOMPARE(titel(), u"Title"_s); // the door speaks it too
}

QTEST_MAIN(TestEinblickfenster)
#include "TestEinblickfenster.moc"
