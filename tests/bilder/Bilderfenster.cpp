#include "Bilderfenster.h"

#include "Erscheinungsbild.h"

#include <QSlider>

Bilderfenster::Bilderfenster(const QString &sprache, Eigene eigene) : m_sprache(sprache)
{
    m_sprache.sprich(sprache); // the home has a desk of its own
    Planmodul::klient = {};
    m_heim.wertungstabelle = QStringLiteral(":/Lebensmittel.csv");
    m_heim.drucke = [this](QWidget *fenster, const Druckauftrag &auftrag) {
        if (drucke) {
            drucke(fenster, auftrag);
        }
    };
    m_heim.waehleDatei = [](QWidget *, const Dateifrage &, const auto &) {
    };
    if (eigene == Eigene::Mit) {
        m_heim.schreibeTabelle(bildertafel());
        m_heim.schreibeEigene(bildereigene());
    } else {
        m_heim.schreibeTabelle(bildertafelMitLeerzeile());
    }
    m_fenster = std::make_unique<Probefenster>(m_heim);
    controller().Hauptfenster->resize(Bilderrahmen::gewoehnlich);
}

Bilderfenster::~Bilderfenster()
{
    m_fenster.reset();
    zeigeErscheinungsbild(Erscheinungsbild::Hell);
}

void Bilderfenster::waehle(const QString &name) const
{
    controller().Tabelle->waehle(static_cast<int>(controller().Array.indexOf(name)),
                                 QStringLiteral("name"));
    QCOMPARE(controller().unuebersetztername, name);
}

void Bilderfenster::rechne() const
{
    AnthroController &r = rechner();
    const std::pair<Schieber *, double> eingaben[] = {
        {r.gewichtn, 80}, {r.groessen, 1.8}, {r.taillen, 71},
        {r.hueftn, 86},   {r.alter, 42},     {r.zieher, 500},
    };
    for (const auto &[regler, zahl] : eingaben) {
        regler->setDoubleValue(zahl);
        Q_EMIT regler->betaetigt();
    }
    r.sport->setStringValue(QStringLiteral("Karate"));
    r.welchersport(*r.sport);
    r.sportmenge->setDoubleValue(1.5);
    r.wievielsport(*r.sportmenge);
}

void Bilderfenster::oeffnePlan() const
{
    controller().Planmoduloeffnen();
    QWidget *fenster = plan().window();
    fenster->resize(Bilderrahmen::gewoehnlich);
    QVERIFY(QTest::qWaitForWindowActive(fenster));
}

void Bilderfenster::plane() const
{
    oeffnePlan();
    Tabellenmodell &tabelle = *plan().PlanTabelle->modell();
    const int menge = tabelle.spaltenstelle(QStringLiteral("menge"));
    for (const auto &[name, gramm] : bildertag()) {
        plan().nameimportvontoolbar(name);
        tabelle.setData(tabelle.index(tabelle.rowCount() - 1, menge), QString::number(gramm),
                        Qt::EditRole);
    }
    QCoreApplication::processEvents(); // what is printed is what is seen
}

void Bilderfenster::pruefe(const QString &name) const
{
    Bilderrahmen::pruefe(name, *controller().Hauptfenster);
}
