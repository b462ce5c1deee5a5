// What the build tells of the foods beside their records, against what the source published.

#include "Tabellenausgabe.h"
#include "Tabellenprobe.h"
#include "Zusatzdatei.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Zeile = QHash<QString, QString>;

/// A file taken apart by hand: the fields of each line by the names of their columns.
QList<Zeile> vonHand(const char *pfad)
{
    QStringList spalten;
    QList<Zeile> zeilen;
    const QString text = QString::fromUtf8(Tabellenprobe::dateiinhalt(pfad));
    for (const QString &zeile : text.split(u'\n')) {
        if (zeile.isEmpty() || zeile.startsWith(u'#')) {
            continue;
        }
        const QStringList felder = zeile.split(u';');
        if (spalten.isEmpty()) {
            spalten = felder;
            continue;
        }
        Zeile eine;
        for (qsizetype i = 0; i < spalten.size(); ++i) {
            eine.insert(spalten.at(i), felder.at(i));
        }
        zeilen.append(eine);
    }
    return zeilen;
}

QHash<QString, Zeile> nach(const QList<Zeile> &zeilen, const QString &spalte)
{
    QHash<QString, Zeile> liste;
    for (const Zeile &zeile : zeilen) {
        liste.insert(zeile.value(spalte), zeile);
    }
    return liste;
}

/// What stands for a published cell: nothing where nothing was determined, 0 for a trace and for
/// less than a limit.
QString erwartet(const QString &zelle)
{
    if (zelle == u"tr." || zelle.startsWith(u'<')) {
        return u"0"_s;
    }
    return zelle == u"n.d." ? QString() : zelle;
}

} // namespace

class TestZusatzausgabe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyFoodHasItsLine();
    void everyFigureIsTheSources();
    void everythingElseIsTheTables();
    void aSynonymIsTheSameFood();
    void theFileNamesItsSource();
    void theProgramReadsWhatIsThere();
    void aFoodThatTheSourceLacksIsNotTold();

private:
    QHash<QString, Zeile> m_zusatz; ///< what was built, by the names
    QHash<QString, Zeile> m_quelle; ///< what was published, by the ids
    QList<Zeile> m_tabelle;
};

void TestZusatzausgabe::initTestCase()
{
    const QList<Zeile> zusatz = vonHand(ZUSATZWERTE);
    m_zusatz = nach(zusatz, u"name"_s);
    QCOMPARE(m_zusatz.size(), zusatz.size());
    m_quelle = nach(vonHand(QUELLWERTE), u"id"_s);
    m_tabelle = vonHand(LEBENSMITTELTABELLE);
    QCOMPARE(m_tabelle.size(), 1015);
}

void TestZusatzausgabe::everyFoodHasItsLine()
{
    QCOMPARE(m_zusatz.size(), m_tabelle.size());
    for (const Zeile &food : std::as_const(m_tabelle)) {
        QVERIFY2(m_zusatz.contains(food.value(u"name_de"_s)), qPrintable(food.value(u"name_de"_s)));
    }
}

void TestZusatzausgabe::everyFigureIsTheSources()
{
    int unbekannte = 0;
    for (const Zeile &food : std::as_const(m_tabelle)) {
        const QString name = food.value(u"name_de"_s);
        const Zeile zusatz = m_zusatz.value(name);
        const Zeile quelle = m_quelle.value(food.value(u"source_id"_s));
        for (const char *spalte : {"sugars", "saturated", "alcohol", "water", "density"}) {
            const QString feld = QString::fromLatin1(spalte);
            QVERIFY2(zusatz.value(feld) == erwartet(quelle.value(feld)),
                     qPrintable(name + u": "_s + feld));
        }
        QStringList unbekannt;
        for (const auto &wert : naehrwerte) {
            const QString zelle = quelle.value(QString::fromLatin1(wert.kennung));
            if (zelle.isEmpty() || zelle == u"n.d.") {
                unbekannt << QString::fromLatin1(wert.kennung);
            }
        }
        QVERIFY2(zusatz.value(u"unknown"_s) == unbekannt.join(u' '), qPrintable(name));
        unbekannte += int(unbekannt.size());
    }
    // bs 1, chol 8, ma 2, fe 1, vita 5, b1 2, b2 2, b6 2, vitc 8
    QCOMPARE(unbekannte, 31);
}

void TestZusatzausgabe::everythingElseIsTheTables()
{
    for (const Zeile &food : std::as_const(m_tabelle)) {
        const QString name = food.value(u"name_de"_s);
        const Zeile zusatz = m_zusatz.value(name);
        if (zusatz.value(u"water"_s) == u"100") {
            // Nobody measured the purines of water: there are none.
            QCOMPARE(name, u"Leitungswasser (Trinkwasser)"_s);
            QCOMPARE(food.value(u"purine_class"_s), u"low"_s);
            QCOMPARE(zusatz.value(u"uric_acid"_s), u"0"_s);
            QCOMPARE(zusatz.value(u"purine_class"_s), QString());
            continue;
        }
        for (const char *spalte :
             {"group", "uric_acid", "purine_class", "ready_g", "marks", "sugar_kind"}) {
            const QString feld = QString::fromLatin1(spalte);
            QVERIFY2(zusatz.value(feld) == food.value(feld), qPrintable(name + u": "_s + feld));
        }
        // Either somebody published a figure, or the food has a class.
        QVERIFY2(zusatz.value(u"uric_acid"_s).isEmpty() !=
                     zusatz.value(u"purine_class"_s).isEmpty(),
                 qPrintable(name));
    }
}

void TestZusatzausgabe::aSynonymIsTheSameFood()
{
    int synonyme = 0;
    for (const Zeile &food : std::as_const(m_tabelle)) {
        if (const QString hauptname = food.value(u"synonym"_s); !hauptname.isEmpty()) {
            Zeile anders = m_zusatz.value(food.value(u"name_de"_s));
            anders.insert(u"name"_s, hauptname);
            QCOMPARE(anders, m_zusatz.value(hauptname));
            ++synonyme;
        }
    }
    QCOMPARE(synonyme, 6);
}

void TestZusatzausgabe::theFileNamesItsSource()
{
    const QString text = QString::fromUtf8(Tabellenprobe::dateiinhalt(ZUSATZWERTE));
    const QString kopf = text.section(u"\nname;"_s, 0, 0).replace(u"\n# "_s, u" "_s);
    QVERIFY2(kopf.contains(u"Source: Swiss Food Composition Database, version 7.0 of 1 July 2025, "
                           "Federal Food Safety and Veterinary Office FSVO."),
             qPrintable(kopf));
}

void TestZusatzausgabe::theProgramReadsWhatIsThere()
{
    const auto [tabelle, einwaende] = Zusatzdatei::lesen(Tabellenprobe::dateiinhalt(ZUSATZWERTE));
    QVERIFY(einwaende.isEmpty());
    QCOMPARE(tabelle.size(), 1015);
    for (auto eintrag = tabelle.cbegin(); eintrag != tabelle.cend(); ++eintrag) {
        const Zeile zeile = m_zusatz.value(eintrag.key());
        const auto gleich = [&zeile](const QString &spalte, const std::optional<double> &wert) {
            const QString feld = zeile.value(spalte);
            return feld.isEmpty() ? !wert : wert && *wert == feld.toDouble();
        };
        const Zusatzwerte &werte = *eintrag;
        QVERIFY2(gleich(u"sugars"_s, werte.zucker) && gleich(u"saturated"_s, werte.gesaettigt) &&
                     gleich(u"alcohol"_s, werte.alkohol) && gleich(u"water"_s, werte.wasser) &&
                     gleich(u"density"_s, werte.dichte) && gleich(u"uric_acid"_s, werte.harnsaeure),
                 qPrintable(eintrag.key()));
        QCOMPARE(QString::fromUtf8(werte.gruppe->name), zeile.value(u"group"_s));
    }
    // Written again it is the same file.
    QCOMPARE(Zusatzdatei::text(tabelle), Tabellenprobe::dateiinhalt(ZUSATZWERTE));
}

void TestZusatzausgabe::aFoodThatTheSourceLacksIsNotTold()
{
    const QStringList ei = Tabellenprobe::felder(u"290"_s);
    const QStringList fremd = Tabellenprobe::geaendert(ei, u"source_id"_s, u"999999"_s);
    const Quellwerte quelle = Quellenvergleich::lesen(Tabellenprobe::dateiinhalt(QUELLWERTE)).werte;
    const auto zusatzVon = [&quelle](const QStringList &zeile) {
        return Tabellenausgabe::zusatzwerte(
            Tabellendatei::lesen(Tabellenprobe::datei({zeile})).tabelle, quelle);
    };
    QCOMPARE(zusatzVon(ei).size(), 1);
    QVERIFY(zusatzVon(fremd).isEmpty());
}

QTEST_GUILESS_MAIN(TestZusatzausgabe)
#include "TestZusatzausgabe.moc"
