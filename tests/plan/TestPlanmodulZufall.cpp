#include "Archivdatei.h"
#include "Listenmodell.h"
#include "Planprobe.h"

#include <QMimeData>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QStringList eingebaut = {u"apfel"_s, u"Brot"_s, u"Ei"_s, u"Milch"_s};
const QStringList eigene = {u"Eigenes"_s, u"brei"_s};
const QStringList alle = eingebaut + eigene + QStringList(u"Niemand"_s);

struct Eingabe
{
    const char *text;
    float gramm;
};

constexpr std::array<Eingabe, 8> eingaben = {{{"40", 40},
                                              {"12,5", 12.5F},
                                              {"12.5", 12.5F},
                                              {"1.250", 1.25F},
                                              {"0", 0},
                                              {"-3,75", -3.75F},
                                              {"viel", 0},
                                              {"", 0}}};

/// The plan's lists, its copy of the own foods (name and fat), and what the window shows.
struct Planmodell : Listenmodell
{
    std::map<QString, float> eigene;
    std::map<QString, float> eigeneDatei;
    std::vector<QString> gezeigteNamen;
    std::vector<float> gezeigteMengen;

    void ladeNeu()
    {
        gezeigteNamen = namen;
        gezeigteMengen = mengen;
    }
    void aendereGezeigte(std::size_t zeile, float gramm)
    {
        aendere(zeile, gramm);
        gezeigteNamen.at(zeile) = namen.at(zeile);
        gezeigteMengen.at(zeile) = gramm;
    }
    void loescheEigenes(const QString &name)
    {
        eigene.erase(name);
        eigeneDatei = eigene;
        const auto gefunden = std::find(namen.begin(), namen.end(), name);
        entferne(static_cast<std::size_t>(gefunden - namen.begin()));
        ladeNeu();
    }
    void speichereEigenes(const QString &name, float fett)
    {
        eigene[name] = fett;
        eigeneDatei = eigene;
    }
    /// The table asks for the cells of its rows.
    void frageZellen()
    {
        if (std::any_of(gezeigteNamen.begin(), gezeigteNamen.end(),
                        [](const QString &name) { return !eingebaut.contains(name); })) {
            eigeneDatei = eigene;
        }
    }
    void starteNeu()
    {
        lager = datei;
        eigene = eigeneDatei;
        namen.clear();
        mengen.clear();
        for (const auto &[name, gramm] : datei) {
            namen.push_back(name);
        }
        std::sort(namen.begin(), namen.end(), [](const QString &a, const QString &b) {
            return a.compare(b, Qt::CaseInsensitive) < 0;
        });
        for (const QString &name : namen) {
            mengen.push_back(std::trunc(datei[name]));
        }
        ladeNeu();
    }
};

} // namespace

/// Thousands of random operations on a plan, compared after each with what a colleague would say
/// that they do: the rows, both files, and what the table shows.
class TestPlanmodulZufall : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void operations_data();
    void operations();

private:
    void oeffne();
    void einSchritt();
    void wirfAb(const QString &name, int zeile);
    void zieheInnerhalb();
    void tippe();
    void entferne();
    void mitEigenemLebensmittel(const QString &name);
    void vonAndererHand();
    void vergleiche();
    void vergleicheEigene();
    int eineZeile()
    {
        return m_zufall.bounded(static_cast<int>(m_modell.gezeigteNamen.size()) + 1);
    }
    bool gibtEs(int zeile) const { return zeile < static_cast<int>(m_modell.gezeigteNamen.size()); }

    std::unique_ptr<Planheim> m_heim;
    std::unique_ptr<Planfenster> m_fenster;
    Planmodell m_modell;
    QByteArray m_eigeneBytes;          ///< of the file of own foods, as it was read last
    std::map<QString, float> m_eigene; ///< that are in it
    QRandomGenerator m_zufall;
};

void TestPlanmodulZufall::init()
{
    vergissKlient();
    m_fenster.reset();
    m_heim = std::make_unique<Planheim>();
    m_modell = {};
    m_eigeneBytes.clear();
    m_eigene.clear();
    QList<Datenmodul> tabelle;
    for (const QString &name : eingebaut) {
        tabelle << speise(name);
    }
    m_heim->schreibeTabelle(tabelle);
    oeffne();
}

void TestPlanmodulZufall::oeffne()
{
    m_fenster.reset();
    m_fenster = std::make_unique<Planfenster>(*m_heim);
    // What is painted is not looked at, and takes long where there is much of it.
    QWidget &fenster = *m_fenster->plan().window();
    fenster.resize(fenster.minimumSizeHint());
}

void TestPlanmodulZufall::wirfAb(const QString &name, int zeile)
{
    QVERIFY(m_fenster->wirfAbUeber(name, zeile));
    m_modell.abwurf(name, static_cast<std::size_t>(zeile));
    m_modell.ladeNeu();
}

void TestPlanmodulZufall::zieheInnerhalb()
{
    const int von = eineZeile();
    if (gibtEs(von)) {
        const std::unique_ptr<QMimeData> daten(
            (*m_fenster)->PlanTabelle->ziehdaten(von, QPoint(30, 1)));
        QCOMPARE(daten->text(), m_modell.gezeigteNamen[static_cast<std::size_t>(von)]);
        wirfAb(daten->text(), eineZeile());
    }
}

void TestPlanmodulZufall::tippe()
{
    const int zeile = eineZeile();
    const Eingabe &eingabe = eingaben[m_zufall.bounded(static_cast<quint32>(eingaben.size()))];
    if (gibtEs(zeile)) {
        QVERIFY((*m_fenster)
                    ->PlanTabelle->model()
                    ->setData(m_fenster->index(zeile, u"menge"_s),
                              QString::fromLatin1(eingabe.text), Qt::EditRole));
        m_modell.aendereGezeigte(static_cast<std::size_t>(zeile), eingabe.gramm);
    }
}

void TestPlanmodulZufall::entferne()
{
    const int zeile = eineZeile();
    (*m_fenster)->PlanTabelle->clearSelection();
    (*m_fenster)->PlanTabelle->selectRow(zeile); // none below all rows
    (*m_fenster)->Lebensmittelentfernen();
    m_modell.entferne(gibtEs(zeile) ? static_cast<std::size_t>(zeile) : std::size_t(-1));
    m_modell.ladeNeu();
}

void TestPlanmodulZufall::mitEigenemLebensmittel(const QString &name)
{
    if (m_zufall.bounded(2) == 0) {
        const auto fett = static_cast<float>(m_zufall.bounded(4));
        (*m_fenster)->umschreibungMitName(speise(name, {{Naehrwert::fett, fett}}));
        m_modell.speichereEigenes(name, fett);
    } else {
        (*m_fenster)->loeschenvonkundeneintraegen(name);
        m_modell.loescheEigenes(name);
    }
}

/// The main window writes the file, and the plan does not hear of it.
void TestPlanmodulZufall::vonAndererHand()
{
    const auto fett = static_cast<float>(m_zufall.bounded(100));
    m_heim->schreibeEigene({speise(u"brei"_s, {{Naehrwert::fett, fett}})});
    m_modell.eigeneDatei = {{u"brei"_s, fett}};
}

void TestPlanmodulZufall::einSchritt()
{
    const QString &name = alle[m_zufall.bounded(static_cast<int>(alle.size()))];
    const int was = m_zufall.bounded(100);
    if (was < 25) {
        wirfAb(name, eineZeile());
    } else if (was < 35) {
        zieheInnerhalb();
    } else if (was < 50) {
        (*m_fenster)->nameimportvontoolbar(name);
        m_modell.uebernahme(name);
        m_modell.ladeNeu();
    } else if (was < 65) {
        tippe();
    } else if (was < 75) {
        entferne();
    } else if (was < 90) {
        mitEigenemLebensmittel(eigene[m_zufall.bounded(2)]);
    } else if (was < 97) {
        vonAndererHand();
    } else {
        oeffne();
        m_modell.starteNeu();
        m_modell.frageZellen(); // the window came up
    }
}

/// Asked several times after each step, and seldom is anything written between.
void TestPlanmodulZufall::vergleicheEigene()
{
    const QByteArray bytes = Archivdatei::leseBytes(m_heim->eigeneDatei()).bytes;
    if (bytes != m_eigeneBytes) {
        m_eigeneBytes = bytes;
        m_eigene.clear();
        for (const Datenmodul &eines : m_heim->eigene()) {
            m_eigene[eines.name()] = eines.fett();
        }
    }
    QCOMPARE(m_eigene, m_modell.eigeneDatei);
}

void TestPlanmodulZufall::vergleiche()
{
    const Planmodul &plan = m_fenster->plan();
    QCOMPARE(plan.PlanArray, QStringList(m_modell.namen.begin(), m_modell.namen.end()));
    QCOMPARE(plan.mengenarray, QList<float>(m_modell.mengen.begin(), m_modell.mengen.end()));
    QCOMPARE(m_heim->plan(), (QMap<QString, float>(m_modell.datei)));
    vergleicheEigene();
    QStringList namen;
    QStringList mengen;
    for (std::size_t i = 0; i < m_modell.gezeigteNamen.size(); ++i) {
        const QString &name = m_modell.gezeigteNamen[i];
        namen << (plan.lebensmittel(name) != nullptr ? name : QString());
        mengen
            << QString::number(static_cast<double>(m_modell.gezeigteMengen[i])).replace(u'.', u',');
    }
    QCOMPARE(m_fenster->spalte(u"menge"_s), mengen);
    vergleicheEigene(); // an amount is not the own foods' matter
    QCOMPARE(m_fenster->spalte(u"name"_s), namen);
    m_modell.frageZellen();
    vergleicheEigene();
}

void TestPlanmodulZufall::operations_data()
{
    QTest::addColumn<quint32>("saat");
    for (const quint32 saat : {8711U, 8712U, 8713U}) {
        QTest::addRow("seed %u", saat) << saat;
    }
}

void TestPlanmodulZufall::operations()
{
    QFETCH(quint32, saat);
    m_zufall.seed(saat);
    int abgebrochen = 0;
    constexpr int schritte = 1500;
    for (int schritt = 0; schritt < schritte; ++schritt) {
        try {
            einSchritt();
        } catch (const std::out_of_range &) {
            ++abgebrochen; // the window goes on, and so does the comparison
        }
        vergleiche();
        if (QTest::currentTestFailed()) {
            qCritical("after step %d", schritt);
            return;
        }
    }
    QVERIFY(abgebrochen > schritte / 10 && abgebrochen < schritte / 2); // both ways were gone
}

QTEST_MAIN(TestPlanmodulZufall)
#include "TestPlanmodulZufall.moc"
