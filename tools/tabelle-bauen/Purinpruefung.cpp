#include "Purinpruefung.h"

#include "Feldzeilen.h"
#include "Wertungsregeln.h"

#include <cmath>

namespace {

using namespace Qt::StringLiterals;

const QString zwischenTeilen = u" + "_s;

/// A tenth that is lost in binary must not turn a half down.
constexpr double binaererRest = 1e-6;

/// A number that is finite and not negative.
std::optional<double> menge(const QString &text)
{
    bool gelungen = false;
    const double wert = text.toDouble(&gelungen);
    return gelungen && std::isfinite(wert) && wert >= 0 ? std::optional(wert) : std::nullopt;
}

QStringList eintragsfehler(const QString &name, const std::optional<double> &niedrig,
                           const std::optional<double> &hoch, const QStringList &schluessel)
{
    QStringList fehler;
    if (name.isEmpty() || name.contains(zwischenTeilen)) {
        fehler.append(u"\"%1\" can't be the name of a food"_s.arg(name));
    }
    if (!niedrig || !hoch || *niedrig > *hoch) {
        fehler.append(u"%1: the figures are no span"_s.arg(name));
    }
    for (const QString &einer : schluessel) {
        if (quelle(einer.toUtf8().constData()) == nullptr) {
            fehler.append(u"%1: there is no publication \"%2\""_s.arg(name, einer));
        }
    }
    return fehler;
}

} // namespace

QStringList Purinpruefung::spalten()
{
    return {u"food"_s, u"low"_s, u"high"_s, u"keys"_s, u"note"_s};
}

Purinpruefung::Ergebnis Purinpruefung::lesen(QByteArrayView bytes)
{
    const auto [zeilen, formfehler] = Feldzeilen::lesen(bytes, spalten());
    Ergebnis ergebnis = {{}, formfehler};
    for (const auto &[nummer, felder] : zeilen) {
        const QString &name = felder.first();
        const auto niedrig = menge(felder.at(1));
        const auto hoch = menge(felder.at(2));
        const QStringList schluessel = felder.at(3).split(u' ');
        QStringList fehler = eintragsfehler(name, niedrig, hoch, schluessel);
        if (ergebnis.purine.contains(name)) {
            fehler.append(u"%1 stands twice"_s.arg(name));
        }
        for (const QString &einer : fehler) {
            ergebnis.beanstandungen.append({nummer, Feldzeilen::formregel, einer});
        }
        ergebnis.purine.insert(name, {niedrig.value_or(0), hoch.value_or(0), schluessel});
    }
    return ergebnis;
}

Purinpruefung::Herkunft Purinpruefung::herkunft(const QString &text, const Purintabelle &purine)
{
    Herkunft ergebnis;
    for (const QString &teil : text.split(zwischenTeilen)) {
        if (const auto ganz = purine.constFind(teil); ganz != purine.cend()) {
            ergebnis.teile.append({100, *ganz});
            continue;
        }
        const auto gramm = menge(teil.section(u' ', 0, 0));
        const QString name = gramm ? teil.section(u' ', 1) : teil;
        if (gramm && *gramm <= 0) {
            ergebnis.fehler.append(u"\"%1\" weighs nothing"_s.arg(teil));
        } else if (!purine.contains(name)) {
            ergebnis.fehler.append(u"nothing is published about \"%1\""_s.arg(name));
        } else {
            ergebnis.teile.append({*gramm, purine.value(name)});
        }
    }
    return ergebnis;
}

double Purinpruefung::harnsaeure(const QList<Teil> &teile)
{
    double summe = 0;
    for (const Teil &teil : teile) {
        summe += teil.gramm / 100 * teil.eintrag.mitte();
    }
    return std::floor(summe * 10 + 0.5 + binaererRest) / 10;
}

QString Purinpruefung::schluessel(const QList<Teil> &teile)
{
    QStringList alle;
    for (const Teil &teil : teile) {
        alle += teil.eintrag.schluessel;
    }
    alle.removeDuplicates();
    return alle.join(u' ');
}

Beanstandungen Purinpruefung::pruefen(const Tabellenzeile &zeile, const Purintabelle &purine)
{
    Beanstandungen liste;
    const auto beanstanden = [&](const QString &meldung) {
        liste.append({zeile.zeile, u"purines"_s, zeile.nameDe + u": "_s + meldung});
    };
    if (zeile.purinherkunft.isEmpty() != zeile.purinklasse.has_value()) {
        beanstanden(u"either purine_from or purine_class must be filled"_s);
    }
    if (zeile.purinherkunft.isEmpty()) {
        if (zeile.harnsaeure || !zeile.purinquellen.isEmpty()) {
            beanstanden(u"a figure or a key needs what it comes from"_s);
        }
        return liste;
    }
    const auto [teile, fehler] = herkunft(zeile.purinherkunft, purine);
    for (const QString &einer : fehler) {
        beanstanden(einer);
    }
    if (!fehler.isEmpty()) {
        return liste;
    }
    const double soll = harnsaeure(teile);
    if (!zeile.harnsaeure || std::abs(*zeile.harnsaeure - soll) > binaererRest) {
        const QString meldung = u"uric_acid must be %1, as its parts give"_s;
        beanstanden(meldung.arg(soll));
    }
    if (zeile.purinquellen != schluessel(teile)) {
        beanstanden(u"the keys of its parts are \"%1\""_s.arg(schluessel(teile)));
    }
    const bool reinerEintrag = teile.size() == 1 && teile.first().gramm == 100;
    if (!reinerEintrag && zeile.notiz.isEmpty()) {
        beanstanden(u"parts or grams need their reason in the note"_s);
    }
    return liste;
}
