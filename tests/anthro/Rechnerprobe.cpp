#include "Rechnerprobe.h"

#include <QCoreApplication>
#include <QLocale>

Planprobe::Planprobe(Plantueren tueren, QStringList &rufe)
    : Planmodul(std::move(tueren))
    , m_rufe(rufe)
{
}

void Planprobe::anthrouebergabe(int kilokalorien)
{
    m_rufe << QStringLiteral("kal %1").arg(kilokalorien);
    Planmodul::anthrouebergabe(kilokalorien);
}

void Planprobe::anthrouebergabe2(int kilokalorien)
{
    m_rufe << QStringLiteral("unbereinigt %1").arg(kilokalorien);
    Planmodul::anthrouebergabe2(kilokalorien);
}

void Planprobe::anthrouebergabegewicht(float kilogramm)
{
    m_rufe << QStringLiteral("gewicht %1").arg(static_cast<double>(kilogramm));
    Planmodul::anthrouebergabegewicht(kilogramm);
}

void Planprobe::anthrouebergabegroesse(float meter)
{
    m_rufe << QStringLiteral("groesse %1").arg(static_cast<double>(meter));
    Planmodul::anthrouebergabegroesse(meter);
}

Rechnerprobe::Rechnerprobe(const Gemerktes &gemerktes)
    : m_einstellungen(std::make_unique<QSettings>(m_ordner.filePath(QStringLiteral("probe.ini")),
                                                  QSettings::IniFormat))
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    for (const auto &[schluessel, wert] : gemerktes) {
        m_einstellungen->setValue(QLatin1String(schluessel), wert);
    }
    const auto neuerPlan = [this] {
        ++eigenePlaene;
        return std::make_unique<Planprobe>(
            Plantueren{
                .eingebauteTabelle = m_ordner.filePath(QStringLiteral("fehlt.daten")),
                .datenordner = Datenordner(m_ordner.path()),
                .melde = [](QWidget *, const Meldung &) { return 0; },
            },
            m_rufe);
    };
    m_rechner = std::make_unique<AnthroController>(Anthrotueren{
        .einstellungen = m_einstellungen.get(),
        .protokolliere = [this](const QString &zeile) { protokoll << zeile; },
        .neuerPlan = neuerPlan,
    });
    m_rechner->awakeFromNib();
}

std::unique_ptr<Rechnerprobe> Rechnerprobe::mitKlient()
{
    auto probe = std::make_unique<Rechnerprobe>(Gemerktes{
        {"Gewicht", 80.0}, {"Groesse", 1.8}, {"Taille", 71.0}, {"Huefte", 86.0}, {"metrik", 1.0}});
    probe->rufe();
    return probe;
}

QString Rechnerprobe::text(const QLineEdit &feld)
{
    QCoreApplication::processEvents();
    return feld.text().replace(QChar(QChar::Nbsp), QLatin1Char(' '));
}
