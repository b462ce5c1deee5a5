#include "Quellenvergleich.h"

#include "Feldzeilen.h"

#include <cmath>

namespace {

using namespace Qt::StringLiterals;

/// What a cell of the source says: no number where it is empty, a trace or not determined.
struct Quellzelle
{
    std::optional<double> zahl = {};
    bool lesbar = true;
    bool bestimmt = true; ///< not so: neither a number, nor a trace, nor less than a limit
};

Quellzelle zelle(const QString &text)
{
    if (text.isEmpty() || text == u"n.d.") {
        return {.bestimmt = false};
    }
    if (text == u"tr.") {
        return {};
    }
    const bool darunter = text.startsWith(u'<');
    bool gelungen = false;
    const double wert = (darunter ? text.mid(1) : text).toDouble(&gelungen);
    if (!gelungen || !std::isfinite(wert) || wert < 0) {
        return {.lesbar = false};
    }
    return darunter ? Quellzelle() : Quellzelle{wert};
}

/// Fills the entry from the cells behind the id.
Quelleintrag eintrag(const QList<std::optional<double>> &zahlen, const QStringList &unbestimmt)
{
    Quelleintrag ergebnis;
    qsizetype stelle = 0;
    for (double &wert : ergebnis.werte) {
        wert = zahlen.at(stelle++).value_or(0);
    }
    for (double *wert : {&ergebnis.zucker, &ergebnis.gesaettigt, &ergebnis.alkohol}) {
        *wert = zahlen.at(stelle++).value_or(0);
    }
    ergebnis.wasser = zahlen.at(stelle++);
    ergebnis.dichte = zahlen.at(stelle);
    ergebnis.unbestimmt = unbestimmt;
    return ergebnis;
}

} // namespace

QStringList Quellenvergleich::spalten()
{
    static const QStringList namen = [] {
        QStringList liste = {u"id"_s};
        for (const auto &zeile : naehrwerte) {
            liste.append(QString::fromLatin1(zeile.kennung));
        }
        return liste +
               QStringList{u"sugars"_s, u"saturated"_s, u"alcohol"_s, u"water"_s, u"density"_s};
    }();
    return namen;
}

Quellenvergleich::Ergebnis Quellenvergleich::lesen(QByteArrayView bytes)
{
    const auto [zeilen, formfehler] = Feldzeilen::lesen(bytes, spalten());
    Ergebnis ergebnis = {{}, formfehler};
    const auto beanstanden = [&](int nummer, const QString &meldung) {
        ergebnis.beanstandungen.append({nummer, Feldzeilen::formregel, meldung});
    };
    for (const auto &[nummer, felder] : zeilen) {
        QList<std::optional<double>> zahlen;
        QStringList unbestimmt;
        for (qsizetype i = 1; i < felder.size(); ++i) {
            const Quellzelle eine = zelle(felder.at(i));
            zahlen.append(eine.zahl);
            if (!eine.bestimmt) {
                unbestimmt.append(spalten().at(i));
            }
            if (!eine.lesbar) {
                const QString meldung = u"\"%1\" is no figure (column %2)"_s;
                beanstanden(nummer, meldung.arg(felder.at(i), spalten().at(i)));
            }
        }
        if (ergebnis.werte.contains(felder.first())) {
            beanstanden(nummer, u"the id %1 stands twice"_s.arg(felder.first()));
        }
        ergebnis.werte.insert(felder.first(), eintrag(zahlen, unbestimmt));
    }
    return ergebnis;
}

Beanstandungen Quellenvergleich::pruefen(const Tabellenzeile &zeile, const Quellwerte &quelle)
{
    Beanstandungen liste;
    const auto beanstanden = [&](const QString &meldung) {
        liste.append({zeile.zeile, u"source"_s, zeile.nameDe + u": "_s + meldung});
    };
    const auto gefunden = quelle.constFind(zeile.quelle);
    if (gefunden == quelle.cend()) {
        beanstanden(u"the source has no food \"%1\""_s.arg(zeile.quelle));
        return liste;
    }
    const auto vergleichen = [&](const QString &spalte, double hier, double dort) {
        if (hier != dort) {
            const QString meldung = u"%1 is %2, the source has %3"_s;
            beanstanden(meldung.arg(spalte).arg(hier).arg(dort));
        }
    };
    for (const auto &wert : naehrwerte) {
        vergleichen(QString::fromLatin1(wert.kennung), zeile.wert(wert.wert),
                    gefunden->werte[stelle(wert.wert)]);
    }
    vergleichen(u"sugars"_s, zeile.zucker, gefunden->zucker);
    vergleichen(u"saturated"_s, zeile.gesaettigt, gefunden->gesaettigt);
    vergleichen(u"alcohol"_s, zeile.alkohol, gefunden->alkohol);
    return liste;
}
