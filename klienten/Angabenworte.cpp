#include "Angabenworte.h"

#include "Feldworte.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <array>

namespace {

/// How a doubt is put into words, in the order of their kinds. %1 is the measure, %2 the one
/// before, %3 its day.
struct Zweifelswort
{
    const char *spalte; ///< of the measure
    const char *satz;
};

constexpr std::array<Zweifelswort, 8> zweifelsworte = {{
    {"gewicht", QT_TRANSLATE_NOOP("Mahlberg", "%1 sind ein ungewöhnliches Gewicht.")},
    {"groesse", QT_TRANSLATE_NOOP("Mahlberg", "%1 sind eine ungewöhnliche Größe.")},
    {"taille", QT_TRANSLATE_NOOP("Mahlberg", "%1 sind ein ungewöhnlicher Taillenumfang.")},
    {"huefte", QT_TRANSLATE_NOOP("Mahlberg", "%1 sind ein ungewöhnlicher Hüftumfang.")},
    {"gewicht", QT_TRANSLATE_NOOP("Mahlberg", "Das Gewicht springt: %1 nach %2 am %3.")},
    {"groesse", QT_TRANSLATE_NOOP("Mahlberg", "Die Größe springt: %1 nach %2 am %3.")},
    {"datum", QT_TRANSLATE_NOOP("Mahlberg", "Der Besuch liegt in der Zukunft.")},
    {"datum", QT_TRANSLATE_NOOP("Mahlberg", "Der Besuch liegt vor der Geburt.")},
}};

/// What each hindrance means, in their order.
constexpr std::array<const char *, 9> hindernisworte = {
    "",
    QT_TRANSLATE_NOOP("Mahlberg", "Die Klienten lassen sich nicht lesen oder schreiben: Das System "
                                  "verwehrt es. Bitte prüfen Sie die Rechte des Ordners."),
    QT_TRANSLATE_NOOP("Mahlberg", "Ein anderes Programm hält die Klienten gerade fest."),
    QT_TRANSLATE_NOOP("Mahlberg", "Der Server der Klienten ist nicht zu erreichen."),
    QT_TRANSLATE_NOOP("Mahlberg", "Was an der Stelle der Klienten liegt, stammt von einem anderen "
                                  "Programm. Es wird nicht angerührt."),
    QT_TRANSLATE_NOOP("Mahlberg", "Die Klienten wurden mit einer neueren Version von Mahlberg "
                                  "geschrieben. Sie können gelesen, aber nicht geändert werden."),
    QT_TRANSLATE_NOOP("Mahlberg", "Die Klienten sind beschädigt. Sie werden nicht angerührt; "
                                  "vielleicht hilft ein früherer Stand."),
    QT_TRANSLATE_NOOP("Mahlberg", "Was Mahlberg braucht, um mit dem Speicher der Klienten zu "
                                  "sprechen, ist nicht eingerichtet."),
    QT_TRANSLATE_NOOP("Mahlberg", "Die Klienten lassen sich gerade nicht lesen oder schreiben."),
};

} // namespace

QString inWorten(Personenmangel mangel)
{
    static constexpr std::array<const char *, 3> worte = {
        QT_TRANSLATE_NOOP("Mahlberg", "Ein Name muss sein."),
        QT_TRANSLATE_NOOP("Mahlberg", "Dieser Tag kommt erst noch."),
        QT_TRANSLATE_NOOP("Mahlberg", "So alt ist niemand."),
    };
    return localizedString(QString::fromUtf8(worte.at(static_cast<std::size_t>(mangel))));
}

QString inWorten(const Zweifel &zweifel)
{
    const Zweifelswort &wort = zweifelsworte.at(static_cast<std::size_t>(zweifel.art));
    const QString satz = localizedString(QString::fromUtf8(wort.satz));
    if (zweifel.tag.isValid()) {
        return satz.arg(feldworte(wort.spalte, zweifel.wert),
                        feldworte(wort.spalte, zweifel.vergleich), tagesworte(zweifel.tag));
    }
    return satz.contains(QLatin1String("%1")) ? satz.arg(feldworte(wort.spalte, zweifel.wert))
                                              : satz;
}

QString inWorten(const Ausgang &ausgang)
{
    const QString satz = localizedString(
        QString::fromUtf8(hindernisworte.at(static_cast<std::size_t>(ausgang.hindernis))));
    const QString grund = ausgang.grund.simplified(); // servers answer in several lines
    return grund.isEmpty() ? satz : satz + QStringLiteral(" (") + grund + u')';
}
