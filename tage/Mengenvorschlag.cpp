#include "Mengenvorschlag.h"

#include "Portionendatei.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

using namespace Qt::StringLiterals;

/// Takes it up when it is understood and does not stand there yet.
void nimmAuf(QList<Mengenvorschlag> &alle, const QString &text, const QList<Mass> &masse,
             Regelsprache sprache)
{
    const Mengenergebnis ergebnis = leseMenge(text, masse);
    if (!ergebnis.angabe) {
        return;
    }
    const Mengenvorschlag neuer{mengentextMitGramm(*ergebnis.angabe, sprache),
                                behalteneAngabe(text, masse, sprache)};
    if (!alle.contains(neuer)) {
        alle << neuer;
    }
}

bool beginntSo(const Mass &mass, const QString &name)
{
    const QStringList namen = {mass.eines, mass.viele, mass.einesEn, mass.vieleEn};
    return std::any_of(namen.begin(), namen.end(), [&](const QString &einer) {
        return einer.startsWith(name, Qt::CaseInsensitive);
    });
}

} // namespace

QList<Mengenvorschlag> mengenvorschlaege(const QString &text, const QList<Mass> &masse,
                                         Regelsprache sprache)
{
    static const QRegularExpression anfang(u"^[\\d.,/½¼¾⅓⅔\\s]*"_s);
    QList<Mengenvorschlag> alle;
    nimmAuf(alle, text, masse, sprache);
    const QString zahl = anfang.match(text).captured();
    const QString name = text.mid(zahl.size()).trimmed();
    const QString anzahl = zahl.trimmed().isEmpty() ? u"1"_s : zahl.trimmed();
    for (const Mass &mass : masse) {
        const QString ganze = anzahl + u' ' + mass.eines;
        const Mengenergebnis ergebnis = leseMenge(ganze, masse);
        if (beginntSo(mass, name) && ergebnis.angabe &&
            static_cast<double>(ergebnis.angabe->gramm) <= Portionendatei::meisteGramm) {
            nimmAuf(alle, ganze, masse, sprache);
        }
    }
    return alle;
}

QString behalteneAngabe(const QString &text, const QList<Mass> &masse, Regelsprache sprache)
{
    const Mengenergebnis ergebnis = leseMenge(text, masse);
    if (!ergebnis.angabe) {
        return text;
    }
    QString schoene = mengentext(*ergebnis.angabe, sprache);
    if (leseMenge(schoene, masse).angabe == ergebnis.angabe) {
        return schoene;
    }
    const bool nurZahl = !ergebnis.angabe->mass && !text.isEmpty() && !text.back().isLetter();
    return nurZahl ? text + u" g"_s : text;
}
