#include "Siegel.h"

#include "Feldzeilen.h"
#include "Tabellendatei.h"

#include <QCryptographicHash>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype stellen = 8;

} // namespace

QString Siegel::pruefzeichen(const QStringList &felder)
{
    const QByteArray text = felder.join(u';').toUtf8();
    const QByteArray hash = QCryptographicHash::hash(text, QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.toHex().first(stellen));
}

Beanstandungen Siegel::pruefen(QByteArrayView bytes)
{
    Beanstandungen liste;
    for (const auto &[nummer, felder] : Feldzeilen::lesen(bytes, Tabellendatei::spalten()).zeilen) {
        if (felder.last() != pruefzeichen(felder.first(felder.size() - 1))) {
            const QString meldung =
                u"%1: changed since it was sealed: check the line and run tabelle-bauen --seal"_s;
            liste.append({nummer, u"seal"_s, meldung.arg(felder.first())});
        }
    }
    return liste;
}

QByteArray Siegel::versiegelt(QByteArrayView bytes)
{
    QStringList zeilen = QString::fromUtf8(bytes).split(u'\n');
    bool kopfGelesen = false;
    for (QString &zeile : zeilen) {
        const QString ende = zeile.endsWith(u'\r') ? u"\r"_s : QString();
        const QString inhalt = zeile.chopped(ende.size());
        if (Feldzeilen::istBemerkung(inhalt) || !std::exchange(kopfGelesen, true)) {
            continue;
        }
        QStringList felder = inhalt.split(u';');
        felder.removeLast();
        zeile = felder.join(u';') + u';' + pruefzeichen(felder) + ende;
    }
    return zeilen.join(u'\n').toUtf8();
}
