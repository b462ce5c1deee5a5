#include "Einblickworte.h"

#include "Hinweisstreifen.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QTextDocument>

#include <cmath>

QString Einblickworte::menge(Kenngroesse groesse, double wert)
{
    return QStringLiteral("%1 %2").arg(wertText(wert, beschreibung(groesse).stellen),
                                       einheitVon(groesse));
}

QString Einblickworte::gramm(double gramm)
{
    const double gezeigt = std::round(10 * gramm) / 10;
    const bool ganz = gezeigt >= 10 || gezeigt == std::round(gezeigt);
    return QStringLiteral("%1 g").arg(wertText(ganz ? gramm : gezeigt, ganz ? 0 : 1));
}

QString Einblickworte::anteil(double teil)
{
    if (teil > 0 && teil < 0.005) {
        return QStringLiteral("< 1 %");
    }
    return QStringLiteral("%1 %").arg(zahlenform().toString(100 * teil, 'f', 0));
}

QString Einblickworte::unbekanntes(double teil)
{
    return teil > 0
               ? localizedString(QStringLiteral("bei %1 der Menge unbekannt")).arg(anteil(teil))
               : QString();
}

QString Einblickworte::namen(const QStringList &schluessel)
{
    QStringList namen;
    for (const QString &einer : schluessel) {
        namen << kurzerName(localizedString(einer));
    }
    return aufzaehlung(namen, 6);
}

QString Einblickworte::hinweistext(const QString &text)
{
    return Qt::mightBeRichText(text)
               ? QStringLiteral("<qt>%1</qt>")
                     .arg(text.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>")))
               : text;
}
