#include "Feldworte.h"

#include "Aufzeichnungstext.h"
#include "Planpostentext.h"
#include "Sportworte.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

QString ja(const QVariant &wert)
{
    static const char *const worte[] = {QT_TRANSLATE_NOOP("Mahlberg", "nein"),
                                        QT_TRANSLATE_NOOP("Mahlberg", "ja")};
    return localizedString(QString::fromUtf8(worte[wert.toInt() != 0 ? 1 : 0]));
}

QString tag(const QVariant &wert)
{
    return tagesworte(QDate::fromString(wert.toString(), Qt::ISODate));
}

QString anzahlZeilen(const QVariant &wert)
{
    const std::optional<QList<Planposten>> posten = postenAusText(wert.toString().toUtf8());
    return posten ? QString::number(posten->size()) : QString();
}

QString anzahlTage(const QVariant &wert)
{
    const qsizetype tage = leseAufzeichnung(wert.toString().toUtf8()).aufzeichnung.tage.size();
    return tage > 0 ? QString::number(tage) : QString();
}

QString sport(const QVariant &wert)
{
    return sportworte(wert.toString());
}

QString text(const QVariant &wert)
{
    return wert.toString();
}

template <QStringList (*worte)()>
QString wahl(const QVariant &wert)
{
    return worte().value(wert.toInt());
}

template <int nachkommastellen>
QString zahl(const QVariant &wert)
{
    return zahlenform().toString(wert.toDouble(), 'f', nachkommastellen);
}

/// How a field is told about; those that are not here are texts.
struct Feldform
{
    const char *spalte;
    QString (*worte)(const QVariant &);
    const char *einheit = "";
};

constexpr std::array feldformen = {
    Feldform{"geburt", tag},
    Feldform{"datum", tag},
    Feldform{"geschlecht", wahl<geschlechtsworte>},
    Feldform{"umstand", wahl<umstandsworte>},
    Feldform{"uebergewicht", ja},
    Feldform{"diabetes", ja},
    Feldform{"gicht", ja},
    Feldform{"hkk", ja},
    Feldform{"archiviert", ja},
    Feldform{"gewicht", zahl<1>, "kg"},
    Feldform{"groesse", zahl<2>, "m"},
    Feldform{"taille", zahl<1>, "cm"},
    Feldform{"huefte", zahl<1>, "cm"},
    Feldform{"aktivitaet", wahl<aktivitaetsworte>},
    Feldform{"reduktion", ja},
    Feldform{"sport", sport},
    Feldform{"sportdauer", zahl<1>, "h"},
    Feldform{"posten", anzahlZeilen},
    Feldform{"art", wahl<aufzeichnungsworte>},
    Feldform{"tage", anzahlTage},
};

Feldform formVon(const char *spalte)
{
    const auto *form =
        std::find_if(feldformen.begin(), feldformen.end(),
                     [spalte](const Feldform &eine) { return qstrcmp(eine.spalte, spalte) == 0; });
    return form != feldformen.end() ? *form : Feldform{spalte, text};
}

QStringList uebersetzt(std::initializer_list<const char *> worte)
{
    QStringList ergebnis;
    for (const char *wort : worte) {
        ergebnis << localizedString(QString::fromUtf8(wort));
    }
    return ergebnis;
}

} // namespace

QString tagesworte(const QDate &tag)
{
    QString form = QLocale().dateFormat(QLocale::ShortFormat);
    if (!form.contains(QLatin1String("yyyy"))) {
        form.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    }
    return tag.isValid() ? QLocale().toString(tag, form) : QString();
}

QString feldworte(const char *spalte, const QVariant &wert)
{
    if (wert.isNull()) {
        return {};
    }
    const Feldform form = formVon(spalte);
    const QString worte = form.worte(wert);
    return *form.einheit == '\0' ? worte : worte + u' ' + QLatin1String(form.einheit);
}

QString feldeinheit(const char *spalte)
{
    return QLatin1String(formVon(spalte).einheit);
}

QStringList geschlechtsworte()
{
    return uebersetzt({QT_TRANSLATE_NOOP("Mahlberg", "unbekannt"),
                       QT_TRANSLATE_NOOP("Mahlberg", "Mann"),
                       QT_TRANSLATE_NOOP("Mahlberg", "Frau")});
}

QStringList umstandsworte()
{
    return uebersetzt({QT_TRANSLATE_NOOP("Mahlberg", "keines von beiden"),
                       QT_TRANSLATE_NOOP("Mahlberg", "schwanger"),
                       QT_TRANSLATE_NOOP("Mahlberg", "stillend")});
}

QStringList aktivitaetsworte()
{
    return uebersetzt({QT_TRANSLATE_NOOP("Mahlberg", "leichte Tätigkeit"),
                       QT_TRANSLATE_NOOP("Mahlberg", "mittlere Tätigkeit"),
                       QT_TRANSLATE_NOOP("Mahlberg", "schwere Tätigkeit")});
}

QStringList aufzeichnungsworte()
{
    return uebersetzt(
        {QT_TRANSLATE_NOOP("Mahlberg", "Protokoll"), QT_TRANSLATE_NOOP("Mahlberg", "Wochenplan")});
}
