#include "Planmodul.h"

#include "Lebensmittelbestand.h"

Klient Planmodul::klient;

Planmodul::Planmodul(Plantueren tueren) : PlanmodulGestalt(), m_tueren(std::move(tueren))
{
    Dictionary = ladeBestand(m_tueren.eingebauteTabelle).verzeichnis;
    KundenDictionary =
        ladeEigenenBestand(m_tueren.datenordner.pathForDataFile(QStringLiteral("customdaten")))
            .verzeichnis;
}

Planmodul::~Planmodul()
{
    delete m_fenster;
}

QMainWindow *Planmodul::window()
{
    if (m_fenster == nullptr) {
        m_fenster = new QMainWindow;
        setupUi(m_fenster);
    }
    return m_fenster;
}

void Planmodul::showWindow()
{
    window()->show();
    m_fenster->raise();
    m_fenster->activateWindow();
}

void Planmodul::anthrouebergabe(int kilokalorien)
{
    klient.bedarf = kilokalorien;
}

void Planmodul::anthrouebergabe2(int kilokalorien)
{
    klient.unbereinigt = kilokalorien;
}

void Planmodul::anthrouebergabegewicht(float kilogramm)
{
    klient.gewicht = kilogramm;
}

void Planmodul::anthrouebergabegroesse(float meter)
{
    klient.groesse = meter;
}

void Planmodul::umschreibungMitName(const Datenmodul & /*lebensmittel*/) {}

void Planmodul::loeschenvonkundeneintraegen(const QString & /*name*/) {}

void Planmodul::nameimportvontoolbar(const QString & /*name*/) {}

const Datenmodul *Planmodul::lebensmittel(const QString &name) const
{
    for (const Lebensmittelverzeichnis *verzeichnis : {&Dictionary, &KundenDictionary}) {
        const auto gefunden = verzeichnis->constFind(name);
        if (gefunden != verzeichnis->constEnd()) {
            return &*gefunden;
        }
    }
    return nullptr;
}

void Planmodul::datenberechnen() {}

int Planmodul::numberOfRows() const
{
    return static_cast<int>(PlanArray.size());
}

QString Planmodul::objectValue(const QString & /*spalte*/, int /*zeile*/)
{
    return {};
}
