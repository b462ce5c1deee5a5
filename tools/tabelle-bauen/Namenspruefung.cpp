#include "Namenspruefung.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

using namespace Qt::StringLiterals;

const QString namensregel = u"name"_s;

/// g per ml, to turn alcohol by weight into alcohol by volume.
constexpr double dichteDesAlkohols = 0.789;

/// A figure in a name is rounded to the whole, or to what stands on the bottle.
constexpr double spielraum = 0.5;
constexpr double binaererRest = 1e-9;

/// How a language writes figures into names.
struct Schreibweise
{
    QString Tabellenzeile::*name;
    QChar komma;
    QChar falschesKomma;
    QRegularExpression angabe; ///< captures the figure, the end of a span, and what is meant
    QString fett;
    QString fettInTrockenmasse;
};

QRegularExpression angabe(const QString &worte)
{
    return QRegularExpression(u"(\\d[\\d.,]*)(?:-(\\d[\\d.,]*))? ?% ?(%1)\\b"_s.arg(worte));
}

const std::array<Schreibweise, 2> &schreibweisen()
{
    static const std::array<Schreibweise, 2> beide = {{
        {&Tabellenzeile::nameDe, u',', u'.', angabe(u"Fett i\\. Tr|Fett|vol"_s), u"Fett"_s,
         u"Fett i. Tr"_s},
        {&Tabellenzeile::nameEn, u'.', u',', angabe(u"fat in dry matter|fat|vol"_s), u"fat"_s,
         u"fat in dry matter"_s},
    }};
    return beide;
}

bool istNamenszeichen(QChar zeichen)
{
    static const QString satzzeichen = u" ,.()%-/'&"_s;
    return zeichen.isLetterOrNumber() || satzzeichen.contains(zeichen);
}

QStringList namensfehler(const QString &name)
{
    QStringList fehler;
    if (name.isEmpty() || !name.front().isUpper()) {
        fehler.append(u"must begin with a capital letter"_s);
    }
    if (name.size() > Namenspruefung::laengsterName) {
        fehler.append(u"has %1 characters, more than 48"_s.arg(name.size()));
    }
    if (name != name.simplified()) {
        fehler.append(u"has a blank too many"_s);
    }
    if (!std::all_of(name.begin(), name.end(), istNamenszeichen)) {
        fehler.append(u"holds a character that no name needs"_s);
    }
    // The selection of a food of this very name shows nothing.
    if (name.compare(u"Mettwurst"_s, Qt::CaseInsensitive) == 0) {
        fehler.append(u"can't be shown under this name alone"_s);
    }
    return fehler;
}

bool hatFalschesKomma(const QString &name, QChar falsches)
{
    for (qsizetype i = 1; i + 1 < name.size(); ++i) {
        if (name.at(i) == falsches && name.at(i - 1).isDigit() && name.at(i + 1).isDigit()) {
            return true;
        }
    }
    return false;
}

/// What the food holds of the thing that a name gives in percent; nothing where the source leaves
/// it open.
std::optional<double> anteil(const QString &was, const Schreibweise &schreibweise,
                             const Tabellenzeile &zeile, const Quelleintrag &quelle)
{
    const double fett = zeile.wert(Naehrwert::fett);
    if (was == schreibweise.fett) {
        return fett;
    }
    if (was == schreibweise.fettInTrockenmasse) {
        return quelle.wasser ? std::optional(100 * fett / (100 - *quelle.wasser)) : std::nullopt;
    }
    return zeile.alkohol * quelle.dichte.value_or(1) / dichteDesAlkohols;
}

/// One figure or span of a name against the food; empty when it is right.
QString angabenfehler(const QRegularExpressionMatch &treffer, const Schreibweise &schreibweise,
                      const Tabellenzeile &zeile, const Quelleintrag &quelle)
{
    const auto zahl = [&](int stelle) {
        return treffer.captured(stelle).replace(schreibweise.komma, u'.').toDouble();
    };
    const auto ist = anteil(treffer.captured(3), schreibweise, zeile, quelle);
    if (!ist) {
        return u"gives fat in dry matter, but the source gives no water"_s;
    }
    const bool spanne = treffer.hasCaptured(2) && !treffer.captured(2).isEmpty();
    const bool richtig = spanne ? zahl(1) <= *ist && *ist <= zahl(2)
                                : std::abs(*ist - zahl(1)) <= spielraum + binaererRest;
    return richtig ? QString()
                   : u"says \"%1\", the figures give %2"_s.arg(treffer.captured(0))
                         .arg(QString::number(*ist, 'f', 1));
}

QStringList zahlenfehler(const Schreibweise &schreibweise, const Tabellenzeile &zeile,
                         const Quellwerte &quelle)
{
    const QString &name = zeile.*schreibweise.name;
    QStringList fehler;
    if (hatFalschesKomma(name, schreibweise.falschesKomma)) {
        fehler.append(u"must write its figures with \"%1\""_s.arg(schreibweise.komma));
        return fehler;
    }
    const auto eintrag = quelle.constFind(zeile.quelle);
    if (eintrag == quelle.cend() || !name.contains(u'%')) {
        return fehler;
    }
    for (const auto &treffer : schreibweise.angabe.globalMatch(name)) {
        const QString einer = angabenfehler(treffer, schreibweise, zeile, *eintrag);
        if (!einer.isEmpty()) {
            fehler.append(einer);
        }
    }
    return fehler;
}

} // namespace

Beanstandungen Namenspruefung::zeilePruefen(const Tabellenzeile &zeile, const Quellwerte &quelle)
{
    Beanstandungen liste;
    for (const Schreibweise &schreibweise : schreibweisen()) {
        const QString &name = zeile.*schreibweise.name;
        const QStringList fehler = namensfehler(name) + zahlenfehler(schreibweise, zeile, quelle);
        for (const QString &einer : fehler) {
            liste.append({zeile.zeile, namensregel, u"\"%1\" %2"_s.arg(name, einer)});
        }
    }
    return liste;
}

Beanstandungen Namenspruefung::gleicheNamen(const Tabelle &tabelle)
{
    Beanstandungen liste;
    for (const Schreibweise &schreibweise : schreibweisen()) {
        QHash<QString, int> gesehen;
        for (const Tabellenzeile &zeile : tabelle) {
            const QString &name = zeile.*schreibweise.name;
            const QString gefaltet = name.toCaseFolded();
            if (const auto erste = gesehen.constFind(gefaltet); erste != gesehen.cend()) {
                const QString meldung = u"\"%1\" is already the name in line %2"_s;
                liste.append({zeile.zeile, u"alike"_s, meldung.arg(name).arg(erste.value())});
            } else {
                gesehen.insert(gefaltet, zeile.zeile);
            }
        }
    }
    return liste;
}
