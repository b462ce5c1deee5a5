#include "Namenswechsel.h"

#include <QFile>

Namenswechsel leseNamenswechsel(const QString &path)
{
    Namenswechsel wechsel;
    QFile datei(path);
    if (!datei.open(QIODevice::ReadOnly)) {
        return wechsel;
    }
    const QStringList zeilen = QString::fromUtf8(datei.readAll()).split(u'\n');
    for (const QString &zeile : zeilen) {
        const qsizetype trenner = zeile.indexOf(u';');
        if (trenner > 0 && !zeile.startsWith(u'#')) {
            wechsel.insert(zeile.left(trenner), zeile.mid(trenner + 1).trimmed());
        }
    }
    return wechsel;
}

Namenswechsel leseNamenswechsel(const QString &path, const Lebensmittelverzeichnis &eingebaute)
{
    Namenswechsel wechsel = leseNamenswechsel(path);
    erase_if(wechsel, [&eingebaute](const auto &paar) { return !eingebaute.contains(*paar); });
    return wechsel;
}

Namensbefund pruefeNamen(const QStringList &unbekannt, const QStringList &namen,
                         const Namenswechsel &wechsel)
{
    Namensbefund befund;
    QSet<QString> vergeben(namen.begin(), namen.end());
    QSet<QString> geprueft;
    for (const QString &name : unbekannt) {
        if (geprueft.contains(name)) {
            continue;
        }
        geprueft.insert(name);
        const auto neu = wechsel.constFind(name);
        if (neu == wechsel.constEnd()) {
            befund.fehlend << name;
        } else if (vergeben.contains(*neu)) {
            befund.doppelt << name;
        } else {
            befund.umbenannt << name;
            vergeben.insert(*neu);
        }
    }
    return befund;
}
