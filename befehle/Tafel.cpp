#include "Tafel.h"

#include <algorithm>

namespace {

const QString einzug = QStringLiteral("  ");

QList<qsizetype> spaltenbreiten(const QList<QStringList> &zeilen)
{
    QList<qsizetype> breiten;
    for (const QStringList &zeile : zeilen) {
        breiten.resize(std::max(breiten.size(), zeile.size()));
        for (qsizetype i = 0; i < zeile.size(); ++i) {
            breiten[i] = std::max(breiten[i], zeile[i].size());
        }
    }
    return breiten;
}

} // namespace

QString ausgerichtet(const QList<QStringList> &zeilen, QLatin1String seiten)
{
    const QList<qsizetype> breiten = spaltenbreiten(zeilen);
    QString text;
    for (const QStringList &zeile : zeilen) {
        QString linie;
        for (qsizetype i = 0; i < zeile.size(); ++i) {
            const bool rechts = i < seiten.size() && seiten[i] == QLatin1Char('r');
            linie += einzug + (rechts ? zeile[i].rightJustified(breiten[i])
                                      : zeile[i].leftJustified(breiten[i]));
        }
        while (linie.endsWith(u' ')) {
            linie.chop(1);
        }
        text += linie + u'\n';
    }
    return text;
}
