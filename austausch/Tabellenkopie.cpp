#include "Tabellenkopie.h"

#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QAbstractItemView>
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace Tabellenkopie {

namespace {

/// What stands in a cell, in one line and so that nothing runs it.
QString zellentext(const Csv::Zelle &zelle)
{
    const QChar dezimal = zahlenform().decimalPoint().front();
    if (const auto *einfach = std::get_if<float>(&zelle)) {
        return Csv::zahltext(*einfach, dezimal);
    }
    if (const auto *doppelt = std::get_if<double>(&zelle)) {
        return Csv::zahltext(*doppelt, dezimal);
    }
    const QString text =
        std::holds_alternative<QString>(zelle) ? std::get<QString>(zelle).simplified() : QString();
    return text.size() > 1 ? Csv::geschuetzt(text) : text;
}

QString htmlZeile(const QStringList &felder, const char *art)
{
    QString zeile = QStringLiteral("<tr>");
    for (const QString &feld : felder) {
        zeile += QStringLiteral("<%1>%2</%1>").arg(QLatin1String(art), feld.toHtmlEscaped());
    }
    return zeile + QStringLiteral("</tr>");
}

} // namespace

Csv::Tabelle ausModell(const QAbstractItemModel &modell)
{
    Csv::Tabelle tabelle;
    for (int spalte = 0; spalte < modell.columnCount(); ++spalte) {
        tabelle.spalten << modell.headerData(spalte, Qt::Horizontal).toString().simplified();
    }
    for (int zeile = 0; zeile < modell.rowCount(); ++zeile) {
        QList<Csv::Zelle> zellen;
        for (int spalte = 0; spalte < modell.columnCount(); ++spalte) {
            zellen << modell.index(zeile, spalte).data().toString();
        }
        tabelle.zeilen << zellen;
    }
    return tabelle;
}

QMimeData *alsZwischenablage(const Csv::Tabelle &tabelle)
{
    QStringList felder;
    for (const QString &spalte : tabelle.spalten) {
        felder << zellentext(spalte);
    }
    QString text = felder.join(u'\t') + u'\n';
    QString html = QStringLiteral("<table>") + htmlZeile(felder, "th");
    for (const QList<Csv::Zelle> &zellen : tabelle.zeilen) {
        felder.clear();
        for (const Csv::Zelle &zelle : zellen) {
            felder << zellentext(zelle);
        }
        text += felder.join(u'\t') + u'\n';
        html += htmlZeile(felder, "td");
    }
    auto *daten = new QMimeData;
    daten->setText(text);
    daten->setHtml(html + QStringLiteral("</table>"));
    return daten;
}

void kopiere(const Csv::Tabelle &tabelle)
{
    QGuiApplication::clipboard()->setMimeData(alsZwischenablage(tabelle));
}

void ermoegliche(QAbstractItemView &liste)
{
    auto *befehl = new QAction(localizedString(QStringLiteral("Als &Tabelle kopieren")), &liste);
    befehl->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+C")));
    befehl->setShortcutContext(Qt::WidgetShortcut);
    liste.addAction(befehl);
    liste.setContextMenuPolicy(Qt::ActionsContextMenu);
    QObject::connect(befehl, &QAction::triggered, &liste,
                     [&liste] { kopiere(ausModell(*liste.model())); });
}

} // namespace Tabellenkopie
