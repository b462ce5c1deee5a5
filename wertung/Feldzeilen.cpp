#include "Feldzeilen.h"

#include <QStringDecoder>

#include <utility>

using namespace Qt::StringLiterals;

bool Feldzeilen::istBemerkung(QStringView zeile)
{
    return zeile.isEmpty() || zeile.startsWith(u'#');
}

Feldzeilen::Ergebnis Feldzeilen::lesen(QByteArrayView bytes, const QStringList &spalten)
{
    Ergebnis ergebnis;
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(bytes);
    if (utf8.hasError()) {
        ergebnis.beanstandungen.append({0, formregel, u"The file is not in UTF-8"_s});
    }

    bool kopfGelesen = false;
    int nummer = 0;
    for (const QString &rohzeile : text.split(u'\n')) {
        ++nummer;
        const QString zeile = rohzeile.endsWith(u'\r') ? rohzeile.chopped(1) : rohzeile;
        if (istBemerkung(zeile)) {
            continue;
        }
        const QStringList felder = zeile.split(u';');
        if (!std::exchange(kopfGelesen, true)) {
            if (felder != spalten) {
                const QString meldung = u"The columns must be "_s + spalten.join(u';');
                ergebnis.beanstandungen.append({nummer, formregel, meldung});
                return ergebnis;
            }
        } else if (felder.size() != spalten.size()) {
            const QString meldung = u"%1 fields instead of %2"_s;
            ergebnis.beanstandungen.append(
                {nummer, formregel, meldung.arg(felder.size()).arg(spalten.size())});
        } else {
            ergebnis.zeilen.append({nummer, felder});
        }
    }
    if (!kopfGelesen) {
        ergebnis.beanstandungen.append({0, formregel, u"The table is empty"_s});
    }
    return ergebnis;
}
