#include "Aufzeichnung.h"

#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QLocale>
#include <QUuid>

#include <algorithm>

const std::array<const char *, 6> ueblicheMahlzeiten = {
    QT_TRANSLATE_NOOP("Mahlberg", "Frühstück"),   QT_TRANSLATE_NOOP("Mahlberg", "Vormittag"),
    QT_TRANSLATE_NOOP("Mahlberg", "Mittagessen"), QT_TRANSLATE_NOOP("Mahlberg", "Nachmittag"),
    QT_TRANSLATE_NOOP("Mahlberg", "Abendessen"),  QT_TRANSLATE_NOOP("Mahlberg", "Spät"),
};

bool Mahlzeitzeile::operator==(const Mahlzeitzeile &andere) const
{
    return schluessel == andere.schluessel && text == andere.text && angabe == andere.angabe &&
           gramm == andere.gramm && oder == andere.oder &&
           eintrag.has_value() == andere.eintrag.has_value() &&
           (!eintrag || gleicherInhalt(*eintrag, *andere.eintrag));
}

QString neueKennung()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

Aufzeichnung neueAufzeichnung(Aufzeichnungsart art, const QDate &datum, int tage)
{
    Aufzeichnung neue;
    neue.art = art;
    neue.datum = datum;
    for (const char *name : ueblicheMahlzeiten) {
        neue.mahlzeiten << QString::fromUtf8(name);
    }
    Tag leerer;
    leerer.mahlzeiten.resize(neue.mahlzeiten.size());
    neue.tage.fill(leerer, std::clamp(tage, 1, meisteTage));
    return neue;
}

QString mahlzeitname(const QString &name)
{
    const bool ueblich =
        std::any_of(ueblicheMahlzeiten.begin(), ueblicheMahlzeiten.end(),
                    [&](const char *eine) { return name == QString::fromUtf8(eine); });
    return ueblich ? localizedString(name) : name;
}

QDate datumVon(const Aufzeichnung &aufzeichnung, int tag)
{
    return aufzeichnung.datum.isValid() ? aufzeichnung.datum.addDays(tag) : QDate();
}

QString tagesname(const Aufzeichnung &aufzeichnung, int tag)
{
    const QDate datum = datumVon(aufzeichnung, tag);
    if (!datum.isValid()) {
        return localizedString(QStringLiteral("Tag %1")).arg(tag + 1);
    }
    const QLocale land;
    return land.dayName(datum.dayOfWeek(), QLocale::ShortFormat) + u' ' +
           land.toString(datum, QLocale::ShortFormat);
}

bool zaehlt(const Mahlzeitzeile &zeile)
{
    return !zeile.oder && zeile.gramm && zeile.eintrag;
}

bool hatInhalt(const Mahlzeit &mahlzeit)
{
    return !mahlzeit.zeilen.isEmpty() || !mahlzeit.notiz.isEmpty();
}

bool hatInhalt(const Tag &tag)
{
    return !tag.notiz.isEmpty() ||
           std::any_of(tag.mahlzeiten.begin(), tag.mahlzeiten.end(),
                       [](const Mahlzeit &eine) { return hatInhalt(eine); });
}
