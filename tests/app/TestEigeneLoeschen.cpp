#include "Archivdatei.h"
#include "Probefenster.h"
#include "Probeplan.h"

#include <QFile>
#include <QTest>

using enum Naehrwert;

/// Deleting an own food, with the question before it.
class TestEigeneLoeschen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void onlyOwnFoodsCanBeDeleted_data();
    void onlyOwnFoodsCanBeDeleted();
    void theQuestionIsAsked();
    void theTextsAreTranslated();
    void noLeavesAllAsItIs();
    void yesDeletes();
    void everyWayToDelete_data();
    void everyWayToDelete();
    void thePlanIsToldLast();
    void theLastFoodLeavesAnEmptyFile();
    void theDisplayStays();
    void theListLosesTheSelectedRow();
    void beyondTheListNothingIsLost();
    void withoutASelectionTheListStays();
    void aFoodFoundBySearchCanBeDeleted();
    void aDeletedNameCanBeSavedAgain();

private:
    void oeffne(const QStringList &eigene, const QStringList &eingebaute = {});
    void loesche() const { m_fenster->drueckeWerkzeug(QStringLiteral("loeschen")); }
    QByteArray bytes() const
    {
        QFile datei(m_heim->eigeneDatei());
        return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
    }
    QStringList datei() const
    {
        return Archivdatei::lesen(m_heim->eigeneDatei()).archiv.verzeichnis.keys();
    }
    AppController &controller() const { return m_fenster->controller(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

constexpr int nein = 0;
constexpr int ja = 1;

const QString a = QStringLiteral("A");
const QString b = QStringLiteral("B");
const QString c = QStringLiteral("C");

Lebensmittelverzeichnis speisen(const QStringList &namen)
{
    Lebensmittelverzeichnis alle;
    for (const QString &name : namen) {
        alle.insert(name, lebensmittel(name, {{kal, 100}}));
    }
    return alle;
}

} // namespace

void TestEigeneLoeschen::init()
{
    m_heim = std::make_unique<Probeheim>();
}

void TestEigeneLoeschen::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestEigeneLoeschen::oeffne(const QStringList &eigene, const QStringList &eingebaute)
{
    Lebensmittelverzeichnis tabelle = speisen(eingebaute);
    tabelle.insert(zaehltabelle(10));
    m_heim->schreibeTabelle(tabelle);
    m_heim->schreibeEigene(speisen(eigene));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestEigeneLoeschen::onlyOwnFoodsCanBeDeleted_data()
{
    QTest::addColumn<QString>("anzeige");
    QTest::newRow("a built-in food") << zaehlname(3);
    QTest::newRow("a name that differs in case") << QStringLiteral("a");
    QTest::newRow("no name") << QString();
}

void TestEigeneLoeschen::onlyOwnFoodsCanBeDeleted()
{
    QFETCH(QString, anzeige);
    oeffne({a, b, c});
    Probeplan &plan = *new Probeplan; // the window takes it over
    controller().planmodul = &plan;
    const QByteArray vorher = bytes();
    controller().feldA->setStringValue(anzeige);
    m_heim->antworten = {ja};
    loesche();
    QCOMPARE(m_heim->meldungen.size(), 1);
    QCOMPARE(m_heim->meldungen[0].text,
             QStringLiteral("Achtung !  Sie koennen nur eigene Lebensmittel loeschen !"));
    QCOMPARE(m_heim->meldungen[0].erklaerung,
             QStringLiteral("Bitte waehlen Sie zuerst ein eigenes Lebensmittel zum Loeschen aus "));
    QCOMPARE(m_heim->meldungen[0].knoepfe, QStringList{QStringLiteral("ok")});
    QCOMPARE(controller().KundenArray, QStringList({a, b, c}));
    QCOMPARE(controller().KundenDictionary.size(), 3);
    QCOMPARE(bytes(), vorher);
    QVERIFY(plan.geloescht.isEmpty());
}

void TestEigeneLoeschen::theQuestionIsAsked()
{
    oeffne({a});
    m_fenster->klicke(0, inEigen);
    loesche();
    QCOMPARE(m_heim->meldungen.size(), 1);
    QCOMPARE(m_heim->meldungen[0].text, QStringLiteral("Achtung !"));
    QCOMPARE(
        m_heim->meldungen[0].erklaerung,
        QStringLiteral("Moechten Sie dieses eigene Lebensmittel wirklich dauerhaft loeschen ?  "));
    QCOMPARE(m_heim->meldungen[0].knoepfe,
             QStringList({QStringLiteral("Nein"), QStringLiteral("Ja")}));
    QCOMPARE(m_heim->meldungen[0].gegenstand, u'„' + a + u'“'); // which one would go
    QVERIFY(m_heim->meldungen[0].gefahr);                       // what is deleted is gone
}

void TestEigeneLoeschen::theTextsAreTranslated()
{
    QHash<QString, QString> worte;
    for (const char *text :
         {"Achtung !  Sie koennen nur eigene Lebensmittel loeschen !",
          "Bitte waehlen Sie zuerst ein eigenes Lebensmittel zum Loeschen aus ", "ok", "Achtung !",
          "Moechten Sie dieses eigene Lebensmittel wirklich dauerhaft loeschen ?  ", "Nein",
          "Ja"}) {
        worte[QString::fromUtf8(text)] = QStringLiteral("x") + QString::fromUtf8(text);
    }
    const Probeuebersetzer andere(worte);
    oeffne({a});
    loesche();
    m_fenster->klicke(0, inEigen);
    loesche();
    QCOMPARE(m_heim->meldungen.size(), 2);
    QVERIFY(!m_heim->meldungen[0].gefahr); // nothing was to be deleted
    for (const Meldung &meldung : std::as_const(m_heim->meldungen)) {
        for (const QString &text :
             QStringList{meldung.text, meldung.erklaerung} + meldung.knoepfe) {
            QVERIFY2(text.startsWith(u'x'), qPrintable(text));
        }
    }
}

void TestEigeneLoeschen::noLeavesAllAsItIs()
{
    oeffne({a, b, c});
    Probeplan &plan = *new Probeplan; // the window takes it over
    controller().planmodul = &plan;
    m_fenster->klicke(1, inEigen);
    const QByteArray vorher = bytes();
    m_heim->antworten = {nein};
    loesche();
    QCOMPARE(controller().KundenArray, QStringList({a, b, c}));
    QCOMPARE(controller().KundenDictionary.keys(), QStringList({a, b, c}));
    QCOMPARE(bytes(), vorher);
    QCOMPARE(m_fenster->zelle(1, inEigen).text, b);
    QVERIFY(plan.geloescht.isEmpty());
}

void TestEigeneLoeschen::yesDeletes()
{
    oeffne({a, b, c});
    m_fenster->klicke(1, inEigen);
    m_heim->antworten = {ja};
    loesche();
    QCOMPARE(controller().KundenArray, QStringList({a, c}));
    QCOMPARE(controller().KundenDictionary.keys(), QStringList({a, c}));
    QCOMPARE(datei(), QStringList({a, c}));
    QCOMPARE(m_fenster->zelle(2, inEigen).text, QString());
}

void TestEigeneLoeschen::everyWayToDelete_data()
{
    QTest::addColumn<QString>("weg");
    for (const char *weg : {"toolbar", "button", "menu"}) {
        QTest::newRow(weg) << QString::fromLatin1(weg);
    }
}

void TestEigeneLoeschen::everyWayToDelete()
{
    QFETCH(QString, weg);
    oeffne({a, b});
    m_fenster->klicke(0, inEigen);
    m_heim->antworten = {ja};
    if (weg == QStringLiteral("toolbar")) {
        loesche();
    } else if (weg == QStringLiteral("button")) {
        QTest::mouseClick(controller().sichernaufzu, Qt::LeftButton);
        QTest::mouseClick(controller().loeschenknopf, Qt::LeftButton);
    } else {
        for (QAction *wahl : controller().Hauptfenster->findChildren<QAction *>()) {
            if (wahl->text() == QStringLiteral("Eigenes Lebensmittel &löschen …")) {
                wahl->trigger();
            }
        }
    }
    QCOMPARE(controller().KundenArray, QStringList{b});
}

void TestEigeneLoeschen::thePlanIsToldLast()
{
    oeffne({a, b});
    Probeplan &plan = *new Probeplan; // the window takes it over
    controller().planmodul = &plan;
    bool zuletzt = false;
    plan.beimLoeschen = [this, &zuletzt] {
        zuletzt = controller().KundenArray == QStringList{b} &&
                  controller().KundenDictionary.keys() == QStringList{b} &&
                  datei() == QStringList{b};
    };
    m_fenster->klicke(0, inEigen);
    m_heim->antworten = {ja};
    loesche();
    QCOMPARE(plan.geloescht, QStringList{a});
    QVERIFY(zuletzt);
    QVERIFY(plan.gesichert.isEmpty());
}

void TestEigeneLoeschen::theLastFoodLeavesAnEmptyFile()
{
    oeffne({a});
    m_fenster->klicke(0, inEigen);
    m_heim->antworten = {ja};
    loesche();
    QVERIFY(QFile::exists(m_heim->eigeneDatei()));
    QVERIFY(Archivdatei::lesen(m_heim->eigeneDatei()).zustand == Archivdatei::Zustand::Gelesen);
    m_fenster.reset();
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    QVERIFY(controller().KundenArray.isEmpty());
    QVERIFY(m_heim->meldungen.size() == 1);
}

void TestEigeneLoeschen::theDisplayStays()
{
    oeffne({a, b});
    m_fenster->klicke(0, inEigen);
    m_heim->antworten = {ja};
    loesche();
    QCOMPARE(Probefenster::text(*controller().feldA), a);
    QCOMPARE(Probefenster::text(*controller().feldB), QStringLiteral("100 kcal"));
    QCOMPARE(controller().Tabelle->selectedRow(), 0);
    QVERIFY(controller().loeschenknopf->isEnabled());
    loesche(); // what is gone can't be deleted
    QCOMPARE(m_heim->meldungen.size(), 2);
    QCOMPARE(m_heim->meldungen[1].knoepfe.size(), 1);
    QCOMPARE(controller().KundenArray, QStringList{b});
}

/// The entry of the list is found by the row, not by the name. A built-in food under an own food's
/// name shows the difference.
void TestEigeneLoeschen::theListLosesTheSelectedRow()
{
    oeffne({a, b, c}, {c});
    m_fenster->klicke(0, inName); // "C" stands before all counted foods
    QCOMPARE(Probefenster::text(*controller().feldA), c);
    m_heim->antworten = {ja};
    loesche();
    QCOMPARE(controller().KundenArray, QStringList({b, c}));
    QCOMPARE(controller().KundenDictionary.keys(), QStringList({a, b}));
    QCOMPARE(datei(), QStringList({a, b}));
    m_fenster->klicke(1, inEigen); // an entry without a food changes nothing on display
    QCOMPARE(Probefenster::text(*controller().feldA), c);
    m_fenster.reset();
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    QCOMPARE(controller().KundenArray, QStringList({a, b})); // the file knows better
}

void TestEigeneLoeschen::beyondTheListNothingIsLost()
{
    oeffne({a, b});
    Probeplan &plan = *new Probeplan; // the window takes it over
    controller().planmodul = &plan;
    m_fenster->klicke(0, inEigen);
    controller().Tabelle->selectRow(7);
    m_heim->antworten = {ja};
    loesche();
    QCOMPARE(controller().KundenArray, QStringList({a, b}));
    QCOMPARE(controller().KundenDictionary.keys(), QStringList{b});
    QCOMPARE(datei(), QStringList{b});
    QCOMPARE(plan.geloescht, QStringList{a});
}

void TestEigeneLoeschen::withoutASelectionTheListStays()
{
    oeffne({a, b});
    m_fenster->klicke(0, inEigen);
    controller().Tabelle->clearSelection();
    m_heim->antworten = {ja};
    loesche();
    QCOMPARE(controller().KundenArray, QStringList({a, b}));
    QCOMPARE(datei(), QStringList{b});
}

void TestEigeneLoeschen::aFoodFoundBySearchCanBeDeleted()
{
    oeffne({a, b, QStringLiteral("Zimt")});
    controller().suchfeld->setStringValue(QStringLiteral("zim"));
    controller().suchen(*controller().suchfeld);
    m_fenster->klicke(1, inSuch);
    QCOMPARE(Probefenster::text(*controller().feldA), QStringLiteral("Zimt"));
    m_heim->antworten = {ja};
    loesche();
    QCOMPARE(controller().KundenArray, QStringList({a, b})); // the search chose its row
    QCOMPARE(datei(), QStringList({a, b}));
}

void TestEigeneLoeschen::aDeletedNameCanBeSavedAgain()
{
    oeffne({a, b});
    m_fenster->klicke(0, inEigen);
    m_heim->antworten = {ja};
    loesche();
    controller().SicherneigeneLM();
    QCOMPARE(controller().KundenArray, QStringList({b, a})); // as a new one, at the end
    QCOMPARE(datei(), QStringList({a, b}));
}

QTEST_MAIN(TestEigeneLoeschen)
#include "TestEigeneLoeschen.moc"
