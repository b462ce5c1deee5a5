#include "Rangworte.h"

#include "Einblickworte.h"
#include "Mengenangabe.h"
#include "Zeichenkettentabelle.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QSignalBlocker>

#include <algorithm>
#include <array>

namespace {

/// In the order of `Bezug`.
constexpr std::array<const char *, 3> bezuege = {QT_TRANSLATE_NOOP("Mahlberg", "je 100 g"),
                                                 QT_TRANSLATE_NOOP("Mahlberg", "je 100 kcal"),
                                                 QT_TRANSLATE_NOOP("Mahlberg", "je Portion")};

} // namespace

QString Rangworte::bezug(Bezug bezug)
{
    return localizedString(QString::fromUtf8(bezuege.at(static_cast<std::size_t>(bezug))));
}

QString Rangworte::wert(Kenngroesse groesse, const Bezugswert &wert)
{
    switch (wert.stand) {
    case Bezugswert::Stand::Bekannt:
        return Einblickworte::menge(groesse, wert.wert);
    case Bezugswert::Stand::Mindestens:
        return localizedString(QStringLiteral("mind. %1"))
            .arg(Einblickworte::menge(groesse, wert.wert));
    case Bezugswert::Stand::OhneAngabe:
        return localizedString(QStringLiteral("unbekannt"));
    case Bezugswert::Stand::OhnePortion:
        return localizedString(QStringLiteral("ohne Portion"));
    }
    Q_UNREACHABLE();
}

QString Rangworte::portionsworte(const std::optional<Mass> &portion)
{
    if (!portion) {
        return {};
    }
    const bool englisch = QLocale().language() == QLocale::English;
    const Mengenangabe eine = {
        .anzahl = 1, .mass = portion, .gramm = static_cast<float>(portion->gramm)};
    return mengentextMitGramm(eine, englisch ? Regelsprache::Englisch : Regelsprache::Deutsch);
}

void Rangworte::fuelle(QComboBox &wahl, const QStringList &namen)
{
    const QSignalBlocker still(wahl);
    const int bisher = wahl.currentIndex();
    wahl.clear();
    wahl.addItems(namen);
    wahl.setCurrentIndex(std::max(0, bisher));
    // A chooser keeps the least width that its first entries needed, until its look changes.
    QEvent neu(QEvent::StyleChange);
    QCoreApplication::sendEvent(&wahl, &neu);
}

void Rangworte::fuelleGroessen(QComboBox &wahl)
{
    QStringList namen;
    for (const Kenngroessenbeschreibung &eine : kenngroessen) {
        namen << nameVon(eine.groesse);
    }
    wahl.setMaxVisibleItems(static_cast<int>(anzahlKenngroessen));
    fuelle(wahl, namen);
}

void Rangworte::fuelleBezuege(QComboBox &wahl)
{
    QStringList namen;
    for (const Bezug einer : {Bezug::Je100g, Bezug::Je100kcal, Bezug::JePortion}) {
        namen << bezug(einer);
    }
    fuelle(wahl, namen);
}

Kenngroesse Rangworte::gewaehlteGroesse(const QComboBox &wahl)
{
    return kenngroessen.at(static_cast<std::size_t>(std::max(0, wahl.currentIndex()))).groesse;
}

Bezug Rangworte::gewaehlterBezug(const QComboBox &wahl)
{
    return static_cast<Bezug>(std::max(0, wahl.currentIndex()));
}
