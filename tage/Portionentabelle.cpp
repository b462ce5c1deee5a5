#include "Portionentabelle.h"

#include "Tabellendatei.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

using namespace Qt::StringLiterals;

/// The bytes of a file, or why there are none.
struct Bytes
{
    QByteArray inhalt = {};
    QString hindernis = {};
};

Bytes leseBytes(const QString &pfad)
{
    QFile datei(pfad);
    if (pfad.isEmpty() || !datei.open(QIODevice::ReadOnly)) {
        return {{}, u"%1: %2"_s.arg(pfad, datei.errorString())};
    }
    QByteArray inhalt = datei.readAll();
    if (datei.error() != QFileDevice::NoError) {
        return {{}, u"%1: %2"_s.arg(pfad, datei.errorString())};
    }
    return {std::move(inhalt), {}};
}

/// The first objection as one reads it; absent without any.
QString ersterEinwand(const QString &pfad, const Beanstandungen &beanstandungen)
{
    if (beanstandungen.isEmpty()) {
        return {};
    }
    const Beanstandung &erste = beanstandungen.first();
    return u"%1:%2: %3"_s.arg(QFileInfo(pfad).fileName()).arg(erste.zeile).arg(erste.meldung);
}

} // namespace

QList<Mass> Portionentabelle::masseFuer(const QString &schluessel) const
{
    const QString gruppe = gelesen().gruppen.value(schluessel);
    QList<Mass> masse;
    for (const Portionszeile &zeile :
         Portionendatei::zeilenFuer(gelesen().portionen.value(gruppe), gruppe, schluessel)) {
        masse.append(zeile.mass);
    }
    return masse;
}

QString Portionentabelle::hindernis() const
{
    return gelesen().hindernis;
}

const Portionentabelle::Gelesenes &Portionentabelle::gelesen() const
{
    if (m_gelesen) {
        return *m_gelesen;
    }
    Gelesenes &neu = m_gelesen.emplace();
    const Bytes portionsbytes = leseBytes(m_portionen);
    const Bytes lebensmittelbytes = leseBytes(m_lebensmittel);
    const auto [portionen, portionsfehler] = Portionendatei::lesen(portionsbytes.inhalt);
    const auto [tabelle, tabellenfehler] = Tabellendatei::lesen(lebensmittelbytes.inhalt);
    for (const QString &hindernis : {portionsbytes.hindernis, lebensmittelbytes.hindernis,
                                     ersterEinwand(m_portionen, portionsfehler),
                                     ersterEinwand(m_lebensmittel, tabellenfehler)}) {
        if (!hindernis.isNull()) {
            neu.hindernis = hindernis;
            return neu;
        }
    }
    for (const Portionszeile &zeile : portionen) {
        for (const QString &gruppe : zeile.gruppen) {
            neu.portionen[gruppe].append(zeile);
        }
    }
    for (const Tabellenzeile &zeile : tabelle) {
        neu.gruppen.insert(zeile.nameDe, QString::fromUtf8(zeile.gruppe->name));
    }
    return neu;
}
