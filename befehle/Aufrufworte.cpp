#include "Aufrufworte.h"

#include "Einzeilig.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <array>

namespace {

/// In the order of `Fehlerart`.
constexpr std::array<const char *, 13> saetze = {
    QT_TRANSLATE_NOOP("Mahlberg", "Die Option „%1“ gibt es nicht."),
    QT_TRANSLATE_NOOP("Mahlberg", "Hinter der Option „%1“ fehlt eine Angabe."),
    QT_TRANSLATE_NOOP("Mahlberg", "Zu der Option in „%1“ gehört keine Angabe."),
    QT_TRANSLATE_NOOP("Mahlberg", "Die Option „%1“ passt nicht zu diesem Aufruf."),
    QT_TRANSLATE_NOOP("Mahlberg", "Die Option „--language“ kennt „de“ und „en“, nicht „%1“."),
    QT_TRANSLATE_NOOP("Mahlberg",
                      "Die Option „--format“ kennt „text“, „csv“ und „json“, nicht „%1“."),
    QT_TRANSLATE_NOOP("Mahlberg", "Die Option „--data-dir“ verlangt einen Ordner."),
    QT_TRANSLATE_NOOP("Mahlberg", "Die Option „--energy“ verlangt ganze kcal über 0, nicht „%1“."),
    QT_TRANSLATE_NOOP("Mahlberg", "Den Befehl „%1“ gibt es nicht."),
    QT_TRANSLATE_NOOP("Mahlberg", "Hinter „%1“ fehlt die Datei eines Plans."),
    QT_TRANSLATE_NOOP("Mahlberg", "Hinter „%1“ fehlt der Name eines Lebensmittels."),
    QT_TRANSLATE_NOOP("Mahlberg", "Die Menge „%1“ ist keine Zahl von Gramm ab 0."),
    QT_TRANSLATE_NOOP("Mahlberg", "Die Angabe „%1“ ist zu viel."),
};

struct Hilfszeile
{
    const char *aufruf;
    const char *bedeutung;
    const char *beispiel;
};

constexpr std::array<Hilfszeile, 4> aufrufe = {{
    {"mahlberg [OPTION …]", QT_TRANSLATE_NOOP("Mahlberg", "öffnet die Fenster"), "mahlberg"},
    {QT_TRANSLATE_NOOP("Mahlberg", "mahlberg [OPTION …] DATEI.daten …"),
     QT_TRANSLATE_NOOP("Mahlberg", "zeigt in den Fenstern, was Dateien enthalten, und übernimmt "
                                   "auf Wunsch ihre Lebensmittel"),
     "mahlberg alt.daten"},
    {QT_TRANSLATE_NOOP("Mahlberg", "mahlberg evaluate [OPTION …] PLAN.daten"),
     QT_TRANSLATE_NOOP("Mahlberg", "wertet den Mahlzeitenplan einer Datei aus"),
     "mahlberg evaluate MahlbergPlanmod.daten"},
    {QT_TRANSLATE_NOOP("Mahlberg", "mahlberg food [OPTION …] NAME [GRAMM]"),
     QT_TRANSLATE_NOOP("Mahlberg", "zeigt die Werte eines Lebensmittels, ohne Menge für 100 g"),
     QT_TRANSLATE_NOOP("Mahlberg", "mahlberg food Haferflocken 50")},
}};

constexpr std::array<Hilfszeile, 8> optionen = {{
    {"-h, --help", QT_TRANSLATE_NOOP("Mahlberg", "zeigt diese Hilfe"), "mahlberg --help"},
    {"-v, --version", QT_TRANSLATE_NOOP("Mahlberg", "zeigt die Version"), "mahlberg --version"},
    {"--language de|en", QT_TRANSLATE_NOOP("Mahlberg", "Sprache der Fenster und Texte"),
     "mahlberg --language en"},
    {QT_TRANSLATE_NOOP("Mahlberg", "--data-dir ORDNER"),
     QT_TRANSLATE_NOOP("Mahlberg",
                       "Ordner der eigenen Lebensmittel und des Plans; fehlt er, wird er angelegt"),
     QT_TRANSLATE_NOOP("Mahlberg", "mahlberg --data-dir ~/Praxis")},
    {QT_TRANSLATE_NOOP("Mahlberg", "--tour ORDNER"),
     QT_TRANSLATE_NOOP("Mahlberg", "macht einen Rundgang durch die Fenster und legt Bilder davon "
                                   "ab; eigene Dateien bleiben unberührt"),
     QT_TRANSLATE_NOOP("Mahlberg", "mahlberg --tour /tmp/Rundgang")},
    {"--format text|csv|json",
     QT_TRANSLATE_NOOP("Mahlberg", "Form der Ausgabe von „evaluate“ und „food“"),
     QT_TRANSLATE_NOOP("Mahlberg", "mahlberg food --format json Butter")},
    {"--energy KCAL",
     QT_TRANSLATE_NOOP("Mahlberg", "Energiebedarf am Tag, an dem „evaluate“ den Plan misst"),
     "mahlberg evaluate --energy 2000 MahlbergPlanmod.daten"},
    {"--own", QT_TRANSLATE_NOOP("Mahlberg", "„food“ sucht nur unter den eigenen Lebensmitteln"),
     QT_TRANSLATE_NOOP("Mahlberg", "mahlberg food --own Müsli")},
}};

constexpr const char *ausgaenge =
    QT_TRANSLATE_NOOP("Mahlberg", "Rückgabewert: 0 erledigt, 1 nicht gelungen, 2 falscher Aufruf.");

QString uebersetzt(const char *text)
{
    return localizedString(QString::fromUtf8(text));
}

template <std::size_t anzahl>
QString abschnitt(const std::array<Hilfszeile, anzahl> &zeilen)
{
    QString text;
    for (const Hilfszeile &zeile : zeilen) {
        text += QStringLiteral("  %1\n      %2\n      %3: %4\n")
                    .arg(uebersetzt(zeile.aufruf), uebersetzt(zeile.bedeutung),
                         localizedString(QStringLiteral("Beispiel")), uebersetzt(zeile.beispiel));
    }
    return text;
}

} // namespace

QString inWorten(const Aufruffehler &fehler)
{
    const QString satz = uebersetzt(saetze.at(static_cast<std::size_t>(fehler.art)));
    return satz.contains(QLatin1String("%1")) ? satz.arg(einzeilig(fehler.wort)) : satz;
}

QString hilfetext()
{
    return localizedString(QStringLiteral("Aufruf:")) + u'\n' + abschnitt(aufrufe) + u'\n' +
           localizedString(QStringLiteral("Optionen, vor oder hinter dem Befehl:")) + u'\n' +
           abschnitt(optionen) + u'\n' + uebersetzt(ausgaenge) + u'\n';
}
