#include "Lebensmitteldatei.h"

#include "Archivdatei.h"
#include "Archivformat.h"
#include "Lebensmittelbestand.h"

#include <QFileInfo>

#include <algorithm>

namespace {

/// The signature stands behind the version of the stream and its own length.
constexpr qsizetype signaturstelle = 2;

bool hatSignatur(QByteArrayView bytes, QByteArrayView signatur)
{
    return bytes.sliced(std::min(signaturstelle, bytes.size())).startsWith(signatur);
}

bool gleicheDatei(const QString &eine, const QString &andere)
{
    const QString ziel = QFileInfo(eine).canonicalFilePath();
    return !ziel.isEmpty() && ziel == QFileInfo(andere).canonicalFilePath();
}

Dateihindernis hindernisVorDemLesen(const QString &path, const QString &eigene, const QString &plan)
{
    const QFileInfo info(path);
    if (info.isDir()) {
        return Dateihindernis::Ordner;
    }
    if (info.exists() && !info.isFile()) {
        return Dateihindernis::KeineDatei;
    }
    if (info.size() > Archivdatei::groessteDatei) {
        return Dateihindernis::ZuGross;
    }
    if (gleicheDatei(path, eigene)) {
        return Dateihindernis::EigeneDatei;
    }
    return gleicheDatei(path, plan) ? Dateihindernis::EigenerPlan : Dateihindernis::Keines;
}

Dateihindernis hindernisIn(const Archivdatei::Rohdaten &daten, const Archivdatei::Inhalt &inhalt)
{
    switch (inhalt.zustand) {
    case Archivdatei::Zustand::Fehlt:
        return Dateihindernis::Fehlt;
    case Archivdatei::Zustand::Unlesbar:
        return Dateihindernis::NichtLesbar;
    case Archivdatei::Zustand::Beschaedigt:
        break;
    case Archivdatei::Zustand::Gelesen:
        return Dateihindernis::Keines;
    }
    if (daten.bytes.isEmpty()) {
        return Dateihindernis::Leer;
    }
    const bool bekannt = hatSignatur(daten.bytes, Archivformat::signaturLittleEndian) ||
                         hatSignatur(daten.bytes, Archivformat::signaturBigEndian);
    return bekannt ? Dateihindernis::Beschaedigt : Dateihindernis::Fremd;
}

/// A food of the user's has texts for its ratings, if only empty ones, and hardly nothing but
/// energy; a row of a plan has none, and its amount where the energy stands.
bool istPlanzeile(const Datenmodul &eines)
{
    const bool ohneWerte =
        std::all_of(naehrwerte.begin() + 1, naehrwerte.end(),
                    [&eines](const auto &zeile) { return eines.wert(zeile.wert) == 0; });
    return ohneWerte &&
           std::all_of(wertungen.begin(), wertungen.end(), [&eines](const auto &zeile) {
               return eines.wertung(zeile.wertung).isNull();
           });
}

void nimmAuf(Lebensmitteldatei &datei, const Archiver::Ergebnis &archiv)
{
    datei.doppelte = archiv.eintraege - archiv.verzeichnis.size();
    datei.rest = archiv.rest;
    for (const QString &name : sortiertNachName(archiv.verzeichnis.keys())) {
        Datenmodul eines = archiv.verzeichnis.value(name);
        if (name.isEmpty()) {
            ++datei.ohneNamen;
        } else if (eines.name() != name) {
            datei.andererName << name;
        }
        eines.setName(name);
        datei.lebensmittel << eines;
    }
    datei.istPlan =
        !datei.lebensmittel.isEmpty() &&
        std::all_of(datei.lebensmittel.cbegin(), datei.lebensmittel.cend(), istPlanzeile);
}

} // namespace

Lebensmitteldatei oeffneLebensmitteldatei(const QString &path, const QString &eigene,
                                          const QString &plan)
{
    Lebensmitteldatei datei;
    datei.path = path;
    datei.hindernis = hindernisVorDemLesen(path, eigene, plan);
    if (!datei.lesbar()) {
        return datei;
    }
    const Archivdatei::Rohdaten daten = Archivdatei::leseBytes(path);
    const Archivdatei::Inhalt inhalt = Archivdatei::deute(daten);
    datei.hindernis = hindernisIn(daten, inhalt);
    datei.stelle = inhalt.archiv.position;
    datei.bigEndian = hatSignatur(daten.bytes, Archivformat::signaturBigEndian);
    if (datei.lesbar()) {
        nimmAuf(datei, inhalt.archiv);
    }
    return datei;
}
