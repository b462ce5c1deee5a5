#include "Uebernahmetabelle.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using Lage = Uebernahmetabelle::Lage;

/// The foods of a file beside the own ones: how each stands to them, and what would become of it.
class TestUebernahmetabelle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void eachFoodIsHeldAgainstTheOwnOnes();
    void theWordsSayWhatBecomesOfIt();
    void onlyWhatCanComeHasABox();
    void withoutACrossItStaysOut();
    void aDecisionHoldsForItsFood();
    void aDecisionForAllHoldsForAll();
    void valuesStandUnderTheirUnits();
    void whatShouldBeKnownIsExplained();
    void aLongNameCanBeReadWhole();
    void anEmptyFile();

private:
    QString text(int zeile, int spalte) const
    {
        return m_tabelle->index(zeile, spalte).data().toString();
    }
    QVariant haken(int zeile) const { return m_tabelle->index(zeile, 0).data(Qt::CheckStateRole); }
    void kreuze(int zeile, bool an)
    {
        m_tabelle->setData(m_tabelle->index(zeile, 0), an ? Qt::Checked : Qt::Unchecked,
                           Qt::CheckStateRole);
    }

    std::unique_ptr<Uebernahmetabelle> m_tabelle;
};

namespace {

Datenmodul speise(const QString &name, float kal, const QString &urteil = u"0"_s)
{
    Datenmodul eine;
    eine.setName(name);
    eine.setkal(kal);
    for (const auto &zeile : wertungen) {
        eine.setWertung(zeile.wertung, urteil);
    }
    return eine;
}

Lebensmittelbestand bestand(const QList<Datenmodul> &alle)
{
    Lebensmittelbestand ergebnis;
    for (const Datenmodul &eines : alle) {
        ergebnis.verzeichnis.insert(eines.name(), eines);
        ergebnis.namen << eines.name();
    }
    return ergebnis;
}

enum Zeilen { neues, gleiches, vergebenes, namenloses, zweitesVergebenes };

} // namespace

void TestUebernahmetabelle::init()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    m_tabelle = std::make_unique<Uebernahmetabelle>(
        QList<Datenmodul>{speise(u"Neu"_s, 10), speise(u"Gleich"_s, 20), speise(u"Brot"_s, 30),
                          speise(QString(), 40), speise(u"Käse"_s, 50)},
        bestand({speise(u"Käse"_s, 51), speise(u"Brot"_s, 31), speise(u"Gleich"_s, 20)}),
        Lebensmittelverzeichnis{{u"Neu"_s, speise(u"Neu"_s, 1)}});
    new QAbstractItemModelTester(
        m_tabelle.get(), QAbstractItemModelTester::FailureReportingMode::QtTest, m_tabelle.get());
}

void TestUebernahmetabelle::eachFoodIsHeldAgainstTheOwnOnes()
{
    QCOMPARE(m_tabelle->lage(neues), Lage::Neu);
    QCOMPARE(m_tabelle->lage(gleiches), Lage::SchonDa);
    QCOMPARE(m_tabelle->lage(vergebenes), Lage::Vergeben);
    QCOMPARE(m_tabelle->lage(namenloses), Lage::OhneNamen);
    QCOMPARE(m_tabelle->ersterVergebener(), int(vergebenes));
    QVERIFY(m_tabelle->eigenes(neues) == nullptr);
    QCOMPARE(m_tabelle->eigenes(vergebenes)->kal(), 31.0F);
}

void TestUebernahmetabelle::theWordsSayWhatBecomesOfIt()
{
    QCOMPARE(text(neues, 1), u"neu, siehe unten"_s);
    QCOMPARE(text(gleiches, 1), u"schon da"_s);
    QCOMPARE(text(vergebenes, 1), u"Name vergeben: Ihres bleibt"_s);
    QCOMPARE(text(namenloses, 1), u"ohne Namen: bleibt draußen"_s);
    QCOMPARE(text(namenloses, 0), u"(ohne Namen)"_s);
    kreuze(neues, false);
    QCOMPARE(text(neues, 1), u"bleibt draußen, siehe unten"_s);
}

void TestUebernahmetabelle::onlyWhatCanComeHasABox()
{
    QCOMPARE(haken(neues), QVariant(Qt::Checked));
    QCOMPARE(haken(vergebenes), QVariant(Qt::Checked));
    QVERIFY(!haken(gleiches).isValid());
    QVERIFY(!haken(namenloses).isValid());
    QVERIFY(!m_tabelle->index(neues, 1).data(Qt::CheckStateRole).isValid());
    const Qt::ItemFlags anklickbar = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    QCOMPARE(m_tabelle->index(neues, 0).flags(), anklickbar | Qt::ItemIsUserCheckable);
    QCOMPARE(m_tabelle->index(neues, 1).flags(), anklickbar);
    QCOMPARE(m_tabelle->index(gleiches, 0).flags(), anklickbar);
    QVERIFY(!m_tabelle->setData(m_tabelle->index(neues, 0), Qt::Unchecked, Qt::EditRole));
    kreuze(namenloses, true);
    kreuze(gleiches, true);
    QCOMPARE(m_tabelle->gewaehlte().size(), 3); // Neu, Brot, Käse
    m_tabelle->waehleAlle(false);
    QCOMPARE(m_tabelle->gewaehlte().size(), 0);
    m_tabelle->waehleAlle(true);
    QCOMPARE(m_tabelle->gewaehlte().size(), 3);
}

void TestUebernahmetabelle::withoutACrossItStaysOut()
{
    QSignalSpy anders(m_tabelle.get(), &Uebernahmetabelle::umentschieden);
    QSignalSpy neuGemalt(m_tabelle.get(), &QAbstractItemModel::dataChanged);
    QCOMPARE(m_tabelle->ergebnis().neu, QStringList{u"Neu"_s});
    kreuze(neues, false);
    QCOMPARE(m_tabelle->ergebnis().anzahl(), 0);
    QCOMPARE(anders.size(), 1);
    QCOMPARE(neuGemalt.size(), 1);
    QCOMPARE(neuGemalt[0][0].toModelIndex(), m_tabelle->index(0, 0));
    QCOMPARE(neuGemalt[0][1].toModelIndex(), m_tabelle->index(zweitesVergebenes, 1));
    QCOMPARE(haken(neues), QVariant(Qt::Unchecked));
    m_tabelle->entscheideAlle(Namensgleich::Ersetzen);
    kreuze(vergebenes, false);
    QCOMPARE(text(vergebenes, 1), u"Name vergeben: bleibt draußen"_s);
    QCOMPARE(m_tabelle->ergebnis().ersetzt, QStringList{u"Käse"_s});
}

void TestUebernahmetabelle::aDecisionHoldsForItsFood()
{
    m_tabelle->entscheide(vergebenes, Namensgleich::Ersetzen);
    QCOMPARE(text(vergebenes, 1), u"Name vergeben: ersetzt Ihres"_s);
    QCOMPARE(text(zweitesVergebenes, 1), u"Name vergeben: Ihres bleibt"_s);
    QCOMPARE(m_tabelle->ergebnis().ersetzt, QStringList{u"Brot"_s});
    QCOMPARE(m_tabelle->ergebnis().uebersprungen, QStringList{u"Käse"_s});
    QCOMPARE(m_tabelle->entscheidung(vergebenes), Namensgleich::Ersetzen);
}

void TestUebernahmetabelle::aDecisionForAllHoldsForAll()
{
    m_tabelle->entscheide(vergebenes, Namensgleich::Ersetzen);
    m_tabelle->entscheideAlle(Namensgleich::NeuerName);
    QCOMPARE(text(vergebenes, 1), u"Name vergeben: beide bleiben"_s);
    QCOMPARE(text(zweitesVergebenes, 1), u"Name vergeben: beide bleiben"_s);
    QCOMPARE(m_tabelle->ergebnis().umbenannt, (QStringList{u"Brot (2)"_s, u"Käse (2)"_s}));
}

void TestUebernahmetabelle::valuesStandUnderTheirUnits()
{
    const auto kopf = [this](int spalte) {
        return m_tabelle->headerData(spalte, Qt::Horizontal, Qt::DisplayRole).toString();
    };
    QCOMPARE(m_tabelle->columnCount(), 2 + 17 + 4);
    QCOMPARE(kopf(0), u"Lebensmittel"_s);
    QVERIFY2(kopf(2).endsWith(u"(kcal)"_s), qPrintable(kopf(2)));
    QCOMPARE(kopf(3), u"Protein (g)"_s);
    QCOMPARE(kopf(18), u"Vitamin C (mg)"_s);
    QCOMPARE(kopf(19), u"Übergewicht"_s);
    QCOMPARE(text(gleiches, 2), u"20"_s);
    QCOMPARE(text(gleiches, 19), u"0"_s);
    Datenmodul seltsam = speise(u"X"_s, 0.25F, u"viel"_s);
    seltsam.setb1(std::numeric_limits<float>::quiet_NaN());
    seltsam.setb2(-std::numeric_limits<float>::infinity());
    m_tabelle = std::make_unique<Uebernahmetabelle>(QList{seltsam}, Lebensmittelbestand(),
                                                    Lebensmittelverzeichnis());
    QCOMPARE(text(0, 2), u"0,25"_s);
    QCOMPARE(text(0, 2 + 13), u"keine Zahl"_s);
    QCOMPARE(text(0, 2 + 14), u"keine Zahl"_s);
    QCOMPARE(text(0, 22), u"viel"_s);
}

void TestUebernahmetabelle::whatShouldBeKnownIsExplained()
{
    const auto vorgelesen = [this](int zeile) {
        return m_tabelle->index(zeile, 0).data(Qt::AccessibleDescriptionRole).toString();
    };
    QCOMPARE(m_tabelle->erklaerung(neues), vorgelesen(neues));
    QCOMPARE(vorgelesen(neues),
             u"Ein eingebautes Lebensmittel heißt ebenso. Im Plan gelten dessen Werte."_s);
    QCOMPARE(m_tabelle->index(neues, 1).data(Qt::AccessibleDescriptionRole).toString(),
             vorgelesen(neues));
    QVERIFY(!m_tabelle->index(neues, 2).data(Qt::AccessibleDescriptionRole).isValid());
    QCOMPARE(vorgelesen(vergebenes), QString());
    QVERIFY(m_tabelle->erklaertEtwas());
    Datenmodul schwer = speise(u"Blei"_s, 100);
    schwer.setprotein(80);
    schwer.setkh(80);
    m_tabelle = std::make_unique<Uebernahmetabelle>(QList{schwer}, Lebensmittelbestand(),
                                                    Lebensmittelverzeichnis());
    QVERIFY2(vorgelesen(0).contains(u"160,0 g in 100 g"_s), qPrintable(vorgelesen(0)));
    QVERIFY(m_tabelle->erklaertEtwas());
    QVERIFY(text(0, 1).endsWith(u"siehe unten"_s));
}

/// As it is written: a tooltip would else take "<b>" for bold type.
void TestUebernahmetabelle::aLongNameCanBeReadWhole()
{
    m_tabelle =
        std::make_unique<Uebernahmetabelle>(QList<Datenmodul>{speise(u"<b>Brot"_s, 1)},
                                            Lebensmittelbestand(), Lebensmittelverzeichnis());
    QCOMPARE(m_tabelle->index(0, 0).data(Qt::ToolTipRole).toString(), u"<p>&lt;b&gt;Brot</p>"_s);
}

void TestUebernahmetabelle::anEmptyFile()
{
    m_tabelle = std::make_unique<Uebernahmetabelle>(QList<Datenmodul>(), Lebensmittelbestand(),
                                                    Lebensmittelverzeichnis());
    QCOMPARE(m_tabelle->rowCount(), 0);
    QCOMPARE(m_tabelle->ersterVergebener(), -1);
    QVERIFY(!m_tabelle->erklaertEtwas());
    m_tabelle->waehleAlle(true);
    QCOMPARE(m_tabelle->ergebnis().anzahl(), 0);
}

QTEST_GUILESS_MAIN(TestUebernahmetabelle)
#include "TestUebernahmetabelle.moc"
