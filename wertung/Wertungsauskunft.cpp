#include "Wertungsauskunft.h"

#include "Tabellendatei.h"

#include <QFile>

QStringList Wertungsauskunft::erklaerung(const QString &name, Wertung wertung,
                                         const QString &urteil, Regelsprache sprache,
                                         const QLocale &zahlen) const
{
    if (!m_zeilen) {
        m_zeilen = gelesen();
    }
    const auto zeile = m_zeilen->constFind(name);
    if (zeile == m_zeilen->constEnd()) {
        return {};
    }
    const Wertungserklaerung erklaerung(wertung, *zeile, sprache, zahlen);
    const bool stimmt =
        erklaerung.regel() != nullptr && urteil == QLatin1String(erklaerung.regel()->urteil);
    return stimmt ? erklaerung.zeilen() : QStringList();
}

Wertungsauskunft::Verzeichnis Wertungsauskunft::gelesen() const
{
    Verzeichnis zeilen;
    QFile datei(m_tabelle);
    if (m_tabelle.isEmpty() || !datei.open(QIODevice::ReadOnly)) {
        return zeilen;
    }
    const Tabelle tabelle = Tabellendatei::lesen(datei.readAll()).tabelle;
    zeilen.reserve(tabelle.size());
    for (const Tabellenzeile &zeile : tabelle) {
        zeilen.insert(zeile.nameDe, zeile);
    }
    return zeilen;
}
